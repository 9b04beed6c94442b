#pragma once

#include <QLabel>
#include <QStringList>

namespace veldix {

/// The lines of a text that a place of `lugar` pixels has room for: with `ultimas` its last ones, else its
/// first ones. What follows the last ": " is a value and its units, which a single last line shows from its
/// beginning. Empty without width.
QStringList LineasVisibles(const QString& texto, const QFont& letra, QSize lugar, bool ultimas);

/// A label of a name and a value, in as many lines as fit: aligned at the bottom it shows the end of a text
/// that is too long, else its beginning. Words wider than the label are condensed as PonTexto does.
class EtiquetaLineas : public QLabel {
    Q_OBJECT

public:
    EtiquetaLineas(QWidget* padre, const QString& nombre);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    int anchoLetra_ = 100;  ///< percent; only narrows while the values change
};

}  // namespace veldix
