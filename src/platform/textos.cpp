#include "platform/textos.h"

#include <array>
#include <cstddef>

#include "platform/codigos.h"
#include "platform/errores.h"
#include "platform/ficheros.h"

namespace veldix {

namespace {

struct Tabla {
    std::array<std::string, kNumTextos + 1> linea;  // element 0 is not used
    int cargadas = 0;
};

Tabla g_textos;

}  // namespace

const std::string& Textos(int n)
{
    if (n < 1 || n > kNumTextos) Lanza(error::kSubindice);
    return g_textos.linea[static_cast<std::size_t>(n)];
}

const std::string& Rotulo(int n, const std::string& porDefecto)
{
    const std::string& texto = Textos(n);
    return n <= g_textos.cargadas ? texto : porDefecto;
}

void CargaTextos(const std::string& ruta)
{
    VaciaTextos();
    LectorLineas lector(LeeOctetos(ruta), DesdePagina);
    for (int n = 1; n <= kNumTextos; ++n) {
        g_textos.linea[static_cast<std::size_t>(n)] = lector.Lee();
        g_textos.cargadas = n;
    }
}

void VaciaTextos()
{
    g_textos = Tabla{};
}

}  // namespace veldix
