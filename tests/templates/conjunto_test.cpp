#include <gtest/gtest.h>

#include "support/soporte.h"
#include "templates/conjunto_plantilla.h"
#include "templates/plantilla.h"

namespace veldix {
namespace {

using prueba::ConFinales;

/// A template read, passed through the pages and saved: the first group without members, and the file.
std::string Pasa(const std::string& lineas, RecordStore s = {})
{
    const prueba::Carpeta carpeta;
    s.FicheroCnf = carpeta.Escribe("p.cnf", ConFinales("ver 1.1|" + lineas));
    LeerPlantilla(s);
    CierraAnalogicos(s, AbreAnalogicos(s));
    AbreDigitales(s);
    if (s.NumGruposDigPlan > 0) s.NumGruposDigPlan += 2;
    AbreDigitales(s);
    const int vacio = SumaMiembros(s);
    GrabarPlantilla(s, s.FicheroCnf);
    return std::to_string(vacio) + prueba::LeeTodo(s.FicheroCnf);
}

TEST(ConjuntoPlantilla, PagesStartFromTheWrongSourceOrHandOnOtherRows)
{
    const std::string fila = "|1%VA%%kV$", filas = fila + "|2%%L1%$", grupo = "|***|G|1|4%a$";
    // New, record open, channels and identification of the set; the analog section that is saved.
    const std::tuple<bool, bool, std::int16_t, std::string, std::string> casos[] = {
        {false, true, 1, " PLAN ", "PLAN|ANALOGICOS| 2 " + filas},
        {true, false, 1, "PLAN", ""},
        {true, true, 0, "PLAN", "PLAN|ANALOGICOS| 3 " + filas + "|3%%%$"},
        {true, true, 1, "", "REC|ANALOGICOS| 1 " + fila}};
    for (const auto& [nueva, abierto, canales, estacion, queda] : casos) {
        RecordStore s;
        s.PlantillaNueva = nueva, s.RegistroAbierto = abierto, s.NombreEstacion = "REC";
        s.NumAnalogPlan = canales, s.NumAnalog = 3;
        EXPECT_EQ(
            Pasa(estacion + "|ANALOGICOS|2|7% VA %%kV $|8%%L1%$|DIGITALES|7|1" + grupo, s),
            ConFinales("0ver 1.1|" + queda + "|DIGITALES|" + (nueva ? "7| 0 " : "1| 1 " + grupo) + "|-----"));
    }
}

TEST(ConjuntoPlantilla, DigitalGroupsComeOutOtherThanTheyWereRead)
{
    const std::string tres = " 3 |***|G1|002|4%a%b$|5%$|***|G2| 0 |***|G3|1|9%c$|-----";
    EXPECT_EQ(Pasa("X|DIGITALES|7|" + tres), ConFinales("2ver 1.1|X|DIGITALES|3|" + tres));
    std::string llenos;
    for (int i = 1; i <= 19; ++i)
        llenos += std::to_string(i) + "%d$|";
    const std::string lleno = "X|DIGITALES|19| 1 |***|G|19|" + llenos + "-----";
    EXPECT_EQ(Pasa(lleno), ConFinales("0ver 1.1|" + lleno));
    for (const auto& [digital, error] : {std::pair{"20|1|***|G|20|" + llenos + "20%d$", 9},
                                         {"1|1|***|G|2|1%a$|2%b$", 9},
                                         {"1|1|***|G|x|1%a$", 13},
                                         {"1|1|***|G|1|a%a$", 13}})
        EXPECT_EQ(prueba::NumeroDeError([&] { Pasa("X|DIGITALES|" + digital); }), error) << digital;
}

}  // namespace
}  // namespace veldix
