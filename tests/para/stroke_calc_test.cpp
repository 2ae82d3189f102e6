
#include "forms/frm_parameta2.h"
#include "forms/frm_stroke_calc.h"
#include "para/para_columns.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class StrokeCalc : public StateTest {
 protected:
  StrokeCalc() {
    ShowView(frmParameta2);
    for (int axis = 0; axis < kAxes; ++axis) {
      p.txtAxisLead[axis].Type("2");
      p.txtAxisPulse[axis].Type("400");
    }
  }
  /// Opens the dialogue; `use` is what the user does in it.
  template <typename Use>
  void Open(Use use) {
    forms.on_modal["frmStrokeCalc"] = [use](View&) {
      use();
      frmStrokeCalc.cmdClose.Press();
    };
    p.cmdCalculate.Press();
  }
  static std::string Calculate(const std::string& stroke, const std::string& lead) {
    c.txtCulStroke.Type(stroke);
    c.txtCulLead.Type(lead);
    c.cmdCulStrokePulse.Press();
    return c.lblStrokePulse.Caption;
  }
  static inline FrmStrokeCalc& c = frmStrokeCalc;
  FrmParameta2& p = frmParameta2;
};

TEST_F(StrokeCalc, PulsesOfAStroke) {
  const struct {
    const char *stroke, *lead, *first, *second;  ///< 400 and 192 pulses a turn
  } rows[] = {{"100", "2", "20000", "9600"},
              {"100", "6", "6667", "3200"},  // 6666.67: up
              {"25", "12", "834", "400"},    // 833.33: up
              {"24", "2", "Invalidity", "Invalidity"},
              {"601", "2", "Invalidity", "Invalidity"},
              {"100", "9", "Invalidity", "Invalidity"},
              {"100", "", "Invalidity", "Invalidity"}};
  Open([&] {
    for (const auto& row : rows) {
      c.optActType[0].Press();
      EXPECT_EQ(Calculate(row.stroke, row.lead), row.first) << row.stroke << "/" << row.lead;
      c.optActType[1].Press();
      EXPECT_EQ(Calculate(row.stroke, row.lead), row.second) << row.stroke << "/" << row.lead;
    }
  });
}

TEST_F(StrokeCalc, AValueOutOfItsRangeIsNamedAndGoneTo) {
  Open([&] {
    EXPECT_EQ(c.txtCulStroke.Text, "") << "the range is no text of the field";
    Calculate("100", "9");
  });
  EXPECT_EQ(Boxes(), Texts{"Lead (mm per turn) is out of range (integer:2 or 4 or 6 or 8 or 12)."});
  EXPECT_EQ(forms.focus, &c.txtCulLead);
}

TEST_F(StrokeCalc, TheResultGoesIntoTheChosenAxisAndTheFocusOn) {
  const Control* next[] = {&p.txtAxisStroke[1], &p.txtAxisLead[2], &p.txtAxisStroke[3],
                           &p.txtAxisLead[0]};
  for (int axis = 0; axis < kAxes; ++axis) {
    forms.focus = nullptr;
    Open([&] {
      Calculate("100", "2");
      c.optInputSaki[axis].Press();
      c.cmdInputStroke.Press();
      EXPECT_FALSE(c.Visible);
    });
    EXPECT_EQ(p.txtAxisStroke[axis].Text, "20000") << axis;
    EXPECT_EQ(p.txtAxisMmStroke[axis].Text, "100.000") << axis;  // which is what counts
    EXPECT_EQ(forms.focus, next[axis]) << axis;
  }
}

TEST_F(StrokeCalc, WhatIsNoResultIsNotEntered) {
  p.txtAxisStroke[0].Type("123");
  Open([&] {
    for (const std::string& result : {std::string(), Text(6092), Text(6093)}) {
      forms.beeps = 0;
      c.lblStrokePulse.Caption = result;
      c.cmdInputStroke.Press();
      EXPECT_TRUE(c.Visible);
      EXPECT_EQ(forms.beeps, 1);
    }
  });
  EXPECT_EQ(p.txtAxisStroke[0].Text, "123");
}

}  // namespace
}  // namespace tr7
