#pragma once

#include <QHBoxLayout>

#include "platform/forms/ElectorCarpetas.h"
#include "platform/forms/EtiquetaRuta.h"

namespace veldix {

/// The files of a folder, `File1`, beside the lists that choose the folder, with their headings and the
/// folder's path above. Files and path follow the folder; a failure is the form's around it.
class ElectorFicheros : public QWidget {
    Q_OBJECT

public:
    /// The objectNames of the files' heading and of the path's label, which differ from form to form.
    ElectorFicheros(const char* nombreCabecera, const char* nombreRuta, QWidget* padre);

    /// As ElectorCarpetas.
    void Pon(const std::string& carpeta) { carpetas->Pon(carpeta); }
    /// Lists the files that the pattern fits, in any case. Raises 76 where the folder has gone.
    void PonPatron(const std::string& patron);
    const std::string& Carpeta() const { return carpetas->Carpeta(); }

    ListaFicheros* const File1;
    ElectorCarpetas* const carpetas;
    QHBoxLayout* const cabecera;  ///< the line of the files' heading, and the one under the files:
    QHBoxLayout* const pie;       ///< a form may add its own controls to them

private:
    void Dispone(const char* nombreCabecera);
    void Dir1_Change();

    EtiquetaRuta* const ruta_;
    std::string patron_;
};

}  // namespace veldix
