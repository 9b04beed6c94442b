#include <QBuffer>
#include <QEventLoop>
#include <QPdfWriter>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/forms/BarraCursor.h"
#include "platform/forms/EtiquetaLineas.h"
#include "platform/forms/EtiquetasCorridas.h"
#include "platform/forms/ImpresoraPdf.h"
#include "platform/forms/ImpresoraQt.h"
#include "platform/forms/disposicion.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/formulario.h"
#include "platform/pagina.h"
#include "support/soporte.h"

namespace veldix {
namespace {

TEST(BarraCursor, AHeldArrowLetsGoWhileABoxStandsOverItsStep)
{
    BarraCursor barra("HScroll1", "Cursor 1", nullptr);
    barra.setRange(1, 1000);
    barra.resize(300, 20);
    barra.show();
    int pasos = 0;
    QObject::connect(&barra, &QScrollBar::valueChanged, &barra, [&] {
        if (++pasos != 1) return;
        QEventLoop caja;  // the box, which swallows the release of the button
        QTimer::singleShot(900, &caja, &QEventLoop::quit);
        caja.exec();
    });
    QTest::mousePress(&barra, Qt::LeftButton, {}, QPoint(295, 10));
    EXPECT_EQ(pasos, 1);
    QTest::qWait(300);
    EXPECT_EQ(pasos, 1);
    EXPECT_EQ(barra.value(), 2);
    QTest::mouseClick(&barra, Qt::LeftButton, {}, QPoint(295, 10));
    EXPECT_EQ(barra.value(), 3);
}

TEST(BarraCursor, ArrowAndPageKeysRunAgainstEachOther)
{
    BarraCursor barra("HScroll1", "Cursor 1", nullptr);
    barra.setRange(1, 1000);
    for (const auto& [tecla, valor] : {std::pair{Qt::Key_Right, 101},
                                       {Qt::Key_Down, 101},
                                       {Qt::Key_Left, 99},
                                       {Qt::Key_Up, 99},
                                       {Qt::Key_PageDown, 110},
                                       {Qt::Key_PageUp, 90}}) {
        barra.setValue(100);
        QTest::keyClick(&barra, tecla);
        EXPECT_EQ(barra.value(), valor) << tecla;
    }
}

TEST(EtiquetaLineas, ATextTooLongLosesItsValueOrTheBeginningIsNeverSeen)
{
    Formulario marco(nullptr);
    auto* etiqueta = new EtiquetaLineas(&marco, "lblet1");
    BarraCursor barra("HScroll_Nombres", "", &marco);
    EtiquetasCorridas e({etiqueta}, &barra, &marco);
    const QFontMetrics letra(marco.font());
    const auto lugar = [&](int lineas) {
        return QSize(letra.horizontalAdvance("-1234567,875 kA"), lineas * letra.height());
    };
    const QString valor = "-1234567,875 kA";
    for (const char* nombre :
         {"I:", "SUBESTACION NORTE:", "SUBESTACION NORTE LINEA 1 TENSION FASE A DE BARRAS:"})
        for (int lineas = 1; lineas <= 4; ++lineas) {
            const QStringList fin = LineasVisibles(nombre + (" " + valor), marco.font(), lugar(lineas), true);
            ASSERT_LE(fin.size(), lineas);
            EXPECT_TRUE(fin.join(" ").contains("234567,875 kA")) << nombre << lineas << U(fin.join("/"));
            const QStringList principio =
                LineasVisibles(nombre + (" " + valor), marco.font(), lugar(lineas), false);
            EXPECT_TRUE(principio.join(' ').startsWith(QString(nombre).left(8))) << nombre << lineas;
        }
    for (const char* unidades : {"kA ", " kA", "kA rms", ""}) {
        const QString texto = QString("LINEA 1 TENSION FASE A: -1234567,875 ") + unidades;
        const QSize una(letra.horizontalAdvance("-1234567,875 kA"), letra.height());
        EXPECT_TRUE(LineasVisibles(texto, marco.font(), una, true).join("").contains("-1234567,8"))
            << '"' << unidades << '"';
    }
    etiqueta->resize(lugar(2));
    e.Pon(1, "SUBESTACION NORTE LINEA 1 TENSION FASE A: 1,000 kA");
    e.Recoge(1, true);
    EXPECT_TRUE(etiqueta->alignment().testFlag(Qt::AlignBottom));
    QTest::mouseClick(etiqueta, Qt::LeftButton);
    EXPECT_TRUE(etiqueta->alignment().testFlag(Qt::AlignTop)) << "a click shows the name";
    e.Pon(1, "SUBESTACION NORTE LINEA 1 TENSION FASE A: 2,000 kA");
    EXPECT_TRUE(etiqueta->alignment().testFlag(Qt::AlignBottom)) << "a step shows the value";
}

TEST(Disposicion, AFormTooTallForItsScreenLosesItsFocusOrStopsOnNothing)
{
    Formulario form(nullptr);
    auto* todo = new QVBoxLayout(&form);
    QPushButton* botones[] = {new QPushButton(&form), new QPushButton(&form)};
    for (QPushButton* boton : botones) {
        boton->setMinimumHeight(form.screen()->availableSize().height());
        todo->addWidget(boton);
    }
    botones[1]->setFocus();
    ASSERT_TRUE(CabeEnPantalla(form));
    EXPECT_EQ(form.focusWidget(), botones[1]);
    for (QWidget* w = botones[1]->nextInFocusChain(); w != botones[1]; w = w->nextInFocusChain())
        EXPECT_EQ((w->focusPolicy() & Qt::TabFocus) != 0, w == botones[0]) << w->metaObject()->className();
    EXPECT_LT(form.height(), form.screen()->availableSize().height());
}

TEST(Etiquetas, FiguresAreCutThoughTheyCouldBeCondensed)
{
    QLabel etiqueta;
    for (const char* texto : {"-6353,830 A", "18180,244 A", "0.000 ms", "-1234567,875 kA"})
        for (int parte = 65; parte <= 100; parte += 5) {
            etiqueta.setFont({});
            etiqueta.resize(QFontMetrics(etiqueta.font()).horizontalAdvance(texto) * parte / 100, 20);
            PonTexto(&etiqueta, texto);
            EXPECT_LE(QFontMetrics(etiqueta.font()).horizontalAdvance(texto), etiqueta.width())
                << texto << parte;
        }
}

TEST(EtiquetasCorridas, TextsAreCutByCharactersAndTheRangeOnlyGrows)
{
    Formulario marco(nullptr);
    auto *una = new QLabel(&marco), *otra = new QLabel(&marco);
    BarraCursor barra("HScroll_Nombres", "", &marco);
    EtiquetasCorridas e({una, otra}, &barra, &marco);
    e.Pon(1, "Tensión 3€");
    e.Pon(2, "b");
    e.Recoge(2, true);
    EXPECT_EQ(barra.maximum(), 10);
    barra.setValue(6);
    EXPECT_EQ(una->text(), QString::fromUtf8("n 3€"));
    EXPECT_EQ(otra->text(), "");
    QTest::mousePress(una, Qt::LeftButton);
    QTest::mouseRelease(una, Qt::LeftButton, {}, QPoint(-5, 1));
    EXPECT_EQ(una->text(), QString::fromUtf8("n 3€"));  // let go elsewhere
    QTest::mouseClick(una, Qt::LeftButton);
    EXPECT_EQ(una->text(), QString::fromUtf8("Tensión 3€"));
    e.Pon(1, "corto");
    e.Recoge(1, true);
    EXPECT_EQ(barra.maximum(), 10);
    e.Recoge(1, false);
    EXPECT_TRUE(barra.maximum() == 5 && una->text() == "corto");
    barra.setValue(0);
    EXPECT_TRUE(una->text() == "corto" && otra->text() == "b");
    EXPECT_EQ(prueba::NumeroDeError([&] { e.Pon(3, ""); }), error::kSubindice);
    e.PonEntero(2, "<b>x");
    EXPECT_EQ(otra->toolTip(), "<qt>&lt;b&gt;x</qt>") << "a name that the toolkit reads as its mark-up";
}

/// The first stream of what a writer has put behind the octet `desde`: what is drawn on the page.
QByteArray Trazos(const QByteArray& datos, qsizetype desde)
{
    desde = datos.indexOf("stream\n", desde) + 7;
    QByteArray trozo = datos.mid(desde, datos.indexOf("endstream", desde) - desde);
    trozo.prepend(QByteArray::fromHex("00FFFFFF"));  // the size that qUncompress wants, unknown
    return qUncompress(trozo).simplified();
}

TEST(ImpresoraPdf, ATextHasTheColourOfTheDocumentBefore)
{
    const auto texto = [](bool roja) {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        QPdfWriter escritor(&pdf);
        ImpresoraQt impresora(escritor, ModoColor::Color);
        if (roja) {
            impresora.Linea(0.0, 0.0, 1000.0, 1000.0, 0xFF0000);
            impresora.Termina();
        }
        const qsizetype desde = pdf.data().size();
        impresora.Texto("header");
        impresora.Termina();
        return Trazos(pdf.data(), desde);
    };
    const QByteArray solo = texto(false);
    EXPECT_GT(solo.size(), 20);
    EXPECT_EQ(texto(true), solo);
}

/// The points of a curve zoomed as deep as the history goes, and the number of its last one on the page.
TEST(ImpresoraPdf, ACurveFarOffThePageBreaksTheFile)
{
    const auto altos = [](double lejos) {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        QPdfWriter escritor(&pdf);
        escritor.setResolution(1200);
        ImpresoraQt impresora(escritor, ModoColor::Color);
        const double xs[] = {1000.0, 2000.0, 3000.0, 4000.0}, ys[] = {5000.0, lejos, -lejos, 5000.0};
        impresora.PonRecorte(0.0, 0.0, 10000.0, 10000.0);
        impresora.Poligonal(xs, ys, 0);
        impresora.Termina();
        const QList<QByteArray> palabras = Trazos(pdf.data(), 0).split(' ');
        double mayor = 0.0;
        for (const QByteArray& palabra : palabras)
            mayor = std::max(mayor, std::abs(palabra.toDouble()));
        return std::pair{mayor, palabras.count("l")};
    };
    const auto [mayor, lineas] = altos(1e12);
    EXPECT_LT(mayor, 2e6);
    EXPECT_EQ(lineas, altos(9000.0).second);
}

/// A sheet whose lower edge cannot be printed on, A4 in mm.
TEST(ImpresoraPdf, TheFrameOfATurnedPageLeavesThePaper)
{
    for (const QMarginsF& margenes : {QMarginsF(4.2, 4.2, 4.2, 12.7), QMarginsF(6.4, 4.2, 6.4, 14.0)}) {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        QPdfWriter escritor(&pdf);
        escritor.setPageLayout(
            {QPageSize(QPageSize::A4), QPageLayout::Portrait, margenes, QPageLayout::Millimeter, margenes});
        ImpresoraQt impresora(escritor, ModoColor::Color);
        for (const Orientacion o :
             {Orientacion::Horizontal, Orientacion::Vertical, Orientacion::Horizontal}) {
            impresora.PonSentido(o);
            ASSERT_EQ(impresora.Sentido(), o);
            const QPageLayout hoja = escritor.pageLayout();
            const QRectF papel = hoja.fullRect(QPageLayout::Millimeter);
            const QMarginsF suyos = hoja.margins(QPageLayout::Millimeter);
            const Marco m = MarcoPagina(papel.width(), papel.height());
            EXPECT_LE(suyos.left() + m.derecha, papel.width());
            EXPECT_LE(suyos.top() + m.abajo, papel.height());
            EXPECT_TRUE(suyos == margenes || o == Orientacion::Horizontal);
        }
    }
}

TEST(ImpresoraPdf, AFileIsWholeOrAsItWasAndItsPagesAreLandscape)
{
    const prueba::Carpeta c;
    const std::string ruta = c.Escribe("o.pdf", "viejo");
    const auto impresora = CreaImpresoraPdf(ruta, ModoColor::Color);
    EXPECT_EQ(impresora->Ancho(), 11906.0);
    impresora->PonSentido(Orientacion::Horizontal);
    EXPECT_EQ(impresora->Ancho(), 16838.0);
    EXPECT_EQ(impresora->Alto(), 11906.0);
    impresora->Termina();
    EXPECT_EQ(prueba::LeeTodo(ruta), "viejo");  // nothing was drawn
    impresora->Linea(0, 0, 16838, 11906, 0xFF0000);
    impresora->Anula();
    EXPECT_EQ(prueba::LeeTodo(ruta), "viejo");

    const auto otra = CreaImpresoraPdf(ruta, ModoColor::Color);
    otra->PonSentido(Orientacion::Horizontal);
    otra->X = 1000.0;
    otra->Texto("ancho");
    EXPECT_GT(otra->X, 1000.0 + otra->AltoTexto());
    otra->TextoLinea("uno");
    EXPECT_TRUE(otra->X == 0.0 && otra->Y == otra->AltoTexto());
    EXPECT_NEAR(otra->AltoTexto(), otra->Letra.puntos * 20.0 * 1.2, otra->Letra.puntos * 5.0);
    otra->PaginaNueva();
    otra->Termina();
    const std::string pdf = prueba::LeeTodo(ruta);
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    EXPECT_NE(pdf.find("/MediaBox [0 0 842"), std::string::npos);
    EXPECT_NE(pdf.find("/Count 2"), std::string::npos);

    const auto fuera = CreaImpresoraPdf(c.Ruta("no/o.pdf"), ModoColor::Color);
    fuera->Linea(0, 0, 1, 1, 0);
    EXPECT_EQ(prueba::NumeroDeError([&] { fuera->Termina(); }), error::kRutaNoEncontrada);
}

}  // namespace
}  // namespace veldix
