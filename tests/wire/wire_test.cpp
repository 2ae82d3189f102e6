// The console of the line: frames in words, the record, what is sent by hand and what never is.

#include <deque>

#include "forms/frm_wire.h"
#include "link/frame_log.h"
#include "tests/fleet/random.h"
#include "tests/support/flow_test.h"
#include "wire/wire_rows.h"
#include "wire/wire_send.h"
#include "wire/wire_table.h"
#include "wire/wire_words.h"

namespace tr7 {
namespace {

class WireTest : public FlowTest {
 protected:
  WireTest() : FlowTest(InProgramMode()) { StartOnline(); }
  void Open() {
    frmMain.mnuViewWire.Press();
    Forget();
  }
  /// What the console shows, once it has drawn what was new.
  std::string Shown() {
    pump.RunFor(1'000'000);
    std::string shown;
    for (const std::uint64_t number : WireRows.Shown) {
      shown += RowText(WireRows.Source(), number) + "\n";
    }
    return shown;
  }
  void Send(const std::string& frame) {
    frmWire.txtFrame.Type(frame);
    frmWire.cmdSend.Press();
  }
  static bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }
};

TEST_F(WireTest, FramesAreToldInWords) {
  const struct {
    const char *request, *reply, *words;  // one of the two frames
  } rows[] = {{"0RP00C", "", "Read position No. 12"},
              {"0RP0", "", "Read position No. 0 - Length of data is wrong."},
              {"0WA001005", "", "Store position data: Start 1 End 5"},
              {"0CM0", "", "Sign of life"},
              {"", "0CM1", "The PC takes command"},
              {"0CM01100", "", "Set the control modes: 0 AXIS1 1 AXIS2 1 AXIS3 0 AXIS4 0"},
              {"", "0RAF", "Read axes at rest: AXIS1 AXIS2 AXIS3 AXIS4"},
              {"", "0RV140R4M", "Read the version of the controller: 140 R4M"},
              {"", "0RC500010FFFFE", "Read present position: AXIS1 16 AXIS3 -2"},
              {"0MS0051", "", "Move to a position: Position No. 5 AXIS1 Without macro"},
              {"0JR50100", "", "Jog: Speed 5 AXIS1 0 AXIS2 1 AXIS3 0 AXIS4 0"},
              {"0WE", "", "Store parameters: parameter block 0"},
              {"", "0WE3", "Store group data"},
              {"", "0RR030A", "Read steps: Program No. 3 Steps 10"},
              {"", "0RM030A00138800000000000", "Read program 3: TIM 5"},
              {"", "0TS0103", "Read task: 1:1 2:3"},
              {"", "0RI0000012", "Read inputs: IN1 HOME LS2"},
              {"0WO00000", "", "Write outputs: (none)"},
              {"", "0HP011FFFFFC18",
               "Read position variable: Program No. 1 Position Variable No. 1 Value -1.000"},
              {"", "0RK20A0B", "Read system parameter block 2: 17:10 18:11"},
              {"", "0WG05", "Write group 5"},
              {"0RSZ\x07", "", "Read macro Z\\x07"},
              {"0XX", "", "Unknown command"},
              {"", "", "Unknown command"}};
  for (const auto& row : rows) {
    const std::string reply = std::string(row.reply) + "\r\n";
    EXPECT_EQ(*row.request ? RequestWords(row.request) : ReplyWords(reply), row.words);
  }
  EXPECT_TRUE(ReplyWords("0%%202\r\n").starts_with("Error reply: AXIS2:"));
  const std::string empty(14 * 3 + 4, '0');
  EXPECT_TRUE(RequestWords("0WP0050320A427100000" + empty)
                  .starts_with("Write position No. 5: AXIS1 VEL 50 ACC 10 WAY 1 POSI 10000 PF 0 "
                               "PS 0 / AXIS2 VEL 0"));
  const std::string block = ReplyWords("0RD2" + std::string(5, '0') + "A" + std::string(26, '0'));
  EXPECT_TRUE(block.starts_with("Read parameter block 2: AXIS1 OFFSET 10 PUSH 0 VEL 0")) << block;
}

TEST(FrameRingTest, TheLatestFramesAreKeptWithinItsBounds) {
  FrameRing ring;
  Random random(7);
  std::deque<std::string> all;
  for (int i = 0; i < 30'000; ++i) {
    all.push_back(std::string(random.Below(i < 15'000 ? 20 : 600), static_cast<char>(i)));
    ring.Add(FrameEvent::Received, all.back(), 0);
    if (i % 500 != 0) continue;
    EXPECT_LE(ring.Size(), FrameRing::kMostFrames);
    std::size_t bytes = 0;
    for (std::uint64_t number = ring.First(); number < ring.End(); ++number) {
      ASSERT_EQ(ring.BytesOf(number), all[number - 1]);
      bytes += ring.LengthOf(number);
    }
    EXPECT_LE(bytes, FrameRing::kMostBytes);
    if (i == 14'500) {
      EXPECT_EQ(ring.Size(), FrameRing::kMostFrames);
    }
  }
}

TEST_F(WireTest, WhatMovesOrWritesOrIsUnknownIsNeverSentByHand) {
  std::string sendable;
  for (const WireCommand& command : WireCommands()) {
    std::string frame(command.start);
    frame.resize(std::max(command.request_length, frame.size()), '0');
    if (RefusalOfFrame(frame).empty()) sendable += std::string(command.start) + " ";
  }
  EXPECT_EQ(sendable,
            "0CM1 0CM0 0RA 0RH 0RV 0RV 0RC 0SP 0RP 0RD 0RG 0RS 0RK 0RR 0RM 0PM 0PN 0TN 0TS 0PT "
            "0RI 0RO 0WO 0FR 0HR 0HP ");
  Open();
  for (const char* frame :
       {"0CM02222", "0MP000F", "0RV\r\n0MP000F", "0rp001", "0RP00", "1RV", ""}) {
    Send(frame);
    EXPECT_EQ(Boxes().size(), 1u) << frame;
  }
  EXPECT_EQ(SentLines(), "");
}

TEST_F(WireTest, AFrameIsSentAfterOneWarningAndItsReplyShown) {
  Open();
  forms.answers = {MsgAnswer::No, MsgAnswer::Yes};
  for (int i = 0; i < 3; ++i) Send("0RP001");
  EXPECT_EQ(SentLines(), "0RP001 0RP001 ");
  EXPECT_TRUE(forms.boxes.back().Loses);  // Enter is a No
  EXPECT_EQ(Boxes().size(), 2u);
  EXPECT_TRUE(Has(frmWire.lblReply.Caption, "Read position No. 1: AXIS1 VEL"));
  bool off = false;
  pump.After(1'000'000, [&] { off = !frmWire.cmdSend.Enabled; });
  ReadRange(1, 20);
  EXPECT_TRUE(off);
  Send("0RS99");  // refused by the controller
  EXPECT_FALSE(frmWire.cmdSend.Enabled);
  ExpectOffline();
}

TEST_F(WireTest, FaultsStandInItThoughItWasShutAndTheFilterLeavesThem) {
  Spoil(qvr7sim::FaultKind::kSilence, "0RP", 2);
  Spoil(qvr7sim::FaultKind::kWrongPrefix, "0RP", 4);
  ReadRange(1, 4);
  GoOffline();
  Open();
  std::string all = Shown();
  for (const char* part : {"! No answer in time", "! Sent again - Read position No. 2",
                           "! Not the answer to what was sent", "Sent\t6\t0CM0"}) {
    EXPECT_TRUE(Has(all, part)) << part << "\n" << all;
  }
  frmWire.chkHidePolls.Set(true);
  frmWire.comboDirection.Pick(1);
  frmWire.txtFilter.Type("POSITION no. 2");
  all = Shown();
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 2) << all;
  EXPECT_EQ(frmWire.flgdWire.Rows(), 3);
  EXPECT_TRUE(frmWire.flgdWire.IsMarked(2, 5) && !frmWire.flgdWire.IsMarked(1, 5));
  frmWire.txtFilter.Type("");
  frmWire.txtFind.Type("no. 3");
  frmWire.cmdFindNext.Press();
  EXPECT_EQ(frmWire.lblWords.Caption, "Read position No. 3");
  forms.file_answers = {"/work/line.txt"};
  frmWire.cmdSave.Press();
  EXPECT_TRUE(
      Has(virt.files.Content("/work/line.txt").value_or(""), "0RP003\tRead position No. 3\r\n"));
  frmWire.chkPause.Set(true);
  forms.answers = {MsgAnswer::Ok};
  frmWire.cmdClear.Press();
  EXPECT_EQ(Shown(), "");
  frmWire.cmdClose.Press();
  EXPECT_FALSE(FrameLog.Noted || frmWire.TimerWire.Enabled);
}

}  // namespace
}  // namespace tr7
