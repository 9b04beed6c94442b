#pragma once

#include <QProgressBar>

#include "platform/forms/formulario.h"

namespace veldix {

/// The bar of a conversion; the caller sets its scale and moves it.
class gasolino2 : public Formulario {
    Q_OBJECT

public:
    static Portador<gasolino2> unica;

    /// Shown and painted when it returns, over `sobre`, or over the main window where that is null.
    explicit gasolino2(QWidget* sobre = nullptr);

    QProgressBar* ProgressBar1;
};

}  // namespace veldix
