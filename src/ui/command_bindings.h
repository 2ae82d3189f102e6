#pragma once

#include <QStatusBar>
#include <QToolBar>
#include <memory>
#include <vector>

#include "ui/binding.h"

class QAction;
class QLabel;

namespace tr7 {

/// A menu is a QMenu, a command a QAction.
std::unique_ptr<Binding> MakeMenuBinding(Menu& record, QObject& target, const CommandGate& gate);

/// The tool bar's buttons are made from the record; their pictures go by key.
class ToolbarBinding : public WidgetBinding {
 public:
  ToolbarBinding(Toolbar& record, QToolBar& bar, const CommandGate& gate);
  void Push() override;

 private:
  Toolbar& record_;
  std::vector<QAction*> actions_;
};

/// The first panel takes the room and gives way; the others are as wide as their texts.
class StatusBarBinding : public WidgetBinding {
 public:
  StatusBarBinding(StatusBar& record, QStatusBar& bar);
  void Push() override;

 private:
  StatusBar& record_;
  std::vector<QLabel*> labels_;
  std::optional<std::vector<std::string>> shown_;
};

}  // namespace tr7
