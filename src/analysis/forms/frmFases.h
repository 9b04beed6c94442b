#pragma once

#include "analysis/forms/VistaFasores.h"

namespace veldix {

/// The phasors of the phases of one or two three-phase groups.
class frmFases : public VistaFasores {
    Q_OBJECT

public:
    frmFases();
    static Portador<frmFases> unica;
};

}  // namespace veldix
