#include "record/cabecera.h"

#include <algorithm>
#include <utility>

#include "platform/codigos.h"
#include "platform/errores.h"
#include "platform/ficheros.h"
#include "platform/pagina.h"
#include "platform/texto.h"

namespace veldix {

namespace {

constexpr std::size_t kMayorLineas = 2500, kMayorLinea = 4096, kTabulador = 8;
constexpr double kMenorLetra = 6.0;  // points
constexpr double kHolgura = 1e-6;    // of a letter, so that the longest line fits that was measured

std::string SinControles(std::string_view linea)
{
    std::string s;
    std::size_t columna = 0;
    while (!linea.empty()) {
        const std::size_t n = OctetosDeCaracter(linea);
        const auto c = static_cast<unsigned char>(linea.front());
        if (c == '\t')
            s.append(kTabulador - columna % kTabulador, ' ');
        else if (c < 0x20 || c == 0x7F)
            s += ' ';
        else
            s.append(linea.substr(0, n));
        columna = c == '\t' ? (columna / kTabulador + 1) * kTabulador : columna + 1;
        linea.remove_prefix(n);
    }
    return s;
}

/// The first `n` characters of a line, its cut marked.
std::string Corta(const std::string& linea, std::size_t n)
{
    if (NumCaracteres(linea) <= n) return linea;
    return std::string(Izquierda(linea, n > 0 ? n - 1 : 0)) + "…";
}

/// Makes the letters small enough for the longest line, within bounds; how many of them a line then has room
/// for.
std::size_t AjustaLetra(Impresora& impresora, const std::vector<std::string>& lineas, double ancho)
{
    std::size_t largo = 1;
    for (const std::string& linea : lineas)
        largo = std::max(largo, NumCaracteres(linea));
    const double pide = impresora.AnchoTexto("A") * static_cast<double>(largo);
    if (pide > ancho) impresora.Letra.puntos = std::max(kMenorLetra, impresora.Letra.puntos * ancho / pide);
    return static_cast<std::size_t>(std::max(0.0, ancho / impresora.AnchoTexto("A") + kHolgura));
}

}  // namespace

std::vector<std::string> LeeCabecera(const std::string& ruta)
{
    std::vector<std::string> lineas{"VELDIX"};
    LectorLineas lector(DesdeUtf8OPagina(LeeOctetos(ruta)));
    while (!lector.Fin()) {
        const std::string linea = lector.Lee();
        if (lineas.size() > kMayorLineas) Lanza(error::kSubindice);
        lineas.push_back(SinControles(Corta(linea, kMayorLinea)));
    }
    return lineas;
}

bool ImprimeCabecera(Impresora& impresora, const std::vector<std::string>& lineas,
                     const std::function<bool()>& cancelada)
{
    const Marco hoja = MarcoPagina(impresora.Ancho(), impresora.Alto());
    const LetraPagina antes = std::exchange(impresora.Letra, {impresora.Letra.puntos, false, true});
    const double x = hoja.izquierda + impresora.AnchoTexto("AA");
    const std::size_t caben = AjustaLetra(impresora, lineas, hoja.derecha - x);
    const double alto = impresora.AltoTexto();
    double y = hoja.arriba;
    bool sigue = true;
    for (std::size_t i = 0; sigue && i <= lineas.size(); ++i, y += alto) {
        sigue = !cancelada();
        if (!sigue) break;
        const std::string linea = i < lineas.size() ? Corta(lineas[i], caben) : "";
        // Nothing but a text begins a page, so that no page is left white.
        if (!linea.empty() && y + alto > hoja.abajo) {
            impresora.PaginaNueva();
            y = hoja.arriba;
        }
        EscribeEn(impresora, x, y, linea);
    }
    if (!sigue) impresora.Anula();
    impresora.Letra = antes;
    return sigue;
}

}  // namespace veldix
