#pragma once

#include <QLabel>
#include <QPushButton>

#include "platform/vista.h"

namespace veldix {

/// A label of plain text with its name.
QLabel* CreaEtiqueta(QWidget* padre, const QString& nombre);

/// The caption of a control, beside it in the same parent, which is the control's accessible name too.
QLabel* CreaRotulo(QWidget* control, const QString& nombre, const std::string& texto);

/// A button captioned with a language line, `defecto` where that was not loaded.
QPushButton* CreaBoton(QWidget* padre, const char* nombre, int texto, const char* defecto);

/// The percentage, 60 to that of `letra` or 100, to which letters are condensed for a text to fit a width in
/// pixels; 60 where it does not fit even so.
int AnchoLetra(QFont letra, const QString& texto, int ancho);

/// Sets a text and, where it is wider than its label, condenses the letters as far as they stay legible.
/// They do not widen again before the label gets its font anew, so that they stand still while a bar moves.
void PonTexto(QLabel* etiqueta, const QString& texto);

/// A text of the user's files as a hint, which the toolkit would else take for its mark-up where it looks
/// like it; at most 300 characters.
QString Ayuda(const QString& texto);

/// Fills a control's background with a light colour, its text black.
void PonFondo(QWidget* control, QRgb color);

/// Puts a control at its place, twips.
void Pon(QWidget* control, const Lugar& lugar);

}  // namespace veldix
