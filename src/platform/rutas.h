#pragma once

#include <string>

namespace veldix {

/// A picture or film of the folder "Iconos": the upper-cased folder of the program is cut at its last "EXE",
/// and "Iconos" and the name, found in any case, stand behind what is ahead of it. Empty where the program's
/// folder has no "EXE".
std::string RutaIconos(const std::string& rutaPrograma, const std::string& fichero);

/// The settings folder of a program: its path less its last three characters, with "ini" added.
std::string RutaIni(const std::string& rutaPrograma);

}  // namespace veldix
