#include "batch/ordenes.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <ostream>

#include "platform/avisos.h"
#include "platform/ficheros.h"
#include "platform/perfil.h"
#include "platform/rutas.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "record/abrir_registro.h"
#include "record/escala.h"
#include "shell/ajustes.h"
#include "templates/plantilla.h"

namespace veldix {

namespace {

struct Orden {
    const char* nombre;
    std::size_t minimo, maximo;  // words behind the name
    bool referencia, grupo;      // takes --reference, needs --group
    bool pagina;                 // takes --channels, --sample and --monochrome
    Salida (*corre)(const Argumentos&, const Consola&);
    const char* uso;
    const char* es;
    const char* en;
};

constexpr Orden kOrdenes[] = {
    {"info", 1, 2, false, false, false, OrdenInfo, "info REC.dat [TEMPLATE.cnf]",
     "escribe el registro, y la plantilla si se da, como JSON",
     "writes the record, and the template if given, as JSON"},
    {"samples", 1, 1, true, false, false, OrdenSamples, "samples REC.dat [--reference primary|secondary]",
     "escribe las muestras como CSV, las señales en las unidades del registro",
     "writes the samples as CSV, in the units of the record"},
    {"phasors", 1, 1, true, false, false, OrdenPhasors, "phasors REC.dat [--reference primary|secondary]",
     "escribe los fasores de los canales analógicos como CSV, eficaces y en grados",
     "writes the phasors of the analog channels as CSV, RMS and degrees"},
    {"sequences", 2, 2, true, true, false, OrdenSequences,
     "sequences REC.dat TEMPLATE.cnf --group G [--reference primary|secondary]",
     "escribe las secuencias del grupo trifásico G de la plantilla como CSV",
     "writes the sequences of the template's three-phase group G as CSV"},
    {"ascii", 2, 2, false, false, false, OrdenAscii, "ascii REC.dat DEST",
     "copia un registro BINARY como ASCII: DEST.DAT, DEST.cfg y, si lo hay, DEST.hdr; DEST es el camino sin\n"
     "      extensión, y los ficheros que haya se sustituyen",
     "copies a BINARY record as an ASCII one: DEST.DAT, DEST.cfg and, where there is one, DEST.hdr; DEST is\n"
     "      the path without extension, and files that are there are replaced"},
    {"report", 2, 3, true, false, true, OrdenReport,
     "report REC.dat [TEMPLATE.cnf] OUT.pdf [--channels 1,3,5-8] [--sample N]\n"
     "      [--reference primary|secondary] [--monochrome]",
     "imprime en un PDF las páginas de las vistas; la muestra, si no se da, es la del disparo",
     "prints the pages of the views into a PDF; the sample, where none is given, is the trigger's"},
};

const Orden* BuscaOrden(const std::string& nombre)
{
    const auto* sitio = std::find_if(std::begin(kOrdenes), std::end(kOrdenes),
                                     [&](const Orden& o) { return o.nombre == nombre; });
    return sitio == std::end(kOrdenes) ? nullptr : sitio;
}

void EscribeUso(std::ostream& s, bool espanol, const Orden* sola)
{
    s << (espanol ? "Uso:" : "Usage:") << '\n';
    for (const Orden& o : kOrdenes)
        if (!sola || sola == &o)
            s << "  veldix-cli [--lang es|en] " << o.uso << "\n      " << (espanol ? o.es : o.en) << '\n';
    s << (espanol ? "Estado de salida: 0 hecho, 1 el registro o la tarea falló, 2 uso incorrecto.\n"
                  : "Exit status: 0 done, 1 the record or the job failed, 2 wrong usage.\n");
}

bool EspanolDelSistema()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* v = std::getenv(variable); v && *v) return std::string_view(v).starts_with("es");
    return false;
}

/// The value of an option that takes one, "--name value" or "--name=value".
bool TomaOpcion(const std::vector<std::string>& args, std::size_t& i, std::string_view nombre,
                std::optional<std::string>& valor)
{
    const std::string_view a = args[i];
    if (a == nombre && i + 1 < args.size()) {
        valor = args[++i];
        return true;
    }
    if (a.size() > nombre.size() && a.starts_with(nombre) && a[nombre.size()] == '=') {
        valor = a.substr(nombre.size() + 1);
        return true;
    }
    return false;
}

/// 1 to 32767, or 0 for a text that is no such number.
int NumeroNatural(const std::string& texto)
{
    int numero = 0;
    const char* fin = texto.data() + texto.size();
    const auto [hasta, fallo] = std::from_chars(texto.data(), fin, numero);
    return fallo == std::errc() && hasta == fin && numero >= 1 && numero <= 32767 ? numero : 0;
}

/// A list of numbers and stretches, "1,3,5-8"; nothing for any other text.
std::optional<std::vector<int>> Lista(const std::string& texto)
{
    std::vector<int> numeros;
    for (std::size_t i = 0; i <= texto.size();) {
        const std::size_t coma = std::min(texto.find(',', i), texto.size());
        const std::string tramo = texto.substr(i, coma - i);
        const std::size_t guion = tramo.find('-');
        const int desde = NumeroNatural(tramo.substr(0, guion));
        const int hasta = guion == std::string::npos ? desde : NumeroNatural(tramo.substr(guion + 1));
        if (desde < 1 || hasta < desde) return std::nullopt;
        for (int k = desde; k <= hasta; ++k)
            numeros.push_back(k);
        i = coma + 1;
    }
    return numeros;
}

struct Linea {
    std::vector<std::string> sueltos;
    std::optional<std::string> idioma, referencia, grupo, canales, muestra;
    bool monocromo = false, ayuda = false, mal = false;

    bool DePagina() const { return canales || muestra || monocromo; }
};

Linea ParteArgumentos(const std::vector<std::string>& args)
{
    Linea l;
    bool opciones = true;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (!opciones || !args[i].starts_with("-") || args[i] == "-")
            l.sueltos.push_back(args[i]);
        else if (args[i] == "--")
            opciones = false;
        else if (args[i] == "--help" || args[i] == "-h")
            l.ayuda = true;
        else if (args[i] == "--monochrome")
            l.monocromo = true;
        else if (!TomaOpcion(args, i, "--lang", l.idioma) &&
                 !TomaOpcion(args, i, "--reference", l.referencia) &&
                 !TomaOpcion(args, i, "--group", l.grupo) && !TomaOpcion(args, i, "--channels", l.canales) &&
                 !TomaOpcion(args, i, "--sample", l.muestra))
            l.mal = true;
    }
    const auto fuera = [](const std::optional<std::string>& v, const char* uno, const char* otro) {
        return v && *v != uno && *v != otro;
    };
    l.mal = l.mal || fuera(l.idioma, "es", "en") || fuera(l.referencia, "primary", "secondary") ||
            (l.grupo && NumeroNatural(*l.grupo) < 1) || (l.muestra && NumeroNatural(*l.muestra) < 1) ||
            (l.canales && !Lista(*l.canales));
    return l;
}

Argumentos ArgumentosDe(const Linea& l)
{
    Argumentos a;
    a.sueltos.assign(l.sueltos.begin() + 1, l.sueltos.end());
    a.referencia = l.referencia.value_or("");
    a.grupo = NumeroNatural(l.grupo.value_or(""));
    if (l.canales) a.canales = Lista(*l.canales).value_or(std::vector<int>{});
    a.muestra = NumeroNatural(l.muestra.value_or(""));
    a.monocromo = l.monocromo;
    return a;
}

/// Language texts and code page, where the settings folder is there.
void CargaEntorno(const std::string& rutaPrograma, bool espanol)
{
    store.RutaPrograma = rutaPrograma;
    store.DirIni = RutaIni(rutaPrograma);
    CargaPaginaCodigos(UneRuta(store.DirIni, "perfil.ini"));
    EligeFicheroIdioma(store, espanol);
    Intenta([] { CargaTextos(store.FicheroIdioma); });
}

}  // namespace

bool AbreRegistroDe(const std::string& dat, const Consola& consola)
{
    NombraPorTronco(store, dat);
    if (store.FicheroDat.empty() || store.FicheroCfg.empty()) {
        const bool faltaDat = store.FicheroDat.empty();
        Avisa(Rotulo(faltaDat ? 174 : 173,
                     consola.espanol ? "No se encuentra el fichero" : "The file cannot be found") +
              " (" + (faltaDat ? dat : std::string(SinFinal(dat, 3)) + "cfg") + ")");
        return false;
    }
    ReiniciaRegistro(store);
    return AbrirRegistro(store) >= 0;
}

bool LeePlantillaDe(const std::string& ruta, const Consola& consola)
{
    if (!ExisteFichero(ruta)) {
        AvisaError(ErrorEjecucion(error::kFicheroNoEncontrado));
        return false;
    }
    if (!EsExtensionPlantilla(ruta)) {
        Avisa(Rotulo(147, consola.espanol ? "No es una plantilla:" : "Not a template:") + " " + ruta);
        return false;
    }
    store.FicheroCnf = ruta;
    // Both flags up, so that the reader tells whether the template fits the record.
    store.RegistroAbierto = true;
    store.PlantillaAplicada = true;
    LeerPlantilla(store);
    if (EsVersionVieja(store.VersionPlan)) return false;
    if (!store.PlantillaNoValida) AplicaPlantilla(store);
    return true;
}

void AplicaReferenciaDe(const Argumentos& a, const Consola& consola)
{
    if (store.Muestras.Vacia()) return;
    if (!a.referencia.empty()) {
        AplicaReferencia(store, a.referencia == "primary" ? Lado::Primario : Lado::Secundario);
    } else if (!MuestrasDirectas(store)) {
        Avisa(consola.espanol ? "Un registro 1997 con relaciones es cero mientras no se elija --reference."
                              : "A 1997 record with ratios is zero until a --reference is chosen.");
    }
}

Salida Ejecuta(const std::vector<std::string>& argumentos, const std::string& rutaPrograma, Consola consola)
{
    const Linea linea = ParteArgumentos(argumentos);
    consola.espanol = linea.idioma ? *linea.idioma == "es" : EspanolDelSistema();
    const Orden* orden = linea.sueltos.empty() ? nullptr : BuscaOrden(linea.sueltos[0]);
    if (linea.ayuda && !linea.mal) {
        EscribeUso(consola.resultados, consola.espanol, orden);
        return Salida::Hecha;
    }
    const std::size_t palabras = linea.sueltos.empty() ? 0 : linea.sueltos.size() - 1;
    if (!orden || linea.mal || palabras < orden->minimo || palabras > orden->maximo ||
        (linea.referencia && !orden->referencia) || (linea.DePagina() && !orden->pagina) ||
        linea.grupo.has_value() != orden->grupo) {
        EscribeUso(consola.mensajes, consola.espanol, orden);
        return Salida::MalUso;
    }
    CargaEntorno(rutaPrograma, consola.espanol);
    PonCajas([&consola](const Caja& caja) {
        const char* vacio = consola.espanol ? "El registro o su plantilla no se puede leer."
                                            : "The record or its template cannot be read.";
        consola.mensajes << "veldix-cli: " << (caja.texto.empty() ? vacio : caja.texto) << std::endl;
        return true;
    });
    Salida salida = Salida::Fallida;
    try {
        salida = orden->corre(ArgumentosDe(linea), consola);
    } catch (const std::exception&) {
        AvisaError(ErrorEnVuelo());
    }
    PonCajas(nullptr);
    consola.resultados.flush();
    return consola.resultados ? salida : Salida::Fallida;
}

}  // namespace veldix
