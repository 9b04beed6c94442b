#pragma once

#include <QScrollBar>

namespace veldix {

/// A horizontal bar whose value is a sample number. Arrow keys move it by a sample, page keys by the large
/// step, Home and End to its ends; to the right is later.
class BarraCursor : public QScrollBar {
    Q_OBJECT

public:
    BarraCursor(const QString& nombre, const QString& accesible, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void timerEvent(QTimerEvent* evento) override;

private:
    void Suelta();

    bool ocupada_ = false;  ///< what the mouse on the bar has set off is still being served
};

}  // namespace veldix
