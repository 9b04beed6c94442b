#pragma once

#include <QFont>
#include <QMarginsF>
#include <QPainter>

#include <functional>

#include "platform/impresora.h"

class QPagedPaintDevice;

namespace veldix {

/// Pages on one of the toolkit's devices, a printer or a PDF file, which must outlive it.
class ImpresoraQt : public Impresora {
public:
    /// `anula` drops a document that has begun; without it the document is ended.
    ImpresoraQt(QPagedPaintDevice& dispositivo, ModoColor color, std::function<void()> anula = {});
    ~ImpresoraQt() override;

    Orientacion Sentido() const override;
    void PonSentido(Orientacion o) override;
    double Ancho() const override;
    double Alto() const override;
    ModoColor Color() const override { return color_; }
    double AnchoTexto(const std::string& texto) const override;
    double AltoTexto() const override;
    void Poligonal(std::span<const double> xs, std::span<const double> ys, std::uint32_t color) override;
    void Caja(double x1, double y1, double x2, double y2, std::uint32_t color) override;
    void PonRecorte(double izquierda, double arriba, double derecha, double abajo) override;
    void QuitaRecorte() override;
    void PaginaNueva() override;
    void Termina() override;
    void Anula() override;

protected:
    void Escribe(double x, double y, const std::string& texto) override;

private:
    QFont Fuente() const;
    QPainter& Pintor();

    QPagedPaintDevice& dispositivo_;
    ModoColor color_;
    std::function<void()> anula_;
    QMarginsF margenes_;  ///< the least ones of the upright paper, in the units of its layout
    QPainter pintor_;
};

}  // namespace veldix
