#include "platform/forms/formulario.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "platform/forms/escena.h"
#include "platform/pantalla.h"

namespace veldix {

Formulario::Formulario(QWidget* padre, Qt::WindowFlags banderas) : QWidget(padre, banderas) {}

void Formulario::Descarga()
{
    if (descargado_) return;
    descargado_ = true;
    Form_Unload();
    if (QWidget* marco = Marco()) {
        marco->hide();
        marco->deleteLater();
    }
}

void Formulario::closeEvent(QCloseEvent* evento)
{
    evento->ignore();
    Atrapa(this, [this] { Descarga(); });
}

Vista::Vista(int etiqueta) : Formulario(nullptr), etiqueta_(etiqueta)
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    ventana_ = new QMdiSubWindow;
    ventana_->setWidget(this);
    ventana_->setAttribute(Qt::WA_DeleteOnClose, false);
    if (escena.area) escena.area->addSubWindow(ventana_);
}

QWidget* Vista::Marco()
{
    if (!ventana_) return nullptr;
    // Out of the area at once, so that it is no longer the active child.
    if (escena.area) escena.area->removeSubWindow(ventana_);
    return ventana_;
}

void Vista::Coloca(double izquierda, double arriba, double ancho, double alto)
{
    ventana_->setGeometry(APixeles(izquierda), APixeles(arriba), APixeles(ancho), APixeles(alto));
}

double Vista::AnchoVentana() const
{
    return ATwips(ventana_->width());
}
double Vista::AltoVentana() const
{
    return ATwips(ventana_->height());
}

Formulario* FormularioDe(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (auto* form = qobject_cast<Formulario*>(widget)) return form;
    return nullptr;
}

}  // namespace veldix
