#include "posi/posi_caption.h"

#include "forms/frm_posi.h"
#include "posi/posi_table.h"
#include "state/files_here.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {

void SetPosiTableName(const std::string& name) {
  PosiTable.Name = name;
  frmPosi.Caption = Text(202) + "-[" + FileTitle(name) + "]";
  // "Inside of C/T" holds a separator that is none of a path.
  if (!PosiTableHasFile()) frmPosi.Caption = Text(202) + "-[" + name + "]";
}

void SetPosiTableFile(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  const bool usual = dot != std::string::npos && dot + 4 == path.size() && dot > 0;
  const std::size_t length = usual ? dot : path.size();
  PosiTable.FileEnding = path.substr(length);
  SetPosiTableName(path.substr(0, length));
  FileIsShown(path);
}

std::string PosiTablePath() { return PosiTable.Name + PosiTable.FileEnding; }

bool PosiTableHasFile() {
  const std::string& name = PosiTable.Name;
  return !name.empty() && name != Text(213) && name != Text(374);
}

}  // namespace tr7
