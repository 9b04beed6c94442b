#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldix {

/// Without the blanks (U+0020 alone) at either end.
std::string_view Recorta(std::string_view texto);

/// ASCII and Latin-1 letters in upper case, as many octets as before; other characters stay.
std::string Mayusculas(std::string_view texto);

/// Without CR, LF and NUL, so that it fits on a line of a file.
std::string UnaLinea(std::string_view texto);
/// A text without CR and LF.
std::string SinFinesDeLinea(std::string_view texto);

/// Characters of a UTF-8 text; an octet that belongs to no valid character counts as one.
std::size_t NumCaracteres(std::string_view texto);

/// The first, or the last, `n` characters of a UTF-8 text, all of it where it is shorter.
std::string_view Izquierda(std::string_view texto, std::size_t n);
std::string_view Derecha(std::string_view texto, std::size_t n);

/// The text less its last `n` characters, empty where it is shorter.
std::string_view SinFinal(std::string_view texto, std::size_t n);

/// Pattern comparison of a whole text: in `patron`, "*" stands for any run of characters, "?" for one, "#"
/// for one digit and "[list]" for one of a list (ranges "a-z"; "!" first negates); case counts. A "[" that
/// is not closed stands for itself.
bool Coincide(std::string_view texto, std::string_view patron);

bool IgualSinCaja(std::string_view a, std::string_view b);

}  // namespace veldix
