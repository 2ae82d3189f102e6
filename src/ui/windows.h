#pragma once

#include <QDialog>
#include <QMainWindow>
#include <QMdiSubWindow>

#include "forms/view.h"
#include "ui/binding.h"

namespace tr7 {

// The kinds of windows. They carry the user's wish to close, move or activate a window into the
// record; what comes of it is the logic's. A close is a command: it finishes an open edit first.

/// The frame. Its rectangle is kept in the record.
class FrameWindow : public QMainWindow {
  Q_OBJECT

 public:
  FrameWindow(View& view, CommandGate gate) : view_(view), gate_(std::move(gate)) {}
  /// Shows the window where the record has it, moved into the screen when it lies beyond.
  void ShowByRecord();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void PlaceByRecord();
  void KeepOnScreen();
  void KeepRectangle();
  void FollowScreen();

  View& view_;
  CommandGate gate_;
};

/// A view inside the frame. Its rectangle is kept in the record.
class ChildWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  ChildWindow(View& view, CommandGate gate) : view_(view), gate_(std::move(gate)) {}
  /// Where the record has it, as far as that fits in `room`.
  void PlaceByRecord(const QSize& room);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void KeepRectangle();

  View& view_;
  CommandGate gate_;
};

/// A dialogue. Escape presses its cancel button, Enter its default one: without one, Enter presses
/// nothing but the button that has the focus.
class DialogWindow : public QDialog {
  Q_OBJECT

 public:
  DialogWindow(View& view, QWidget* parent);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;
  /// The record hides the window; Qt must not.
  void accept() override {}

 private:
  View& view_;
};

/// The splash.
class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  explicit SplashWindow(View& view);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  View& view_;
};

}  // namespace tr7
