#include "state/text.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "state/app_state.h"

extern const char tr7_res_messages[];
extern const unsigned tr7_res_messages_size;

namespace tr7 {
namespace {

std::string Unescaped(std::string_view field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 1 < field.size() && field[i + 1] == 'n') {
      text += '\n';
      ++i;
    } else {
      text += field[i];
    }
  }
  return text;
}

std::vector<MessageRow> ReadTable() {
  std::vector<MessageRow> rows;
  std::string_view rest(tr7_res_messages, tr7_res_messages_size);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const std::size_t tab1 = line.find('\t');
    if (tab1 == std::string_view::npos) continue;
    const std::size_t tab2 = line.find('\t', tab1 + 1);
    if (tab2 == std::string_view::npos) continue;
    int id = 0;
    std::from_chars(line.data(), line.data() + tab1, id);
    rows.push_back({id, line.substr(tab1 + 1, tab2 - tab1 - 1), line.substr(tab2 + 1)});
  }
  return rows;
}

void Replace(std::string& text, std::string_view mark, const std::string& by) {
  const std::size_t at = text.find(mark);
  if (at != std::string::npos) text.replace(at, mark.size(), by);
}

}  // namespace

const std::vector<MessageRow>& MessageTable() {
  static const std::vector<MessageRow> table = ReadTable();
  return table;
}

std::string Text(MsgId id) {
  const auto& table = MessageTable();
  const auto row = std::lower_bound(table.begin(), table.end(), id.Number(),
                                    [](const MessageRow& a, int b) { return a.id < b; });
  if (row == table.end() || row->id != id.Number()) {
    return "#" + std::to_string(id.Number());
  }
  return Unescaped(AppState.LangOffset == 0 ? row->japanese : row->english);
}

std::string Text(MsgId id, const std::string& arg1, const std::string& arg2,
                 const std::string& arg3) {
  std::string text = Text(id);
  Replace(text, "%1", arg1);
  Replace(text, "%2", arg2);
  Replace(text, "%3", arg3);
  return text;
}

}  // namespace tr7
