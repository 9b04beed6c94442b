#include "platform/raster.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace veldix {
namespace {

constexpr std::uint32_t kFondo = 0xff000000U;
constexpr std::uint32_t kTinta = 0xff40c080U;
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kMax = std::numeric_limits<double>::max();

// A surface with spare pixels around each row and before and after all of them, to catch stray writes.
class Tela {
public:
    Tela(int ancho, int alto)
        : ancho_(ancho),
          alto_(alto),
          paso_(ancho + 2 * kBorde),
          datos_(static_cast<std::size_t>(paso_) * (alto + 2 * kBorde), kFondo)
    {
    }

    Imagen32 Imagen() { return {datos_.data() + kBorde * paso_ + kBorde, ancho_, alto_, paso_}; }
    const std::vector<std::uint32_t>& Datos() const { return datos_; }

    // Rows joined by '/', '#' for ink, borders included when something is drawn there.
    std::string Dibujo() const
    {
        std::string texto;
        for (int y = 0; y < alto_; ++y) {
            if (y > 0) texto += '/';
            for (int x = 0; x < ancho_; ++x)
                texto += Tinta(x, y) ? '#' : '.';
        }
        return BordeLimpio() ? texto : texto + " and outside";
    }

    bool BordeLimpio() const
    {
        for (int y = -kBorde; y < alto_ + kBorde; ++y) {
            for (int x = -kBorde; x < ancho_ + kBorde; ++x) {
                const bool dentro = x >= 0 && x < ancho_ && y >= 0 && y < alto_;
                if (!dentro && Tinta(x, y)) return false;
            }
        }
        return true;
    }

private:
    static constexpr int kBorde = 4;
    bool Tinta(int x, int y) const { return datos_[(y + kBorde) * paso_ + x + kBorde] != kFondo; }

    int ancho_;
    int alto_;
    int paso_;
    std::vector<std::uint32_t> datos_;
};

TEST(Raster, ALineCoversTheExpectedPixels)
{
    const struct {
        double x1, y1, x2, y2;
        int grueso;
        const char* dibujo;
    } casos[] = {
        {2, 1, 2, 1, 1, "....../..#.../....../......"},
        {1, 2, 4, 2, 1, "....../....../.####./......"},
        {4, 2, 1, 2, 1, "....../....../.####./......"},
        {3, 3, 3, 1, 1, "....../...#../...#../...#.."},
        {0, 0, 3, 3, 1, "#...../.#..../..#.../...#.."},
        {0, 0, 2, 1, 1, "##..../..#.../....../......"},
        {0, 3, 5, 1, 1, "....../....##/..##../##...."},
        {0.49, 0.5, 0.5, -0.5, 1, ".#..../#...../....../......"},
        // Thicker pens grow evenly, the odd pixel to the right and below.
        {2, 1, 2, 1, 2, "....../..##../..##../......"},
        {2, 1, 2, 1, 3, ".###../.###../.###../......"},
        {2, 1, 2, 1, 0, "....../..#.../....../......"},
        {-1, 1, -1, 1, 3, "#...../#...../#...../......"},
        {6, 5, 6, 4, 3, "....../....../....../.....#"},
        // From far outside, through the surface and out again.
        {-1e30, 1, 1e30, 1, 1, "....../######/....../......"},
        {4, -kMax, 4, kMax, 1, "....#./....#./....#./....#."},
        {-100, -100, 100, 100, 1, "#...../.#..../..#.../...#.."},
        {1000003, -1000000, -999997, 1000000, 1, "...#../..#.../.#..../#....."},
        {-999998, -1000000, 1000002, 1000000, 1, "..#.../...#../....#./.....#"},
        {-kMax, -2, kMax, 4, 1, "....../######/....../......"},
        {-1e9, -1e9, 1e9, 1e9, 1, "#...../.#..../..#.../...#.."},
        {3, 2, kMax, 2, 1, "....../....../...###/......"},
        // Near the surface, but never on it.
        {-1, -1, -1, 9, 1, "....../....../....../......"},
        {6, 0, 6, 3, 1, "....../....../....../......"},
        {-6, 3, 3, -6, 1, "....../....../....../......"},
        {kMax, -kMax, kMax, kMax, 1, "....../....../....../......"},
    };
    for (const auto& c : casos) {
        Tela tela(6, 4);
        TrazaLinea(tela.Imagen(), c.x1, c.y1, c.x2, c.y2, kTinta, c.grueso);
        EXPECT_EQ(tela.Dibujo(), c.dibujo)
            << c.x1 << ',' << c.y1 << " - " << c.x2 << ',' << c.y2 << " x " << c.grueso;
    }
}

TEST(Raster, ALineWithAnEndThatIsNotFiniteDrawsNothing)
{
    for (const double malo : {kNan, kInf, -kInf}) {
        for (int cual = 0; cual < 4; ++cual) {
            double c[4] = {1, 1, 1, 2};
            c[cual] = malo;
            Tela tela(4, 4);
            TrazaLinea(tela.Imagen(), c[0], c[1], c[2], c[3], kTinta);
            EXPECT_EQ(tela.Dibujo(), "..../..../..../....") << malo << " at " << cual;
        }
    }
}

TEST(Raster, SurfacesWithoutPixelsAreLeftAlone)
{
    std::uint32_t pixel = kFondo;
    const std::vector<double> puntos{-5, 0, 5};
    for (const Imagen32& imagen : {Imagen32{}, Imagen32{nullptr, 4, 4, 4}, Imagen32{&pixel, 0, 1, 1},
                                   Imagen32{&pixel, 1, 0, 1}, Imagen32{&pixel, -3, -3, 1}}) {
        Rellena(imagen, kTinta);
        TrazaLinea(imagen, -5, 0, 5, 0, kTinta);
        TrazaPoligonal(imagen, puntos, puntos, 1.0, kTinta);
        EXPECT_EQ(pixel, kFondo);
    }
}

TEST(Raster, FillingStaysWithinTheSurface)
{
    Tela tela(3, 2);
    Rellena(tela.Imagen(), kTinta);
    EXPECT_EQ(tela.Dibujo(), "###/###");
}

TEST(Raster, APolylineNeedsTwoPointsAndStopsAtTheShorterArray)
{
    const std::vector<double> xs{15, 15, 60, 60};
    const std::vector<double> ys{15, 30};
    Tela solo(5, 3);
    TrazaPoligonal(solo.Imagen(), std::span(xs).first(1), ys, 1.0 / 15, kTinta);
    EXPECT_EQ(solo.Dibujo(), "...../...../.....");
    Tela dos(5, 3);
    TrazaPoligonal(dos.Imagen(), xs, ys, 1.0 / 15, kTinta);
    EXPECT_EQ(dos.Dibujo(), "...../.#.../.#...");
}

TEST(Raster, AGapInAPolylineBreaksItOnBothSides)
{
    const std::vector<double> xs{0, 1, 2, 3, 4};
    for (const double malo : {kNan, kInf, -kInf}) {
        Tela tela(5, 1);
        TrazaPoligonal(tela.Imagen(), xs, std::vector<double>{0, 0, malo, 0, 0}, 1.0, kTinta);
        EXPECT_EQ(tela.Dibujo(), "##.##");
        Tela columna(1, 5);
        TrazaPoligonal(columna.Imagen(), std::vector<double>(5, 0.0), std::vector<double>{0, 1, malo, 3, 4},
                       1.0, kTinta);
        EXPECT_EQ(columna.Dibujo(), "#/#/./#/#");
    }
}

struct Curva {
    std::vector<double> xs;
    std::vector<double> ys;
};

using Azar = std::mt19937;

double Entre(Azar& azar, double menor, double mayor)
{
    return std::uniform_real_distribution<double>(menor, mayor)(azar);
}

// Steps of `paso` pixels on average (backwards when negative), with spikes, gaps, repeated points and
// leaps of every size.
Curva CurvaAlAzar(Azar& azar, int ancho, int alto, double paso, double escala, bool salvaje)
{
    const double raros[] = {1e30, -1e30, kMax, -kMax, kNan, kInf, -kInf, -0.5, 0.5, -1.5, 1e9, -1e9};
    Curva curva;
    double x = paso < 0 ? ancho + 3.0 : -3.0;
    for (int i = 0; i < 600; ++i) {
        x += paso * Entre(azar, -0.5, 2.5);
        double y = alto * Entre(azar, -0.3, 1.3);
        if (azar() % 8 == 0) y = std::round(y) + 0.5;
        double esteX = azar() % 16 == 0 ? std::round(x) - 0.5 : x;
        if (salvaje && azar() % 24 == 0) y = raros[azar() % std::size(raros)];
        if (salvaje && azar() % 48 == 0) esteX = raros[azar() % std::size(raros)];
        if (salvaje && azar() % 48 == 0) x = ancho * Entre(azar, -0.2, 1.2);
        curva.xs.push_back(esteX / escala);
        curva.ys.push_back(y / escala);
        if (azar() % 32 == 0) {
            curva.xs.push_back(curva.xs.back());
            curva.ys.push_back(curva.ys.back());
        }
    }
    return curva;
}

TEST(Raster, APolylineHasThePixelsOfItsSegmentsDrawnOneByOne)
{
    Azar azar(20240611);
    const struct {
        int ancho, alto;
    } medidas[] = {{1, 1}, {2, 3}, {7, 1}, {1, 9}, {40, 25}, {150, 60}};
    for (const auto& m : medidas) {
        for (const double paso : {0.002, 0.025, -0.025, 0.3, -1.0, 4.0}) {
            for (const double escala : {1.0, 1.0 / 15, 2.0 / 15, 1.25 / 15}) {
                for (int caso = 0; caso < 6; ++caso) {
                    const int grueso = caso % 3 + 1;
                    const bool salvaje = caso >= 3;
                    const Curva c = CurvaAlAzar(azar, m.ancho, m.alto, paso, escala, salvaje);
                    Tela junta(m.ancho, m.alto);
                    TrazaPoligonal(junta.Imagen(), c.xs, c.ys, escala, kTinta, grueso);
                    Tela suelta(m.ancho, m.alto);
                    for (std::size_t i = 0; i + 1 < c.xs.size(); ++i) {
                        TrazaLinea(suelta.Imagen(), c.xs[i] * escala, c.ys[i] * escala, c.xs[i + 1] * escala,
                                   c.ys[i + 1] * escala, kTinta, grueso);
                    }
                    ASSERT_TRUE(junta.Datos() == suelta.Datos())
                        << m.ancho << 'x' << m.alto << " step " << paso << " scale " << escala << " pen "
                        << grueso << " wild " << salvaje << '\n'
                        << junta.Dibujo() << '\n'
                        << suelta.Dibujo();
                    ASSERT_TRUE(junta.BordeLimpio());
                }
            }
        }
    }
}

}  // namespace
}  // namespace veldix
