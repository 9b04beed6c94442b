#include "analysis/grupos.h"

#include "platform/errores.h"

namespace veldix {

Marcas MarcaUno(int grupo, int cuantos)
{
    if (grupo < 1 || grupo > cuantos) Lanza(error::kSubindice);
    Marcas marcas(static_cast<std::size_t>(cuantos), false);
    marcas[static_cast<std::size_t>(grupo - 1)] = true;
    return marcas;
}

Tabla1<std::int16_t> CuentaMarcas(const Marcas& marcas)
{
    const int cuantos = static_cast<int>(marcas.size());
    Tabla1<std::int16_t> grupos(0, cuantos);
    for (int g = 1; g <= cuantos; ++g) {
        if (!marcas[static_cast<std::size_t>(g - 1)]) continue;
        grupos(g) = 1;
        ++grupos(0);
    }
    return grupos;
}

std::vector<int> GruposMarcados(const Tabla1<std::int16_t>& grupos)
{
    std::vector<int> marcados;
    if (grupos(0) != 1 && grupos(0) != 2) return marcados;
    for (int g = 1; g <= grupos.UBound() && static_cast<int>(marcados.size()) < grupos(0); ++g)
        if (grupos(g) == 1) marcados.push_back(g);
    return marcados;
}

}  // namespace veldix
