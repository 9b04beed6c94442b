#pragma once

#include <QLabel>
#include <QStringList>

namespace veldix {

/// The lines of a text that a place of `ancho` x `alto` pixels has room for, its last ones or its first ones.
/// The last words of the text are taken for a value and its units. Empty without width.
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
