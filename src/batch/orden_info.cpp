#include <ostream>

#include "batch/json.h"
#include "batch/ordenes.h"

namespace veldix {

namespace {

template <class T, class Escribe>
void Lista(EscritorJson& j, const char* clave, const Tabla1<T>& tabla, Escribe escribe)
{
    j.Clave(clave).AbreLista();
    for (const T& elemento : tabla)
        escribe(elemento);
    j.CierraLista();
}

template <class T, class Escribe>
void Filas(EscritorJson& j, const char* clave, const Tabla1<T>& tabla, Escribe escribe)
{
    Lista(j, clave, tabla, [&](const T& fila) {
        j.AbreLista();
        escribe(fila);
        j.CierraLista();
    });
}

void Identidad(EscritorJson& j, const RecordStore& s)
{
    const auto entero = [&j](long long v) { j.Entero(v); };
    j.Clave("NombreEstacion").Texto(s.NombreEstacion);
    j.Clave("RevisionCfg").Texto(s.RevisionCfg);
    j.Clave("NumCanales").Entero(s.NumCanales);
    j.Clave("NumAnalog").Entero(s.NumAnalog);
    j.Clave("NumDigital").Entero(s.NumDigital);
    j.Clave("FrecLinea").Entero(s.FrecLinea);
    j.Clave("NumFrecuencias").Entero(s.NumFrecuencias);
    Lista(j, "FrecMuestras", s.FrecMuestras, entero);
    Lista(j, "UltimaMuestra", s.UltimaMuestra, entero);
    j.Clave("FechaInicio").Texto(s.FechaInicio);
    j.Clave("FechaDisparo").Texto(s.FechaDisparo);
    j.Clave("FormatoDat").Texto(s.FormatoDat);
    j.Clave("TimeMult").Entero(s.TimeMult);
    j.Clave("FrecMuestreo").Entero(s.FrecMuestreo);
    j.Clave("FicheroCfg").Texto(s.FicheroCfg);
    j.Clave("FicheroDat").Texto(s.FicheroDat);
    j.Clave("FicheroHdr").Texto(s.FicheroHdr);
    j.Clave("FicheroCnf").Texto(s.FicheroCnf);
    j.Clave("NumMuestras").Entero(s.Muestras.Filas());
}

void CanalesDe(EscritorJson& j, const RecordStore& s)
{
    const auto single = [&j](float v) { j.Single(v); };
    Filas(j, "Canales", s.Canales, [&j](const FilaCanal& c) {
        j.Texto(c.Numero).Texto(c.Nombre).Texto(c.Circuito).Texto(c.Unidades);
    });
    Lista(j, "FactorA", s.FactorA, single);
    Lista(j, "FactorB", s.FactorB, single);
    Lista(j, "Skew", s.Skew, single);
    Filas(j, "Relacion", s.Relacion,
          [&j](const FilaRelacion& r) { j.Single(r.Primario).Single(r.Secundario).Texto(r.Lado); });
    Lista(j, "NombreDig", s.NombreDig, [&j](const std::string& n) { j.Texto(n); });
}

void Plantilla(EscritorJson& j, const RecordStore& s)
{
    j.Clave("VersionPlan").Texto(s.VersionPlan);
    j.Clave("EstacionPlan").Texto(s.EstacionPlan);
    Filas(j, "Trifasic", s.Trifasic, [&j](const FilaTrifasic& t) {
        j.Entero(t.Fase(1)).Entero(t.Fase(2)).Entero(t.Fase(3)).Texto(t.Nombre).Texto(t.Factor);
    });
    Filas(j, "GruposDig", s.GruposDig, [&j](const FilaGrupoDig& g) { j.Texto(g.Nombre).Texto(g.Cuenta); });
    Filas(j, "CanalesDig", s.CanalesDig, [&j](const FilaCanalDig& c) { j.Texto(c.Numero).Texto(c.Nombre); });
    j.Clave("PlantillaNoValida").Logico(s.PlantillaNoValida);
}

}  // namespace

Salida OrdenInfo(const Argumentos& a, const Consola& consola)
{
    if (!AbreRegistroDe(a.sueltos[0], consola)) return Salida::Fallida;
    const bool conPlantilla = a.sueltos.size() > 1;
    if (conPlantilla && !LeePlantillaDe(a.sueltos[1], consola)) return Salida::Fallida;
    EscritorJson j;
    j.AbreObjeto();
    Identidad(j, store);
    CanalesDe(j, store);
    if (conPlantilla) Plantilla(j, store);
    j.CierraObjeto();
    consola.resultados << j.Resultado();
    return Salida::Hecha;
}

}  // namespace veldix
