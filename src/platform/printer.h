#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/print_page.h"

namespace tr7 {

/// A document. Both functions hold their data: they may be called as often as the paper changes,
/// and nothing that happens meanwhile changes what is printed.
struct PrintJob {
  std::string Name;
  /// Whether upright pages of this size are wide enough.
  std::function<bool(PrintPage& page)> FitsUpright;
  /// Draws all pages; false where the page did not want them all.
  std::function<bool(PrintPage& page)> Draw;
};

/// Pages on their way to paper or into a file. One that ends without `Close` leaves nothing behind.
class PrintOutput : public PrintPage {
 public:
  /// All pages are drawn, or none more could be had: false, with the reason in the user's language,
  /// where they do not all come out.
  [[nodiscard]] virtual bool Close(std::string& reason) = 0;
};

/// The door to the machine's printers. The user's choice of printer and paper is kept in the
/// settings. A file is a printer like any other.
class Printer {
 public:
  virtual ~Printer() = default;
  /// Shows how the job comes out, and lets the user choose printer and paper; serves timers and
  /// events until that is done. False: nothing is to be printed.
  [[nodiscard]] virtual bool Preview(const PrintJob& job) = 0;
  /// Begins the job on what was chosen; null, with the reason, where that cannot be.
  [[nodiscard]] virtual std::unique_ptr<PrintOutput> Open(const PrintJob& job,
                                                          std::string& reason) = 0;
};

}  // namespace tr7
