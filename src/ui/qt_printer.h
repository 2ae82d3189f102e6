#pragma once

#include <QPageSize>
#include <QString>

#include "platform/printer.h"
#include "ui/print_preview.h"
#include "ui/qt_form_host.h"

namespace tr7 {

/// The printers that the desktop knows, and a file in the place of one.
class QtPrinter : public Printer {
 public:
  explicit QtPrinter(QtFormHost& forms) : forms_(forms) {}
  bool Preview(const PrintJob& job) override;
  std::unique_ptr<PrintOutput> Open(const PrintJob& job, std::string& reason) override;

 private:
  QtFormHost& forms_;
  PrintTarget target_;
};

}  // namespace tr7
