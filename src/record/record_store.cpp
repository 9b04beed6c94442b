#include "record/record_store.h"

#include <algorithm>
#include <cstring>

#include "platform/texto.h"

namespace veldix {

RecordStore store;

namespace {

constexpr std::array<std::uint8_t, 15> kOrdenColores = {9, 10, 12, 11, 14, 13, 15, 0, 1, 2, 4, 3, 6, 5, 7};

/// A fresh table of `n` rows with those of `origen` that exist. A count below 1 leaves `destino` as it is.
template <class Fila>
void CopiaFilas(Tabla1<Fila>& destino, const Tabla1<Fila>& origen, std::int16_t n)
{
    Intenta([&] {
        Tabla1<Fila> nueva(n);
        for (int i = 1; i <= std::min<int>(n, origen.Cuantos()); ++i)
            nueva(i) = origen(i);
        destino = std::move(nueva);
    });
}

std::string NombreDeFila(const FilaCanal& c)
{
    return c.Nombre.empty() ? c.Circuito : c.Nombre;
}

}  // namespace

void ReiniciaRegistro(RecordStore& s)
{
    s.DFTHecha = false;
    s.RegistroAbierto = true;
    s.Colores = kOrdenColores;
}

void CierraRegistro(RecordStore& s)
{
    static_cast<GrupoIdentidad&>(s) = {};
    static_cast<GrupoCanales&>(s) = {};
    static_cast<GrupoMuestras&>(s) = {};
    static_cast<GrupoTrabajo&>(s) = {};
    static_cast<GrupoPlantilla&>(s) = {};
    static_cast<GrupoBanderas&>(s) = {};
    static_cast<GrupoFasores&>(s) = {};
    static_cast<GrupoDigitales&>(s) = {};
    static_cast<GrupoVistas&>(s) = {};
    for (std::string* texto :
         {&s.FechaInicio, &s.FechaDisparo, &s.EstacionPlan, &s.VersionPlan, &s.AnioCfg, &s.RevisionCfg})
        *texto = "0";
}

void AplicaPlantilla(RecordStore& s)
{
    s.VersionPlantilla = s.VersionPlan;
    s.NombreEstacion = s.EstacionPlan;
    s.NumCanalAnalog = s.NumCanalPlan;
    s.Canales = {};
    CopiaFilas(s.Canales, s.CanalesPlan, s.NumCanalAnalog);
    s.NumTrifasic = s.NumTrifasicPlan;
    CopiaFilas(s.Trifasic, s.TrifasicPlan, s.NumTrifasic);
    s.NumCanalDig = s.NumCanalDigPlan;
    s.NumGruposDig = s.NumGruposDigPlan;
    s.GruposDig = {};
    s.CanalesDig = {};
    CopiaFilas(s.GruposDig, s.GruposDigPlan, s.NumGruposDig);
    CopiaFilas(s.CanalesDig, s.CanalesDigPlan, s.NumCanalDig);
}

std::string EtiquetaCanal(const RecordStore& s, int ch)
{
    const FilaCanal& c = s.Canales(ch);
    const bool nombre = c.Circuito.empty() || NumCaracteres(c.Nombre) > NumCaracteres(c.Circuito);
    return nombre ? c.Nombre : c.Circuito;
}

std::string NombreCanal(const RecordStore& s, int ch)
{
    return NombreDeFila(s.Canales(ch));
}

std::string NombreCanalPlan(const RecordStore& s, int ch)
{
    return NombreDeFila(s.CanalesPlan(ch));
}

void TablaMinMax(RecordStore& s, const Tabla2<float>& tabla)
{
    const int filas = tabla.UBound(1), columnas = tabla.UBound(2);
    s.MinCanal = Tabla1<float>(columnas);
    s.MaxCanal = Tabla1<float>(columnas);
    float* __restrict minimo = s.MinCanal.datos();
    float* __restrict maximo = s.MaxCanal.datos();
    for (int i = 1; i <= filas; ++i) {
        const float* __restrict fila = tabla.fila(i);
        for (int c = 0; c < columnas; ++c) {
            minimo[c] = fila[c] < minimo[c] ? fila[c] : minimo[c];
            maximo[c] = fila[c] > maximo[c] ? fila[c] : maximo[c];
        }
    }
}

std::int16_t MuestrasPorSegundo(const RecordStore& s)
{
    return s.FrecMuestras(1) != 0 ? s.FrecMuestras(1) : s.FrecMuestreo;
}

void AplicaReferencia(RecordStore& s, Lado lado)
{
    if (s.RevisionCfg != "1997") return;
    const bool primario = lado == Lado::Primario;
    const Tabla2<float>& origen = primario ? s.MuestrasPrim : s.MuestrasSec;
    const int filas = origen.UBound(1), columnas = origen.UBound(2);
    if (s.Muestras.Filas() != filas || s.Muestras.Columnas() != columnas)
        s.Muestras = Tabla2<float>(filas, columnas);
    std::memcpy(s.Muestras.fila(1), origen.fila(1),
                sizeof(float) * static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas));
    s.EnPrimario = primario;
    s.EnSecundario = !primario;
}

}  // namespace veldix
