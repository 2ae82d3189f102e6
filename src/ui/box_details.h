#pragma once

#include <string>

class QMessageBox;

namespace tr7 {

/// A list beneath the box's buttons, folded until it is asked for; it can be marked, scrolled and
/// copied. Nothing without one.
void AddDetails(QMessageBox& box, const std::string& details);

/// The height that the list takes at most, in pixels.
inline constexpr int kDetailsHeight = 220;

}  // namespace tr7
