#pragma once

#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>

#include <vector>

#include "platform/forms/FilasRanura.h"
#include "platform/forms/escena.h"
#include "platform/forms/formulario.h"
#include "platform/ranuras.h"
#include "platform/tabla.h"
#include "record/forms/MarcoReferencia.h"

namespace veldix {

/// What the choosers of analog channels have in common: the list of channels, the slots that a double click
/// fills, the side of a 1997 record, and how an opening that failed is undone.
class ElectorOndas : public Formulario {
    Q_OBJECT

public:
    void TrasError() override;

protected:
    /// `marco` is the name of the reference frame.
    ElectorOndas(const char* nombre, const char* marco, Ranuras ranuras);

    void Form_Unload() override;
    /// Lets go of what an opening had begun.
    virtual void Deshace() = 0;

    /// A row of slots that this form shows, `cuantas` from `primera` on.
    FilasRanura* CreaFilas(int cuantas, QGroupBox* marco, int primera = 1);
    /// The record's channels in List1, and its first line current.
    void LlenaLista();
    /// Pointers back, a box, and the dialog stands.
    void Rechaza(int texto, Icono icono);
    /// The dialog gives way to the gauge. From here on a failure undoes the opening.
    void EmpiezaApertura(int avance);
    void AcabaApertura();
    /// Shows the windows that live, of which `abiertas` are left: one that failed has closed itself, so that
    /// the menu goes only when another is there.
    template <class V>
    static void MuestraVentanas(const Tabla1<V*>& ventanas, int abiertas)
    {
        if (abiertas == 0) return;
        escena.ocultaMenu();
        for (V* ventana : ventanas) {
            if (!ventana) continue;
            ventana->Ventana().showNormal();
            ventana->Plot()->setFocus();
        }
    }
    template <class V>
    static void DescargaVentanas(const Tabla1<V*>& ventanas)
    {
        for (V* ventana : ventanas)
            if (ventana) ventana->Descarga();
    }

    QListWidget* List1;
    MarcoReferencia* referencia_;
    Ranuras ranuras_;
    bool abriendo_ = false;

private:
    void List1_DblClick();
    void grp_Click(int k);
    void grp_DblClick(int k);
    void grp_Change(int k);
    void MuestraRanuras();

    std::vector<FilasRanura*> filas_;
};

}  // namespace veldix
