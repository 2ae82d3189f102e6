#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeView>
#include <memory>

#include "state/text.h"
#include "ui/binding.h"
#include "ui/dialog_room.h"
#include "ui/help_key.h"
#include "ui/message_dialog.h"
#include "ui/tip_text.h"

namespace tr7 {
namespace {

constexpr int kOpenText = 5161, kSaveText = 5162, kCancelText = 5153, kLookInText = 5163,
              kFileNameText = 5164, kFileTypeText = 5165, kOverwriteText = 5166;

constexpr QSize kDialogSize(760, 480);

/// "words|*.ext|words|*.*" as Qt wants it: "words (*.ext)".
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = Q(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    // Brackets in the words would be taken for the pattern.
    const QString words = QString(parts[i]).remove('(').remove(')').remove(parts[i + 1]).trimmed();
    filters << words + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
  }
  return filters;
}

void SetTexts(QFileDialog& dialog, const FileDialogCall& call) {
  dialog.setWindowTitle(Q(call.Title));
  dialog.setLabelText(QFileDialog::LookIn, Q(Text(kLookInText)));
  dialog.setLabelText(QFileDialog::FileName, Q(Text(kFileNameText)));
  dialog.setLabelText(QFileDialog::FileType, Q(Text(kFileTypeText)));
  dialog.setLabelText(QFileDialog::Accept,
                      Q(Text(call.Save ? MsgId(kSaveText) : MsgId(kOpenText))));
  dialog.setLabelText(QFileDialog::Reject, Q(Text(kCancelText)));
}

struct PartTip {
  const char* part;  ///< what the toolkit calls it
  MsgId tip;
};

/// The toolkit gives tips to the buttons above the list alone.
void SetTips(QFileDialog& dialog, bool save) {
  constexpr PartTip kTips[] = {{"fileNameEdit", 7840}, {"fileTypeCombo", 7841},
                               {"lookInCombo", 7842},  {"treeView", 7843},
                               {"listView", 7843},     {"sidebar", 7844}};
  const auto tell = [](QWidget* widget, MsgId tip) {
    if (!widget) return;
    widget->setToolTip(TipText(Text(tip)));
    if (!qobject_cast<QPushButton*>(widget)) widget->setAccessibleName(Q(Text(tip)));
  };
  for (const PartTip& tip : kTips) {
    tell(dialog.findChild<QWidget*>(QLatin1String(tip.part)), tip.tip);
  }
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  if (!buttons) return;
  const auto accept = save ? QDialogButtonBox::Save : QDialogButtonBox::Open;
  tell(buttons->button(accept), save ? MsgId(7846) : MsgId(7845));
  tell(buttons->button(QDialogButtonBox::Cancel), 8001);
}

/// Names take the width that the other columns leave.
void ShareColumns(QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (!list) return;
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

QString& LastFolder() {
  static QString folder = QDir::homePath();
  return folder;
}

bool MayOverwrite(const FileDialogCall& call, const QString& path, QWidget* parent,
                  const WaitFor& wait) {
  if (!call.Save || !call.OverwritePrompt || !QFileInfo::exists(path)) return true;
  const MessageBoxCall question{Text(kOverwriteText, QFileInfo(path).fileName().toStdString()),
                                call.Title, MsgButtons::YesNo, MsgIcon::Question, true};
  return AskMessage(question, parent, wait) == MsgAnswer::Yes;
}

/// A dialogue that has been answered lets go of the folder that it watched, which takes longer than
/// reading the file: that waits until the command is through.
struct DeleteLater {
  void operator()(QObject* object) const { object->deleteLater(); }
};

}  // namespace

std::optional<std::string> AskFile(const FileDialogCall& call, QWidget* parent,
                                   const WaitFor& wait) {
  const std::unique_ptr<QFileDialog, DeleteLater> owner(new QFileDialog(parent));
  QFileDialog& dialog = *owner;
#ifndef _WIN32
  // The platform's own dialogue speaks the desktop's language, this one the user's.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
#endif
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.setProperty(kHelpPageProperty, "files");
  dialog.setAcceptMode(call.Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(call.Save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(call.Filter));
  dialog.setDefaultSuffix(Q(call.DefaultExtension));
  SetTexts(dialog, call);
  const QFileInfo proposed(Q(call.ProposedName));
  dialog.setDirectory(proposed.isAbsolute() ? proposed.absolutePath() : LastFolder());
  if (call.Save) dialog.selectFile(proposed.fileName());
  SetTips(dialog, call.Save);
  ShareColumns(dialog);
  dialog.resize(kDialogSize.boundedTo(RoomForDialog(dialog)));
  for (;;) {
    dialog.show();
    wait([&dialog] { return !dialog.isVisible(); });
    if (dialog.result() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QString path = dialog.selectedFiles().constFirst();
    if (!MayOverwrite(call, path, parent, wait)) continue;
    LastFolder() = QFileInfo(path).absolutePath();
    return path.toStdString();
  }
}

}  // namespace tr7
