#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "platform/raster.h"

namespace {

constexpr int kAncho = 1280;
constexpr int kAlto = 400;
constexpr int kCurvas = 8;
constexpr int kPuntos = 32767;
constexpr double kEscala = 1.0 / 15;
constexpr QRgb kColor = qRgb(0, 160, 0);

struct Escena {
    std::array<std::vector<double>, kCurvas> xs;
    std::array<std::vector<double>, kCurvas> ys;
    std::array<QPolygonF, kCurvas> poligonos;
};

// A power-frequency wave with harmonics and a fault in the middle, one band of the image per curve.
const Escena& LaEscena()
{
    static const Escena escena = [] {
        Escena e;
        for (int c = 0; c < kCurvas; ++c) {
            for (int i = 0; i < kPuntos; ++i) {
                const double t = static_cast<double>(i) / kPuntos;
                const double fase = 2 * std::numbers::pi * (60 * t + c / 3.0);
                const double amplitud = t > 0.4 && t < 0.6 ? 1.0 : 0.4;
                const double onda = amplitud * (std::sin(fase) + 0.1 * std::sin(7 * fase));
                const double x = t * kAncho / kEscala;
                const double y = (kAlto * (c + 0.5) / kCurvas + onda * kAlto / (2.2 * kCurvas)) / kEscala;
                e.xs[c].push_back(x);
                e.ys[c].push_back(y);
                e.poligonos[c] << QPointF(x * kEscala, y * kEscala);
            }
        }
        return e;
    }();
    return escena;
}

// The best time of a redraw of the whole scene, in seconds: what the ratios at the end are taken of.
struct Mejor {
    double poligonal = 1e9;
    double lineas = 1e9;
    double pintor = 1e9;
};
Mejor mejor;

veldix::Imagen32 Vista(QImage& imagen)
{
    return {reinterpret_cast<std::uint32_t*>(imagen.bits()), imagen.width(), imagen.height(),
            static_cast<int>(imagen.bytesPerLine() / 4)};
}

template <typename Curva>
void Mide(benchmark::State& estado, double& record, Curva&& curva)
{
    const Escena& escena = LaEscena();
    QImage imagen(kAncho, kAlto, QImage::Format_RGB32);
    imagen.fill(Qt::black);
    for (auto _ : estado) {
        const auto inicio = std::chrono::steady_clock::now();
        for (int c = 0; c < kCurvas; ++c)
            curva(imagen, escena, c);
        benchmark::ClobberMemory();
        const std::chrono::duration<double> pasado = std::chrono::steady_clock::now() - inicio;
        record = std::min(record, pasado.count());
    }
    estado.SetItemsProcessed(estado.iterations() * kCurvas * kPuntos);
}

void Poligonal(benchmark::State& estado)
{
    Mide(estado, mejor.poligonal, [](QImage& imagen, const Escena& e, int c) {
        veldix::TrazaPoligonal(Vista(imagen), e.xs[c], e.ys[c], kEscala, kColor);
    });
}
BENCHMARK(Poligonal)->Unit(benchmark::kMillisecond);

void LineaALinea(benchmark::State& estado)
{
    Mide(estado, mejor.lineas, [](QImage& imagen, const Escena& e, int c) {
        const veldix::Imagen32 vista = Vista(imagen);
        const std::vector<double>& xs = e.xs[c];
        const std::vector<double>& ys = e.ys[c];
        for (int i = 0; i + 1 < kPuntos; ++i) {
            veldix::TrazaLinea(vista, xs[i] * kEscala, ys[i] * kEscala, xs[i + 1] * kEscala,
                               ys[i + 1] * kEscala, kColor);
        }
    });
}
BENCHMARK(LineaALinea)->Unit(benchmark::kMillisecond);

void PintorDeQt(benchmark::State& estado)
{
    Mide(estado, mejor.pintor, [](QImage& imagen, const Escena& e, int c) {
        QPainter pintor(&imagen);
        pintor.setPen(QColor(kColor));
        pintor.drawPolyline(e.poligonos[c]);
    });
}
BENCHMARK(PintorDeQt)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::printf("polyline %.3f ms; to single lines %.3f; to QPainter %.3f\n", mejor.poligonal * 1e3,
                mejor.poligonal / mejor.lineas, mejor.poligonal / mejor.pintor);
    return 0;
}
