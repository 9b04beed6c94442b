#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/enteros.h"
#include "platform/lector_lineas_fichero.h"
#include "platform/numeros.h"
#include "record/avance.h"
#include "record/leer_dat.h"
#include "record/leer_dat_comun.h"

namespace veldix {

namespace {

/// The fields of a line. All but the last one that the sample needs must end with a comma; from one that
/// lacks it on, there are none.
class CamposMuestra {
public:
    explicit CamposMuestra(std::string_view linea) : p_(linea.data()), fin_(p_ + linea.size()) {}

    /// The next field; `ultimo` may run to the end of the line.
    std::optional<std::string_view> Siguiente(bool ultimo = false)
    {
        if (p_ == nullptr) return std::nullopt;
        const auto queda = static_cast<std::size_t>(fin_ - p_);
        const auto* coma = static_cast<const char*>(std::memchr(p_, ',', queda));
        if (coma == nullptr && !ultimo) {
            p_ = nullptr;
            return std::nullopt;
        }
        const char* hasta = coma ? coma : fin_;
        const std::string_view campo(p_, static_cast<std::size_t>(hasta - p_));
        p_ = coma ? coma + 1 : nullptr;
        return campo;
    }

    /// A field of one digit followed by a comma, which is what nearly all states are; '\0' otherwise, with
    /// nothing passed.
    char Cifra()
    {
        if (p_ == nullptr || fin_ - p_ < 2 || p_[1] != ',' || *p_ < '0' || *p_ > '9') return '\0';
        const char c = *p_;
        p_ += 2;
        return c;
    }

private:
    const char* p_;
    const char* fin_;
};

/// The values of one line, and which of them were there.
struct ValoresLinea {
    explicit ValoresLinea(int analogicos)
        : n(analogicos),
          x(new float[static_cast<std::size_t>(n)]),
          valida(new bool[static_cast<std::size_t>(n)])
    {
    }
    int n;
    std::unique_ptr<float[]> x;
    std::unique_ptr<bool[]> valida;
    bool todas = true;
};

bool SoloCifras(std::string_view t)
{
    for (const char c : t)
        if (c < '0' || c > '9') return false;
    return !t.empty() && t.size() <= 15;
}

/// The time stamp in microseconds, unchanged where the field is missing or does not fit.
void LeeTiempo(float& tiempo, std::optional<std::string_view> campo, std::int16_t multiplicador)
{
    if (!campo) return;
    static const Separadores kPunto;
    if (SoloCifras(*campo) && multiplicador == 0) {
        tiempo = *CampoSingle(*campo, kPunto);
        return;
    }
    Intenta([&] {
        const float t = SoloCifras(*campo) ? *CampoSingle(*campo, kPunto) : TolVal(*campo);
        tiempo = multiplicador != 0 ? Single(static_cast<double>(t) * multiplicador) : t;
    });
}

void LeeAnalogicos(CamposMuestra& campos, ValoresLinea& v, bool sinDigitales, const Separadores& separadores)
{
    v.todas = true;
    for (int c = 0; c < v.n; ++c) {
        const auto campo = campos.Siguiente(sinDigitales && c + 1 == v.n);
        const auto x = campo ? CampoSingle(*campo, separadores) : std::nullopt;
        v.x[static_cast<std::size_t>(c)] = x.value_or(0.0F);
        v.valida[static_cast<std::size_t>(c)] = x.has_value();
        v.todas = v.todas && x.has_value();
    }
}

/// `estados` may be null: the states then have nowhere to go.
void LeeDigitales(CamposMuestra& campos, int n, std::int16_t* estados, const Separadores& separadores)
{
    if (estados == nullptr) return;
    for (int k = 0; k < n; ++k) {
        if (const char c = campos.Cifra(); c != '\0') {
            estados[k] = static_cast<std::int16_t>(c - '0');
        } else {
            const auto campo = campos.Siguiente(k + 1 == n);
            if (!campo) return;
            if (const auto estado = CampoEntero16(*campo, separadores)) estados[k] = *estado;
        }
    }
}

/// A field may hold any float32, so that each product is checked; the text costs far more.
constexpr double kMayorCampo = 3.5e38;

void LeeLineas(RecordStore& s)
{
    const int muestras = s.Muestras.UBound(1);
    const Separadores separadores = SeparadoresSistema();
    const EscalaCanales escala(s, kMayorCampo);
    LectorLineasFichero fichero(s.FicheroDat);
    ValoresLinea valores(s.Muestras.UBound(2));
    FilasMuestra filas(s, valores.n);
    PasoGasolino gasolino(muestras);
    for (int i = 1; i <= muestras; ++i) {
        const auto linea = fichero.Lee();
        if (!linea) return;
        filas.Ve(i);
        CamposMuestra campos(*linea);
        campos.Siguiente();  // sample number
        LeeTiempo(s.Tiempos(i), campos.Siguiente(), s.TimeMult);
        LeeAnalogicos(campos, valores, s.NumDigital <= 0, separadores);
        escala.Aplica(valores.x.get(), valores.todas ? nullptr : valores.valida.get(), i == 1, filas.muestras,
                      filas.prim, filas.sec);
        LeeDigitales(campos, s.NumDigital, filas.dig, separadores);
        gasolino.Pasa();
    }
}

}  // namespace

std::int16_t LeerDatAscii(RecordStore& s)
{
    PreparaMuestras(s);
    Intenta([&] { LeeLineas(s); });
    CalculaFrecMuestreo(s);
    return 0;
}

}  // namespace veldix
