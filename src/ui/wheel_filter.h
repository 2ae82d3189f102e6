#pragma once

#include <QWidget>

namespace tr7 {

/// The wheel changes nothing in this widget, with the focus or without: it scrolls what the widget
/// stands on.
void LetWheelPass(QWidget& widget);

}  // namespace tr7
