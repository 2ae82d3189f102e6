#pragma once

#include <string_view>

class QWidget;

namespace tr7 {

/// What kind of window a layout file makes.
enum class FormRoot { MainWindow, Dialog, Widget };

/// A layout: the class that a file of Qt Designer's becomes. Views of one record type share one.
struct ViewForm {
  const char* layout;  ///< the file's name
  FormRoot root;
  /// Puts the layout's widgets into `window`, which is of the root's kind.
  void (*set_up)(QWidget& window);
};

/// Null when there is no file of that name.
const ViewForm* FindViewForm(std::string_view layout);

}  // namespace tr7
