#include "data/data_view.h"

#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {

void InstallDataButtons(View& view, Menu& menu, const DataButtons& buttons, const DataKind& kind) {
  const auto flow = [&kind](void (*run)(const DataKind&)) { return [&kind, run] { run(kind); }; };
  buttons.Read.Click = flow(ReadData);
  buttons.Write.Click = flow(WriteData);
  buttons.VerifyCt.Click = flow(VerifyDataToCt);
  buttons.Open.Click = view.Commands.Open = flow(OpenDataFile);
  buttons.Save.Click = flow(SaveDataFile);
  buttons.VerifyFile.Click = flow(VerifyDataToFile);
  buttons.Close.Click = [&view] { CloseView(view, CloseReason::Code); };
  view.IsChanged = kind.IsChanged;
  view.FileName = [&kind] { return FileTitle(*kind.Path); };
  menu.Click = [&view] { ShowOrBringToFront(view); };
}

}  // namespace tr7
