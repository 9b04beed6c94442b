#pragma once

#include "platform/forms/ListaCarpetas.h"

namespace veldix {

/// The lists that choose a folder, `Dir1` and `Drive1`, with their headings. The folder follows the drive; a
/// failure is the form's around it. Where there are no drives their heading is hidden too.
class ElectorCarpetas : public QWidget {
    Q_OBJECT

public:
    explicit ElectorCarpetas(QWidget* padre);

    /// Moves to a folder and its drive. Raises 76, and stays where it was, for one that does not exist.
    void Pon(const std::string& carpeta);
    /// The folder, absolute, without a separator at its end unless it is a root.
    const std::string& Carpeta() const { return Dir1->Ruta(); }

    ListaCarpetas* const Dir1;
    ListaUnidades* const Drive1;
};

}  // namespace veldix
