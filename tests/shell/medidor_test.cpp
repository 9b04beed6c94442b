#include "shell/medidor.h"

#include <gtest/gtest.h>

#include "platform/errores.h"

namespace veldix {
namespace {

struct Llamada {
    bool relativo;
    std::int16_t valor;
    std::int16_t posicion;       // afterwards
    std::string rotulo;          // of every step
    std::vector<double> anchos;  // on a track of 1000
};

void Comprueba(const std::vector<Llamada>& llamadas)
{
    Medidor m;
    for (std::size_t i = 0; i < llamadas.size(); ++i) {
        SCOPED_TRACE("call " + std::to_string(i));
        const Llamada& c = llamadas[i];
        const DibujoMedidor d = m.Llena(c.relativo, c.valor, 1000);
        EXPECT_EQ(m.Posicion, c.posicion);
        EXPECT_EQ(d.reinicia, c.valor == 0);
        std::vector<double> anchos;
        for (const auto& paso : d.pasos) {
            EXPECT_EQ(paso.rotulo, c.rotulo);
            anchos.push_back(paso.ancho);
        }
        EXPECT_EQ(anchos, c.anchos);
    }
}

TEST(Medidor, LasLlamadasSeguidasDibujanSusPasos)
{
    struct Caso {
        const char* nombre;
        std::vector<Llamada> llamadas;
    };
    const std::vector<Caso> casos{
        {"an opening",
         {{false, 0, 0, "", {}},
          {true, 5, 5, "5 %", {0, 10, 20, 30, 40, 50}},
          {true, 1, 6, "6 %", {50, 60}}}},
        {"absolute draws its end alone", {{false, 40, 40, "40 %", {400}}, {false, 20, 20, "20 %", {200}}}},
        {"zero resets in both modes",
         {{false, 40, 40, "40 %", {400}},
          {true, 0, 0, "", {}},
          {false, 40, 40, "40 %", {400}},
          {false, 0, 0, "", {}},
          {true, 1, 1, "1 %", {0, 10}}}},
        {"relative past 100",
         {{false, 98, 98, "98 %", {980}},
          {true, 3, 98, "", {}},
          {true, 2, 100, "100 %", {980, 990, 1000}},
          {true, 1, 100, "", {}}}},
        {"absolute above 100",
         {{false, 150, 150, "", {}},
          {true, 1, 150, "", {}},
          {true, -60, 90, "", {}},
          {true, 1, 91, "91 %", {900, 910}}}},
        {"negative",
         {{false, 30, 30, "30 %", {300}},
          {true, -10, 20, "", {}},
          {false, -1, -1, "-1 %", {-10}},
          {true, 2, 1, "1 %", {-10, 0, 10}}}},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Comprueba(caso.llamadas);
    }
}

TEST(Medidor, ElDestinoSaleDeDieciseisBits)
{
    Medidor m;
    m.Llena(false, 32767, 1000);
    try {
        m.Llena(true, 1, 1000);
        FAIL();
    } catch (const ErrorEjecucion& e) {
        EXPECT_EQ(e.numero, error::kDesbordamiento);
    }
}

}  // namespace
}  // namespace veldix
