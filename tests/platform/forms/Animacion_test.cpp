#include "platform/forms/Animacion.h"

#include <QImage>
#include <QTest>

#include "support/soporte.h"

namespace veldix {
namespace {

const char* const kOnda = VELDIX_SOURCE "/runtime/VELDIX/Iconos/onda.avi";
constexpr int kCuadroMs = 84;

TEST(Animacion, SaltaLosCuadrosEstropeadosYSeEscondeSinNinguno)
{
    const prueba::Carpeta carpeta;
    Animacion animacion;
    animacion.show();
    ASSERT_TRUE(animacion.Abre(kOnda));
    animacion.Reproduce();
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

TEST(Animacion, AvanzaSinColaDeSucesosYDaLaVueltaConElTemporizador)
{
    Animacion animacion;
    ASSERT_TRUE(animacion.Abre(kOnda));
    EXPECT_EQ(animacion.sizeHint(), QSize(160, 48));
    animacion.show();
    const QImage primero = animacion.grab().toImage();
    animacion.Reproduce();
    QTest::qSleep(3 * kCuadroMs);
    animacion.Avanza();
    EXPECT_GE(animacion.CuadroActual(), 3);
    EXPECT_NE(animacion.grab().toImage(), primero);
    EXPECT_TRUE(QTest::qWaitFor([&] { return animacion.CuadroActual() < 3; })) << "no loop";

    animacion.Para();
    const int parado = animacion.CuadroActual();
    QTest::qWait(2 * kCuadroMs);
    EXPECT_EQ(animacion.CuadroActual(), parado);
}

}  // namespace
}  // namespace veldix
