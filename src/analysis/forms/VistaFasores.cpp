#include "analysis/forms/VistaFasores.h"

#include <QPainter>
#include <QPixmap>

#include "analysis/modDFT.h"
#include "analysis/pagina_fasores.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/iconos.h"
#include "platform/numeros.h"
#include "platform/textos.h"

namespace veldix {

namespace {

/// A stretch of the line as it looks on the diagram.
QPixmap MuestraColor(QRgb color, qreal razon)
{
    constexpr int kGrueso = 3, kAncho = 20, kAlto = 11, kMargen = 2;
    QPixmap muestra(QSize(kAncho, kAlto) * razon);
    muestra.setDevicePixelRatio(razon);
    muestra.fill(QColor(kFondoDiagrama));
    QPainter(&muestra).fillRect(kMargen, (kAlto - kGrueso) / 2, kAncho - 2 * kMargen, kGrueso, QColor(color));
    return muestra;
}

}  // namespace

VistaFasores::VistaFasores(const Papel& papel) : Vista(papel.etiqueta), papel_(papel)
{
    setObjectName(papel_.nombre);
    CreaControles();
    CreaBotones();
    CreaTrazos();
    ConectaControles();
    if (!Atrapa(this, [this] { Form_Load(); })) {
        PonPunteros(this, Puntero::Normal);
        escena.muestraMenu();
    }
}

void VistaFasores::CreaControles()
{
    Picture1 = new Lienzo(this);
    Picture1->setObjectName("Picture1");
    HScroll1 = new BarraCursor("HScroll1", Q(Rotulo(266, "Muestra n.º ")).trimmed(), this);
    lblNumero = CreaEtiqueta(this, "lblNumero");
    lblNumero->setAlignment(Qt::AlignCenter);
    lblzoom = CreaEtiqueta(this, "lblzoom");
}

void VistaFasores::CreaBotones()
{
    const auto crea = [this](const char* nombre, const QString& texto, const QString& ayuda) {
        auto* b = new QPushButton(texto, this);
        b->setObjectName(nombre);
        b->setToolTip(ayuda);
        b->setAccessibleName(ayuda);
        return b;
    };
    const QString zoom = Q(Rotulo(61, "Zoom"));
    cmdmas = crea("cmdmas", "+", zoom + " +");
    cmdmenos = crea("cmdmenos", QString(QChar(0x2212)), zoom + " -");
    pctimpresora = crea("pctimpresora", QString(), Q(Rotulo(57, "Imprimir")));
    pctimpresora->setIcon(IconoImprimir());
}

void VistaFasores::CreaTrazos()
{
    for (std::size_t i = 0; i < lineas_.size(); ++i) {
        lineas_[i] = new LineaLibre(kColoresFasor[i], papel_.lineas[i], Picture1);
        marcas_[i] = CreaEtiqueta(this, QString("Label%1").arg(i + 1));
        marcas_[i]->setPixmap(MuestraColor(kColoresFasor[i], devicePixelRatioF()));
        textos_[i] = CreaEtiqueta(this, papel_.textos[i]);
    }
}

void VistaFasores::ConectaControles()
{
    Conecta(HScroll1, &QScrollBar::valueChanged, this, &VistaFasores::HScroll1_Change);
    Conecta(cmdmas, &QPushButton::clicked, this, &VistaFasores::cmdmas_Click);
    Conecta(cmdmenos, &QPushButton::clicked, this, &VistaFasores::cmdmenos_Click);
    Conecta(pctimpresora, &QPushButton::clicked, this, &VistaFasores::pctimpresora_Click);
    Conecta(Picture1, &Lienzo::PideDibujo, this, &VistaFasores::Picture1_PideDibujo);
}

void VistaFasores::Form_Load()
{
    PonPuntero(this, Puntero::Propio);
    const std::int16_t ciclo = MuestrasCiclo(store);
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    const bool media = store.ModoFasecuencia == 2;
    const double ancho = media ? vista.ancho / 2.0 : vista.ancho;
    Coloca(media && papel_.derecha ? ancho : 0.0, 0.0, ancho, vista.alto);
    setWindowTitle(Q(Rotulo(papel_.titulo, papel_.defecto)));
    Picture1->setAccessibleName(windowTitle());
    ColocaControles();
    diagrama_ = std::make_unique<Diagrama>(store, papel_.fasores(), ciclo == 0 ? std::int16_t{1} : ciclo);
    PreparaBarra();
    diagrama_->MaxModulo = papel_.maximo(store);
    diagrama_->Ajusta(Picture1->Ancho(), Picture1->Alto());
    PintaEjes();
    Pinta();
    Cargada = true;
    PonPuntero(this, Puntero::Normal);
}

void VistaFasores::PreparaBarra()
{
    HScroll1->setRange(diagrama_->PrimeraFila(), diagrama_->UltimaFila());
    HScroll1->setSingleStep(1);
    HScroll1->setPageStep(diagrama_->MuestrasCiclo);
    HScroll1->setValue(diagrama_->PrimeraFila());
    lblzoom->setText("+/-: 0");
}

void VistaFasores::ColocaControles()
{
    colocada_ = Interior();
    const LugaresDiagrama l = ColocaDiagrama(ATwips(colocada_.width()), ATwips(colocada_.height()));
    Pon(Picture1, l.Picture1);
    Pon(HScroll1, l.HScroll1);
    Pon(lblNumero, l.lblNumero);
    Pon(cmdmas, l.cmdmas);
    Pon(cmdmenos, l.cmdmenos);
    Pon(lblzoom, l.lblzoom);
    Pon(pctimpresora, l.pctimpresora);
    for (std::size_t i = 0; i < textos_.size(); ++i) {
        Pon(marcas_[i], l.marcas[i]);
        textos_[i]->setFont(font());
        Pon(textos_[i], l.textos[i]);
    }
}

void VistaFasores::PintaEjes()
{
    const double w = Picture1->Ancho(), h = Picture1->Alto();
    Picture1->Limpia(kFondoDiagrama);
    Picture1->Linea(0.0, h / 2.0, w, h / 2.0, kEjesDiagrama);
    Picture1->Linea(w / 2.0, 0.0, w / 2.0, h, kEjesDiagrama);
}

/// Lines and texts of the bar's row. A zoom too deep leaves them as they were.
void VistaFasores::Pinta()
{
    try {
        Muestra(papel_.pinta(store, *diagrama_, HScroll1->value()));
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kDesbordamiento) throw;
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(145));
    }
}

void VistaFasores::Muestra(const CuadroDiagrama& cuadro)
{
    for (std::size_t i = 0; i < lineas_.size(); ++i) {
        const CuadroDiagrama::Linea& l = cuadro.lineas[i];
        if (l.visible) lineas_[i]->Pon(diagrama_->CentroX, diagrama_->CentroY, l.x2, l.y2);
        lineas_[i]->setVisible(l.visible);
        marcas_[i]->setVisible(l.visible);
        PonTexto(textos_[i], Q(cuadro.textos[i]));
    }
    lblNumero->setText(Q(cuadro.numero));
}

/// The two views' bars stand at the same sample.
void VistaFasores::HScroll1_Change()
{
    if (!Cargada) return;
    VistaFasores* otra = store.ModoFasecuencia == 2 ? papel_.otra() : nullptr;
    if (otra) otra->HScroll1->setValue(HScroll1->value());
    Pinta();
}

void VistaFasores::cmdmas_Click()
{
    CambiaZoom(1);
}
void VistaFasores::cmdmenos_Click()
{
    CambiaZoom(-1);
}

void VistaFasores::CambiaZoom(int paso)
{
    const PunteroEspera espera(*this);
    diagrama_->CambiaZoom(paso);
    PintaEjes();
    Pinta();
    lblzoom->setText("+/-: " + Q(FormaDelimitada(diagrama_->NivelZoom)));
    Picture1->setFocus();
}

/// The picture was lost to another screen; the lines above it are not.
void VistaFasores::Picture1_PideDibujo()
{
    if (Cargada) PintaEjes();
}

void VistaFasores::pctimpresora_Click()
{
    const PunteroEspera espera(*this);
    ConImpresora(Picture1->size(), [this](const PeticionImpresion& p) { Imprime(p); });
}

/// Each copy is a document of its own, save in a file, which would keep the last one only.
void VistaFasores::Imprime(const PeticionImpresion& p)
{
    const QFontMetrics medidas = fontMetrics();
    const MedidasLetra letra{ATwips(medidas.horizontalAdvance("AA")), ATwips(medidas.height())};
    const PieFasores pie{Rotulo(papel_.titulo, papel_.defecto), store.FicheroDat, FechaImpresion()};
    for (int copia = 1; copia <= p.copias; ++copia) {
        if (p.impresora->Sentido() != Orientacion::Horizontal)
            p.impresora->PonSentido(Orientacion::Horizontal);
        if (copia > 1 && p.fichero) p.impresora->PaginaNueva();
        ImprimeFasores(*p.impresora,
                       ComponeFasores(store, *diagrama_, papel_.trazos(store), HScroll1->value(),
                                      Picture1->Alto(), pie, *p.impresora, letra));
        if (!p.fichero) p.impresora->Termina();
    }
}

/// The inside may come out a little other than was reckoned before the frame was shown.
void VistaFasores::resizeEvent(QResizeEvent* evento)
{
    Vista::resizeEvent(evento);
    if (Cargada && !Descargado() && size() != colocada_) Atrapa(this, [this] { Recoloca(); });
}

void VistaFasores::Recoloca()
{
    PonPuntero(this, Puntero::Propio);
    ColocaControles();
    diagrama_->Ajusta(Picture1->Ancho(), Picture1->Alto());
    PintaEjes();
    for (LineaLibre* linea : lineas_)
        linea->hide();  // they stand by the former centre
    Pinta();
    PonPuntero(this, Puntero::Normal);
}

void VistaFasores::Form_Minimiza()
{
    escena.ocultaMenu();
}

/// Of two views the last one to go brings the menu back.
void VistaFasores::Form_Unload()
{
    if (store.ModoFasecuencia != 1) {
        store.*papel_.cerrando = true;
        if (!(store.*papel_.otraCerrando)) return;
        store.FasesCerrando = store.SecuenciasCerrando = false;
    }
    escena.muestraMenu();
}

}  // namespace veldix
