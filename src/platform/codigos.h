#pragma once

#include <string>
#include <string_view>

namespace veldix {

/// Octets of the first character of a non-empty UTF-8 text, 1 where it is not valid there.
std::size_t OctetosDeCaracter(std::string_view texto);

bool EsUtf8(std::string_view octetos);
bool EsAscii(std::string_view octetos);

/// The 8-bit code page of templates, settings and language files, "WINDOWS-1252" unless set. A name that
/// the system's iconv does not know is ignored.
void PonPaginaCodigos(const std::string& nombre);
const std::string& PaginaCodigos();

/// Octets of the code page as UTF-8. An octet that the page leaves undefined becomes the control character
/// of its number, so that it survives a reading and a writing.
std::string DesdePagina(std::string_view octetos);

/// UTF-8 as octets of the code page, a character that it lacks as "?". `entero`, where given, tells whether
/// none was lacking.
std::string APagina(std::string_view texto, bool* entero = nullptr);

/// Text of a record or of a settings file: UTF-8 when it is valid, less a byte order mark, else of the code
/// page.
std::string DesdeUtf8OPagina(std::string octetos);

}  // namespace veldix
