#include "link/error_list.h"

#include <algorithm>
#include <utility>

#include "base/seq_file.h"
#include "forms/frm_main.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {

ErrorListRecord ErrorList;

namespace {

constexpr int kMsgNoList = 30;
constexpr int kMsgPutList = 31;
constexpr int kMsgUnknownError = 32;
constexpr int kMsgFileName = 120;
constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow
constexpr int kMsgMain = 1036;
constexpr int kMsgNumberAlone = 5921;

constexpr std::size_t kUnitAt = 3;
constexpr std::size_t kCodeAt = 5;

/// A list: its last index (-1: no pairs), then the pairs.
bool ReadPairs(SeqReader& reader, std::vector<ErrListPair>& pairs) {
  int last = 0;
  if (!reader.ReadInteger(-1, kErrListPairs - 1, last)) return false;
  for (int i = 0; i <= last; ++i) {
    ErrListPair pair;
    if (!reader.ReadText(pair.Code) || !reader.ReadText(pair.Name)) return false;
    pairs.push_back(std::move(pair));
  }
  return true;
}

/// The printable character at this place of a reply, or nothing.
std::string CharacterAt(const std::string& reply, std::size_t at) {
  if (at >= reply.size() || reply[at] <= ' ' || reply[at] > '~') return {};
  return reply.substr(at, 1);
}

/// Where an error comes from: the words for it and the list with its texts.
struct ErrorSource {
  std::string label = "不明";
  const std::vector<ErrListPair>* list = nullptr;
  bool whole_code = false;  ///< the code of a row must equal, not only end with, the one received
};

ErrorSource SourceOf(const std::string& unit) {
  if (unit == "0") return {Text(kMsgMain), &ErrorList.ErrListMain, true};
  if (unit >= "1" && unit <= "4") {
    return {Text(MsgId::At(kMsgAxis1, unit[0] - '1')), &ErrorList.ErrListAxis, false};
  }
  return {};
}

const ErrListPair* FindError(const ErrorSource& source, const std::string& code) {
  if (!source.list || code.empty()) return nullptr;
  const auto found =
      std::find_if(source.list->begin(), source.list->end(), [&](const ErrListPair& pair) {
        return source.whole_code ? pair.Code == code : pair.Code.ends_with(code);
      });
  return found == source.list->end() ? nullptr : &*found;
}

/// The words for an error that no list explains.
std::string UnknownErrorText(const std::string& code) {
  return ErrorList.ErrListMissing && !code.empty() ? Text(kMsgNumberAlone, code)
                                                   : Text(kMsgUnknownError);
}

void HintAtMissingList() {
  if (!ErrorList.ErrListMissing || ErrorList.MissingHintShown) return;
  ErrorList.MissingHintShown = True;
  MsgBox(TwoLines(kMsgNoList, kMsgPutList));
}

}  // namespace

int ReadErrorList() {
  ErrorList.ErrListMissing = True;
  ErrorList.ErrListMain.clear();
  ErrorList.ErrListAxis.clear();
  std::string text;
  if (!ReadTextFile(ProgramFile(Text(kMsgFileName)), text).ok) return 1;
  SeqReader reader(std::move(text));
  std::vector<ErrListPair> main_pairs, axis_pairs;
  if (!ReadPairs(reader, main_pairs) || !ReadPairs(reader, axis_pairs)) return 1;
  ErrorList.ErrListMain = std::move(main_pairs);
  ErrorList.ErrListAxis = std::move(axis_pairs);
  ErrorList.ErrListMissing = False;
  return 0;
}

void DecodeCtError(const std::string& reply) {
  ErrorList.LastErrCode = CharacterAt(reply, kCodeAt);
  const ErrorSource source = SourceOf(CharacterAt(reply, kUnitAt));
  const ErrListPair* error = FindError(source, ErrorList.LastErrCode);
  ErrorList.LastErrShown = error != nullptr;
  ErrorList.LastErrText = error ? error->Name : UnknownErrorText(ErrorList.LastErrCode);

  AppState.CtErrorNo = ErrorList.LastErrCode;
  AppState.CtErrorName = ErrorList.LastErrText;
  AppState.CtErrorKnown = ErrorList.LastErrShown;
  frmMain.imgAlarm.Visible = true;
  frmMain.sbStatusBar.Panels[kPanelError] = source.label + ":" + ErrorList.LastErrText;
  HintAtMissingList();
}

std::string CtErrorWords(const std::string& reply) {
  const std::string code = CharacterAt(reply, kCodeAt);
  const ErrorSource source = SourceOf(CharacterAt(reply, kUnitAt));
  const ErrListPair* error = FindError(source, code);
  return source.label + ":" + (error ? error->Name : UnknownErrorText(code));
}

void ErrorHyoji() { DecodeCtError(AppState.LastCtErrorText); }

}  // namespace tr7
