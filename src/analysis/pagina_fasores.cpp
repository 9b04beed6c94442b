#include "analysis/pagina_fasores.h"

#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"

namespace veldix {

namespace {

constexpr int kPasoGrosor = 3;

/// Width of line `i`, from 0, without colour: each is wider than the one before, and a second group starts
/// again a step above the first.
int GrosorDeLinea(std::size_t i)
{
    const int grupo = static_cast<int>(i / 3), linea = static_cast<int>(i % 3);
    return 1 + kPasoGrosor * (grupo + linea);
}

void MideHoja(HojaFasores& h, double w, double alto, double altoDiagrama, const MedidasLetra& letra)
{
    h.marco = MarcoPagina(w, alto);
    // The box starts a fraction of the width below the top.
    h.caja = {0.15 * w, 0.05 * w, 0.9 * w, 0.8 * alto};
    h.CentroX = 0.15 * w + h.caja.Ancho() / 2.0;
    h.CentroY = 0.05 * w + h.caja.Alto() / 2.0;
    h.EscalaPapel = Divide(0.72 * alto, altoDiagrama);
    h.xTexto = letra.aa + h.marco.izquierda;
    h.xTrazo = h.xTexto + 6.0 * letra.aa;
    h.xFecha = ColumnaDerecha(alto);
    h.yTitulo = letra.alto + h.marco.arriba;
    h.yFichero = h.yTitulo + letra.alto;
    h.yNumero = letra.alto + h.caja.abajo;
}

}  // namespace

HojaFasores ComponeFasores(const RecordStore& s, const Diagrama& d, const std::vector<Trazo>& trazos,
                           int fila, double altoDiagrama, const PieFasores& pie, const Impresora& impresora,
                           const MedidasLetra& letra)
{
    HojaFasores h;
    MideHoja(h, impresora.Ancho(), impresora.Alto(), altoDiagrama, letra);
    const bool color = impresora.Color() == ModoColor::Color;
    for (std::size_t i = 0; i < trazos.size(); ++i) {
        const Trazo& t = trazos[i];
        const double f = FactorDeGrupo(s, t.grupo) * h.EscalaPapel;
        HojaFasores::Linea l;
        l.x2 = d.Cartesianas(fila, 2 * t.fasor - 1) * f + h.CentroX;
        l.y2 = h.CentroY - d.Cartesianas(fila, 2 * t.fasor) * f;
        l.color = color ? kColoresFasor[i] : 0;
        l.grosor = color ? 1 : GrosorDeLinea(i);
        l.nombre = NombreTrazo(s, t);
        l.valor = TextoTrazo(s, d, t, fila, "@");
        l.y = h.caja.arriba + (2.0 * static_cast<double>(i) + 1.0) * letra.alto;
        l.yValor = l.y + letra.alto;
        h.lineas.push_back(l);
    }
    h.titulo = Mayusculas(pie.titulo);
    h.fichero = Textos(265) + CabeFinal(impresora, pie.fichero,
                                        h.marco.derecha - h.xTexto - impresora.AnchoTexto(Textos(265) + " "));
    h.fecha = pie.fecha;
    h.numero = TextoNumero(d, fila);
    return h;
}

void ImprimeFasores(Impresora& impresora, const HojaFasores& h)
{
    impresora.Grosor = 1;
    PintaMarco(impresora, h.marco);
    PintaMarco(impresora, h.caja);
    impresora.Linea(h.caja.izquierda, h.CentroY, h.caja.derecha, h.CentroY, 0);
    impresora.Linea(h.CentroX, h.caja.arriba, h.CentroX, h.caja.abajo, 0);
    for (const HojaFasores::Linea& l : h.lineas) {
        impresora.Grosor = l.grosor;
        impresora.Linea(h.CentroX, h.CentroY, l.x2, l.y2, l.color);
        EscribeEn(impresora, h.xTexto, l.y, l.nombre);
        impresora.Linea(h.xTrazo, l.y, h.xTrazo + h.largoTrazo, l.y, l.color);
        EscribeEn(impresora, h.xTexto, l.yValor, l.valor);
    }
    impresora.Grosor = 1;
    EscribeEn(impresora, h.xTexto, h.yTitulo, h.titulo);
    EscribeEn(impresora, h.xFecha, h.yTitulo, h.fecha);
    EscribeEn(impresora, h.xTexto, h.yFichero, h.fichero);
    EscribeEn(impresora, h.xTexto, h.yNumero, h.numero);
}

}  // namespace veldix
