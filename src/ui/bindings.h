#pragma once

#include <map>
#include <memory>

#include "ui/binding.h"

class QButtonGroup;
class QLabel;

namespace tr7 {

/// The option groups of one view by their number.
using OptionGroups = std::map<int, QButtonGroup*>;

/// Ties the control to the widget or action of its name. Null when the type does not fit.
std::unique_ptr<Binding> MakeBinding(Control& control, QObject& target, OptionGroups& groups,
                                     const CommandGate& gate);

}  // namespace tr7
