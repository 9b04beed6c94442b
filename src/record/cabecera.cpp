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
constexpr double kMenorLetra = 6.0, kPasoLetra = 0.05;  // points

/// U+0080 to U+009F, and the separators of lines and paragraphs.
bool EsControl(std::string_view caracter)
{
    return (caracter.size() == 2 && caracter[0] == '\xC2' &&
            static_cast<unsigned char>(caracter[1]) < 0xA0) ||
           caracter == "\u2028" || caracter == "\u2029";
}

std::string SinControles(std::string_view linea)
{
    std::string s;
    std::size_t columna = 0;
    while (!linea.empty()) {
        const std::size_t n = OctetosDeCaracter(linea);
        const auto c = static_cast<unsigned char>(linea.front());
        if (c == '\t')
            s.append(kTabulador - columna % kTabulador, ' ');
        else if (c < 0x20 || c == 0x7F || EsControl(linea.substr(0, n)))
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

/// Lines on pages, in letters small enough for the longest one, within bounds.
class Paginador {
public:
    Paginador(Impresora& impresora, const std::vector<std::string>& lineas)
        : impresora_(impresora),
          antes_(impresora.Letra),
          hoja_(MarcoPagina(impresora.Ancho(), impresora.Alto()))
    {
        impresora_.Letra = {antes_.puntos, false, true};
        x_ = hoja_.izquierda + impresora_.AnchoTexto("AA");
        ancho_ = hoja_.derecha - x_;
        AjustaLetra(lineas);
        alto_ = impresora_.AltoTexto();
        y_ = hoja_.arriba;
    }
    ~Paginador() { impresora_.Letra = antes_; }
    Paginador(const Paginador&) = delete;
    Paginador& operator=(const Paginador&) = delete;

    /// A page begins with its first text, so that blank lines at the end leave none white.
    void Pon(const std::string& linea, const std::string& fecha)
    {
        if (y_ + alto_ > Pie()) {
            ++pendientes_;
            y_ = hoja_.arriba;
        }
        if (!linea.empty()) {
            for (; pendientes_ > 0; --pendientes_) {
                Fecha(fecha);
                impresora_.PaginaNueva();
                fechada_ = false;
            }
            Fecha(fecha);
        }
        if (pendientes_ == 0) EscribeEn(impresora_, x_, y_, Cabe(linea));
        y_ += alto_;
    }

private:
    /// Upper edge of the last row, which is the date's.
    double Pie() const { return hoja_.abajo - alto_; }
    void Fecha(const std::string& fecha)
    {
        if (!std::exchange(fechada_, true)) EscribeEn(impresora_, x_, Pie(), fecha);
    }
    /// The printer rounds sizes, so that the widest line is measured anew at each.
    void AjustaLetra(const std::vector<std::string>& lineas)
    {
        std::string mayor;
        double ancho = 0.0;
        for (const std::string& linea : lineas)
            if (const double suyo = impresora_.AnchoTexto(linea); suyo > ancho) {
                ancho = suyo;
                mayor = linea;
            }
        double& puntos = impresora_.Letra.puntos;
        while (puntos > kMenorLetra && impresora_.AnchoTexto(mayor) > ancho_)
            puntos = std::max(kMenorLetra, puntos - kPasoLetra);
    }
    std::string Cabe(const std::string& linea) const
    {
        const double pide = impresora_.AnchoTexto(linea);
        if (pide <= ancho_) return linea;
        auto n = static_cast<std::size_t>(static_cast<double>(NumCaracteres(linea)) * ancho_ / pide) + 1;
        while (n > 1 && impresora_.AnchoTexto(Corta(linea, n)) > ancho_)
            --n;
        return Corta(linea, n);
    }

    Impresora& impresora_;
    LetraPagina antes_;
    Marco hoja_;
    double x_ = 0.0, y_ = 0.0, ancho_ = 0.0, alto_ = 0.0;
    int pendientes_ = 0;    ///< pages to begin before the next text
    bool fechada_ = false;  ///< the page has its date
};

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

bool ImprimeCabecera(Impresora& impresora, const std::vector<std::string>& lineas, const std::string& fecha,
                     const std::function<bool()>& cancelada)
{
    Paginador paginas(impresora, lineas);
    for (std::size_t i = 0; i <= lineas.size(); ++i) {
        if (cancelada()) {
            impresora.Anula();
            return false;
        }
        paginas.Pon(i < lineas.size() ? lineas[i] : "", fecha);
    }
    return true;
}

}  // namespace veldix
