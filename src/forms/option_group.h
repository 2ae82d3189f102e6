#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "forms/control.h"

namespace tr7 {

/// Options of which one is chosen: index from 0, names "base1" up, a caption tag each.
template <std::size_t Count>
struct OptionGroup {
  OptionGroup(View& owner, const std::string& base, int group, const std::array<MsgId, Count>& tags)
      : OptionGroup(owner, base, group, tags, std::make_index_sequence<Count>{}) {}
  OptionButton& operator[](std::size_t index) { return items.at(index); }
  const OptionButton& operator[](std::size_t index) const { return items.at(index); }
  auto begin() { return items.begin(); }
  auto end() { return items.end(); }
  /// Index of the chosen option; -1: none is.
  int Chosen() const {
    for (std::size_t i = 0; i < Count; ++i) {
      if (items[i].Value) return static_cast<int>(i);
    }
    return -1;
  }
  void Clear() {
    for (OptionButton& option : items) option.Value = false;
  }
  std::array<OptionButton, Count> items;

 private:
  template <std::size_t... I>
  OptionGroup(View& owner, const std::string& base, int group, const std::array<MsgId, Count>& tags,
              std::index_sequence<I...>)
      : items{OptionButton(owner, base + std::to_string(I + 1), group, tags[I])...} {}
};

}  // namespace tr7
