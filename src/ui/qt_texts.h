#pragma once

#include <QTranslator>

namespace tr7 {

/// The toolkit's own words in the user's language: the file dialogue's columns and buttons, the
/// menus of fields and of views.
class QtTexts : public QTranslator {
 public:
  using QTranslator::QTranslator;
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int n) const override;
  bool isEmpty() const override { return false; }
};

}  // namespace tr7
