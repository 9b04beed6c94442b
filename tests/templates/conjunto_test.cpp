#include <gtest/gtest.h>

#include "support/soporte.h"
#include "templates/conjunto_plantilla.h"
#include "templates/plantilla.h"

namespace veldix {
namespace {

using prueba::ConFinales;

/// A template read, its digital page passed through and saved: the first group without members, the file.
std::string Pasa(const std::string& lineas)
{
    RecordStore s;
    const prueba::Carpeta carpeta;
    s.FicheroCnf = carpeta.Escribe("p.cnf", ConFinales("ver 1.1|" + lineas));
    LeerPlantilla(s);
    AbreDigitales(s);
    if (s.NumGruposDigPlan > 0) s.NumGruposDigPlan += 2;
    AbreDigitales(s);
    const int vacio = SumaMiembros(s);
    GrabarPlantilla(s, s.FicheroCnf);
    return std::to_string(vacio) + prueba::LeeTodo(s.FicheroCnf);
}

TEST(ConjuntoPlantilla, TheAnalogPageStartsFromTheWrongSource)
{
    // New, record open, model loaded, channels and identification of the set; what the page shows.
    const std::tuple<bool, bool, bool, std::int16_t, std::string, std::string> casos[] = {
        {false, true, true, 1, " PLAN ", "2 PLAN "},
        {true, false, false, 1, "PLAN", "0"},
        {true, true, false, 0, "PLAN", "3PLAN"},
        {true, true, false, 1, "", "1REC"},
        {true, false, true, 5, "RELE", "5RELE"}};
    for (const auto& [nueva, abierto, modelo, canales, estacion, muestra] : casos) {
        RecordStore s;
        s.PlantillaNueva = nueva, s.RegistroAbierto = abierto, s.ModeloCargado = modelo;
        s.NumAnalogPlan = canales, s.NumAnalog = 3, s.NumCanalPlan = 2;
        s.EstacionPlan = estacion, s.NombreEstacion = "REC";
        const PaginaAnalogica pagina = AbreAnalogicos(s);
        EXPECT_EQ(std::to_string(pagina.Cuenta) + pagina.Identificacion, muestra);
    }
}

TEST(ConjuntoPlantilla, DigitalGroupsComeOutOtherThanTheyWereRead)
{
    const std::string tres = " 3 |***|G1|002|4%a%b$|5%$|***|G2| 0 |***|G3|1|9%c$|-----";
    EXPECT_EQ(Pasa("X|DIGITALES|7|" + tres), ConFinales("2ver 1.1|X|DIGITALES|2|" + tres));
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
