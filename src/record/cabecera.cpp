#include "record/cabecera.h"

#include <utility>

#include "platform/codigos.h"
#include "platform/errores.h"
#include "platform/ficheros.h"
#include "platform/pagina.h"
#include "platform/texto.h"

namespace veldix {

namespace {

constexpr std::size_t kMayorLineas = 2500, kMayorLinea = 4096, kTabulador = 8;

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

}  // namespace

std::vector<std::string> LeeCabecera(const std::string& ruta)
{
    std::vector<std::string> lineas{"VELDIX"};
    LectorLineas lector(DesdeUtf8OPagina(LeeOctetos(ruta)));
    while (!lector.Fin()) {
        const std::string linea = lector.Lee();
        if (lineas.size() > kMayorLineas) Lanza(error::kSubindice);
        const std::string_view corta = Izquierda(linea, kMayorLinea);
        lineas.push_back(SinControles(corta) + (corta.size() < linea.size() ? "…" : ""));
    }
    return lineas;
}

void ImprimeCabecera(Impresora& impresora, const std::vector<std::string>& lineas,
                     const std::function<bool()>& cancelada)
{
    const Marco hoja = MarcoPagina(impresora.Ancho(), impresora.Alto());
    const LetraPagina antes = std::exchange(impresora.Letra, {impresora.Letra.puntos, false, true});
    const double x = hoja.izquierda + impresora.AnchoTexto("AA"), alto = impresora.AltoTexto();
    double y = hoja.arriba;
    for (std::size_t i = 0; i <= lineas.size(); ++i, y += alto) {
        if (cancelada()) {
            impresora.Anula();
            break;
        }
        const std::string linea = i < lineas.size() ? lineas[i] : "";
        // Nothing but a text begins a page, so that no page is left white.
        if (!linea.empty() && y + alto > hoja.abajo) {
            impresora.PaginaNueva();
            y = hoja.arriba;
        }
        EscribeEn(impresora, x, y, linea);
    }
    impresora.Letra = antes;
}

}  // namespace veldix
