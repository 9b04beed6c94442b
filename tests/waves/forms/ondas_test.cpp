#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMouseEvent>
#include <QTest>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "support/soporte.h"
#include "waves/forms/frmNewOndas.h"
#include "waves/forms/frmVerOndas.h"

namespace veldix {
namespace {

constexpr const char* kDemasiadoCorto =
    "El tramo elegido es demasiado corto: debe abarcar al menos dos muestras.";
constexpr const char* kAmpliar = "¿Desea ampliar la zona marcada?";

int Valor(int i, int c)
{
    return c * ((i * 7) % 41 - 20);
}

/// A main window with its area, the menu as a flag, and a made-up record of channels I1, I2, ...
class OndasTest : public testing::Test {
protected:
    OndasTest()
    {
        store = RecordStore{};
        store.AnchoPantalla = 15360.0, store.AltoPantalla = 11520.0;
        CargaTextos(VELDIX_SOURCE "/runtime/VELDIX/ini/vdotro.ini");
        principal.setCentralWidget(area);
        principal.resize(1024, 768);
        principal.show();
        escena.principal = &principal;
        escena.area = area;
        escena.muestraMenu = [this] { ++muestras, menu = true; };
        escena.ocultaMenu = [this] { ++ocultas, menu = false; };
        escena.muestraGasolinoOndas = [this](const QString& t) { avance += "[" + U(t); };
        escena.ponGasolinoOndas = [this](int v) { avance += " " + std::to_string(v); };
        escena.descargaGasolinoOndas = [this] { avance += "]"; };
    }
    ~OndasTest() override
    {
        frmNewOndas::unica.Descarga();
        for (frmVerOndas* v : area->findChildren<frmVerOndas*>())
            v->Descarga();
        Asienta();
        escena = Escena{};
        store = RecordStore{};
        VaciaTextos();
    }

    /// Rows 2 and 3 of the channel table are columns 3 and 2. The working values of 1997 are still zero.
    static void Registro(int muestras_, int canales = 9, const char* revision = "1991")
    {
        const auto n = static_cast<std::int16_t>(canales);
        store.NumCanales = store.NumAnalog = store.NumCanalAnalog = n;
        store.RevisionCfg = revision;
        store.FrecLinea = 50;
        store.FrecMuestras = store.UltimaMuestra = Tabla1<std::int16_t>(1);
        store.FrecMuestras(1) = 1000;
        store.UltimaMuestra(1) = static_cast<std::int16_t>(muestras_);
        store.Canales = Tabla1<FilaCanal>(canales);
        for (int r = 1; r <= canales; ++r)
            store.Canales(r) = {std::to_string(Columna(r)), "I" + std::to_string(r), "", "A"};
        Tabla2<float> t(muestras_, canales), doble(muestras_, canales);
        for (int i = 1; i <= muestras_; ++i) {
            for (int c = 1; c <= canales; ++c) {
                t(i, c) = static_cast<float>(Valor(i, c));
                doble(i, c) = 2.0F * t(i, c);
            }
        }
        if (store.RevisionCfg == "1997") {
            store.MuestrasSec = t, store.MuestrasPrim = doble;
            store.Muestras = Tabla2<float>(muestras_, canales);
        } else {
            store.Muestras = t;
        }
        ReiniciaRegistro(store);
    }
    static int Columna(int r) { return r == 2 ? 3 : r == 3 ? 2 : r; }

    static void Asienta()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    static void AbreDialogo()
    {
        frmNewOndas::unica.CargaNueva().show();
        Asienta();
    }
    template <class Control>
    static Control* Da(const char* nombre, QWidget* form = nullptr)
    {
        if (!form) form = frmNewOndas::unica.Cargado();
        Control* c = form ? form->findChild<Control*>(QLatin1String(nombre)) : nullptr;
        if (!c) throw std::runtime_error(std::string("no control ") + nombre);
        return c;
    }
    static std::string Texto(const char* etiqueta, QWidget* form)
    {
        return U(Da<QLabel>(etiqueta, form)->text());
    }
    static void Pulsa(const char* boton, QWidget* form = nullptr)
    {
        QTest::mouseClick(Da<QPushButton>(boton, form), Qt::LeftButton);
        Asienta();
    }
    static void Doble(QWidget* w, QPoint p = {})
    {
        QTest::mouseClick(w, Qt::LeftButton, {}, p);
        QTest::mouseDClick(w, Qt::LeftButton, {}, p);
    }
    static void Elige(std::initializer_list<int> filas)
    {
        auto* lista = Da<QListWidget>("List1");
        for (const int r : filas) {
            lista->scrollToItem(lista->item(r - 1));
            Doble(lista->viewport(), lista->visualItemRect(lista->item(r - 1)).center());
        }
    }
    static std::string Numeros()
    {
        std::string s;
        for (int k = 1; k <= 8; ++k)
            s += Texto(("lbl" + std::to_string(k)).c_str(), frmNewOndas::unica.Cargado()) + ",";
        return s;
    }
    /// One window for a row, by the chooser.
    frmVerOndas* Ventana(int r)
    {
        AbreDialogo();
        Elige({r});
        Pulsa("cmdOK");
        frmVerOndas* v = store.VentanaOnda.Vacia() ? nullptr : store.VentanaOnda(r);
        if (!v) throw std::runtime_error("no window");
        return v;
    }
    int Abiertas() const
    {
        int n = 0;
        for (QMdiSubWindow* s : area->subWindowList())
            n += s->isVisible();
        return n;
    }

    static void Raton(QWidget* w, QEvent::Type tipo, QPoint p)
    {
        const bool mueve = tipo == QEvent::MouseMove, sube = tipo == QEvent::MouseButtonRelease;
        QMouseEvent e(tipo, p, w->mapToGlobal(p), mueve ? Qt::NoButton : Qt::LeftButton,
                      sube ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(w, &e);
    }
    static void Arrastra(frmVerOndas* v, QPoint a, QPoint b)
    {
        Raton(v->Plot(), QEvent::MouseButtonPress, a);
        Raton(v->Plot(), QEvent::MouseMove, (a + b) / 2);
        Raton(v->Plot(), QEvent::MouseMove, b);
        Raton(v->Plot(), QEvent::MouseButtonRelease, b);
        Asienta();
    }
    void Amplia(frmVerOndas* v, QPoint a, QPoint b, bool si = true)
    {
        Pulsa("cmdzoom", v);
        cajas.Espera(kAmpliar, Icono::Pregunta, Botones::AceptarCancelar, si);
        Arrastra(v, a, b);
    }
    static void Estira(frmVerOndas* v, int ancho, int alto)
    {
        v->Ventana().resize(v->Ventana().width() + ancho, v->Ventana().height() + alto);
        Asienta();
    }
    /// Back to the whole record, by two resizes.
    static void Rehace(frmVerOndas* v)
    {
        Estira(v, -1, 0);
        Estira(v, 1, 0);
    }
    /// Range and value of both bars, and the zoom's level and count of levels.
    static std::string Estado(frmVerOndas* v)
    {
        std::string s;
        for (const char* nombre : {"HScroll1", "HScroll2"}) {
            auto* b = Da<QScrollBar>(nombre, v);
            s += std::to_string(b->minimum()) + "<" + std::to_string(b->value()) + "<" +
                 std::to_string(b->maximum()) + " ";
        }
        return s + std::to_string(v->Zoom().NivelZoom) + "/" + std::to_string(v->Zoom().NumNiveles);
    }
    static std::string Estado(int s, int e, int nivel, int niveles)
    {
        const std::string barra = std::to_string(s) + "<" + std::to_string(s) + "<" + std::to_string(e) + " ";
        return barra + barra + std::to_string(nivel) + "/" + std::to_string(niveles);
    }
    /// The sample of the fresh plot, from 0, at a pixel.
    static int Muestra(frmVerOndas* v, int pixel)
    {
        const double w = v->Plot()->Ancho();
        return qRound((15.0 * pixel - w / 50) / (w * 48 / 50 / store.Muestras.UBound(1)));
    }
    static double LineaX(const char* nombre, frmVerOndas* v) { return 15.0 * Da<LineaSobre>(nombre, v)->x(); }

    QMainWindow principal;
    QMdiArea* area = new QMdiArea;
    prueba::RespondeCajas cajas;
    prueba::Separa separa{",", "."};
    std::string avance;
    bool menu = true;
    int muestras = 0, ocultas = 0;
};

TEST_F(OndasTest, EightChannelsStandInRisingOrderWhateverTheirSlots)
{
    Registro(960);
    AbreDialogo();
    EXPECT_FALSE(Da<QGroupBox>("Frame3")->isVisible());
    Elige({9, 3, 1, 7, 5, 8, 2, 4});
    EXPECT_EQ(Numeros(), "9,3,1,7,5,8,2,4,");
    Pulsa("cmdOK");
    EXPECT_FALSE(frmNewOndas::unica.Cargado());
    EXPECT_EQ(avance, "[Preparando las ondas... 30 60 80 100]");
    EXPECT_FALSE(menu);
    EXPECT_EQ(muestras, 0);
    EXPECT_EQ(store.NumVentanasOnda, 8);
    EXPECT_EQ(Abiertas(), 8);
    EXPECT_FALSE(store.VentanaOnda(6) && store.VentanaOnda(6)->isVisible());
    const double alto = 2609, ancho = 7642;  // of 10435 x 15284
    int k = 0;
    for (const int r : {1, 2, 3, 4, 5, 7, 8, 9}) {
        SCOPED_TRACE(r);
        frmVerOndas* v = store.VentanaOnda(r);
        ASSERT_TRUE(v);
        EXPECT_TRUE(v->isVisible());
        EXPECT_EQ(v->Canal(), r);
        EXPECT_EQ(U(v->windowTitle()), "I" + std::to_string(r));
        const QRect g = v->Ventana().geometry();
        EXPECT_NEAR(g.x(), (k / 4) * ancho / 15, 1);
        EXPECT_NEAR(g.y(), (k % 4) * alto / 15, 1);
        EXPECT_NEAR(g.width(), ancho / 15, 1);
        EXPECT_NEAR(g.height(), alto / 15, 1);
        EXPECT_EQ(Estado(v), Estado(1, 960, 0, 1));
        const QRect zoom = Da<QPushButton>("cmdzoom", v)->geometry();
        EXPECT_NEAR(Da<QPushButton>("cmdadel", v)->x(), zoom.x() + zoom.width(),
                    1);  // no gap, in the first too
        EXPECT_FALSE(Da<QLabel>("lbl_PS", v)->isVisible());
        ++k;
    }
}

TEST_F(OndasTest, SlotsFollowTheMouse)
{
    Registro(960);
    AbreDialogo();
    const auto marcas = [] {
        std::string s;
        for (int k = 1; k <= 8; ++k) {
            const QImage i = Da<QLabel>(("lblpunt" + std::to_string(k)).c_str())->grab().toImage();
            const QRgb c = i.pixel(i.rect().center()) & 0xFFFFFFU;
            s += c == 0xFFFF00U ? 'x' : c == 0xFFFFFFU ? '.' : '?';
        }
        return s;
    };
    EXPECT_EQ(marcas(), "x.......");
    Elige({4, 4, 2, 9});
    EXPECT_EQ(Numeros(), "4,2,9,,,,,,");
    EXPECT_EQ(marcas(), "...x....");
    Doble(Da<QLineEdit>("grp2"));
    EXPECT_EQ(Numeros(), "4,,9,,,,,,");
    EXPECT_EQ(marcas(), ".x......");
    EXPECT_EQ(U(Da<QLineEdit>("grp2")->text()), "");
    QTest::mouseClick(Da<QLabel>("lblpunt8"), Qt::LeftButton);
    EXPECT_EQ(marcas(), ".......x");
    Elige({5, 6});
    EXPECT_EQ(Numeros(), "4,,9,,,,,6,");
    QTest::mouseClick(Da<QLineEdit>("grp5"), Qt::LeftButton);
    EXPECT_EQ(marcas(), "....x...");
    Pulsa("cmdOK");
    EXPECT_EQ(Abiertas(), 3);
    EXPECT_EQ(store.NumVentanasOnda, 3);
    for (const int r : {4, 6, 9})
        EXPECT_TRUE(store.VentanaOnda(r)) << r;
}

TEST_F(OndasTest, ABadNameIsReportedAndKeptAndNothingChosenKeepsTheDialog)
{
    Registro(960);
    store.Canales(1).Nombre = "I%", store.Canales(2).Nombre = "$I%";
    AbreDialogo();
    cajas.Espera("No se ha elegido nada para visualizar.", Icono::Critico);
    Pulsa("cmdOK");
    ASSERT_TRUE(frmNewOndas::unica.Cargado());
    EXPECT_TRUE(frmNewOndas::unica.Cargado()->isVisible());
    EXPECT_TRUE(menu);
    cajas.Espera("El carácter % no está permitido.", Icono::Critico);
    cajas.Espera("El carácter % no está permitido.", Icono::Critico);
    cajas.Espera("El carácter $ no está permitido.", Icono::Critico);
    Elige({1, 2});
    EXPECT_EQ(Numeros(), "1,2,,,,,,,");
    EXPECT_EQ(U(Da<QLineEdit>("grp2")->text()), "$I%");
    Pulsa("cmdOK");
    EXPECT_EQ(Abiertas(), 2);
}

TEST_F(OndasTest, AChannelInTwoSlotsFailsAndLeavesAWayOut)
{
    Registro(960);
    AbreDialogo();
    Elige({2, 3});
    QTest::mouseClick(Da<QLabel>("lblpunt1"), Qt::LeftButton);
    Elige({3});
    EXPECT_EQ(Numeros(), "3,3,,,,,,,");
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Pulsa("cmdOK");
    EXPECT_FALSE(frmNewOndas::unica.Cargado());
    EXPECT_TRUE(menu);
    EXPECT_GE(muestras, 1);
    EXPECT_EQ(Abiertas(), 0);
    EXPECT_EQ(avance.back(), ']');

    frmVerOndas* v = Ventana(3);
    EXPECT_FALSE(menu);
    v->Descarga();
    EXPECT_TRUE(menu);
    EXPECT_EQ(store.NumVentanasOnda, 0);
}

TEST_F(OndasTest, TheReferenceIsAppliedNamedAndForgottenByTheFirstToClose)
{
    for (const bool primario : {true, false}) {
        SCOPED_TRACE(primario);
        Registro(960, 9, "1997");
        AbreDialogo();
        EXPECT_TRUE(Da<QGroupBox>("Frame3")->isVisible());
        EXPECT_TRUE(Da<QRadioButton>("CmdPrimario")->isChecked());
        if (!primario) Da<QRadioButton>("CmdSecundario")->click();
        Elige({1, 2});
        Pulsa("cmdOK");
        ASSERT_EQ(Abiertas(), 2);
        EXPECT_EQ(store.EnPrimario, primario);
        EXPECT_EQ(store.EnSecundario, !primario);
        const float valor = static_cast<float>(Valor(2, 1) * (primario ? 2 : 1));
        EXPECT_EQ(store.Muestras(2, 1), valor);
        frmVerOndas *a = store.VentanaOnda(1), *b = store.VentanaOnda(2);
        for (frmVerOndas* v : {a, b}) {
            EXPECT_TRUE(Da<QLabel>("lbl_PS", v)->isVisible());
            EXPECT_EQ(Texto("lbl_PS", v), primario ? "PRIMARIO" : "SECUNDARIO");
        }
        const int antes = muestras;
        a->Ventana().close();
        Asienta();
        EXPECT_FALSE(store.VentanaOnda(1));
        EXPECT_EQ(store.NumVentanasOnda, 1);
        EXPECT_FALSE(store.EnPrimario || store.EnSecundario);
        EXPECT_EQ(muestras, antes);
        Estira(b, -30, 0);
        EXPECT_FALSE(Da<QLabel>("lbl_PS", b)->isVisible());
        EXPECT_EQ(store.Muestras(2, 1), valor);
        b->Ventana().close();
        Asienta();
        EXPECT_EQ(store.NumVentanasOnda, 0);
        EXPECT_EQ(muestras, antes + 1);
    }
}

TEST_F(OndasTest, KeysMoveACursorItsLineAndTheLabels)
{
    Registro(960);
    frmVerOndas* v = Ventana(3);
    const double w = v->Plot()->Ancho(), paso = w * 48 / 50 / 960;
    EXPECT_NEAR(LineaX("Lineizq", v), w / 3.6 / 960, 15);  // without the margin before a bar has moved
    EXPECT_EQ(Texto("lblamar", v), "-26,000 A");
    const struct {
        const char *barra, *numero, *valor, *linea;
    } lados[] = {{"HScroll1", "lblizq", "lblamar", "Lineizq"}, {"HScroll2", "lblder", "lblcian", "Lineder"}};
    const struct {
        int antes;
        Qt::Key tecla;
        int muestra;
    } teclas[] = {{1, Qt::Key_Right, 2},        {22, Qt::Key_Left, 21}, {22, Qt::Key_PageDown, 42},
                  {42, Qt::Key_PageUp, 22},     {22, Qt::Key_End, 960}, {22, Qt::Key_Home, 1},
                  {950, Qt::Key_PageDown, 960}, {10, Qt::Key_PageUp, 1}};
    for (const auto& l : lados) {
        auto* barra = Da<QScrollBar>(l.barra, v);
        const int otra = barra->objectName() == "HScroll1" ? Da<QScrollBar>("HScroll2", v)->value()
                                                           : Da<QScrollBar>("HScroll1", v)->value();
        for (const auto& t : teclas) {
            SCOPED_TRACE(std::string(l.barra) + " to " + std::to_string(t.muestra));
            barra->setValue(t.antes);
            QTest::keyClick(barra, t.tecla);
            EXPECT_EQ(Texto(l.numero, v), "No.= " + std::to_string(t.muestra));
            EXPECT_EQ(Texto(l.valor, v), std::to_string(Valor(t.muestra, 2)) + ",000 A");
            EXPECT_NEAR(LineaX(l.linea, v), t.muestra * paso + w / 50, 15);
            EXPECT_EQ(Texto("lblms", v), std::to_string(std::abs(t.muestra - otra)) + ",000 ms");
            const int dif = std::abs(Valor(t.muestra, 2) - Valor(otra, 2));
            EXPECT_EQ(Texto("lblDif", v), std::to_string(dif) + ",000 A");
            EXPECT_EQ(U(v->TextoMs()), Texto("lblms", v));
            EXPECT_EQ(U(v->TextoDif()), Texto("lblDif", v));
        }
        barra->setValue(100);
    }
}

TEST_F(OndasTest, ABoxZoomsInEveryDirectionAndOnlyWhenArmedAndConfirmed)
{
    Registro(960);
    frmVerOndas* v = Ventana(3);
    Arrastra(v, {200, 100}, {400, 200});  // not armed: no question
    EXPECT_EQ(Estado(v), Estado(1, 960, 0, 1));
    const auto lineas = [v] {
        int n = 0;
        for (const char* l : {"Line2", "Line3", "Line4", "Line5"})
            n += Da<LineaSobre>(l, v)->isVisible();
        return n;
    };
    Pulsa("cmdzoom", v);
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::CrossCursor);
    Raton(v->Plot(), QEvent::MouseButtonPress, {200, 100});
    Raton(v->Plot(), QEvent::MouseMove, {400, 250});
    EXPECT_EQ(lineas(), 4);
    const std::pair<const char*, QRect> cantos[] = {{"Line2", {200, 100, 201, 1}},
                                                    {"Line3", {200, 100, 1, 151}},
                                                    {"Line4", {200, 250, 201, 1}},
                                                    {"Line5", {400, 100, 1, 151}}};
    for (const auto& [nombre, lugar] : cantos)
        EXPECT_EQ(Da<LineaSobre>(nombre, v)->geometry(), lugar) << nombre;
    cajas.Espera(kAmpliar, Icono::Pregunta, Botones::AceptarCancelar, false);
    Raton(v->Plot(), QEvent::MouseButtonRelease, {400, 250});
    EXPECT_EQ(lineas(), 0);
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(Estado(v), Estado(1, 960, 0, 1));
    Arrastra(v, {200, 100}, {400, 250});

    const double alto = v->Plot()->Alto();
    const int s = Muestra(v, 200), e = Muestra(v, 400);
    for (const auto& [x1, y1, x2, y2] :
         {std::array{200, 100, 400, 200}, {400, 100, 200, 200}, {200, 200, 400, 100}, {400, 200, 200, 100}}) {
        SCOPED_TRACE(x1 + y1);
        Amplia(v, {x1, y1}, {x2, y2});
        EXPECT_EQ(Estado(v), Estado(s, e, 1, 2));
        EXPECT_NEAR(store.FactorZoomY, alto / 1500, 1e-3);
        EXPECT_NEAR(v->Zoom().OrigenY, (alto / 2 - 1500) * alto / 1500, 0.1);
        EXPECT_NEAR(LineaX("Lineizq", v), v->Plot()->Ancho() / 50, 15);
        EXPECT_NEAR(LineaX("Lineder", v), v->Plot()->Ancho() / 50, 15);
        EXPECT_EQ(Texto("lblizq", v), "No.= " + std::to_string(s));
        EXPECT_EQ(Texto("lblcian", v), std::to_string(Valor(s, 2)) + ",000 A");
        EXPECT_EQ(lineas(), 0);
        Rehace(v);
        EXPECT_EQ(Estado(v), Estado(1, 960, 0, 1));
    }
}

TEST_F(OndasTest, StepsThroughTheHistoryTellTheirEnds)
{
    Registro(960);
    frmVerOndas* v = Ventana(1);
    const auto llega = [&](const char* boton, const char* texto) {
        cajas.Espera(texto, Icono::Informacion);
        Pulsa(boton, v);
    };
    llega("cmdatras", "Este es el primer nivel de zoom.");
    llega("cmdadel", "Este es el último nivel de zoom.");
    const std::string uno = Estado(Muestra(v, 200), Muestra(v, 600), 1, 2);
    Pulsa("cmdzoom", v);
    llega("cmdatras", "Este es el primer nivel de zoom.");  // leaves the zoom armed
    cajas.Espera(kAmpliar, Icono::Pregunta, Botones::AceptarCancelar);
    Arrastra(v, {200, 100}, {600, 200});
    EXPECT_EQ(Estado(v), uno);
    llega("cmdadel", "Este es el último nivel de zoom.");
    Pulsa("cmdatras", v);
    EXPECT_EQ(Estado(v), Estado(1, 960, 0, 2));
    Amplia(v, {300, 100}, {500, 200}, false);
    Pulsa("cmdzoom", v);
    Pulsa("cmdadel", v);  // takes the pending zoom away: the box that follows replays the level
    EXPECT_EQ(Estado(v), uno);
    cajas.Espera(kAmpliar, Icono::Pregunta, Botones::AceptarCancelar);
    Arrastra(v, {300, 100}, {500, 200});
    EXPECT_EQ(Estado(v), uno);
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(OndasTest, AResizeDropsTheHistoryAndMinimisingHidesTheMenuAlone)
{
    Registro(960);
    frmVerOndas* v = Ventana(1);
    Amplia(v, {200, 100}, {600, 200});
    const std::string uno = Estado(v);
    EXPECT_GT(store.FactorZoomY, 1.0F);
    const double margen = v->Plot()->Ancho() / 50;
    Estira(v, -60, -60);
    EXPECT_EQ(Estado(v), Estado(1, 960, 0, 1));
    EXPECT_EQ(store.FactorZoomY, 1.0F);
    EXPECT_NEAR(LineaX("Lineizq", v), v->Plot()->Ancho() / 3.6 / 960 + margen, 15);

    Amplia(v, {200, 100}, {600, 200});
    EXPECT_NE(Estado(v), Estado(1, 960, 0, 1));
    const int antes = ocultas;
    v->Ventana().showMinimized();
    Asienta();
    EXPECT_EQ(ocultas, antes + 1);
    EXPECT_EQ(v->Zoom().NumNiveles, 2);
    v->Ventana().showNormal();
    Asienta();
    EXPECT_EQ(Estado(v), Estado(1, 960, 0, 1));
}

TEST_F(OndasTest, DrawsAxesAndEverySampleAndNoVerticalAxisOnceZoomed)
{
    using Tipo = OperacionLienzo::Tipo;
    Registro(960);
    frmVerOndas* v = Ventana(3);
    Lienzo* plot = v->Plot();
    std::vector<OperacionLienzo> ops;
    const auto dibujo = [&ops] {  // lines and the curve since the last clearing
        std::pair<std::vector<OperacionLienzo>, OperacionLienzo> d;
        for (const OperacionLienzo& o : ops) {
            if (o.tipo == Tipo::Limpia) {
                d = {};
                EXPECT_EQ(o.color & 0xFFFFFFU, 0x808080U);
            }
            if (o.tipo == Tipo::Linea) d.first.push_back(o);
            if (o.tipo == Tipo::Poligonal) d.second = o;
        }
        return d;
    };
    const auto linea = [](const OperacionLienzo& o, double x1, double y1, double x2, double y2) {
        EXPECT_NEAR(o.xs[0], x1, 0.01);
        EXPECT_NEAR(o.ys[0], y1, 0.01);
        EXPECT_NEAR(o.xs[1], x2, 0.01);
        EXPECT_NEAR(o.ys[1], y2, 0.01);
        EXPECT_EQ(o.color & 0xFFFFFFU, 0xFFFFFFU);
    };
    plot->PonGrabadora(&ops);
    Estira(v, -30, -30);
    const double w = plot->Ancho(), h = plot->Alto(), escala = (h - 2 * h / 50) / 2 / 40;
    auto [lineas, curva] = dibujo();
    ASSERT_EQ(lineas.size(), 2U);
    linea(lineas[0], w / 50, h / 2, 49 * w / 50, h / 2);
    linea(lineas[1], w / 50, h / 50, w / 50, 49 * h / 50);
    ASSERT_EQ(curva.xs.size(), 960U);
    EXPECT_NEAR(curva.xs.front(), w / 50, 0.01);
    EXPECT_NEAR(curva.ys.front(), h / 2 - Valor(1, 2) * escala, 0.1);
    EXPECT_NEAR(curva.xs.back(), w / 50 + 959 * w * 48 / 50 / 960, 0.1);
    EXPECT_NEAR(curva.ys.back(), h / 2 - Valor(960, 2) * escala, 0.1);
    EXPECT_EQ(curva.color & 0xFFFFFFU, 0xFF0000U);  // of row 3, though the curve is column 2

    const int ph = plot->height();
    const struct {
        int y1, y2;
        bool cero;
    } casos[] = {{0, ph / 4, false}, {ph / 4, 3 * ph / 4, true}, {3 * ph / 4, ph - 1, true}};
    for (const auto& c : casos) {
        SCOPED_TRACE(c.y1);
        ops.clear();
        Amplia(v, {200, c.y1}, {400, c.y2});
        std::tie(lineas, curva) = dibujo();
        const double factor = h / (15.0 * (c.y2 - c.y1)), origen = (h / 2 - 15.0 * c.y1) * factor;
        ASSERT_EQ(lineas.size(), c.cero ? 1U : 0U);
        if (c.cero) linea(lineas[0], w / 50, static_cast<float>(origen), w, static_cast<float>(origen));
        const int s = Da<QScrollBar>("HScroll1", v)->minimum(), e = Da<QScrollBar>("HScroll1", v)->maximum();
        ASSERT_EQ(curva.xs.size(), static_cast<std::size_t>(e - s + 1));
        EXPECT_NEAR(curva.xs.front(), w / 50, 0.01);
        EXPECT_NEAR(curva.xs.back(), 49 * w / 50, 0.1);
        EXPECT_NEAR(curva.ys.front(), origen - factor * Valor(s, 2) * escala, 0.1);
        EXPECT_NEAR(curva.ys.back(), origen - factor * Valor(e, 2) * escala, 0.1);
        Rehace(v);
    }
    plot->PonGrabadora(nullptr);
}

TEST_F(OndasTest, NarrowBoxesAreCriticalAndFailuresCloseTheWindow)
{
    Registro(1);
    frmVerOndas* v = Ventana(3);
    EXPECT_EQ(Texto("lblamar", v), "-26,000 A");
    Pulsa("cmdzoom", v);
    cajas.Espera(kAmpliar, Icono::Pregunta, Botones::AceptarCancelar);
    cajas.Espera(kDemasiadoCorto, Icono::Critico);
    Arrastra(v, {10, 10}, {900, 300});
    ASSERT_EQ(store.VentanaOnda(3), v);
    EXPECT_EQ(Estado(v), Estado(1, 1, 0, 1));
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::ArrowCursor);
    v->Descarga();
    Asienta();

    Registro(960);
    v = Ventana(3);
    Pulsa("cmdzoom", v);
    cajas.Espera(kAmpliar, Icono::Pregunta, Botones::AceptarCancelar);
    cajas.Espera("Error 11: Division by zero", Icono::Critico);
    Arrastra(v, {200, 100}, {400, 100});
    EXPECT_EQ(Abiertas(), 0);
    EXPECT_FALSE(store.VentanaOnda(3));
    EXPECT_TRUE(menu);

    store.FrecMuestras(1) = 0;  // no rate at all: the first cursor move has no time to show
    v = Ventana(3);
    cajas.Espera("Error 11: Division by zero", Icono::Critico);
    QTest::keyClick(Da<QScrollBar>("HScroll1", v), Qt::Key_PageDown);
    Asienta();
    EXPECT_EQ(Abiertas(), 0);
    EXPECT_TRUE(menu);
}

TEST_F(OndasTest, AChannelWithoutAColumnLosesItsWindowButNotTheWayOut)
{
    const struct {
        const char *numero, *caja;
    } casos[] = {{"siete", "Error 13: Type mismatch"},
                 {"", "Error 13: Type mismatch"},
                 {"99", "Error 9: Subscript out of range"}};
    for (const auto& c : casos) {
        for (const bool otra : {false, true}) {
            SCOPED_TRACE(std::string(c.numero) + (otra ? " beside a good one" : " alone"));
            Registro(960);
            store.Canales(2).Numero = c.numero;
            AbreDialogo();
            Elige({2});
            if (otra) Elige({5});
            cajas.Espera(c.caja, Icono::Critico);
            Pulsa("cmdOK");
            EXPECT_FALSE(frmNewOndas::unica.Cargado());
            EXPECT_EQ(avance.back(), ']');
            EXPECT_EQ(Abiertas(), otra ? 1 : 0);
            EXPECT_EQ(store.NumVentanasOnda, otra ? 1 : 0);
            EXPECT_EQ(menu, !otra);
            if (otra) {
                ASSERT_TRUE(store.VentanaOnda(5));
                store.VentanaOnda(5)->Descarga();
                EXPECT_TRUE(menu);
            }
            EXPECT_EQ(store.NumVentanasOnda, 0);
            Asienta();
        }
    }
}

}  // namespace
}  // namespace veldix
