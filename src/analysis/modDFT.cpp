#include "analysis/modDFT.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/avisos.h"
#include "platform/enteros.h"

namespace veldix {

namespace {

constexpr int kCiclosDelante = 5;
constexpr std::size_t kMaximoCanales = 255;

/// The samples with their first cycle five times in front of them, the first of the five silent, so that
/// the sliding sum starts from nothing.
class Extendida {
public:
    Extendida(const Tabla2<float>& muestras, std::int16_t ciclo)
        : muestras_(muestras), ciclo_(ciclo), silencio_(muestras.UBound(2))
    {
    }

    /// Raises 9 where the record has no such sample.
    const float* fila(int i) const
    {
        if (i <= ciclo_) return silencio_.datos();
        if (i <= kCiclosDelante * ciclo_)
            return muestras_.fila(IndiceCiclo(static_cast<std::int16_t>(i), ciclo_));
        return muestras_.fila(i - kCiclosDelante * ciclo_);
    }

private:
    const Tabla2<float>& muestras_;
    int ciclo_;
    Tabla1<float> silencio_;
};

/// Reference angle of position `k` of the cycle, degrees: the skew of the channel and the step of the sample.
float AnguloDFT(const RecordStore& s, std::int16_t ciclo, int k, int c)
{
    const double skew = s.Skew(c);
    const double frecuencia = static_cast<float>(s.FrecLinea);
    return Single((skew + skew) * frecuencia * 0.000001 * 180.0 + 360.0 / ciclo * k);
}

/// (1..N, 1..2C): sine and cosine coefficient of each position and channel, with the factor that makes the
/// sums RMS values.
Tabla2<float> CoeficientesDFT(const RecordStore& s, std::int16_t ciclo, int canales)
{
    Tabla2<float> tabla(ciclo, 2 * canales);
    for (int k = 1; k <= ciclo; ++k) {
        for (int c = 1; c <= canales; ++c) {
            const double x = double{AnguloDFT(s, ciclo, k, c)} * kPiDFT / 180.0;
            tabla(k, 2 * c - 1) = Single(std::numbers::sqrt2 * std::sin(x) / ciclo);
            tabla(k, 2 * c) = Single(std::numbers::sqrt2 * std::cos(x) / ciclo);
        }
    }
    return tabla;
}

/// A row from the one before it. Every difference, product and sum is rounded to float32.
[[gnu::noinline]] void AvanzaFila(float* __restrict fila, const float* __restrict previa,
                                  const float* __restrict entra, const float* __restrict sale,
                                  const float* __restrict coeficientes, int canales)
{
    for (int c = 0; c < canales; ++c) {
        const float d = entra[c] - sale[c];
        fila[2 * c] = previa[2 * c] + d * coeficientes[2 * c];
        fila[2 * c + 1] = previa[2 * c + 1] + d * coeficientes[2 * c + 1];
    }
}

/// A sum that has left float32 never comes back, so that the last row tells of all.
void CompruebaUltima(const Tabla2<float>& fasores)
{
    const float* ultima = fasores.fila(fasores.UBound(1));
    if (!std::all_of(ultima, ultima + fasores.Columnas(), [](float v) { return std::isfinite(v); }))
        Lanza(error::kDesbordamiento);
}

void Calcula(RecordStore& s)
{
    const std::int16_t ciclo = MuestrasCiclo(s);
    s.NumMuestrasDFT = Entero16(s.Muestras.UBound(1));
    s.NumFilasDFT = Entero16(kCiclosDelante * int{ciclo} + s.NumMuestrasDFT);
    const int canales = s.Muestras.UBound(2);
    if (canales > static_cast<int>(kMaximoCanales)) Lanza(error::kDesbordamiento);
    s.NumCanalesDFT = static_cast<std::uint8_t>(canales);
    const Extendida extendida(s.Muestras, ciclo);
    const Tabla2<float> coeficientes = CoeficientesDFT(s, ciclo, canales);
    Tabla2<float> fasores(s.NumFilasDFT, 2 * canales);
    for (int i = ciclo + 1; i <= s.NumFilasDFT; ++i)
        AvanzaFila(fasores.fila(i), fasores.fila(i - 1), extendida.fila(i), extendida.fila(i - ciclo),
                   coeficientes.fila(IndiceCiclo(static_cast<std::int16_t>(i), ciclo)), canales);
    CompruebaUltima(fasores);
    s.FasoresDFT = std::move(fasores);
}

}  // namespace

std::int16_t MuestrasCiclo(const RecordStore& s)
{
    return Entero16(Divide(MuestrasPorSegundo(s), s.FrecLinea));
}

std::int16_t IndiceCiclo(std::int16_t i, std::int16_t ciclo)
{
    if (ciclo == 0) {
        PunteroNormal();
        AvisaError(ErrorEjecucion(error::kDivisionPorCero));
        return 0;
    }
    const auto resto = static_cast<std::int16_t>(i % ciclo);
    return resto == 0 ? ciclo : resto;
}

void CalculaDFT(RecordStore& s)
{
    s.FasoresDFT = {};
    try {
        Calcula(s);
    } catch (const std::exception&) {
        const ErrorEjecucion e = ErrorEnVuelo();
        PunteroNormal();
        AvisaError(e);
    }
}

}  // namespace veldix
