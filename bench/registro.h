#pragma once

#include <cmath>

#include "record/record_store.h"

namespace veldix {

/// The longest record, of `canales` channels at 32 samples a cycle with a fault in the middle, on a screen of
/// 1280 x 800.
inline void PonRegistroLargo(int canales)
{
    constexpr int kMuestras = 32767;
    store.RevisionCfg = "1991";
    store.FrecLinea = 50;
    store.FrecMuestras = Tabla1<std::int16_t>(1);
    store.FrecMuestras(1) = 1600;
    store.NumAnalog = store.NumCanalAnalog = static_cast<std::int16_t>(canales);
    store.Canales = Tabla1<FilaCanal>(canales);
    store.Muestras = Tabla2<float>(kMuestras, canales);
    for (int c = 1; c <= canales; ++c) {
        store.Canales(c) = {std::to_string(c), "Canal " + std::to_string(c), "", "A"};
        for (int i = 1; i <= kMuestras; ++i) {
            const double falta = i > 13000 && i < 20000 ? 1.0 : 0.4;
            store.Muestras(i, c) =
                static_cast<float>(falta * (std::sin(i * 0.19635 + c) + 0.1 * std::sin(i * 1.3744)));
        }
    }
    ReiniciaRegistro(store);
    store.AnchoPantalla = 19200.0, store.AltoPantalla = 12000.0;
}

}  // namespace veldix
