#include "ui/file_drop.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "core/open_file.h"
#include "forms/frm_main.h"
#include "ui/binding.h"
#include "ui/qt_form_host.h"

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

FileDrop::FileDrop(QMainWindow& frame, QtFormHost& forms) : QObject(&frame), forms_(forms) {
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
      QTimer::singleShot(0, this, [this, paths] { OpenFilesFromOutside(paths, forms_); });
    }
    return true;
  }
  return QObject::eventFilter(watched, event);
}

void OpenFilesFromOutside(const QStringList& paths, QtFormHost& forms) {
  if (QApplication::activeModalWidget()) {
    QApplication::alert(QApplication::activeModalWidget());
    forms.Beep();
    return;
  }
  forms.BringToFront(frmMain);
  for (const QString& path : paths) {
    if (!forms.Ended() && forms.MayCommand()) OpenFileByPath(path.toStdString());
  }
}

}  // namespace tr7
