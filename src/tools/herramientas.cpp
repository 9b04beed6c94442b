#include "tools/herramientas.h"

#include <algorithm>

#include "platform/texto.h"

namespace veldix {

namespace {

/// The program's own file, which is no tool in whatever folder and case.
constexpr std::string_view kPrograma = "VELDIX.EXE";

}  // namespace

Herramienta ParteHerramienta(const std::string& linea)
{
    const std::size_t igual = linea.find('=');
    if (igual == std::string::npos) return {};
    return {linea.substr(0, igual), linea.substr(igual + 1)};
}

int RechazoHerramienta(const std::vector<std::string>& lineas, const Herramienta& nueva)
{
    const auto alguna = [&](std::string Herramienta::*campo) {
        return std::any_of(lineas.begin(), lineas.end(), [&](const std::string& linea) {
            return ParteHerramienta(linea).*campo == nueva.*campo;
        });
    };
    const std::string_view extension = Derecha(nueva.orden, 3);
    if (Recorta(nueva.nombre).empty()) return 232;
    if (Mayusculas(Derecha(nueva.orden, kPrograma.size())) == kPrograma) return 261;
    if (extension != "EXE" && extension != "exe") return 233;
    if (alguna(&Herramienta::nombre)) return 234;
    if (alguna(&Herramienta::orden)) return 235;
    return 0;
}

bool BorraHerramienta(std::vector<std::string>& lineas, const std::string& nombre)
{
    const auto sitio = std::find_if(lineas.begin(), lineas.end(), [&](const std::string& linea) {
        return ParteHerramienta(linea).nombre == nombre;
    });
    if (sitio == lineas.end()) return false;
    lineas.erase(sitio);
    return true;
}

}  // namespace veldix
