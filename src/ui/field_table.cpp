#include "ui/field_table.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <string_view>

#include "forms/control.h"
#include "ui/twips.h"

namespace tr7 {
namespace {

constexpr int kNameWidth = 230;
constexpr int kFieldWidth = 136;
constexpr int kFieldHeight = 22;
constexpr int kWideListWidth = 220;   ///< of a list that shares its place with others
constexpr int kNarrowTextWidth = 48;  ///< of a text that does
constexpr int kLettersOfList = 11;    ///< a list's width follows the table, not its longest entry

QComboBox* MakeList(QWidget& parent) {
  auto* list = new QComboBox(&parent);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(kLettersOfList);
  return list;
}

QWidget* MakeField(const Control& control, QWidget& parent) {
  const std::string_view type = control.TypeName;
  if (type == "TextBox") return new QLineEdit(&parent);
  if (type == "ComboBox") return MakeList(parent);
  if (type == "OptionButton") return new QRadioButton(&parent);
  if (type == "CheckBox") return new QCheckBox(&parent);
  return new QLabel(&parent);
}

QWidget* Make(const Control& control, QWidget& parent) {
  QWidget* widget = MakeField(control, parent);
  widget->setObjectName(QString::fromStdString(control.Name));
  return widget;
}

QWidget* MakeHead(const Control& control, QWidget& parent) {
  auto* head = static_cast<QLabel*>(Make(control, parent));
  head->setAlignment(Qt::AlignCenter);
  QFont font = head->font();
  font.setBold(true);
  head->setFont(font);
  return head;
}

/// In pixels: of the names at 0, then of the columns of fields.
int WidthOf(const FieldTable& table, int column) {
  const auto index = static_cast<std::size_t>(column);
  if (index < table.Widths.size()) return Pixels(table.Widths[index]);
  return column == 0 ? kNameWidth : kFieldWidth;
}

void SetFieldSize(QWidget& field, int width) {
  field.setFixedWidth(width);
  field.setMinimumHeight(kFieldHeight);
}

/// A field that shares its place is as wide as what it holds.
QWidget* MakeSharing(const Control& control, QWidget& parent) {
  QWidget* field = Make(control, parent);
  if (qobject_cast<QComboBox*>(field)) field->setFixedWidth(kWideListWidth);
  if (qobject_cast<QLineEdit*>(field)) field->setFixedWidth(kNarrowTextWidth);
  return field;
}

/// Fields that share one place stand side by side.
QLayout* InOnePlace(const FieldRow& row, QWidget& parent) {
  auto* line = new QHBoxLayout;
  line->setSpacing(14);
  for (const Control* field : row.Fields) line->addWidget(MakeSharing(*field, parent));
  line->addStretch();
  return line;
}

void AddRow(const FieldTable& table, const FieldRow& row, int at, int columns, QGridLayout& grid,
            QWidget& parent) {
  const auto align = [&table](QWidget& widget) {
    auto* label = table.LabelsAtFields ? qobject_cast<QLabel*>(&widget) : nullptr;
    if (label) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  };
  QWidget* name = Make(*row.Name, parent);
  align(*name);
  grid.addWidget(name, at, 0);
  if (row.InOnePlace) {
    grid.addLayout(InOnePlace(row, parent), at, 1, 1, columns + 1);
    return;
  }
  int column = 1;
  for (const Control* control : row.Fields) {
    QWidget* field = Make(*control, parent);
    SetFieldSize(*field, WidthOf(table, column));
    align(*field);
    grid.addWidget(field, at, column++);
  }
}

void Build(const FieldTable& table, QWidget& place) {
  auto* grid = new QGridLayout(&place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(2);
  grid->setColumnMinimumWidth(0, WidthOf(table, 0));
  int columns = 0, at = 0;
  for (const Control* head : table.Heads) grid->addWidget(MakeHead(*head, place), 0, ++columns);
  if (columns > 0) ++at;
  for (const FieldRow& row : table.Rows) {
    if (!row.InOnePlace) columns = std::max(columns, static_cast<int>(row.Fields.size()));
  }
  for (const FieldRow& row : table.Rows) AddRow(table, row, at++, columns, *grid, place);
  grid->setColumnStretch(columns + 1, 1);
}

}  // namespace

void BuildFieldTables(const View& view, QWidget& window) {
  for (const FieldTable& table : view.Tables) {
    if (auto* place = window.findChild<QWidget*>(QString::fromStdString(table.Place))) {
      Build(table, *place);
    }
  }
}

}  // namespace tr7
