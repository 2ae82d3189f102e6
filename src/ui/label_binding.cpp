#include "ui/label_binding.h"

#include <QEvent>

#include "ui/twips.h"

namespace tr7 {

LabelBinding::LabelBinding(Label& record, QLabel& label, const CommandGate& gate)
    : WidgetBinding(record, label), record_(record), label_(label), gate_(gate) {
  label.setTextFormat(Qt::PlainText);
  label.installEventFilter(this);
}

void LabelBinding::Push() {
  WidgetBinding::Push();
  if (Changed(caption_, record_.Caption)) {
    label_.setText(Q(record_.Caption));
    // A label that gives way in a narrow window shows its whole text on demand.
    if (label_.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) {
      label_.setToolTip(label_.text());
    }
  }
  // The layout gives the width; the record bounds it.
  if (Changed(width_, record_.Width) && record_.Width > 0) {
    label_.setMaximumWidth(Pixels(record_.Width));
  }
}

bool LabelBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonDblClick || !record_.DblClick || !record_.Enabled) {
    return QObject::eventFilter(watched, event);
  }
  if (gate_()) record_.DblClick();
  return true;
}

}  // namespace tr7
