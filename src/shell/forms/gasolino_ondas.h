#pragma once

#include <QProgressBar>

#include "platform/forms/Animacion.h"
#include "platform/forms/formulario.h"

namespace veldix {

/// A bar and a film while the wave and digital views are made ready.
class gasolino_ondas : public Formulario {
    Q_OBJECT

public:
    static Portador<gasolino_ondas> unica;

    /// Shown and painted when it returns, over the views, its bar at 10.
    explicit gasolino_ondas(const QString& titulo);

    /// Sets the bar and paints it, and the film as far as it has come.
    void Pon(int valor);

private:
    void Dispone();

    QProgressBar* ProgressBar1;
    Animacion* Animation1;
};

}  // namespace veldix
