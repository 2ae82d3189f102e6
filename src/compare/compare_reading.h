#pragma once

#include "forms/handler.h"

namespace tr7 {

/// While the controller is read for a comparison, the view stands switched off, and shows the
/// progress and the cancel button of the frame, which it keeps out of reach. It refuses to close:
/// that is a cancel.
class CompareReading {
 public:
  CompareReading();
  ~CompareReading();
  CompareReading(const CompareReading&) = delete;
  CompareReading& operator=(const CompareReading&) = delete;

 private:
  HandlersForOnce handlers_;
};

}  // namespace tr7
