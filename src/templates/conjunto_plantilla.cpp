#include "templates/conjunto_plantilla.h"

#include <algorithm>

#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "templates/modelos.h"

namespace veldix {

namespace {

std::string EnUnaLinea(const std::string& texto)
{
    return std::string(Recorta(UnaLinea(texto)));
}

/// Group `i`, whose members stand in `CanalesDigPlan` from row `r` on; `r` moves behind them.
void CopiaGrupo(RecordStore& s, int i, int& r)
{
    FilaGrupoEdit& grupo = s.GruposEdit(i);
    grupo.Nombre = s.GruposDigPlan(i).Nombre;
    grupo.Cuenta = s.GruposDigPlan(i).Cuenta;
    const int fin = kAntesDeMiembros + Miembros(grupo);
    for (int columna = kAntesDeMiembros + 1; columna <= fin; ++columna, ++r) {
        const FilaCanalDig& canal = s.CanalesDigPlan(r);
        s.GruposEditNum(i, columna) = Entero16Local(canal.Numero);
        grupo.Miembro(columna) = canal.Nombre;
    }
}

}  // namespace

std::int16_t Miembros(const FilaGrupoEdit& grupo)
{
    const auto* numero = std::get_if<std::int16_t>(&grupo.Cuenta);
    return numero ? *numero : Entero16Local(std::get<std::string>(grupo.Cuenta));
}

PaginaAnalogica AbreAnalogicos(RecordStore& s)
{
    PaginaAnalogica pagina;
    if (!s.PlantillaNueva || s.VuelveAnalog) {
        pagina.Identificacion = s.EstacionPlan;
        pagina.Cuenta = s.NumCanalPlan;
    } else if (s.RegistroAbierto || s.ModeloCargado) {
        if (s.NumAnalogPlan == 0) s.NumAnalogPlan = s.NumAnalog;
        if (s.EstacionPlan.empty()) s.EstacionPlan = s.NombreEstacion;
        pagina.Identificacion = s.EstacionPlan;
        pagina.Cuenta = s.NumAnalogPlan;
    }
    return pagina;
}

bool SinOrigen(const RecordStore& s)
{
    return !s.RegistroAbierto && !s.PlantillaAplicada && !s.PlantillaModifica && !s.ModeloCargado;
}

int FilasDeOrigen(const RecordStore& s, std::int16_t cuenta)
{
    return cuenta > s.NumAnalogPlan ? std::min(cuenta, s.NumAnalog) : cuenta;
}

int FilaSinNombre(const Tabla1<FilaCanal>& filas)
{
    const auto vacia = [](const FilaCanal& f) {
        return EnUnaLinea(f.Nombre).empty() && EnUnaLinea(f.Circuito).empty();
    };
    const FilaCanal* primera = std::find_if(filas.begin(), filas.end(), vacia);
    return primera == filas.end() ? 0 : static_cast<int>(primera - filas.begin()) + 1;
}

void GuardaCanales(RecordStore& s, const Tabla1<FilaCanal>& filas)
{
    Tabla1<FilaCanal> canales(filas.UBound());
    for (int r = 1; r <= filas.UBound(); ++r)
        canales(r) = {FormaDelimitada(r), EnUnaLinea(filas(r).Nombre), EnUnaLinea(filas(r).Circuito),
                      EnUnaLinea(filas(r).Unidades)};
    s.CanalesPlan = std::move(canales);
}

std::vector<std::string> CanalesDigitales(RecordStore& s)
{
    std::vector<std::string> nombres;
    const auto toma = [&](const Tabla1<std::string>& tabla) {
        for (int i = 1; i <= s.NumDigitalPlan; ++i)
            nombres.push_back(tabla(i));
    };
    if (s.RegistroAbierto && (s.PlantillaNueva || s.PlantillaModifica)) {
        toma(s.NombreDig);
    } else if (s.ModeloCargado) {
        s.ModeloCargado = false;
        s.NumDigitalPlan = LeeModeloDigital(s, s.EstacionPlan);
        toma(s.NombreDigPlan);
    } else if (s.RegistroAbierto && Coincide(s.EstacionPlan, s.NombreEstacion)) {
        toma(s.NombreDig);
    }
    return nombres;
}

void AbreDigitales(RecordStore& s)
{
    if (s.PlantillaNueva) {
        s.NumGruposDigPlan = 0;
        return;
    }
    // The count may be that of groups edited before; the page begins anew with those that were read.
    s.NumGruposDigPlan = static_cast<std::int16_t>(s.GruposDigPlan.Cuantos());
    if (s.NumGruposDigPlan == 0) return;
    s.GruposEdit = Tabla1<FilaGrupoEdit>(s.NumGruposDigPlan);
    s.GruposEditNum = Tabla2<std::int16_t>(s.NumGruposDigPlan, kColumnasEdit);
    for (int i = 1, r = 1; i <= s.NumGruposDigPlan; ++i)
        CopiaGrupo(s, i, r);
}

int SumaMiembros(RecordStore& s)
{
    if (s.NumGruposDigPlan == 0) return 0;
    s.NumCanalDigPlan = 0;
    for (int i = 1; i <= s.NumGruposDigPlan; ++i) {
        const std::int16_t miembros = Miembros(s.GruposEdit(i));
        s.NumCanalDigPlan = Suma16(s.NumCanalDigPlan, miembros);
        if (miembros == 0) return i;
    }
    return 0;
}

}  // namespace veldix
