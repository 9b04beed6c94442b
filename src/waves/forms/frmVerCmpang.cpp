#include "waves/forms/frmVerCmpang.h"

#include "platform/ficheros.h"
#include "platform/forms/EtiquetaLineas.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/rutas.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "waves/colores.h"

namespace veldix {

namespace {

constexpr int kMenorLinea = 11;  // pixels
constexpr int kMenorLetra = 7;   // pixels of the screen
constexpr int kLineas = 3;       // of a name and its value

constexpr int kFranja = 5;  // pixels of a curve's colour at its label's edge

/// A button whose face is the grey picture, for a caption alone; without the picture a plain one.
void PonGris(QPushButton* boton, const QString& texto)
{
    static const char* const kCara =
        "QPushButton { background-image: url(\"%1\"); border: 1px outset palette(dark); color: black; }"
        "QPushButton:pressed, QPushButton:focus { border-style: inset; }";
    boton->setIcon(QIcon());
    boton->setText(texto);
    const std::string ruta = RutaIconos(store.RutaPrograma, "gris.bmp");
    if (!ExisteFichero(ruta)) return;
    boton->setStyleSheet(QString(kCara).arg(Q(ruta).replace('\\', "\\\\").replace('"', "\\\"")));
}

}  // namespace

frmVerCmpang::frmVerCmpang()
    : VistaCaja({"frmVerCmpang", etiqueta::kVerCmpang, "Picture1", "Lineamar", "Linecian", "lblms",
                 Icono::Informacion, Icono::Informacion},
                Icono::Informacion)
{
    CreaControles();
}

void frmVerCmpang::CreaControles()
{
    marcamar = CreaEtiqueta(this, "marcamar");
    PonFondo(marcamar, kCursorAmarillo);
    marcaci = CreaEtiqueta(this, "marcaci");
    PonFondo(marcaci, kCursorCian);
    HScroll_Amar = new BarraCursor("HScroll_Amar", "Cursor 1, " + Q(Rotulo(256, "Canales elegidos")), this);
    HScroll_Cian = new BarraCursor("HScroll_Cian", "Cursor 2, " + Q(Rotulo(256, "Canales elegidos")), this);
    lblam = CreaColumna("lblam", HScroll_Amar);
    lblci = CreaColumna("lblci", HScroll_Cian);
    Label1 = CreaEtiqueta(this, "Label1");
    Label2 = CreaEtiqueta(this, "Label2");
}

EtiquetasCorridas* frmVerCmpang::CreaColumna(const char* nombre, BarraCursor* barra)
{
    std::vector<QLabel*> etiquetas;
    for (int k = 1; k <= kCanalesComp; ++k) {
        etiquetas.push_back(new EtiquetaLineas(this, QString(nombre) + QString::number(k)));
        etiquetas.back()->setContentsMargins(kFranja + 2, 0, 0, 0);
        etiquetas.back()->hide();
        (new QLabel(etiquetas.back()))->setGeometry(0, 0, kFranja, QWIDGETSIZE_MAX);
    }
    return new EtiquetasCorridas(etiquetas, barra, this);
}

void frmVerCmpang::Form_activo(const Lugar& lugar, int ventana, int posicion)
{
    constexpr const char* kTitulos[] = {"Ventana 1", "Ventana 2", "Ventana 3"};
    Atrapa(this, [&] {
        fila_ = ventana;
        canales_ = CanalesDeVentana(store, ventana);
        setWindowTitle(Q(Rotulo(64 + posicion, kTitulos[posicion - 1])));
        plot_->setAccessibleName(windowTitle());
        ultima_ = static_cast<std::int16_t>(store.Muestras.UBound(1));
        Coloca(lugar.izquierda, lugar.arriba, lugar.ancho, lugar.alto);
        gris_ = store.NumVentanasComp >= kVentanasComp;
        if (gris_) {
            PonGris(cmdzoom, Q(Rotulo(61, "Zoom")));
            PonGris(cmdadel, ">>");
            PonGris(cmdatras, "<<");
        }
        ColocaControles();
    });
}

void frmVerCmpang::Composicion(int ventana)
{
    Atrapa(this, [&] {
        fila_ = ventana;
        canales_ = CanalesDeVentana(store, ventana);
        columnas_.clear();
        for (const int r : canales_)
            columnas_.push_back(ColumnaDeCanal(store, r));
        Activa = true;
        Dibuja();
    });
}

void frmVerCmpang::Rehace()
{
    ColocaControles();
    Dibuja();
}

/// The whole record, the labels of sample 1.
void frmVerCmpang::Dibuja()
{
    Reinicia();
    PintaEjes();
    EscalaY = EscalaComposicion(store, canales_, static_cast<float>(plot_->Alto()));
    PintaRegistro();
    PonLinea(linea1_, XCursor(Cursor1));
    PonLinea(linea2_, XCursor(Cursor2));
    Label1->setText(" No.: 1");
    Label2->setText(" No.: 1");
    PonEtiquetas(lblam, 1);
    PonEtiquetas(lblci, 1);
    PonTexto(lblms, "0.000 ms");
}

/// A window too small for a plot keeps its controls where they are.
void frmVerCmpang::ColocaControles()
{
    const double bajo = AltoBajoPlot(kBajoComp);
    TamanoComp t{AnchoVentana(), AltoVentana(), ATwips(Interior().width()), bajo};
    t.ventanas = store.NumVentanasComp;
    t.curvas = static_cast<int>(canales_.size());
    t.estrecha = AnchoPixeles({store.AnchoPantalla, store.AltoPantalla}) <= kPantallaEstrecha;
    PreparaBarras();
    const auto l = ColocaComposicion(t, Medidas(bajo - 2.0 * kHueco));
    if (!l) return;
    PonPlot(l->Picture1);
    const std::pair<QWidget*, const Lugar*> lugares[] = {{HScroll1, &l->HScroll1},
                                                         {HScroll2, &l->HScroll2},
                                                         {Label1, &l->Label1},
                                                         {Label2, &l->Label2},
                                                         {lblms, &l->lblms}};
    for (const auto& [control, lugar] : lugares)
        Pon(control, *lugar);
    lblms->setFont(font());
    ColocaColumna(l->amarilla, marcamar, lblam, HScroll_Amar);
    ColocaColumna(l->cian, marcaci, lblci, HScroll_Cian);
    PonBotones(*l);
    if (gris_) cmdzoom->setIcon(QIcon());
    PonReferencia(l->lbl_PS);
}

/// Labels too low for the letters of the window get smaller ones, in several lines where these stay
/// legible.
void frmVerCmpang::ColocaColumna(const ColumnaComp& c, QLabel* marca, EtiquetasCorridas* textos,
                                 BarraCursor* barra)
{
    Pon(marca, c.marca);
    Pon(barra, c.barra);
    QFont letra = font();
    const int alto = APixeles(c.etiquetas[0].alto), pide = QFontMetrics(letra).height();
    const int lineas = qBound(1, alto / kMenorLinea, kLineas), linea = alto / lineas;
    const int menor = qCeil(kMenorLetra / devicePixelRatioF());
    if (linea < pide) letra.setPixelSize(qMax(menor, QFontInfo(letra).pixelSize() * linea / pide));
    for (int k = 1; k <= textos->Cuantas(); ++k) {
        QLabel* etiqueta = textos->Etiqueta(k);
        Pon(etiqueta, c.etiquetas[static_cast<std::size_t>(k - 1)]);
        etiqueta->setFont(letra);
    }
}

void frmVerCmpang::Curvas(int s, int e)
{
    for (std::size_t k = 0; k < canales_.size(); ++k) {
        const PuntosCurva p = CalculaPuntos(store.Muestras, columnas_[k], s, e, Escala());
        plot_->Poligonal(p.PuntosX, p.PuntosY, ColorComposicion(store, static_cast<int>(k) + 1));
    }
}

/// A label a curve, with the curve's colour at its edge.
void frmVerCmpang::PonEtiquetas(EtiquetasCorridas* textos, int muestra)
{
    for (std::size_t k = 0; k < canales_.size(); ++k) {
        const int r = canales_[k], n = static_cast<int>(k) + 1;
        QLabel* etiqueta = textos->Etiqueta(n);
        etiqueta->setVisible(true);
        PonFondo(etiqueta->findChild<QLabel*>(), ColorComposicion(store, n));
        textos->Pon(n, EtiquetaCanal(store, r) + ": " +
                           TextoValor(store.Muestras(muestra, columnas_[k]), store.Canales(r).Unidades));
    }
    textos->Recoge(kCanalesComp, false);
}

void frmVerCmpang::PonTextos(int cursor)
{
    const int muestra = (cursor == 1 ? HScroll1 : HScroll2)->value();
    (cursor == 1 ? Label1 : Label2)->setText(" No.: " + Q(FormaDelimitada(muestra)));
    PonEtiquetas(cursor == 1 ? lblam : lblci, muestra);
    PonTexto(lblms, Q(TextoTiempo(Cursor1, Cursor2, MuestrasPorSegundo(store))));
}

std::optional<HojaOndas> frmVerCmpang::Hoja(Impresora& impresora)
{
    return HojaDeComposicion(store, impresora, canales_, zoom_.Pila(zoom_.NivelZoom + 1), EscalaY,
                             store.NumVentanasComp,
                             {U(windowTitle()), Cursor1, Cursor2, "", U(lblms->text()), FechaImpresion()});
}

void frmVerCmpang::Form_Unload()
{
    Intenta([this] {
        if (store.VentanaComp(fila_) != this) return;
        store.VentanaComp(fila_) = nullptr;
        store.MatrizComp(fila_, store.NumAnalog + 1) = 0;
    });
    --store.NumVentanasComp;
    if (store.NumVentanasComp == 0) escena.muestraMenu();
}

}  // namespace veldix
