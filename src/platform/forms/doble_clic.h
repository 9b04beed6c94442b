#pragma once

#include <QListWidget>
#include <QShortcut>

#include "platform/forms/formulario.h"

namespace veldix {

/// Connects a list's double click, and Enter on its current line, to a form's handler, which takes no line.
template <class Form, class Manejador>
void ConectaDobleClic(QListWidget* lista, Form* form, Manejador manejador)
{
    Conecta(lista, &QListWidget::itemDoubleClicked, form, manejador);
    for (const int tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* atajo = new QShortcut(QKeySequence(tecla), lista);
        atajo->setContext(Qt::WidgetShortcut);
        Conecta(atajo, &QShortcut::activated, form, manejador);
    }
}

}  // namespace veldix
