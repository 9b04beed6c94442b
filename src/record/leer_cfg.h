#pragma once

#include "record/record_store.h"

namespace veldix {

/// Reads the `.cfg` named by `FicheroCfg` (IEEE C37.111, revisions 1991 and 1997) into the store, forgiving:
/// a field that cannot be read leaves its variable as it was and reading goes on. A third field of line 1
/// that is not 1997 sets `AnioMal` and ends the reading. The sample arrays are not touched.
void LeerCfg(RecordStore& s);

}  // namespace veldix
