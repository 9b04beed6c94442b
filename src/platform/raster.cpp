#include "platform/raster.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>

namespace veldix {
namespace {

struct Punto {
    double x;
    double y;
};

// The pen over one surface. Inside, coordinates are shifted so that truncation rounds to the nearest pixel
// and everything the pen can touch is positive: `s` below is such a coordinate, pixel = int(s) - margen.
class Pluma {
public:
    Pluma(const Imagen32& imagen, std::uint32_t color, int grueso)
        : imagen_(imagen),
          color_(color),
          grueso_(std::clamp(grueso, 1, kGruesoMaximo)),
          margen_(grueso_ + 1),
          limiteX_(imagen.ancho + 2.0 * margen_),
          limiteY_(imagen.alto + 2.0 * margen_)
    {
    }

    bool Vacia() const { return imagen_.pixeles == nullptr || imagen_.ancho <= 0 || imagen_.alto <= 0; }

    Punto Desplaza(double x, double y) const { return {x + (margen_ + 0.5), y + (margen_ + 0.5)}; }

    bool ColumnaVisible(double s) const { return s >= 0.0 && s < limiteX_; }

    static bool Finito(double v) { return std::abs(v) <= std::numeric_limits<double>::max(); }

    void Segmento(Punto a, Punto b) const;

    // The stretch of one pixel column between two finite shifted ordinates, menor <= mayor.
    void Columna(int columna, double menor, double mayor) const;

private:
    static bool RecortaEje(Punto& a, Punto& b, double Punto::*eje, double Punto::*otro, double limite);
    void Bresenham(int x1, int y1, int x2, int y2) const;
    void Bloque(int x1, int y1, int x2, int y2) const;

    Imagen32 imagen_;
    std::uint32_t color_;
    int grueso_;
    int margen_;
    double limiteX_;
    double limiteY_;
};

void Pluma::Segmento(Punto a, Punto b) const
{
    if (!Finito(a.x) || !Finito(a.y) || !Finito(b.x) || !Finito(b.y)) return;
    // A segment within one column is never clipped in x, so that it is a part of the column's own stretch.
    if (ColumnaVisible(a.x) && ColumnaVisible(b.x) && static_cast<int>(a.x) == static_cast<int>(b.x)) {
        const auto [menor, mayor] = std::minmax(a.y, b.y);
        Columna(static_cast<int>(a.x), menor, mayor);
        return;
    }
    if (!RecortaEje(a, b, &Punto::x, &Punto::y, limiteX_)) return;
    if (!RecortaEje(a, b, &Punto::y, &Punto::x, limiteY_)) return;
    Bresenham(static_cast<int>(a.x), static_cast<int>(a.y), static_cast<int>(b.x), static_cast<int>(b.y));
}

void Pluma::Columna(int columna, double menor, double mayor) const
{
    if (mayor < 0.0 || menor > limiteY_) return;
    Bloque(columna, static_cast<int>(std::max(menor, 0.0)), columna,
           static_cast<int>(std::min(mayor, limiteY_)));
}

// Cuts the segment along one coordinate to the centres of the outermost pixels of 0..limite, so that slants
// through pixel centres keep to them; false when nothing is left. Differences are taken of halves, so that
// no finite end overflows.
bool Pluma::RecortaEje(Punto& a, Punto& b, double Punto::*eje, double Punto::*otro, double limite)
{
    const Punto desde = a;
    const Punto hasta = b;
    const double menor = 0.5;
    const double mayor = limite - 0.5;
    if (std::max(a.*eje, b.*eje) < menor || std::min(a.*eje, b.*eje) > mayor) return false;
    const auto lleva = [&](Punto& p, double borde) {
        const double t = (borde / 2 - desde.*eje / 2) / (hasta.*eje / 2 - desde.*eje / 2);
        p.*otro = (desde.*otro) * (1.0 - t) + (hasta.*otro) * t;
        p.*eje = borde;
    };
    for (Punto* p : {&a, &b}) {
        if (p->*eje < menor) {
            lleva(*p, menor);
        } else if (p->*eje > mayor) {
            lleva(*p, mayor);
        }
    }
    return true;
}

// One block for each run of pixels that share a row (flat lines) or a column (steep ones).
void Pluma::Bresenham(int x1, int y1, int x2, int y2) const
{
    const bool plana = std::abs(x2 - x1) >= std::abs(y2 - y1);
    int u = plana ? x1 : y1;
    int v = plana ? y1 : x1;
    const int fin = plana ? x2 : y2;
    const int largo = std::abs(fin - u);
    const int ancho = std::abs((plana ? y2 : x2) - v);
    const int pasoU = fin >= u ? 1 : -1;
    const int pasoV = (plana ? y2 : x2) >= v ? 1 : -1;
    const auto emite = [&](int desde, int hasta) {
        const auto [menor, mayor] = std::minmax(desde, hasta);
        plana ? Bloque(menor, v, mayor, v) : Bloque(v, menor, v, mayor);
    };
    int inicio = u;
    int error = 2 * ancho - largo;
    for (; u != fin; u += pasoU) {
        if (error > 0) {
            emite(inicio, u);
            inicio = u + pasoU;
            v += pasoV;
            error -= 2 * largo;
        }
        error += 2 * ancho;
    }
    emite(inicio, fin);
}

// Stamps the pen over the shifted pixels x1..x2 by y1..y2, cut to the surface.
void Pluma::Bloque(int x1, int y1, int x2, int y2) const
{
    const int antes = margen_ + (grueso_ - 1) / 2;
    const int despues = grueso_ / 2 - margen_;
    const int izquierda = std::max(x1 - antes, 0);
    const int derecha = std::min(x2 + despues, imagen_.ancho - 1);
    const int arriba = std::max(y1 - antes, 0);
    const int abajo = std::min(y2 + despues, imagen_.alto - 1);
    const int columnas = derecha - izquierda + 1;
    if (columnas <= 0 || arriba > abajo) return;
    std::uint32_t* fila = imagen_.pixeles + static_cast<std::ptrdiff_t>(arriba) * imagen_.paso + izquierda;
    for (int y = arriba;; ++y, fila += imagen_.paso) {
        fila[0] = color_;
        if (columnas > 1) std::fill_n(fila + 1, columnas - 1, color_);
        if (y == abajo) break;
    }
}

struct Extremos {
    double menor, mayor;
    bool finitos;
};

// Least and greatest of at least one number. Scaling by a positive factor keeps their order, so that only
// these two of a column's points need it. Two chains at a time, since each step waits for the one before.
Extremos ExtremosDe(std::span<const double> v)
{
    const std::size_t pares = v.size() / 2 * 2;
    double menor1 = v[0], menor2 = v[0], mayor1 = v[0], mayor2 = v[0], nulo1 = v.back() * 0.0, nulo2 = 0.0;
    for (std::size_t i = 0; i < pares; i += 2) {
        const double a = v[i], b = v[i + 1];
        menor1 = a < menor1 ? a : menor1;
        menor2 = b < menor2 ? b : menor2;
        mayor1 = a > mayor1 ? a : mayor1;
        mayor2 = b > mayor2 ? b : mayor2;
        nulo1 += a * 0.0;  // stays zero while all are finite
        nulo2 += b * 0.0;
    }
    return {std::min({menor1, menor2, v.back()}), std::max({mayor1, mayor2, v.back()}), nulo1 + nulo2 == 0.0};
}

// The first point from `i` on that is not in the pixel column. Blocks without a branch a point, since most of
// a column lies in them.
std::size_t FinDeColumna(std::span<const double> xs, std::size_t i, double escala, double desplazado,
                         int columna)
{
    constexpr std::size_t kBloque = 8;
    const double borde = columna, fin = borde + 1.0;
    const auto dentro = [&](std::size_t k) {
        const double x = xs[k] * escala + desplazado;
        return (x >= borde) & (x < fin);
    };
    for (; i + kBloque <= xs.size(); i += kBloque) {
        bool todos = true;
        for (std::size_t k = 0; k < kBloque; ++k)
            todos &= dentro(i + k);
        if (!todos) break;
    }
    while (i < xs.size() && dentro(i))
        ++i;
    return i;
}

/// First and last pixel of a stretch, within the picture.
struct Tramo {
    int primero = 0, ultimo = -1;
    bool Vacio() const { return primero > ultimo; }
};

/// Both ends are held to one beyond the picture before they become integers.
Tramo PixelesEntre(double a, double b, int total)
{
    return {static_cast<int>(std::clamp<double>(std::floor(std::min(a, b) + 0.5), 0.0, total)),
            static_cast<int>(std::clamp<double>(std::floor(std::max(a, b) + 0.5), -1.0, total - 1))};
}

}  // namespace

void Rellena(const Imagen32& imagen, std::uint32_t color)
{
    if (imagen.pixeles == nullptr || imagen.ancho <= 0) return;
    for (int y = 0; y < imagen.alto; ++y) {
        std::fill_n(imagen.pixeles + static_cast<std::ptrdiff_t>(y) * imagen.paso, imagen.ancho, color);
    }
}

void RellenaCajas(const Imagen32& imagen, std::span<const double> xs, double y1, double y2, double escala,
                  std::uint32_t color)
{
    if (imagen.pixeles == nullptr || imagen.ancho <= 0 || !std::isfinite(y1) || !std::isfinite(y2)) return;
    const Tramo filas = PixelesEntre(y1 * escala, y2 * escala, imagen.alto);
    const auto rellena = [&](const Tramo& t) {
        for (int y = filas.primero; y <= filas.ultimo; ++y)
            std::fill(imagen.pixeles + static_cast<std::ptrdiff_t>(y) * imagen.paso + t.primero,
                      imagen.pixeles + static_cast<std::ptrdiff_t>(y) * imagen.paso + t.ultimo + 1, color);
    };
    Tramo junto;
    for (std::size_t k = 0; k + 1 < xs.size(); k += 2) {
        if (!std::isfinite(xs[k]) || !std::isfinite(xs[k + 1])) continue;
        const Tramo t = PixelesEntre(xs[k] * escala, xs[k + 1] * escala, imagen.ancho);
        if (t.Vacio()) continue;
        if (!junto.Vacio() && t.primero >= junto.primero && t.primero <= junto.ultimo + 1) {
            junto.ultimo = std::max(junto.ultimo, t.ultimo);
            continue;
        }
        if (!junto.Vacio()) rellena(junto);
        junto = t;
    }
    if (!junto.Vacio()) rellena(junto);
}

void TrazaLinea(const Imagen32& imagen, double x1, double y1, double x2, double y2, std::uint32_t color,
                int grueso)
{
    const Pluma pluma(imagen, color, grueso);
    if (pluma.Vacia()) return;
    pluma.Segmento(pluma.Desplaza(x1, y1), pluma.Desplaza(x2, y2));
}

void TrazaPoligonal(const Imagen32& imagen, std::span<const double> xs, std::span<const double> ys,
                    double escala, std::uint32_t color, int grueso)
{
    const Pluma pluma(imagen, color, grueso);
    const std::size_t total = std::min(xs.size(), ys.size());
    if (pluma.Vacia() || total < 2) return;
    const auto punto = [&](std::size_t i) { return pluma.Desplaza(xs[i] * escala, ys[i] * escala); };

    const double desplazado = pluma.Desplaza(0.0, 0.0).x;
    Punto actual = punto(0);
    for (std::size_t i = 0;;) {
        if (pluma.ColumnaVisible(actual.x) && Pluma::Finito(actual.y)) {
            const int columna = static_cast<int>(actual.x);
            const std::size_t primero = i;
            i = FinDeColumna(xs.first(total), i + 1, escala, desplazado, columna);
            Extremos e = ExtremosDe(ys.subspan(primero, i - primero));
            if (!e.finitos || !Pluma::Finito(pluma.Desplaza(0.0, e.menor * escala).y) ||
                !Pluma::Finito(pluma.Desplaza(0.0, e.mayor * escala).y)) {
                const std::size_t fin = i;
                for (i = primero + 1; i < fin && Pluma::Finito(punto(i).y);)
                    ++i;
                e = ExtremosDe(ys.subspan(primero, i - primero));
            }
            if (i > primero + 1)
                pluma.Columna(columna, pluma.Desplaza(0.0, e.menor * escala).y,
                              pluma.Desplaza(0.0, e.mayor * escala).y);
            actual = punto(i - 1);
        } else {
            ++i;
        }
        if (i >= total) return;
        const Punto siguiente = punto(i);
        pluma.Segmento(actual, siguiente);
        actual = siguiente;
    }
}

}  // namespace veldix
