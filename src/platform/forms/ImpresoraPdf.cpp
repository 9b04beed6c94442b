#include "platform/forms/ImpresoraPdf.h"

#include <QGuiApplication>

#include <utility>

#include "platform/errores.h"
#include "platform/ficheros.h"

namespace veldix {

PdfEnMemoria::PdfEnMemoria()
{
    octetos.open(QIODevice::WriteOnly);
    escritor.setCreator(QStringLiteral("VELDIX"));
    escritor.setPageSize(QPageSize(QPageSize::A4));
    escritor.setResolution(600);
}

ImpresoraPdf::ImpresoraPdf(std::string ruta, ModoColor color)
    : ImpresoraQt(escritor, color), ruta_(std::move(ruta))
{
}

void ImpresoraPdf::Termina()
{
    ImpresoraQt::Termina();
    if (octetos.data().isEmpty()) return;
    const QByteArray pdf = std::exchange(octetos.buffer(), QByteArray());
    octetos.seek(0);
    ReemplazaFichero(ruta_, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

std::unique_ptr<Impresora> CreaImpresoraPdf(const std::string& ruta, ModoColor color)
{
    if (!QCoreApplication::instance()) {
        static int cuenta = 1;
        static char nombre[] = "veldix-cli";
        static char* argumentos[] = {nombre, nullptr};
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        // What the toolkit misses of a desktop is nothing to a job without one.
        const auto antes =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        static QGuiApplication aplicacion(cuenta, argumentos);
        qInstallMessageHandler(antes);
    }
    return std::make_unique<ImpresoraPdf>(ruta, color);
}

}  // namespace veldix
