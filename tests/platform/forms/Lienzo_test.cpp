#include "platform/forms/Lienzo.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

namespace veldix {
namespace {

constexpr QRgb kFondo = qRgb(10, 20, 30);
constexpr QRgb kTinta = qRgb(200, 100, 0);

void Asienta()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

class Pintados : public QObject {
public:
    int veces = 0, area = 0;

    bool eventFilter(QObject*, QEvent* evento) override
    {
        if (evento->type() != QEvent::Paint) return false;
        ++veces;
        for (const QRect& r : static_cast<QPaintEvent*>(evento)->region())
            area += r.width() * r.height();
        return false;
    }
};

TEST(Pantalla, TwipsBecomeTheNearestPixelAndSaturate)
{
    const std::pair<double, int> casos[] = {
        {7.4, 0}, {7.5, 1}, {-7.5, 0}, {-7.6, -1}, {1e30, INT_MAX}, {-HUGE_VAL, INT_MIN}, {NAN, 0}};
    for (const auto& [twips, pixeles] : casos)
        EXPECT_EQ(APixeles(twips), pixeles) << twips;
}

TEST(Lienzo, DrawsInTwipsOnThePictureAndTheScreen)
{
    Lienzo lienzo;
    lienzo.resize(40, 20);
    lienzo.Limpia(kFondo);
    lienzo.Linea(-300, 75, 1e30, 75, kTinta);
    lienzo.Poligonal(std::vector<double>{150, 150, 300}, std::vector<double>{105, 285, 285}, kTinta);
    lienzo.show();
    Asienta();
    for (const QImage& imagen : {lienzo.Imagen(), lienzo.grab().toImage()}) {
        for (int i = 0; i < 800; ++i) {
            const int x = i % 40, y = i / 40;
            const bool tinta = y == 5 || (x == 10 && y >= 7) || (y == 19 && x >= 10 && x <= 20);
            ASSERT_EQ(imagen.pixel(x, y), tinta ? kTinta : kFondo) << x << ',' << y;
        }
    }
}

TEST(Lienzo, AChangeOfSizeClearsToTheLastBackgroundAndAsksForTheDrawing)
{
    Lienzo lienzo;
    const QSignalSpy pedidos(&lienzo, &Lienzo::PideDibujo);
    lienzo.resize(30, 30);
    lienzo.Limpia(kFondo);
    lienzo.Linea(0, 0, 450, 450, kTinta);
    lienzo.show();
    Asienta();
    EXPECT_EQ(pedidos.count(), 0) << "what was drawn before showing is still there";
    lienzo.resize(50, 25);
    EXPECT_EQ(pedidos.count(), 1);
    EXPECT_EQ(lienzo.Imagen().pixel(4, 4), kFondo);
    EXPECT_EQ(lienzo.Imagen().pixel(49, 24), kFondo);

    // While hidden the loss is noticed by the drawing, and told on the next showing.
    lienzo.hide();
    lienzo.resize(60, 25);
    lienzo.Linea(0, 0, 0, 0, kTinta);
    lienzo.show();
    Asienta();
    EXPECT_EQ(pedidos.count(), 2);
    lienzo.resize(0, 0);
    lienzo.Limpia(kFondo);
    lienzo.Linea(0, 0, 15, 15, kTinta);
}

TEST(LineaSobre, MovesWithoutPaintingThePictureAgain)
{
    Lienzo lienzo;
    lienzo.resize(200, 100);
    LineaSobre* linea = lienzo.CreaLinea(kTinta, "cursor");
    linea->Pon(300, 0, 300, 1485);
    lienzo.Limpia(kFondo);
    lienzo.show();
    linea->show();
    Asienta();
    EXPECT_EQ(lienzo.grab().toImage().pixel(20, 50), kTinta);

    Pintados pintados;
    lienzo.installEventFilter(&pintados);
    linea->Pon(1500, 0, 1500, 1485);
    Asienta();
    EXPECT_GT(pintados.veces, 0);
    EXPECT_LE(pintados.area, 2 * 100) << "more than the strips it leaves";
    const QImage despues = lienzo.grab().toImage();
    EXPECT_EQ(despues.pixel(20, 50), kFondo);
    EXPECT_EQ(despues.pixel(100, 50), kTinta);

    pintados.veces = 0;
    for (int i = 0; i < 50; ++i)
        lienzo.Linea(0, ATwips(i), 735, ATwips(i), kTinta);
    Asienta();
    EXPECT_EQ(pintados.veces, 1) << "lines are painted at once";
}

TEST(Lienzo, OnlyTheLeftButtonIsToldAndADragMayLeaveTheCanvas)
{
    Lienzo lienzo;
    lienzo.resize(40, 40);
    QSignalSpy baja(&lienzo, &Lienzo::RatonBaja), mueve(&lienzo, &Lienzo::RatonMueve),
        sube(&lienzo, &Lienzo::RatonSube);
    for (const Qt::MouseButton boton : {Qt::RightButton, Qt::LeftButton}) {
        QTest::mouseMove(&lienzo, {3, 3});
        QTest::mousePress(&lienzo, boton, {}, {10, 20});
        QTest::mouseMove(&lienzo, {-2, 12});
        QTest::mouseRelease(&lienzo, boton, {}, {100, 90});
    }
    EXPECT_EQ(baja + mueve + sube, QList<QVariantList>({{150.0, 300.0}, {-30.0, 180.0}, {1500.0, 1350.0}}));
}

}  // namespace
}  // namespace veldix
