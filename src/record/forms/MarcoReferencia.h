#pragma once

#include <QGroupBox>
#include <QRadioButton>

#include "record/record_store.h"

namespace veldix {

/// The frame with the choice of a 1997 record's side, `CmdPrimario` first; hidden for other revisions.
class MarcoReferencia : public QGroupBox {
    Q_OBJECT

public:
    /// `nombre` is the frame's own name, which differs from form to form.
    explicit MarcoReferencia(const QString& nombre, QWidget* padre = nullptr);

    /// Applies the chosen side to the store. Raises 9 with no samples.
    void Aplica() const;

private:
    QRadioButton* CmdPrimario;
    QRadioButton* CmdSecundario;
};

}  // namespace veldix
