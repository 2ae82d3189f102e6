#pragma once

#include <QDockWidget>
#include <QPointer>
#include <QTimer>
#include <array>

#include "base/axes.h"
#include "platform/sim_port.h"
#include "ui/dock_place.h"

class QGridLayout;
class QLayout;
class QMainWindow;
class QToolButton;

namespace tr7 {

class SimPicture;
class SimPoint;

/// The simulated machine below the frame's views: its axes with the hand that pushes them, its
/// inputs and outputs with the hand that switches. It looks at the machine whenever the program
/// wakes, and by itself only when something changes in there by itself.
class SimDock : public QDockWidget {
  Q_OBJECT

 public:
  /// Puts it into the frame, which owns it, as it stood last; a button and an entry of the menu of
  /// views shut and open it, a key goes into it and back.
  static void AddTo(QMainWindow& frame, SimPort& machine);

 private:
  struct Row {
    SimPicture* picture = nullptr;
    std::array<QToolButton*, 2> push{};  ///< towards home, away from it
  };

  SimDock(QMainWindow& frame, SimPort& machine);
  void AddSwitches(QMainWindow& frame);
  void NameTitleButtons();
  QWidget* FirstControl() const;
  void TurnTo();
  QWidget* MakeMachine();
  QGridLayout* MakeAxes();
  QLayout* MakePoints();
  QToolButton* MakePushButton(int axis, int direction);
  QToolButton* MakePowerButton();
  void Push(int axis, int pulses);
  static void Show(const Row& row, const SimAxis& axis);
  void ShowPoints();
  void LookAgain(bool moves);
  void Look();

  SimPort& machine_;
  AxisArray<Row> rows_;
  std::array<SimPoint*, kSimInputs> inputs_{};
  std::array<SimPoint*, kSimOutputs> outputs_{};
  DockPlace place_;
  QPointer<QWidget> before_;  ///< what had the focus when the key came here
  QTimer next_look_;          ///< while it runs nobody looks
};

}  // namespace tr7
