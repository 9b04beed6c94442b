#include "shell/medidor.h"

#include "platform/enteros.h"

namespace veldix {

double AnchoMedidor(double anchoPista, double porcentaje)
{
    return anchoPista * porcentaje / 100.0;
}

DibujoMedidor Medidor::Llena(bool relativo, std::int16_t valor, double anchoPista)
{
    DibujoMedidor dibujo;
    if (valor == 0) {
        Posicion = 0;
        dibujo.reinicia = true;
        return dibujo;
    }
    const std::int16_t destino = relativo ? Suma16(Posicion, valor) : valor;
    if (!relativo) Posicion = destino;
    if (destino > 100) return dibujo;
    const std::string rotulo = std::to_string(destino) + " %";
    for (int paso = Posicion; paso <= destino; ++paso)
        dibujo.pasos.push_back({rotulo, AnchoMedidor(anchoPista, paso)});
    Posicion = destino;
    return dibujo;
}

}  // namespace veldix
