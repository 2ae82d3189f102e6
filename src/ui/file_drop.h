#pragma once

#include <QMainWindow>
#include <QStringList>

namespace tr7 {

class QtFormHost;

/// Opens files that are dropped on the frame, which owns this.
class FileDrop : public QObject {
  Q_OBJECT

 public:
  FileDrop(QMainWindow& frame, QtFormHost& forms);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QtFormHost& forms_;
};

/// Opens files that came from outside one after the other, as a command does. While a box stands in
/// front nothing is opened: the frame asks for the user's eye instead.
void OpenFilesFromOutside(const QStringList& paths, QtFormHost& forms);

}  // namespace tr7
