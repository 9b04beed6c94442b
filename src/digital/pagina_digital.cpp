#include "digital/pagina_digital.h"

#include <algorithm>

#include "platform/enteros.h"
#include "platform/textos.h"
#include "waves/colores.h"
#include "waves/redactor_hoja.h"

namespace veldix {

namespace {

constexpr double kFilasPagina = 23.0;  // row heights below the analog band

/// Left edge of the texts beside the plot, and the width they may take.
double Margen(const HojaOndas& h)
{
    return h.medidas.marco.izquierda + kMargenTexto;
}
double AnchoTextos(const HojaOndas& h)
{
    return h.medidas.plot.izquierda - kMargenTexto - Margen(h);
}

/// Title, file, cursors and the time between them, from the top.
void PonCabecera(HojaOndas& h, RedactorHoja& r, const RecordStore& s, const DatosHoja& d)
{
    const double x = r.Izquierda(), fin = r.PonTitulo(Rotulo(47, "Canales Digitales "),
                                                      EnGrupo(s) ? s.NombreGrupoDig : "", d.fecha);
    std::string raya;
    const double par = r.Ancho("__", kNormal);
    for (double ancho = 0.0; par > 0.0 && ancho < fin - x; ancho += par)
        raya += "__";
    r.Pon(x, r.Fila(0), raya, kNormal);
    r.PonFichero(x, r.Fila(1), "Fichero origen : ", s.FicheroDat);
    const std::string& unidades = s.Canales(s.CanalRef).Unidades;
    const auto valor = [&](float cursor) {
        return ValorCursor{"", TextoValor(s.Muestras(static_cast<int>(cursor), s.CanalRef), unidades)};
    };
    const double libre = r.PonCursores(2, d, "Cursor 1", "Cursor 2", valor(d.Cursor1), valor(d.Cursor2));
    r.PonPar(std::max(libre + r.Ancho("AA", kNormal), (x + h.medidas.columna) / 2.0), r.Fila(2),
             "Tiempo entre cursores : ", d.textoMs);
}

/// The curve of the reference about its zero line, its name above the line's label.
void PonReferencia(HojaOndas& h, RedactorHoja& r, const RecordStore& s, const PlotDigital& p,
                   const EscalaPagina& e)
{
    r.PonCero(e.origen, s.Canales(s.CanalRef).Unidades, kPequena);
    r.Pon(Margen(h), e.origen - 1.5 * r.Alto(kPequenaRotulo),
          r.Cabe(EtiquetaCanal(s, s.CanalRef), AnchoTextos(h), kPequenaRotulo), kPequenaRotulo);
    r.PonCurva(s.Muestras, s.CanalRef, e.s + 1, p.tramo.ultima, e, 1);
}

/// Names, base lines and bars. `ry` is twips of the page for one of the screen's.
void PonFilas(HojaOndas& h, RedactorHoja& r, const RecordStore& s, const PlotDigital& p,
              const EscalaPagina& e, double ry)
{
    const Marco& plot = h.medidas.plot;
    const double banda = plot.arriba + kBandaAnalog * ry, fila = (plot.abajo - banda) / kFilasPagina;
    const std::uint32_t color = r.Color(ColorPaleta(kColorEstado));
    const auto estados = EstadosDigitales(s.MuestrasDig, p.filas, p.tramo);
    // The plot of a low window has room for the reference alone.
    for (std::size_t n = 0; fila > 0.0 && n < p.filas.size(); ++n) {
        const double base = banda + (static_cast<double>(n) + 2.0) * fila;
        h.dentro.push_back({plot.izquierda, base, plot.derecha, base});
        r.Pon(Margen(h), base - r.Alto(kPequena), r.Cabe(p.filas[n].nombre, AnchoTextos(h), kPequena),
              kPequena);
        for (const TramoEstado& t : estados[n])
            h.cajas.push_back({plot.izquierda + (t.primera - 1 - e.s) * e.x, base,
                               plot.izquierda + (t.ultima - e.s) * e.x, base - kAltoEstado * ry, color});
    }
}

}  // namespace

HojaOndas HojaDigital(const RecordStore& s, Impresora& impresora, const PlotDigital& p,
                      const DatosHoja& datos)
{
    HojaOndas h;
    RedactorHoja r(h, impresora);
    const double ry = Divide(h.medidas.plot.Alto(), p.alto);
    EscalaPagina e{p.tramo.MuestraInicial, p.tramo.ultima,
                   p.tramo.EscalaX * Divide(h.medidas.plot.Ancho(), p.ancho - kMargenesDigital)};
    e.origen = h.medidas.plot.arriba + kCeroAnalog * ry;
    e.y = EscalaReferencia(s.Muestras, s.CanalRef, p.tramo) * ry;
    PonCabecera(h, r, s, datos);
    PonReferencia(h, r, s, p, e);
    PonFilas(h, r, s, p, e, ry);
    r.PonMarcasTiempo(e.x, MuestrasPorSegundo(s));
    r.PonLineasCursor(e, datos);
    return h;
}

}  // namespace veldix
