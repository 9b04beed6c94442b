#include "dat_comun.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace veldix::fuzz {

namespace {

constexpr std::size_t kCabeza = 24;

constexpr std::array<float, 12> kFactores = {1.0F,  0.005F, 0.0F,    -1.0F,    132.0F, 0.11F,
                                             1e30F, -1e30F, 3.4e38F, -3.4e38F, 1e-38F, 1e-44F};

std::int16_t Entero(Octetos o, std::size_t i)
{
    return static_cast<std::int16_t>(o[i] | o[i + 1] << 8);
}

std::int16_t Cuenta(std::uint8_t o)
{
    constexpr std::array<std::int16_t, 6> kRaras = {-1, -32768, 255, 256, 4000, 32767};
    return o < 250 ? o : kRaras[o - 250U];
}

template <class T>
bool Nulas(const T* de, int n)
{
    return std::all_of(de, de + n, [](T v) { return v == 0; });
}

}  // namespace

CasoDat::CasoDat(Octetos entrada)
{
    std::array<std::uint8_t, kCabeza> cabeza{};
    const std::size_t n = std::min(entrada.size(), kCabeza);
    std::copy_n(entrada.begin(), n, cabeza.begin());
    fichero = entrada.subspan(n);
    analogicos_ = Cuenta(cabeza[0]);
    digitales_ = Cuenta(cabeza[1]);
    muestras_ = Entero(cabeza, 2);
    es1997_ = (cabeza[4] & 1U) != 0;
    comaDecimal = (cabeza[4] & 2U) != 0;
    mezcla_ = (cabeza[4] & 4U) != 0;
    multiplicador_ = Entero(cabeza, 5);
    paleta_ = cabeza[7];
    std::memcpy(impar_, &cabeza[8], sizeof impar_);
    for (float& f : impar_)
        if (!std::isfinite(f)) f = 0.0F;
    // Rows of thousands of channels cost time and memory without new paths.
    if (analogicos_ > 1000 || digitales_ > 1000) fichero = fichero.first(std::min(fichero.size(), n * 8));
}

FilaRelacion CasoDat::Relacion(int canal) const
{
    constexpr std::array<const char*, 6> kLados = {"P", "S", " p ", "s", "", "X"};
    FilaRelacion r;
    const unsigned k = paleta_ + static_cast<unsigned>(canal);
    r.Primario = canal % 2 == 1 ? impar_[2] : kFactores[(k + 2) % kFactores.size()];
    r.Secundario = canal % 2 == 1 ? impar_[3] : kFactores[(k + 3) % kFactores.size()];
    r.Lado = kLados[(mezcla_ ? k : paleta_) % kLados.size()];
    return r;
}

void CasoDat::Prepara(RecordStore& s) const
{
    s.RevisionCfg = es1997_ ? "1997" : "1991";
    s.NumAnalog = analogicos_;
    s.NumDigital = digitales_;
    s.TimeMult = multiplicador_;
    s.UltimaMuestra = Tabla1<std::int16_t>(1);
    s.UltimaMuestra(1) = muestras_;
    if (analogicos_ <= 0) return;
    s.FactorA = Tabla1<float>(analogicos_);
    s.FactorB = Tabla1<float>(analogicos_);
    if (es1997_) s.Relacion = Tabla1<FilaRelacion>(analogicos_);
    for (int c = 1; c <= analogicos_; ++c) {
        const unsigned k = paleta_ + static_cast<unsigned>(c);
        s.FactorA(c) = c % 2 == 1 ? impar_[0] : kFactores[k % kFactores.size()];
        s.FactorB(c) = c % 2 == 1 ? impar_[1] : kFactores[(k + 1) % kFactores.size()];
        if (es1997_) s.Relacion(c) = Relacion(c);
    }
}

void CompruebaMuestras(const RecordStore& s, int leidas)
{
    const int muestras = Filas(s.UltimaMuestra(1)), n = Filas(s.NumAnalog), nd = Filas(s.NumDigital);
    const bool es1997 = s.RevisionCfg == "1997";
    ExigeTamano(s.Muestras, true, muestras, n, "samples");
    ExigeTamano(s.MuestrasPrim, es1997, muestras, n, "primary samples");
    ExigeTamano(s.MuestrasSec, es1997, muestras, n, "secondary samples");
    ExigeTamano(s.MuestrasDig, !s.Muestras.Vacia(), muestras, nd, "states");
    Exige(s.Tiempos.Cuantos() == s.Muestras.Filas(), "times");
    Exige(Finitas(s.Tiempos.datos(), s.Tiempos.Cuantos()), "time that is no number");
    const bool directa =
        !es1997 || n == 0 || (s.Relacion(1).Primario == 1.0F && s.Relacion(1).Secundario == 1.0F);
    const int filas = s.Muestras.Filas();
    for (int i = 1; i <= std::min(leidas, filas); ++i) {
        Exige(Finitas(s.Muestras.fila(i), n), "sample that is no number");
        Exige(directa || Nulas(s.Muestras.fila(i), n), "samples of a record with ratios");
        if (s.MuestrasPrim.Vacia()) continue;
        Exige(Finitas(s.MuestrasPrim.fila(i), n), "primary sample that is no number");
        Exige(Finitas(s.MuestrasSec.fila(i), n), "secondary sample that is no number");
    }
    // The first row behind the file stands for the rest.
    if (leidas >= filas) return;
    Exige(Nulas(s.Muestras.fila(leidas + 1), n) && s.Tiempos(leidas + 1) == 0.0F, "row behind the file");
    if (!s.MuestrasDig.Vacia()) Exige(Nulas(s.MuestrasDig.fila(leidas + 1), nd), "states behind the file");
}

}  // namespace veldix::fuzz
