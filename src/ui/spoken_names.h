#pragma once

#include <QPointer>
#include <QWidget>
#include <string>
#include <utility>
#include <vector>

#include "forms/view.h"

namespace tr7 {

/// What a screen reader calls each control: `NamedBy` and its own caption; without them the labels
/// of its row and column, or the caption in front of it; else its tool tip.
class SpokenNames {
 public:
  using Widgets = std::vector<std::pair<const Control*, QPointer<QWidget>>>;
  SpokenNames(const View& view, const Widgets& widgets);

  /// Sets the names anew whose words have changed.
  void Push();

 private:
  struct Name {
    QWidget* widget;
    const std::string* tip;  ///< the name where there are no words
    std::vector<const std::string*> words;
    std::vector<std::string> shown;
    bool told;
  };
  std::vector<Name> names_;
};

}  // namespace tr7
