#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <string>
#include <vector>

#include "platform/forms/EtiquetaRuta.h"

namespace veldix {

class Formulario;
class Vista;

/// The main window: an area of child windows and the permanent strip below it.
class MDIForm1 : public QMainWindow {
    Q_OBJECT

public:
    /// `rutaPrograma` is the folder of the program, `linea` its arguments joined by blanks.
    MDIForm1(const std::string& rutaPrograma, std::string linea);
    ~MDIForm1() override;
    MDIForm1(const MDIForm1&) = delete;
    MDIForm1& operator=(const MDIForm1&) = delete;

    /// The start-up steps, from the screen's size to the command line.
    void MDIForm_Load();
    /// Unloads every form in its order, which ends the window's work. Does nothing the second time.
    void MDIForm_Unload();
    bool Descargado() const { return descargado_; }

    /// The common key handler: true where it took the exit key and pressed `cmdSalir`. Raises what reading
    /// `tools.ini` raises.
    bool TeclaSalir(int tecla, Qt::KeyboardModifiers estado);

    /// What a record that was opened shows in the window.
    void MuestraRegistro();
    /// The captions of the strip in the present language.
    void PonRotulos();

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void CreaTira();
    void ColocaTira();
    void LlenaGanchos();
    void EjecutaLinea();
    void AbreDeLinea(const std::string& dat);
    void PlantillaDeLinea(const std::string& plantilla);
    void MuestraMenu();
    /// Windows that the menu opened go out of reach with it, and come back with it.
    void OcultaMenu();

    void Reloj_Timer();
    void cmdSalir_Click();
    Vista* VistaActiva() const;
    void CierraVista(Vista* vista);
    void CierraFasores(Vista& vista);
    void CierraOndas();
    void CierraComposiciones();

    QMdiArea* area_;
    QWidget* tira_;
    EtiquetaRuta* Etiqueta;
    QLabel* mnuTime;
    QPushButton* cmdSalir;
    QTimer* Reloj;
    std::string linea_;
    std::vector<QPointer<Formulario>> apartadas_;  ///< since the menu was hidden
    bool descargado_ = false;
};

}  // namespace veldix
