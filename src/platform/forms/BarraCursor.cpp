#include "platform/forms/BarraCursor.h"

#include <QKeyEvent>

namespace veldix {

BarraCursor::BarraCursor(const QString& nombre, const QString& accesible, QWidget* padre)
    : QScrollBar(Qt::Horizontal, padre)
{
    setObjectName(nombre);
    setAccessibleName(accesible);
    setFocusPolicy(Qt::StrongFocus);
}

/// A scroll bar's own arrow keys run against the page keys.
void BarraCursor::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
        case Qt::Key_Left:
        case Qt::Key_Down:
            triggerAction(SliderSingleStepSub);
            break;
        case Qt::Key_Right:
        case Qt::Key_Up:
            triggerAction(SliderSingleStepAdd);
            break;
        default:
            QScrollBar::keyPressEvent(evento);
    }
}

}  // namespace veldix
