#include "sim/fault_plan.h"

#include <algorithm>

namespace qvr7sim {

namespace {

constexpr std::size_t kPrefix = 3;
constexpr std::size_t kLineEnd = 2;

void WrongLength(std::string* text) {
  if (text->size() > kPrefix + kLineEnd) {
    text->erase(text->size() - kLineEnd - 1, 1);
  } else {
    text->insert(text->size() - kLineEnd, "0");
  }
}

}  // namespace

std::vector<Fault> FaultPlan::Strike(std::string_view request) {
  std::vector<Fault> struck;
  for (Entry& entry : entries_) {
    const Fault& fault = entry.fault;
    if (entry.done || !request.starts_with(fault.prefix)) continue;
    ++entry.seen;
    if (fault.at_request > 0) {
      entry.done = entry.seen == fault.at_request;
      if (entry.done) struck.push_back(fault);
    } else if (random_.Chance(fault.probability)) {
      struck.push_back(fault);
    }
  }
  return struck;
}

std::size_t FaultPlan::Place(const Fault& fault, std::size_t size) {
  if (fault.at_byte >= 0) return std::min(static_cast<std::size_t>(fault.at_byte), size - 1);
  return random_.Below(size);
}

void FaultPlan::BendText(const Fault& fault, std::string* text) {
  if (text->empty()) return;
  switch (fault.kind) {
    case FaultKind::kLostByte:
      text->erase(Place(fault, text->size()), 1);
      break;
    case FaultKind::kChangedByte: {
      char& byte = (*text)[Place(fault, text->size())];
      byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << random_.Below(7)));
      break;
    }
    case FaultKind::kExtraByte:
      text->insert(Place(fault, text->size()), 1, static_cast<char>('!' + random_.Below(94)));
      break;
    case FaultKind::kDoubled:
      text->append(std::string(*text));
      break;
    case FaultKind::kWrongPrefix:
      text->replace(0, std::min(kPrefix, text->size()), "0ZZ");
      break;
    case FaultKind::kWrongLength:
      if (text->size() >= kPrefix + kLineEnd) WrongLength(text);
      break;
    default:
      break;
  }
}

std::vector<Piece> FaultPlan::Bend(std::string reply, const std::vector<Fault>& struck) {
  std::int64_t delay_us = 0;
  const Fault* split = nullptr;
  for (const Fault& fault : struck) {
    if (fault.kind == FaultKind::kSilence) return {};
    if (fault.kind == FaultKind::kDelay) delay_us += fault.time_us;
    if (fault.kind == FaultKind::kSplit) split = &fault;
    BendText(fault, &reply);
  }
  if (reply.empty()) return {};
  if (split == nullptr || reply.size() < 2) return {{std::move(reply), delay_us}};
  const std::size_t cut = std::max<std::size_t>(1, Place(*split, reply.size()));
  return {{reply.substr(0, cut), delay_us}, {reply.substr(cut), split->time_us}};
}

}  // namespace qvr7sim
