#include "platform/fichero_ajustes.h"

#include "platform/codigos.h"

namespace veldix {

LectorLineas AbreAjustes(const std::string& ruta)
{
    return LectorLineas(DesdeUtf8OPagina(LeeOctetos(BuscaSinCaja(ruta))));
}

void GuardaAjustes(const std::string& ruta, std::vector<std::string> lineas)
{
    for (std::string& linea : lineas)
        std::erase_if(linea, [](char c) { return c == '\r' || c == '\n'; });
    const std::string texto = Une(lineas);
    bool cabe = true;
    const std::string octetos = APagina(texto, &cabe);
    // Octets of the page that would be taken for UTF-8 when they are read back.
    const bool confunde = !EsAscii(octetos) && EsUtf8(octetos);
    ReemplazaFichero(BuscaSinCaja(ruta), cabe && !confunde ? octetos : texto);
}

}  // namespace veldix
