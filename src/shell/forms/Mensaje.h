#pragma once

#include <QLabel>
#include <QPushButton>

#include <functional>

#include "platform/forms/formulario.h"

namespace veldix {

/// The help note of the conversion.
class Mensaje : public Formulario {
    Q_OBJECT

public:
    static Portador<Mensaje> unica;

    /// `renueva` unloads the conversion's window, loads it and shows it anew; OK runs it.
    explicit Mensaje(std::function<void()> renueva);

private:
    void OK_Click();

    std::function<void()> renueva_;
    QLabel* Label1;
    QPushButton* OK;
};

}  // namespace veldix
