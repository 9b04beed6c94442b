#pragma once

#include <QLineEdit>

#include <vector>

#include "platform/forms/ElectorCarpetas.h"
#include "platform/forms/formulario.h"
#include "tools/herramientas.h"

class QLabel;
class QPushButton;

namespace veldix {

/// Adds an external tool to the settings where `NuevoTool` was set when the window was opened, else removes
/// one.
class frmNuevosTools : public Formulario {
    Q_OBJECT

public:
    frmNuevosTools();
    static Portador<frmNuevosTools> unica;

private:
    void CreaControles();
    void Dispone();
    void ModoNuevo();
    void ModoBorrar();

    void File1_Click();
    void Dir1_Change();
    void List1_Click();
    void cmdOK_Click();
    void cmdcancel_Click();

    const Herramienta& Elegida() const;
    void Anade();
    void Borra();

    const bool nuevo_;  ///< adds; closing a record clears the flag while the window stands
    QLabel *Label1, *Label2, *Label3, *Label6;  ///< of the two fields and of the two lists
    QLineEdit *txtNombre, *txtPath;
    ListaFicheros* File1;
    ElectorCarpetas* carpetas_;
    ListaClic* List1;
    QPushButton *cmdOK, *cmdcancel;

    std::vector<Herramienta> herramientas_;  ///< of the lines of List1
};

}  // namespace veldix
