#include "platform/forms/dialogo_fichero.h"

#include <QFileDialog>

#include <utility>

#include "platform/forms/escena.h"

namespace veldix {

namespace {

std::function<std::optional<std::string>(const PeticionFichero&)> g_responde;

}  // namespace

std::optional<std::string> EligeFichero(const PeticionFichero& peticion)
{
    if (g_responde) return g_responde(peticion);
    QFileDialog dialogo(escena.principal, Q(peticion.titulo), Q(peticion.carpeta), Q(peticion.filtro));
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setDefaultSuffix(Q(peticion.extension));
    // The toolkit's own dialog matches patterns in any case; a desktop's may not.
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
    return U(dialogo.selectedFiles().constFirst());
}

void PonDialogoFichero(std::function<std::optional<std::string>(const PeticionFichero&)> responde)
{
    g_responde = std::move(responde);
}

}  // namespace veldix
