#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>

#include <array>

#include "analysis/grupos.h"
#include "platform/forms/formulario.h"
#include "record/forms/MarcoReferencia.h"

namespace veldix {

/// The chooser of the three-phase groups whose phases and whose sequences are to be shown, two of each at
/// most. The reference that it offers on a 1997 record is not applied: the phasors are computed already.
class frmFasecuencias : public Formulario {
    Q_OBJECT

public:
    frmFasecuencias();
    static Portador<frmFasecuencias> unica;

    void TrasError() override;

protected:
    void Form_Unload() override;

private:
    using Cajas = std::array<QCheckBox*, 4>;

    void CreaControles();
    void CreaCajas(QGroupBox* marco, const char* nombre, Cajas& cajas);
    void Dispone();
    void Form_Load();
    static Marcas MarcasDe(const Cajas& cajas);

    void cmdOK_Click();
    void AbreVistas(bool fases, bool secuencias);
    void cmdSalir_Click();

    QGroupBox *Frame1, *Frame2;
    MarcoReferencia* Frame3;
    Cajas fas{}, sec{};
    QPushButton *cmdOK, *cmdSalir;
};

}  // namespace veldix
