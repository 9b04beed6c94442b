#pragma once

#include <QHBoxLayout>

#include "platform/forms/EtiquetaRuta.h"
#include "platform/forms/ListaCarpetas.h"

namespace veldix {

/// The files of a folder, `File1`, beside the lists that choose the folder, `Dir1` and `Drive1`, with their
/// headings and the folder's path above. Files and path follow the folder, the folder follows the drive; a
/// failure of either is the form's around it. Where there are no drives their heading is hidden too.
class ElectorFicheros : public QWidget {
    Q_OBJECT

public:
    /// The objectNames of the files' heading and of the path's label, which differ from form to form.
    ElectorFicheros(const char* nombreCabecera, const char* nombreRuta, QWidget* padre);

    /// Moves to a folder and its drive. Raises 76, and stays where it was, for one that does not exist.
    void Pon(const std::string& carpeta);
    /// Lists the files that the pattern fits, in any case. Raises 76 where the folder has gone.
    void PonPatron(const std::string& patron);
    /// The folder, absolute, without a separator at its end unless it is a root.
    const std::string& Carpeta() const { return Dir1->Ruta(); }

    ListaFicheros* const File1;
    ListaCarpetas* const Dir1;
    ListaUnidades* const Drive1;
    QHBoxLayout* const cabecera;  ///< the line of the files' heading, and the one under the files:
    QHBoxLayout* const pie;       ///< a form may add its own controls to them

private:
    void Dispone(const char* nombreCabecera);
    void Dir1_Change();
    void Drive1_Change();

    EtiquetaRuta* const ruta_;
    std::string patron_;
};

}  // namespace veldix
