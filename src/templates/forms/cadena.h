#pragma once

namespace veldix {

/// The steps between the pages of the template set-up: selection, analog channels, three-phase groups,
/// digital groups, saving. The analog and the digital page are not part of the program yet: a step that
/// would open one leaves the tables as that page would when it is passed through unchanged, texts of counts
/// included, and goes on to the next.

/// From the selection, which has unloaded itself, on to the set-up of the template set as it is.
void EmpiezaPaginas();

/// On from the three-phase page, which has hidden itself. It comes back where the groups of digital channels
/// raise an error.
void SigueTrifasic();

/// Back from the three-phase page, which goes, to the selection, as leaving the analog page backwards does.
void VuelveTrifasic();

/// Makes the page before the saving dialog visible with all its data, where it is loaded.
void MuestraAntesDeGuardar();

/// Unloads the pages between the selection and the saving dialog.
void DescargaPaginas();

/// Unloads every page behind the selection: the tables they edit are those of a record or set that has gone.
void AbandonaPaginas();

/// Ends the set-up without saving: the pages go, the selection is as it was.
void CancelaPaginas();

}  // namespace veldix
