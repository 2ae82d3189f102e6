#pragma once

#include <string>

namespace tr7 {

// The parameter view and the controller, or a file. The user has been told of every failure.

/// `cmdParaRead`: the controller's parameters into `ParamSet` and the view. Where its axes or
/// devices are others than the PC's, the user decides whether they are taken with them; without
/// them nothing is read. What fails or is cancelled on the way leaves axes, devices and parameters
/// as they were.
void GetParametaValue();

/// `cmdParaWrite`: the view into the controller. On the user's wish its axes and devices become
/// the PC's afterwards. A controller that is to run in the other mode has the tool end, once every
/// view has been asked about what is not saved.
void WriteParaFlow();

/// 0: the controller has at least as many axes as are to be written; 1: it has less; -1: it did not
/// tell. `counts` takes the two numbers in words.
int CheckCtAxisAndParaAxis(std::string* counts = nullptr);

/// Reads the controller's parameters into `ParaTable`, over a line that is open. False: `ParaTable`
/// is as it was.
[[nodiscard]] bool ParametersAreRead();

/// `cmdConpareCT` and `cmdConpareFile`: what differs between the view and the other side.
void VerifyParaToCt();
void VerifyParaToFile();

}  // namespace tr7
