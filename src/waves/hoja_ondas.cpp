#include "waves/hoja_ondas.h"

#include <algorithm>

namespace veldix {

MedidasHoja MideOndas(double ancho, double alto)
{
    MedidasHoja m;
    m.marco = MarcoPagina(ancho, alto);
    // The plot begins a fraction of the width below the top.
    m.plot = {ancho * 0.15, ancho * 0.05, ancho * 0.92, alto * 0.82};
    m.columna = ColumnaDerecha(alto);
    m.pasoY = (m.plot.arriba - m.plot.abajo) / 16.0;
    m.PasoX = m.plot.Ancho() / 23.0;
    return m;
}

std::uint32_t ColorPapel(int k)
{
    constexpr std::uint32_t kColores[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF,
                                          0xFFFF00, 0xFF00FF, 0x000000, 0x0000FF};
    return k >= 1 && k <= 8 ? kColores[k - 1] : 0;
}

void ImprimeHoja(Impresora& impresora, const HojaOndas& h)
{
    const Marco& p = h.medidas.plot;
    const auto raya = [&impresora](const HojaOndas::Raya& l) {
        impresora.Linea(l.x1, l.y1, l.x2, l.y2, l.color);
    };
    const LetraPagina antes = impresora.Letra;
    impresora.Grosor = 1;
    PintaMarco(impresora, h.medidas.marco);
    PintaMarco(impresora, p);
    for (const HojaOndas::Texto& t : h.textos) {
        impresora.Letra = t.letra;
        EscribeEn(impresora, t.x, t.y, t.texto);
    }
    impresora.Letra = antes;
    std::for_each(h.rayas.begin(), h.rayas.end(), raya);
    impresora.PonRecorte(p.izquierda, p.arriba, p.derecha, p.abajo);
    for (const HojaOndas::Caja& b : h.cajas)
        impresora.Caja(b.x1, b.y1, b.x2, b.y2, b.color);
    std::for_each(h.dentro.begin(), h.dentro.end(), raya);
    for (const HojaOndas::Curva& c : h.curvas)
        impresora.Poligonal(c.xs, c.ys, c.color);
    impresora.QuitaRecorte();
}

}  // namespace veldix
