#pragma once

#include <cstdint>
#include <span>

namespace veldix::fuzz {

/// Each reads one input as a file of its kind and throws Rota where something that must always hold does
/// not. They return 0.
int Prueba_cfg(std::span<const std::uint8_t> entrada);
int Prueba_dat_ascii(std::span<const std::uint8_t> entrada);
int Prueba_dat_bin(std::span<const std::uint8_t> entrada);
int Prueba_cnf(std::span<const std::uint8_t> entrada);
int Prueba_ajustes(std::span<const std::uint8_t> entrada);
int Prueba_textos(std::span<const std::uint8_t> entrada);
int Prueba_perfil(std::span<const std::uint8_t> entrada);
int Prueba_avi(std::span<const std::uint8_t> entrada);
int Prueba_jet(std::span<const std::uint8_t> entrada);

/// Most templates with many rows, each of which costs five strings in each of six readings: a fuzzer that
/// took them all would spend its time on a few inputs of the same kind.
bool EsPesada_cnf(std::span<const std::uint8_t> entrada);

}  // namespace veldix::fuzz
