#include "platform/fichero_ajustes.h"

#include "platform/codigos.h"
#include "platform/errores.h"
#include "platform/texto.h"

namespace veldix {

LectorLineas AbreAjustes(const std::string& ruta)
{
    return LectorLineas(DesdeUtf8OPagina(LeeOctetos(BuscaSinCaja(ruta))));
}

void GuardaAjustes(const std::string& ruta, std::vector<std::string> lineas)
{
    for (std::string& linea : lineas)
        linea = SinFinesDeLinea(linea);
    const std::string texto = Une(lineas);
    bool cabe = true;
    const std::string octetos = APagina(texto, &cabe);
    // Octets of the page that would be taken for UTF-8 when they are read back.
    const bool confunde = !EsAscii(octetos) && EsUtf8(octetos);
    const std::string& nuevo = cabe && !confunde ? octetos : texto;
    const std::string destino = BuscaSinCaja(ruta);
    // What stands there already needs no folder that may be written.
    std::string actual;
    if (Intenta([&] { actual = LeeOctetos(destino); }) && actual == nuevo) return;
    ReemplazaFichero(destino, nuevo);
}

}  // namespace veldix
