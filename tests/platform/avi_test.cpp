#include "platform/avi.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace veldix {
namespace {

std::string Enteros(std::initializer_list<std::uint32_t> valores)
{
    std::string octetos;
    for (const std::uint32_t v : valores)
        for (int i = 0; i < 4; ++i)
            octetos += static_cast<char>(v >> 8 * i);
    return octetos;
}

std::string Trozo(const std::string& sigla, const std::string& datos)
{
    return sigla + Enteros({static_cast<std::uint32_t>(datos.size())}) + datos +
           std::string(datos.size() % 2, '?');
}

struct Receta {
    std::string clase = "vids", codec = "MJPG", antes = "", cola = std::string(20, '0');
    std::string movi = Trozo("00dc", "abc") + Trozo("00db", "de");
    std::uint32_t ancho = 6, alto = 4, escala = 2, ritmo = 25, microsegundos = 50000;

    std::string Hace() const
    {
        const std::string strh = clase + codec + Enteros({0, 0, 0, escala, ritmo});
        const std::string strf = Enteros({40, ancho, alto, 0}) + codec + cola;
        const std::string strl = "strl" + Trozo("strh", strh) + Trozo("strf", strf);
        const std::string avih = Trozo("avih", Enteros({microsegundos}));
        return Trozo("RIFF", "AVI " + Trozo("LIST", "hdrl" + avih + antes + Trozo("LIST", strl)) +
                                 Trozo("LIST", "movi" + movi) + Trozo("idx1", "0000"));
    }
};

/// Size, time of a frame and frames of a film, nothing where it is refused.
std::string Lee(const std::string& octetos)
{
    // A copy of the exact size, so that a sanitizer sees any read behind it.
    const auto pelicula = InterpretaAvi(std::vector<std::uint8_t>(octetos.begin(), octetos.end()));
    if (!pelicula) return "";
    std::ostringstream r;
    r << pelicula->ancho << 'x' << pelicula->alto << ' ' << pelicula->milisegundosPorCuadro;
    for (const auto& cuadro : pelicula->cuadros)
        r << ' ' << std::string(cuadro.begin(), cuadro.end());
    return r.str();
}

TEST(Avi, IsReadOrRefusedWhole)
{
    const std::string nada = Trozo("00dc", ""), uno = Trozo("00dc", "a"), dos = Trozo("01dc", "b");
    const std::string audio = Trozo("LIST", "strl" + Trozo("strh", "auds" + std::string(24, '0')));
    const std::string lista = Trozo("LIST", "rec " + uno);
    std::string honda = lista;
    for (int i = 0; i < 1000; ++i)
        honda = Trozo("LIST", "rec " + honda);
    const std::pair<const char*, Receta> casos[] = {
        {"6x4 80 abc de", {}},
        {"6x4 80 abc de", {.alto = 0xfffffffc}},  // stored from the top down
        {"6x4 50 abc de", {.ritmo = 0}},
        {"6x4 80 a a", {.movi = lista + Trozo("JUNK", "999") + lista}},
        {"6x4 80 a ", {.movi = nada + dos + uno + nada}},  // an empty frame repeats the one before
        {"6x4 80 b", {.antes = audio, .movi = uno + dos}},
        {"", {.clase = "auds"}},
        {"", {.antes = Trozo("LIST", "strl" + Trozo("strh", "auds")), .movi = dos}},
        {"", {.cola = ""}},
        {"", {.codec = "DIVX"}},
        {"", {.movi = nada}},
        {"", {.movi = honda}},
        {"", {.movi = uno + Trozo("LIST", "12")}},
        {"", {.ancho = 16385}},
        {"", {.alto = 0x80000000}},
        {"", {.escala = 0, .microsegundos = 0}},
        {"", {.escala = 0xffffffff, .ritmo = 1}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Lee(c.second.Hace()), c.first) << "case " << &c - casos;
}

}  // namespace
}  // namespace veldix
