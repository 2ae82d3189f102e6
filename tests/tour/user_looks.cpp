// What the user sees.

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QThread>

#include "forms/frm_main.h"
#include "tests/tour/in_tool.h"
#include "tests/tour/screen.h"
#include "tests/tour/spoken_names.h"
#include "tests/tour/user.h"
#include "ui/grid_table.h"
#include "ui/lamp.h"
#include "ui/qt_form_host.h"

namespace tr7::tour {
namespace {

constexpr int kLookAgainMs = 20;
/// What has changed is painted by then.
constexpr int kSettleMs = 250;

bool Says(const QWidget* widget, const std::string& part) {
  return widget && widget->isVisible() && ShownText(*widget).contains(QString::fromStdString(part));
}

}  // namespace

void User::See(const std::string& what, const std::function<bool()>& seen, int within_ms) {
  doing_ = "see " + what;
  for (int waited = 0; waited < within_ms; waited += kLookAgainMs) {
    if (InTool(seen)) return;
    QThread::msleep(kLookAgainMs);
  }
  throw TourFailure("the screen does not show " + what);
}

void User::SeeOn(Control& control) {
  See(NameOf(control) + " on", [this, &control] {
    const QWidget* widget = WidgetOf(control);
    return widget && widget->isVisible() && widget->isEnabled();
  });
}

void User::SeeOff(Control& control) {
  See(NameOf(control) + " off", [this, &control] {
    const QWidget* widget = WidgetOf(control);
    return widget && widget->isVisible() && !widget->isEnabled();
  });
}

void User::SeeGone(View& view) {
  See(std::string(view.Name) + " gone", [this, &view] { return forms_.Find(view) == nullptr; });
}

void User::SeeLamp(Image& lamp, bool lit) {
  See(NameOf(lamp) + (lit ? " lit" : " dark"), [this, &lamp, lit] {
    const auto* drawn = qobject_cast<const Lamp*>(WidgetOf(lamp));
    return drawn && drawn->isVisible() && drawn->IsLit() == lit;
  });
}

void User::SeeText(Control& control, const std::string& part) {
  See(NameOf(control) + " with \"" + part + "\"",
      [this, &control, part] { return Says(WidgetOf(control), part); });
}

void User::SeeEmpty(TextBox& field) {
  See(NameOf(field) + " empty", [this, &field] {
    const QWidget* widget = WidgetOf(field);
    return widget && widget->isVisible() && ShownText(*widget).isEmpty();
  });
}

void User::SeeCell(Grid& grid, int row, int col, const std::string& text) {
  See(CellName(grid, row, col) + " with \"" + text + "\"", [this, &grid, row, col, text] {
    const auto* table = qobject_cast<const GridTable*>(WidgetOf(grid));
    if (!table || !table->isVisible()) return false;
    const auto at = table->model()->index(row - grid.FixedRows, col - grid.FixedCols);
    return table->model()->data(at).toString() == QString::fromStdString(text);
  });
}

void User::SeeLacks(ComboBox& list, const std::string& entry) {
  See(NameOf(list) + " without \"" + entry + "\"", [this, &list, entry] {
    const auto* combo = qobject_cast<QComboBox*>(WidgetOf(list));
    return combo && combo->findText(QString::fromStdString(entry)) < 0;
  });
}

void User::SeeCellEditor(Grid& grid, const std::string& text) {
  See("the editor of " + NameOf(grid) + " with \"" + text + "\"", [this, &grid, text] {
    const auto* table = qobject_cast<const GridTable*>(WidgetOf(grid));
    return table && table->IsEditing() && table->Editor()->text() == QString::fromStdString(text);
  });
}

void User::SeeTitle(View& view, const std::string& title) {
  See("the title \"" + title + "\"", [this, &view, title] {
    const BoundView* bound = forms_.Find(view);
    return bound && bound->Window().windowTitle() == QString::fromStdString(title);
  });
}

void User::SeePanel(int panel, const std::string& part, int within_ms) {
  See(
      "the status bar with \"" + part + "\"",
      [this, panel, part] {
        const QWidget* bar = WidgetOf(frmMain.sbStatusBar);
        if (!bar) return false;
        const auto labels = bar->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
        return panel < labels.size() && Says(labels[panel], part);
      },
      within_ms);
}

void User::SeeBox(const std::string& part, int within_ms) {
  See(
      "a box with \"" + part + "\"", [part] { return Says(OpenBox(), part); }, within_ms);
}

void User::SeeFileDialog() {
  See("the file dialogue", [] { return OpenFileDialog() != nullptr; });
}

void User::SeeReady(int within_ms) {
  See(
      "the commands on again",
      [this] {
        const QWidget* reset = WidgetOf(frmMain.cmdReset);
        return !FrontDialog() && reset && reset->isEnabled();
      },
      within_ms);
}

void User::Picture(const std::string& name) {
  doing_ = "picture " + name;
  QThread::msleep(kSettleMs);
  const QImage picture = InTool([] { return GrabScreen(); });
  const QString file = QString("%1/%2-%3-%4.png")
                           .arg(folder_)
                           .arg(next_picture_++, 2, 10, QChar('0'))
                           .arg(QString::fromStdString(name), session_);
  if (!picture.save(file)) throw TourFailure("cannot save " + file.toStdString());
}

}  // namespace tr7::tour
