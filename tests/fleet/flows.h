#pragma once

#include <span>

#include "tests/fleet/voyage.h"

namespace tr7 {

/// One thing that the user does, with its own invariants.
struct Flow {
  const char* name;
  int weight;
  void (*run)(Voyage& voyage);
};

// The flows by subject.
std::span<const Flow> SessionFlows();
std::span<const Flow> TransferFlows();  ///< reading first
std::span<const Flow> FileFlows();      ///< new data first
std::span<const Flow> EditFlows();

/// The start of the tool, with its choice between online and offline.
void StartTool(Voyage& voyage);

/// Going online by the menu.
void GoOnline(Voyage& voyage);

/// Going online to a controller that differs in one thing or two, with one fault at one line: which
/// ones, the seed counts out.
void SweepConnect(Voyage& voyage);

}  // namespace tr7
