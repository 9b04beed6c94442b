#pragma once

#include <QLabel>

#include <cstdint>

#include "platform/forms/formulario.h"
#include "shell/medidor.h"

namespace veldix {

/// The gauge of an opening, a part of the main window just above its strip. It paints itself at each step,
/// without the event queue.
class gasolino : public Formulario {
    Q_OBJECT

public:
    static Portador<gasolino> unica;

    gasolino();

    /// Moves the gauge by `valor` points, or to it where not `relativo`; 0 resets it.
    void LlenarGasolino(bool relativo, std::int16_t valor);
    /// Sets the filled part to a percentage of the track; `resultado` takes its width in twips. `x`
    /// does nothing, it only belongs to the call.
    void PintaGasolino(double x, double porcentaje, double& resultado);

private:
    void Form_Load();
    double Pista() const;
    void Pinta(double ancho);

    Medidor medidor_;
    QLabel* Label1;  ///< the track
    QLabel* Label2;  ///< the filled part
};

}  // namespace veldix
