#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "record/avance.h"
#include "record/lector_muestras.h"
#include "record/leer_dat.h"
#include "record/leer_dat_comun.h"

namespace veldix {

namespace {

using Octeto = std::array<std::int16_t, 8>;

/// The eight states of every value of an octet, lowest bit first.
constexpr std::array<Octeto, 256> kEstados = [] {
    std::array<Octeto, 256> t{};
    for (unsigned v = 0; v < 256; ++v)
        for (unsigned k = 0; k < 8; ++k)
            t[v][k] = static_cast<std::int16_t>((v >> k) & 1U);
    return t;
}();

/// `n` states from the status words at `de`. Channel 16(w-1)+k is bit k-1 of word w, so that octets follow
/// the channels in order; the last word may be used in part.
void Desempaqueta(const unsigned char* de, int n, std::int16_t* estados)
{
    for (; n >= 8; n -= 8, estados += 8, ++de)
        std::memcpy(estados, kEstados[*de].data(), sizeof(Octeto));
    if (n > 0) std::memcpy(estados, kEstados[*de].data(), sizeof(std::int16_t) * static_cast<std::size_t>(n));
}

void LeeMuestras(RecordStore& s)
{
    const int muestras = s.Muestras.UBound(1), analogicos = s.Muestras.UBound(2);
    const int digitales = std::max<int>(s.NumDigital, 0);
    const auto na = static_cast<std::size_t>(analogicos);
    const EscalaCanales escala(s, 32768.0);
    LectorMuestras fichero(s.FicheroDat, analogicos, digitales);
    std::vector<std::int16_t> crudos(na);
    FilasMuestra filas(s, analogicos);
    PasoGasolino gasolino(muestras);
    for (int i = 1; i <= muestras; ++i) {
        const unsigned char* p = fichero.Lee();
        if (p == nullptr) return;
        filas.Ve(i);
        std::int32_t tiempo = 0;
        std::memcpy(&tiempo, p + 4, sizeof tiempo);
        s.Tiempos(i) = static_cast<float>(tiempo);
        std::memcpy(crudos.data(), p + LectorMuestras::kCabecera, 2 * na);
        escala.Aplica(crudos.data(), nullptr, i == 1, filas.muestras, filas.prim, filas.sec);
        if (filas.dig) Desempaqueta(p + LectorMuestras::kCabecera + 2 * na, digitales, filas.dig);
        gasolino.Pasa();
    }
}

}  // namespace

std::int16_t LeerDatBin(RecordStore& s)
{
    PreparaMuestras(s);
    Intenta([&] { LeeMuestras(s); });
    CalculaFrecMuestreo(s);
    return 0;
}

}  // namespace veldix
