#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <vector>

#include "platform/ranuras.h"

namespace veldix {

/// The rows of a set of slots: a marker `lblpunt`, the channel's name `grp`, its number `lbl`, each with its
/// slot's number behind its name; of several sets in a form each has its own number before that, or shows
/// a stretch of one run of slots. It shows
/// what it is told and reports the mouse; on a name the space bar is a click, the delete keys are a double
/// click.
class FilasRanura : public QWidget {
    Q_OBJECT

public:
    /// `primera` is the slot of the first row; slots keep their numbers everywhere.
    explicit FilasRanura(int cuantas, QWidget* padre = nullptr, const QString& juego = {}, int primera = 1);

    /// Shows the slots' texts and the marker, in colour 14 of the palette on the active slot, 15 elsewhere.
    void Muestra(const Ranuras& ranuras);
    /// Takes the marker's colour off all slots, until the next Muestra.
    void Desmarca();

Q_SIGNALS:
    void Click(int k);     ///< on a marker or a name
    void DblClick(int k);  ///< on a name
    void Change(int k);    ///< the text of a name changed

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Fila {
        QLabel* lblpunt;
        QLineEdit* grp;
        QLabel* lbl;
    };
    std::vector<Fila> filas_;
    int primera_;
};

}  // namespace veldix
