#pragma once

#include <string>
#include <vector>

#include "platform/printer.h"

namespace tr7 {

/// A page as lines of text from the top down: the texts of a line from the left, "|" between them.
using PrintedPage = std::vector<std::string>;

/// A printer of paper that nobody sees, upright unless a job is too wide for that.
class VirtualPrinter : public Printer {
 public:
  bool Preview(const PrintJob& job) override;
  std::unique_ptr<PrintOutput> Open(const PrintJob& job, std::string& reason) override;

  bool wanted = true;         ///< the user prints what the preview shows
  std::string refusal;        ///< why no job is taken; empty: it is
  int pages_of_paper = 1000;  ///< of each job
  double width = 210, height = 285;

  // What came out whole: names of all jobs, pages of the last one, and those of its texts that
  // stand over another one or beyond the page.
  std::vector<std::string> jobs;
  std::vector<PrintedPage> pages;
  std::vector<std::string> faults;

 private:
  bool across_ = false;
};

}  // namespace tr7
