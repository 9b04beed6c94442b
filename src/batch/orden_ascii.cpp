#include "batch/ordenes.h"
#include "platform/avisos.h"
#include "record/copia_ascii.h"

namespace veldix {

Salida OrdenAscii(const Argumentos& a, const Consola& consola)
{
    if (!TieneNombre(a.sueltos[1])) {
        Avisa(consola.espanol ? "El destino debe ser un nombre de fichero, sin extensión."
                              : "The destination must be a file name, without extension.");
        return Salida::MalUso;
    }
    if (!AbreRegistroDe(a.sueltos[0], consola)) return Salida::Fallida;
    if (store.FormatoDat != "BINARY") {
        Avisa(consola.espanol ? "El registro no está en formato BINARY."
                              : "The record is not in BINARY format.");
        return Salida::Fallida;
    }
    if (store.Muestras.Vacia()) {  // an empty copy would replace what is there
        Avisa(consola.espanol ? "El registro no tiene muestras." : "The record has no samples.");
        return Salida::Fallida;
    }
    store.FicheroAscii = a.sueltos[1];
    ConvierteAscii(store);
    return Salida::Hecha;
}

}  // namespace veldix
