#include "ui/bindings.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <algorithm>
#include <vector>

#include "ui/button_bindings.h"
#include "ui/combo_box_binding.h"
#include "ui/command_bindings.h"
#include "ui/connect_sign.h"
#include "ui/grid_table.h"
#include "ui/hold_button_binding.h"
#include "ui/label_binding.h"
#include "ui/lamp.h"
#include "ui/look.h"
#include "ui/plot_widget.h"
#include "ui/text_box_binding.h"
#include "ui/tip_text.h"
#include "ui/wheel_filter.h"

namespace tr7 {

void WidgetBinding::PushVisible() {
  if (Changed(visible_, control_.Visible)) widget_.setVisible(control_.Visible);
}

/// A difference is seen without colours too: bold beside the red.
void WidgetBinding::PushToolTip() {
  const bool differs = !control_.Difference.empty();
  const std::string& standing = control_.ToolTip.empty() ? control_.Tip : control_.ToolTip;
  const std::string& words = differs ? control_.Difference : standing;
  if (ConnectsFirst(control_) ? Changed(tool_tip_, WithConnects(words))
                              : Changed(tool_tip_, words)) {
    widget_.setToolTip(TipText(*tool_tip_));
  }
  if (!differs && !differs_) return;
  const QColor red = differs ? look::Colours().difference : QColor();
  if (!Changed(differs_, red)) return;
  widget_.setStyleSheet(differs ? QStringLiteral("font-weight: bold; color: %1;").arg(red.name())
                                : QString());
}

void WidgetBinding::Push() {
  if (Changed(enabled_, control_.Enabled)) widget_.setEnabled(control_.Enabled);
  PushToolTip();
  PushVisible();
}

namespace {

/// A lamp is always there: the record's `Visible` lights it, and its words follow.
class LampBinding : public Binding {
 public:
  LampBinding(Image& image, Lamp& lamp) : image_(image), lamp_(lamp) {}
  void Push() override {
    lamp_.SetLit(image_.Visible);
    if (!Changed(words_, image_.Visible ? image_.LitTip : image_.Tip)) return;
    lamp_.setToolTip(TipText(*words_));
    lamp_.setAccessibleName(Q(*words_));
  }

 private:
  Image& image_;
  Lamp& lamp_;
  std::optional<std::string> words_;
};

class FrameBinding : public WidgetBinding {
 public:
  FrameBinding(Frame& frame, QWidget& widget)
      : WidgetBinding(frame, widget), box_(qobject_cast<QGroupBox*>(&widget)) {}
  void Push() override {
    WidgetBinding::Push();
    if (box_ && Changed(caption_, control_.Caption)) box_->setTitle(Q(control_.Caption));
  }

 private:
  QGroupBox* box_;
  std::optional<std::string> caption_;
};

class SliderBinding : public QObject, public WidgetBinding {
 public:
  SliderBinding(Slider& record, QSlider& slider)
      : WidgetBinding(record, slider), record_(record), slider_(slider) {
    LetWheelPass(slider);
    slider.setRange(record.Min, record.Max);
    slider.setSingleStep(record.Step);
    slider.setPageStep(std::max(record.Step, (record.Max - record.Min) / 10));
    QObject::connect(&slider, &QSlider::valueChanged, this, [this](int value) {
      value -= (value - record_.Min) % record_.Step;
      if (value != record_.Value) record_.Set(value);
    });
  }
  void Push() override {
    WidgetBinding::Push();
    if (slider_.value() != record_.Value && !slider_.isSliderDown()) {
      slider_.setValue(record_.Value);
    }
  }

 private:
  Slider& record_;
  QSlider& slider_;
};

class ListBoxBinding : public QObject, public WidgetBinding {
 public:
  ListBoxBinding(ListBox& record, QListWidget& list)
      : WidgetBinding(record, list), record_(record), list_widget_(list) {
    QObject::connect(&list, &QListWidget::currentRowChanged, this, [this](int row) {
      if (!pushing_ && row >= 0) record_.ListIndex = row;
    });
    QObject::connect(&list, &QListWidget::itemClicked, this, [this] {
      if (record_.Click) record_.Click();
    });
  }
  void Push() override {
    WidgetBinding::Push();
    pushing_ = true;
    if (Changed(list_, record_.List)) {
      list_widget_.clear();
      for (const std::string& entry : record_.List) list_widget_.addItem(Q(entry));
    }
    if (list_widget_.currentRow() != record_.ListIndex) {
      list_widget_.setCurrentRow(record_.ListIndex);
    }
    pushing_ = false;
  }

 private:
  ListBox& record_;
  QListWidget& list_widget_;
  std::optional<std::vector<std::string>> list_;
  bool pushing_ = false;
};

class ProgressBarBinding : public WidgetBinding {
 public:
  ProgressBarBinding(ProgressBar& record, QProgressBar& bar)
      : WidgetBinding(record, bar), record_(record), bar_(bar) {}
  void Push() override {
    WidgetBinding::Push();
    if (bar_.maximum() != record_.Max) bar_.setRange(0, record_.Max);
    if (bar_.value() != record_.Value) bar_.setValue(record_.Value);
  }

 private:
  ProgressBar& record_;
  QProgressBar& bar_;
};

class UpDownBinding : public QObject, public WidgetBinding {
 public:
  UpDownBinding(UpDown& record, QSpinBox& box)
      : WidgetBinding(record, box), record_(record), box_(box) {
    LetWheelPass(box);
    box.setRange(record.Min, record.Max);
    QObject::connect(&box, &QSpinBox::valueChanged, this, [this](int value) {
      if (value != record_.Value) record_.Set(value);
    });
  }
  void Push() override {
    WidgetBinding::Push();
    if (box_.value() != record_.Value) box_.setValue(record_.Value);
  }

 private:
  UpDown& record_;
  QSpinBox& box_;
};

class TabStripBinding : public QObject, public WidgetBinding {
 public:
  TabStripBinding(TabStrip& record, QTabBar& bar, const CommandGate& gate)
      : WidgetBinding(record, bar), record_(record), bar_(bar) {
    while (bar.count() < static_cast<int>(record.Tabs.size())) bar.addTab(QString());
    bar.setDrawBase(true);
    bar.setExpanding(false);
    QObject::connect(&bar, &QTabBar::currentChanged, this, [this, gate](int index) {
      if (pushing_ || record_.Selected == index) return;
      if (!gate()) return Push();
      record_.Selected = index;
      if (record_.Click) record_.Click();
    });
  }
  void Push() override {
    WidgetBinding::Push();
    pushing_ = true;
    for (std::size_t i = 0; i < record_.Tabs.size(); ++i) PushTab(static_cast<int>(i));
    if (bar_.currentIndex() != record_.Selected) bar_.setCurrentIndex(record_.Selected);
    pushing_ = false;
  }

 private:
  void PushTab(int index) {
    const Tab& tab = record_.Tabs[static_cast<std::size_t>(index)];
    if (bar_.isTabEnabled(index) != tab.Enabled) bar_.setTabEnabled(index, tab.Enabled);
    const QString caption = Q(tab.Caption);
    if (bar_.tabText(index) != caption) bar_.setTabText(index, caption);
  }

  TabStrip& record_;
  QTabBar& bar_;
  bool pushing_ = false;
};

/// Tries one pair of kinds.
template <typename Kind, typename Widget, typename Tied, typename... More>
bool Tie(std::unique_ptr<Binding>& made, Control& control, QObject& target, More&&... more) {
  auto* record = dynamic_cast<Kind*>(&control);
  auto* widget = qobject_cast<Widget*>(&target);
  if (record && widget) made = std::make_unique<Tied>(*record, *widget, more...);
  return record != nullptr;
}

QButtonGroup& GroupOf(Control& control, QObject& target, OptionGroups& groups) {
  const auto* option = dynamic_cast<OptionButton*>(&control);
  QButtonGroup*& group = groups[option ? option->Group : 0];
  if (!group) group = new QButtonGroup(qobject_cast<QWidget*>(&target)->window());
  return *group;
}

}  // namespace

std::unique_ptr<Binding> MakeBinding(Control& control, QObject& target, OptionGroups& groups,
                                     const CommandGate& gate) {
  std::unique_ptr<Binding> made;
  if (dynamic_cast<OptionButton*>(&control)) {
    if (!qobject_cast<QRadioButton*>(&target)) return made;
    Tie<OptionButton, QRadioButton, OptionButtonBinding>(made, control, target,
                                                         GroupOf(control, target, groups));
    return made;
  }
  Tie<Label, QLabel, LabelBinding>(made, control, target, gate) ||
      Tie<Image, Lamp, LampBinding>(made, control, target) ||
      Tie<Frame, QWidget, FrameBinding>(made, control, target) ||
      Tie<CommandButton, QPushButton, CommandButtonBinding>(made, control, target, gate) ||
      Tie<TextBox, QLineEdit, TextBoxBinding>(made, control, target) ||
      Tie<HoldButton, QPushButton, HoldButtonBinding>(made, control, target, gate) ||
      Tie<Slider, QSlider, SliderBinding>(made, control, target) ||
      Tie<CheckBox, QCheckBox, CheckBoxBinding>(made, control, target) ||
      Tie<ComboBox, QComboBox, ComboBoxBinding>(made, control, target) ||
      Tie<ListBox, QListWidget, ListBoxBinding>(made, control, target) ||
      Tie<ProgressBar, QProgressBar, ProgressBarBinding>(made, control, target) ||
      Tie<UpDown, QSpinBox, UpDownBinding>(made, control, target) ||
      Tie<TabStrip, QTabBar, TabStripBinding>(made, control, target, gate) ||
      Tie<Grid, GridTable, GridBinding>(made, control, target) ||
      Tie<Plot, PlotWidget, PlotBinding>(made, control, target) ||
      Tie<Toolbar, QToolBar, ToolbarBinding>(made, control, target, gate) ||
      Tie<StatusBar, QStatusBar, StatusBarBinding>(made, control, target);
  if (auto* menu = dynamic_cast<Menu*>(&control)) made = MakeMenuBinding(*menu, target, gate);
  return made;
}

}  // namespace tr7
