#include "para/para_blocks.h"

#include <cmath>
#include <cstdint>

#include "base/text_helpers.h"

namespace tr7 {
namespace {

constexpr int kCommon = 0, kOrder = 1;            // blocks of the controller
constexpr int kHome = 0, kZone = 1, kDevice = 2;  // blocks of an axis

struct RowPlace {
  bool OfAxis;  ///< the block is one of the axis' three
  int Block;
  std::size_t At;
  std::size_t Width;
  const char* Name;
};

constexpr RowPlace Shared(int block, std::size_t at, std::size_t width, const char* name) {
  return {false, block, at, width, name};
}
constexpr RowPlace Axis(int block, std::size_t at, std::size_t width, const char* name) {
  return {true, block, at, width, name};
}

/// By row number. Every place holds the whole range of its row; the jog speed has no upper bound
/// for long leads, so it has four digits.
constexpr std::array<RowPlace, kParaRows + 1> kPlaces = {
    {{},
     Axis(kHome, 5, 6, "OFFSET"),
     Axis(kHome, 11, 2, "PUSH"),
     Axis(kHome, 13, 4, "VEL"),
     Axis(kHome, 17, 4, "OFSVEL"),
     Axis(kHome, 21, 4, "PUSHVEL"),
     Shared(kOrder, 13, 2, "SEQ"),  // of axis 1; the others follow
     Axis(kDevice, 13, 6, "STROKE"),
     Axis(kDevice, 7, 2, "LEAD"),
     Axis(kDevice, 9, 4, "PULSE"),
     Axis(kHome, 25, 4, "JOGVEL"),
     Axis(kHome, 29, 2, "AUTODRIVE"),
     Axis(kDevice, 5, 2, "TYPE"),
     Axis(kDevice, 21, 8, "ACTUATOR"),
     Axis(kZone, 21, 2, "FUNCTION"),
     Axis(kZone, 17, 4, "ALM"),
     Shared(kCommon, 5, 2, "HOME OUT"),
     Shared(kCommon, 9, 2, "GRP ENABLE"),
     Shared(kCommon, 11, 2, "SM TIMEOUT"),
     Shared(kCommon, 13, 2, "SM TIMER"),
     Axis(kZone, 23, 2, "ZONE ENABLE"),
     Axis(kZone, 5, 6, "ZONE1"),
     Axis(kZone, 11, 6, "ZONE2"),
     Axis(kHome, 31, 2, "IN-P WID"),
     Axis(kHome, 33, 2, "HOLD TIME"),
     Shared(kCommon, 15, 2, "AUTO START PRG No."),
     Shared(kCommon, 7, 2, "AXIS"),
     Shared(kCommon, 17, 2, "AUTO HOME"),
     Axis(kZone, 25, 2, "PG TIMER"),
     Axis(kZone, 27, 2, "LS SERCH TIMER"),
     Axis(kHome, 35, 2, "SOFT LIMIT"),
     Shared(kCommon, 19, 2, "EMG LOGIC"),
     Shared(kCommon, 21, 2, "ALM1 CLEAR"),
     Shared(kCommon, 23, 2, "POS/PRG"),
     Shared(kCommon, 25, 2, "PPUT Write")}};

const RowPlace& RowAt(int row) { return kPlaces.at(row); }

// The parts of ACTUATOR, from the start of its place.
constexpr std::size_t kSizeAt = 0, kSpeedAt = 2, kStrokeAt = 4, kStrokeHighAt = 6, kPart = 2;
constexpr int kByte = 256;
constexpr int kMaxStroke = 999;  ///< mm: three digits in the text of ACTUATOR

std::string Part(const std::string& field, std::size_t at) { return field.substr(at, kPart); }

std::string ActuatorField(const ParamSetRecord& set, int axis) {
  const std::string texts = DeviceTextField(set.ActSize[axis], set.ActSpeed[axis]);
  const int stroke = set.ActStroke[axis];
  if (texts.empty() || stroke < 0 || stroke > kMaxStroke) return "";
  return texts + HexPad(stroke % kByte, 2) + HexPad(stroke / kByte, 2);
}

std::string FieldOf(const ParamSetRecord& set, int row, int axis, std::size_t width) {
  if (row == kRowActuator) return ActuatorField(set, axis);
  const double value = std::nearbyint(ParaValue(set, row, axis));
  return HexPad(static_cast<std::int64_t>(value), static_cast<int>(width));
}

bool TakeActuator(const std::string& field, Variant& item) {
  const std::int64_t low = HexValue(Part(field, kStrokeAt));
  const std::int64_t high = HexValue(Part(field, kStrokeHighAt));
  if (low < 0 || high < 0 || high * kByte + low > kMaxStroke) return false;
  std::string size, speed;
  TakeDeviceTexts(Part(field, kSizeAt), Part(field, kSpeedAt), size, speed);
  item = JoinActuator(size, speed, static_cast<int>(high * kByte + low));
  return true;
}

bool TakeField(const std::string& field, int row, int axis, Variant& item) {
  if (row == kRowActuator) return TakeActuator(field, item);
  const std::int64_t value = HexValue(field);
  ParamSetRecord scratch;
  if (value < 0 || !SetParaValue(scratch, row, axis, static_cast<double>(value))) return false;
  item = static_cast<double>(value);
  return true;
}

/// Calls `use` with row and axis of every cell that counts, until it returns false.
template <typename Use>
bool ForEachCell(const AxisList& axes, Use use) {
  const AxisList first_alone(1);
  for (int row = 1; row <= kParaRows; ++row) {
    for (const int axis : IsAxisRow(row) ? axes : first_alone) {
      if (!use(row, axis)) return false;
    }
  }
  return true;
}

ParaTableRecord ZeroTable() { return ParaTableOf(ParamSetRecord{}); }

}  // namespace

std::vector<int> ParaBlocksFor(const AxisList& axes) {
  std::vector<int> blocks{kCommon, kOrder};
  for (const int axis : axes) {
    for (const int which : {kHome, kZone, kDevice}) blocks.push_back(ParaBlockOfAxis(axis, which));
  }
  return blocks;
}

ParaPlace PlaceOfPara(int row, int axis) {
  const RowPlace& place = RowAt(row);
  if (place.OfAxis) {
    return {ParaBlockOfAxis(axis, place.Block), place.At, place.Width};
  }
  const std::size_t at =
      IsAxisRow(row) ? place.At + static_cast<std::size_t>(axis) * place.Width : place.At;
  return {place.Block, at, place.Width};
}

std::optional<ParaCell> EncodePara(const ParamSetRecord& set, const AxisList& axes,
                                   ParaBlocks& blocks) {
  std::optional<ParaCell> misfit;
  ForEachCell(axes, [&](int row, int axis) {
    const ParaPlace place = PlaceOfPara(row, axis);
    const std::string field = FieldOf(set, row, axis, place.Width);
    if (field.size() != place.Width) {
      misfit = ParaCell{row, axis};
      return false;
    }
    blocks[place.Block].replace(place.At - kParaDataAt, place.Width, field);
    return true;
  });
  return misfit;
}

bool DecodePara(const ParaBlocks& blocks, const AxisList& axes, ParaTableRecord& table) {
  ParaTableRecord read = ZeroTable();
  const bool good = ForEachCell(axes, [&](int row, int axis) {
    const ParaPlace place = PlaceOfPara(row, axis);
    const std::string& data = blocks[place.Block];
    return TakeField(data.substr(place.At - kParaDataAt, place.Width), row, axis, read[axis][row]);
  });
  if (good) table = read;
  return good;
}

const char* ParaRowName(int row) { return RowAt(row).Name; }

std::string ParaCellName(const ParaCell& cell) {
  const std::string name = ParaRowName(cell.Row);
  return IsAxisRow(cell.Row) ? name + "(" + std::to_string(cell.Axis + 1) + ")" : name;
}

}  // namespace tr7
