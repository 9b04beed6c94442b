#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <string>

#include "platform/forms/ListaCarpetas.h"
#include "platform/forms/formulario.h"

namespace veldix {

/// The default folders of records, templates and external tools.
class frmDirect : public Formulario {
    Q_OBJECT

public:
    static Portador<frmDirect> unica;

    frmDirect();

private:
    /// One of the three folders: where it is kept, its field, and the lists that fill the field.
    struct Carpeta {
        std::string* destino = nullptr;
        QLabel* rotulo = nullptr;
        QLineEdit* txt = nullptr;
        ListaUnidades* drv = nullptr;
        ListaCarpetas* dir = nullptr;
    };

    void CreaControles();
    void CreaCarpeta(Carpeta& carpeta, const QString& sufijo, const std::string& rotulo);
    void Dispone();
    void Form_Load();
    void UnidadElegida(const Carpeta& carpeta);
    void Guarda();

    void drvoscilos_Change() { UnidadElegida(oscilos); }
    void drvplantillas_Change() { UnidadElegida(plantillas); }
    void drvaplic_Change() { UnidadElegida(aplic); }
    void diroscilos_Change() { oscilos.txt->setText(Ruta(oscilos)); }
    void dirplantillas_Change() { plantillas.txt->setText(Ruta(plantillas)); }
    void diraplic_Change() { aplic.txt->setText(Ruta(aplic)); }
    void cmdOK_Click();
    void cmdcancel_Click();

    static QString Ruta(const Carpeta& carpeta);
    std::array<Carpeta*, 3> Carpetas() { return {&oscilos, &plantillas, &aplic}; }

    Carpeta oscilos, plantillas, aplic;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdcancel = nullptr;
};

}  // namespace veldix
