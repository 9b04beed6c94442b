#include <array>
#include <tuple>

#include "comun.h"
#include "platform/avisos.h"
#include "pruebas.h"
#include "record/abrir_registro.h"
#include "record/leer_cfg.h"

namespace veldix::fuzz {

namespace {

constexpr std::string_view kDat = "1,0,100,-100,1,0\r\n2,625,-32768,32767,0,1\r\n3,1250,1,2\r\n";

void CompruebaTablas(const RecordStore& s)
{
    const int n = Filas(s.NumAnalog);
    Exige(s.FactorA.Cuantos() == n && s.FactorB.Cuantos() == n && s.Skew.Cuantos() == n, "factors");
    Exige(s.Canales.Cuantos() == n && s.CanalesPlan.Cuantos() == n, "channels");
    Exige(s.Relacion.Cuantos() == (s.RevisionCfg == "1997" ? n : 0), "ratios");
    Exige(s.NombreDig.Cuantos() == Filas(s.NumDigital), "digital names");
    const int secciones = std::max<int>(1, s.NumFrecuencias);
    Exige(s.FrecMuestras.Cuantos() == secciones && s.UltimaMuestra.Cuantos() == secciones, "sections");
    Exige(s.NumAnalogPlan == s.NumAnalog && s.NumDigitalPlan == s.NumDigital, "counts of the template");
    for (const Tabla1<float>* t : {&s.FactorA, &s.FactorB, &s.Skew})
        Exige(Finitas(t->datos(), t->Cuantos()), "factor that is no number");
    for (const FilaRelacion& r : s.Relacion) {
        const std::array<float, 2> lados{r.Primario, r.Secundario};
        Exige(Finitas(lados.data(), 2), "ratio that is no number");
    }
}

/// All that a second reading of the same file must leave alone.
auto Huella(const RecordStore& s)
{
    std::string filas;
    for (int c = 1; c <= Filas(s.NumAnalog); ++c)
        filas += s.Canales(c).Numero + '|' + s.CanalesPlan(c).Numero + '|' + s.Canales(c).Nombre + '|' +
                 s.Canales(c).Circuito + '|' + s.Canales(c).Unidades + '|' + std::to_string(s.FactorA(c)) +
                 '\n';
    for (const std::string& n : s.NombreDig)
        filas += n + '\n';
    return std::tuple(filas, s.NombreEstacion, s.RevisionCfg, s.NumCanales, s.NumAnalog, s.NumDigital,
                      s.FrecLinea, s.NumFrecuencias, s.UltimaMuestra.Cuantos(), s.FechaInicio, s.FechaDisparo,
                      s.FormatoDat, s.TimeMult, s.AnioMal);
}

void CompruebaApertura(RecordStore& s)
{
    const std::int16_t resultado = AbrirRegistro(s);
    const bool formato = s.FormatoDat == "ASCII" || s.FormatoDat == "BINARY";
    Exige(resultado == (formato ? 0 : -1), "result of opening");
    Exige(s.ErrorFormato == (!formato && !s.AnioMal), "format flag");
    Exige(!s.EnPrimario && !s.EnSecundario && !s.PlantillaNoValida, "flags that opening does not set");
    const int muestras = formato ? Filas(s.UltimaMuestra(1)) : 0, n = Filas(s.NumAnalog);
    const bool lados = s.RevisionCfg == "1997";
    ExigeTamano(s.Muestras, true, muestras, n, "samples");
    ExigeTamano(s.MuestrasPrim, lados, muestras, n, "primary samples");
    ExigeTamano(s.MuestrasSec, lados, muestras, n, "secondary samples");
    ExigeTamano(s.MuestrasDig, !s.Muestras.Vacia(), muestras, Filas(s.NumDigital), "states");
    Exige(s.Tiempos.Cuantos() == (s.Muestras.Vacia() ? 0 : muestras), "times");
    for (int i = 1; i <= std::min(s.Muestras.Filas(), 4); ++i)
        Exige(Finitas(s.Muestras.fila(i), n) && (!lados || Finitas(s.MuestrasPrim.fila(i), n)) &&
                  (!lados || Finitas(s.MuestrasSec.fila(i), n)),
              "sample that is no number");
}

}  // namespace

int Prueba_cfg(Octetos entrada)
{
    const CajasMudas mudas;
    const FicheroMemoria cfg(Texto(entrada)), dat(kDat);
    RecordStore s;
    s.FicheroCfg = cfg.Ruta();
    s.FicheroDat = dat.Ruta();
    LeerCfg(s);
    Exige(s.NombreEstacion == s.EstacionPlan, "station");
    Exige(s.Muestras.Vacia() && !s.RegistroAbierto && !s.ErrorFormato, "more than the header was read");
    if (s.AnioMal) {
        Exige(s.FactorA.Vacia() && s.FormatoDat.empty() && s.NumAnalog == 0, "read past a refused year");
        Exige(AbrirRegistro(s) == -1, "refused year opened");
        return 0;
    }
    Exige(s.RevisionCfg == "1991" || s.RevisionCfg == "1997", "revision");
    CompruebaTablas(s);
    if (Filas(s.NumAnalog) + Filas(s.NumDigital) < 1000) {
        const auto antes = Huella(s);
        LeerCfg(s);
        Exige(antes == Huella(s), "second reading differs");
        CompruebaTablas(s);
    }
    CompruebaApertura(s);
    return 0;
}

}  // namespace veldix::fuzz
