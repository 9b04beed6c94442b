#include "waves/redactor_hoja.h"

#include <algorithm>
#include <utility>

#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "waves/marcas_pagina.h"
#include "waves/plot.h"

namespace veldix {

namespace {

constexpr std::size_t kMenorNombre = 12, kMayorNombre = 300;  // characters; no page is wider

}  // namespace

RedactorHoja::RedactorHoja(HojaOndas& hoja, Impresora& impresora)
    : hoja_(hoja), impresora_(impresora), antes_(impresora.Letra)
{
    hoja_.medidas = MideOndas(impresora_.Ancho(), impresora_.Alto());
}

double RedactorHoja::Ancho(const std::string& texto, LetraPagina letra)
{
    impresora_.Letra = letra;
    return impresora_.AnchoTexto(texto);
}

double RedactorHoja::Alto(LetraPagina letra)
{
    impresora_.Letra = letra;
    return impresora_.AltoTexto();
}

double RedactorHoja::Pon(double x, double y, const std::string& texto, LetraPagina letra)
{
    hoja_.textos.push_back({x, y, texto, letra});
    return x + Ancho(texto, letra);
}

double RedactorHoja::AnchoRotulo(const std::string& rotulo)
{
    return Ancho(rotulo.empty() || rotulo.back() == ' ' ? rotulo : rotulo + " ", kRotulo);
}

double RedactorHoja::PonPar(double x, double y, const std::string& rotulo, const std::string& valor)
{
    if (!rotulo.empty()) Pon(x, y, rotulo, kRotulo);
    return Pon(x + AnchoRotulo(rotulo), y, valor, kNormal);
}

void RedactorHoja::PonFichero(double x, double y, const std::string& rotulo, const std::string& ruta)
{
    const double ancho = hoja_.medidas.marco.derecha - kMargenTexto - x - AnchoRotulo(rotulo);
    impresora_.Letra = kNormal;
    PonPar(x, y, rotulo, CabeFinal(impresora_, ruta, ancho));
}

std::string RedactorHoja::Cabe(const std::string& nombre, double ancho, LetraPagina letra)
{
    std::string corto(veldix::Izquierda(nombre, kMayorNombre));
    for (std::size_t n = std::min(NumCaracteres(nombre), kMayorNombre);
         n > kMenorNombre && Ancho(corto, letra) > ancho; --n)
        corto = std::string(veldix::Izquierda(nombre, n - 1)) + "…";
    return corto;
}

void RedactorHoja::PonHasta(double x, double y, const std::string& texto, LetraPagina letra)
{
    Pon(x - Ancho(texto, letra), y - Alto(letra) / 2.0, texto, letra);
}

double RedactorHoja::Fila(int fila)
{
    return hoja_.medidas.marco.arriba + kMargenTexto / 2.0 + fila * Alto(kRotulo);
}

double RedactorHoja::Izquierda()
{
    return hoja_.medidas.marco.izquierda + Ancho("AA", kNormal);
}

double RedactorHoja::PonTitulo(const std::string& rotulo, const std::string& titulo, const std::string& fecha)
{
    const double x = Izquierda(), y = Fila(0), columna = hoja_.medidas.columna;
    Pon(columna, y, fecha, kNormal);
    return PonPar(x, y, rotulo, Cabe(titulo, columna - kMargenTexto - x - AnchoRotulo(rotulo), kNormal));
}

double RedactorHoja::PonCursores(int fila, const DatosHoja& d, const char* rotulo1, const char* rotulo2,
                                 const ValorCursor& v1, const ValorCursor& v2)
{
    const auto pon = [&](double x, double fin, const char* rotulo, float cursor, const ValorCursor& v) {
        std::string texto = Textos(266) + FormaDelimitada(static_cast<int>(cursor));
        if (!v.valor.empty()) {
            const double resto = AnchoRotulo(rotulo) + Ancho(texto + "  " + v.valor, kNormal);
            // A wider gap keeps two numbers apart that no name parts.
            const std::string& n = v.nombre;
            texto += " " + (n.empty() ? "" : Cabe(n, fin - x - resto, kNormal)) + " " + v.valor;
        }
        return PonPar(x, Fila(fila), rotulo, texto);
    };
    const double columna = hoja_.medidas.columna;
    pon(columna, hoja_.medidas.marco.derecha - kMargenTexto, rotulo2, d.Cursor2, v2);
    return pon(Izquierda(), columna - kMargenTexto, rotulo1, d.Cursor1, v1);
}

void RedactorHoja::PonMarcasTiempo(double escala, int porSegundo)
{
    const Marco& p = hoja_.medidas.plot;
    for (const Marca& m : MarcasTiempo(hoja_.medidas, escala, porSegundo)) {
        hoja_.rayas.push_back(
            {m.lugar, p.abajo, m.lugar, p.abajo + (m.rotulo.empty() ? 0.5 : 1.0) * kLargoMarca});
        if (m.rotulo.empty()) continue;
        const double alto = Alto(kPequena);  // half a height, whatever the width
        Pon(m.lugar - alto / 2.0, p.abajo + kLargoMarca, m.rotulo, kPequena);
    }
}

void RedactorHoja::PonCero(double y, const std::string& unidades, LetraPagina letra)
{
    const Marco& p = hoja_.medidas.plot;
    hoja_.dentro.push_back({p.izquierda, y, p.derecha, y});
    if (y >= p.arriba && y <= p.abajo) PonHasta(p.izquierda - kLargoMarca, y, "0 " + unidades + "  ", letra);
}

/// The second label stands lower, as both cursors may be on one sample.
void RedactorHoja::PonLineasCursor(const EscalaPagina& e, const DatosHoja& d)
{
    const Marco& p = hoja_.medidas.plot;
    double y = p.arriba + kMargenTexto / 2.0;
    for (const auto& [cursor, rotulo] : {std::pair{d.Cursor1, "Cursor 1"}, {d.Cursor2, "Cursor 2"}}) {
        const double x = p.izquierda + (static_cast<double>(cursor) - e.s) * e.x;
        hoja_.dentro.push_back({x, p.arriba, x, p.abajo});
        const double ancho = Ancho(rotulo, kPequena) + kMargenTexto;
        if (x >= p.izquierda && x <= p.derecha)
            Pon(x + ancho > p.derecha ? x - ancho : x + kMargenTexto, y, rotulo, kPequena);
        y += Alto(kPequena);
    }
}

void RedactorHoja::PonCurva(const Tabla2<float>& muestras, int columna, int desde, int hasta,
                            const EscalaPagina& e, int k)
{
    EscalaPlot plano;  // the page's own scale is applied in double
    plano.EscalaX = 1.0F;
    plano.EscalaY = 1.0F;
    PuntosCurva puntos = CalculaPuntos(muestras, columna, desde, hasta, plano);
    for (double& x : puntos.PuntosX)
        x = hoja_.medidas.plot.izquierda + (x + desde - e.s) * e.x;
    for (double& y : puntos.PuntosY)
        y = e.origen + y * e.y;
    hoja_.curvas.push_back({std::move(puntos.PuntosX), std::move(puntos.PuntosY), Color(ColorPapel(k))});
}

std::uint32_t RedactorHoja::Color(std::uint32_t color) const
{
    return impresora_.Color() == ModoColor::Color ? color : 0U;
}

}  // namespace veldix
