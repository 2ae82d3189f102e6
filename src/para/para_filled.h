#pragma once

#include <string>

#include "forms/control.h"

namespace tr7 {

/// A field of the parameter view that must hold something and does not.
struct MissingParaField {
  Control* Field = nullptr;  ///< none: every field that counts is filled
  std::string Name;          ///< "AXIS2 PUSH  Home push"
  std::string All;           ///< the names of all of them, a line each, where there are more
};

/// The first such field in the order of the Tab key, and the names of the others.
MissingParaField FirstMissingParaField();

}  // namespace tr7
