#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veldix {

/// The separators of the system's numbers. `grupo` may be empty or several octets long.
struct Separadores {
    std::string decimal = ".";
    std::string grupo;
};

/// Those of the environment's locale, read once; PonSeparadores replaces them (nullopt reads them anew).
const Separadores& SeparadoresSistema();
void PonSeparadores(std::optional<Separadores> nuevos);

/// The leading number of a text, independent of the locale: blanks, a sign, digits with one point, an
/// exponent e or d with digits. Anything else ends it; a text that does not start with a number gives 0.
/// Infinite beyond a double.
double Val(std::string_view texto);

/// A number in either decimal notation: where the trimmed text holds no point its first comma becomes one;
/// then Val, rounded to float32. Raises 6 beyond float32.
float TolVal(std::string_view texto);

/// The locale's conversion: blanks at the ends, a sign, digits with the system's decimal separator, its
/// group separator skipped, an exponent. Raises 13 for anything else, 6 beyond a double.
double NumeroLocal(std::string_view texto);

/// The locale's conversion to 16 bits, halves to even. Raises 13, 6.
std::int16_t Entero16Local(std::string_view texto);

/// The locale's conversion to the nearest float32, without exceptions, for a sample file's fields: nullopt
/// where NumeroLocal would raise or the value does not fit. One rounding, as strtof makes it.
std::optional<float> CampoSingle(std::string_view campo, const Separadores& s);

/// The same to 16 bits, halves to even: nullopt where Entero16Local would raise.
std::optional<std::int16_t> CampoEntero16(std::string_view campo, const Separadores& s);

/// The print form of a number: a blank or a minus for the sign, the digits, a blank behind.
std::string FormaImpresa(std::int32_t valor);

/// Plain decimal digits with a minus where it is negative.
std::string FormaDelimitada(std::int32_t valor);

/// A number by a mask of one "#" or "0" place before the point and some behind: a "0" place always shows
/// its digit, a "#" place only where there is one. Halves go away from zero; the system's decimal separator
/// stands for the point; no sign without a digit other than 0.
std::string Mascara(double valor, std::string_view mascara);

/// A number in at most 15 significant digits (a double) or 7 (a float32), the system's separator.
std::string TextoDouble(double valor);
std::string TextoSingle(float valor);

/// The fewest digits with a point that read back to the same float32; with an exponent below 1e-5 and from
/// 1e9 on.
std::string TextoExacto(float valor);

}  // namespace veldix
