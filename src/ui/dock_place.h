#pragma once

#include <QObject>
#include <QRect>
#include <string>

class QDockWidget;
class QMainWindow;

namespace tr7 {

/// Where the frame's dock stood at the last end of the tool: shown or not, at which edge and how
/// high, or where it floated.
class DockPlace : public QObject {
 public:
  /// `key` names it among what is known of the windows. The end of the tool notes its place.
  DockPlace(QMainWindow& frame, QDockWidget& dock, std::string key);
  ~DockPlace() override;
  DockPlace(const DockPlace&) = delete;
  DockPlace& operator=(const DockPlace&) = delete;

  /// Puts the dock into the frame: as it stood last, else at its foot.
  void Take();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PutFloating();
  void FollowFrame();
  void Note();

  QMainWindow& frame_;
  QDockWidget& dock_;
  std::string key_;
  int height_ = 0;  ///< in the frame, also while it floats or is hidden; 0: as its content asks for
  QRect floating_;  ///< where it last floated; null: nowhere yet
  bool has_floated_ = false;  ///< since the start
  bool comes_after_frame_ = false;
  bool twice_ = false;  ///< the last press of the mouse on it was the second of two
};

}  // namespace tr7
