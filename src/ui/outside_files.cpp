#include "ui/outside_files.h"

#include <QApplication>
#include <string_view>

#include "core/open_file.h"
#include "forms/frm_main.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/text_file.h"
#include "ui/qt_form_host.h"

namespace tr7 {
namespace {

constexpr int kMsgWaits = 7170;
constexpr std::string_view kGap = "   ";

const std::string& Panel() { return frmMain.sbStatusBar.Panels[kPanelError]; }

/// Somebody is asked, or a flow runs: what they tell comes first.
bool OthersTell() { return QApplication::activeModalWidget() || FlowRuns(); }

}  // namespace

OutsideFiles::OutsideFiles(QtFormHost& forms) : forms_(forms) {
  next_.HasWork = [this] { return !waiting_.empty() && IsFree() && !forms_.EditIsOpen(); };
  next_.Tick = [this] { OpenNext(); };
  again_.HasWork = [this] { return MustTellAgain(); };
  again_.Tick = [this] {
    others_told_ = OthersTell();
    TellInPanel();
  };
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

void OutsideFiles::TellWaiting() {
  const QWidget* status = forms_.WidgetOf(frmMain.lblStatus);
  QWidget* modal = QApplication::activeModalWidget();
  if (modal || status) QApplication::alert(modal ? modal : status->window());
  forms_.Beep();
  TellInPanel();
}

/// Behind what others have told: that may be the end of a stroke or a jog without its guard.
void OutsideFiles::TellInPanel() {
  if (waiting_.empty()) return;
  const std::string others = OthersWords();
  told_ = Text(kMsgWaits, FileTitle(waiting_.back()));
  TellInStatusPanel(others.empty() ? told_ : others + std::string(kGap) + told_);
}

std::string OutsideFiles::OthersWords() const {
  std::string words = Panel();
  if (told_.empty() || !words.ends_with(told_)) return words;
  words.resize(words.size() - told_.size());
  if (words.ends_with(kGap)) words.resize(words.size() - kGap.size());
  return words;
}

/// What was told is gone: a good reply empties the panel, and a flow and its boxes have their own
/// texts. An alarm stands until it is cleared.
bool OutsideFiles::MustTellAgain() const {
  if (waiting_.empty() || !frmMain.Visible || AppState.AlarmOn) return false;
  if (IsFree() && !forms_.EditIsOpen()) return false;
  return Panel().empty() || others_told_ != OthersTell();
}

void OutsideFiles::OpenNext() {
  if (waiting_.empty()) return;
  const std::string path = waiting_.front();
  waiting_.pop_front();
  TellInStatusPanel(OthersWords());
  OpenFileByPath(path);
}

}  // namespace tr7
