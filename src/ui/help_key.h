#pragma once

#include <QObject>

namespace tr7 {

/// A dialogue without a record names its page of the manual in this property.
inline constexpr const char* kHelpPageProperty = "help_page";

/// The F1 key wherever the menu's own shortcut does not reach: in a dialogue, a box, during a flow.
class HelpKey : public QObject {
 public:
  HelpKey();
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tr7
