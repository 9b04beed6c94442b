#include <algorithm>
#include <cmath>
#include <cstring>

#include "comun.h"
#include "dat_comun.h"
#include "platform/ficheros.h"
#include "pruebas.h"
#include "record/copia_ascii.h"
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

template <class T>
bool Iguales(const Tabla2<T>& a, const Tabla2<T>& b)
{
    const auto n = static_cast<std::size_t>(a.Filas()) * static_cast<std::size_t>(a.Columnas());
    if (a.Filas() != b.Filas() || a.Columnas() != b.Columnas()) return false;
    return n == 0 || std::memcmp(a.fila(1), b.fila(1), n * sizeof(T)) == 0;
}

/// The ASCII copy reads back as its source, but for the multiplier, which it has lost.
void CompruebaCopia(RecordStore& s, const CasoDat& caso)
{
    RecordStore copia;
    s.FicheroAscii = UneRuta(CarpetaMemoria(), "copia");
    FicherosNuevos ficheros;
    EscribeAsciiDat(s, ficheros);
    ficheros.Confirma();
    caso.Prepara(copia);
    copia.TimeMult = 0;
    copia.FicheroDat = s.FicheroAscii + ".DAT";
    LeerDatAscii(copia);
    Exige(Iguales(copia.Muestras, s.Muestras), "samples of the copy");
    Exige(Iguales(copia.MuestrasPrim, s.MuestrasPrim), "primary samples of the copy");
    Exige(Iguales(copia.MuestrasSec, s.MuestrasSec), "secondary samples of the copy");
    Exige(Iguales(copia.MuestrasDig, s.MuestrasDig), "states of the copy");
    Exige(std::equal(s.Tiempos.begin(), s.Tiempos.end(), copia.Tiempos.begin(), copia.Tiempos.end()),
          "times of the copy");
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
    CompruebaCopia(s, caso);
    return 0;
}

}  // namespace veldix::fuzz
