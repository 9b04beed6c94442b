#pragma once

#include <QPointer>

#include "platform/forms/formulario.h"

namespace veldix {

/// A view while it prints: at each turn the user has a moment for `Cancelar`, with view and strip disabled,
/// so that nothing is printed twice or unloaded underneath. Its end brings both back and unloads the box.
class TurnoCancelar {
public:
    explicit TurnoCancelar(Vista& vista) : vista_(&vista) {}
    ~TurnoCancelar();
    TurnoCancelar(const TurnoCancelar&) = delete;
    TurnoCancelar& operator=(const TurnoCancelar&) = delete;

    /// Serves the queue, and tells whether `CancelaImpresion` is set or the view has gone. The view stays
    /// disabled until Descansa.
    bool Cancelada();
    void Descansa() { Activa(true); }

private:
    void Activa(bool activa);

    QPointer<Vista> vista_;
    QPointer<QWidget> foco_;  ///< what had the keys, which a disabled control loses
};

}  // namespace veldix
