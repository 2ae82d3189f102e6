#include "tests/tour/session.h"

#include "tests/tour/scripts.h"

namespace tr7::tour {
namespace {

const char* const kJapanese = "Language=1";
const char* const kEnglish = "Language=2";

}  // namespace

const std::vector<Session>& Sessions() {
  static const std::vector<Session> kSessions{
      {"en", {kEnglish}, {}, FirstLook},
      {"ja", {kJapanese}, {}, JapaneseLook},
      {"job", {kEnglish}, {}, MainJob},
      {"prg", {kEnglish}, {"--mode", "prg"}, ProgramModeJob},
      {"devices-en", {kEnglish}, {}, OfflineDevices},
      {"devices-ja", {kJapanese}, {}, OfflineDevices},
      {"para-en", {kEnglish}, {"--mode", "prg"}, ParametersAndReconcile},
      {"para-ja", {kJapanese}, {"--mode", "prg"}, ParametersAndReconcile},
  };
  return kSessions;
}

}  // namespace tr7::tour
