#include "ui/command_bindings.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

#include "state/frame_menus.h"
#include "state/text.h"
#include "ui/connect_sign.h"
#include "ui/icons.h"

namespace tr7 {
namespace {

class MenuBinding : public Binding {
 public:
  MenuBinding(Menu& record, QAction& action) : record_(record), action_(action) {}
  void Push() override {
    // An entry of a menu that is off is off too, also for its key and for a screen reader.
    if (action_.isEnabled() != record_.IsOn()) action_.setEnabled(record_.IsOn());
    if (Changed(visible_, record_.Visible)) action_.setVisible(record_.Visible);
    const bool key = Changed(key_, KeyNow());
    if (Changed(caption_, record_.Caption) || key) PushText();
    const bool connects = ConnectsFirst(record_);
    if (Changed(tip_, connects ? WithConnects(record_.Tip) : record_.Tip)) {
      action_.setToolTip(Q(*tip_));
      action_.setIcon(connects ? ConnectIcon() : QIcon());
    }
  }

 private:
  /// The key that does the same just now. It is text alone: as a shortcut it would stand against
  /// that of the button.
  std::string KeyNow() const {
    const CommandButton* button = record_.Button;
    if (!button) return record_.Key;
    return button->Visible && button->Owner == &FrontView() ? button->Key : std::string();
  }
  void PushText() {
    const QString caption = Q(*caption_);
    action_.setText(key_->empty() ? caption : caption + '\t' + Q(*key_));
  }

  Menu& record_;
  QAction& action_;
  std::optional<bool> visible_;
  std::optional<std::string> key_, caption_, tip_;
};

/// Fills the menu whenever it opens. Ampersands of an entry's own are no mnemonic.
void FillWhenOpened(MenuList& record, QMenu& menu, const CommandGate& gate) {
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&record, &menu, gate] {
    menu.clear();
    int index = 0;
    for (const std::string& text : record.Entries()) {
      QAction* entry = menu.addAction(Q(text).replace('&', "&&"));
      QObject::connect(entry, &QAction::triggered, entry, [&record, gate, index] {
        if (gate()) record.Pick(index);
      });
      ++index;
    }
    if (index == 0) menu.addAction(Q(Text(record.EmptyId)))->setEnabled(false);
  });
}

}  // namespace

std::unique_ptr<Binding> MakeMenuBinding(Menu& record, QObject& target, const CommandGate& gate) {
  if (auto* menu = qobject_cast<QMenu*>(&target)) {
    menu->setToolTipsVisible(true);
    if (auto* list = dynamic_cast<MenuList*>(&record)) FillWhenOpened(*list, *menu, gate);
    return std::make_unique<MenuBinding>(record, *menu->menuAction());
  }
  auto* action = qobject_cast<QAction*>(&target);
  if (!action) return nullptr;
  QObject::connect(action, &QAction::triggered, action, [&record, gate] {
    if (gate() && record.IsOn()) record.Press();
  });
  return std::make_unique<MenuBinding>(record, *action);
}

ToolbarBinding::ToolbarBinding(Toolbar& record, QToolBar& bar, const CommandGate& gate)
    : WidgetBinding(record, bar), record_(record) {
  bar.setIconSize(QSize(22, 22));
  for (const ToolButton& button : record.Buttons) {
    const std::string key = button.Key;
    if (key.empty()) {
      actions_.push_back(bar.addSeparator());
      continue;
    }
    QAction* action = bar.addAction(ToolIcon(key), QString());
    QObject::connect(action, &QAction::triggered, action, [&record, key, gate] {
      if (gate()) record.Press(key);
    });
    actions_.push_back(action);
  }
}

void ToolbarBinding::Push() {
  WidgetBinding::Push();
  for (std::size_t i = 0; i < actions_.size() && i < record_.Buttons.size(); ++i) {
    const ToolButton& button = record_.Buttons[i];
    if (actions_[i]->isSeparator()) continue;
    if (actions_[i]->isEnabled() != button.Enabled) actions_[i]->setEnabled(button.Enabled);
    const QString tip = Q(button.ToolTipText);
    if (actions_[i]->toolTip() == tip) continue;
    actions_[i]->setToolTip(tip);
    actions_[i]->setText(tip);  // for a screen reader; the button shows its picture alone
  }
}

StatusBarBinding::StatusBarBinding(StatusBar& record, QStatusBar& bar)
    : WidgetBinding(record, bar), record_(record) {
  for (std::size_t i = 0; i < record.Panels.size(); ++i) {
    auto* label = new QLabel(&bar);
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(4, 0, 4, 0);
    if (i == 0) label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar.addWidget(label, i == 0 ? 1 : 0);
    labels_.push_back(label);
  }
}

void StatusBarBinding::Push() {
  WidgetBinding::Push();
  if (!Changed(shown_, record_.Panels)) return;
  for (std::size_t i = 0; i < labels_.size(); ++i) {
    labels_[i]->setText(Q(record_.Panels[i]));
    labels_[i]->setVisible(i == 0 || !record_.Panels[i].empty());
  }
  labels_[0]->setToolTip(labels_[0]->text());
}

}  // namespace tr7
