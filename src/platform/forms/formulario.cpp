#include "platform/forms/formulario.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QStyle>

#include "platform/forms/escena.h"
#include "platform/pantalla.h"

namespace veldix {

Formulario::Formulario(QWidget* padre, Qt::WindowFlags banderas) : QWidget(padre, banderas) {}

void Formulario::Descarga()
{
    if (descargado_) return;
    descargado_ = true;
    try {
        Form_Unload();
    } catch (const std::exception&) {
        AvisaError(ErrorEnVuelo());
    }
    if (QWidget* marco = Marco()) {
        marco->hide();
        marco->deleteLater();
    }
}

void Formulario::closeEvent(QCloseEvent* evento)
{
    evento->ignore();
    Atrapa(this, [this] {
        Descarga();
        TrasCierre();
    });
}

void Formulario::PonBotones(QAbstractButton* porDefecto, QAbstractButton* cancela)
{
    porDefecto_ = porDefecto;
    cancela_ = cancela;
    if (auto* boton = qobject_cast<QPushButton*>(porDefecto)) boton->setDefault(true);
}

void Formulario::keyPressEvent(QKeyEvent* evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    QAbstractButton* boton = nullptr;
    if (enter) {
        // A ticked box or an option is not pressed by Enter: the space bar is theirs.
        auto* conFoco = qobject_cast<QPushButton*>(focusWidget());
        boton = conFoco ? conFoco : porDefecto_.data();
    } else if (evento->key() == Qt::Key_Escape) {
        boton = cancela_;
    }
    if (boton && (evento->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier)
        boton->click();
    else
        QWidget::keyPressEvent(evento);
}

Vista::Vista(int etiqueta) : Formulario(nullptr), etiqueta_(etiqueta)
{
    setAutoFillBackground(true);  // a step of a bar then paints nothing of the frame behind
    setAttribute(Qt::WA_DeleteOnClose, false);
    ventana_ = new QMdiSubWindow;
    ventana_->setWidget(this);
    ventana_->setAttribute(Qt::WA_DeleteOnClose, false);
    if (escena.area) escena.area->addSubWindow(ventana_);
    ventana_->installEventFilter(this);
}

QWidget* Vista::Marco()
{
    if (!escena.area) return ventana_;
    // Out of the area at once; the view that was active before it takes its place and the focus.
    escena.area->removeSubWindow(ventana_);
    const auto quedan = escena.area->subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto it = quedan.rbegin(); it != quedan.rend(); ++it)
        if ((*it)->isVisible()) {
            escena.area->setActiveSubWindow(*it);
            break;
        }
    return ventana_;
}

bool Vista::eventFilter(QObject* objeto, QEvent* evento)
{
    if (Descargado() || objeto != ventana_) return Formulario::eventFilter(objeto, evento);
    if (evento->type() == QEvent::WindowStateChange && ventana_->isMinimized() && !minimizada_) {
        minimizada_ = true;
        Atrapa(this, [this] { Form_Minimiza(); });
    }
    if (evento->type() == QEvent::Resize && !ventana_->isMinimized()) {
        const bool nueva = minimizada_ || ventana_->size() != tamano_;
        minimizada_ = false;
        tamano_ = ventana_->size();
        if (nueva) Atrapa(this, [this] { Form_Resize(); });
    }
    return Formulario::eventFilter(objeto, evento);
}

void Vista::Coloca(double izquierda, double arriba, double ancho, double alto)
{
    tamano_ = QSize(APixeles(ancho), APixeles(alto));
    ventana_->setGeometry(APixeles(izquierda), APixeles(arriba), APixeles(ancho), APixeles(alto));
}

void Vista::Presenta(QWidget* foco)
{
    escena.ocultaMenu();
    ventana_->showNormal();
    foco->setFocus();
}

double Vista::AnchoVentana() const
{
    return ATwips(ventana_->width());
}
double Vista::AltoVentana() const
{
    return ATwips(ventana_->height());
}

QSize Vista::Interior() const
{
    if (ventana_->isVisible()) return size();
    const int marco = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int titulo = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return (ventana_->size() - QSize(2 * marco, marco + qMax(marco, titulo))).expandedTo(QSize(0, 0));
}

Formulario* FormularioDe(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto* marco = qobject_cast<QMdiSubWindow*>(widget))
            return qobject_cast<Formulario*>(marco->widget());
        if (auto* form = qobject_cast<Formulario*>(widget)) return form;
        if (widget->isWindow()) break;
    }
    return nullptr;
}

}  // namespace veldix
