#include "monitor/io_points.h"

#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr std::array<IoPointRow, kInputRows> kInputs{{{"STB", "STB", 0, 3},
                                                      {"STOP", "IN17", 0, 2},
                                                      {"GRP", "IN18", 2, 0},
                                                      {"RES", "RES", 0, 0},
                                                      {"P1", "IN1", 5, 0},
                                                      {"P2", "IN2", 5, 1},
                                                      {"P4", "IN3", 5, 2},
                                                      {"P8", "IN4", 5, 3},
                                                      {"P10", "IN5", 4, 0},
                                                      {"P20", "IN6", 4, 1},
                                                      {"P40", "IN7", 4, 2},
                                                      {"P80", "IN8", 4, 3},
                                                      {"P100", "IN9", 3, 0},
                                                      {"P200", "IN10", 3, 1},
                                                      {"P400", "IN11", 3, 2},
                                                      {"P800", "IN12", 3, 3},
                                                      {"EXP-IN1", "IN13", 1, 0},
                                                      {"EXP-IN2", "IN14", 1, 1},
                                                      {"EXP-IN3", "IN15", 1, 2},
                                                      {"EXP-IN4", "IN16", 1, 3},
                                                      {"PAUSE", "PAUSE", 2, 1},
                                                      {"HOME LS1", "HOME LS1", 6, 0},
                                                      {"HOME LS2", "HOME LS2", 6, 1},
                                                      {"HOME LS3", "HOME LS3", 6, 2},
                                                      {"HOME LS4", "HOME LS4", 6, 3}}};

constexpr std::array<IoPointRow, kOutputRows> kOutputs{{{"ALM", "ALM", 0, 2},
                                                        {"RDY", "RDY", 0, 1},
                                                        {"IN-P", "IN-P", 0, 0},
                                                        {"OUT1", "OUT1", 1, 0},
                                                        {"OUT2", "OUT2", 1, 1},
                                                        {"OUT3", "OUT3", 1, 2},
                                                        {"OUT4", "OUT4", 1, 3},
                                                        {"HOLD1", "OUT5", 2, 0},
                                                        {"ZONE1", "OUT6", 2, 1},
                                                        {"HOLD2", "OUT7", 2, 2},
                                                        {"ZONE2", "OUT8", 2, 3},
                                                        {"HOLD3", "OUT9", 3, 0},
                                                        {"ZONE3", "OUT10", 3, 1},
                                                        {"HOLD4", "OUT11", 3, 2},
                                                        {"ZONE4", "OUT12", 3, 3},
                                                        {"EXP-OUT1", "OUT13", 4, 0},
                                                        {"EXP-OUT2", "OUT14", 4, 1},
                                                        {"EXP-OUT3", "OUT15", 4, 2},
                                                        {"EXP-OUT4", "OUT16", 4, 3}}};

}  // namespace

const std::array<IoPointRow, kInputRows>& InputPoints() { return kInputs; }
const std::array<IoPointRow, kOutputRows>& OutputPoints() { return kOutputs; }

const char* PointName(const IoPointRow& point) {
  return AppState.CtMode ? point.program_name : point.position_name;
}

}  // namespace tr7
