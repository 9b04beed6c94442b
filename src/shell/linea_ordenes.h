#pragma once

#include <string>

namespace veldix {

/// The command line `path-of-dat [path-of-template]` split at its first blank, both fields trimmed; the
/// first is all of it where there is no blank. A missing field is empty and names no file.
struct LineaOrdenes {
    std::string dat, plantilla;
};
LineaOrdenes ParteLinea(const std::string& linea);

/// The clock's text: hours of twelve and minutes, two digits each, and AM or PM.
std::string TextoReloj(int hora, int minuto);

/// The place of the strip's elements, in twips of the strip.
struct LugaresTira {
    double izquierdaEtiqueta, anchoEtiqueta, izquierdaSalir, izquierdaReloj;
};
LugaresTira ColocaTira(double anchoTira, double anchoReloj, double anchoSalir);

}  // namespace veldix
