#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <vector>

#include "platform/ranuras.h"

namespace veldix {

/// The rows of a set of slots: a marker `lblpunt`, the channel's name `grp`, its number `lbl`, each with its
/// slot's number behind its name. It shows what it is told and reports the mouse; on a name the space bar is
/// a click and the delete keys are a double click; F2 and F8 where names are typed.
class FilasRanura : public QWidget {
    Q_OBJECT

public:
    struct Opciones {
        QString juego = {};     ///< of several sets in a form, its own number, ahead of the slot's
        int primera = 1;        ///< slot of the first row; slots keep their numbers everywhere
        bool editable = false;  ///< names and numbers may be typed; the number then stands before the name
        QString nombre = {};    ///< captions of name and number for screen readers, the slot's number behind
        QString numero = {};
    };
    FilasRanura(int cuantas, QWidget* padre, const Opciones& opciones);

    /// Shows the slots' texts and the marker, in colour 14 of the palette on the active slot, 15 elsewhere.
    /// A name changes before its number.
    void Muestra(const Ranuras& ranuras);
    /// Takes the marker's colour off all slots, until the next Muestra.
    void Desmarca();

    /// Name and, of typed ones, number of a slot as they stand in their boxes.
    QString Texto(int k) const { return LaFila(k).grp->text(); }
    QString Numero(int k) const { return LaFila(k).numero->text(); }

Q_SIGNALS:
    void Click(int k);         ///< on a marker, a name or a typed number
    void DblClick(int k);      ///< on a name or a typed number
    void Change(int k);        ///< the text of a name changed
    void CambiaNumero(int k);  ///< the same of a typed number

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Fila {
        QLabel* lblpunt;
        QLineEdit* grp;
        QLabel* lbl = nullptr;        ///< a number that is shown
        QLineEdit* numero = nullptr;  ///< or one that may be typed
    };
    Fila CreaFila(int k, const Opciones& opciones);
    void CreaNumero(Fila& fila, int k, const Opciones& opciones);
    void Vigila(QWidget* control, int k);
    static void Marca(const Fila& fila, bool activa);
    const Fila& LaFila(int k) const { return filas_[static_cast<std::size_t>(k - primera_)]; }

    std::vector<Fila> filas_;
    int primera_;
    bool editable_;
};

}  // namespace veldix
