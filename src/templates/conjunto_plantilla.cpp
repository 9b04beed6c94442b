#include "templates/conjunto_plantilla.h"

#include <algorithm>

#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/texto.h"

namespace veldix {

namespace {

constexpr int kColumnasEdit = 21;
constexpr int kPrimerMiembro = 3;  ///< its column in the edit tables

std::string UnaLinea(std::string texto)
{
    std::erase_if(texto, [](char c) { return c == '\r' || c == '\n'; });
    return std::string(Recorta(texto));
}

std::int16_t Miembros(const FilaGrupoEdit& grupo)
{
    const auto* numero = std::get_if<std::int16_t>(&grupo.Cuenta);
    return numero ? *numero : Entero16Local(std::get<std::string>(grupo.Cuenta));
}

/// Group `i`, whose members stand in `CanalesDigPlan` from row `r` on; `r` moves behind them.
void CopiaGrupo(RecordStore& s, int i, int& r)
{
    FilaGrupoEdit& grupo = s.GruposEdit(i);
    grupo.Nombre = s.GruposDigPlan(i).Nombre;
    grupo.Cuenta = s.GruposDigPlan(i).Cuenta;
    const int fin = kPrimerMiembro + Miembros(grupo);
    for (int columna = kPrimerMiembro; columna < fin; ++columna, ++r) {
        const FilaCanalDig& canal = s.CanalesDigPlan(r);
        s.GruposEditNum(i, columna) = Entero16Local(canal.Numero);
        grupo.Miembro(columna) = canal.Nombre;
    }
}

}  // namespace

PaginaAnalogica AbreAnalogicos(RecordStore& s)
{
    PaginaAnalogica pagina;
    if (!s.PlantillaNueva || s.VuelveAnalog) {
        pagina.Identificacion = s.EstacionPlan;
        pagina.Cuenta = s.NumCanalPlan;
    } else if (s.RegistroAbierto) {
        if (s.NumAnalogPlan == 0) s.NumAnalogPlan = s.NumAnalog;
        if (s.EstacionPlan.empty()) s.EstacionPlan = s.NombreEstacion;
        pagina.Identificacion = s.EstacionPlan;
        pagina.Cuenta = s.NumAnalogPlan;
    }
    if (pagina.Cuenta < 1) return pagina;
    pagina.Filas = Tabla1<FilaCanal>(pagina.Cuenta);
    const int filas = std::min<int>(pagina.Cuenta, s.CanalesPlan.Cuantos());
    std::copy_n(s.CanalesPlan.begin(), filas, pagina.Filas.begin());
    return pagina;
}

void CierraAnalogicos(RecordStore& s, const PaginaAnalogica& pagina)
{
    s.EstacionPlan = UnaLinea(pagina.Identificacion);
    s.NumCanalPlan = pagina.Cuenta;
    if (pagina.Cuenta == 0) return;
    s.CanalesPlan = Tabla1<FilaCanal>(pagina.Cuenta);
    for (int r = 1; r <= pagina.Cuenta; ++r) {
        const FilaCanal& fila = pagina.Filas(r);
        s.CanalesPlan(r) = {FormaDelimitada(r), std::string(Recorta(fila.Nombre)),
                            std::string(Recorta(fila.Circuito)), std::string(Recorta(fila.Unidades))};
    }
}

void AbreDigitales(RecordStore& s)
{
    if (s.PlantillaNueva) {
        s.NumGruposDigPlan = 0;
        return;
    }
    // The count may be that of groups edited before; the page begins anew with those that were read.
    if (s.NumGruposDigPlan > 0) s.NumGruposDigPlan = static_cast<std::int16_t>(s.GruposDigPlan.Cuantos());
    if (s.NumGruposDigPlan < 1) return;
    s.GruposEdit = Tabla1<FilaGrupoEdit>(s.NumGruposDigPlan);
    s.GruposEditNum = Tabla2<std::int16_t>(s.NumGruposDigPlan, kColumnasEdit);
    for (int i = 1, r = 1; i <= s.NumGruposDigPlan; ++i)
        CopiaGrupo(s, i, r);
}

int SumaMiembros(RecordStore& s)
{
    if (s.NumGruposDigPlan == 0) return 0;
    int primeraVacia = 0;
    s.NumCanalDigPlan = 0;
    for (int i = 1; i <= s.NumGruposDigPlan; ++i) {
        const std::int16_t miembros = Miembros(s.GruposEdit(i));
        if (miembros == 0 && primeraVacia == 0) primeraVacia = i;
        s.NumCanalDigPlan = Suma16(s.NumCanalDigPlan, miembros);
    }
    return primeraVacia;
}

}  // namespace veldix
