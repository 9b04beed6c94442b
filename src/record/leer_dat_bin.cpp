#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <vector>

#include "platform/ficheros.h"
#include "record/avance.h"
#include "record/leer_dat.h"
#include "record/leer_dat_comun.h"

namespace veldix {

namespace {

static_assert(std::endian::native == std::endian::little, "samples are unpacked as they lie in the file");

constexpr std::size_t kCabecera = 8;  // sample number and time stamp
constexpr std::size_t kTrozo = 256 * 1024;

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

/// Whole samples of a file, one after another.
class LectorMuestras {
public:
    LectorMuestras(const std::string& ruta, std::size_t largo)
        : fichero_(ruta), largo_(largo), buf_(std::max<std::size_t>(1, kTrozo / largo) * largo)
    {
    }

    /// The next sample, null where the file ends before its end.
    const unsigned char* Lee()
    {
        if (lleno_ - pos_ < largo_) {
            pos_ = 0;
            lleno_ = fichero_.Lee({reinterpret_cast<char*>(buf_.data()), buf_.size()});
            if (lleno_ < largo_) return nullptr;
        }
        const unsigned char* muestra = buf_.data() + pos_;
        pos_ += largo_;
        return muestra;
    }

private:
    LectorTrozos fichero_;
    std::size_t largo_, pos_ = 0, lleno_ = 0;
    std::vector<unsigned char> buf_;
};

void LeeMuestras(RecordStore& s)
{
    const int muestras = s.Muestras.UBound(1), analogicos = s.Muestras.UBound(2);
    const int digitales = std::max<int>(s.NumDigital, 0);
    const auto na = static_cast<std::size_t>(analogicos);
    const std::size_t palabras = (static_cast<std::size_t>(digitales) + 15) / 16;
    const EscalaCanales escala(s, 32768.0);
    LectorMuestras fichero(s.FicheroDat, kCabecera + 2 * (na + palabras));
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
        std::memcpy(crudos.data(), p + kCabecera, 2 * na);
        escala.Aplica(crudos.data(), nullptr, i == 1, filas.muestras, filas.prim, filas.sec);
        if (filas.dig) Desempaqueta(p + kCabecera + 2 * na, digitales, filas.dig);
        gasolino.Muestra();
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
