#pragma once

#include <string>

namespace veldix {

inline constexpr int kNumTextos = 288;

/// Language line `n`, 1 to 288; empty where it was not loaded. Raises 9 out of range.
const std::string& Textos(int n);

/// The loaded line `n`, or `porDefecto`, the built-in Spanish caption, where it was not loaded.
const std::string& Rotulo(int n, const std::string& porDefecto);

/// Empties all lines, then takes those of the file (code page of the program) in order. Raises what opening
/// it raises, 62 where it has fewer than 288; lines taken so far stay.
void CargaTextos(const std::string& ruta);

/// Back to no text loaded.
void VaciaTextos();

}  // namespace veldix
