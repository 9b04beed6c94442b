#include "waves/bandas.h"

#include <array>

#include "support/soporte.h"
#include "waves/plot.h"
#include "waves/zoom_cursores.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;

/// Channels of the given units whose samples reach `cimas`, both ways of the sign.
RecordStore Registro(const std::vector<std::string>& unidades, const std::vector<float>& cimas)
{
    RecordStore s;
    s.NumAnalog = s.NumCanalAnalog = static_cast<std::int16_t>(unidades.size());
    s.Canales = Tabla1<FilaCanal>(s.NumAnalog);
    s.OndaCanal = Tabla1<std::int16_t>(s.NumAnalog);
    s.Muestras = Tabla2<float>(2, s.NumAnalog);
    for (int c = 1; c <= s.NumAnalog; ++c) {
        s.Canales(c) = {std::to_string(c), "", "", unidades[static_cast<std::size_t>(c - 1)]};
        s.OndaCanal(c) = 1;
        s.Muestras(2, c) = cimas[static_cast<std::size_t>(c - 1)];
    }
    return s;
}

TEST(Bandas, AmperesAndVoltsShareAScaleAndOthersHaveTheirOwn)
{
    RecordStore s = Registro({"A", " V ", "kA", "a", "A"}, {50.0F, -400.0F, 8.0F, 2.0F, 0.0F});
    s.OndaCanal(5) = 0;
    std::swap(s.Canales(3).Numero, s.Canales(4).Numero);  // the scale is that of the curve's column
    const Bandas b = ColocaBandas(s, CanalesMarcados(s), 6000.0F);
    EXPECT_EQ(b.canales, (std::vector<int>{1, 2, 3, 4}));
    const float util = (1501.0F - 3002.0F / 50.0F) / 2.0F;
    const std::array<float, 4> mayores{400.0F, 400.0F, 2.0F, 8.0F};
    for (std::size_t k = 0; k < 4; ++k)
        EXPECT_FLOAT_EQ(b.escalas[k], util / mayores[k]) << k;
    RecordStore nula = Registro({"A"}, {0.0F});
    EXPECT_FLOAT_EQ(ColocaBandas(nula, {1}, 6000.0F).escalas[0], 0.96F);
}

TEST(Bandas, ZeroLinesStandInTheMiddleOfBandsATwipTooHigh)
{
    const struct {
        int bandas;
        float primera, ultima;
    } casos[] = {{1, 3000.5F, 3000.5F}, {2, 1500.5F, 4501.5F}, {3, 1000.5F, 5002.5F}, {8, 375.5F, 5632.5F}};
    for (const auto& c : casos) {
        const auto n = static_cast<std::size_t>(c.bandas);
        RecordStore s = Registro(std::vector<std::string>(n, "A"), std::vector<float>(n, 1.0F));
        const Bandas b = ColocaBandas(s, CanalesMarcados(s), 6000.0F);
        EXPECT_EQ(b.Cero(1), c.primera);
        EXPECT_EQ(b.Cero(c.bandas), c.ultima);
    }
}

/// A plot of 10150 twips and a record of 1000 samples: each act tells the stretch, the cursor's scale and the
/// curve's, and the level of those stored.
TEST(ZoomCursores, BranchesGoToTheEndAndRowsKeepTheirOwnScale)
{
    ZoomCursores z(150.0F);
    const FilaZoom registro = z.Reinicia(10150.0F, 1000);
    EXPECT_EQ(registro.EscalaX, 10.0F);
    const auto amplia = [&](float c1, float c2) {
        z.ZoomPendiente = true;
        const auto f = z.Calcula(c1, c2, 10150.0F);
        if (f) z.Guarda(*f);
        return f.value_or(FilaZoom{});
    };
    const auto pasa = [&](int paso) {
        z.Mueve(paso);
        return z.Calcula(7.0F, 7.0F, 9999.0F).value_or(FilaZoom{});
    };
    const auto es = [](const FilaZoom& f, float s, float e, float cursor, float curva) {
        return f.s == s && f.e == e && f.MuestraInicial == s && f.Ancho == 10150.0F && f.EscalaX == cursor &&
               std::abs(EscalaTramo(f.Ancho, f.s, f.e) - curva) < 1e-5F;
    };
    EXPECT_TRUE(es(amplia(401, 201), 201, 401, 50, 50.25F));
    EXPECT_TRUE(es(amplia(251, 301), 251, 301, 200, 201));
    EXPECT_TRUE(es(pasa(-1), 201, 401, 50, 50.25F));
    EXPECT_TRUE(es(pasa(-1), 1, 1000, 10, 10.0600601F) && !z.HayAtras() && z.HayAdelante());
    EXPECT_TRUE(es(amplia(11, 12), 11, 12, 10000, 10050) && z.NivelZoom == 3 && !z.HayAdelante());
    EXPECT_TRUE(es(pasa(-1), 251, 301, 200, 201));
    z.ZoomPendiente = true;
    EXPECT_FALSE(z.Calcula(5.0F, 5.0F, 10150.0F).has_value());
    for (int nivel = 4; nivel <= 30; ++nivel)
        amplia(1, 2);
    EXPECT_EQ(NumeroDeError([&] { amplia(1, 2); }), error::kSubindice);
}

}  // namespace
}  // namespace veldix
