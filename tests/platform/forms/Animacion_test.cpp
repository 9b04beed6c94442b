#include "platform/forms/Animacion.h"

#include <QTest>

#include "support/soporte.h"

namespace veldix {
namespace {

const char* const kOnda = VELDIX_SOURCE "/runtime/VELDIX/Iconos/onda.avi";
constexpr int kCuadroMs = 84;

TEST(Animacion, ADamagedFrameIsShownOrAFilmOfNoneStays)
{
    const prueba::Carpeta carpeta;
    Animacion animacion;
    animacion.show();
    for (const int malos : {3, 24}) {
        std::string octetos = prueba::LeeTodo(kOnda);
        for (int i = 0; i < malos; ++i)
            octetos.replace(octetos.find("\xff\xd8\xff"), 3, "xxx");
        EXPECT_EQ(animacion.Abre(carpeta.Escribe("copia.avi", octetos)), malos < 24);
        EXPECT_EQ(animacion.NumeroCuadros(), 24 - malos);
        EXPECT_EQ(animacion.isHidden(), malos == 24);
    }
    animacion.Reproduce();
    animacion.Avanza();
    animacion.grab();
}

TEST(Animacion, AFilmStandsStillWhileTheProgramWorksOrEndsAfterOneTurn)
{
    Animacion animacion;
    ASSERT_TRUE(animacion.Abre(kOnda));
    animacion.show();
    animacion.Reproduce();
    QTest::qSleep(3 * kCuadroMs);
    animacion.Avanza();
    EXPECT_GE(animacion.CuadroActual(), 3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return animacion.CuadroActual() < 3; })) << "no loop";
}

}  // namespace
}  // namespace veldix
