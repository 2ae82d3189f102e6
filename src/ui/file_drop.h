#pragma once

#include <QMainWindow>

namespace tr7 {

class OutsideFiles;

/// Takes files that are dropped on the frame, which owns this.
class FileDrop : public QObject {
  Q_OBJECT

 public:
  FileDrop(QMainWindow& frame, OutsideFiles& files);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  OutsideFiles& files_;
};

}  // namespace tr7
