#pragma once

#include <optional>

#include "record/record_store.h"

namespace veldix {

/// The sample nearest to the trigger, by the dates of first sample and trigger and the record's time stamps,
/// or its rate where those do not rise. Nothing where a date cannot be read or there are no samples.
std::optional<int> MuestraDeDisparo(const RecordStore& s);

}  // namespace veldix
