#include "record/leer_dat_comun.h"

#include <algorithm>

#include "platform/enteros.h"
#include "record/leer_dat.h"

namespace veldix {

void BorraMuestras(RecordStore& s)
{
    s.Muestras = {};
    s.MuestrasPrim = {};
    s.MuestrasSec = {};
    s.MuestrasDig = {};
    s.Tiempos = {};
    s.EnPrimario = false;
    s.EnSecundario = false;
}

/// Each size hangs on the one before it: without `Muestras` there are no states and no times.
void PreparaMuestras(RecordStore& s)
{
    BorraMuestras(s);
    const bool es1997 = s.RevisionCfg == "1997";
    if (s.NumAnalog > 0) {
        Intenta([&] { s.Muestras = Tabla2<float>(s.UltimaMuestra(1), s.NumAnalog); });
        if (es1997) {
            Intenta([&] { s.MuestrasPrim = Tabla2<float>(s.UltimaMuestra(1), s.NumAnalog); });
            Intenta([&] { s.MuestrasSec = Tabla2<float>(s.UltimaMuestra(1), s.NumAnalog); });
        }
    }
    if (s.NumDigital > 0)
        Intenta([&] { s.MuestrasDig = Tabla2<std::int16_t>(s.Muestras.UBound(1), s.NumDigital); });
    Intenta([&] { s.Tiempos = Tabla1<float>(s.Muestras.UBound(1)); });
}

void CalculaFrecMuestreo(RecordStore& s)
{
    Intenta([&] {
        const float dt = Single(static_cast<double>(s.Tiempos(2)) - s.Tiempos(1));
        s.FrecMuestreo = Entero16(Divide(1.0, dt * 1e-6));
    });
}

FilasMuestra::FilasMuestra(RecordStore& s, int canales)
    : s_(s), sobraPrim_(static_cast<std::size_t>(std::max(canales, 1))), sobraSec_(sobraPrim_)
{
}

void FilasMuestra::Ve(int i)
{
    muestras = s_.Muestras.fila(i);
    prim = s_.MuestrasPrim.Vacia() ? sobraPrim_.data() : s_.MuestrasPrim.fila(i);
    sec = s_.MuestrasSec.Vacia() ? sobraSec_.data() : s_.MuestrasSec.fila(i);
    dig = s_.MuestrasDig.Vacia() ? nullptr : s_.MuestrasDig.fila(i);
}

}  // namespace veldix
