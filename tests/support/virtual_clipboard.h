#pragma once

#include <string>

#include "platform/clipboard.h"

namespace tr7 {

/// A clipboard in memory.
class VirtualClipboard : public Clipboard {
 public:
  std::string Text() const override { return text; }
  void SetText(const std::string& new_text) override { text = new_text; }

  std::string text;
};

}  // namespace tr7
