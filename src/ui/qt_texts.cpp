#include "ui/qt_texts.h"

#include <string_view>

#include "state/text.h"
#include "ui/binding.h"

namespace tr7 {
namespace {

struct QtText {
  std::string_view source;
  MsgId id;
};

constexpr QtText kTexts[] = {
    // The file dialogue.
    {"Name", 6300},
    {"Size", 6301},
    {"Type", 6302},
    {"Date Modified", 6303},
    {"Computer", 6304},
    {"Back", 6305},
    {"Go back", 6305},
    {"Forward", 6306},
    {"Go forward", 6306},
    {"Parent Directory", 6307},
    {"Go to the parent directory", 6307},
    {"Create New Folder", 6308},
    {"Create a New Folder", 6308},
    {"List View", 6309},
    {"Change to list view mode", 6309},
    {"Detail View", 6310},
    {"Change to detail view mode", 6310},
    {"%1\nFile not found.\nPlease verify the correct file name was given.", 5910},
    // The menu of a field.
    {"&Undo", 6311},
    {"&Redo", 6312},
    {"Cu&t", 6313},
    {"&Copy", 5011},
    {"&Paste", 5012},
    {"Delete", 6314},
    {"Select All", 6315},
    // The menu of a view.
    {"&Restore", 6317},
    {"Mi&nimize", 6318},
    {"Ma&ximize", 6319},
    {"&Close", 5007},
};

}  // namespace

QString QtTexts::translate(const char* /*context*/, const char* source,
                           const char* /*disambiguation*/, int /*n*/) const {
  for (const QtText& text : kTexts) {
    if (text.source == source) return Q(Text(text.id));
  }
  return {};  // as the toolkit has it
}

}  // namespace tr7
