#include "waves/forms/VistaCursores.h"

#include "platform/forms/escena.h"
#include "platform/textos.h"

namespace veldix {

/// The level is stored when it is drawn: what cannot be stored any more is seen before the view closes.
void VistaCursores::Redibuja()
{
    const auto nivel = zoom_.Calcula(Cursor1, Cursor2, static_cast<float>(plot_->Ancho()));
    if (!nivel) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(76), Icono::Informacion);
        return;
    }
    PonNivel(*nivel);
    const int s = static_cast<int>(nivel->s), e = static_cast<int>(nivel->e);
    PonBarras(s, s, e);
    Repinta();
    HScroll1_Change();
    HScroll2_Change();
    zoom_.Guarda(*nivel);
}

void VistaCursores::cmdzoom_Click()
{
    zoom_.ZoomPendiente = true;
    const PunteroEspera espera(*this);
    Redibuja();
}

}  // namespace veldix
