#pragma once

#include "sim/controller.h"
#include "sim/pty.h"

namespace qvr7sim {

/// Serves the pseudo-terminal in real time, and control lines from `control_fd` with their answers
/// on `answer_fd`, until a line says quit, SIGINT or SIGTERM comes, or the control lines end and
/// `quit_on_eof` is set. Sleeps until there is something to do. Where `motion_fd` is not -1, a line
/// there tells "moving" or "at rest" whenever that changes, and at the end. Empty result: ended as
/// asked; else what failed.
std::string Serve(Pty* pty, Controller* controller, int control_fd, int answer_fd, bool quit_on_eof,
                  int motion_fd = -1);

}  // namespace qvr7sim
