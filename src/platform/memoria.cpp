#include "platform/memoria.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/errores.h"

namespace veldix {

namespace {

constexpr std::size_t kPaginaGrande = std::size_t{2} << 20;
constexpr std::size_t kUmbralMapa = 2 * kPaginaGrande;

bool VaEnMapa(std::size_t octetos)
{
    return octetos >= kUmbralMapa;
}

std::size_t RedondeaAPagina(std::size_t octetos)
{
    static const auto pagina = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return (octetos + pagina - 1) / pagina * pagina;
}

/// Maps more than is needed and gives back both ends, so that the block starts on a huge page while its
/// length stays that of the data.
void* Mapea(std::size_t octetos)
{
    const std::size_t util = RedondeaAPagina(octetos);
    const std::size_t total = util + kPaginaGrande;
    void* base = mmap(nullptr, total, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (base == MAP_FAILED) Lanza(error::kSinMemoria);
    auto* inicio = static_cast<std::byte*>(base);
    const std::size_t desvio =
        (kPaginaGrande - reinterpret_cast<std::uintptr_t>(inicio) % kPaginaGrande) % kPaginaGrande;
    if (desvio > 0) munmap(inicio, desvio);
    if (const std::size_t cola = total - desvio - util; cola > 0) munmap(inicio + desvio + util, cola);
    madvise(inicio + desvio, util, MADV_HUGEPAGE);
    return inicio + desvio;
}

}  // namespace

BloqueCeros::BloqueCeros(std::size_t octetos)
{
    if (octetos == 0) return;
    if (octetos > kMaximoTabla) Lanza(error::kSinMemoria);
    datos_ = VaEnMapa(octetos) ? Mapea(octetos) : std::calloc(octetos, 1);
    if (datos_ == nullptr) Lanza(error::kSinMemoria);
    octetos_ = octetos;
}

BloqueCeros::BloqueCeros(const BloqueCeros& otro) : BloqueCeros(otro.octetos_)
{
    if (octetos_ > 0) std::memcpy(datos_, otro.datos_, octetos_);
}

BloqueCeros::BloqueCeros(BloqueCeros&& otro) noexcept
    : datos_(std::exchange(otro.datos_, nullptr)), octetos_(std::exchange(otro.octetos_, 0))
{
}

BloqueCeros& BloqueCeros::operator=(BloqueCeros otro) noexcept
{
    std::swap(datos_, otro.datos_);
    std::swap(octetos_, otro.octetos_);
    return *this;
}

BloqueCeros::~BloqueCeros()
{
    if (datos_ == nullptr) return;
    if (VaEnMapa(octetos_))
        munmap(datos_, RedondeaAPagina(octetos_));
    else
        std::free(datos_);
}

}  // namespace veldix
