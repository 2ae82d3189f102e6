#pragma once

class QWidget;

namespace tr7 {

struct View;

/// Builds the regular parts of a view's layout: a label and fields in columns a row, named as their
/// controls, each table on the widget of `window` that carries its place's name.
void BuildFieldTables(const View& view, QWidget& window);

}  // namespace tr7
