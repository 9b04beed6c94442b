#pragma once

#include <cstdint>
#include <functional>

#include "platform/errores.h"

namespace veldix {

/// What opening and converting a record ask of the rooms above. The shell fills these at start; without them
/// they do nothing.
struct GanchosRegistro {
    std::function<void()> MuestraGasolino = [] {};   ///< shows the gauge
    std::function<void()> DescargaGasolino = [] {};  ///< unloads it
    /// Moves the gauge by `valor` points, or to it where not `relativo`; value 0 resets it.
    std::function<void(bool relativo, std::int16_t valor)> LlenarGasolino = [](auto...) {};
    std::function<void()> EscribeSesion = [] {};  ///< writes the session file
    /// The bar of a conversion: shows it with its maximum, moves it, unloads it.
    std::function<void(int maximo)> MuestraGasolino2 = [](int) {};
    std::function<void(int valor)> PonGasolino2 = [](int) {};
    std::function<void()> DescargaGasolino2 = [] {};
};
extern GanchosRegistro ganchosRegistro;

/// A gauge step for each stride + 1 of `muestras` samples, about 90 in all; the stride is a ninetieth of
/// the samples, halves to even.
class PasoGasolino {
public:
    explicit PasoGasolino(int muestras);
    void Pasa()
    {
        if (cuenta_ == paso_) {
            // A gauge that fails does not cut the record.
            Intenta([] { ganchosRegistro.LlenarGasolino(true, 1); });
            cuenta_ = 0;
        } else {
            ++cuenta_;
        }
    }

private:
    int paso_;
    int cuenta_ = 0;
};

}  // namespace veldix
