#pragma once

#include <QStringList>
#include <deque>
#include <string>

#include "forms/timer.h"

namespace tr7 {

class QtFormHost;

/// Files that come from outside: named at the start, handed over by a later one, or dropped on the
/// frame. They are opened one after the other, as a command does. One that comes while the tool
/// starts, while the user is asked or edits, while a flow or a teaching session runs or something
/// moves waits for the end of that: the user is told, again where other texts have come and gone,
/// and nothing looks after it by the clock.
class OutsideFiles {
 public:
  explicit OutsideFiles(QtFormHost& forms);
  /// Opens nothing in here: it may be called from wherever events are served.
  void Add(const QStringList& paths);

 private:
  bool IsFree() const;
  void TellWaiting();
  void TellInPanel();
  std::string OthersWords() const;
  bool MustTellAgain() const;
  void OpenNext();

  QtFormHost& forms_;
  std::deque<std::string> waiting_;
  std::string told_;          ///< in the status panel, of a file that waits
  bool others_told_ = false;  ///< a box or a flow had the panel when that was looked at last
  Timer next_{1, true};
  Timer again_{1, true};
};

}  // namespace tr7
