#include "platform/forms/BarraCursor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimerEvent>

namespace veldix {

BarraCursor::BarraCursor(const QString& nombre, const QString& accesible, QWidget* padre)
    : QScrollBar(Qt::Horizontal, padre)
{
    setObjectName(nombre);
    setAccessibleName(accesible);
    setFocusPolicy(Qt::StrongFocus);
}

/// Styles draw no focus on a scroll bar.
void BarraCursor::paintEvent(QPaintEvent* evento)
{
    constexpr int kMarco = 2;
    QScrollBar::paintEvent(evento);
    if (!hasFocus()) return;
    QPainter p(this);
    p.setPen(QPen(palette().color(QPalette::Highlight), kMarco));
    p.drawRect(rect().adjusted(1, 1, -1, -1));
}

/// A scroll bar's own Up and Down run against its page keys.
void BarraCursor::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            triggerAction(SliderSingleStepSub);
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            triggerAction(SliderSingleStepAdd);
            break;
        default:
            QScrollBar::keyPressEvent(evento);
    }
}

void BarraCursor::mousePressEvent(QMouseEvent* evento)
{
    const QPointer<BarraCursor> vivo(this);
    ocupada_ = true;
    QScrollBar::mousePressEvent(evento);
    if (vivo) ocupada_ = false;
}

/// A held arrow steps on by a timer. While a message box stands over a step, the release of the button goes
/// to the box: the bar lets go by itself, or every step behind it would open one more.
void BarraCursor::timerEvent(QTimerEvent* evento)
{
    if (ocupada_) {
        Suelta();
        return;
    }
    const QPointer<BarraCursor> vivo(this);
    ocupada_ = true;
    QScrollBar::timerEvent(evento);
    if (vivo) ocupada_ = false;
}

void BarraCursor::Suelta()
{
    const QPointF fuera(-1.0, -1.0);
    QMouseEvent sube(QEvent::MouseButtonRelease, fuera, mapToGlobal(fuera), Qt::LeftButton, Qt::NoButton,
                     Qt::NoModifier);
    mouseReleaseEvent(&sube);
}

}  // namespace veldix
