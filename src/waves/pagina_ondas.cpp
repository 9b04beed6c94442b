#include "waves/pagina_ondas.h"

#include <algorithm>
#include <cmath>

#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "waves/marcas_pagina.h"
#include "waves/plot.h"

namespace veldix {

namespace {

constexpr LetraPagina kNormal{8.0, false}, kRotulo{8.0, true}, kPequena{6.5, false},
    kPequenaRotulo{6.5, true};
constexpr double kMargenTexto = 60.0;  // twips between a text and the line beside it
constexpr double kLargoMarca = 80.0;
constexpr std::size_t kMenorNombre = 12, kMayorNombre = 300;  // characters; no page is wider

/// How samples lie on the page. The screen's plot, `alto` twips high, is stretched over the page's.
struct EscalaPagina {
    int s = 1, e = 1;
    double x = 0.0;       ///< twips a sample
    double origen = 0.0;  ///< y of the value 0
    double y = 0.0;       ///< twips a unit
};

/// Puts texts into the table, measured in the printer's own letters.
class Redactor {
public:
    Redactor(HojaOndas& hoja, Impresora& impresora)
        : hoja_(hoja), impresora_(impresora), antes_(impresora.Letra)
    {
    }
    ~Redactor() { impresora_.Letra = antes_; }
    Redactor(const Redactor&) = delete;
    Redactor& operator=(const Redactor&) = delete;

    double Ancho(const std::string& texto, LetraPagina letra)
    {
        impresora_.Letra = letra;
        return impresora_.AnchoTexto(texto);
    }
    double Alto(LetraPagina letra)
    {
        impresora_.Letra = letra;
        return impresora_.AltoTexto();
    }
    /// Leaves the place behind the text.
    double Pon(double x, double y, const std::string& texto, LetraPagina letra)
    {
        hoja_.textos.push_back({x, y, texto, letra});
        return x + Ancho(texto, letra);
    }
    /// Width of a caption and of the blank behind it, which it may bring along.
    double AnchoRotulo(const std::string& rotulo)
    {
        return Ancho(rotulo.empty() || rotulo.back() == ' ' ? rotulo : rotulo + " ", kRotulo);
    }
    /// A caption and its value behind it.
    void PonPar(double x, double y, const std::string& rotulo, const std::string& valor)
    {
        Pon(x, y, rotulo, kRotulo);
        Pon(x + AnchoRotulo(rotulo), y, valor, kNormal);
    }
    /// A name as far as it fits into a width, its cut marked; never so short that it tells nothing.
    std::string Cabe(const std::string& nombre, double ancho, LetraPagina letra)
    {
        std::string corto = nombre;
        for (std::size_t n = std::min(NumCaracteres(nombre), kMayorNombre);
             n > kMenorNombre && Ancho(corto, letra) > ancho; --n)
            corto = std::string(Izquierda(nombre, n - 1)) + "…";
        return corto;
    }
    /// Its right end at x, its middle at y.
    void PonIzquierda(double x, double y, const std::string& texto, LetraPagina letra)
    {
        Pon(x - Ancho(texto, letra), y - Alto(letra) / 2.0, texto, letra);
    }

private:
    HojaOndas& hoja_;
    Impresora& impresora_;
    LetraPagina antes_;
};

int Muestra(float cursor)
{
    return static_cast<int>(cursor);
}

std::string ValorEn(const RecordStore& s, float cursor, int columna, int canal)
{
    return TextoValor(s.Muestras(Muestra(cursor), columna), s.Canales(canal).Unidades);
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

/// Rows of the heading, from 0, above the plot.
double Fila(const HojaOndas& h, Redactor& r, int fila)
{
    return h.medidas.marco.arriba + kMargenTexto / 2.0 + fila * r.Alto(kRotulo);
}

/// A curve's name and value behind a sample's number.
struct ValorCursor {
    std::string nombre, valor;
};

/// Title and date, then whatever the view adds, and the file at the foot.
void PonCabecera(HojaOndas& h, Redactor& r, const RecordStore& s, const DatosHoja& d)
{
    const double x = h.medidas.marco.izquierda + r.Ancho("AA", kNormal);
    const double ancho = h.medidas.columna - kMargenTexto - x - r.AnchoRotulo(Textos(74));
    r.PonPar(x, Fila(h, r, 0), Textos(74), r.Cabe(d.titulo, ancho, kNormal));
    r.Pon(h.medidas.columna, Fila(h, r, 0), d.fecha, kNormal);
    r.PonPar(x, h.medidas.marco.abajo - r.Alto(kRotulo) - kMargenTexto, Textos(265), s.FicheroDat);
}

/// Both cursors' samples, with a value where the page has a single curve. A name gives way, never a value.
void PonCursores(HojaOndas& h, Redactor& r, const DatosHoja& d, const char* rotulo1, const char* rotulo2,
                 const ValorCursor& v1 = {}, const ValorCursor& v2 = {})
{
    const auto pon = [&](double x, double fin, const char* rotulo, float cursor, const ValorCursor& v) {
        std::string texto = Textos(266) + FormaDelimitada(Muestra(cursor));
        if (!v.valor.empty()) {
            const double resto = r.AnchoRotulo(rotulo) + r.Ancho(texto + "  " + v.valor, kNormal);
            texto += " " + r.Cabe(v.nombre, fin - x - resto, kNormal) + " " + v.valor;
        }
        r.PonPar(x, Fila(h, r, 1), rotulo, texto);
    };
    const double izquierda = h.medidas.marco.izquierda + r.Ancho("AA", kNormal);
    pon(izquierda, h.medidas.columna - kMargenTexto, rotulo1, d.Cursor1, v1);
    pon(h.medidas.columna, h.medidas.marco.derecha - kMargenTexto, rotulo2, d.Cursor2, v2);
}

void PonMarcasTiempo(HojaOndas& h, Redactor& r, double escala, int porSegundo)
{
    const Marco& p = h.medidas.plot;
    for (const Marca& m : MarcasTiempo(h.medidas, escala, porSegundo)) {
        h.rayas.push_back(
            {m.lugar, p.abajo, m.lugar, p.abajo + (m.rotulo.empty() ? 0.5 : 1.0) * kLargoMarca});
        if (m.rotulo.empty()) continue;
        const double alto = r.Alto(kPequena);  // half a height, whatever the width
        r.Pon(m.lugar - alto / 2.0, p.abajo + kLargoMarca, m.rotulo, kPequena);
    }
}

/// The zero line, with its label where it is in the plot.
void PonCero(HojaOndas& h, Redactor& r, double y, const std::string& unidades, LetraPagina letra)
{
    const Marco& p = h.medidas.plot;
    h.dentro.push_back({p.izquierda, y, p.derecha, y});
    if (y >= p.arriba && y <= p.abajo)
        r.PonIzquierda(p.izquierda - kLargoMarca, y, "0 " + unidades + "  ", letra);
}

/// The zero line and the ticks that share its scale.
void PonMarcasValor(HojaOndas& h, Redactor& r, const EscalaPagina& e, double valorPaso,
                    const std::string& unidades)
{
    const Marco& p = h.medidas.plot;
    PonCero(h, r, e.origen, unidades, kNormal);
    for (const Marca& m : MarcasValor(h.medidas, e.origen, valorPaso, unidades)) {
        h.rayas.push_back({p.izquierda - kLargoMarca, m.lugar, p.izquierda, m.lugar});
        r.PonIzquierda(p.izquierda - kLargoMarca, m.lugar, m.rotulo, kNormal);
    }
}

/// Lines of the cursors at their samples. The second label stands lower, as both may be on one sample.
void PonLineasCursor(HojaOndas& h, Redactor& r, const EscalaPagina& e, const DatosHoja& d)
{
    const Marco& p = h.medidas.plot;
    double y = p.arriba + kMargenTexto / 2.0;
    for (const auto& [cursor, rotulo] : {std::pair{d.Cursor1, "Cursor 1"}, {d.Cursor2, "Cursor 2"}}) {
        const double x = p.izquierda + (static_cast<double>(cursor) - e.s) * e.x;
        h.dentro.push_back({x, p.arriba, x, p.abajo});
        const double ancho = r.Ancho(rotulo, kPequena) + kMargenTexto;
        if (x >= p.izquierda && x <= p.derecha)
            r.Pon(x + ancho > p.derecha ? x - ancho : x + kMargenTexto, y, rotulo, kPequena);
        y += r.Alto(kPequena);
    }
}

/// Samples `desde` to `hasta` of a column, as the `k`-th curve of the page.
void PonCurva(HojaOndas& h, const Impresora& impresora, const RecordStore& s, int columna, int hasta,
              const EscalaPagina& e, int k)
{
    EscalaPlot plano;  // the page's own scale is applied in double
    plano.EscalaX = 1.0F;
    plano.EscalaY = 1.0F;
    PuntosCurva puntos = CalculaPuntos(s.Muestras, columna, e.s, hasta, plano);
    for (double& x : puntos.PuntosX)
        x = h.medidas.plot.izquierda + x * e.x;
    for (double& y : puntos.PuntosY)
        y = e.origen + y * e.y;
    h.curvas.push_back({std::move(puntos.PuntosX), std::move(puntos.PuntosY),
                        impresora.Color() == ModoColor::Color ? ColorPapel(k) : 0U});
}

/// A level of a box zoom on the page; nothing where its stretch is no step wide.
std::optional<EscalaPagina> EscalaDeNivel(const MedidasOndas& m, const NivelCaja& n, std::int16_t ultima,
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
void PonTextosBanda(HojaOndas& h, Redactor& r, const RecordStore& s, int canal, double cero,
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
void PonLeyenda(HojaOndas& h, Redactor& r, const RecordStore& s, const std::vector<int>& canales,
                int ventanas, const DatosHoja& d)
{
    const double vertical = ventanas >= 3 ? 10.0 : (ventanas == 2 ? 50.0 : 295.0);
    const double lateral = ventanas >= 3 ? 10.0 : 100.0, trazo = 500.0;
    const double alto = r.Alto(kPequena),
                 arriba = h.medidas.plot.abajo + kLargoMarca + r.Alto(kNormal) + vertical;
    const double izquierda = h.medidas.marco.izquierda + r.Ancho("AA", kNormal);
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

MedidasOndas MideOndas(double ancho, double alto)
{
    MedidasOndas m;
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

std::optional<HojaOndas> HojaDeOnda(const RecordStore& s, Impresora& impresora, int canal,
                                    const NivelCaja& nivel, float escalaY, const DatosHoja& datos)
{
    HojaOndas h;
    h.medidas = MideOndas(impresora.Ancho(), impresora.Alto());
    const auto e = EscalaDeNivel(h.medidas, nivel, Ultima(s), escalaY);
    if (!e) return std::nullopt;
    const int columna = ColumnaDeCanal(s, canal);
    Redactor r(h, impresora);
    PonCabecera(h, r, s, datos);
    const std::string nombre = EtiquetaCanal(s, canal);
    PonCursores(h, r, datos,
                " Cursor 1: ", "Cursor 2 : ", {nombre, ValorEn(s, datos.Cursor1, columna, canal)},
                {nombre, ValorEn(s, datos.Cursor2, columna, canal)});
    const double x = h.medidas.marco.izquierda + r.Ancho("AA", kNormal);
    r.PonPar(x, Fila(h, r, 2), Textos(264), datos.textoDif);
    r.PonPar(h.medidas.columna, Fila(h, r, 2), Textos(267), datos.textoMs);
    PonMarcasValor(h, r, *e, ValorDePaso(nivel, escalaY), s.Canales(canal).Unidades);
    PonMarcasTiempo(h, r, e->x, MuestrasPorSegundo(s));
    PonLineasCursor(h, r, *e, datos);
    PonCurva(h, impresora, s, columna, e->e, *e, 1);
    return h;
}

std::optional<HojaOndas> HojaDeComposicion(const RecordStore& s, Impresora& impresora,
                                           const std::vector<int>& canales, const NivelCaja& nivel,
                                           float escalaY, int ventanas, const DatosHoja& datos)
{
    HojaOndas h;
    h.medidas = MideOndas(impresora.Ancho(), impresora.Alto());
    const auto e = EscalaDeNivel(h.medidas, nivel, Ultima(s), escalaY);
    if (!e || canales.empty()) return std::nullopt;
    Redactor r(h, impresora);
    PonCabecera(h, r, s, datos);
    PonCursores(h, r, datos, "Cursor 1: ", "Cursor 2: ");
    r.PonPar(h.medidas.columna, Fila(h, r, 2), "Tiempo entre cursores : ", datos.textoMs);
    PonMarcasValor(h, r, *e, ValorDePaso(nivel, escalaY), s.Canales(canales[0]).Unidades);
    PonMarcasTiempo(h, r, e->x, MuestrasPorSegundo(s));
    PonLineasCursor(h, r, *e, datos);
    for (std::size_t k = 0; k < canales.size(); ++k)
        PonCurva(h, impresora, s, ColumnaDeCanal(s, canales[k]), e->e, *e, static_cast<int>(k) + 1);
    PonLeyenda(h, r, s, canales, ventanas, datos);
    return h;
}

std::optional<HojaOndas> HojaDeTodo(const RecordStore& s, Impresora& impresora, const Bandas& bandas,
                                    const FilaZoom& fila, float alto, const DatosHoja& datos)
{
    if (fila.e == fila.s) return std::nullopt;
    HojaOndas h;
    h.medidas = MideOndas(impresora.Ancho(), impresora.Alto());
    const Marco& plot = h.medidas.plot;
    const double ry = Divide(plot.Alto(), alto);
    EscalaPagina e{static_cast<int>(fila.s), static_cast<int>(fila.e),
                   plot.Ancho() / (static_cast<double>(fila.e) - fila.s)};
    Redactor r(h, impresora);
    PonCabecera(h, r, s, datos);
    PonCursores(h, r, datos, "Cursor 1: ", "Cursor 2: ");
    r.PonPar(h.medidas.columna, Fila(h, r, 2), "Tiempo entre cursores : ", datos.textoMs);
    PonMarcasTiempo(h, r, e.x, MuestrasPorSegundo(s));
    PonLineasCursor(h, r, e, datos);
    for (std::size_t k = 0; k < bandas.canales.size(); ++k) {
        const int canal = bandas.canales[k], n = static_cast<int>(k) + 1;
        e.origen = plot.arriba + double{bandas.Cero(n)} * ry;
        e.y = double{bandas.escalas[k]} * ry;
        PonCero(h, r, e.origen, s.Canales(canal).Unidades, kPequena);
        PonTextosBanda(h, r, s, canal, e.origen, datos);
        PonCurva(h, impresora, s, ColumnaDeCanal(s, canal), e.e - 1, e, n);
    }
    return h;
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
    std::for_each(h.dentro.begin(), h.dentro.end(), raya);
    for (const HojaOndas::Curva& c : h.curvas)
        impresora.Poligonal(c.xs, c.ys, c.color);
    impresora.QuitaRecorte();
}

}  // namespace veldix
