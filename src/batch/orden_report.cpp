#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>

#include "analysis/fasores.h"
#include "analysis/grupos.h"
#include "analysis/modDFT.h"
#include "analysis/pagina_fasores.h"
#include "batch/ordenes.h"
#include "digital/eleccion.h"
#include "digital/lugares_digital.h"
#include "digital/pagina_digital.h"
#include "platform/avisos.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "record/cabecera.h"
#include "record/disparo.h"
#include "waves/lugares_onda.h"
#include "waves/lugares_todo.h"
#include "waves/pagina_ondas.h"
#include "waves/plot.h"

namespace veldix {

std::function<std::unique_ptr<Impresora>(const std::string& ruta, ModoColor color)> creaPdf;

namespace {

/// A screen for the plots that there is none of, twips.
constexpr float kAnchoPantalla = 1024.0F * 15.0F, kAltoPantalla = 768.0F * 15.0F;
constexpr float kAltoOnda = kAltoPantalla - static_cast<float>(kBajoPlot);
constexpr float kAltoTodo = kAltoPantalla - static_cast<float>(kBajoTodo);
constexpr float kAnchoTodo = kAnchoPantalla - static_cast<float>(kLadoTodo);
constexpr float kAltoDigital = kAltoPantalla - static_cast<float>(kBajoDigital);
constexpr std::size_t kBandas = 8;  // on a page

struct Informe {
    Impresora& impresora;
    std::vector<int> canales;
    int muestra = 1;
    bool empezado = false;  ///< a page stands

    /// Goes on to a fresh page.
    void Pagina()
    {
        if (empezado) impresora.PaginaNueva();
        empezado = true;
    }
};

std::int16_t Ultima()
{
    return static_cast<std::int16_t>(store.Muestras.UBound(1));
}

/// The yellow cursor on the sample, the cyan one a cycle later as far as the record goes.
DatosHoja DatosDe(const Informe& informe, const std::string& titulo)
{
    DatosHoja d;
    d.titulo = titulo;
    d.Cursor1 = static_cast<float>(informe.muestra);
    d.Cursor2 = static_cast<float>(std::min<int>(informe.muestra + PasoDeCursor(store), Ultima()));
    d.textoMs = TextoTiempo(d.Cursor1, d.Cursor2, MuestrasPorSegundo(store));
    d.fecha = FechaImpresion();
    return d;
}

bool Imprime(Informe& informe, const std::optional<HojaOndas>& hoja)
{
    if (!hoja) {
        Avisa(Textos(80));
        return false;
    }
    informe.Pagina();
    ImprimeHoja(informe.impresora, *hoja);
    return true;
}

bool ImprimeCanal(Informe& informe, int r)
{
    const int columna = ColumnaDeCanal(store, r);
    ZoomCaja zoom;
    zoom.Reinicia(kAnchoPantalla, kAltoOnda, Ultima());
    const float escala = EscalaVertical(kAltoOnda, store.MinCanal(columna), store.MaxCanal(columna));
    DatosHoja d = DatosDe(informe, NombreCanal(store, r));
    d.textoDif =
        TextoDiferencia(store.Muestras(static_cast<int>(d.Cursor1), columna),
                        store.Muestras(static_cast<int>(d.Cursor2), columna), store.Canales(r).Unidades);
    return Imprime(informe, HojaDeOnda(store, informe.impresora, r, zoom.Pila(1), escala, d));
}

bool ImprimeRestantes(Informe& informe, std::size_t desde)
{
    const auto hasta = std::min(desde + kBandas, informe.canales.size());
    const std::vector<int> canales(informe.canales.begin() + static_cast<std::ptrdiff_t>(desde),
                                   informe.canales.begin() + static_cast<std::ptrdiff_t>(hasta));
    ZoomCursores zoom(kMargenesBandas);
    const FilaZoom fila = zoom.Reinicia(kAnchoTodo, Ultima());
    const Bandas bandas = ColocaBandas(store, canales, kAltoTodo);
    return Imprime(informe,
                   HojaDeTodo(store, informe.impresora, bandas, fila, kAltoTodo, DatosDe(informe, "")));
}

/// Each channel alone, then all of them in runs of eight.
bool ImprimeOndas(Informe& informe)
{
    TablaMinMax(store, store.Muestras);
    if (!std::ranges::all_of(informe.canales, [&](int r) { return ImprimeCanal(informe, r); })) return false;
    for (std::size_t desde = 0; desde < informe.canales.size(); desde += kBandas)
        if (!ImprimeRestantes(informe, desde)) return false;
    return true;
}

/// A diagram as a view of it would hold it, at zoom 1.
void ImprimeDiagrama(Informe& informe, const Tabla2<float>& fasores, float (*maximo)(const RecordStore&),
                     const std::vector<Trazo>& trazos, int titulo, const char* defecto)
{
    Diagrama d(store, fasores, MuestrasCiclo(store));
    d.MaxModulo = maximo(store);
    d.Ajusta(kAnchoPantalla, kAltoPantalla);
    const int fila = std::min(informe.muestra + d.PrimeraFila() - 1, d.UltimaFila());
    Impresora& imp = informe.impresora;
    informe.Pagina();
    ImprimeFasores(imp, ComponeFasores(store, d, trazos, fila, kAltoPantalla,
                                       {Rotulo(titulo, defecto), store.FicheroDat, FechaImpresion()}, imp,
                                       {imp.AnchoTexto("AA"), imp.AltoTexto()}));
}

/// Phases and sequences of each group; none where the record has no phasors, which is told.
bool ImprimeGrupos(Informe& informe, const Consola& consola)
{
    if (store.NumTrifasic == 0) return true;
    if (CicloDe(consola) == 0) return false;
    CalculaDFT(store);
    if (store.FasoresDFT.Vacia()) return false;
    for (int g = 1; g <= store.NumTrifasic; ++g) {
        store.GruposFases = store.GruposSecuencias = CuentaMarcas(MarcaUno(g, store.NumTrifasic));
        ImprimeDiagrama(informe, store.FasoresDFT, MaxModuloFases, TrazosFases(store), 69, "Fases");
        CalculaSecuencias(store);
        ImprimeDiagrama(informe, store.Secuencias, MaxModuloSecuencias, TrazosSecuencias(store), 70,
                        "Secuencias");
    }
    return true;
}

/// A digital group as its view would hold it. Raises 9 for more channels than that has rows, and what their
/// reading raises.
HojaOndas HojaDeGrupo(Informe& informe, int g)
{
    store.CanalRef = static_cast<std::int16_t>(informe.canales.front());
    if (!EligeGrupo(store, g) || store.NumDigVista > kFilasDigital) Lanza(error::kSubindice);
    const FilaZoom registro = ZoomCursores(kMargenesDigital).Reinicia(kAnchoPantalla, Ultima());
    const PlotDigital plot{
        kAnchoPantalla, kAltoDigital, {0, Ultima(), registro.EscalaX}, FilasDigitales(store)};
    return HojaDigital(store, informe.impresora, plot, DatosDe(informe, ""));
}

/// Each digital group of the template under the first of the chosen channels. One that no view can show is
/// named and left out, for the sake of the other pages.
void ImprimeDigitales(Informe& informe, const Consola& consola)
{
    if (store.NumGruposDig > 0 && informe.canales.empty()) {
        Avisa(consola.espanol ? "Sin canales analógicos no hay páginas de canales digitales."
                              : "There are no pages of digital channels without analog channels.");
        return;
    }
    for (int g = 1; g <= store.NumGruposDig; ++g) {
        HojaOndas hoja;
        try {
            hoja = HojaDeGrupo(informe, g);
        } catch (const ErrorEjecucion& e) {
            Avisa((consola.espanol ? "Grupo digital sin página, error "
                                   : "Digital group without a page, error ") +
                  FormaDelimitada(e.numero) + ": " + store.GruposDig(g).Nombre);
            continue;
        }
        informe.Pagina();
        ImprimeHoja(informe.impresora, hoja);
    }
}

/// The header file, where the record has one. One that cannot be listed is named and left out.
void ImprimeHdr(Informe& informe, const Consola& consola)
{
    if (store.FicheroHdr.empty()) return;
    std::vector<std::string> lineas;
    try {
        lineas = LeeCabecera(store.FicheroHdr);
    } catch (const ErrorEjecucion& e) {
        Avisa((consola.espanol ? "Cabecera sin página, error " : "Header without a page, error ") +
              FormaDelimitada(e.numero) + ": " + store.FicheroHdr);
        return;
    }
    informe.Pagina();
    ImprimeCabecera(informe.impresora, lineas, FechaImpresion(), [] { return false; });
}

/// What is to be printed, from the words of the command. False, after a message, where the record lacks it.
bool Elige(Informe& informe, const Argumentos& a, const Consola& consola)
{
    const int ultima = Ultima();
    informe.canales = a.canales;
    for (int r = 1; a.canales.empty() && r <= store.NumCanalAnalog; ++r)
        informe.canales.push_back(r);
    informe.muestra = a.muestra > 0 ? a.muestra : MuestraDeDisparo(store).value_or((ultima + 1) / 2);
    const bool sobra = std::ranges::any_of(informe.canales, [](int r) { return r > store.NumCanalAnalog; });
    if (!sobra && informe.muestra <= ultima) return true;
    Avisa(sobra ? (consola.espanol ? "El registro no tiene ese canal." : "The record has no such channel.")
                : (consola.espanol ? "El registro no tiene esa muestra." : "The record has no such sample."));
    return false;
}

/// The report never replaces one of its sources, be it by a link, nor a file that is no PDF: a forgotten last
/// word would cost the template or the samples.
bool EsSalida(const Argumentos& a)
{
    const std::string& pdf = a.sueltos.back();
    if (!IgualSinCaja(Derecha(pdf, 4), ".pdf")) return false;
    return std::none_of(a.sueltos.begin(), a.sueltos.end() - 1, [&pdf](const std::string& fuente) {
        std::error_code fallo;
        const std::string tronco(SinFinal(fuente, 3));
        return std::ranges::any_of(std::array{fuente, tronco + "cfg", tronco + "hdr"}, [&](const auto& ruta) {
            return std::filesystem::equivalent(ruta, pdf, fallo);
        });
    });
}

}  // namespace

Salida OrdenReport(const Argumentos& a, const Consola& consola)
{
    if (!EsSalida(a)) {
        Avisa(consola.espanol ? "El último nombre debe ser el de un fichero .pdf nuevo o de otro informe."
                              : "The last name must be that of a new .pdf file or of another report.");
        return Salida::MalUso;
    }
    const bool plantilla = a.sueltos.size() == 3;
    if (!AbreRegistroDe(a.sueltos[0], consola)) return Salida::Fallida;
    if (plantilla && (!LeePlantillaDe(a.sueltos[1], consola) || !CabePlantilla(consola)))
        return Salida::Fallida;
    Argumentos conLado = a;
    if (conLado.referencia.empty()) conLado.referencia = "primary";  // as the choosers of the views preselect
    AplicaReferenciaDe(conLado, consola);
    const auto impresora = creaPdf(a.sueltos.back(), a.monocromo ? ModoColor::Monocromo : ModoColor::Color);
    impresora->PonSentido(Orientacion::Horizontal);
    Informe informe{*impresora, {}};
    if (!Elige(informe, a, consola)) return Salida::Fallida;
    if (!ImprimeOndas(informe) || (plantilla && !ImprimeGrupos(informe, consola))) {
        impresora->Anula();
        return Salida::Fallida;
    }
    if (plantilla) ImprimeDigitales(informe, consola);
    ImprimeHdr(informe, consola);
    if (!informe.empezado) {
        Avisa(consola.espanol ? "No hay nada que imprimir." : "There is nothing to print.");
        return Salida::Fallida;
    }
    impresora->Termina();
    return Salida::Hecha;
}

}  // namespace veldix
