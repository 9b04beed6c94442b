#pragma once

#include <QListWidget>
#include <QShortcut>

#include "platform/forms/formulario.h"

namespace veldix {

/// Connects Enter on a control to a form's handler, ahead of the form's default button.
template <class Form, class Manejador>
void ConectaEnter(QWidget* control, Form* form, Manejador manejador)
{
    for (const int tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* atajo = new QShortcut(QKeySequence(tecla), control);
        atajo->setContext(Qt::WidgetShortcut);
        Conecta(atajo, &QShortcut::activated, form, manejador);
    }
}

/// Connects a list's double click, and Enter on its current line, to a form's handler, which takes no line.
template <class Form, class Manejador>
void ConectaDobleClic(QListWidget* lista, Form* form, Manejador manejador)
{
    Conecta(lista, &QListWidget::itemDoubleClicked, form, manejador);
    ConectaEnter(lista, form, manejador);
}

}  // namespace veldix
