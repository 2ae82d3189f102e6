#pragma once

#include <optional>
#include <string>
#include <vector>

#include "prog/prog_store.h"

namespace tr7 {

inline int ListingSteps(const Grid& listing) { return listing.Rows() - 1; }

/// The cells of a step, trimmed.
ProgCells CellsOfStep(const Grid& listing, int step);
void PutCells(Grid& listing, int step, const ProgCells& cells);
/// All steps, and the listing as these alone.
std::vector<ProgCells> CellsOfListing(const Grid& listing);
void PutListing(Grid& listing, const std::vector<ProgCells>& steps);
/// The code of the command that stands at a step; -1 where it is none.
int CodeOfStep(const Grid& listing, int step);

/// The numeric form of a step of the listing; none where a cell cannot be read.
std::optional<ProgStep> StepOfListing(const Grid& listing, int step);

void InitSize_FGProg(Grid& listing);
void SetStr_FGProg(Grid& listing);
/// Numbers the steps from 1.
void FGProg_ReNumber(Grid& listing);
/// The selection goes to the first cell.
void FGProg_InitPos(Grid& listing);

/// A step's numeric form from its texts, and its texts from its numeric form. 0, or the column
/// whose text cannot be read; the code of a command that was stands in the step all the same.
int EncodeCells(const ProgCells& cells, ProgStep& step);
ProgCells DecodeStep(const ProgStep& step);

/// The listing does not repaint while many cells change.
class ListingQuiet {
 public:
  explicit ListingQuiet(Grid& listing) : listing_(listing) { listing_.Redraw = false; }
  ~ListingQuiet() {
    listing_.Redraw = true;
    listing_.Touch();
  }
  ListingQuiet(const ListingQuiet&) = delete;
  ListingQuiet& operator=(const ListingQuiet&) = delete;

 private:
  Grid& listing_;
};

/// The most steps that the view's program may have.
int ListingLimit(const ProgView& view);

/// Builds `ProgDA` from the listing. 0; 1 at a command that the list lacks or a cell that cannot be
/// read, which the user is told with the step.
int TorikomiProg2DA(ProgView& view);

/// Fill the listing from what came from the controller, without comments, or from a file, each cell
/// as it stands but for a command that the list lacks.
void ProgDataHyoji(ProgView& view);
void ProgDataHyoji2(ProgView& view);

}  // namespace tr7
