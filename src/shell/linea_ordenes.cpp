#include "shell/linea_ordenes.h"

#include <array>
#include <cstdio>

#include "platform/texto.h"

namespace veldix {

LineaOrdenes ParteLinea(const std::string& linea)
{
    const std::string_view t = Recorta(linea);
    const std::size_t p = t.find(' ');
    if (p == std::string_view::npos) return {std::string(t), {}};
    return {std::string(t.substr(0, p)), std::string(Recorta(t.substr(p + 1)))};
}

std::string TextoReloj(int hora, int minuto)
{
    std::array<char, 32> b{};
    const int doce = hora % 12 == 0 ? 12 : hora % 12;
    std::snprintf(b.data(), b.size(), "%02d:%02d %s", doce, minuto, hora < 12 ? "AM" : "PM");
    return b.data();
}

LugaresTira ColocaTira(double anchoTira, double anchoReloj, double anchoSalir)
{
    return {200.0, anchoTira - anchoReloj - anchoSalir - 700.0, anchoTira - anchoReloj - anchoSalir - 450.0,
            anchoTira - anchoReloj - 300.0};
}

}  // namespace veldix
