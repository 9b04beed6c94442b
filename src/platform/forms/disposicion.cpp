#include "platform/forms/disposicion.h"

#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace veldix {

void OrdenaTeclas(std::initializer_list<QWidget*> bloques)
{
    QWidget* antes = nullptr;
    for (QWidget* bloque : bloques) {
        QWidgetList controles = bloque->findChildren<QWidget*>();
        controles.prepend(bloque);
        for (QWidget* control : std::as_const(controles)) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0) continue;
            if (antes) QWidget::setTabOrder(antes, control);
            antes = control;
        }
    }
}

bool CabeEnPantalla(QWidget& ventana)
{
    const QScreen* pantalla = ventana.screen();
    if (!pantalla || !ventana.layout()) return false;
    const QSize libre = pantalla->availableSize() - kMarcoVentana,
                pide = ventana.layout()->totalMinimumSize();
    if (pide.width() <= libre.width() && pide.height() <= libre.height()) return false;
    QWidget* foco = ventana.focusWidget();  // lost where controls change their parent
    auto* area = new QScrollArea(&ventana);
    area->setFocusPolicy(Qt::NoFocus);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* contenido = new QWidget(area);
    contenido->setLayout(ventana.layout());
    area->setWidget(contenido);
    auto* todo = new QVBoxLayout(&ventana);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(area);
    if (foco) foco->setFocus();
    const int barra = area->verticalScrollBar()->sizeHint().width();
    ventana.resize((pide + QSize(barra, barra)).boundedTo(libre));
    return true;
}

}  // namespace veldix
