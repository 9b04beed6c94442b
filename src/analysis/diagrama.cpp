#include "analysis/diagrama.h"

#include <algorithm>
#include <cmath>

#include "analysis/fasores.h"
#include "analysis/grupos.h"
#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/textos.h"

namespace veldix {

namespace {

constexpr double kBaseZoom = 1.25;

double DentroDeLimite(double twips)
{
    if (!(std::abs(twips) <= kLimiteDiagrama)) Lanza(error::kDesbordamiento);
    return twips;
}

CuadroDiagrama::Linea LineaDe(const RecordStore& s, const Diagrama& d, const Trazo& t, int fila)
{
    const double f = FactorDeGrupo(s, t.grupo);
    const double x = d.Cartesianas(fila, 2 * t.fasor - 1), y = d.Cartesianas(fila, 2 * t.fasor);
    return {true, DentroDeLimite(f * x + double{d.CentroX}), DentroDeLimite(double{d.CentroY} - f * y)};
}

CuadroDiagrama Pinta(const RecordStore& s, const Diagrama& d, const std::vector<Trazo>& trazos, int fila)
{
    CuadroDiagrama cuadro;
    for (std::size_t i = 0; i < trazos.size(); ++i)
        cuadro.lineas[i] = LineaDe(s, d, trazos[i], fila);
    for (std::size_t i = 0; i < trazos.size(); ++i)
        cuadro.textos[i] = TextoTrazo(s, d, trazos[i], fila, " @ ");
    cuadro.numero = TextoNumero(d, fila);
    return cuadro;
}

}  // namespace

Diagrama::Diagrama(RecordStore& s, const Tabla2<float>& fasores, std::int16_t ciclo)
    : MuestrasCiclo(ciclo), fasores_(&fasores)
{
    CalculaModulos(fasores, Modulos, Angulos);
    TablaMinMax(s, Modulos);
}

void Diagrama::Ajusta(double ancho, double alto)
{
    CentroX = static_cast<float>(ancho / 2.0);
    CentroY = static_cast<float>(alto / 2.0);
    const double radio = std::min(ancho, alto) / 2.0;
    Escala = MaxModulo == 0.0F ? 0.0F : Single(radio / MaxModulo);
    CalculaCartesianas(*fasores_, Escala, Zoom, Cartesianas);
}

void Diagrama::CambiaZoom(int paso)
{
    NivelZoom = Entero16(NivelZoom + paso);
    Zoom = Single(std::pow(kBaseZoom, NivelZoom));
    CalculaCartesianas(*fasores_, Escala, Zoom, Cartesianas);
}

std::vector<Trazo> TrazosFases(const RecordStore& s)
{
    std::vector<Trazo> trazos;
    for (const int g : GruposMarcados(s.GruposFases))
        for (int p = 1; p <= 3; ++p) {
            const std::int16_t canal = s.Trifasic(g).Fase(p);
            trazos.push_back({canal, g, canal, ""});
        }
    return trazos;
}

std::vector<Trazo> TrazosSecuencias(const RecordStore& s)
{
    std::vector<Trazo> trazos;
    for (const int g : GruposMarcados(s.GruposSecuencias))
        for (const char* digito : {"1", "2", "0"})
            trazos.push_back({static_cast<int>(trazos.size()) + 1, g, s.Trifasic(g).Fase(1), digito});
    return trazos;
}

float MaxModuloFases(const RecordStore& s)
{
    float mayor = std::abs(s.MaxCanal(1));
    for (int g = 1; g <= s.NumTrifasic; ++g)
        for (int p = 1; p <= 3 && s.GruposFases(g) == 1; ++p)
            mayor = std::max(mayor, std::abs(s.MaxCanal(s.Trifasic(g).Fase(p))));
    return mayor;
}

float MaxModuloSecuencias(const RecordStore& s)
{
    float mayor = std::abs(s.MaxCanal(1));
    for (const float maximo : s.MaxCanal)
        mayor = std::max(mayor, maximo);
    return mayor;
}

float FactorDeGrupo(const RecordStore& s, int grupo)
{
    return Single(NumeroLocal(s.Trifasic(grupo).Factor));
}

std::string NombreTrazo(const RecordStore& s, const Trazo& t)
{
    return EtiquetaCanal(s, FilaDeCanal(s, t.canal)) + t.digito;
}

std::string TextoTrazo(const RecordStore& s, const Diagrama& d, const Trazo& t, int fila, const char* arroba)
{
    return NombreTrazo(s, t) + ": " + Mascara(d.Modulos(fila, t.fasor), "#.###") + arroba +
           Mascara(d.Angulos(fila, t.fasor), "#.##") + s.Canales(FilaDeCanal(s, t.canal)).Unidades;
}

std::string TextoNumero(const Diagrama& d, int fila)
{
    return Textos(266) + FormaDelimitada(fila - (d.PrimeraFila() - 1));
}

CuadroDiagrama PintaFases(const RecordStore& s, const Diagrama& d, int fila)
{
    return Pinta(s, d, TrazosFases(s), fila);
}

CuadroDiagrama PintaSecuencias(const RecordStore& s, const Diagrama& d, int fila)
{
    return Pinta(s, d, TrazosSecuencias(s), fila);
}

int FilaDeCanal(const RecordStore& s, int canal)
{
    const std::string numero = FormaDelimitada(canal);
    for (int k = s.Canales.Cuantos(); k >= 1; --k)
        if (s.Canales(k).Numero == numero) return k;
    Lanza(error::kSubindice);
}

LugaresDiagrama ColocaDiagrama(double ancho, double alto)
{
    constexpr double kAltoDiagrama = 0.64, kFilas = 21.0;
    constexpr double kHueco = 100.0, kAnchoMarca = 300.0, kRestoTexto = 600.0, kMayorBoton = 600.0;
    const double tercio = ancho / 3.0, fila = alto / kFilas;
    const double boton = std::min(kMayorBoton, (tercio - 3.0 * kHueco) / 3.0);
    const auto lugar = [](double x, double y, double w, double h) {
        return Lugar{x, y, std::max(0.0, w), std::max(0.0, h)};
    };
    LugaresDiagrama l;
    l.Picture1 = lugar(0.0, 0.0, ancho, kAltoDiagrama * alto);
    const double y = l.Picture1.Abajo();
    l.HScroll1 = lugar(0.0, y, tercio, fila);
    l.lblNumero = lugar(0.0, y + fila, tercio, fila);
    const double yBotones = y + 2.25 * fila, altoBoton = 1.5 * fila;
    l.cmdmas = lugar(kHueco, yBotones, boton, altoBoton);
    l.cmdmenos = lugar(l.cmdmas.Derecha() + kHueco, yBotones, boton, altoBoton);
    l.pctimpresora = lugar(tercio - boton, yBotones, boton, altoBoton);
    l.lblzoom = lugar(kHueco, yBotones + altoBoton, tercio - kHueco, fila);
    for (std::size_t i = 0; i < l.marcas.size(); ++i) {
        const double yTexto = y + static_cast<double>(i) * fila;
        l.marcas[i] = lugar(tercio + kHueco, yTexto, kAnchoMarca, fila);
        l.textos[i] = lugar(l.marcas[i].Derecha() + kHueco, yTexto, 2.0 * tercio - kRestoTexto, fila);
    }
    return l;
}

}  // namespace veldix
