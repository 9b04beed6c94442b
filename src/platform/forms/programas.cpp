#include "platform/forms/programas.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "platform/errores.h"
#include "platform/ficheros.h"
#include "platform/forms/escena.h"

namespace veldix {

void ArrancaPrograma(const std::string& orden)
{
    QStringList partes = ExisteFichero(orden) ? QStringList{Q(orden)} : QProcess::splitCommand(Q(orden));
    if (partes.isEmpty()) Lanza(error::kFicheroNoEncontrado);
    const QString programa = partes.takeFirst();
    const bool conCarpeta = programa.contains(QLatin1Char('/'));
    const QString ruta = conCarpeta || ExisteFichero(U(programa)) ? QFileInfo(programa).absoluteFilePath()
                                                                  : QStandardPaths::findExecutable(programa);
    if (ruta.isEmpty() || !ExisteFichero(U(ruta))) Lanza(error::kFicheroNoEncontrado);
    if (!QFileInfo(ruta).isExecutable()) Lanza(error::kPermiso);
    if (!QProcess::startDetached(ruta, partes)) Lanza(error::kPermiso);
}

}  // namespace veldix
