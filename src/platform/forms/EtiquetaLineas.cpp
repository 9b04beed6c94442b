#include "platform/forms/EtiquetaLineas.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

#include "platform/forms/etiquetas.h"

namespace veldix {

namespace {

QStringList Parte(const QString& texto, const QFont& letra, int ancho)
{
    QTextLayout reparto(texto, letra);
    QTextOption opcion;
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    reparto.setTextOption(opcion);
    QStringList lineas;
    reparto.beginLayout();
    for (QTextLine linea = reparto.createLine(); linea.isValid(); linea = reparto.createLine()) {
        linea.setLineWidth(ancho);
        lineas.append(texto.mid(linea.textStart(), linea.textLength()).trimmed());
    }
    reparto.endLayout();
    return lineas;
}

/// Lines of a place; less than one counts as one.
int Caben(const QFontMetrics& metrica, int alto)
{
    constexpr int kHolgura = 2;  // pixels of the letters' height that hold no letter
    return qMax(1, (alto + kHolgura) / metrica.height());
}

QString PalabraMasAncha(const QString& texto, const QFontMetrics& metrica)
{
    QString mayor;
    int ancho = 0;
    const QStringList palabras = texto.split(' ');
    for (const QString& palabra : palabras)
        if (const int pide = metrica.horizontalAdvance(palabra); pide > ancho) {
            ancho = pide;
            mayor = palabra;
        }
    return mayor;
}

/// The value and its units, behind the last colon; units may have blanks in them and behind them.
QString Valor(const QString& texto)
{
    const qsizetype nombre = texto.lastIndexOf(": ");
    return (nombre < 0 ? texto : texto.mid(nombre + 2)).trimmed();
}

/// As many of the last words as fit, never fewer than the value and its units: half a figure would be
/// misread.
QString UltimasPalabras(const QString& texto, const QFontMetrics& metrica, int ancho)
{
    const QString valor = Valor(texto);
    QString resto = texto.trimmed();
    while (metrica.horizontalAdvance(resto) > ancho && resto.size() > valor.size()) {
        resto.remove(0, resto.indexOf(' ') + 1);
        if (const QString marcado = "…" + resto; metrica.horizontalAdvance(marcado) <= ancho) return marcado;
    }
    // The toolkit would elide a text that only just fits.
    return metrica.horizontalAdvance(resto) <= ancho ? resto
                                                     : metrica.elidedText(resto, Qt::ElideRight, ancho);
}

}  // namespace

QStringList LineasVisibles(const QString& texto, const QFont& letra, QSize lugar, bool ultimas)
{
    if (lugar.width() <= 0) return {};
    const QFontMetrics metrica(letra);
    const int caben = Caben(metrica, lugar.height());
    if (caben == 1)
        return {ultimas ? UltimasPalabras(texto, metrica, lugar.width())
                        : metrica.elidedText(texto, Qt::ElideRight, lugar.width())};
    const QStringList lineas = Parte(texto, letra, lugar.width());
    return ultimas ? lineas.mid(qMax<qsizetype>(0, lineas.size() - caben)) : lineas.mid(0, caben);
}

EtiquetaLineas::EtiquetaLineas(QWidget* padre, const QString& nombre) : QLabel(padre)
{
    setObjectName(nombre);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignBottom);
}

void EtiquetaLineas::changeEvent(QEvent* evento)
{
    if (evento->type() == QEvent::FontChange) anchoLetra_ = 100;
    QLabel::changeEvent(evento);
}

void EtiquetaLineas::resizeEvent(QResizeEvent* evento)
{
    anchoLetra_ = 100;
    QLabel::resizeEvent(evento);
}

void EtiquetaLineas::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter p(this);
    drawFrame(&p);
    const QRect lugar = contentsRect();
    QFont letra = font();
    letra.setStretch(anchoLetra_);
    const QFontMetrics metrica(letra);
    // In a single line the value is to stand beside its units.
    const QString entero =
        Caben(metrica, lugar.height()) == 1 ? Valor(text()) : PalabraMasAncha(text(), metrica);
    anchoLetra_ = AnchoLetra(letra, entero, lugar.width());
    letra.setStretch(anchoLetra_);
    p.setFont(letra);
    p.setPen(palette().color(foregroundRole()));
    const bool ultimas = alignment().testFlag(Qt::AlignBottom);
    const QStringList lineas = LineasVisibles(text(), letra, lugar.size(), ultimas);
    const int alto = QFontMetrics(letra).height();
    int arriba = ultimas ? lugar.bottom() + 1 - alto * static_cast<int>(lineas.size()) : lugar.top();
    for (const QString& linea : lineas) {
        p.drawText(QRect(lugar.left(), arriba, lugar.width(), alto), Qt::AlignLeft | Qt::TextSingleLine,
                   linea);
        arriba += alto;
    }
}

}  // namespace veldix
