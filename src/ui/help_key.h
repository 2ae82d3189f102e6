#pragma once

#include <QObject>

namespace tr7 {

/// What is no view of a record's names its page of the manual in this property: a dialogue, and a
/// part of the frame for as long as the focus is in it, or it floats in front.
inline constexpr const char* kHelpPageProperty = "help_page";

/// The F1 key wherever the menu's own shortcut does not reach: in a dialogue, a box, during a flow.
class HelpKey : public QObject {
 public:
  HelpKey();
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tr7
