#pragma once

#include <string>
#include <string_view>

namespace veldix {

/// The value of a key in a section of an ini file, sections and keys in any case, blanks around both and
/// a pair of quotes around the value taken off. Empty where the file, the section or the key is missing.
std::string ValorPerfil(const std::string& ruta, std::string_view seccion, std::string_view clave);

/// Takes the code page from key "pagina" of section "[TEXTO]" of the profile `ruta`, where it has one.
void CargaPaginaCodigos(const std::string& ruta);

}  // namespace veldix
