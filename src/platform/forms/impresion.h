#pragma once

#include <QSize>

#include <functional>
#include <memory>
#include <optional>

#include "platform/impresora.h"

namespace veldix {

/// What the user asked the print dialog for.
struct PeticionImpresion {
    std::shared_ptr<Impresora> impresora;
    int copias = 1;
    bool fichero = false;  ///< it prints to a file, which a second document would replace
};

/// Shows the system's print dialog a quarter of `tamano`, pixels, from the window's corner, and runs
/// `trabajo` with its answer. Nothing happens where the user cancels. A run-time error of the work ends the
/// document and shows the common box; the caller stands.
void ConImpresora(QSize tamano, const std::function<void(const PeticionImpresion&)>& trabajo);

/// The same on the system's default printer, without a dialog where there is one. It never goes to the file
/// that an earlier print was sent to.
void ConImpresoraPredeterminada(QSize tamano, const std::function<void(const PeticionImpresion&)>& trabajo);

/// For tests: answers in place of the dialog; an empty function brings it back.
void PonDialogoImpresion(std::function<std::optional<PeticionImpresion>()> responde);

}  // namespace veldix
