#include "platform/rutas.h"

#include "support/soporte.h"

namespace veldix {
namespace {

TEST(Rutas, IconsAreSoughtElsewhereThanBesideTheLastFolderOfPrograms)
{
    const prueba::Carpeta carpeta;
    std::filesystem::create_directories(carpeta.Ruta("exequiel/VELDIX/iconos"));
    carpeta.Escribe("exequiel/VELDIX/iconos/Onda.AVI", "");
    const struct {
        const char* programa;
        const char* hallado;
    } casos[] = {
        {"exequiel/VELDIX/EXE", "exequiel/VELDIX/iconos/Onda.AVI"},
        {"exequiel/VELDIX/exe", "exequiel/VELDIX/iconos/Onda.AVI"},
        {"exequiel/VELDIX/EXE/otra", "exequiel/VELDIX/iconos/Onda.AVI"},
        {"otro/miEXE", "otro/miIconos/onda.avi"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(RutaIconos(carpeta.Ruta(caso.programa), "onda.avi"), carpeta.Ruta(caso.hallado));
    EXPECT_EQ(RutaIconos("/opt/veldix/bin", "onda.avi"), "");
}

TEST(Rutas, ModelsAreSoughtElsewhereThanBesideTheProgramFolders)
{
    const prueba::Carpeta c;
    std::filesystem::create_directories(c.Ruta("MODELS"));
    c.Escribe("MODELS/modelos.MDB", "");
    EXPECT_EQ(RutaModelos(c.Ruta("VELDIX/EXE"), "Modelos.mdb"), c.Ruta("MODELS/modelos.MDB"));
    EXPECT_EQ(RutaModelos("/opt/otra/EXE", "x"), "/opModels/x");
}

}  // namespace
}  // namespace veldix
