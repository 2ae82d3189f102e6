#pragma once

#include <QColor>

class QApplication;

namespace tr7::look {

/// What the program is painted in: after the system, or as asked for.
enum class Theme { System, Light, Dark };

/// One calm palette: it is read all day, beside a machine. Texts and what carries a meaning stand
/// out from their ground by 4.5 to 1 and more.
struct Palette {
  QColor window, base, alternate_base, text, faint_text, button;
  QColor selection, selected_text, link, difference;
  QColor header, header_selected, header_line, grid_line;
  QColor unused_cell, at_work, at_work_row, marked_cell;
  /// Grounds of signs, which stand on them in `base`.
  QColor good, caution, alarm;
  QColor tip, icon_line, icon_paper, icon_off;
};
const Palette& Colours();

/// A cell's ground of its own colour, meant for a light page, on the page in use.
QColor Ground(const QColor& colour);

/// Style, palette and fonts of the whole program.
void Apply(QApplication& application, Theme theme = Theme::System);

/// What the system says of itself, at any time; `System`: no more than its palette shows. Windows
/// that are open change with it, unless a theme was asked for.
void SystemSays(Theme theme);

/// Fonts of the language; does nothing when they are in use already.
void UseLanguage(bool japanese);

}  // namespace tr7::look
