#pragma once

#include <string>
#include <vector>

#include "platform/ficheros.h"

namespace veldix {

/// The lines of a settings file, found in any case of letters: UTF-8 where it is valid UTF-8, else the code
/// page. Raises as LeeOctetos.
LectorLineas AbreAjustes(const std::string& ruta);

/// Replaces a settings file whole, in the code page, or in UTF-8 where that lacks a character of a path; CR
/// and LF inside a line are dropped. Raises as ReemplazaFichero, and the old file then stands.
void GuardaAjustes(const std::string& ruta, std::vector<std::string> lineas);

}  // namespace veldix
