#include "platform/forms/Animacion.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "platform/avi.h"

namespace veldix {
namespace {

constexpr QSize kTamano{160, 48};
constexpr qsizetype kMemoriaMaxima = qsizetype{64} << 20;

// Null if the bytes are no JPEG or it would take more than memoria bytes.
QImage Decodifica(const std::vector<std::uint8_t>& jpeg, qsizetype memoria)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(jpeg.data()),
                                               static_cast<qsizetype>(jpeg.size()));
    QBuffer buffer(&bytes);
    QImageReader lector(&buffer, "jpeg");
    const QSize tamano = lector.size();
    if (tamano.isEmpty() || qsizetype{4} * tamano.width() * tamano.height() > memoria) return {};
    return lector.read();
}

std::vector<QImage> DecodificaTodos(const PeliculaAvi& pelicula)
{
    std::vector<QImage> imagenes;
    qsizetype memoria = kMemoriaMaxima;
    for (const auto& jpeg : pelicula.cuadros) {
        if (jpeg.empty() && !imagenes.empty()) imagenes.push_back(imagenes.back());
        if (jpeg.empty()) continue;
        QImage imagen = Decodifica(jpeg, memoria);
        if (imagen.isNull()) continue;
        memoria -= imagen.sizeInBytes();
        imagenes.push_back(std::move(imagen));
    }
    return imagenes;
}

}  // namespace

Animacion::Animacion(QWidget* padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    temporizador_.setTimerType(Qt::PreciseTimer);
    connect(&temporizador_, &QTimer::timeout, this, &Animacion::Avanza);
}

bool Animacion::Abre(const std::string& ruta)
{
    Para();
    cuadros_.clear();
    actual_ = 0;
    if (const auto pelicula = LeeAvi(ruta)) {
        cuadros_ = DecodificaTodos(*pelicula);
        milisegundosPorCuadro_ = pelicula->milisegundosPorCuadro;
    }
    updateGeometry();
    update();
    if (cuadros_.empty()) hide();
    return !cuadros_.empty();
}

void Animacion::Reproduce()
{
    if (cuadros_.empty() || reloj_.isValid()) return;
    actual_ = 0;
    update();
    reloj_.start();
    temporizador_.start(std::max(1, static_cast<int>(milisegundosPorCuadro_)));
}

void Animacion::Para()
{
    temporizador_.stop();
    reloj_.invalidate();
}

void Animacion::Avanza()
{
    if (!reloj_.isValid()) return;
    const double transcurridos = std::floor(static_cast<double>(reloj_.elapsed()) / milisegundosPorCuadro_);
    const int debido = static_cast<int>(std::fmod(transcurridos, static_cast<double>(cuadros_.size())));
    if (debido == actual_) return;
    actual_ = debido;
    repaint();
}

QSize Animacion::sizeHint() const
{
    return cuadros_.empty() ? kTamano : cuadros_.front().size().scaled(kTamano, Qt::KeepAspectRatio);
}

void Animacion::paintEvent(QPaintEvent*)
{
    if (cuadros_.empty()) return;
    // Scaled to physical pixels, so that a film larger than the control is sharp on dense screens.
    const qreal densidad = devicePixelRatioF();
    QImage imagen = cuadros_[static_cast<std::size_t>(actual_)].scaled(
        (QSizeF(size()) * densidad).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    imagen.setDevicePixelRatio(densidad);
    const QSizeF pintado = imagen.deviceIndependentSize();
    QPainter pintor(this);
    pintor.drawImage(QPointF((width() - pintado.width()) / 2, (height() - pintado.height()) / 2), imagen);
}

}  // namespace veldix
