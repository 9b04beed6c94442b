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
    const QStringList argumentos = QApplication::arguments().mid(1);
    for (const QString& a : argumentos)
        linea += (linea.empty() ? "" : " ") + a.toStdString();
    veldix::InstalaEscena();
    veldix::MDIForm1 principal(programa, linea);
    principal.MDIForm_Load();
    return principal.Descargado() ? 0 : QApplication::exec();
}
