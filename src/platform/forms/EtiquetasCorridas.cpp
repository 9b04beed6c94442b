#include "platform/forms/EtiquetasCorridas.h"

#include <QMouseEvent>

#include <algorithm>

#include "platform/errores.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/formulario.h"
#include "platform/texto.h"

namespace veldix {

EtiquetasCorridas::EtiquetasCorridas(std::vector<QLabel*> etiquetas, QScrollBar* barra, Formulario* form)
    : QObject(form), etiquetas_(std::move(etiquetas)), nombres_(etiquetas_.size()), barra_(barra), form_(form)
{
    for (QLabel* etiqueta : etiquetas_)
        etiqueta->installEventFilter(this);
    barra_->setRange(0, 0);
    Conecta(barra_, &QScrollBar::valueChanged, form_, [this](Formulario*) { Corre(); });
}

std::size_t EtiquetasCorridas::Sitio(int k) const
{
    if (k < 1 || k > Cuantas()) Lanza(error::kSubindice);
    return static_cast<std::size_t>(k - 1);
}

QLabel* EtiquetasCorridas::Etiqueta(int k) const
{
    return etiquetas_[Sitio(k)];
}

const std::string& EtiquetasCorridas::Nombre(int k) const
{
    return nombres_[Sitio(k)];
}

void EtiquetasCorridas::Pon(int k, const std::string& texto)
{
    Etiqueta(k)->setText(Q(texto));
    MuestraPrincipio(k, false);
}

void EtiquetasCorridas::MuestraPrincipio(int k, bool principio)
{
    const Qt::Alignment lado = Etiqueta(k)->alignment();
    if (lado.testFlag(Qt::AlignVCenter)) return;
    Etiqueta(k)->setAlignment((lado & Qt::AlignHorizontal_Mask) |
                              (principio ? Qt::AlignTop : Qt::AlignBottom));
}

void EtiquetasCorridas::Guarda(int k)
{
    nombres_[Sitio(k)] = U(Etiqueta(k)->text());
    Etiqueta(k)->setToolTip(Ayuda(Etiqueta(k)->text()));
}

void EtiquetasCorridas::PonEntero(int k, const std::string& texto)
{
    Pon(k, texto);
    Guarda(k);
    barra_->setMaximum(std::max(barra_->maximum(), static_cast<int>(NumCaracteres(texto))));
}

void EtiquetasCorridas::Recoge(int hasta, bool soloCrece)
{
    int largo = soloCrece ? barra_->maximum() : 0;
    for (int k = 1; k <= hasta; ++k) {
        Guarda(k);
        largo = std::max(largo, static_cast<int>(NumCaracteres(Nombre(k))));
    }
    const QSignalBlocker calla(barra_);  // the labels show their texts whole
    barra_->setMaximum(largo);
}

void EtiquetasCorridas::Corre()
{
    const auto quita = static_cast<std::size_t>(barra_->value());
    for (int k = 1; k <= Cuantas(); ++k) {
        const std::size_t largo = NumCaracteres(Nombre(k));
        Pon(k, std::string(Derecha(Nombre(k), largo - std::min(largo, quita))));
        MuestraPrincipio(k, quita > 0);
    }
}

void EtiquetasCorridas::Restaura(int k)
{
    Pon(k, Nombre(k));
    MuestraPrincipio(k, true);
}

bool EtiquetasCorridas::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::MouseButtonRelease) return false;
    const auto* raton = static_cast<QMouseEvent*>(evento);
    const auto sitio = std::find(etiquetas_.begin(), etiquetas_.end(), objeto);
    if (raton->button() != Qt::LeftButton || sitio == etiquetas_.end()) return false;
    const bool dentro = (*sitio)->isEnabled() && (*sitio)->rect().contains(raton->position().toPoint());
    if (dentro && !form_->Descargado())
        Atrapa(form_, [&] { Restaura(static_cast<int>(sitio - etiquetas_.begin()) + 1); });
    return false;
}

}  // namespace veldix
