#include "prog/prog_align.h"

#include <algorithm>
#include <span>

namespace tr7 {
namespace {

using Looks = std::span<const StepLook>;

bool IsSame(const StepLook& a, const StepLook& b) { return a.whole == b.whole; }

/// One step beside the same counts for more than all others beside whatever they are.
int Worth(const StepLook& a, const StepLook& b) {
  constexpr int kSame = 1 << 16, kAlike = 2, kAny = 1;
  return IsSame(a, b) ? kSame : a.command == b.command ? kAlike : kAny;
}

/// The best way on from each pair of places: past both steps, past the one here, or the one there.
class Ways {
 public:
  Ways(Looks here, Looks there)
      : width_(there.size()), both_(here.size() * width_), here_(both_.size()) {
    std::vector<int> below(width_ + 1), row(width_ + 1);  // the worth of what is left
    for (std::size_t h = here.size(); h-- > 0; std::swap(below, row)) {
      row[width_] = 0;
      for (std::size_t t = width_; t-- > 0;) {
        const int both = below[t + 1] + Worth(here[h], there[t]);
        row[t] = std::max({both, below[t], row[t + 1]});
        both_[h * width_ + t] = row[t] == both;
        here_[h * width_ + t] = row[t] == below[t];
      }
    }
  }
  bool PassesBoth(std::size_t h, std::size_t t) const { return both_[h * width_ + t]; }
  bool PassesHere(std::size_t h, std::size_t t) const { return here_[h * width_ + t]; }

 private:
  std::size_t width_;
  std::vector<bool> both_, here_;
};

/// `first` is the number of steps in front, on both sides.
void AlignMiddle(Looks here, Looks there, std::size_t first, std::vector<AlignedSteps>& rows) {
  const Ways ways(here, there);
  const auto place = [first](std::size_t at) { return static_cast<int>(first + at); };
  std::size_t h = 0, t = 0;
  while (h < here.size() || t < there.size()) {
    if (t == there.size()) {
      rows.push_back({place(h++), -1});
    } else if (h == here.size()) {
      rows.push_back({-1, place(t++)});
    } else if (ways.PassesBoth(h, t)) {
      rows.push_back({place(h++), place(t++)});
    } else if (ways.PassesHere(h, t)) {
      rows.push_back({place(h++), -1});
    } else {
      rows.push_back({-1, place(t++)});
    }
  }
}

}  // namespace

std::vector<AlignedSteps> AlignSteps(const std::vector<StepLook>& here,
                                     const std::vector<StepLook>& there) {
  const std::size_t shorter = std::min(here.size(), there.size());
  std::size_t head = 0, tail = 0;
  while (head < shorter && IsSame(here[head], there[head])) ++head;
  while (tail < shorter - head &&
         IsSame(here[here.size() - 1 - tail], there[there.size() - 1 - tail])) {
    ++tail;
  }
  std::vector<AlignedSteps> rows;
  for (int at = 0; at < static_cast<int>(head); ++at) rows.push_back({at, at});
  AlignMiddle(Looks(here).subspan(head, here.size() - head - tail),
              Looks(there).subspan(head, there.size() - head - tail), head, rows);
  for (std::size_t left = tail; left > 0; --left) {
    rows.push_back({static_cast<int>(here.size() - left), static_cast<int>(there.size() - left)});
  }
  return rows;
}

}  // namespace tr7
