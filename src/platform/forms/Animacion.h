#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <string>
#include <vector>

namespace veldix {

/// Plays a small Motion-JPEG film over and over. It keeps the film's proportions and asks for no more
/// than 160 x 48 logical pixels.
class Animacion : public QWidget {
    Q_OBJECT

public:
    explicit Animacion(QWidget* padre = nullptr);

    /// Loads a film and stands at its first frame, stopped. Frames that cannot be decoded are left out.
    /// False, with nothing loaded and the control hidden, if the file is missing or broken or no frame
    /// is left; a success never shows a hidden control.
    bool Abre(const std::string& ruta);

    /// Plays from the first frame; without effect when already playing or with nothing loaded.
    void Reproduce();
    /// Stops at the current frame.
    void Para();
    /// Paints at once the frame due by the time elapsed since Reproduce(), without waiting for the event
    /// queue: for long work in the thread of the windows. Without effect when stopped.
    void Avanza();

    int NumeroCuadros() const { return static_cast<int>(cuadros_.size()); }
    int CuadroActual() const { return actual_; }  // from 0
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    std::vector<QImage> cuadros_;
    double milisegundosPorCuadro_ = 0;
    int actual_ = 0;
    QTimer temporizador_;
    QElapsedTimer reloj_;
};

}  // namespace veldix
