// The edit of a cell: a line edit over the current cell. Its end goes through the record's rule.

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "ui/cell_bubble.h"
#include "ui/folding_validator.h"
#include "ui/grid_table.h"

namespace tr7 {
namespace {

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }
bool IsTab(int key) { return key == Qt::Key_Tab || key == Qt::Key_Backtab; }

bool GoesBack(const QKeyEvent& key) {
  return key.key() == Qt::Key_Backtab || key.modifiers() & Qt::ShiftModifier;
}

bool OpensList(const QKeyEvent& key) {
  return key.key() == Qt::Key_Space && key.modifiers() == Qt::ControlModifier;
}

/// A key that puts a character: those start an edit.
bool Types(const QKeyEvent& key) {
  const bool command = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return !command && !key.text().isEmpty() && key.text().front().isPrint();
}

}  // namespace

void GridTable::StartEdit(EditStart start, const QString& typed) {
  if (editor_ || !grid_->MayEdit(grid_->Row, grid_->Col)) return;
  // A wider selection shrinks to the cell that is edited.
  grid_->SelectCell(grid_->Row, grid_->Col);
  Push();
  edit_row_ = grid_->Row;
  edit_col_ = grid_->Col;
  edit_start_ = start;
  scrollTo(IndexOf(edit_row_, edit_col_));
  editor_ = new QLineEdit(viewport());
  editor_->setFrame(false);
  editor_->setObjectName(QStringLiteral("areaCellEditor"));
  editor_->setAlignment(grid_->AlignOf(edit_col_) == ColAlign::Right ? Qt::AlignRight
                                                                     : Qt::AlignLeft);
  const int longest = grid_->MaxLength ? grid_->MaxLength(edit_col_) : 0;
  if (longest > 0) editor_->setMaxLength(longest);
  if (grid_->FoldKey) editor_->setValidator(new FoldingValidator(*grid_, edit_col_, editor_));
  if (grid_->EditColour != kWindowColour) {
    QPalette palette = editor_->palette();
    palette.setColor(QPalette::Base, QColor::fromRgb(static_cast<QRgb>(grid_->EditColour)));
    editor_->setPalette(palette);
  }
  const bool composes = grid_->InputMethodOn && grid_->InputMethodOn(edit_col_);
  editor_->setAttribute(Qt::WA_InputMethodEnabled, composes);
  editor_->installEventFilter(this);
  connect(editor_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (ListIsOpen()) grid_->List.Filter(text.toStdString());
  });
  if (start == EditStart::Typed) {
    editor_->setText(typed);
  } else {
    editor_->setText(Q(grid_->Text(edit_row_, edit_col_)).trimmed());
    editor_->selectAll();
  }
  PlaceEditor();
  editor_->show();
  editor_->setFocus(Qt::OtherFocusReason);
}

void GridTable::PlaceEditor() {
  if (bubble_->isVisible()) bubble_->PlaceAt(ViewRect(refused_));
  PlaceList();
  if (!editor_) return;
  const QRect cell = CellRect(edit_row_, edit_col_);
  editor_->setGeometry(cell.adjusted(1, 1, -1, -1));
}

/// Drops the editor; the focus goes back to the grid when the editor had it.
void GridTable::CloseEditor() {
  if (!editor_) return;
  QLineEdit* editor = editor_;
  editor_ = nullptr;
  bubble_->hide();
  const bool had_focus = editor->hasFocus();
  editor->removeEventFilter(this);
  editor->hide();
  editor->deleteLater();
  if (had_focus) setFocus(Qt::OtherFocusReason);
}

bool GridTable::FinishEdit() {
  if (!editor_) return true;
  // The rule may pump: an edit that is being finished is not finished once more.
  if (finishing_) return false;
  finishing_ = true;
  const EditVerdict verdict = grid_->EndEdit(edit_row_, edit_col_, editor_->text().toStdString());
  finishing_ = false;
  if (!editor_) return true;
  if (!verdict.accepted) {
    ShowRefusal(verdict.reason);
    if (hasFocus()) editor_->setFocus(Qt::OtherFocusReason);
    editor_->setText(Q(grid_->Text(edit_row_, edit_col_)).trimmed());
    editor_->selectAll();
    return false;
  }
  CloseEditor();
  Push();
  return true;
}

/// The Delete key, where the cell's rule takes an empty text.
void GridTable::EmptyCell() {
  if (!grid_->MayEdit(grid_->Row, grid_->Col)) return;
  if (grid_->DeleteKey) {
    grid_->DeleteKey();
    return Push();
  }
  grid_->SelectCell(grid_->Row, grid_->Col);
  const EditVerdict verdict = grid_->EndEdit(grid_->Row, grid_->Col, "");
  Push();
  if (!verdict.accepted) ShowRefusal(verdict.reason);
}

/// The bubble stands until the cell takes a text or is left.
void GridTable::ShowRefusal(const std::string& reason) {
  refused_ = {grid_->Row, grid_->Col};
  if (reason.empty()) return bubble_->hide();
  bubble_->setText(Q(reason));
  bubble_->PlaceAt(ViewRect(refused_));
  bubble_->show();
}

void GridTable::PushRefusal() {
  if (!editor_ && refused_ != std::pair(grid_->Row, grid_->Col)) bubble_->hide();
}

/// Enter or Tab: the record's own way, else to the next shown column and line.
void GridTable::MoveOn(bool backwards) {
  if (grid_->MoveOn) {
    grid_->MoveOn(backwards);
    Push();
    return;
  }
  const int step = backwards ? -1 : 1;
  const int col = NextShownCol(grid_->Col, step);
  if (col != grid_->Col) return GoTo(grid_->Row, col, false);
  const int row = grid_->Row + step;
  if (row < grid_->FixedRows || row >= grid_->Rows()) return;
  GoTo(row, backwards ? LastShownCol() : NextShownCol(grid_->FixedCols - 1, 1), false);
}

/// A key that stands for a choice of the current cell.
bool GridTable::Clicks(const QKeyEvent& key) const {
  return grid_->CellClick && key.key() == Qt::Key_Space && InBody(grid_->Row, grid_->Col) &&
         !grid_->MayEdit(grid_->Row, grid_->Col);
}

bool GridTable::Chooses(const QKeyEvent& key) const {
  return grid_->Choose && (IsEnter(key.key()) || key.key() == Qt::Key_Space);
}

void GridTable::ChooseCell() {
  if (!InBody(grid_->Row, grid_->Col)) return;
  grid_->Choose();
  Push();
}

/// Left and right leave an edit that was begun by typing, and one in place at the text's ends.
bool GridTable::LeavesSideways(int key) const {
  if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
  if (edit_start_ == EditStart::Typed) return true;
  if (editor_->hasSelectedText()) return false;
  const int end = key == Qt::Key_Left ? 0 : static_cast<int>(editor_->text().size());
  return editor_->cursorPosition() == end;
}

/// True when the key was one that ends or changes the edit.
bool GridTable::OnEditorKey(const QKeyEvent& key) {
  if (OnListKey(key)) return true;
  if (OpensList(key)) {
    OpenList();
    return true;
  }
  if (key.key() == Qt::Key_Escape) {
    CloseEditor();
    return true;
  }
  if (key.key() == Qt::Key_F2) {
    edit_start_ = EditStart::InPlace;
    editor_->deselect();
    editor_->end(false);
    return true;
  }
  if (IsEnter(key.key()) || IsTab(key.key())) {
    if (FinishEdit()) MoveOn(GoesBack(key));
    return true;
  }
  const bool up_or_down = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down ||
                          key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown;
  const bool plain = !(key.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier));
  if (!up_or_down && !(plain && LeavesSideways(key.key()))) return false;
  if (FinishEdit()) MoveByKey(key);
  return true;
}

bool GridTable::eventFilter(QObject* watched, QEvent* event) {
  if (grid_ && corner_ && watched == corner_ && event->type() == QEvent::Paint) {
    PaintCorner();
    return true;
  }
  if (!editor_ || watched != editor_) return QTableView::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      // Escape and Enter end the edit, not the dialogue around it.
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Escape || IsEnter(key)) event->accept();
      return false;
    }
    case QEvent::KeyPress:
      return OnEditorKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      // A click into the grid and a button's click ask for themselves. Asked here as well, a text
      // that is refused would be gone, and the old one accepted, by the time that they ask.
      const QWidget* next = QApplication::focusWidget();
      const bool asks = next == this || qobject_cast<const QAbstractButton*>(next);
      const bool stays = asks || reason == Qt::PopupFocusReason ||
                         reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
      if (next != this) CloseList();
      if (!stays) FinishEdit();
      return false;
    }
    default:
      return false;
  }
}

bool GridTable::event(QEvent* event) {
  if (event->type() == QEvent::FocusOut && grid_ && !editor_) {
    bubble_->hide();
    CloseList();
  }
  if (grid_ && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool control = key->modifiers() & Qt::ControlModifier;
    if (IsTab(key->key()) && !control && InBody(grid_->Row, grid_->Col)) {
      if (FinishEdit()) MoveOn(GoesBack(*key));
      return true;
    }
  }
  if (grid_ && event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool ours = (grid_->Copy && key->matches(QKeySequence::Copy)) ||
                      (grid_->Paste && key->matches(QKeySequence::Paste)) ||
                      (ListIsOpen() && (key->key() == Qt::Key_Escape || IsEnter(key->key())));
    if (ours) {
      event->accept();
      return true;
    }
  }
  return QTableView::event(event);
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (!grid_ || OnListKey(*event)) return;
  if (OpensList(*event)) return OpenList();
  if (grid_->Copy && event->matches(QKeySequence::Copy)) return grid_->Copy();
  if (grid_->Paste && event->matches(QKeySequence::Paste)) return grid_->Paste();
  if (event->matches(QKeySequence::SelectAll)) return SelectAll();
  if (event->key() == Qt::Key_F6) {
    // Tab belongs to the cells, so this is the way to the other controls.
    focusNextPrevChild(!GoesBack(*event));
  } else if (event->key() == Qt::Key_F2) {
    StartEdit(EditStart::InPlace);
  } else if (event->key() == Qt::Key_F12 && grid_->GoToTarget) {
    GoToTarget(true);
  } else if (Chooses(*event)) {
    if (!event->isAutoRepeat()) ChooseCell();  // a key that is held down chooses once
  } else if (Clicks(*event)) {
    if (!event->isAutoRepeat()) grid_->CellClick(grid_->Row, grid_->Col);
  } else if (IsEnter(event->key())) {
    MoveOn(GoesBack(*event));
  } else if (event->key() == Qt::Key_Backspace) {
    StartEdit(EditStart::Typed);
  } else if (event->key() == Qt::Key_Delete) {
    EmptyCell();
  } else if (MoveByKey(*event)) {
    return;
  } else if (Types(*event)) {
    // A key that the column does not take leaves the cell alone.
    const QString typed = FoldingValidator::Folded(*grid_, grid_->Col, event->text());
    if (!typed.isEmpty()) StartEdit(EditStart::Typed, typed);
  } else {
    event->ignore();
  }
}

/// Composed text starts an edit too; the editor goes on with the composition.
void GridTable::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().isEmpty() && event->preeditString().isEmpty()) return;
  StartEdit(EditStart::Typed);
  if (editor_) QCoreApplication::sendEvent(editor_, event);
}

QVariant GridTable::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImCursorRectangle && grid_ && InBody(grid_->Row, grid_->Col)) {
    return CellRect(grid_->Row, grid_->Col).translated(viewport()->pos());
  }
  if (query == Qt::ImEnabled) return testAttribute(Qt::WA_InputMethodEnabled);
  return QWidget::inputMethodQuery(query);
}

}  // namespace tr7
