#include "record/forms/imprime_copias.h"

#include <QCoreApplication>

#include "platform/forms/escena.h"
#include "platform/forms/impresion.h"
#include "platform/textos.h"
#include "record/record_store.h"

namespace veldix {

namespace {

/// The view while it prints, whatever becomes of it.
class Ocupada {
public:
    explicit Ocupada(Vista& vista) : vista_(&vista) {}
    ~Ocupada()
    {
        Descansa();
        DescargaCancelar();
    }
    Ocupada(const Ocupada&) = delete;
    Ocupada& operator=(const Ocupada&) = delete;

    void Trabaja() { Activa(false); }
    void Descansa() { Activa(true); }
    bool Viva() const { return vista_ && !vista_->Descargado(); }

private:
    void Activa(bool activa)
    {
        if (vista_) vista_->setEnabled(activa);
        ActivaSalir(activa);
    }
    QPointer<Vista> vista_;
};

/// A moment for the user. A press made while a page was drawn waits in the queue, for the box that stood
/// then: the box therefore stands until the last copy, and the flag is cleared before the queue is served.
bool Cancelada(Ocupada& ocupada)
{
    store.CancelaImpresion = false;
    ocupada.Trabaja();
    MuestraCancelar();
    QCoreApplication::processEvents();
    const bool cancelada = store.CancelaImpresion || !ocupada.Viva();
    ocupada.Descansa();
    return cancelada;
}

}  // namespace

void ImprimeCopias(Vista& vista, const std::function<bool(Impresora&)>& pagina)
{
    const QPointer<Vista> viva(&vista);
    bool compuesta = true;
    ConImpresora(vista.size(), [&](const PeticionImpresion& p) {
        if (!viva) return;
        Ocupada ocupada(vista);
        for (int copia = 1; copia <= p.copias; ++copia) {
            if (p.impresora->Sentido() != Orientacion::Horizontal)
                p.impresora->PonSentido(Orientacion::Horizontal);
            if (Cancelada(ocupada)) return;
            if (copia > 1) p.impresora->PaginaNueva();
            p.impresora->Grosor = 1;
            compuesta = pagina(*p.impresora);
            if (!compuesta) return;
        }
    });
    if (!compuesta) Avisa(Textos(80));
}

}  // namespace veldix
