#include "digital/forms/GrupoEtiquetas.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/pantalla.h"
#include "platform/textos.h"

namespace veldix {

namespace {

constexpr QRgb kCambia = qRgb(192, 192, 255), kElegido = qRgb(255, 255, 0);
constexpr double kLetra = 0.7;     // of a label's height, pixels
constexpr int kMargen = 3;         // pixels
constexpr int kMayorNombre = 300;  // characters, more than any label has room for
constexpr int kMenorAncho = 75;    // percent, of letters that are condensed

/// A label that shows where the keys go.
class Casilla : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* evento) override
    {
        QLabel::paintEvent(evento);
        if (!hasFocus()) return;
        QPainter pintor(this);
        pintor.setPen(QPen(palette().color(foregroundRole()), 2));
        pintor.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    /// A name that is cut is told in full, as under the pointer.
    void focusInEvent(QFocusEvent* evento) override
    {
        QLabel::focusInEvent(evento);
        if (evento->reason() != Qt::MouseFocusReason && text() != accessibleName())
            QToolTip::showText(mapToGlobal(rect().bottomLeft()), toolTip(), this);
    }
};

}  // namespace

GrupoEtiquetas::GrupoEtiquetas(int k, QWidget* padre) : QWidget(padre), k_(k)
{
    int j = 0;
    for (QLabel*& etiqueta : lblgrp_) {
        etiqueta = new Casilla(this);
        etiqueta->setObjectName(QString("lblgrp%1_%2").arg(k).arg(j));
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setProperty("canal", j);
        etiqueta->setIndent(kMargen - 1);
        etiqueta->setEnabled(false);
        etiqueta->installEventFilter(this);
        ++j;
    }
}

void GrupoEtiquetas::Llena(const EleccionManual& eleccion)
{
    if (!eleccion.Existe(k_)) return;
    cuenta_ = eleccion.Cuenta(k_);
    for (int j = 0; j <= cuenta_; ++j) {
        QLabel* etiqueta = lblgrp_.at(static_cast<std::size_t>(j));
        const QString nombre = Q(j == 0 ? eleccion.Grupo(k_) : eleccion.Canal(k_, j));
        etiqueta->setEnabled(true);
        etiqueta->setFrameShape(QFrame::Box);
        etiqueta->setToolTip(Ayuda(nombre));
        etiqueta->setAccessibleName(nombre);
        if (j == 0) continue;
        // The tab key goes from group to group, the arrows inside one.
        etiqueta->setFocusPolicy(j == 1 ? Qt::StrongFocus : Qt::ClickFocus);
        Pinta(j, eleccion.FondoDe(k_, j));
    }
    QFont negrita = lblgrp_[0]->font();
    negrita.setBold(true);
    lblgrp_[0]->setFont(negrita);
}

void GrupoEtiquetas::Pinta(int j, EleccionManual::Fondo fondo)
{
    QLabel* etiqueta = lblgrp_.at(static_cast<std::size_t>(j));
    etiqueta->setAccessibleDescription({});
    switch (fondo) {
        case EleccionManual::Fondo::Elegido:
            PonFondo(etiqueta, kElegido);
            etiqueta->setAccessibleDescription(Q(Rotulo(256, "Canales elegidos")));
            break;
        case EleccionManual::Fondo::Cambia:
            PonFondo(etiqueta, kCambia);
            break;
        case EleccionManual::Fondo::Ventana:
            QPalette lista = palette();
            lista.setColor(QPalette::Window, lista.color(QPalette::Base));
            lista.setColor(QPalette::WindowText, lista.color(QPalette::Text));
            etiqueta->setPalette(lista);
            etiqueta->setAutoFillBackground(true);
            break;
    }
}

void GrupoEtiquetas::Coloca(const LugaresGrid& l)
{
    veldix::Pon(this, l.Grupo(k_));
    double y = 0.0;
    for (QLabel* etiqueta : lblgrp_) {
        veldix::Pon(etiqueta, {0.0, y, l.anchoEtiqueta, l.altoEtiqueta});
        QFont letra = etiqueta->font();
        letra.setStretch(100);
        letra.setPixelSize(std::clamp(static_cast<int>(kLetra * etiqueta->height()), 1,
                                      std::max(1, QFontInfo(font()).pixelSize())));
        etiqueta->setFont(letra);
        y += l.paso;
    }
    PonTextos();
}

/// Long names in condensed letters; what is cut all the same is told by the hint.
void GrupoEtiquetas::PonTextos()
{
    for (QLabel* etiqueta : lblgrp_) {
        const QString nombre = etiqueta->accessibleName().left(kMayorNombre);
        const int ancho = etiqueta->width() - 2 * kMargen;
        const int pide = etiqueta->fontMetrics().horizontalAdvance(nombre);
        if (pide > ancho) {
            QFont letra = etiqueta->font();
            letra.setStretch(std::max(kMenorAncho, 100 * ancho / pide));
            etiqueta->setFont(letra);
        }
        etiqueta->setText(etiqueta->fontMetrics().elidedText(nombre, Qt::ElideRight, ancho));
    }
}

bool GrupoEtiquetas::Enfoca(int j)
{
    if (cuenta_ < 1) return false;
    lblgrp_.at(static_cast<std::size_t>(std::clamp(j, 1, cuenta_)))->setFocus(Qt::OtherFocusReason);
    return true;
}

/// A click is a button that goes up where it went down; the release behind a double click is none.
bool GrupoEtiquetas::Raton(int j, QEvent* evento)
{
    const auto* raton = static_cast<QMouseEvent*>(evento);
    if (raton->button() != Qt::LeftButton) return false;
    QLabel* etiqueta = lblgrp_.at(static_cast<std::size_t>(j));
    const bool baja = evento->type() == QEvent::MouseButtonPress;
    const int pulsada = std::exchange(pulsada_, baja ? j : 0);
    if (baja)
        etiqueta->setFocus(Qt::MouseFocusReason);
    else if (evento->type() == QEvent::MouseButtonDblClick)
        Q_EMIT DblClick(j);
    else if (pulsada == j && etiqueta->rect().contains(raton->position().toPoint()))
        Q_EMIT Click(j);
    return true;
}

bool GrupoEtiquetas::Tecla(int j, int tecla)
{
    switch (tecla) {
        case Qt::Key_Space:
            Q_EMIT Click(j);
            return true;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            Q_EMIT Quita(j);
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            Enfoca(j + (tecla == Qt::Key_Up ? -1 : 1));
            return true;
        case Qt::Key_Left:
        case Qt::Key_Right:
            Q_EMIT Sale(tecla == Qt::Key_Left ? -1 : 1, j);
            return true;
        default:
            return false;
    }
}

bool GrupoEtiquetas::eventFilter(QObject* objeto, QEvent* evento)
{
    auto* etiqueta = qobject_cast<QLabel*>(objeto);
    const int j = objeto->property("canal").toInt();
    if (!etiqueta || !etiqueta->isEnabled() || j < 1) return QWidget::eventFilter(objeto, evento);
    switch (evento->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return Raton(j, evento);
        case QEvent::KeyPress:
            if (Tecla(j, static_cast<QKeyEvent*>(evento)->key())) return true;
            break;
        default:
            break;
    }
    return QWidget::eventFilter(objeto, evento);
}

}  // namespace veldix
