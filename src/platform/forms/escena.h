#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class QMdiArea;

namespace veldix {

/// What forms ask of the main window and of the shell, which fills it at start. Members that are not filled
/// do nothing.
struct Escena {
    QWidget* principal = nullptr;               ///< owner of choosers and dialogs
    QMdiArea* area = nullptr;                   ///< where the views stand
    std::function<void()> muestraMenu = [] {};  ///< makes the menu visible and maximised
    std::function<void()> ocultaMenu = [] {};
    /// Takes the default folders from the settings; shows its error.
    std::function<void()> leeDirectorios = [] {};
    /// Unloads the choosers: their channels are about to change.
    std::function<void()> descargaSelectores = [] {};
    std::function<void()> activaPlantilla = [] {};  ///< the menu commands that need a template in force
    /// The menu follows the tools of the settings (FrmMenu::ActivaAnalisis). Raises what reading them raises.
    std::function<void()> ActualizaTools = [] {};
    /// True where it took the key.
    std::function<bool(int tecla, Qt::KeyboardModifiers)> teclaSalir = [](auto...) { return false; };
    /// The gauge of the wave and digital views: shows it with a caption, steps it, unloads it.
    std::function<void(const QString&)> muestraGasolinoOndas = [](auto&) {};
    std::function<void(int)> ponGasolinoOndas = [](int) {};
    std::function<void()> descargaGasolinoOndas = [] {};
    /// The box that stops a print, alone with the user's input; one that stands already stays.
    std::function<void()> muestraCancelar = [] {};
    std::function<void()> descargaCancelar = [] {};
    std::function<void(bool)> activaSalir = [](bool) {};  ///< the close button of the strip
};
extern Escena escena;

/// Pointer shapes by their number: the default, the hourglass, and the one of the program's own, which is a
/// cross on a plot and a busy arrow elsewhere.
enum class Puntero { Normal = 0, Espera = 11, Propio = 99 };
void PonPuntero(QWidget* widget, Puntero puntero);
/// The same on the main window, the menu window and the form at once; the menu window shows the main one's.
void PonPunteros(QWidget* form, Puntero puntero);

/// The hourglass on a widget for a scope.
class PunteroEspera {
public:
    explicit PunteroEspera(QWidget& widget);
    ~PunteroEspera();
    PunteroEspera(const PunteroEspera&) = delete;
    PunteroEspera& operator=(const PunteroEspera&) = delete;

private:
    QPointer<QWidget> widget_;
};

/// Sends key-downs of forms to the exit-key handler, tells forms of their activation, fills the message boxes
/// and the pointer reset of the cores. Once, after the application object is there.
void InstalaEscena();

/// One pass of the event queue that leaves the user's input out.
void PasaCola();

/// Centres a window on the screen.
void Centra(QWidget& ventana);
/// Centres a window over another by (its size less own size) / 2 plus its offset.
void CentraSobre(QWidget& ventana, const QWidget& otra);

/// UTF-8 text and Qt's.
inline QString Q(const std::string& texto)
{
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}
inline std::string U(const QString& texto)
{
    return texto.toStdString();
}

/// A caption without its accelerator, for titles.
QString SinAcelerador(QString texto);

}  // namespace veldix
