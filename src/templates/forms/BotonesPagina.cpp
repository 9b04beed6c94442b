#include "templates/forms/BotonesPagina.h"

#include "platform/forms/etiquetas.h"

namespace veldix {

BotonesPagina::BotonesPagina(Formulario* pagina, int textoOK, const char* defecto)
    : cmdvolver(CreaBoton(pagina, "cmdvolver", 94, "volver")),
      cmdOK(CreaBoton(pagina, "cmdOK", textoOK, defecto)),
      cmdcancel(CreaBoton(pagina, "cmdcancel", 25, "Cancelar")),
      linea(new QHBoxLayout)
{
    pagina->PonBotones(cmdOK, cmdcancel);
    linea->addWidget(cmdvolver);
    linea->addStretch(1);
    linea->addWidget(cmdOK);
    linea->addWidget(cmdcancel);
}

}  // namespace veldix
