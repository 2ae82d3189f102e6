#include "forms/frm_posi_teach.h"

namespace tr7 {
namespace {

constexpr int kJogGroup = 10;

/// The keys beside the number row: a pair for each axis, in its order.
HoldButton JogButton(View& owner, int index) {
  return {owner, "cmdJOG" + std::to_string(index), index % 2 == 0 ? MsgId(5245) : MsgId(5246),
          "F" + std::to_string(5 + index)};
}

}  // namespace

PosiReadout::PosiReadout(View& owner)
    : controls(owner),
      lblAxisName(owner, "lblAxisName"),
      lblPosi(owner, "lblPosi"),
      lblStroke(owner, "lblStroke"),
      lblPosiUnit(owner, "lblPosiUnit"),
      lblHomeState(owner, "lblHomeState"),
      imgHomeGreen(owner, "imgHomeGreen", 5276, 5277),
      imgHomeWhite(owner, "imgHomeWhite", 5277, 5276),
      lblKanryoCaption(owner, "lblKanryoCaption", 5274),
      lblkanryoNo(owner, "lblkanryoNo"),
      lblKanryoiti(owner, "lblKanryoiti") {
  controls.Close();
}

PosiTeaching::PosiTeaching(View& owner)
    : controls(owner),
      cmdJOGST(owner, "cmdJOGST", 5214),
      cmdJOGend(owner, "cmdJOGend", 5215),
      Frame1(owner, "Frame1", 5244),
      lblJogAxis(owner, "lblJogAxis"),
      cmdJOG{JogButton(owner, 0), JogButton(owner, 1), JogButton(owner, 2), JogButton(owner, 3),
             JogButton(owner, 4), JogButton(owner, 5), JogButton(owner, 6), JogButton(owner, 7)},
      optJOG(owner, "optJOG", kJogGroup, 5252),
      optInching1(owner, "optInching1", kJogGroup, 5253),
      optInching10(owner, "optInching10", kJogGroup, 5254),
      optInching100(owner, "optInching100", kJogGroup, 5255),
      lblJogVELCaption(owner, "lblJogVELCaption", 5256),
      sldrJogVEL(owner, "sldrJogVEL", 10, 100, 10),
      lblJogVEL(owner, "lblJogVEL"),
      lblPercent(owner, "lblPercent", 5257),
      cmdJogSlower(owner, "cmdJogSlower", 5283),
      cmdJogFaster(owner, "cmdJogFaster", 5284),
      lblSarvo(owner, "lblSarvo", 5247),
      chkSarvoOn(owner, "chkSarvoOn", 2226),
      chkDirectTeach(owner, "chkDirectTeach", 5248),
      lblPosiNoCaption(owner, "lblPosiNoCaption", 5251),
      lblPosiNo(owner, "lblPosiNo"),
      cmdJOGWrite(owner, "cmdJOGWrite", 5249),
      cmdJOGWriteNext(owner, "cmdJOGWriteNext", 5250),
      lblTeachNote(owner, "lblTeachNote") {
  controls.Close();
  optJOG.Value = true;
  cmdJOGWrite.Key = "F3";
  cmdJOGWriteNext.Key = "F4";
  cmdJogSlower.Key = "Ctrl+Down";
  cmdJogFaster.Key = "Ctrl+Up";
  for (int i = 0; i < static_cast<int>(cmdJOG.size()); ++i) {
    cmdJOG[i].NamedBy = {&lblJogAxis[i / 2]};
  }
  for (int axis = 0; axis < 4; ++axis) {
    lblJogAxis[axis].Tag = MsgId::At(220, axis);
    chkSarvoOn[axis].NamedBy = {&lblJogAxis[axis], &lblSarvo};
  }
}

}  // namespace tr7
