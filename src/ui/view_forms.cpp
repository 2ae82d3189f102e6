#include "ui/view_forms.h"

#include <QDialog>
#include <QMainWindow>
#include <array>

#include "layout_frmDevice.h"
#include "layout_frmMain.h"
#include "layout_frmOptions2.h"
#include "layout_frmParameta2.h"
#include "layout_frmPosi.h"
#include "layout_frmSelectPosiNo.h"
#include "layout_frmSelection.h"
#include "layout_frmSplash.h"
#include "layout_frmStrokeCalc.h"
#include "layout_frmSyogoKekka.h"

namespace tr7 {
namespace {

template <typename Form, typename Window>
void SetUp(QWidget& window) {
  Form form;
  form.setupUi(static_cast<Window*>(&window));
}

template <typename Form>
constexpr ViewForm Dialog(const char* view_name) {
  return {view_name, FormRoot::Dialog, SetUp<Form, QDialog>};
}

template <typename Form>
constexpr ViewForm Child(const char* view_name) {
  return {view_name, FormRoot::Widget, SetUp<Form, QWidget>};
}

constexpr std::array kForms{
    ViewForm{"frmMain", FormRoot::MainWindow, SetUp<Ui::frmMain, QMainWindow>},
    Child<Ui::frmSplash>("frmSplash"),
    Child<Ui::frmPosi>("frmPosi"),
    Child<Ui::frmParameta2>("frmParameta2"),
    Dialog<Ui::frmStrokeCalc>("frmStrokeCalc"),
    Dialog<Ui::frmSyogoKekka>("frmSyogoKekka"),
    Dialog<Ui::frmDevice>("frmDevice2"),
    Dialog<Ui::frmDevice>("frmDevice3"),
    Dialog<Ui::frmSelection>("frmSelection"),
    Dialog<Ui::frmSelection>("frmSelection2"),
    Dialog<Ui::frmOptions2>("frmOptions2"),
    Dialog<Ui::frmSelectPosiNo>("frmSelectPosiNo2"),
    Dialog<Ui::frmSelectPosiNo>("frmSelectPosiNo3"),
    Dialog<Ui::frmSelectPosiNo>("frmSelectPosiNo4"),
};

}  // namespace

const ViewForm* FindViewForm(std::string_view view_name) {
  for (const ViewForm& form : kForms) {
    if (view_name == form.view_name) return &form;
  }
  return nullptr;
}

}  // namespace tr7
