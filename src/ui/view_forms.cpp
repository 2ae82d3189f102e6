#include "ui/view_forms.h"

#include <QDialog>
#include <QMainWindow>
#include <array>
#include <type_traits>

#include "layouts.h"  // made by the build: every layout file, and their list

namespace tr7 {
namespace {

/// The row of one layout; the kind of its root is the kind of what it sets up.
template <typename Form, typename Window>
constexpr ViewForm Row(const char* layout, void (Form::*)(Window*)) {
  const FormRoot root = std::is_same_v<Window, QMainWindow> ? FormRoot::MainWindow
                        : std::is_same_v<Window, QDialog>   ? FormRoot::Dialog
                                                            : FormRoot::Widget;
  return {layout, root, [](QWidget& window) { Form().setupUi(static_cast<Window*>(&window)); }};
}

#define TR7_ROW(name) Row(#name, &Ui::name::setupUi),
constexpr std::array kForms{TR7_LAYOUTS(TR7_ROW)};
#undef TR7_ROW

}  // namespace

const ViewForm* FindViewForm(std::string_view layout) {
  for (const ViewForm& form : kForms) {
    if (layout == form.layout) return &form;
  }
  return nullptr;
}

}  // namespace tr7
