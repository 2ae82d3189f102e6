#include "ui/qt_printer.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/atomic_save.h"
#include "platform/doors.h"
#include "state/text.h"
#include "state/text_file.h"
#include "ui/binding.h"
#include "ui/paint_page.h"

namespace tr7 {
namespace {

constexpr int kMsgNoPrinter = 7645, kMsgBrokeOff = 7646;

struct PdfDevice {
  PdfDevice(const PrintTarget& target, const std::string& name)
      : buffer(&bytes), writer((buffer.open(QIODevice::WriteOnly), &buffer)) {
    writer.setPageLayout(SheetLayout(target.size, target.orientation));
    writer.setTitle(Q(name));
  }
  QByteArray bytes;
  QBuffer buffer;
  QPdfWriter writer;
};

/// The file comes to be when all of it is there.
class PdfOutput : private PdfDevice, public PaintPage {
 public:
  PdfOutput(const PrintTarget& target, const std::string& name)
      : PdfDevice(target, name), PaintPage(writer), path_(target.pdf_path) {}

  bool Close(std::string& reason) override {
    if (!PaintPage::Close(reason)) return false;
    const FileFault fault = SaveAtomically(
        *doors.files, path_, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (fault != FileFault::None) reason = FileFaultWords(fault, path_);
    return fault == FileFault::None;
  }

 private:
  const std::string path_;
};

struct PrinterDevice {
  PrinterDevice(const QPrinterInfo& info, const PrintTarget& target, const std::string& name)
      : printer(info, QPrinter::HighResolution) {
    printer.setFullPage(true);
    printer.setPageLayout(SheetLayout(target.size, target.orientation));
    printer.setDocName(Q(name));
  }
  QPrinter printer;
};

class PrinterOutput : private PrinterDevice, public PaintPage {
 public:
  PrinterOutput(const QPrinterInfo& info, const PrintTarget& target, const std::string& name)
      : PrinterDevice(info, target, name), PaintPage(printer) {}
  ~PrinterOutput() override {
    if (IsActive()) printer.abort();
  }
  PrinterOutput(const PrinterOutput&) = delete;
  PrinterOutput& operator=(const PrinterOutput&) = delete;

  bool Close(std::string& reason) override {
    const auto failed = [this] {
      return printer.printerState() == QPrinter::Error ||
             printer.printerState() == QPrinter::Aborted;
    };
    const bool broke_off = failed();
    if (PaintPage::Close(reason) && !broke_off && !failed()) return true;
    reason = tr7::Text(kMsgBrokeOff, printer.printerName().toStdString());
    return false;
  }
};

}  // namespace

bool QtPrinter::Preview(const PrintJob& job) {
  bool accepted = false;
  forms_.Ask([&](QWidget* parent, const WaitFor& wait) {
    PrintPreview preview(job, parent, wait);
    accepted = preview.Run(target_);
  });
  return accepted;
}

std::unique_ptr<PrintOutput> QtPrinter::Open(const PrintJob& job, std::string& reason) {
  if (target_.IsPdf()) return std::make_unique<PdfOutput>(target_, job.Name);
  const QPrinterInfo info = QPrinterInfo::printerInfo(target_.printer);
  if (!info.isNull()) {
    auto output = std::make_unique<PrinterOutput>(info, target_, job.Name);
    if (output->IsActive()) return output;
  }
  reason = Text(kMsgNoPrinter, target_.printer.toStdString());
  return nullptr;
}

}  // namespace tr7
