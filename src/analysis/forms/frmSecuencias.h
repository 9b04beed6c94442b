#pragma once

#include "analysis/forms/VistaFasores.h"

namespace veldix {

/// The symmetrical components of one or two three-phase groups, computed for the whole record at its load.
class frmSecuencias : public VistaFasores {
    Q_OBJECT

public:
    frmSecuencias();
    static Portador<frmSecuencias> unica;
};

}  // namespace veldix
