#include "ui/outside_files.h"

#include <QApplication>

#include "core/open_file.h"
#include "forms/frm_main.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/text_file.h"
#include "ui/qt_form_host.h"

namespace tr7 {
namespace {

constexpr int kMsgWaits = 7170;

}  // namespace

OutsideFiles::OutsideFiles(QtFormHost& forms) : forms_(forms) {
  next_.HasWork = [this] { return !waiting_.empty() && IsFree() && !forms_.EditIsOpen(); };
  next_.Tick = [this] { OpenNext(); };
}

/// A box that stands may belong to no view, and a menu that is open has the keys.
bool OutsideFiles::IsFree() const {
  return MayOpenFile() && !forms_.Ended() && !QApplication::activeModalWidget() &&
         !QApplication::activePopupWidget();
}

void OutsideFiles::Add(const QStringList& paths) {
  for (const QString& path : paths) waiting_.push_back(path.toStdString());
  if (waiting_.empty() || !frmMain.Visible) return;
  if (IsFree()) {
    forms_.BringToFront(frmMain);
    if (forms_.MayCommand()) return;
  }
  TellWaiting();
}

void OutsideFiles::TellWaiting() const {
  const QWidget* status = forms_.WidgetOf(frmMain.lblStatus);
  QWidget* modal = QApplication::activeModalWidget();
  if (modal || status) QApplication::alert(modal ? modal : status->window());
  forms_.Beep();
  if (!waiting_.empty()) TellInStatusPanel(Text(kMsgWaits, FileTitle(waiting_.back())));
}

void OutsideFiles::OpenNext() {
  if (waiting_.empty()) return;
  const std::string path = waiting_.front();
  waiting_.pop_front();
  OpenFileByPath(path);
}

}  // namespace tr7
