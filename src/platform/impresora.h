#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace veldix {

enum class Orientacion { Vertical = 1, Horizontal = 2 };
enum class ModoColor { Monocromo = 1, Color = 2 };

/// Letters of a page: size in points, weight, and whether all are of one width.
struct LetraPagina {
    double puntos = 9.0;
    bool negrita = false;
    bool fija = false;
};

/// The printer that pages are drawn on. Lengths are twips from the printable corner of the paper as it lies,
/// y downwards; colours are 0xRRGGBB. A document begins with the first thing drawn after it was made or
/// ended, so that a print that is cancelled before leaves none.
class Impresora {
public:
    virtual ~Impresora() = default;

    /// The printer's settings outlive a document.
    virtual Orientacion Sentido() const = 0;
    virtual void PonSentido(Orientacion o) = 0;
    /// The whole paper as it lies.
    virtual double Ancho() const = 0;
    virtual double Alto() const = 0;
    virtual ModoColor Color() const = 0;

    virtual double AnchoTexto(const std::string& texto) const = 0;
    /// Height of a line of text.
    virtual double AltoTexto() const = 0;

    /// Writes at the present position, the upper left corner of the text, and leaves the position behind it.
    void Texto(const std::string& texto);
    /// The same, and goes on to the next line at X = 0.
    void TextoLinea(const std::string& texto);

    void Linea(double x1, double y1, double x2, double y2, std::uint32_t color);
    /// Segments between consecutive points, in the present line width.
    virtual void Poligonal(std::span<const double> xs, std::span<const double> ys, std::uint32_t color) = 0;

    /// Fills the rectangle between two opposite corners, which is no narrower than a line.
    virtual void Caja(double x1, double y1, double x2, double y2, std::uint32_t color) = 0;

    /// Nothing is drawn outside the rectangle until QuitaRecorte.
    virtual void PonRecorte(double izquierda, double arriba, double derecha, double abajo) = 0;
    virtual void QuitaRecorte() = 0;

    virtual void PaginaNueva() = 0;
    /// Ends the document and sends it. Raises 57 where that fails.
    virtual void Termina() = 0;
    /// Drops the document.
    virtual void Anula() = 0;

    double X = 0.0, Y = 0.0;  ///< position of the next text
    int Grosor = 1;           ///< of lines, in 1/300 inch
    LetraPagina Letra;

protected:
    virtual void Escribe(double x, double y, const std::string& texto) = 0;
};

}  // namespace veldix
