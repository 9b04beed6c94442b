#include "platform/forms/impresion.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <utility>

#include "platform/avisos.h"
#include "platform/errores.h"
#include "platform/forms/ImpresoraQt.h"
#include "platform/forms/escena.h"

namespace veldix {

namespace {

std::function<std::optional<PeticionImpresion>()> g_responde;

/// The one printer of the program: what a print sets, such as the orientation, stays for the next one. It is
/// never freed, since the toolkit that it needs goes first.
QPrinter& ImpresoraDelPrograma()
{
    static auto* const impresora = new QPrinter(QPrinter::HighResolution);
    impresora->setFullPage(false);
    return *impresora;
}

/// The invisible owner of the dialog.
class frm_centrar : public QWidget {
public:
    explicit frm_centrar(QSize tamano) : QWidget(escena.principal)
    {
        setObjectName("frm_centrar");
        move(tamano.width() / 4, tamano.height() / 4);
        resize(1, 1);
    }
};

/// The program's printer as it is set now.
PeticionImpresion PeticionDe(QPrinter& impresora)
{
    PeticionImpresion p;
    p.copias = std::max(1, impresora.copyCount());
    impresora.setCopyCount(1);  // the program draws every copy itself
    p.fichero = !impresora.outputFileName().isEmpty();
    const bool color = impresora.colorMode() == QPrinter::Color;
    p.impresora = std::make_shared<ImpresoraQt>(impresora, color ? ModoColor::Color : ModoColor::Monocromo,
                                                [&impresora] { impresora.abort(); });
    return p;
}

std::optional<PeticionImpresion> MuestraDialogo(QSize tamano)
{
    QPrinter& impresora = ImpresoraDelPrograma();
    frm_centrar centro(tamano);
    QPrintDialog dialogo(&impresora, &centro);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialogo.adjustSize();
    dialogo.move(centro.mapToGlobal(QPoint(0, 0)));
    if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
    return PeticionDe(impresora);
}

/// The program's printer sent to the system's default one for a scope; it goes back to where the user's last
/// dialog had sent it.
class EnPredeterminada {
public:
    explicit EnPredeterminada(const QPrinterInfo& predeterminada)
        : impresora_(ImpresoraDelPrograma()),
          nombre_(impresora_.printerName()),
          fichero_(impresora_.outputFileName())
    {
        impresora_.setOutputFileName(QString());
        impresora_.setPrinterName(predeterminada.printerName());
        impresora_.setCopyCount(1);
    }
    ~EnPredeterminada()
    {
        impresora_.setPrinterName(nombre_);
        if (!fichero_.isEmpty()) impresora_.setOutputFileName(fichero_);
    }
    EnPredeterminada(const EnPredeterminada&) = delete;
    EnPredeterminada& operator=(const EnPredeterminada&) = delete;

    PeticionImpresion Peticion() { return PeticionDe(impresora_); }

private:
    QPrinter& impresora_;
    QString nombre_, fichero_;
};

void Imprime(const std::optional<PeticionImpresion>& peticion,
             const std::function<void(const PeticionImpresion&)>& trabajo)
{
    if (!peticion) return;
    try {
        trabajo(*peticion);
        peticion->impresora->Termina();
    } catch (const std::exception&) {
        const ErrorEjecucion e = ErrorEnVuelo();
        Intenta([&] { peticion->impresora->Termina(); });
        PunteroNormal();
        AvisaError(e);
    }
}

}  // namespace

void ConImpresora(QSize tamano, const std::function<void(const PeticionImpresion&)>& trabajo)
{
    Imprime(g_responde ? g_responde() : MuestraDialogo(tamano), trabajo);
}

void ConImpresoraPredeterminada(QSize tamano, const std::function<void(const PeticionImpresion&)>& trabajo)
{
    const QPrinterInfo predeterminada = QPrinterInfo::defaultPrinter();
    if (g_responde || predeterminada.isNull()) {
        ConImpresora(tamano, trabajo);
        return;
    }
    EnPredeterminada destino(predeterminada);
    Imprime(destino.Peticion(), trabajo);
}

void PonDialogoImpresion(std::function<std::optional<PeticionImpresion>()> responde)
{
    g_responde = std::move(responde);
}

}  // namespace veldix
