#pragma once

#include <QLabel>

namespace veldix {

/// A label that shows as much of a path as fits, its middle left out, and all of it in its tool tip. A layout
/// gives it what room there is: a long path does not widen its form.
class EtiquetaRuta : public QLabel {
    Q_OBJECT

public:
    explicit EtiquetaRuta(QWidget* padre = nullptr);
    void PonRuta(const QString& ruta);

protected:
    void paintEvent(QPaintEvent* evento) override;
};

}  // namespace veldix
