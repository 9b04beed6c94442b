#pragma once

namespace veldix {

/// The steps between the pages of the template set-up: selection, analog channels (and, aside from them, the
/// relay models), three-phase groups, digital groups, saving. A page that is left forward hides itself and
/// keeps its data; the one behind it is always fresh.

/// From the selection, which has unloaded itself, to the analog page. Pages of an earlier set-up go.
void EmpiezaPaginas();

/// On to the next page, from one that has hidden itself.
void AbreTrifasic();
void AbreDigital();
void AbreSalvaPlan();

/// Back from the analog page, which goes with those behind it, to the selection.
void VuelveASeleccion();

/// From the analog page, which goes, aside to the relay models, and from there to a fresh analog page.
void AbreModelos();
void VuelveDeModelos();

/// Make a page visible again with all its data, where it is loaded.
void MuestraAnalogicos();
void MuestraTrifasic();
void MuestraDigital();

/// Unloads the pages between the selection and the saving dialog.
void DescargaPaginas();

/// Unloads every page behind the selection: the tables they edit are those of a record or of a template set
/// that has gone.
void AbandonaPaginas();

/// Ends the set-up without saving: the pages go, the selection is as it was.
void CancelaPaginas();

}  // namespace veldix
