#include "para/std_table.h"

#include <limits>
#include <utility>

#include "base/seq_file.h"
#include "state/file_kind.h"
#include "state/text_file.h"

namespace tr7 {

AxisArray<StdList> StdTable;
CommonTableRecord CommonTable{};

namespace {

constexpr const char* kProduct = "QV-R7";
constexpr const char* kNewFile = "tr7nqvstpr.lst";
constexpr const char* kOldFile = "tr7qvstpr.lst";
constexpr const char* kCommonFile = "tr7cmstpr.lst";
constexpr std::array<const char*, 3> kTags = {"PG", "ETC", "SPECIAL"};
constexpr int kLastListRow = 11;  ///< of the parameter rows that a standard row holds as numbers
constexpr int kValueColumn = 1, kPgColumn = 2;
constexpr int kPgRows = 2;  ///< FUNCTION and ALM

/// Reads numbers that are to become parameters.
class ParaReader : public SeqReader {
 public:
  using SeqReader::SeqReader;
  /// False also when the parameter row cannot hold the number.
  bool ReadFor(int para_row, double& value) {
    return ReadNumber(value) && SetParaValue(scratch_, para_row, 0, value);
  }
  bool SkipItem() {
    Variant item;
    return ReadItem(item);
  }

 private:
  ParamSetRecord scratch_;
};

/// Reads the two texts that say what the file is.
bool ReadHeader(ParaReader& reader, std::string& product, std::string& kind) {
  return reader.ReadText(product) && reader.ReadText(kind);
}

bool ReadStdRow(ParaReader& reader, StdRow& row) {
  std::string model;
  if (!reader.ReadText(model)) return false;
  row.Model = CutNewModel(model);
  for (int i = 1; i <= kLastListRow; ++i) {
    if (!reader.ReadFor(i, row.Values[i])) return false;
  }
  return reader.ReadText(row.Actuator);
}

bool ReadStdRows(ParaReader& reader, int type, StdList& list) {
  int count = 0;
  if (!reader.ReadInteger(0, kStdRowsMax, count) || !reader.SkipItem()) return false;
  for (int i = 0; i < count; ++i) {
    StdRow row;
    if (!ReadStdRow(reader, row)) return false;
    row.Values[kRowType] = type;
    list.push_back(std::move(row));
  }
  return true;
}

/// Columns (from the first) that a row must have.
int ColumnsDue(int row) { return row < kPgRows ? kPgColumn + 1 : kValueColumn + 1; }

/// Only what is in use must hold numbers that fit; the rest may hold anything.
bool ReadCommonItem(ParaReader& reader, int row, int column, double& slot) {
  const bool in_use = row < kCommonRowsInUse && column >= kValueColumn && column < ColumnsDue(row);
  return in_use ? reader.ReadFor(kCommonFirstPara + row, slot) : reader.SkipItem();
}

class CommonReader {
 public:
  CommonReader(ParaReader& reader, CommonTableRecord& table) : reader_(reader), table_(table) {}

  StdFileResult Read() {
    int sections = 0;
    if (!reader_.ReadInteger(0, std::numeric_limits<int>::max(), sections)) {
      return StdFileResult::Unreadable;
    }
    for (int i = 0; i < sections; ++i) {
      const StdFileResult result = ReadSection(i);
      if (result != StdFileResult::Good) return result;
    }
    // A list that lacks rows would set the parameters behind them to 0.
    return row_ < kCommonRowsInUse ? StdFileResult::Unreadable : StdFileResult::Good;
  }

 private:
  StdFileResult ReadSection(std::size_t index) {
    std::string tag;
    if (!reader_.ReadText(tag)) return StdFileResult::Unreadable;
    if (index >= kTags.size()) return StdFileResult::Good;
    if (tag != kTags[index]) return StdFileResult::WrongTag;
    return ReadSectionRows() ? StdFileResult::Good : StdFileResult::Unreadable;
  }

  bool ReadSectionRows() {
    int rows = 0, columns = 0;
    if (!reader_.ReadInteger(0, kCommonRows - row_, rows) ||
        !reader_.ReadInteger(ColumnsDue(row_), kCommonColumns, columns)) {
      return false;
    }
    for (const int end = row_ + rows; row_ < end; ++row_) {
      for (int column = 0; column < columns; ++column) {
        double& slot = table_[row_][column];
        if (!ReadCommonItem(reader_, row_, column, slot)) return false;
      }
    }
    return true;
  }

  ParaReader& reader_;
  CommonTableRecord& table_;
  int row_ = 0;  ///< carries across the sections
};

}  // namespace

StdFileResult ReadStdFile(bool new_type, int type, StdList& list, std::string& reason) {
  list.clear();
  const std::string name = new_type ? kNewFile : kOldFile;
  std::string text, product, kind;
  if (!ReadListFile(name, text, reason)) return StdFileResult::Unreadable;
  ParaReader reader(text);
  StdFileResult result = StdFileResult::Unreadable;
  if (ReadHeader(reader, product, kind)) {
    const bool ours = product == kProduct && (kind == "QV-STDPRM" || kind == "NB-STDPRM");
    if (!ours) result = StdFileResult::WrongHeader;
    if (ours && ReadStdRows(reader, type, list)) return StdFileResult::Good;
  }
  reason = ListFault(name, text, FileKind::StandardList, reader.Line());
  return result;
}

StdFileResult ReadCommonFile(CommonTableRecord& table, std::string& reason) {
  table = CommonTableRecord{};
  std::string text, product, kind;
  if (!ReadListFile(kCommonFile, text, reason)) return StdFileResult::Unreadable;
  ParaReader reader(text);
  StdFileResult result = StdFileResult::Unreadable;
  if (ReadHeader(reader, product, kind)) {
    const bool ours = product == kProduct && kind == "QV-CMNPRM";
    result = ours ? CommonReader(reader, table).Read() : StdFileResult::WrongHeader;
  }
  if (result == StdFileResult::Good) return result;
  reason = ListFault(kCommonFile, text, FileKind::CommonList, reader.Line());
  return result;
}

}  // namespace tr7
