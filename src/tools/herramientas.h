#pragma once

#include <string>
#include <vector>

namespace veldix {

/// An external tool: what the menu calls it, and the command line that starts it.
struct Herramienta {
    std::string nombre, orden;
};

/// Parts a tool's line "name=command" at its first "="; a name that has one is cut there. Empty where there
/// is none.
Herramienta ParteHerramienta(const std::string& linea);

/// The line of `Textos` that refuses a new tool, 0 where it may be added. In this order: a name of blanks
/// 232, a path that ends in the program's own file 261, one that does not end in "EXE" or "exe" 233, a name
/// 234 or a path 235 that a tool of `lineas` has.
int RechazoHerramienta(const std::vector<std::string>& lineas, const Herramienta& nueva);

/// Takes the first tool of a name out. Whether there was one.
bool BorraHerramienta(std::vector<std::string>& lineas, const std::string& nombre);

}  // namespace veldix
