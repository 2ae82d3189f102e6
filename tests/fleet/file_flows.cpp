#include "tests/fleet/states.h"

namespace tr7 {
namespace {

constexpr int kMsgNotSaved = 422, kMsgNotRead = 484, kMsgOtherMode = 330;

using Disk = std::map<std::string, std::string>;

/// The user's files.
Disk DiskNow(const Voyage& voyage) {
  Disk disk;
  for (const std::string& path : voyage.virt.files.Paths()) {
    if (path.starts_with("/work/")) disk[path] = *voyage.virt.files.Content(path);
  }
  return disk;
}

/// Every file but one is as it was, and nothing half made lies about.
void CheckOtherFiles(Voyage& voyage, const Disk& before, const std::string& but) {
  Disk now = DiskNow(voyage);
  Disk old = before;
  now.erase(but);
  old.erase(but);
  voyage.Require(now == old, "a save touched another file");
}

void SaveBy(Voyage& voyage, CommandButton& button) {
  const Disk disk = DiskNow(voyage);
  const TableState before = TableNow(voyage);
  if (voyage.random.Chance(30)) SpoilFiles(voyage);
  button.Press();
  voyage.virt.files.PowerOn();
  const TableState after = TableNow(voyage);
  voyage.Require(
      before.texts == after.texts && before.first == after.first && before.last == after.last,
      "a save changed the table");
  const bool saved = DiskNow(voyage) != disk;
  if (voyage.WasTold(kMsgNotSaved) || !PosiTableHasFile()) {
    voyage.Require(!saved, "a save that failed changed a file");
    voyage.Require(before.name == after.name && before.changed == after.changed,
                   "a save that failed changed the table's name");
    return;
  }
  CheckOtherFiles(voyage, disk, PosiTablePath());
  if (saved) voyage.damaged.erase(PosiTablePath());
}

void Save(Voyage& voyage) { SaveBy(voyage, frmPosi.cmdPosiSave); }
void SaveAs(Voyage& voyage) { SaveBy(voyage, frmPosi.cmdPosiSaveAs); }

}  // namespace

void DamageFile(Voyage& voyage, const std::string& path) {
  const auto content = voyage.virt.files.Content(path);
  if (!content || content->empty()) return;
  Random& random = voyage.random;
  std::string bytes = *content;
  const auto at = static_cast<std::size_t>(random.Below(static_cast<int>(bytes.size())));
  if (random.Chance(40)) {
    bytes.resize(at);
  } else {
    bytes[at] = static_cast<char>(random.OneOf({'"', ',', '\r', '9', '-', 'x', '\0', '\x81'}));
  }
  voyage.Note("damage");
  voyage.damaged.insert(path);
  voyage.virt.files.Put(path, bytes);
}

namespace {

/// What is opened and saved at once is the same file, where nobody was asked about its devices.
void CheckSavedAgain(Voyage& voyage) {
  const std::string path = PosiTablePath();
  const auto before = voyage.virt.files.Content(path);
  if (voyage.damaged.contains(path) || !voyage.choices.empty()) return;
  frmPosi.cmdPosiSave.Press();
  if (voyage.WasTold(kMsgNotSaved) || frmPosi.PosiChanged) return;
  voyage.Require(voyage.virt.files.Content(path) == before, "opened and saved is another file");
}

void Open(Voyage& voyage) {
  if (voyage.random.Chance(20)) DamageFile(voyage, AnyPath(voyage.random));
  const TableState before = TableNow(voyage);
  if (voyage.random.Chance(20)) SpoilFiles(voyage);
  frmPosi.cmdPosiOpen.Press();
  voyage.virt.files.PowerOn();
  const TableState after = TableNow(voyage);
  if (before.texts == after.texts && before.machine == after.machine) return;
  const bool told = voyage.WasTold(kMsgNotRead) || voyage.WasTold(kMsgOtherMode);
  voyage.Require(!told && !after.changed && PosiTablePath() == voyage.last_path,
                 "an open that failed changed the table");
  CheckSavedAgain(voyage);
}

void NewData(Voyage& voyage) {
  const Disk disk = DiskNow(voyage);
  const TableState before = TableNow(voyage);
  frmPosi.cmdPosiNew.Press();
  if (PosiTable.Name == Text(213) && !frmPosi.PosiChanged) return;
  if (DiskNow(voyage) != disk) return;  // saved first
  voyage.Require(before.IsKeptIn(TableNow(voyage)),
                 "new data that was not taken changed the table");
}

void VerifyWithFile(Voyage& voyage) {
  const TableState before = TableNow(voyage);
  const std::size_t sent = voyage.virt.port.sent.size();
  if (voyage.random.Chance(20)) DamageFile(voyage, AnyPath(voyage.random));
  if (voyage.random.Chance(20)) SpoilFiles(voyage);
  frmPosi.cmdPosiFileVerify.Press();
  voyage.virt.files.PowerOn();
  voyage.Require(before.IsKeptIn(TableNow(voyage)), "a verification changed the table");
  voyage.Require(voyage.virt.port.sent.size() == sent, "a verification with a file sends");
}

constexpr Flow kFlows[] = {{"new", 2, NewData},
                           {"save", 3, Save},
                           {"save-as", 6, SaveAs},
                           {"open", 5, Open},
                           {"verify-file", 3, VerifyWithFile}};

}  // namespace

std::span<const Flow> FileFlows() { return kFlows; }

}  // namespace tr7
