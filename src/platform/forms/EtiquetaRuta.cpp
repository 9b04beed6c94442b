#include "platform/forms/EtiquetaRuta.h"

#include <QPainter>

#include "platform/forms/etiquetas.h"

namespace veldix {

EtiquetaRuta::EtiquetaRuta(QWidget* padre) : QLabel(padre)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void EtiquetaRuta::PonRuta(const QString& ruta)
{
    setText(ruta);
    setToolTip(Ayuda(ruta));
}

void EtiquetaRuta::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter,
               fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
}

}  // namespace veldix
