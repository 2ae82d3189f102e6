#include "forms/view.h"

#include <utility>

namespace tr7 {
namespace {

std::vector<View*>& Table() {
  static std::vector<View*> table;
  return table;
}

}  // namespace

View::View(std::string name, MsgId tag) : Name(std::move(name)), Layout(Name), Tag(tag) {
  Table().push_back(this);
}

View::~View() { std::erase(Table(), this); }

const std::vector<View*>& AllViews() { return Table(); }

void RenewViews() {
  // Renewing takes a view out of the table and puts it in again, and the closure away with it.
  const std::vector<View*> views = Table();
  for (const View* view : views) {
    if (const auto renew = view->Renew) renew();
  }
}

}  // namespace tr7
