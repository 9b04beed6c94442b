#include "platform/forms/etiquetas.h"

#include <QFontMetrics>
#include <QTextDocument>

#include "platform/forms/escena.h"
#include "platform/pantalla.h"
#include "platform/textos.h"

namespace veldix {

QLabel* CreaEtiqueta(QWidget* padre, const QString& nombre)
{
    auto* l = new QLabel(padre);
    l->setObjectName(nombre);
    l->setTextFormat(Qt::PlainText);
    return l;
}

QLabel* CreaRotulo(QWidget* control, const QString& nombre, const std::string& texto)
{
    auto* rotulo = new QLabel(Q(texto), control->parentWidget());
    rotulo->setObjectName(nombre);
    rotulo->setBuddy(control);
    control->setAccessibleName(rotulo->text());
    return rotulo;
}

QPushButton* CreaBoton(QWidget* padre, const char* nombre, int texto, const char* defecto)
{
    auto* b = new QPushButton(Q(Rotulo(texto, defecto)), padre);
    b->setObjectName(nombre);
    return b;
}

/// Hinted letters do not narrow in proportion: what the first guess leaves too wide is narrowed on.
int AnchoLetra(QFont letra, const QString& texto, int ancho)
{
    constexpr int kMenorAncho = 60;
    if (ancho <= 0) return kMenorAncho;
    int parte = letra.stretch() == QFont::AnyStretch ? 100 : letra.stretch();
    int pide = QFontMetrics(letra).horizontalAdvance(texto);
    while (pide > ancho && parte > kMenorAncho) {
        parte = qMax(kMenorAncho, qMin(parte - 1, parte * ancho / pide));
        letra.setStretch(parte);
        pide = QFontMetrics(letra).horizontalAdvance(texto);
    }
    return parte;
}

void PonTexto(QLabel* etiqueta, const QString& texto)
{
    QFont letra = etiqueta->font();
    const int ahora = letra.stretch() == QFont::AnyStretch ? 100 : letra.stretch();
    const int parte = etiqueta->width() > 0 ? AnchoLetra(letra, texto, etiqueta->width()) : ahora;
    if (parte != ahora) {
        letra.setStretch(parte);
        etiqueta->setFont(letra);
    }
    etiqueta->setText(texto);
}

QString Ayuda(const QString& texto)
{
    constexpr qsizetype kMayor = 300;
    const QString corto = texto.left(kMayor);
    return Qt::mightBeRichText(corto) ? "<qt>" + corto.toHtmlEscaped() + "</qt>" : corto;
}

void PonFondo(QWidget* control, QRgb color)
{
    QPalette p = control->palette();
    p.setColor(QPalette::Window, QColor(color));
    p.setColor(QPalette::WindowText, Qt::black);
    control->setPalette(p);
    control->setAutoFillBackground(true);
}

void Pon(QWidget* control, const Lugar& lugar)
{
    control->setGeometry(APixeles(lugar.izquierda), APixeles(lugar.arriba), APixeles(lugar.ancho),
                         APixeles(lugar.alto));
}

}  // namespace veldix
