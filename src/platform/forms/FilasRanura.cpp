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

FilasRanura::FilasRanura(int cuantas, QWidget* padre, const QString& juego, int primera)
    : QWidget(padre), primera_(primera)
{
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setColumnStretch(1, 1);
    for (int k = primera_; k < primera_ + cuantas; ++k) {
        Fila f{new QLabel(this), new QLineEdit(this), new QLabel(this)};
        f.lblpunt->setObjectName(QString("lblpunt%1%2").arg(juego).arg(k));
        f.grp->setObjectName(QString("grp%1%2").arg(juego).arg(k));
        f.lbl->setObjectName(QString("lbl%1%2").arg(juego).arg(k));
        f.lblpunt->setFixedSize(kLadoPunto, kLadoPunto);
        f.lblpunt->setFrameShape(QFrame::Box);
        f.lblpunt->setAutoFillBackground(true);
        f.grp->setReadOnly(true);
        f.grp->setMinimumWidth(f.grp->fontMetrics().averageCharWidth() * 24);
        f.grp->setAccessibleName(QString::number(k));
        f.lbl->setMinimumWidth(f.lbl->fontMetrics().horizontalAdvance("00000"));
        f.lbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        for (QWidget* w : {static_cast<QWidget*>(f.lblpunt), static_cast<QWidget*>(f.grp)}) {
            w->setProperty("ranura", k);
            w->installEventFilter(this);
        }
        connect(f.grp, &QLineEdit::textChanged, this, [this, k] { Q_EMIT Change(k); });
        rejilla->addWidget(f.lblpunt, k - primera_, 0);
        rejilla->addWidget(f.grp, k - primera_, 1);
        rejilla->addWidget(f.lbl, k - primera_, 2);
        filas_.push_back(f);
    }
}

void FilasRanura::Muestra(const Ranuras& ranuras)
{
    int k = primera_ - 1;
    for (const Fila& f : filas_) {
        ++k;
        Pinta(f.lblpunt, k == ranuras.Activa());
        f.lbl->setText(Q(ranuras(k).numero));
        f.grp->setText(Q(ranuras(k).texto));
        f.grp->setCursorPosition(0);
    }
}

void FilasRanura::Desmarca()
{
    for (const Fila& f : filas_)
        Pinta(f.lblpunt, false);
}

bool FilasRanura::eventFilter(QObject* objeto, QEvent* evento)
{
    // A filter sees the mouse of a disabled row too.
    const auto* fila = qobject_cast<QWidget*>(objeto);
    if (!fila || !fila->isEnabled()) return QWidget::eventFilter(objeto, evento);
    const int k = objeto->property("ranura").toInt();
    const bool nombre = qobject_cast<QLineEdit*>(objeto) != nullptr;
    const auto izquierdo = [&] { return static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton; };
    if (evento->type() == QEvent::MouseButtonPress && izquierdo()) {
        Q_EMIT Click(k);
    } else if (evento->type() == QEvent::MouseButtonDblClick && nombre) {
        if (izquierdo()) Q_EMIT DblClick(k);
        return true;
    } else if (evento->type() == QEvent::KeyPress && nombre) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Space) Q_EMIT Click(k);
        if (tecla == Qt::Key_Delete || tecla == Qt::Key_Backspace) Q_EMIT DblClick(k);
    }
    return QWidget::eventFilter(objeto, evento);
}

}  // namespace veldix
