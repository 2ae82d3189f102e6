#include "ui/file_drop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "ui/outside_files.h"

namespace tr7 {
namespace {

QStringList FilesIn(const QMimeData& data) {
  QStringList paths;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) paths.append(url.toLocalFile());
  }
  return paths;
}

}  // namespace

FileDrop::FileDrop(QMainWindow& frame, OutsideFiles& files) : QObject(&frame), files_(files) {
  frame.setAcceptDrops(true);
  frame.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop) {
    auto& drop = static_cast<QDropEvent&>(*event);  // what enters is a drop by its base
    const QStringList paths = FilesIn(*drop.mimeData());
    if (paths.isEmpty()) return false;
    drop.acceptProposedAction();
    // The questions come once the other window is done with its drag.
    if (event->type() == QEvent::Drop) {
      QTimer::singleShot(0, this, [this, paths] { files_.Add(paths); });
    }
    return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tr7
