#include "ui/box_details.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

#include "state/text.h"
#include "ui/binding.h"
#include "ui/tip_text.h"

namespace tr7 {
namespace {

constexpr int kDetailsText = 7821, kDetailsTip = 7822, kCopyText = 5211, kCopyTip = 7823;
constexpr int kListTip = 7824;

QToolButton* MakeToggle(QWidget& parent) {
  auto* toggle = new QToolButton(&parent);
  toggle->setText(Q(Text(kDetailsText)));
  toggle->setToolTip(TipText(Text(kDetailsTip)));
  toggle->setCheckable(true);
  toggle->setAutoRaise(true);
  toggle->setArrowType(Qt::RightArrow);
  toggle->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  toggle->setFocusPolicy(Qt::StrongFocus);
  return toggle;
}

QPlainTextEdit* MakeList(QWidget& parent, const QString& details) {
  constexpr int kWidth = 460, kFrame = 14, kMostLines = 8;
  auto* list = new QPlainTextEdit(details, &parent);
  list->setReadOnly(true);
  list->setTabChangesFocus(true);
  list->setLineWrapMode(QPlainTextEdit::NoWrap);
  list->setMinimumWidth(kWidth);
  const int lines = std::min(static_cast<int>(details.count('\n')) + 2, kMostLines);
  list->setFixedHeight(
      std::min(lines * list->fontMetrics().lineSpacing() + kFrame, kDetailsHeight - 70));
  list->setAccessibleName(Q(Text(kDetailsText)).remove('&'));
  list->setToolTip(TipText(Text(kListTip)));
  list->hide();
  return list;
}

QPushButton* MakeCopy(QWidget& parent, const QString& details) {
  auto* copy = new QPushButton(Q(Text(kCopyText)), &parent);
  copy->setAutoDefault(false);  // Enter answers the box
  copy->setToolTip(TipText(Text(kCopyTip)));
  QObject::connect(copy, &QPushButton::clicked, copy, [details] {
    QGuiApplication::clipboard()->setText(QString(details).replace('\n', "\r\n"));
  });
  copy->hide();
  return copy;
}

}  // namespace

void AddDetails(QMessageBox& box, const std::string& details) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (!grid || details.empty()) return;
  const QString text = Q(details).trimmed();
  QToolButton* toggle = MakeToggle(box);
  QPlainTextEdit* list = MakeList(box, text);
  QPushButton* copy = MakeCopy(box, text);
  auto* line = new QHBoxLayout;
  line->addWidget(toggle);
  line->addStretch();
  line->addWidget(copy);
  const int row = grid->rowCount(), columns = grid->columnCount();
  grid->addLayout(line, row, 0, 1, columns);
  grid->addWidget(list, row + 1, 0, 1, columns);
  QObject::connect(toggle, &QToolButton::toggled, list, [toggle, list, copy](bool on) {
    toggle->setArrowType(on ? Qt::DownArrow : Qt::RightArrow);
    list->setVisible(on);
    copy->setVisible(on);
  });
}

}  // namespace tr7
