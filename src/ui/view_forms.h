#pragma once

#include <string_view>

class QWidget;

namespace tr7 {

/// What kind of window a layout file makes.
enum class FormRoot { MainWindow, Dialog, Widget };

/// The layout of a view: the classes that Qt Designer's files become. Views of one record type
/// share a file.
struct ViewForm {
  const char* view_name;
  FormRoot root;
  /// Puts the layout's widgets into `window`, which is of the root's kind.
  void (*set_up)(QWidget& window);
};

/// Null when the view has no layout.
const ViewForm* FindViewForm(std::string_view view_name);

}  // namespace tr7
