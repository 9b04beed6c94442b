#include "waves/pagina_ondas.h"

#include <algorithm>

#include "platform/enteros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "waves/lugares_comp.h"
#include "waves/marcas_pagina.h"
#include "waves/plot.h"
#include "waves/redactor_hoja.h"

namespace veldix {

namespace {

std::string ValorEn(const RecordStore& s, float cursor, int columna, int canal)
{
    return TextoValor(s.Muestras(static_cast<int>(cursor), columna), s.Canales(canal).Unidades);
}

struct Rango {
    float menor = 0.0F, mayor = 0.0F;
};

/// The range of a column over the whole record, zero inside it.
Rango RangoDe(const Tabla2<float>& muestras, int columna)
{
    Rango r;
    for (int i = 1; i <= muestras.UBound(1); ++i) {
        r.menor = std::min(r.menor, muestras(i, columna));
        r.mayor = std::max(r.mayor, muestras(i, columna));
    }
    return r;
}

/// Title and date, and the file at the foot.
void PonCabecera(HojaOndas& h, RedactorHoja& r, const RecordStore& s, const DatosHoja& d)
{
    r.PonTitulo(Textos(74), d.titulo, d.fecha);
    r.PonFichero(r.Izquierda(), h.medidas.marco.abajo - r.Alto(kRotulo) - kMargenTexto, Textos(265),
                 s.FicheroDat);
}

/// The zero line and the ticks that share its scale.
void PonMarcasValor(HojaOndas& h, RedactorHoja& r, const EscalaPagina& e, double valorPaso,
                    const std::string& unidades)
{
    const Marco& p = h.medidas.plot;
    r.PonCero(e.origen, unidades, kNormal);
    for (const Marca& m : MarcasValor(h.medidas, e.origen, valorPaso, unidades)) {
        h.rayas.push_back({p.izquierda - kLargoMarca, m.lugar, p.izquierda, m.lugar});
        r.PonHasta(p.izquierda - kLargoMarca, m.lugar, m.rotulo, kNormal);
    }
}

/// A level of a box zoom on the page; nothing where its stretch is no step wide.
std::optional<EscalaPagina> EscalaDeNivel(const MedidasHoja& m, const NivelCaja& n, std::int16_t ultima,
                                          float escalaY)
{
    const auto tramo = Reproduce(n, ultima);
    if (!tramo) return std::nullopt;
    const double ry = Divide(m.plot.Alto(), n.Alto);
    return EscalaPagina{tramo->s, tramo->e, m.plot.Ancho() / (int{tramo->e} - int{tramo->s}),
                        m.plot.arriba + double{n.OrigenY} * ry, double{n.FactorZoomY} * escalaY * ry};
}

/// Units of the channel in one vertical step of the page.
double ValorDePaso(const NivelCaja& n, float escalaY)
{
    return Divide(n.Alto, 16.0 * n.FactorZoomY * escalaY);
}

std::int16_t Ultima(const RecordStore& s)
{
    return static_cast<std::int16_t>(s.Muestras.UBound(1));
}

/// Per band: its name, its range over the whole record and the values at the cursors, left of the plot.
/// Values are those of the channel's row, as on the screen.
void PonTextosBanda(HojaOndas& h, RedactorHoja& r, const RecordStore& s, int canal, double cero,
                    const DatosHoja& d)
{
    const std::string& unidades = s.Canales(canal).Unidades;
    const Rango rango = RangoDe(s.Muestras, ColumnaDeCanal(s, canal));
    const double x = h.medidas.marco.izquierda + kMargenTexto,
                 ancho = h.medidas.plot.izquierda - kMargenTexto - x;
    const std::string lineas[] = {
        r.Cabe(EtiquetaCanal(s, canal), ancho, kPequenaRotulo), " max " + TextoValor(rango.mayor, unidades),
        " min " + TextoValor(rango.menor, unidades), "Cursor 1: " + ValorEn(s, d.Cursor1, canal, canal),
        "Cursor 2: " + ValorEn(s, d.Cursor2, canal, canal)};
    const double alto = r.Alto(kPequena);
    double y = cero - 2.5 * alto;
    for (const std::string& linea : lineas) {
        r.Pon(x, y, linea, &linea == lineas ? kPequenaRotulo : kPequena);
        y += alto;
    }
}

/// Keys, names, ranges and values of a composition, in two columns below the time labels.
void PonLeyenda(HojaOndas& h, RedactorHoja& r, const RecordStore& s, const std::vector<int>& canales,
                int ventanas, const DatosHoja& d)
{
    const auto [vertical, lateral] = HuecosDe(ventanas);
    const double trazo = 500.0;
    const double alto = r.Alto(kPequena),
                 arriba = h.medidas.plot.abajo + kLargoMarca + r.Alto(kNormal) + vertical;
    const double izquierda = r.Izquierda();
    const double columna = h.medidas.marco.Ancho() / 2.0;
    for (std::size_t k = 0; k < canales.size(); ++k) {
        const int r_ = canales[k], c = ColumnaDeCanal(s, r_);
        const Rango rango = RangoDe(s.Muestras, c);
        const std::string& unidades = s.Canales(r_).Unidades;
        const double x = izquierda + static_cast<double>(k / 3) * columna;
        const double y = arriba + static_cast<double>(k % 3) * alto;
        h.rayas.push_back({x, y + alto / 2.0, x + trazo, y + alto / 2.0, h.curvas[k].color});
        const std::string valores =
            " max " + TextoValor(rango.mayor, unidades) + " min " + TextoValor(rango.menor, unidades) +
            "  Cursor 1: " + ValorEn(s, d.Cursor1, c, r_) + "  Cursor 2: " + ValorEn(s, d.Cursor2, c, r_);
        const double ancho =
            columna - trazo - lateral - kMargenTexto - r.Ancho("AA", kNormal) - r.Ancho(valores, kPequena);
        const std::string nombre = r.Cabe(EtiquetaCanal(s, r_), ancho, kPequenaRotulo);
        r.Pon(r.Pon(x + trazo + lateral, y, nombre, kPequenaRotulo), y, valores, kPequena);
    }
}

}  // namespace

std::optional<HojaOndas> HojaDeOnda(const RecordStore& s, Impresora& impresora, int canal,
                                    const NivelCaja& nivel, float escalaY, const DatosHoja& datos)
{
    HojaOndas h;
    RedactorHoja r(h, impresora);
    const auto e = EscalaDeNivel(h.medidas, nivel, Ultima(s), escalaY);
    if (!e) return std::nullopt;
    const int columna = ColumnaDeCanal(s, canal);
    PonCabecera(h, r, s, datos);
    const std::string nombre = EtiquetaCanal(s, canal);
    r.PonCursores(1, datos, " Cursor 1: ", "Cursor 2 : ", {nombre, ValorEn(s, datos.Cursor1, columna, canal)},
                  {nombre, ValorEn(s, datos.Cursor2, columna, canal)});
    const double x = r.Izquierda();
    r.PonPar(x, r.Fila(2), Textos(264), datos.textoDif);
    r.PonPar(h.medidas.columna, r.Fila(2), Textos(267), datos.textoMs);
    PonMarcasValor(h, r, *e, ValorDePaso(nivel, escalaY), s.Canales(canal).Unidades);
    r.PonMarcasTiempo(e->x, MuestrasPorSegundo(s));
    r.PonLineasCursor(*e, datos);
    r.PonCurva(s.Muestras, columna, e->s, e->e, *e, 1);
    return h;
}

std::optional<HojaOndas> HojaDeComposicion(const RecordStore& s, Impresora& impresora,
                                           const std::vector<int>& canales, const NivelCaja& nivel,
                                           float escalaY, int ventanas, const DatosHoja& datos)
{
    HojaOndas h;
    RedactorHoja r(h, impresora);
    const auto e = EscalaDeNivel(h.medidas, nivel, Ultima(s), escalaY);
    if (!e || canales.empty()) return std::nullopt;
    PonCabecera(h, r, s, datos);
    r.PonCursores(1, datos, "Cursor 1: ", "Cursor 2: ");
    r.PonPar(h.medidas.columna, r.Fila(2), "Tiempo entre cursores : ", datos.textoMs);
    PonMarcasValor(h, r, *e, ValorDePaso(nivel, escalaY), s.Canales(canales[0]).Unidades);
    r.PonMarcasTiempo(e->x, MuestrasPorSegundo(s));
    r.PonLineasCursor(*e, datos);
    for (std::size_t k = 0; k < canales.size(); ++k)
        r.PonCurva(s.Muestras, ColumnaDeCanal(s, canales[k]), e->s, e->e, *e, static_cast<int>(k) + 1);
    PonLeyenda(h, r, s, canales, ventanas, datos);
    return h;
}

std::optional<HojaOndas> HojaDeTodo(const RecordStore& s, Impresora& impresora, const Bandas& bandas,
                                    const FilaZoom& fila, float alto, const DatosHoja& datos)
{
    if (fila.e == fila.s) return std::nullopt;
    HojaOndas h;
    RedactorHoja r(h, impresora);
    const Marco& plot = h.medidas.plot;
    const double ry = Divide(plot.Alto(), alto);
    EscalaPagina e{static_cast<int>(fila.s), static_cast<int>(fila.e),
                   plot.Ancho() / (static_cast<double>(fila.e) - fila.s)};
    PonCabecera(h, r, s, datos);
    r.PonCursores(1, datos, "Cursor 1: ", "Cursor 2: ");
    r.PonPar(h.medidas.columna, r.Fila(2), "Tiempo entre cursores : ", datos.textoMs);
    r.PonMarcasTiempo(e.x, MuestrasPorSegundo(s));
    r.PonLineasCursor(e, datos);
    for (std::size_t k = 0; k < bandas.canales.size(); ++k) {
        const int canal = bandas.canales[k], n = static_cast<int>(k) + 1;
        e.origen = plot.arriba + double{bandas.Cero(n)} * ry;
        e.y = double{bandas.escalas[k]} * ry;
        r.PonCero(e.origen, s.Canales(canal).Unidades, kPequena);
        PonTextosBanda(h, r, s, canal, e.origen, datos);
        r.PonCurva(s.Muestras, ColumnaDeCanal(s, canal), e.s, e.e - 1, e, n);
    }
    return h;
}

}  // namespace veldix
