#include <cmath>
#include <cstring>

#include "comun.h"
#include "dat_comun.h"
#include "pruebas.h"
#include "record/leer_dat.h"

namespace veldix::fuzz {

namespace {

template <class T>
T Toma(const std::uint8_t* de)
{
    T v;
    std::memcpy(&v, de, sizeof v);
    return v;
}

/// One sample, unpacked the long way.
void CompruebaFila(const RecordStore& s, int i, const std::uint8_t* fila)
{
    Exige(s.Tiempos(i) == static_cast<float>(Toma<std::int32_t>(fila + 4)), "time");
    const std::uint8_t* p = fila + 8;
    for (int c = 1; c <= s.NumAnalog; ++c, p += 2) {
        const double v = double{s.FactorA(c)} * Toma<std::int16_t>(p) + s.FactorB(c);
        const auto esperada = static_cast<float>(v);
        if (s.RevisionCfg != "1991") continue;
        Exige(s.Muestras(i, c) == (std::isfinite(esperada) ? esperada : 0.0F), "value");
    }
    for (int k = 0; !s.MuestrasDig.Vacia() && k < s.NumDigital; ++k) {
        const unsigned palabra = Toma<std::uint16_t>(p + 2 * (k / 16));
        Exige(s.MuestrasDig(i, k + 1) == static_cast<int>(palabra >> (k % 16) & 1U), "state");
    }
}

}  // namespace

int Prueba_dat_bin(Octetos entrada)
{
    const CasoDat caso(entrada);
    const FicheroMemoria dat(Texto(caso.fichero));
    RecordStore s;
    caso.Prepara(s);
    s.FicheroDat = dat.Ruta();
    Exige(LeerDatBin(s) == 0, "result");
    const int palabras = (Filas(s.NumDigital) + 15) / 16;
    const auto largo = static_cast<std::size_t>(8 + 2 * (Filas(s.NumAnalog) + palabras));
    const auto leidas = static_cast<int>(caso.fichero.size() / largo);
    CompruebaMuestras(s, leidas);
    for (int i = 1; i <= std::min(leidas, s.Muestras.Filas()); ++i)
        CompruebaFila(s, i, caso.fichero.data() + static_cast<std::size_t>(i - 1) * largo);
    return 0;
}

}  // namespace veldix::fuzz
