#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "platform/impresora.h"

namespace veldix::prueba {

/// One thing done to a printer.
struct OperacionPagina {
    enum class Tipo { Texto, Poligonal, Caja, Recorte, SinRecorte, Pagina, Termina, Anula };
    Tipo tipo;
    std::vector<double> xs, ys;  ///< of a text one place; of a box or a clip two corners
    std::string texto;
    std::uint32_t color = 0;
    int grosor = 0;
    LetraPagina letra;
};

/// A printer of paper that logs what it is told. A character is 120 twips wide, in letters of one
/// width at 9 points, and a line 240 high at 9 points.
class Grabadora : public Impresora {
public:
    /// Width and height of the paper as it lies in landscape.
    explicit Grabadora(double ancho = 16838.0, double alto = 11906.0, ModoColor color = ModoColor::Color)
        : ancho_(ancho), alto_(alto), color_(color)
    {
    }

    Orientacion Sentido() const override { return sentido; }
    void PonSentido(Orientacion o) override { sentido = o; }
    double Ancho() const override { return sentido == Orientacion::Horizontal ? ancho_ : alto_; }
    double Alto() const override { return sentido == Orientacion::Horizontal ? alto_ : ancho_; }
    ModoColor Color() const override { return color_; }
    double AnchoTexto(const std::string& t) const override
    {
        return (Letra.fija ? 120.0 * std::round(Letra.puntos * 20.0) / 180.0 : 120.0) *
               static_cast<double>(t.size());
    }
    double AltoTexto() const override { return 240.0 * Letra.puntos / 9.0; }
    void Poligonal(std::span<const double> xs, std::span<const double> ys, std::uint32_t color) override
    {
        ops.push_back({OperacionPagina::Tipo::Poligonal,
                       {xs.begin(), xs.end()},
                       {ys.begin(), ys.end()},
                       "",
                       color,
                       Grosor,
                       Letra});
    }
    void Caja(double x1, double y1, double x2, double y2, std::uint32_t color) override
    {
        ops.push_back({OperacionPagina::Tipo::Caja, {x1, x2}, {y1, y2}, "", color, Grosor, Letra});
    }
    void PonRecorte(double x1, double y1, double x2, double y2) override
    {
        ops.push_back({OperacionPagina::Tipo::Recorte, {x1, x2}, {y1, y2}, "", 0, 0, Letra});
    }
    void QuitaRecorte() override { Anota(OperacionPagina::Tipo::SinRecorte); }
    void PaginaNueva() override { Anota(OperacionPagina::Tipo::Pagina); }
    void Termina() override
    {
        Anota(OperacionPagina::Tipo::Termina);
        if (alAcabar) alAcabar(*this);
    }
    void Anula() override { Anota(OperacionPagina::Tipo::Anula); }

    /// The operations of a kind, in their order.
    std::vector<OperacionPagina> De(OperacionPagina::Tipo tipo) const
    {
        std::vector<OperacionPagina> suyas;
        for (const OperacionPagina& o : ops)
            if (o.tipo == tipo) suyas.push_back(o);
        return suyas;
    }
    /// The first text that begins so, with an empty one where there is none.
    OperacionPagina Primero(const std::string& principio) const
    {
        for (const OperacionPagina& o : ops)
            if (o.tipo == OperacionPagina::Tipo::Texto && o.texto.starts_with(principio)) return o;
        return {OperacionPagina::Tipo::Texto, {0.0}, {0.0}, "", 0, 0, {}};
    }

    Orientacion sentido = Orientacion::Horizontal;
    std::vector<OperacionPagina> ops;
    std::function<void(const Grabadora&)> alAcabar;  ///< takes what it logged before it goes

protected:
    void Escribe(double x, double y, const std::string& texto) override
    {
        ops.push_back({OperacionPagina::Tipo::Texto, {x}, {y}, texto, 0, 0, Letra});
    }

private:
    void Anota(OperacionPagina::Tipo tipo) { ops.push_back({tipo, {}, {}, "", 0, 0, Letra}); }

    double ancho_, alto_;
    ModoColor color_;
};

}  // namespace veldix::prueba
