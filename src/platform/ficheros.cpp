#include "platform/ficheros.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <utility>

#include "platform/errores.h"
#include "platform/texto.h"

namespace veldix {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMayorTexto = 64 * 1024 * 1024;

long long g_limiteDisco = -1;

int ErrorDeApertura(const std::string& ruta, int codigo)
{
    switch (codigo) {
        case ENOENT:
        case ENOTDIR: {
            const std::string carpeta = CarpetaDe(ruta);
            return carpeta.empty() || ExisteCarpeta(carpeta) ? error::kFicheroNoEncontrado
                                                             : error::kRutaNoEncontrada;
        }
        case EACCES:
        case EPERM:
        case EROFS:
            return error::kPermiso;
        case ENOSPC:
        case EDQUOT:
            return error::kDiscoLleno;
        case ENAMETOOLONG:
            return error::kNombreFichero;
        default:
            return error::kAccesoRuta;
    }
}

int ErrorDeEscritura(int codigo)
{
    if (codigo == ENOSPC || codigo == EDQUOT || codigo == EFBIG) return error::kDiscoLleno;
    return error::kEntradaSalida;
}

int AbreParaLeer(const std::string& ruta)
{
    if (ruta.empty() || ExisteCarpeta(ruta)) Lanza(error::kAccesoRuta);
    const int fd = open(ruta.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) Lanza(ErrorDeApertura(ruta, errno));
    return fd;
}

void EscribeTodo(int fd, std::string_view octetos)
{
    while (!octetos.empty()) {
        std::size_t cuantos = octetos.size();
        if (g_limiteDisco >= 0) cuantos = std::min(cuantos, static_cast<std::size_t>(g_limiteDisco));
        if (cuantos == 0) Lanza(error::kDiscoLleno);
        const ssize_t n = write(fd, octetos.data(), cuantos);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) Lanza(ErrorDeEscritura(errno));
        if (g_limiteDisco >= 0) g_limiteDisco -= n;
        octetos.remove_prefix(static_cast<std::size_t>(n));
    }
}

/// What was written is on the disk, or the error raised; the descriptor is closed in any case.
void CierraEscrito(int fd)
{
    if (fsync(fd) != 0 && errno != EINVAL) {
        const int codigo = errno;
        close(fd);
        Lanza(ErrorDeEscritura(codigo));
    }
    if (close(fd) != 0) Lanza(ErrorDeEscritura(errno));
}

mode_t PermisosDe(const std::string& ruta)
{
    struct stat s {};
    if (stat(ruta.c_str(), &s) == 0) return s.st_mode & 07777U;
    const mode_t mascara = umask(0);
    umask(mascara);
    return 0666U & ~mascara;
}

/// A file of another user in a folder where only owners may rename: found out before anything is written.
bool AjenoEnPegajosa(const std::string& ruta)
{
    struct stat fichero {
    }, carpeta{};
    const std::string suya = CarpetaDe(ruta);
    if (stat(ruta.c_str(), &fichero) != 0 || stat(suya.empty() ? "." : suya.c_str(), &carpeta) != 0)
        return false;
    const uid_t yo = geteuid();
    return (carpeta.st_mode & S_ISVTX) != 0 && yo != 0 && yo != fichero.st_uid && yo != carpeta.st_uid;
}

/// Less a lone 0x1A at the end.
std::string_view SinFinDeFichero(std::string_view texto)
{
    const std::size_t n = texto.size();
    const bool sola = n == 1 || (n > 1 && (texto[n - 2] == '\n' || texto[n - 2] == '\r'));
    return sola && texto.back() == '\x1A' ? texto.substr(0, n - 1) : texto;
}

/// The first line of a text that is not empty, and its length with its end.
std::string_view PrimeraLinea(std::string_view texto, std::size_t& largo)
{
    const std::size_t fin = std::min(texto.find_first_of("\r\n"), texto.size());
    largo = std::min(texto.size(), fin + (texto.substr(fin).starts_with("\r\n") ? 2U : 1U));
    return texto.substr(0, fin);
}

/// The exact spelling of a path, else the least name of its folder that differs in case alone and begins with
/// `exacto`, else the path unchanged.
std::string BuscaDesde(const std::string& ruta, std::string_view exacto)
{
    if (ruta.empty() || ExisteFichero(ruta) || ExisteCarpeta(ruta)) return ruta;
    const std::string carpeta = CarpetaDe(ruta), nombre = NombreDe(ruta);
    std::string hallado;
    std::error_code ec;
    for (fs::directory_iterator it(carpeta.empty() ? "." : carpeta, ec), fin; !ec && it != fin;
         it.increment(ec)) {
        const std::string este = it->path().filename().string();
        if (!este.starts_with(exacto) || !IgualSinCaja(este, nombre)) continue;
        if (hallado.empty() || este < hallado) hallado = este;
    }
    return hallado.empty() ? ruta : ruta.substr(0, ruta.size() - nombre.size()) + hallado;
}

/// The program's path as it was typed, absolute.
std::string RutaArrancada(const char* argv0)
{
    const std::string nombre = argv0 ? argv0 : "";
    if (!nombre.empty() && nombre[0] == '/') return nombre;
    const char* pwd = std::getenv("PWD");
    std::error_code ec;
    const bool valePwd = pwd && *pwd == '/' && fs::equivalent(pwd, ".", ec) && !ec;
    const std::string aqui = valePwd ? std::string(pwd) : fs::current_path(ec).string();
    if (nombre.find('/') != std::string::npos) return UneRuta(aqui, nombre);
    std::string_view caminos = std::getenv("PATH") ? std::getenv("PATH") : "";
    while (!nombre.empty() && !caminos.empty()) {
        const std::size_t fin = std::min(caminos.find(':'), caminos.size());
        const std::string_view camino = caminos.substr(0, fin);
        const std::string intento =
            UneRuta(camino.starts_with('/') ? std::string(camino) : UneRuta(aqui, camino), nombre);
        if (access(intento.c_str(), X_OK) == 0 && ExisteFichero(intento)) return intento;
        caminos.remove_prefix(std::min(fin + 1, caminos.size()));
    }
    return fs::read_symlink("/proc/self/exe", ec).string();
}

}  // namespace

bool ExisteFichero(const std::string& ruta)
{
    std::error_code ec;
    return !ruta.empty() && fs::is_regular_file(ruta, ec);
}

bool ExisteCarpeta(const std::string& ruta)
{
    std::error_code ec;
    return !ruta.empty() && fs::is_directory(ruta, ec);
}

std::string BuscaSinCaja(const std::string& ruta)
{
    return BuscaDesde(ruta, "");
}

std::string BuscaExtension(const std::string& tronco, std::string_view extension)
{
    return BuscaDesde(tronco + std::string(extension), NombreDe(tronco));
}

std::string SinEnlaces(const std::string& ruta)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(ruta.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : ruta;
}

std::string UneRuta(std::string_view carpeta, std::string_view nombre)
{
    std::string r(carpeta);
    if (!r.empty() && r.back() != '/') r += '/';
    return r.append(nombre);
}

std::string CarpetaDe(std::string_view ruta)
{
    const std::size_t barra = ruta.rfind('/');
    if (barra == std::string_view::npos) return {};
    return std::string(ruta.substr(0, std::max<std::size_t>(barra, 1)));
}

std::string NombreDe(std::string_view ruta)
{
    const std::size_t barra = ruta.rfind('/');
    return std::string(barra == std::string_view::npos ? ruta : ruta.substr(barra + 1));
}

std::string LeeOctetos(const std::string& ruta)
{
    LectorTrozos lector(ruta);
    std::string todo;
    if (lector.Tamano() > kMayorTexto) Lanza(error::kSinMemoria);
    // One octet more than the file has, so that a regular file ends within its first piece.
    for (std::size_t trozo = lector.Tamano() + 1;; trozo = kTrozo) {
        const std::size_t antes = todo.size();
        todo.resize(antes + trozo);
        const std::size_t n = lector.Lee({todo.data() + antes, trozo});
        todo.resize(antes + n);
        if (n < trozo) return todo;
        if (todo.size() > kMayorTexto) Lanza(error::kSinMemoria);
    }
}

LectorTrozos::LectorTrozos(const std::string& ruta) : fd_(AbreParaLeer(ruta)) {}

LectorTrozos::~LectorTrozos()
{
    close(fd_);
}

std::size_t LectorTrozos::Lee(std::span<char> donde)
{
    std::size_t leidos = 0;
    while (leidos < donde.size()) {
        const ssize_t n = read(fd_, donde.data() + leidos, donde.size() - leidos);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) Lanza(error::kEntradaSalida);
        if (n == 0) break;
        leidos += static_cast<std::size_t>(n);
    }
    return leidos;
}

std::size_t LectorTrozos::Tamano() const
{
    struct stat s {};
    return fstat(fd_, &s) == 0 && S_ISREG(s.st_mode) ? static_cast<std::size_t>(s.st_size) : kTrozo;
}

FicheroNuevo::FicheroNuevo(const std::string& ruta)
{
    if (ruta.empty() || ExisteCarpeta(ruta)) Lanza(error::kAccesoRuta);
    real_ = SinEnlaces(ruta);  // a settings file that is a link stays one
    permisos_ = PermisosDe(real_);
    if (access(real_.c_str(), F_OK) == 0 && access(real_.c_str(), W_OK) != 0) Lanza(error::kPermiso);
    if (AjenoEnPegajosa(real_)) Lanza(error::kPermiso);
    temporal_ = UneRuta(CarpetaDe(real_), ".veldix-XXXXXX");  // short, so that the longest name will do
    fd_ = mkostemp(temporal_.data(), O_CLOEXEC);
    if (fd_ < 0) Lanza(ErrorDeApertura(real_, errno));
}

FicheroNuevo::~FicheroNuevo()
{
    if (fd_ >= 0) close(fd_);
    if (!temporal_.empty()) unlink(temporal_.c_str());
}

void FicheroNuevo::Escribe(std::string_view octetos)
{
    EscribeTodo(fd_, octetos);
}

void FicheroNuevo::Cierra()
{
    if (fd_ < 0) return;
    fchmod(fd_, permisos_);
    CierraEscrito(std::exchange(fd_, -1));
}

void FicheroNuevo::Confirma()
{
    Cierra();
    if (rename(temporal_.c_str(), real_.c_str()) != 0) Lanza(ErrorDeApertura(real_, errno));
    temporal_.clear();
}

void ReemplazaFichero(const std::string& ruta, std::string_view octetos)
{
    FicheroNuevo nuevo(ruta);
    nuevo.Escribe(octetos);
    nuevo.Confirma();
}

FicheroNuevo& FicherosNuevos::Abre(const std::string& ruta)
{
    return ficheros_.emplace_back(ruta);
}

void FicherosNuevos::Confirma()
{
    for (FicheroNuevo& f : ficheros_)
        f.Cierra();
    for (FicheroNuevo& f : ficheros_)
        f.Confirma();
}

void Copia(const std::string& origen, FicheroNuevo& destino)
{
    LectorTrozos lector(origen);
    std::vector<char> trozo(kTrozo);
    for (std::size_t n = kTrozo; n == kTrozo;) {
        n = lector.Lee(trozo);
        destino.Escribe({trozo.data(), n});
    }
}

void EscribeFichero(const std::string& ruta, std::string_view octetos)
{
    if (ruta.empty() || ExisteCarpeta(ruta)) Lanza(error::kAccesoRuta);
    const int fd = open(ruta.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) Lanza(ErrorDeApertura(ruta, errno));
    try {
        EscribeTodo(fd, octetos);
    } catch (...) {
        close(fd);
        throw;
    }
    CierraEscrito(fd);
}

void LimitaDisco(long long octetos)
{
    g_limiteDisco = octetos;
}

std::vector<std::string> Lineas(std::string_view texto)
{
    texto = SinFinDeFichero(texto);
    std::vector<std::string> r;
    for (std::size_t largo = 0; !texto.empty(); texto.remove_prefix(largo))
        r.emplace_back(PrimeraLinea(texto, largo));
    return r;
}

LectorLineas::LectorLineas(std::string texto, std::string (*decodifica)(std::string_view))
    : texto_(std::move(texto)), decodifica_(decodifica)
{
    texto_.resize(SinFinDeFichero(texto_).size());
}

std::string LectorLineas::Lee()
{
    if (Fin()) Lanza(error::kFinDeFichero);
    std::size_t largo = 0;
    const std::string_view linea = PrimeraLinea(std::string_view(texto_).substr(pos_), largo);
    pos_ += largo;
    return decodifica_ ? decodifica_(linea) : std::string(linea);
}

std::string Une(const std::vector<std::string>& lineas)
{
    std::string r;
    for (const std::string& l : lineas)
        r.append(l).append("\r\n");
    return r;
}

std::string CarpetaPrograma(const char* argv0)
{
    std::string ruta = RutaArrancada(argv0);
    // A link to the program itself is followed; links among its folders are kept.
    for (int saltos = 0; saltos < 40; ++saltos) {
        std::error_code ec;
        const fs::path destino = fs::read_symlink(ruta, ec);
        if (ec) break;
        ruta = destino.is_absolute() ? destino.string() : UneRuta(CarpetaDe(ruta), destino.string());
    }
    std::string carpeta;
    for (const fs::path& parte : fs::path(CarpetaDe(ruta))) {
        std::error_code ec;
        if (parte == "..")
            // Behind a link, the folder above is that of its target.
            carpeta = CarpetaDe(fs::is_symlink(carpeta, ec) ? fs::canonical(carpeta, ec).string() : carpeta);
        else if (parte != "." && parte != "/" && !parte.empty())
            carpeta = UneRuta(carpeta.empty() ? "/" : carpeta, parte.string());
    }
    return carpeta.empty() ? "/" : carpeta;
}

}  // namespace veldix
