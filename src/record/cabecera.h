#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/impresora.h"

namespace veldix {

/// The header file of a record as it is listed: the program's name, then its lines, at most 2500. Tabs reach
/// to columns of eight characters, other control characters are blanks, and a line over 4096 characters is
/// cut there. Raises 9 for more lines, and what reading a file raises.
std::vector<std::string> LeeCabecera(const std::string& ruta);

/// Prints the lines as they are, one under the other in letters of one width on as many pages as they need,
/// and an empty one behind the last; each page has the date at its foot. Letters are made smaller, as far as
/// they can be read, where the longest line asks for it; what runs over the frame all the same is cut, its
/// cut marked. `cancelada` is asked before each line; once it answers true the document is dropped. Whether
/// it was printed.
bool ImprimeCabecera(Impresora& impresora, const std::vector<std::string>& lineas, const std::string& fecha,
                     const std::function<bool()>& cancelada);

}  // namespace veldix
