#pragma once

#include <string>
#include <vector>

#include "data/kept_aside.h"
#include "platform/doors.h"
#include "state/kept_work.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {

/// How a kind of whole tables is kept: each table as a file. Beside the open view's, that is what
/// closed ones have held.
template <typename Table>
struct DataKeeping {
  const char* word;
  View& view;
  Menu& shown_by;
  KeptAside<Table>& aside;
  Table &held, &saved;
  std::string& path;
  Table (*on_screen)();  ///< the table with what stands in the boxes
  std::string (*text_of)(const Table& table);
  int (*read_to_stage)(const std::string& utf8);
  void (*show_stage)();  ///< the stage becomes the table and is shown
};

template <typename Table>
KeepKind KeptTables(const DataKeeping<Table>& data) {
  constexpr int kMsgClosed = 7816;
  const auto unsaved = [data] {
    std::vector<std::string> words;
    const Table shown = data.view.Loaded ? data.on_screen() : Table{};
    if (shown != Table{} && shown != data.saved) words.emplace_back();
    const std::size_t aside = data.aside.Unsaved().size();
    for (std::size_t at = 0; at < aside; ++at) words.push_back(std::to_string(at));
    return words;
  };
  const auto keep = [data](const std::string& which, KeptWork& work) {
    work.mode = ForMode::Positioner;
    if (which.empty()) {
      work.path = work.name = data.path;
      work.file = data.text_of(data.on_screen());
    } else {
      work.name = Text(kMsgClosed, Text(data.view.Tag));
      work.file = data.text_of(*data.aside.Unsaved().at(std::stoul(which)));
    }
  };
  const auto take_back = [data](const KeptWork& work) {
    data.shown_by.Press();
    if (!data.view.Visible || data.read_to_stage(work.file) != 0) return false;
    data.aside.Keep(data.held, data.held == data.saved);
    data.show_stage();
    data.path = doors.files->Exists(work.name) ? work.name : std::string();
    return true;
  };
  return {data.word, data.view.Tag, unsaved, keep, take_back};
}

}  // namespace tr7
