#include "platform/lector_lineas_fichero.h"

#include <algorithm>
#include <cstring>

namespace veldix {

namespace {

constexpr std::size_t kMayorLinea = 8 * 1024 * 1024;

/// First CR or LF of [de, hasta), or `hasta`. Nearly every line ends with LF, with at most a CR before it,
/// so that one memchr finds it; a CR inside is looked for in what that leaves.
const char* FinDeLinea(const char* de, const char* hasta)
{
    const auto n = static_cast<std::size_t>(hasta - de);
    const auto* lf = static_cast<const char*>(std::memchr(de, '\n', n));
    const char* fin = lf ? lf : hasta;
    const auto* cr = static_cast<const char*>(std::memchr(de, '\r', static_cast<std::size_t>(fin - de)));
    return cr ? cr : fin;
}

}  // namespace

LectorLineasFichero::LectorLineasFichero(const std::string& ruta) : fichero_(ruta), buf_(kTrozo) {}

/// Moves what is left to the front and reads on. False where nothing more came or fits.
bool LectorLineasFichero::Rellena()
{
    if (agotado_) return false;
    if (pos_ > 0) {
        std::memmove(buf_.data(), buf_.data() + pos_, lleno_ - pos_);
        lleno_ -= pos_;
        pos_ = 0;
    }
    if (lleno_ == buf_.size()) {
        if (buf_.size() >= kMayorLinea) return false;
        buf_.resize(buf_.size() * 2);
    }
    const std::size_t n = fichero_.Lee({buf_.data() + lleno_, buf_.size() - lleno_});
    agotado_ = n < buf_.size() - lleno_;
    lleno_ += n;
    return n > 0;
}

std::optional<std::string_view> LectorLineasFichero::Ultima()
{
    const std::string_view resto(buf_.data() + pos_, lleno_ - pos_);
    pos_ = lleno_;
    if (resto.empty() || resto == "\x1A") return std::nullopt;
    return resto;
}

/// Passes over the rest of a line too long to be held.
void LectorLineasFichero::SaltaHastaFin()
{
    for (;;) {
        const char* de = buf_.data() + pos_;
        const char* fin = FinDeLinea(de, buf_.data() + lleno_);
        pos_ += static_cast<std::size_t>(fin - de);
        if (pos_ < lleno_ || !Rellena()) return;
    }
}

std::optional<std::string> LectorLineasFichero::Primera()
{
    const auto linea = Lee();
    return linea ? std::optional<std::string>(*linea) : std::nullopt;
}

std::optional<std::string_view> LectorLineasFichero::Lee()
{
    std::size_t visto = 0;
    for (;;) {
        if (saltaLf_ && pos_ < lleno_) {
            if (buf_[pos_] == '\n') ++pos_;
            saltaLf_ = false;
        }
        const char* de = buf_.data() + pos_;
        const char* hasta = buf_.data() + lleno_;
        const char* fin = FinDeLinea(de + std::min<std::size_t>(visto, lleno_ - pos_), hasta);
        if (fin != hasta) {
            const std::string_view linea(de, static_cast<std::size_t>(fin - de));
            pos_ += linea.size() + 1;
            saltaLf_ = *fin == '\r';
            return linea;
        }
        visto = lleno_ - pos_;
        if (Rellena()) continue;
        if (agotado_) return Ultima();
        // The line fills the whole buffer: its head is kept aside of what is passed over.
        cabeza_.assign(buf_.begin(), buf_.begin() + static_cast<std::ptrdiff_t>(lleno_));
        pos_ = lleno_;
        if (Rellena()) SaltaHastaFin();
        if (pos_ < lleno_) {
            saltaLf_ = buf_[pos_] == '\r';
            ++pos_;
        }
        return std::string_view(cabeza_.data(), cabeza_.size());
    }
}

}  // namespace veldix
