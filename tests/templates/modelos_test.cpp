#include "templates/modelos.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace veldix {
namespace {

/// The databases that are installed with the program.
TEST(Modelos, AnInstalledModelIsMissingDamagedOrMadeOfOtherRows)
{
    RecordStore s;
    s.RutaPrograma = VELDIX_SOURCE "/runtime/VELDIX/EXE";
    const std::vector<std::string> nombres{"Alimentador A-51", "Distancia D-21", "Transformador T-87"};
    EXPECT_EQ(ListaModelos(s), nombres);
    const int cuentas[][2] = {{8, 39}, {24, 100}, {60, 147}};
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        LeeModeloAnalog(s, nombres[i]);
        EXPECT_EQ(s.NumAnalogPlan, cuentas[i][0]) << nombres[i];
        EXPECT_EQ(LeeModeloDigital(s, nombres[i]), cuentas[i][1]) << nombres[i];
        const auto vacio = [](const auto& texto) { return texto.empty(); };
        EXPECT_TRUE(std::none_of(s.NombreDigPlan.begin(), s.NombreDigPlan.end(), vacio));
    }
    LeeModeloAnalog(s, "Ali*");
    const FilaCanal& fila = s.CanalesPlan(6);
    EXPECT_EQ(fila.Numero + fila.Nombre + fila.Circuito + fila.Unidades, "6Tensión ABAB voltageV");
}

}  // namespace
}  // namespace veldix
