#include "platform/avi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>

namespace veldix {
namespace {

using Octetos = std::vector<std::uint8_t>;

Octetos operator+(Octetos a, const Octetos& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Octetos Letras(const std::string& s)
{
    return {s.begin(), s.end()};
}

Octetos Enteros(std::initializer_list<std::uint32_t> valores)
{
    Octetos bytes;
    for (const std::uint32_t v : valores) {
        for (int i = 0; i < 4; ++i)
            bytes.push_back(static_cast<std::uint8_t>(v >> 8 * i));
    }
    return bytes;
}

Octetos Trozo(const std::string& sigla, const Octetos& datos)
{
    const Octetos relleno(datos.size() % 2, 0xEE);
    return Letras(sigla) + Enteros({static_cast<std::uint32_t>(datos.size())}) + datos + relleno;
}

Octetos Lista(const std::string& tipo, const Octetos& datos)
{
    return Trozo("LIST", Letras(tipo) + datos);
}

struct Receta {
    std::string riff = "RIFF", forma = "AVI ", clase = "vids", codec = "MJPG";
    std::uint32_t ancho = 6, alto = 4, escala = 2, ritmo = 25, microsegundos = 50000;
    Octetos antes;  // of the video stream in the header
    Octetos movi = Trozo("00dc", {1, 2, 3}) + Trozo("00dc", {4, 5});
    bool moviPrimero = false;

    Octetos Hace() const
    {
        const Octetos strh = Letras(clase + codec) + Enteros({0, 0, 0, escala, ritmo});
        const Octetos strf = Enteros({40, ancho, alto, 0}) + Letras(codec) + Enteros({0, 0, 0, 0, 0});
        const Octetos hdrl = Lista("hdrl", Trozo("avih", Enteros({microsegundos})) + antes +
                                               Lista("strl", Trozo("strh", strh) + Trozo("strf", strf)));
        const Octetos listaMovi = Lista("movi", movi);
        return Trozo(riff, Letras(forma) + (moviPrimero ? listaMovi + hdrl : hdrl + listaMovi) +
                               Trozo("idx1", Enteros({0})));
    }
};

std::optional<PeliculaAvi> LeeReceta(const std::function<void(Receta&)>& cambia)
{
    Receta receta;
    cambia(receta);
    return InterpretaAvi(receta.Hace());
}

void PonEntero(Octetos& bytes, std::size_t pos, std::uint32_t valor)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes[pos + i] = static_cast<std::uint8_t>(valor >> 8 * i);
}

// Where the size of the first chunk of that name stands.
std::size_t PosTamano(const Octetos& bytes, const std::string& sigla)
{
    const auto pos = std::search(bytes.begin(), bytes.end(), sigla.begin(), sigla.end());
    return static_cast<std::size_t>(pos - bytes.begin()) + 4;
}

TEST(Avi, LeeCabeceraYCuadros)
{
    const auto pelicula = InterpretaAvi(Receta().Hace());
    ASSERT_TRUE(pelicula);
    EXPECT_DOUBLE_EQ(pelicula->milisegundosPorCuadro, 80);
    EXPECT_EQ(pelicula->ancho, 6);
    EXPECT_EQ(pelicula->alto, 4);
    EXPECT_EQ(pelicula->cuadros, (std::vector<Octetos>{{1, 2, 3}, {4, 5}}));
}

TEST(Avi, FormasDeGuardarLosCuadros)
{
    const Octetos audio = Lista("strl", Trozo("strh", Letras("auds") + Octetos(24, 0)));
    const struct {
        const char* caso;
        Octetos antes, movi;
        std::vector<Octetos> cuadros;
    } casos[] = {
        {"nested lists",
         {},
         Lista("rec ", Trozo("00dc", {1})) + Lista("rec ", Trozo("00db", {2})),
         {{1}, {2}}},
        {"other chunks", {}, Trozo("JUNK", {9, 9, 9}) + Trozo("ix00", {8}) + Trozo("00dc", {1}), {{1}}},
        {"sound first", audio, Trozo("00dc", {7}) + Trozo("00wb", {8}) + Trozo("01dc", {1}), {{1}}},
        {"repeated", {}, Trozo("00dc", {}) + Trozo("00dc", {1}) + Trozo("00dc", {}), {{1}, {}}},
    };
    for (const auto& c : casos) {
        const auto pelicula = LeeReceta([&](Receta& r) { r.antes = c.antes, r.movi = c.movi; });
        ASSERT_TRUE(pelicula) << c.caso;
        EXPECT_EQ(pelicula->cuadros, c.cuadros) << c.caso;
    }
}

TEST(Avi, TiempoDeCuadroYAltura)
{
    const auto sinRitmo = LeeReceta([](Receta& r) { r.ritmo = 0; });
    ASSERT_TRUE(sinRitmo);
    EXPECT_DOUBLE_EQ(sinRitmo->milisegundosPorCuadro, 50);
    const auto invertida = LeeReceta([](Receta& r) { r.alto = static_cast<std::uint32_t>(-4); });
    ASSERT_TRUE(invertida);
    EXPECT_EQ(invertida->alto, 4);
}

TEST(Avi, RechazaOtrosArchivos)
{
    const struct {
        const char* caso;
        std::function<void(Receta&)> cambia;
    } casos[] = {
        {"magic", [](Receta& r) { r.riff = "RIFX"; }},
        {"form", [](Receta& r) { r.forma = "WAVE"; }},
        {"no video", [](Receta& r) { r.clase = "auds"; }},
        {"codec", [](Receta& r) { r.codec = "DIVX"; }},
        {"no width", [](Receta& r) { r.ancho = 0; }},
        {"wide", [](Receta& r) { r.ancho = 16385; }},
        {"lowest height", [](Receta& r) { r.alto = 0x80000000u; }},
        {"no time", [](Receta& r) { r.escala = r.microsegundos = 0; }},
        {"endless frame", [](Receta& r) { r.escala = 0xffffffff, r.ritmo = 1; }},
        {"no frames", [](Receta& r) { r.movi = Trozo("JUNK", {1}); }},
        {"frames before header", [](Receta& r) { r.moviPrimero = true; }},
        {"unnamed list",
         [](Receta& r) {
             r.movi = r.movi + Trozo("LIST", {1, 2});
         }},
        {"deep lists",
         [](Receta& r) {
             for (int i = 0; i < 1000; ++i)
                 r.movi = Lista("rec ", r.movi);
         }},
        {"too many frames",
         [](Receta& r) {
             r.movi = Trozo("00dc", {1});
             for (int i = 0; i < 65536; ++i)
                 r.movi.insert(r.movi.end(), {'0', '0', 'd', 'c', 0, 0, 0, 0});
         }},
    };
    for (const auto& c : casos)
        EXPECT_FALSE(LeeReceta(c.cambia)) << c.caso;
}

TEST(Avi, TruncadoEnCualquierLongitud)
{
    const Octetos entero = Receta().Hace();
    ASSERT_TRUE(InterpretaAvi(entero));
    for (std::size_t n = 0; n < entero.size(); ++n) {
        // A copy of the exact size, so that a sanitizer sees any read behind it.
        Octetos corto(entero.begin(), entero.begin() + static_cast<std::ptrdiff_t>(n));
        EXPECT_FALSE(InterpretaAvi(corto)) << n;
        if (n < 8) continue;
        PonEntero(corto, 4, static_cast<std::uint32_t>(n - 8));
        const auto pelicula = InterpretaAvi(corto);
        EXPECT_TRUE(!pelicula || pelicula->cuadros.size() == 2) << n;
    }
    EXPECT_TRUE(InterpretaAvi(entero + Octetos{1, 2, 3}));
}

TEST(Avi, TamanosQueSeSalen)
{
    for (const char* sigla : {"RIFF", "LIST", "avih", "strh", "strf", "00dc", "idx1"}) {
        for (const std::uint32_t tamano : {0x7fffffffu, 0xfffffff8u, 0xffffffffu}) {
            Octetos bytes = Receta().Hace();
            PonEntero(bytes, PosTamano(bytes, sigla), tamano);
            EXPECT_FALSE(InterpretaAvi(bytes)) << sigla << ' ' << tamano;
        }
    }
    // A header too short for what it must hold.
    for (const char* sigla : {"avih", "strh", "strf"}) {
        Octetos bytes = Receta().Hace();
        PonEntero(bytes, PosTamano(bytes, sigla), 0);
        EXPECT_FALSE(InterpretaAvi(bytes)) << sigla;
    }
}

TEST(Avi, ArchivoDelPrograma)
{
    const auto pelicula = LeeAvi(VELDIX_SOURCE "/runtime/VELDIX/Iconos/onda.avi");
    ASSERT_TRUE(pelicula);
    EXPECT_NEAR(pelicula->milisegundosPorCuadro, 1000.0 / 12, 1e-9);
    EXPECT_EQ(pelicula->ancho, 320);
    EXPECT_EQ(pelicula->alto, 96);
    EXPECT_EQ(pelicula->cuadros.size(), 24u);
    for (const auto& cuadro : pelicula->cuadros) {
        ASSERT_GT(cuadro.size(), 4u);
        EXPECT_EQ(cuadro[0] << 8 | cuadro[1], 0xffd8);
    }
    EXPECT_FALSE(LeeAvi(VELDIX_SOURCE "/runtime/VELDIX/Iconos"));
    EXPECT_FALSE(LeeAvi(VELDIX_SOURCE "/runtime/VELDIX/Iconos/no.avi"));
}

}  // namespace
}  // namespace veldix
