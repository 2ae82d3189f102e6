#include "ui/print_preview.h"

#include <QApplication>
#include <QBuffer>
#include <QHBoxLayout>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QVBoxLayout>
#include <algorithm>

#include "state/settings.h"
#include "state/text.h"
#include "ui/binding.h"
#include "ui/dialog_room.h"
#include "ui/help_key.h"
#include "ui/paint_page.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 7630, kMsgPrinter = 7631, kMsgPdf = 7632, kMsgPaper = 7633;
constexpr int kMsgOrientation = 7634, kMsgPortrait = 7635, kMsgLandscape = 7636;
constexpr int kMsgPrint = 7637, kMsgPageOf = 7638, kMsgPrevious = 7639, kMsgNext = 7640;
constexpr int kMsgZoomIn = 7641, kMsgZoomOut = 7642, kMsgWhole = 7643, kMsgPdfFilter = 7644;
constexpr int kMsgCancel = 5153;
constexpr int kTipPrinter = 8900, kTipPaper = 8901, kTipOrientation = 8902, kTipPrint = 8903,
              kTipCancel = 8904;
constexpr const char *kPrinterKey = "PrintPrinter", *kPaperKey = "PrintPaper",
                     *kLandscapeKey = "PrintLandscape";
constexpr QSize kDialogSize(900, 760);

struct Paper {
  const char* name;
  QPageSize::PageSizeId id;
};
constexpr Paper kPapers[] = {{"A4", QPageSize::A4},          {"A3", QPageSize::A3},
                             {"A5", QPageSize::A5},          {"B4 (JIS)", QPageSize::JisB4},
                             {"B5 (JIS)", QPageSize::JisB5}, {"Letter", QPageSize::Letter}};

/// A list with its name in front.
QComboBox* AddList(QHBoxLayout& row, const char* name, MsgId caption, MsgId tip) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  list->setToolTip(Q(Text(tip)));
  auto* label = new QLabel(Q(Text(caption)));
  label->setBuddy(list);
  row.addWidget(label);
  row.addWidget(list);
  return list;
}

std::string FileNameOf(const std::string& job) {
  return Q(job).replace('/', '-').replace('\\', '-').toStdString() + ".pdf";
}

}  // namespace

PrintPreview::PrintPreview(const PrintJob& job, QWidget* parent, const WaitFor& wait)
    : QDialog(parent), job_(job), wait_(wait), pages_(new QPrintPreviewWidget(&printer_)) {
  setWindowModality(Qt::ApplicationModal);
  setProperty(kHelpPageProperty, "print");
  setWindowTitle(Q(Text(kMsgTitle, job.Name)));
  printer_.setOutputFormat(QPrinter::PdfFormat);
  printer_.setFullPage(true);
  auto* column = new QVBoxLayout(this);
  column->addLayout(ChoiceRow());
  column->addWidget(pages_, 1);
  column->addLayout(PageRow());
  FillChoices();
  connect(pages_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* printer) {
    PaintPage page(*printer);
    static_cast<void>(job_.Draw(page));
  });
  connect(pages_, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::ShowPageNumber);
  connect(papers_, &QComboBox::activated, this, &PrintPreview::PaperChanged);
  connect(orientations_, &QComboBox::activated, this, &PrintPreview::OrientationChosen);
}

QHBoxLayout* PrintPreview::ChoiceRow() {
  auto* row = new QHBoxLayout;
  printers_ = AddList(*row, "comboPrinter", kMsgPrinter, kTipPrinter);
  printers_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  papers_ = AddList(*row, "comboPaper", kMsgPaper, kTipPaper);
  orientations_ = AddList(*row, "comboOrientation", kMsgOrientation, kTipOrientation);
  return row;
}

QPushButton* PrintPreview::AddButton(QHBoxLayout& row, const char* name, const QString& text,
                                     MsgId tip, void (PrintPreview::*act)()) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  button->setAutoDefault(false);
  button->setToolTip(Q(Text(tip)));
  // A sign is no name.
  if (text.size() == 1) button->setAccessibleName(button->toolTip());
  connect(button, &QPushButton::clicked, this, act);
  row.addWidget(button);
  return button;
}

QHBoxLayout* PrintPreview::PageRow() {
  auto* row = new QHBoxLayout;
  previous_ = AddButton(*row, "cmdPreviousPage", QStringLiteral("◀"), kMsgPrevious,
                        &PrintPreview::PreviousPage);
  row->addWidget(page_number_ = new QLabel);
  next_ = AddButton(*row, "cmdNextPage", QStringLiteral("▶"), kMsgNext, &PrintPreview::NextPage);
  row->addSpacing(16);
  AddButton(*row, "cmdZoomOut", QStringLiteral("－"), kMsgZoomOut, &PrintPreview::ZoomOut);
  AddButton(*row, "cmdZoomIn", QStringLiteral("＋"), kMsgZoomIn, &PrintPreview::ZoomIn);
  AddButton(*row, "cmdWholePage", QStringLiteral("□"), kMsgWhole, &PrintPreview::WholePage);
  row->addStretch(1);
  AddButton(*row, "cmdPrint", Q(Text(kMsgPrint)), kTipPrint, &PrintPreview::Print)
      ->setDefault(true);
  AddButton(*row, "cmdCancel", Q(Text(kMsgCancel)), kTipCancel, &QDialog::reject);
  return row;
}

void PrintPreview::FillChoices() {
  for (const QString& name : QPrinterInfo::availablePrinterNames()) printers_->addItem(name, name);
  printers_->addItem(Q(Text(kMsgPdf)), QString());
  const QString used = Q(GetSetting(kPrinterKey, QPrinterInfo::defaultPrinterName().toStdString()));
  printers_->setCurrentIndex(std::max(printers_->findData(used), 0));
  for (const Paper& paper : kPapers) papers_->addItem(paper.name);
  papers_->setCurrentIndex(std::max(papers_->findText(Q(GetSetting(kPaperKey, "A4"))), 0));
  orientations_->addItem(Q(Text(kMsgPortrait)));
  orientations_->addItem(Q(Text(kMsgLandscape)));
  orientations_->setCurrentIndex(GetSettingNumber(kLandscapeKey, 0) == 1 ? 1 : 0);
}

bool PrintPreview::FitsUpright() {
  QBuffer nowhere;
  nowhere.open(QIODevice::WriteOnly);
  QPdfWriter sheet(&nowhere);
  sheet.setPageLayout(
      SheetLayout(QPageSize(kPapers[papers_->currentIndex()].id), QPageLayout::Portrait));
  PaintPage page(sheet);
  return job_.FitsUpright(page);
}

/// Until the user has chosen one, the orientation follows the paper.
void PrintPreview::PaperChanged() {
  if (!chose_orientation_ && !FitsUpright()) orientations_->setCurrentIndex(1);
  LayPages();
}

void PrintPreview::OrientationChosen() {
  chose_orientation_ = true;
  LayPages();
}

void PrintPreview::LayPages() {
  const auto orientation =
      orientations_->currentIndex() == 1 ? QPageLayout::Landscape : QPageLayout::Portrait;
  printer_.setPageLayout(SheetLayout(QPageSize(kPapers[papers_->currentIndex()].id), orientation));
  QApplication::setOverrideCursor(Qt::WaitCursor);
  pages_->updatePreview();
  QApplication::restoreOverrideCursor();
}

void PrintPreview::ShowPageNumber() {
  const int page = pages_->currentPage(), count = pages_->pageCount();
  page_number_->setText(Q(Text(kMsgPageOf, std::to_string(page), std::to_string(count))));
  previous_->setEnabled(page > 1);
  next_->setEnabled(page < count);
}

void PrintPreview::PreviousPage() { pages_->setCurrentPage(pages_->currentPage() - 1); }
void PrintPreview::NextPage() { pages_->setCurrentPage(pages_->currentPage() + 1); }
void PrintPreview::ZoomIn() { pages_->zoomIn(); }
void PrintPreview::ZoomOut() { pages_->zoomOut(); }
void PrintPreview::WholePage() { pages_->fitInView(); }

/// A file is asked for first; without one the pages stay on show.
void PrintPreview::Print() {
  pdf_path_.clear();
  if (printers_->currentData().toString().isEmpty()) {
    const auto path = AskFile({.Save = true,
                               .Title = Text(kMsgPdf),
                               .Filter = Text(kMsgPdfFilter),
                               .ProposedName = FileNameOf(job_.Name),
                               .DefaultExtension = "pdf",
                               .OverwritePrompt = true},
                              this, wait_);
    activateWindow();
    if (!path || path->empty()) return;
    pdf_path_ = *path;
  }
  accept();
}

/// That a job lies across since it is wide says nothing of the next one.
void PrintPreview::Remember() const {
  PutSetting(kPrinterKey, printers_->currentData().toString().toStdString());
  PutSetting(kPaperKey, papers_->currentText().toStdString());
  if (chose_orientation_) PutSetting(kLandscapeKey, orientations_->currentIndex());
}

bool PrintPreview::Run(PrintTarget& target) {
  resize(kDialogSize.boundedTo(RoomForDialog(*this)));
  PaperChanged();
  show();
  PlaceDialog(*this);
  raise();
  activateWindow();
  wait_([this] { return !isVisible(); });
  if (result() != QDialog::Accepted) return false;
  Remember();
  target = {printers_->currentData().toString(), pdf_path_, printer_.pageLayout().pageSize(),
            printer_.pageLayout().orientation()};
  return true;
}

}  // namespace tr7
