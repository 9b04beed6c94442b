#include <QApplication>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "shell/forms/MDIForm1.h"

int main(int argc, char** argv)
{
    const std::string programa = veldix::CarpetaPrograma(argv[0]);
    QApplication app(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("veldix"));
    std::string linea;
    // Octets, not texts: a name of another system's code page is a file all the same.
    for (int i = 1; i < argc; ++i)
        linea += (linea.empty() ? "" : " ") + std::string(argv[i]);
    veldix::InstalaEscena();
    veldix::MDIForm1 principal(programa, linea);
    principal.MDIForm_Load();
    return principal.Descargado() ? 0 : QApplication::exec();
}
