#include "shell/forms/gasolino.h"

#include <QMdiArea>

#include <algorithm>

#include "platform/forms/escena.h"
#include "platform/forms/muestra_pintada.h"
#include "platform/pantalla.h"

namespace veldix {

namespace {

constexpr double kMargenIzquierdo = 100, kMargenInferior = 96;  // twips
constexpr int kBorde = 3;                                       // pixels around the track

QLabel* NuevaEtiqueta(const char* nombre, QWidget* padre)
{
    auto* etiqueta = new QLabel(padre);
    etiqueta->setObjectName(QLatin1String(nombre));
    etiqueta->setAutoFillBackground(true);
    return etiqueta;
}

}  // namespace

Portador<gasolino> gasolino::unica;

gasolino::gasolino()
    : Formulario(escena.principal, escena.principal ? Qt::Widget : Qt::Tool),
      Label1(NuevaEtiqueta("Label1", this)),
      Label2(NuevaEtiqueta("Label2", this))
{
    setObjectName(QStringLiteral("gasolino"));
    setAutoFillBackground(true);
    Label1->setBackgroundRole(QPalette::Base);
    Label2->setBackgroundRole(QPalette::Highlight);
    Label2->setForegroundRole(QPalette::HighlightedText);
    Label2->setIndent(4);
    Form_Load();
    MuestraPintada(*this);
}

void gasolino::Form_Load()
{
    // Five points of the track, the first that an opening shows, hold their caption.
    const int cinco = fontMetrics().horizontalAdvance(QStringLiteral("10 %")) + 4;
    const int alto = fontMetrics().height() + 6;
    int ancho = 20 * cinco;
    if (escena.principal) {
        const int libre = escena.principal->width() - 2 * (APixeles(kMargenIzquierdo) + kBorde);
        ancho = std::min(ancho, std::max(libre, cinco));
    }
    resize(ancho + 2 * kBorde, alto + 2 * kBorde);
    Label1->setGeometry(kBorde, kBorde, ancho, alto);
    Label2->setGeometry(kBorde, kBorde, 0, alto);
    Label2->hide();
    if (!escena.principal) return;
    const QMdiArea* area = escena.area;
    const int franja =
        area ? area->mapTo(escena.principal, QPoint(0, area->height())).y() : escena.principal->height();
    move(APixeles(kMargenIzquierdo), franja - height() - APixeles(kMargenInferior));
}

double gasolino::Pista() const
{
    return ATwips(Label1->width());
}

void gasolino::Pinta(double ancho)
{
    Label2->resize(std::clamp(APixeles(ancho), 0, Label1->width()), Label2->height());
    repaint();
}

void gasolino::LlenarGasolino(bool relativo, std::int16_t valor)
{
    const DibujoMedidor dibujo = medidor_.Llena(relativo, valor, Pista());
    Label2->setVisible(!dibujo.reinicia);
    if (dibujo.reinicia) {
        Label1->clear();
        Pinta(0);
    }
    for (const DibujoMedidor::Paso& paso : dibujo.pasos) {
        Label2->setText(Q(paso.rotulo));
        Pinta(paso.ancho);
    }
}

void gasolino::PintaGasolino(double /*x*/, double porcentaje, double& resultado)
{
    resultado = AnchoMedidor(Pista(), porcentaje);
    Pinta(resultado);
}

}  // namespace veldix
