#include "shell/forms/traductor.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

namespace veldix {

void PonTraductor(bool espanol)
{
    static QPointer<QTranslator> traductor;
    if (!traductor) traductor = new QTranslator(QCoreApplication::instance());
    QCoreApplication::removeTranslator(traductor);
    if (espanol && traductor->load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traductor);
}

}  // namespace veldix
