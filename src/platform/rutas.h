#pragma once

#include <string>

namespace veldix {

/// A picture or film of the folder "Iconos": the upper-cased folder of the program is cut at its last "EXE",
/// and "Iconos" and the name, found in any case, stand behind what is ahead of it. Empty where the program's
/// folder has no "EXE".
std::string RutaIconos(const std::string& rutaPrograma, const std::string& fichero);

/// A database of the folder "Models", which stands where the program's path less its last ten characters
/// ends; folder and file are found in any case.
std::string RutaModelos(const std::string& rutaPrograma, const std::string& fichero);

/// The settings folder of a program: its path less its last three characters, with "ini" added.
std::string RutaIni(const std::string& rutaPrograma);

}  // namespace veldix
