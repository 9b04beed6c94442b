#pragma once

#include <QHBoxLayout>
#include <QPushButton>

#include "platform/forms/formulario.h"

namespace veldix {

/// The buttons at the foot of a set-up page: back at the left; on, which Enter presses, and cancel at the
/// right.
struct BotonesPagina {
    QPushButton *cmdvolver, *cmdOK, *cmdcancel;
    QHBoxLayout* linea;  ///< to be added to the page's layout

    /// The caption of `cmdOK` is a language line or, where that was not loaded, `defecto`.
    BotonesPagina(Formulario* pagina, int textoOK, const char* defecto);

    /// Connects the three to the page's handlers.
    template <class Form>
    void ConectaA(Form* pagina, void (Form::*volver)(), void (Form::*ok)(), void (Form::*cancela)())
    {
        Conecta(cmdvolver, &QPushButton::clicked, pagina, volver);
        Conecta(cmdOK, &QPushButton::clicked, pagina, ok);
        Conecta(cmdcancel, &QPushButton::clicked, pagina, cancela);
    }
};

}  // namespace veldix
