#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/ficheros.h"

namespace veldix {

/// The lines of a long text file, read in chunks. CR LF, LF and CR each end one; a last line without an end
/// counts, unless it is a lone 0x1A. A line beyond 8 MiB is cut there.
class LectorLineasFichero {
public:
    explicit LectorLineasFichero(const std::string& ruta);

    /// The next line, valid until the next call. Errors as LectorTrozos.
    std::optional<std::string_view> Lee();
    /// The first line of a file just opened, as a text of its own.
    std::optional<std::string> Primera();

private:
    bool Rellena();
    std::optional<std::string_view> Ultima();
    void SaltaHastaFin();

    LectorTrozos fichero_;
    std::vector<char> buf_;
    std::vector<char> cabeza_;  ///< of a line that was cut
    std::size_t pos_ = 0, lleno_ = 0;
    bool agotado_ = false;
    bool saltaLf_ = false;  ///< the line before ended with a CR at the end of what was read
};

}  // namespace veldix
