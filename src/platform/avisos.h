#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/errores.h"
#include "platform/textos.h"

namespace veldix {

enum class Icono { Ninguno, Informacion, Exclamacion, Critico, Pregunta };
enum class Botones { Aceptar, AceptarCancelar };

/// A message box as it is asked for.
struct Caja {
    std::string texto;
    Icono icono = Icono::Ninguno;
    Botones botones = Botones::Aceptar;
};

/// Shows a box and tells whether it was answered with OK. The windows fill it at start, tests answer it from
/// a queue; without either, the text goes to the standard error and the answer is OK.
using MuestraCaja = std::function<bool(const Caja&)>;
void PonCajas(MuestraCaja muestra);

/// A message with an OK button.
void Avisa(const std::string& texto, Icono icono = Icono::Ninguno);

/// A question with OK and Cancel; true on OK.
bool Pregunta(const std::string& texto, Icono icono = Icono::Pregunta);

/// The common error box: critical, "Error ", number, ": ", description.
void AvisaError(const ErrorEjecucion& e);

/// Warns of the characters that a template's lines cannot carry in a name: "%", then "$", a critical box
/// each.
void AvisaSeparadores(const std::string& texto);

/// Sets the pointers of all windows and forms back to the default (a plot keeps that of an armed zoom); the
/// windows fill it at start. Readers call it before a message.
void PonPunteroNormal(std::function<void()> pon);
void PunteroNormal();

/// Runs a conversion whose type mismatch has a message of its own, a line of the language. Raises what it
/// raises otherwise.
template <class Cuerpo>
void AvisaTipos(int texto, Icono icono, Cuerpo&& cuerpo)
{
    try {
        std::forward<Cuerpo>(cuerpo)();
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kTipos) throw;
        PunteroNormal();
        Avisa(Textos(texto), icono);
    }
}

}  // namespace veldix
