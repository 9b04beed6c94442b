#include <ostream>

#include "analysis/fasores.h"
#include "analysis/grupos.h"
#include "analysis/modDFT.h"
#include "batch/ordenes.h"
#include "platform/avisos.h"
#include "platform/numeros.h"
#include "platform/textos.h"

namespace veldix {

namespace {

/// The phasors of a record, of the side that is asked for. False after a message.
bool FasoresDe(const Argumentos& a, const Consola& consola)
{
    if (!AbreRegistroDe(a.sueltos[0], consola)) return false;
    AplicaReferenciaDe(a, consola);
    if (CicloDe(consola) == 0) return false;
    CalculaDFT(store);
    return !store.FasoresDFT.Vacia();
}

/// Rows of phasors, columns 2c - 1 and 2c of phasor c, each with its parts, magnitude and angle.
void EscribeTabla(std::ostream& s, const Tabla2<float>& fasores, const std::vector<std::string>& nombres)
{
    std::string linea = "row";
    for (const std::string& n : nombres)
        linea += "," + n + "_x," + n + "_y," + n + "_mag," + n + "_ang";
    s << linea << '\n';
    for (int i = 1; i <= fasores.UBound(1) && s; ++i) {
        const float* f = fasores.fila(i);
        linea = std::to_string(i);
        for (std::size_t c = 0; c < nombres.size(); ++c, f += 2)
            for (const float v : {f[0], f[1], ModuloFasor(f[0], f[1]), AnguloFasor(f[0], f[1])})
                linea += "," + TextoExacto(v);
        s << linea << '\n';
    }
}

/// Makes `grupo` the only one whose sequences are computed. False, after a message, where the template does
/// not have it or does not fit the record.
bool EligeGrupo(int grupo, const Consola& consola)
{
    if (!CabePlantilla(consola)) return false;
    if (grupo > store.NumTrifasic) {
        Avisa((consola.espanol ? "La plantilla no tiene el grupo trifásico "
                               : "The template has no three-phase group ") +
              std::to_string(grupo) + ".");
        return false;
    }
    store.GruposSecuencias = CuentaMarcas(MarcaUno(grupo, store.NumTrifasic));
    return true;
}

}  // namespace

std::int16_t CicloDe(const Consola& consola)
{
    const std::int16_t ciclo = MuestrasCiclo(store);
    if (ciclo == 0)
        Avisa(
            Rotulo(283, consola.espanol ? "Menos de una muestra por ciclo." : "Less than a sample a cycle."));
    return ciclo;
}

bool CabePlantilla(const Consola& consola)
{
    if (store.PlantillaNoValida)
        Avisa(Rotulo(246, consola.espanol ? "La plantilla no es de este registro."
                                          : "The template does not fit the record."));
    return !store.PlantillaNoValida;
}

Salida OrdenPhasors(const Argumentos& a, const Consola& consola)
{
    if (!FasoresDe(a, consola)) return Salida::Fallida;
    std::vector<std::string> nombres;
    for (int c = 1; c <= store.NumCanalesDFT; ++c)
        nombres.push_back("A" + std::to_string(c));
    EscribeTabla(consola.resultados, store.FasoresDFT, nombres);
    return Salida::Hecha;
}

Salida OrdenSequences(const Argumentos& a, const Consola& consola)
{
    if (!FasoresDe(a, consola) || !LeePlantillaDe(a.sueltos[1], consola) || !EligeGrupo(a.grupo, consola))
        return Salida::Fallida;
    CalculaSecuencias(store);
    EscribeTabla(consola.resultados, store.Secuencias, {"pos", "neg", "zero"});
    return Salida::Hecha;
}

}  // namespace veldix
