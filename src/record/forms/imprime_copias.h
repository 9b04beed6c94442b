#pragma once

#include <functional>

#include "platform/forms/formulario.h"
#include "platform/impresora.h"

namespace veldix {

/// Prints a time-domain view: asks the print dialog for copies, and draws each with `pagina` on a landscape
/// page of one document. Before each copy the user has a moment to press `Cancelar`, which ends the document
/// with the copies that were drawn; the view and the strip are disabled meanwhile. A page that answers false,
/// since its stretch is no sample wide, ends the document too, and that is told. After a run-time error the
/// view stays.
void ImprimeCopias(Vista& vista, const std::function<bool(Impresora&)>& pagina);

}  // namespace veldix
