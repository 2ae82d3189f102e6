#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPageLayout>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <string>

#include "base/msg_id.h"
#include "platform/printer.h"
#include "ui/message_dialog.h"

class QHBoxLayout;

namespace tr7 {

/// Where a job goes.
struct PrintTarget {
  QString printer;       ///< empty: a file
  std::string pdf_path;  ///< of that file
  QPageSize size;
  QPageLayout::Orientation orientation = QPageLayout::Portrait;
  bool IsPdf() const { return printer.isEmpty(); }
};

/// The pages as they come out, and the choice of printer and paper. What was printed on last is
/// proposed; a job that is too wide for that upright lies across.
class PrintPreview : public QDialog {
  Q_OBJECT

 public:
  PrintPreview(const PrintJob& job, QWidget* parent, const WaitFor& wait);
  /// True, and the target, when the user wants it printed.
  bool Run(PrintTarget& target);

 private:
  void FillChoices();
  QHBoxLayout* ChoiceRow();
  QHBoxLayout* PageRow();
  QPushButton* AddButton(QHBoxLayout& row, const char* name, const QString& text, MsgId tip,
                         void (PrintPreview::*act)());
  void PaperChanged();
  void OrientationChosen();
  void LayPages();
  void ShowPageNumber();
  void PreviousPage();
  void NextPage();
  void ZoomIn();
  void ZoomOut();
  void WholePage();
  void Print();
  bool FitsUpright();
  void Remember() const;

  const PrintJob& job_;
  const WaitFor& wait_;
  QPrinter printer_{QPrinter::HighResolution};
  QPrintPreviewWidget* pages_;
  QComboBox *printers_, *papers_, *orientations_;
  QLabel* page_number_;
  QPushButton *previous_ = nullptr, *next_ = nullptr;
  bool chose_orientation_ = false;
  std::string pdf_path_;
};

}  // namespace tr7
