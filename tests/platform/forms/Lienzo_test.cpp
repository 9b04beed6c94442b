#include "platform/forms/Lienzo.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QtMath>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace veldix {
namespace {

constexpr QRgb kFondo = qRgb(10, 20, 30);
constexpr QRgb kTinta = qRgb(200, 100, 0);

// Colour at a logical pixel: its upper left device pixel.
QRgb ColorEn(const QImage& imagen, int x, int y)
{
    const double razon = imagen.devicePixelRatio();
    return imagen.pixel(qRound(x * razon), qRound(y * razon));
}

void Asienta()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

class Pintados : public QObject {
public:
    explicit Pintados(QWidget* widget) { widget->installEventFilter(this); }
    QRegion region;
    int veces = 0;

    bool eventFilter(QObject*, QEvent* evento) override
    {
        if (evento->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(evento)->region();
            ++veces;
        }
        return false;
    }
};

TEST(Pantalla, TwipsBecomeTheNearestPixelAndSaturate)
{
    constexpr int menor = std::numeric_limits<int>::min();
    constexpr int mayor = std::numeric_limits<int>::max();
    const double inf = std::numeric_limits<double>::infinity();
    const struct {
        double twips;
        int pixeles;
    } casos[] = {{0, 0},
                 {7.4, 0},
                 {7.5, 1},
                 {-7.5, 0},
                 {-7.6, -1},
                 {22.5, 2},
                 {1e30, mayor},
                 {-1e30, menor},
                 {inf, mayor},
                 {-inf, menor},
                 {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& c : casos)
        EXPECT_EQ(APixeles(c.twips), c.pixeles) << c.twips;
    for (const int p : {-4000, 0, 1, 4000})
        EXPECT_EQ(APixeles(ATwips(p)), p);
}

TEST(Lienzo, DrawsInTwipsOnThePictureAndTheScreen)
{
    Lienzo lienzo;
    if (lienzo.devicePixelRatioF() != qRound(lienzo.devicePixelRatioF())) {
        GTEST_SKIP() << "logical pixels share device pixels";
    }
    lienzo.resize(40, 20);
    lienzo.Limpia(kFondo);
    lienzo.Linea(-300, 75, 1e30, 75, kTinta);
    const std::vector<double> xs{150, 150, 300};
    const std::vector<double> ys{105, 285, 285};
    lienzo.Poligonal(xs, ys, kTinta);
    EXPECT_EQ(lienzo.Ancho(), 600);
    EXPECT_EQ(lienzo.Alto(), 300);

    lienzo.show();
    Asienta();
    for (const QImage& imagen : {lienzo.Imagen(), lienzo.grab().toImage()}) {
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 40; ++x) {
                const bool tinta = y == 5 || (x == 10 && y >= 7) || (y == 19 && x >= 10 && x <= 20);
                ASSERT_EQ(ColorEn(imagen, x, y), tinta ? kTinta : kFondo) << x << ',' << y;
            }
        }
    }
}

TEST(Lienzo, AChangeOfSizeClearsToTheLastBackgroundAndAsksForTheDrawing)
{
    Lienzo lienzo;
    int pedidos = 0;
    QObject::connect(&lienzo, &Lienzo::PideDibujo, &lienzo, [&] { ++pedidos; });
    lienzo.resize(30, 30);
    lienzo.Limpia(kFondo);
    lienzo.Linea(0, 0, 450, 450, kTinta);
    lienzo.show();
    Asienta();
    EXPECT_EQ(pedidos, 0) << "what was drawn before showing is still there";
    EXPECT_EQ(ColorEn(lienzo.Imagen(), 4, 4), kTinta);

    lienzo.resize(50, 25);
    EXPECT_EQ(pedidos, 1);
    const double razon = lienzo.devicePixelRatioF();
    EXPECT_EQ(lienzo.Imagen().size(), QSize(qCeil(50 * razon), qCeil(25 * razon)));
    EXPECT_EQ(ColorEn(lienzo.Imagen(), 4, 4), kFondo);
    EXPECT_EQ(ColorEn(lienzo.Imagen(), 49, 24), kFondo);

    // While hidden the loss is noticed by the drawing, and told on the next showing.
    lienzo.hide();
    lienzo.resize(60, 25);
    lienzo.Linea(0, 0, 0, 0, kTinta);
    lienzo.show();
    Asienta();
    EXPECT_EQ(pedidos, 2);

    lienzo.resize(0, 0);
    lienzo.Limpia(kFondo);
    lienzo.Linea(0, 0, 15, 15, kTinta);
}

TEST(Lienzo, TheRecorderKeepsOperationsInOrderUntilItIsTakenAway)
{
    Lienzo lienzo;
    std::vector<OperacionLienzo> visto;
    lienzo.PonGrabadora(&visto);
    lienzo.Limpia(kFondo);
    lienzo.Linea(1, 2, 3, 4, kTinta);
    const std::vector<double> xs{5, 6, 7};
    const std::vector<double> ys{8, 9, 10};
    lienzo.Poligonal(xs, ys, kTinta);
    lienzo.PonGrabadora(nullptr);
    lienzo.Limpia(kFondo);

    ASSERT_EQ(visto.size(), 3U);
    EXPECT_EQ(visto[0].tipo, OperacionLienzo::Tipo::Limpia);
    EXPECT_EQ(visto[0].color, kFondo);
    EXPECT_TRUE(visto[0].xs.empty());
    EXPECT_EQ(visto[1].tipo, OperacionLienzo::Tipo::Linea);
    EXPECT_EQ(visto[1].xs, (std::vector<double>{1, 3}));
    EXPECT_EQ(visto[1].ys, (std::vector<double>{2, 4}));
    EXPECT_EQ(visto[2].tipo, OperacionLienzo::Tipo::Poligonal);
    EXPECT_EQ(visto[2].xs, xs);
    EXPECT_EQ(visto[2].ys, ys);
    EXPECT_EQ(visto[2].color, kTinta);
}

TEST(LineaSobre, LiesOnThePixelsOfALineOfThePicture)
{
    Lienzo lienzo;
    lienzo.resize(40, 40);
    LineaSobre* linea = lienzo.CreaLinea(kTinta, "cursor");
    EXPECT_EQ(lienzo.findChild<LineaSobre*>("cursor"), linea);
    const struct {
        double x1, y1, x2, y2;
        QRect esperado;
    } casos[] = {
        {150, 0, 150, 585, {10, 0, 1, 40}}, {157.5, 585, 157.5, 0, {11, 0, 1, 40}},
        {0, 30, 300, 30, {0, 2, 21, 1}},    {-45, 30, 15, 30, {-3, 2, 5, 1}},
        {60, 60, 60, 60, {4, 4, 1, 1}},
    };
    for (const auto& c : casos) {
        linea->Pon(c.x1, c.y1, c.x2, c.y2);
        EXPECT_EQ(linea->geometry(), c.esperado) << c.x1 << ',' << c.y1 << ',' << c.x2 << ',' << c.y2;
    }
    linea->Pon(150, -1e30, 150, 1e30);
    EXPECT_TRUE(linea->geometry().contains(QRect(10, 0, 1, 40)));
    EXPECT_EQ(linea->width(), 1);
}

TEST(LineaSobre, MovingItPaintsOnlyTheStripsItLeavesAndLeavesThePictureAsItWas)
{
    Lienzo lienzo;
    lienzo.resize(200, 100);
    lienzo.Limpia(kFondo);
    LineaSobre* linea = lienzo.CreaLinea(kTinta, "cursor");
    linea->Pon(300, 0, 300, 1485);
    lienzo.show();
    Asienta();
    EXPECT_EQ(ColorEn(lienzo.grab().toImage(), 20, 50), kFondo) << "hidden at first";
    linea->setVisible(true);
    Asienta();
    const QImage antes = lienzo.Imagen();
    EXPECT_EQ(ColorEn(lienzo.grab().toImage(), 20, 50), kTinta);

    Pintados pintados(&lienzo);
    linea->Pon(1500, 0, 1500, 1485);
    Asienta();
    EXPECT_GT(pintados.veces, 0);
    int area = 0;
    for (const QRect& r : pintados.region)
        area += r.width() * r.height();
    EXPECT_LE(area, 2 * 100);
    EXPECT_EQ(lienzo.Imagen(), antes);
    const QImage despues = lienzo.grab().toImage();
    EXPECT_EQ(ColorEn(despues, 20, 50), kFondo);
    EXPECT_EQ(ColorEn(despues, 100, 50), kTinta);
}

TEST(Lienzo, ManyLinesArePaintedOnTheScreenAtOnce)
{
    Lienzo lienzo;
    lienzo.resize(50, 50);
    lienzo.show();
    Asienta();
    Pintados pintados(&lienzo);
    for (int i = 0; i < 50; ++i)
        lienzo.Linea(0, ATwips(i), 735, ATwips(i), kTinta);
    Asienta();
    EXPECT_EQ(pintados.veces, 1);
}

TEST(Lienzo, OnlyTheLeftButtonIsToldAndADragMayLeaveTheCanvas)
{
    Lienzo lienzo;
    lienzo.resize(40, 40);
    lienzo.CreaLinea(kTinta, "cursor")->Pon(150, 0, 150, 585);
    QStringList visto;
    const auto anota = [&](const char* que) {
        return [&visto, que](double x, double y) { visto << QString("%1 %2 %3").arg(que).arg(x).arg(y); };
    };
    QObject::connect(&lienzo, &Lienzo::RatonBaja, &lienzo, anota("baja"));
    QObject::connect(&lienzo, &Lienzo::RatonMueve, &lienzo, anota("mueve"));
    QObject::connect(&lienzo, &Lienzo::RatonSube, &lienzo, anota("sube"));
    const auto manda = [&](QEvent::Type tipo, QPointF en, Qt::MouseButton boton, Qt::MouseButtons abajo) {
        QMouseEvent evento(tipo, en, lienzo.mapToGlobal(en), boton, abajo, Qt::NoModifier);
        QCoreApplication::sendEvent(&lienzo, &evento);
    };
    manda(QEvent::MouseMove, {3, 3}, Qt::NoButton, Qt::NoButton);
    manda(QEvent::MouseButtonPress, {3, 3}, Qt::RightButton, Qt::RightButton);
    manda(QEvent::MouseMove, {4, 4}, Qt::NoButton, Qt::RightButton);
    manda(QEvent::MouseButtonRelease, {4, 4}, Qt::RightButton, Qt::NoButton);
    EXPECT_EQ(visto, QStringList());

    manda(QEvent::MouseButtonPress, {10, 20}, Qt::LeftButton, Qt::LeftButton);
    manda(QEvent::MouseMove, {-2, 12.5}, Qt::NoButton, Qt::LeftButton);
    manda(QEvent::MouseButtonRelease, {100, 90}, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(visto, QStringList({"baja 150 300", "mueve -30 187.5", "sube 1500 1350"}));
}

}  // namespace
}  // namespace veldix
