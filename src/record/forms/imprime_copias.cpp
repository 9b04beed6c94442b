#include "record/forms/imprime_copias.h"

#include "platform/forms/impresion.h"
#include "platform/textos.h"
#include "record/forms/turno_cancelar.h"
#include "record/record_store.h"

namespace veldix {

void ImprimeCopias(Vista& vista, const std::function<bool(Impresora&)>& pagina)
{
    const QPointer<Vista> viva(&vista);
    bool compuesta = true;
    ConImpresora(vista.size(), [&](const PeticionImpresion& p) {
        if (!viva) return;
        TurnoCancelar turno(vista);
        for (int copia = 1; copia <= p.copias; ++copia) {
            if (p.impresora->Sentido() != Orientacion::Horizontal)
                p.impresora->PonSentido(Orientacion::Horizontal);
            // A press made while a page was drawn waits in the queue, for the box that stood then: the box
            // stands until the last copy, and the flag is cleared before the queue is served.
            store.CancelaImpresion = false;
            const bool cancelada = turno.Cancelada();
            turno.Descansa();
            if (cancelada) return;
            if (copia > 1) p.impresora->PaginaNueva();
            p.impresora->Grosor = 1;
            compuesta = pagina(*p.impresora);
            if (!compuesta) return;
        }
    });
    if (!compuesta) Avisa(Textos(80));
}

}  // namespace veldix
