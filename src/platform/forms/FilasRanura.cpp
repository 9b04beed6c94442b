#include "platform/forms/FilasRanura.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/forms/escena.h"

namespace veldix {

namespace {

const QColor kMarcada(0xFF, 0xFF, 0x00);
const QColor kSinMarca(0xFF, 0xFF, 0xFF);
constexpr int kLadoPunto = 14;  // pixels

void Pinta(QLabel* punto, bool activa)
{
    QPalette p = punto->palette();
    p.setColor(QPalette::Window, activa ? kMarcada : kSinMarca);
    punto->setPalette(p);
}

}  // namespace

FilasRanura::FilasRanura(int cuantas, QWidget* padre, const Opciones& opciones)
    : QWidget(padre), primera_(opciones.primera), editable_(opciones.editable)
{
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    if (editable_) rejilla->setVerticalSpacing(1);
    const int nombre = editable_ ? 2 : 1, numero = editable_ ? 1 : 2;
    rejilla->setColumnStretch(nombre, 1);
    for (int k = primera_; k < primera_ + cuantas; ++k) {
        const Fila f = CreaFila(k, opciones);
        rejilla->addWidget(f.lblpunt, k - primera_, 0);
        rejilla->addWidget(f.grp, k - primera_, nombre);
        rejilla->addWidget(editable_ ? static_cast<QWidget*>(f.numero) : f.lbl, k - primera_, numero);
        filas_.push_back(f);
    }
}

FilasRanura::Fila FilasRanura::CreaFila(int k, const Opciones& opciones)
{
    const QString sufijo = opciones.juego + QString::number(k);
    Fila f{new QLabel(this), nullptr};
    f.lblpunt->setObjectName("lblpunt" + sufijo);
    f.lblpunt->setFixedSize(kLadoPunto, kLadoPunto);
    f.lblpunt->setFrameShape(QFrame::Box);
    f.lblpunt->setAutoFillBackground(true);
    CreaNumero(f, k, opciones);
    f.grp = new QLineEdit(this);
    f.grp->setObjectName("grp" + sufijo);
    f.grp->setReadOnly(!editable_);
    f.grp->setMinimumWidth(f.grp->fontMetrics().averageCharWidth() * (editable_ ? 32 : 24));
    f.grp->setAccessibleName((opciones.nombre + " %1").arg(k).trimmed());
    connect(f.grp, &QLineEdit::textChanged, this, [this, k] { Q_EMIT Change(k); });
    Vigila(f.lblpunt, k);
    Vigila(f.grp, k);
    return f;
}

void FilasRanura::CreaNumero(Fila& fila, int k, const Opciones& opciones)
{
    const QString nombre = "lbl" + opciones.juego + QString::number(k);
    if (editable_) {
        fila.numero = new QLineEdit(this);
        fila.numero->setObjectName(nombre);
        fila.numero->setAccessibleName((opciones.numero + " %1").arg(k));
        fila.numero->setAlignment(Qt::AlignRight);
        fila.numero->setFixedWidth(fila.numero->fontMetrics().horizontalAdvance("0000000"));
        connect(fila.numero, &QLineEdit::textChanged, this, [this, k] { Q_EMIT CambiaNumero(k); });
        Vigila(fila.numero, k);
        return;
    }
    fila.lbl = new QLabel(this);
    fila.lbl->setObjectName(nombre);
    fila.lbl->setMinimumWidth(fila.lbl->fontMetrics().horizontalAdvance("00000"));
    fila.lbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void FilasRanura::Vigila(QWidget* control, int k)
{
    control->setProperty("ranura", k);
    control->installEventFilter(this);
}

void FilasRanura::Muestra(const Ranuras& ranuras)
{
    int k = primera_ - 1;
    for (const Fila& f : filas_) {
        ++k;
        Marca(f, k == ranuras.Activa());
        if (const QString texto = Q(ranuras(k).texto); f.grp->text() != texto) {
            f.grp->setText(texto);
            f.grp->setCursorPosition(0);
        }
        if (f.lbl) f.lbl->setText(Q(ranuras(k).numero));
        if (f.numero) f.numero->setText(Q(ranuras(k).numero));
    }
}

/// For the eye, and for who has the screen read.
void FilasRanura::Marca(const Fila& fila, bool activa)
{
    Pinta(fila.lblpunt, activa);
    fila.grp->setAccessibleDescription(activa ? "*" : "");
}

void FilasRanura::Desmarca()
{
    for (const Fila& f : filas_)
        Marca(f, false);
}

bool FilasRanura::eventFilter(QObject* objeto, QEvent* evento)
{
    // A filter sees the mouse of a disabled row too.
    const auto* fila = qobject_cast<QWidget*>(objeto);
    if (!fila || !fila->isEnabled()) return QWidget::eventFilter(objeto, evento);
    const int k = objeto->property("ranura").toInt();
    const bool caja = qobject_cast<QLineEdit*>(objeto) != nullptr;
    const auto izquierdo = [&] { return static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton; };
    if (evento->type() == QEvent::MouseButtonPress && izquierdo()) {
        Q_EMIT Click(k);
    } else if (evento->type() == QEvent::MouseButtonDblClick && caja) {
        if (izquierdo()) Q_EMIT DblClick(k);
        return true;
    } else if (evento->type() == QEvent::KeyPress && caja) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        const bool borra = tecla == Qt::Key_Delete || tecla == Qt::Key_Backspace;
        if (tecla == (editable_ ? Qt::Key_F2 : Qt::Key_Space)) Q_EMIT Click(k);
        if (editable_ ? tecla == Qt::Key_F8 : borra) Q_EMIT DblClick(k);
    }
    return QWidget::eventFilter(objeto, evento);
}

}  // namespace veldix
