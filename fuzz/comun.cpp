#include "comun.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "platform/avisos.h"

namespace veldix::fuzz {

FicheroMemoria::FicheroMemoria(std::string_view octetos) : fd_(memfd_create("veldix", MFD_CLOEXEC))
{
    if (fd_ < 0) throw std::runtime_error("no file in memory");
    while (!octetos.empty()) {
        const ssize_t n = write(fd_, octetos.data(), octetos.size());
        if (n <= 0) throw std::runtime_error("file in memory not written");
        octetos.remove_prefix(static_cast<std::size_t>(n));
    }
}

FicheroMemoria::~FicheroMemoria()
{
    close(fd_);
}

std::string FicheroMemoria::Ruta() const
{
    return "/proc/self/fd/" + std::to_string(fd_);
}

const std::string& CarpetaMemoria()
{
    struct Carpeta {
        Carpeta()
        {
            const char* pedida = std::getenv("TMPDIR");
            ruta = pedida ? pedida : std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
            ruta += "/veldix.XXXXXX";
            if (mkdtemp(ruta.data()) == nullptr) throw std::runtime_error("no folder in memory");
        }
        ~Carpeta()
        {
            std::error_code ec;
            std::filesystem::remove_all(ruta, ec);
        }
        std::string ruta;
    };
    static const Carpeta carpeta;
    return carpeta.ruta;
}

CajasMudas::CajasMudas()
{
    PonCajas([](const Caja&) { return true; });
}

CajasMudas::~CajasMudas()
{
    PonCajas(nullptr);
}

bool Finitas(const float* de, int n)
{
    for (int i = 0; i < n; ++i)
        if (!std::isfinite(de[i])) return false;
    return true;
}

bool Cabe(int filas, int columnas, std::size_t octetos)
{
    return static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas) * octetos <= kMaximoTabla;
}

}  // namespace veldix::fuzz
