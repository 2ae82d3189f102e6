#include "wire/wire_words.h"

#include <cctype>

#include "base/text_helpers.h"
#include "link/error_list.h"
#include "state/text.h"
#include "wire/wire_bytes.h"
#include "wire/wire_fields.h"
#include "wire/wire_table.h"

namespace tr7 {
namespace {

constexpr std::size_t kPrefix = 3;
constexpr int kUnknown = 7722, kErrorReply = 7721, kWrongLength = 106;

/// A name inside of a sentence: words that begin with one capital do so no longer.
std::string Inside(std::string text) {
  const auto is = [&text](std::size_t at, int (*what)(int)) {
    return at < text.size() && what(static_cast<unsigned char>(text[at])) != 0;
  };
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool begins = at == 0 || text[at - 1] == ' ';
    if (begins && is(at, std::isupper) && is(at + 1, std::islower) && !is(at + 2, std::ispunct)) {
      text[at] = static_cast<char>(text[at] - 'A' + 'a');
    }
  }
  return text;
}

/// What a command is about, as the user knows it: a number, or the block's own digit.
std::string SubjectOf(const WireCommand& command, std::string_view frame) {
  const std::string_view digits =
      frame.substr(std::min(kPrefix, frame.size())).substr(0, command.subject);
  const std::int64_t value = HexValue(digits);
  if (command.digit_subject || value < 0) return VisibleBytes(digits);
  return std::to_string(value);
}

std::string NameOf(const WireCommand& command, const std::string& subject) {
  const std::string noun = Text(command.noun, subject);
  return command.verb ? Text(command.verb, Inside(noun)) : noun;
}

std::string Words(const WireCommand* command, std::string_view frame,
                  std::span<const WireField> fields) {
  const std::string subject = SubjectOf(*command, frame);
  // The command's own last digit, where it has one, is no field.
  const std::size_t head = std::max(kPrefix + command->subject, command->start.size());
  const std::string told = FieldWords(fields, frame.substr(std::min(head, frame.size())), subject);
  const std::string name = NameOf(*command, subject);
  return told.empty() ? name : name + ": " + told;
}

}  // namespace

std::string RequestWords(std::string_view frame) {
  frame = WithoutEnd(frame);
  const WireCommand* command = CommandOfRequest(frame);
  if (command) return Words(command, frame, command->request);
  command = CommandOfPrefix(frame);
  if (!command) return Text(kUnknown);
  return Words(command, frame, command->request) + " - " + Text(kWrongLength);
}

std::string ReplyWords(std::string_view line) {
  if (IsErrorReply(line)) return Text(kErrorReply, CtErrorWords(std::string(line)));
  const WireCommand* command = CommandOfReply(line);
  if (!command) command = CommandOfPrefix(line);
  return command ? Words(command, WithoutEnd(line), command->reply) : Text(kUnknown);
}

}  // namespace tr7
