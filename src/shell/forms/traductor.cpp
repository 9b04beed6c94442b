#include "shell/forms/traductor.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace veldix {

void PonTraductor(bool espanol)
{
    static QTranslator traductor(QCoreApplication::instance());
    QCoreApplication::removeTranslator(&traductor);
    if (espanol && traductor.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&traductor);
}

}  // namespace veldix
