#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

#include "platform/forms/escena.h"

namespace veldix {

/// The program's windows for a benchmark: the toolkit, without a screen unless the environment names one, and
/// a main window with its area.
class VentanaBanco {
public:
    VentanaBanco(int& argc, char** argv) : app_((SinPantalla(), argc), argv)
    {
        InstalaEscena();
        principal_.setCentralWidget(area_);
        principal_.resize(1280, 800);
        principal_.show();
        escena.principal = &principal_;
        escena.area = area_;
    }
    ~VentanaBanco() { escena = {}; }
    VentanaBanco(const VentanaBanco&) = delete;
    VentanaBanco& operator=(const VentanaBanco&) = delete;

private:
    static void SinPantalla()
    {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app_;
    QMainWindow principal_;
    QMdiArea* area_ = new QMdiArea;
};

}  // namespace veldix
