#include "platform/raster.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace veldix {
namespace {

constexpr std::uint32_t kTinta = 0xff40c080U;
constexpr double kInf = HUGE_VAL, kNan = NAN, kMax = 1.7e308;

/// A surface among spare pixels that no drawing may touch.
class Tela {
public:
    Tela(int ancho, int alto)
        : imagen{nullptr, ancho, alto, ancho + 2 * kBorde},
          datos_(static_cast<std::size_t>(imagen.paso * (alto + 2 * kBorde)))
    {
        imagen.pixeles = datos_.data() + kBorde * imagen.paso + kBorde;
    }

    /// Rows joined by '/', '#' for ink.
    std::string Dibujo() const
    {
        std::string texto;
        int fuera = 0;
        for (const std::uint32_t punto : datos_)
            fuera += punto == kTinta;
        for (int y = 0; y < imagen.alto; ++y) {
            if (y > 0) texto += '/';
            for (int x = 0; x < imagen.ancho; ++x)
                texto += imagen.pixeles[y * imagen.paso + x] == kTinta ? '#' : '.';
        }
        EXPECT_EQ(fuera, std::count(texto.begin(), texto.end(), '#')) << "drawn outside";
        return texto;
    }

    Imagen32 imagen;

private:
    static constexpr int kBorde = 4;
    std::vector<std::uint32_t> datos_;
};

TEST(Raster, ALineCoversTheExpectedPixels)
{
    const struct {
        double x1, y1, x2, y2;
        int grueso;
        const char* dibujo;
    } casos[] = {
        {4, 2, 1, 2, 1, "....../....../.####./......"},
        {0, 0, 2, 1, 1, "##..../..#.../....../......"},
        {0, 3, 5, 1, 1, "....../....##/..##../##...."},
        {0.49, 0.5, 0.5, -0.5, 1, ".#..../#...../....../......"},
        // Thicker pens grow evenly, the odd pixel to the right and below.
        {2, 1, 2, 1, 2, "....../..##../..##../......"},
        {2, 1, 2, 1, 3, ".###../.###../.###../......"},
        {6, 5, 6, 4, 3, "....../....../....../.....#"},
        // From far outside, through the surface and out again.
        {4, -kMax, 4, kMax, 1, "....#./....#./....#./....#."},
        {-999998, -1000000, 1000002, 1000000, 1, "..#.../...#../....#./.....#"},
        {-kMax, -2, kMax, 4, 1, "....../######/....../......"},
        // Near the surface or nowhere, but never on it.
        {-6, 3, 3, -6, 1, "....../....../....../......"},
        {6, 0, 6, 3, 1, "....../....../....../......"},
        {1, 1, kNan, 2, 1, "....../....../....../......"},
        {1, -kInf, 1, 2, 1, "....../....../....../......"},
    };
    for (const auto& c : casos) {
        Tela tela(6, 4);
        TrazaLinea(tela.imagen, c.x1, c.y1, c.x2, c.y2, kTinta, c.grueso);
        EXPECT_EQ(tela.Dibujo(), c.dibujo)
            << c.x1 << ',' << c.y1 << " - " << c.x2 << ',' << c.y2 << " x " << c.grueso;
    }
    const struct {
        double x1, y1, x2, y2;
        const char* dibujo;
    } cajas[] = {{1.4, 2.0, 3.5, 0.5, "....../.####./.####./......"},
                 {4, 1, 4, 1, "....../....#./....../......"},
                 {-kMax, 2.6, 0.4, kMax, "....../....../....../#....."},
                 {6, 0, 9, 3, "....../....../....../......"},
                 {-5, 0, -0.6, 3, "....../....../....../......"},
                 {0, 0, kNan, 3, "....../....../....../......"}};
    for (const auto& c : cajas) {
        Tela tela(6, 4);
        RellenaCajas(tela.imagen, std::array{c.x1, c.x2}, c.y1, c.y2, 1.0, kTinta);
        EXPECT_EQ(tela.Dibujo(), c.dibujo) << c.x1 << ',' << c.y1 << " - " << c.x2 << ',' << c.y2;
    }
    // Boxes that touch, overlap, stand apart, go back, cannot be drawn, and an end without its box.
    const double xs[] = {0, 1, 2, 3, 2, 2, 7, 8, 5, 5, kNan, 9, -4, -2, 11, 30, 9};
    Tela fila(12, 1);
    RellenaCajas(fila.imagen, xs, 0, 0, 1.0, kTinta);
    EXPECT_EQ(fila.Dibujo(), "####.#.##..#");
    Tela llena(3, 2);
    Rellena(llena.imagen, kTinta);
    EXPECT_EQ(llena.Dibujo(), "###/###");
}

TEST(Raster, APolylineHasThePixelsOfItsSegmentsDrawnOneByOne)
{
    // Spikes, gaps and leaps of every size.
    const double raros[] = {1e30, -1e9, kMax, -kMax, kNan, kInf, -kInf, -0.5, 0.5, -1.5};
    const std::pair<int, int> medidas[] = {{1, 1}, {2, 3}, {7, 1}, {1, 9}, {40, 25}, {150, 60}};
    const double pasos[] = {0.002, 0.025, -0.025, 0.3, -1.0, 4.0}, escalas[] = {1.0, 1.0 / 15, 1.25 / 15};
    std::mt19937 azar(20240611);
    const auto entre = [&azar](double a, double b) { return std::uniform_real_distribution(a, b)(azar); };
    for (unsigned caso = 0; caso < 1000; ++caso) {
        const auto [ancho, alto] = medidas[caso % 6];
        const double paso = pasos[azar() % 6], escala = escalas[azar() % 3];
        const int grueso = static_cast<int>(1 + azar() % 3);
        std::vector<double> xs, ys;
        double x = ancho * entre(-0.2, 1.2);
        for (int i = 0; i < 600; ++i) {
            x += paso * entre(-0.5, 2.5);
            const double y = alto * entre(-0.3, 1.3);
            xs.push_back((azar() % 16 == 0 ? std::round(x) - 0.5 : x) / escala);
            ys.push_back((azar() % 8 == 0 ? std::round(y) + 0.5 : y) / escala);
            if (azar() % 24 == 0) (azar() % 2 ? xs : ys).back() = raros[azar() % std::size(raros)] / escala;
            if (azar() % 64 == 0) x = ancho * entre(-0.2, 1.2);
        }
        Tela junta(ancho, alto), suelta(ancho, alto);
        TrazaPoligonal(junta.imagen, xs, ys, escala, kTinta, grueso);
        for (std::size_t i = 1; i < xs.size(); ++i)
            TrazaLinea(suelta.imagen, xs[i - 1] * escala, ys[i - 1] * escala, xs[i] * escala, ys[i] * escala,
                       kTinta, grueso);
        ASSERT_EQ(junta.Dibujo(), suelta.Dibujo()) << paso << ' ' << escala << ' ' << grueso;
    }
}

}  // namespace
}  // namespace veldix
