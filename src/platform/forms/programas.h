#pragma once

#include <string>

namespace veldix {

/// Starts a program detached from this one. A text that names an existing file is that program, without
/// arguments; else it is split like a command line, without a shell. Raises 53 where the program is not
/// found, 70 where it may not be run.
void ArrancaPrograma(const std::string& orden);

}  // namespace veldix
