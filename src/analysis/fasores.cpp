#include "analysis/fasores.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>

#include "analysis/grupos.h"
#include "analysis/modDFT.h"
#include "platform/enteros.h"

namespace veldix {

namespace {

constexpr float kMayor = std::numeric_limits<float>::max();

double Hipotenusa(float x, float y)
{
    return std::sqrt(double{x} * x + double{y} * y);
}

/// Sizes a table anew unless it has these bounds already: its pages are then not asked for again.
void Dimensiona(Tabla2<float>& tabla, const Tabla2<float>& como)
{
    const int filas = como.UBound(1), columnas = como.UBound(2);
    if (tabla.Filas() != filas || tabla.Columnas() != columnas) tabla = Tabla2<float>(filas, columnas);
}

/// One row of CalculaCartesianas; whether all of it is finite, which is seen by the exponents so that both
/// loops run in vectors.
bool Amplia(const float* __restrict f, int columnas, double escala, double zoom, float* __restrict destino)
{
    constexpr std::uint32_t kExponente = 0x7F800000U;
    for (int j = 0; j < columnas; ++j)
        destino[j] = static_cast<float>(escala * f[j] * zoom);
    std::uint32_t fuera = 0;
    for (int j = 0; j < columnas; ++j)
        fuera |= (std::bit_cast<std::uint32_t>(destino[j]) & kExponente) == kExponente ? 1U : 0U;
    return fuera == 0;
}

/// The six parts of a group's components at one row, from the phases' columns.
struct Componentes {
    int a, b, c;

    /// Places, from 0, of the phases' sine sums in a row of `fasores`. Raises 9.
    Componentes(const Tabla2<float>& fasores, const FilaTrifasic& grupo)
        : a(Sitio(fasores, grupo.Fase(1))), b(Sitio(fasores, grupo.Fase(2))), c(Sitio(fasores, grupo.Fase(3)))
    {
    }
    std::array<double, 6> operator()(const float* fila) const
    {
        const double xa = fila[a], ya = fila[a + 1], xb = fila[b], yb = fila[b + 1], xc = fila[c],
                     yc = fila[c + 1];
        return {(xa - 0.5 * (xb + xc) - 0.866 * (yb - yc)) / 3.0,
                (ya - 0.5 * (yb + yc) + 0.866 * (xb - xc)) / 3.0,
                (xa - 0.5 * (xb + xc) + 0.866 * (yb - yc)) / 3.0,
                (ya - 0.5 * (yb + yc) - 0.866 * (xb - xc)) / 3.0,
                (xa + xb + xc) / 3.0,
                (ya + yb + yc) / 3.0};
    }

private:
    static int Sitio(const Tabla2<float>& fasores, int canal)
    {
        if (canal < 1 || 2 * canal > fasores.UBound(2)) Lanza(error::kSubindice);
        return 2 * canal - 2;
    }
};

}  // namespace

float ModuloFasor(float x, float y)
{
    return Single(Hipotenusa(x, y));
}

float AnguloFasor(float x, float y)
{
    if (x == 0.0F) return y > 0.0F ? -90.0F : 90.0F;
    if (y == 0.0F) return x > 0.0F ? 180.0F : 0.0F;
    const double grados = std::atan(double{y} / x) * 180.0 / kPiDFT;
    return static_cast<float>(x < 0.0F ? grados + 180.0 : grados);
}

void CalculaModulos(const Tabla2<float>& fasores, Tabla2<float>& Modulos, Tabla2<float>& Angulos)
{
    const int filas = fasores.UBound(1), canales = fasores.UBound(2) / 2;
    Dimensiona(Modulos, fasores);
    Dimensiona(Angulos, fasores);
    bool cabe = true;
    for (int i = 1; i <= filas; ++i) {
        const float* __restrict f = fasores.fila(i);
        float* __restrict modulo = Modulos.fila(i);
        float* __restrict angulo = Angulos.fila(i);
        for (int c = 0; c < canales; ++c) {
            const auto m = static_cast<float>(Hipotenusa(f[2 * c], f[2 * c + 1]));
            cabe = cabe && m <= kMayor;
            modulo[c] = m;
            angulo[c] = AnguloFasor(f[2 * c], f[2 * c + 1]);
        }
    }
    if (!cabe) Lanza(error::kDesbordamiento);
}

void CalculaCartesianas(const Tabla2<float>& fasores, float escala, float zoom, Tabla2<float>& Cartesianas)
{
    Dimensiona(Cartesianas, fasores);
    const int filas = fasores.UBound(1), columnas = fasores.UBound(2);
    bool cabe = true;
    for (int i = 1; i <= filas; ++i)
        cabe = Amplia(fasores.fila(i), columnas, escala, zoom, Cartesianas.fila(i)) && cabe;
    if (!cabe) Lanza(error::kDesbordamiento);
}

void CalculaSecuencias(RecordStore& s)
{
    s.Secuencias = {};
    const std::vector<int> grupos = GruposMarcados(s.GruposSecuencias);
    if (grupos.empty()) return;
    const int filas = s.FasoresDFT.UBound(1);
    Tabla2<float> secuencias(filas, 6 * static_cast<int>(grupos.size()));
    for (std::size_t n = 0; n < grupos.size(); ++n) {
        const Componentes componentes(s.FasoresDFT, s.Trifasic(grupos[n]));
        bool cabe = true;
        for (int i = 1; i <= filas; ++i) {
            float* destino = secuencias.fila(i) + 6 * n;
            for (const double parte : componentes(s.FasoresDFT.fila(i))) {
                *destino = static_cast<float>(parte);
                cabe = cabe && std::isfinite(*destino++);
            }
        }
        if (!cabe) Lanza(error::kDesbordamiento);
    }
    s.Secuencias = std::move(secuencias);
}

}  // namespace veldix
