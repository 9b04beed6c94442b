#pragma once

#include <functional>
#include <optional>
#include <string>

namespace veldix {

/// A file dialog as it is asked for.
struct PeticionFichero {
    std::string titulo;
    std::string carpeta;    ///< where it starts
    std::string filtro;     ///< "Data Files (*.dat)"; matched in any case
    std::string extension;  ///< added to a typed name that has none, without its point
};

/// Asks for an existing file: its path, or nothing where the user cancels.
std::optional<std::string> EligeFichero(const PeticionFichero& peticion);

/// For tests: answers in place of the user; an empty function brings the dialog back.
void PonDialogoFichero(std::function<std::optional<std::string>(const PeticionFichero&)> responde);

}  // namespace veldix
