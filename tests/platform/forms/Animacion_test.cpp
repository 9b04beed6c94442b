#include "platform/forms/Animacion.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace veldix {
namespace {

const char* const kOnda = VELDIX_SOURCE "/runtime/VELDIX/Iconos/onda.avi";
constexpr int kCuadroMs = 84;

// A copy of the film after an edit of its bytes.
std::string Copia(const QTemporaryDir& carpeta, const std::function<void(QByteArray&)>& cambia)
{
    QFile original(QString::fromUtf8(kOnda));
    if (!original.open(QIODevice::ReadOnly)) return {};
    QByteArray bytes = original.readAll();
    cambia(bytes);
    QFile copia(carpeta.filePath(QStringLiteral("copia.avi")));
    if (!copia.open(QIODevice::WriteOnly) || copia.write(bytes) != bytes.size()) return {};
    return copia.fileName().toStdString();
}

void EstropeaCuadros(QByteArray& bytes, int cuantos)
{
    qsizetype pos = 0;
    for (int i = 0; i < cuantos; ++i) {
        pos = bytes.indexOf("\xff\xd8\xff", pos);
        if (pos < 0) return;
        bytes.replace(pos, 3, "xxx");
    }
}

TEST(Animacion, SinArchivoSanoSeEsconde)
{
    QTemporaryDir carpeta;
    const std::string rutas[] = {
        VELDIX_SOURCE "/runtime/VELDIX/Iconos/no.avi",
        Copia(carpeta, [](QByteArray& b) { b.chop(1000); }),
    };
    for (const std::string& ruta : rutas) {
        Animacion animacion;
        animacion.show();
        ASSERT_TRUE(animacion.Abre(kOnda));
        animacion.Reproduce();
        EXPECT_FALSE(animacion.Abre(ruta)) << ruta;
        EXPECT_TRUE(animacion.isHidden()) << ruta;
        EXPECT_EQ(animacion.NumeroCuadros(), 0) << ruta;
        animacion.Reproduce();
        animacion.Avanza();
        animacion.grab();
    }
}

TEST(Animacion, SaltaLosCuadrosEstropeados)
{
    QTemporaryDir carpeta;
    Animacion animacion;
    animacion.show();
    ASSERT_TRUE(animacion.Abre(Copia(carpeta, [](QByteArray& b) { EstropeaCuadros(b, 3); })));
    EXPECT_EQ(animacion.NumeroCuadros(), 21);
    EXPECT_FALSE(animacion.Abre(Copia(carpeta, [](QByteArray& b) { EstropeaCuadros(b, 24); })));
    EXPECT_TRUE(animacion.isHidden());
}

TEST(Animacion, AvanzaSinColaDeSucesos)
{
    Animacion animacion;
    ASSERT_TRUE(animacion.Abre(kOnda));
    EXPECT_EQ(animacion.NumeroCuadros(), 24);
    EXPECT_EQ(animacion.sizeHint(), QSize(160, 48));
    animacion.resize(animacion.sizeHint());
    animacion.show();
    const QImage primero = animacion.grab().toImage();

    animacion.Avanza();
    QTest::qSleep(kCuadroMs);
    animacion.Avanza();
    EXPECT_EQ(animacion.CuadroActual(), 0) << "stopped";

    animacion.Reproduce();
    QTest::qSleep(3 * kCuadroMs);
    EXPECT_EQ(animacion.CuadroActual(), 0);
    animacion.Avanza();
    EXPECT_GE(animacion.CuadroActual(), 3);
    EXPECT_NE(animacion.grab().toImage(), primero);

    animacion.Para();
    const int parado = animacion.CuadroActual();
    QTest::qWait(2 * kCuadroMs);
    EXPECT_EQ(animacion.CuadroActual(), parado);
}

TEST(Animacion, DaLaVueltaConElTemporizador)
{
    Animacion animacion;
    ASSERT_TRUE(animacion.Abre(kOnda));
    animacion.show();
    animacion.Reproduce();
    ASSERT_TRUE(QTest::qWaitFor([&] { return animacion.CuadroActual() > 2; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return animacion.CuadroActual() <= 2; })) << "no loop";
}

}  // namespace
}  // namespace veldix
