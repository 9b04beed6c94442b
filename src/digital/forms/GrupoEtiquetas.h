#pragma once

#include <QLabel>
#include <QWidget>

#include <array>

#include "digital/eleccion.h"
#include "digital/lugares_grid.h"

namespace veldix {

/// The column of labels of one group: its name, and under it its channels. The pointer and the keys work on
/// channels that are there: a click (space bar), a double click, Delete; arrows move among them.
class GrupoEtiquetas : public QWidget {
    Q_OBJECT

public:
    /// Group `k`, from 1; all its labels are disabled and empty.
    GrupoEtiquetas(int k, QWidget* padre);

    /// Name and channels of the group, where it exists.
    void Llena(const EleccionManual& eleccion);
    /// The background of channel `j`, from 1.
    void Pinta(int j, EleccionManual::Fondo fondo);
    void Coloca(const LugaresGrid& lugares);
    /// Gives the keys to channel `j`, or to the last one above it; false where the group has none.
    bool Enfoca(int j);

Q_SIGNALS:
    void Click(int j);
    void DblClick(int j);
    /// The key that releases a channel.
    void Quita(int j);
    /// An arrow to another group, `paso` groups away, from channel `j`.
    void Sale(int paso, int j);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool Raton(int j, QEvent* evento);
    bool Tecla(int j, int tecla);
    void PonTextos();

    int k_;
    int cuenta_ = 0;
    int pulsada_ = 0;  ///< channel on which the button went down
    std::array<QLabel*, 1 + EleccionManual::kCanales> lblgrp_;
};

}  // namespace veldix
