#include "forms/view.h"

namespace tr7 {
namespace {

std::vector<View*>& Table() {
  static std::vector<View*> table;
  return table;
}

}  // namespace

View::View(const char* name, MsgId tag) : Name(name), Tag(tag) { Table().push_back(this); }

View::~View() { std::erase(Table(), this); }

const std::vector<View*>& AllViews() { return Table(); }

}  // namespace tr7
