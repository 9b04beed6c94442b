#include "record/escala.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/texto.h"

namespace veldix {

namespace {

constexpr double kMayorSingle = std::numeric_limits<float>::max();

/// Rounded to float32, 0 beyond it.
float OCero(double v)
{
    const auto f = static_cast<float>(v);
    return std::isfinite(f) ? f : 0.0F;
}

/// The quotient rounded to float32; `razon` stays for a zero divisor or a quotient beyond float32.
void Cociente(float& razon, float dividendo, float divisor)
{
    const auto q = static_cast<float>(divisor == 0.0F ? NAN : static_cast<double>(dividendo) / divisor);
    if (std::isfinite(q)) razon = q;
}

double Mayor(const std::vector<float>& v)
{
    float m = 1.0F;
    for (const float x : v)
        m = std::max(m, std::fabs(x));
    return m;
}

}  // namespace

bool MuestrasDirectas(const RecordStore& s)
{
    if (s.RevisionCfg != "1997") return true;
    const FilaRelacion& primera = s.Relacion(1);
    return primera.Primario == 1.0F && primera.Secundario == 1.0F;
}

EscalaCanales::EscalaCanales(const RecordStore& s, double mayor)
    : n_(s.FactorA.Cuantos()), es1997_(s.RevisionCfg == "1997")
{
    a_.assign(s.FactorA.begin(), s.FactorA.end());
    b_.assign(s.FactorB.begin(), s.FactorB.end());
    double tope = 0.0;
    for (int c = 0; c < n_; ++c)
        tope = std::max(tope, std::fabs(a_[static_cast<std::size_t>(c)]) * mayor +
                                  std::fabs(b_[static_cast<std::size_t>(c)]));
    if (es1997_ && n_ > 0) {
        directa_ = MuestrasDirectas(s);
        CalculaLados(s);
        tope *= std::max({Mayor(primera_.prim), Mayor(primera_.sec), Mayor(resto_.prim), Mayor(resto_.sec)});
    }
    // The margin covers the two roundings to float32 on the way.
    constexpr double kMargen = 1.000001;
    segura_ = tope * kMargen < kMayorSingle;
}

/// The ratios of one sample in reading order. A zero divisor, or a quotient beyond float32, leaves the ratio
/// of the channel read before; `prim` and `sec` carry it from sample to sample.
EscalaCanales::Lados EscalaCanales::Pasada(const RecordStore& s, float& prim, float& sec) const
{
    Lados r;
    for (int c = 1; c <= n_; ++c) {
        const FilaRelacion& relacion = s.Relacion(c);
        Cociente(prim, relacion.Primario, relacion.Secundario);
        Cociente(sec, relacion.Secundario, relacion.Primario);
        const bool esPrimario = Mayusculas(Recorta(relacion.Lado)) == "P";
        r.prim.push_back(esPrimario ? 1.0F : prim);
        r.sec.push_back(esPrimario ? sec : 1.0F);
    }
    return r;
}

void EscalaCanales::CalculaLados(const RecordStore& s)
{
    float prim = 0.0F, sec = 0.0F;
    primera_ = Pasada(s, prim, sec);
    resto_ = Pasada(s, prim, sec);
    for (int c = 1; c <= n_; ++c) {
        const std::string lado = Mayusculas(Recorta(s.Relacion(c).Lado));
        if (lado != "P" && lado != "S") sinLado_.push_back(c - 1);
    }
}

template <class X>
void EscalaCanales::Aplica(const X* __restrict x, const bool* valida, bool primera,
                           float* __restrict muestras, float* __restrict prim, float* __restrict sec) const
{
    const double* __restrict a = a_.data();
    const double* __restrict b = b_.data();
    if (!es1997_) {
        if (segura_ && !valida)
            for (int c = 0; c < n_; ++c)
                muestras[c] = static_cast<float>(static_cast<double>(x[c]) * a[c] + b[c]);
        else
            for (int c = 0; c < n_; ++c)
                muestras[c] = valida && !valida[c] ? 0.0F : OCero(static_cast<double>(x[c]) * a[c] + b[c]);
        return;
    }
    const Lados& lados = primera ? primera_ : resto_;
    const float* __restrict fp = lados.prim.data();
    const float* __restrict fs = lados.sec.data();
    if (segura_ && !valida) {
        for (int c = 0; c < n_; ++c) {
            const auto v = static_cast<float>(static_cast<double>(x[c]) * a[c] + b[c]);
            prim[c] = v * fp[c];
            sec[c] = v * fs[c];
        }
        if (directa_)
            for (int c = 0; c < n_; ++c)
                muestras[c] = static_cast<float>(static_cast<double>(x[c]) * a[c] + b[c]);
    } else {
        for (int c = 0; c < n_; ++c) {
            const float v = valida && !valida[c] ? 0.0F : OCero(static_cast<double>(x[c]) * a[c] + b[c]);
            prim[c] = OCero(static_cast<double>(v) * fp[c]);
            sec[c] = OCero(static_cast<double>(v) * fs[c]);
            if (directa_) muestras[c] = v;
        }
    }
    for (const int c : sinLado_)
        prim[c] = sec[c] = 0.0F;
}

template void EscalaCanales::Aplica(const float*, const bool*, bool, float*, float*, float*) const;
template void EscalaCanales::Aplica(const std::int16_t*, const bool*, bool, float*, float*, float*) const;

}  // namespace veldix
