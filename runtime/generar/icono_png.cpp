// Draws the program's icon at the sizes that desktops ask for: veldix_generar_icono FOLDER
#include <QDir>
#include <QGuiApplication>
#include <QPixmap>

#include <cstdio>

#include "platform/forms/iconos.h"

int main(int argc, char** argv)
{
    const QGuiApplication programa(argc, argv);
    if (argc != 2) {
        std::fputs("usage: veldix_generar_icono FOLDER\n", stderr);
        return 2;
    }
    for (const int lado : {16, 24, 32, 48, 64, 128, 256}) {
        const QString carpeta = QStringLiteral("%1/%2x%2/apps").arg(QFile::decodeName(argv[1])).arg(lado);
        if (!QDir().mkpath(carpeta) ||
            !veldix::IconoPrograma().pixmap(lado, lado).save(carpeta + QStringLiteral("/veldix.png"))) {
            std::fprintf(stderr, "%s: cannot be written\n", qPrintable(carpeta));
            return 1;
        }
    }
    return 0;
}
