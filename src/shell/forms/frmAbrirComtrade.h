#pragma once

#include <string>

#include "record/record_store.h"

namespace veldix {

/// The file dialog that opens a record. It has no window of its own beside the dialog.
class frmAbrirComtrade {
public:
    /// Asks for a `.dat` and opens its record. A cancelled dialog, a missing file or a refused year leaves
    /// the record that was open as it was, and gives false.
    bool Carga();

private:
    bool Abre(const std::string& dat);
};

}  // namespace veldix
