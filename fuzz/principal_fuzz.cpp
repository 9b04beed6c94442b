#include <cstddef>

#include "pruebas.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n)
{
    return veldix::fuzz::VELDIX_PRUEBA({datos, n});
}
