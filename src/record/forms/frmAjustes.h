#pragma once

#include <QListWidget>
#include <QPushButton>

#include <string>
#include <vector>

#include "platform/forms/formulario.h"

namespace veldix {

/// The header file of the record as a plain list of lines, and its print.
class frmAjustes : public Vista {
    Q_OBJECT

public:
    /// Loads it, hidden. A failure unloads it.
    frmAjustes();
    static Portador<frmAjustes> unica;
    /// Loads it anew and shows it in place of the menu. One without a header file closes at once.
    static void Abre();

    void TrasError() override { Descarga(); }
    void Form_Activate() override;

protected:
    void Form_Unload() override;
    void Form_Resize() override;

private:
    void Form_Load();
    void ColocaControles();
    void cmdImprimir_Click();

    QListWidget* Lista1;
    QPushButton* cmdImprimir;
    std::vector<std::string> lineas_;
    bool fallo_ = false;  ///< there was no header file
};

}  // namespace veldix
