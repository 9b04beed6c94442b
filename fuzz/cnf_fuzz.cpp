#include <algorithm>

#include "comun.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "pruebas.h"
#include "templates/plantilla.h"

namespace veldix::fuzz {

namespace {

constexpr int kMiembros = 19;

void CompruebaTablas(const RecordStore& s)
{
    Exige(s.NumCanalPlan <= 0 || s.CanalesPlan.Cuantos() == s.NumCanalPlan, "analog rows");
    Exige(s.NumTrifasicPlan <= 0 || s.TrifasicPlan.Cuantos() == s.NumTrifasicPlan, "three-phase rows");
    const bool grupos = s.NumCanalDigPlan > 0 && s.NumGruposDigPlan > 0;
    Exige(!grupos || s.CanalesDigPlan.Cuantos() == s.NumCanalDigPlan, "digital rows");
    Exige(!grupos || s.GruposDigPlan.Cuantos() == s.NumGruposDigPlan, "groups");
}

void PonMiembro(RecordStore& s, int grupo, int j, int fila)
{
    if (fila > s.CanalesDigPlan.Cuantos()) return;
    const FilaCanalDig& canal = s.CanalesDigPlan(fila);
    Intenta([&] { s.GruposEditNum(grupo, j + 2) = Entero16Local(canal.Numero); });
    s.GruposEdit(grupo).Miembro(j + 2) = canal.Nombre;
}

/// The groups as the set-up pages hold them while they are edited.
void PonGrupos(RecordStore& s)
{
    const int n = s.GruposDigPlan.Cuantos();
    if (n == 0) return;
    s.GruposEdit = Tabla1<FilaGrupoEdit>(n);
    s.GruposEditNum = Tabla2<std::int16_t>(n, 21);
    int fila = 1;
    for (int i = 1; i <= n; ++i) {
        const FilaGrupoDig& grupo = s.GruposDigPlan(i);
        s.GruposEdit(i).Nombre = grupo.Nombre;
        s.GruposEdit(i).Cuenta = grupo.Cuenta;
        std::int16_t cuenta = 0;
        Intenta([&] { cuenta = Entero16Local(grupo.Cuenta); });
        for (int j = 1; j <= std::min<int>(cuenta, kMiembros); ++j)
            PonMiembro(s, i, j, fila + j - 1);
        fila += Filas(cuenta);
    }
}

/// The text that the template set is written as, or the error number.
int Graba(RecordStore& s, std::string& texto)
{
    PonGrupos(s);
    const FicheroMemoria destino;
    const int error = NumeroDeError([&] { GrabarPlantilla(s, destino.Ruta()); });
    texto = LeeOctetos(destino.Ruta());
    return error;
}

void CompruebaIguales(const RecordStore& a, const RecordStore& b)
{
    Exige(a.EstacionPlan == b.EstacionPlan, "station");
    Exige(Filas(a.NumCanalPlan) == Filas(b.NumCanalPlan), "analog count");
    Exige(Filas(a.NumTrifasicPlan) == Filas(b.NumTrifasicPlan), "three-phase count");
    Exige(Filas(a.NumCanalDigPlan) == Filas(b.NumCanalDigPlan), "digital count");
    for (int r = 1; r <= a.NumCanalPlan; ++r) {
        const FilaCanal &x = a.CanalesPlan(r), &y = b.CanalesPlan(r);
        Exige(x.Numero == y.Numero && x.Nombre == y.Nombre && x.Circuito == y.Circuito &&
                  x.Unidades == y.Unidades,
              "analog row");
    }
    for (int r = 1; r <= a.NumTrifasicPlan; ++r) {
        const FilaTrifasic &x = a.TrifasicPlan(r), &y = b.TrifasicPlan(r);
        Exige(x.fases == y.fases && x.Nombre == y.Nombre && x.Factor == y.Factor, "three-phase row");
    }
    for (int i = 1; a.NumCanalDigPlan > 0 && i <= a.NumGruposDigPlan; ++i)
        Exige(a.GruposDigPlan(i).Nombre == b.GruposDigPlan(i).Nombre, "group name");
}

/// What was read, written and read again is the same, and so is its file.
void CompruebaVuelta(RecordStore& s)
{
    std::string uno, dos;
    if (const int error = Graba(s, uno)) {
        Exige(error == error::kSubindice || error == error::kTipos || error == error::kDesbordamiento,
              "error of writing");
        return;
    }
    const FicheroMemoria fichero(uno);
    RecordStore t;
    t.FicheroCnf = fichero.Ruta();
    LeerPlantilla(t);
    Exige(t.VersionPlan == "ver 1.1" && !t.PlantillaNoValida, "own file refused");
    CompruebaIguales(s, t);
    Exige(Graba(t, dos) == 0 && uno == dos, "second file differs");
}

void CompruebaVersion(const std::string& ruta, const RecordStore& leida)
{
    RecordStore s;
    s.FicheroCnf = ruta;
    std::string version;
    const int error = NumeroDeError([&] { version = LeerVersionPlantilla(s); });
    Exige(error == 0 || error == error::kFinDeFichero, "error of the version line");
    Exige(version == s.VersionPlantilla && version == leida.VersionPlan, "version");
}

/// A template read over an open record that it must fit.
void CompruebaAjuste(const std::string& ruta)
{
    RecordStore s;
    s.FicheroCnf = ruta;
    s.RegistroAbierto = s.PlantillaAplicada = true;
    s.NumAnalog = 8;
    s.NumDigital = 24;
    LeerPlantilla(s);
    if (s.PlantillaNoValida) return;
    CompruebaTablas(s);
    Exige(s.NumCanalPlan <= s.NumAnalog, "more analog channels than the record");
    AplicaPlantilla(s);
    Exige(Filas(s.NumCanalAnalog) == s.Canales.Cuantos(), "rows in force");
}

}  // namespace

bool EsPesada_cnf(Octetos entrada)
{
    constexpr int kFilas = 1000;
    constexpr std::size_t kUnaDe = 32;
    const std::vector<std::string> lineas = Lineas(Texto(entrada));
    const auto larga = [](const std::string& linea) {
        int filas = 0;
        return Intenta([&] { filas = Entero16Local(linea); }) && filas > kFilas;
    };
    return entrada.size() % kUnaDe != 0 && std::any_of(lineas.begin(), lineas.end(), larga);
}

int Prueba_cnf(Octetos entrada)
{
    const CajasMudas mudas;
    const FicheroMemoria fichero(Texto(entrada));
    RecordStore s;
    s.FicheroCnf = fichero.Ruta();
    LeerPlantilla(s);
    Exige(!s.PlantillaNoValida, "refused without a record");
    CompruebaTablas(s);
    CompruebaVersion(fichero.Ruta(), s);
    CompruebaAjuste(fichero.Ruta());
    CompruebaVuelta(s);
    return 0;
}

}  // namespace veldix::fuzz
