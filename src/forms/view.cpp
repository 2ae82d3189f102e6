#include "forms/view.h"

#include "forms/control.h"

namespace tr7 {
namespace {

std::vector<View*>& Table() {
  static std::vector<View*> table;
  return table;
}

}  // namespace

View::View(const char* name, int tag) : Name(name), Tag(tag) { Table().push_back(this); }

View::~View() { std::erase(Table(), this); }

const std::vector<View*>& AllViews() { return Table(); }

Control* View::Find(std::string_view name) const {
  for (Control* control : Controls) {
    if (name == control->Name) return control;
  }
  return nullptr;
}

}  // namespace tr7
