#include <cstddef>

#include "pruebas.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n)
{
#ifdef VELDIX_PESADA
    if (veldix::fuzz::VELDIX_PESADA({datos, n})) return 0;
#endif
    return veldix::fuzz::VELDIX_PRUEBA({datos, n});
}
