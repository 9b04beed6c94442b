#pragma once

#include <string>

#include "record/record_store.h"
#include "waves/hoja_ondas.h"

namespace veldix {

/// Letters of a page: of texts, of captions, and small ones of both.
inline constexpr LetraPagina kNormal{8.0, false}, kRotulo{8.0, true}, kPequena{6.5, false},
    kPequenaRotulo{6.5, true};
inline constexpr double kMargenTexto = 60.0;  ///< twips between a text and the line beside it
inline constexpr double kLargoMarca = 80.0;   ///< of a tick, twips

/// How samples lie on a page.
struct EscalaPagina {
    int s = 1, e = 1;     ///< sample at the left edge of the plot, and the last one
    double x = 0.0;       ///< twips a sample
    double origen = 0.0;  ///< y of the value 0
    double y = 0.0;       ///< twips a unit
};

/// A channel's name and value behind a sample's number.
struct ValorCursor {
    std::string nombre, valor;
};

/// Composes the parts that all pages of waves and digital states share, its texts measured in the printer's
/// own letters. Rows of the heading count from 0.
class RedactorHoja {
public:
    /// Measures `hoja` for the paper. Both arguments must outlive it; the printer keeps its letters.
    RedactorHoja(HojaOndas& hoja, Impresora& impresora);
    ~RedactorHoja() { impresora_.Letra = antes_; }
    RedactorHoja(const RedactorHoja&) = delete;
    RedactorHoja& operator=(const RedactorHoja&) = delete;

    double Ancho(const std::string& texto, LetraPagina letra);
    double Alto(LetraPagina letra);
    /// Leaves the place behind the text.
    double Pon(double x, double y, const std::string& texto, LetraPagina letra);
    /// A caption and its value behind it; leaves the place behind both.
    double PonPar(double x, double y, const std::string& rotulo, const std::string& valor);
    /// The record's file behind its caption, the beginning of its path cut where it would leave the frame.
    void PonFichero(double x, double y, const std::string& rotulo, const std::string& ruta);
    /// Width of a caption and of the blank behind it, which it may bring along.
    double AnchoRotulo(const std::string& rotulo);
    /// A name as far as it fits into a width, its cut marked; never so short that it tells nothing.
    std::string Cabe(const std::string& nombre, double ancho, LetraPagina letra);
    /// Its right end at x, its middle at y.
    void PonHasta(double x, double y, const std::string& texto, LetraPagina letra);

    /// Upper edge of a row of the heading, and where its left column begins.
    double Fila(int fila);
    double Izquierda();

    /// First row: a caption, the title as far as it fits, and the date. Leaves the place behind the title.
    double PonTitulo(const std::string& rotulo, const std::string& titulo, const std::string& fecha);
    /// Both cursors' samples in a row, with a value where the page has a single curve. A name gives way,
    /// never a value. Leaves the place behind the left one.
    double PonCursores(int fila, const DatosHoja& d, const char* rotulo1, const char* rotulo2,
                       const ValorCursor& v1 = {}, const ValorCursor& v2 = {});
    /// The time axis. Raises 11 where there is no sampling rate.
    void PonMarcasTiempo(double escala, int porSegundo);
    /// A zero line, with its label where it is in the plot.
    void PonCero(double y, const std::string& unidades, LetraPagina letra);
    /// Lines of the cursors at their samples.
    void PonLineasCursor(const EscalaPagina& e, const DatosHoja& d);
    /// Samples `desde` to `hasta` of a column, as the `k`-th curve of the page. Raises 9.
    void PonCurva(const Tabla2<float>& muestras, int columna, int desde, int hasta, const EscalaPagina& e,
                  int k);
    /// A colour where the printer has colours, else black.
    std::uint32_t Color(std::uint32_t color) const;

private:
    HojaOndas& hoja_;
    Impresora& impresora_;
    LetraPagina antes_;
};

}  // namespace veldix
