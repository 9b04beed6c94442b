#pragma once

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veldix {

/// Octets that files are read and written in.
inline constexpr std::size_t kTrozo = 256 * 1024;

bool ExisteFichero(const std::string& ruta);
bool ExisteCarpeta(const std::string& ruta);

/// A path of the program's own making as it stands on the disk: the exact spelling first, else a file of the
/// same folder whose name differs in case alone, the least of several, else the path unchanged. Only the last
/// component is sought.
std::string BuscaSinCaja(const std::string& ruta);
/// The same for a file of this very stem: the extension alone, with its point, may be in another case.
std::string BuscaExtension(const std::string& tronco, std::string_view extension);

/// The file or folder behind links that lead to one; a path that leads nowhere unchanged.
std::string SinEnlaces(const std::string& ruta);

/// Folder and name joined by the separator, which is not doubled.
std::string UneRuta(std::string_view carpeta, std::string_view nombre);
std::string CarpetaDe(std::string_view ruta);
std::string NombreDe(std::string_view ruta);

/// A file as a whole. Raises 75 for an empty path or a folder, 53 where the file is missing, 76 where
/// its folder is, 70 where it may not be read, 57 where reading fails, 7 over 64 MiB.
std::string LeeOctetos(const std::string& ruta);

/// A file read in chunks, so that a long one is never in memory whole. Errors as LeeOctetos.
class LectorTrozos {
public:
    explicit LectorTrozos(const std::string& ruta);
    ~LectorTrozos();
    LectorTrozos(const LectorTrozos&) = delete;
    LectorTrozos& operator=(const LectorTrozos&) = delete;

    /// Fills `donde` as far as the file goes; the count of octets read, less than asked only at its end.
    std::size_t Lee(std::span<char> donde);
    /// Octets of a regular file as it is now, those of a chunk for anything else.
    std::size_t Tamano() const;

private:
    int fd_ = -1;
};

/// A file the user owns written anew in pieces, through a temporary file of its folder: the old one stands,
/// also on a full disk or after a kill, until Confirma renames the new one over it. A link to a file stays.
class FicheroNuevo {
public:
    /// Raises 52, 61, 70, 75, 76.
    explicit FicheroNuevo(const std::string& ruta);
    /// Without Confirma nothing has happened.
    ~FicheroNuevo();
    FicheroNuevo(const FicheroNuevo&) = delete;
    FicheroNuevo& operator=(const FicheroNuevo&) = delete;

    /// All three raise 57, 61, 70, 75.
    void Escribe(std::string_view octetos);
    /// The last step that may need room on the disk; Confirma does it too.
    void Cierra();
    void Confirma();

private:
    std::string real_, temporal_;
    unsigned permisos_;
    int fd_ = -1;
};

/// Files that belong together: none is replaced before all are written.
class FicherosNuevos {
public:
    /// The next one, to be written. Raises as FicheroNuevo.
    FicheroNuevo& Abre(const std::string& ruta);
    void Confirma();

private:
    std::deque<FicheroNuevo> ficheros_;
};

/// Replaces a file as a whole, as FicheroNuevo does. Raises 52, 57, 61, 70, 75, 76.
void ReemplazaFichero(const std::string& ruta, std::string_view octetos);
/// Writes the octets of another file. Raises what reading and writing raise.
void Copia(const std::string& origen, FicheroNuevo& destino);

/// Writes a file in place, replacing what is there; a failure leaves it half written. Raises as above.
void EscribeFichero(const std::string& ruta, std::string_view octetos);

/// For tests: octets that a write may put on the disk before it counts as full; negative lifts the limit.
void LimitaDisco(long long octetos);

/// The lines of a text: CR LF, LF and CR each end one; a lone 0x1A at the end is no line.
std::vector<std::string> Lineas(std::string_view texto);

/// The lines of a text one by one, each cut when it is asked for.
class LectorLineas {
public:
    /// `decodifica`, where given, makes UTF-8 of each line.
    explicit LectorLineas(std::string texto, std::string (*decodifica)(std::string_view) = nullptr);
    /// The next line. Raises 62 behind the last one.
    std::string Lee();
    bool Fin() const { return pos_ == texto_.size(); }

private:
    std::string texto_;
    std::string (*decodifica_)(std::string_view);
    std::size_t pos_ = 0;
};

/// Lines joined with CR LF behind each.
std::string Une(const std::vector<std::string>& lineas);

/// The folder that the program was started from, links among folders kept, without a separator at its end.
std::string CarpetaPrograma(const char* argv0);

}  // namespace veldix
