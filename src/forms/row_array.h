#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "forms/view.h"

namespace tr7 {

/// Rows of the same controls, index from 0: a row is built from its view and its index. The tab key
/// goes through one row after the other.
template <typename Row, std::size_t Count>
struct RowArray {
  explicit RowArray(View& owner) : RowArray(owner, std::make_index_sequence<Count>{}) {}
  Row& operator[](std::size_t index) { return items.at(index); }
  const Row& operator[](std::size_t index) const { return items.at(index); }
  auto begin() { return items.begin(); }
  auto end() { return items.end(); }
  static constexpr std::size_t size() { return Count; }
  std::array<Row, Count> items;

 private:
  template <std::size_t... I>
  RowArray(View& owner, std::index_sequence<I...>) : items{Row(owner, I)...} {}
};

}  // namespace tr7
