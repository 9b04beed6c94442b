#include <filesystem>

#include "comun.h"
#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/jet.h"
#include "pruebas.h"
#include "templates/modelos.h"

namespace veldix::fuzz {

namespace {

void ExigeError(int numero, const char* que)
{
    for (const int sabido : {0, 6, 7, 9, 13, 3021, 3024, 3044, 3265, 3343})
        if (numero == sabido) return;
    Exige(false, que);
}

/// Every table is read from end to end, or tells why not.
void RecorreTablas(const BaseJet& base)
{
    for (const std::string& tabla : base.Tablas()) {
        ExigeError(NumeroDeError([&] {
                       Recordset r = base.AbreTabla(tabla);
                       for (; !r.Eof(); r.MoveNext())
                           Exige(EsUtf8(r.Texto("Nombre")), "text of a field");
                   }),
                   "error of a table");
    }
}

/// The file as master and as each model's database: what fails changes nothing.
void LeeModelos(std::string_view octetos)
{
    const std::string carpeta = CarpetaMemoria() + "/jet/Models";
    std::filesystem::create_directories(carpeta);
    for (const char* nombre : {"/Modelos.mdb", "/uno.mdb"})
        EscribeFichero(carpeta + nombre, octetos);
    RecordStore s;
    s.RutaPrograma = CarpetaMemoria() + "/jet/VELDIX/EXE";
    ExigeError(NumeroDeError([&] { ListaModelos(s); }), "error of the list");
    const int analog = NumeroDeError([&] { LeeModeloAnalog(s, "*"); });
    ExigeError(analog, "error of the measures");
    Exige(analog == 0 || (s.CanalesPlan.Vacia() && s.NumAnalogPlan == 0 && !s.ModeloCargado), "half a model");
    Exige(s.NumAnalogPlan <= s.CanalesPlan.Cuantos(), "more measures than rows");
    ExigeError(NumeroDeError([&] { LeeModeloDigital(s, "*"); }), "error of the signals");
    Exige(s.NumDigitalPlan == s.NombreDigPlan.Cuantos(), "signals");
}

}  // namespace

int Prueba_jet(Octetos entrada)
{
    const FicheroMemoria fichero(Texto(entrada));
    ExigeError(NumeroDeError([&] { RecorreTablas(BaseJet(fichero.Ruta())); }), "error of a database");
    LeeModelos(Texto(entrada));
    return 0;
}

}  // namespace veldix::fuzz
