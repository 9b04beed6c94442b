#pragma once

namespace veldix {

/// Puts the toolkit's own texts (file dialog, window menus) in Spanish or English, where the desktop has
/// them.
void PonTraductor(bool espanol);

}  // namespace veldix
