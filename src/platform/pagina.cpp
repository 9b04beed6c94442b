#include "platform/pagina.h"

#include "platform/texto.h"

namespace veldix {

Marco MarcoPagina(double ancho, double alto)
{
    return {ancho * 0.009, alto * 0.009, ancho * 0.942, alto * 0.945};
}

double ColumnaDerecha(double alto)
{
    return alto * 0.75;
}

void PintaMarco(Impresora& impresora, const Marco& m)
{
    impresora.Linea(m.izquierda, m.arriba, m.derecha, m.arriba, 0);
    impresora.Linea(m.derecha, m.arriba, m.derecha, m.abajo, 0);
    impresora.Linea(m.derecha, m.abajo, m.izquierda, m.abajo, 0);
    impresora.Linea(m.izquierda, m.abajo, m.izquierda, m.arriba, 0);
}

std::string CabeFinal(const Impresora& impresora, const std::string& ruta, double ancho)
{
    if (impresora.AnchoTexto(ruta) <= ancho) return ruta;
    std::size_t cabe = 0, sobra = NumCaracteres(ruta);
    while (sobra - cabe > 1) {
        const std::size_t n = (cabe + sobra) / 2;
        (impresora.AnchoTexto("…" + std::string(Derecha(ruta, n))) <= ancho ? cabe : sobra) = n;
    }
    return "…" + std::string(Derecha(ruta, cabe));
}

void EscribeEn(Impresora& impresora, double x, double y, const std::string& texto)
{
    impresora.X = x;
    impresora.Y = y;
    impresora.Texto(texto);
}

}  // namespace veldix
