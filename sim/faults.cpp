#include "sim/faults.h"

#include <array>
#include <utility>

namespace qvr7sim {

namespace {

constexpr std::array<std::pair<FaultKind, std::string_view>, 14> kNames{{
    {FaultKind::kSilence, "silence"},
    {FaultKind::kDeaf, "deaf"},
    {FaultKind::kDelay, "delay"},
    {FaultKind::kLostByte, "lost-byte"},
    {FaultKind::kChangedByte, "changed-byte"},
    {FaultKind::kExtraByte, "extra-byte"},
    {FaultKind::kSplit, "split"},
    {FaultKind::kDoubled, "doubled"},
    {FaultKind::kWrongPrefix, "wrong-prefix"},
    {FaultKind::kWrongLength, "wrong-length"},
    {FaultKind::kErrorReply, "error-reply"},
    {FaultKind::kAlarm, "alarm"},
    {FaultKind::kMoving, "moving"},
    {FaultKind::kPowerCycle, "power-cycle"},
}};

}  // namespace

std::string_view FaultName(FaultKind kind) {
  for (const auto& [known, name] : kNames) {
    if (known == kind) return name;
  }
  return "";
}

std::optional<FaultKind> FaultByName(std::string_view name) {
  for (const auto& [kind, known] : kNames) {
    if (known == name) return kind;
  }
  return std::nullopt;
}

std::string FaultNames() {
  std::string all;
  for (const auto& entry : kNames) {
    if (!all.empty()) all += ' ';
    all += entry.second;
  }
  return all;
}

}  // namespace qvr7sim
