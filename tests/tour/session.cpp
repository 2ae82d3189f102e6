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
      {"job", {kEnglish}, {}, MainJob},
      {"prg", {kEnglish}, {"--mode", "prg"}, ProgramModeJob},
      {"offline", {kEnglish}, {"--mode", "prg"}, OfflineStart},
      {"offline-ja", {kJapanese}, {"--mode", "prg"}, OfflineStart},
      {"ja", {kJapanese}, {}, JapaneseLook},
      {"devices-en", {kEnglish}, {}, OfflineDevices},
      {"devices-ja", {kJapanese}, {}, OfflineDevices},
  };
  return kSessions;
}

}  // namespace tr7::tour
