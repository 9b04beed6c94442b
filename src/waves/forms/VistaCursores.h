#pragma once

#include "waves/forms/VistaOndas.h"
#include "waves/zoom_cursores.h"

namespace veldix {

/// A time-domain view whose zoom is made between its cursors.
class VistaCursores : public VistaOndas {
    Q_OBJECT

public:
    const ZoomCursores& Zoom() const { return zoom_; }

protected:
    /// `margenes` is what the samples leave free of the plot's width, twips.
    VistaCursores(const Papel& papel, float margenes) : VistaOndas(papel), zoom_(margenes) {}

    /// Takes a level over into what Repinta draws and XCursor answers.
    virtual void PonNivel(const FilaZoom& nivel) = 0;

    void Redibuja() override;
    HistoriaZoom& Historia() override { return zoom_; }
    void cmdzoom_Click() override;

    ZoomCursores zoom_;
};

}  // namespace veldix
