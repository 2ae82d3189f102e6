// Every fault at every line of every flow that talks to the controller: whatever befalls it, the
// flow ends at rest, the PC and the controller are as before or as after, the user is told, and
// after a refusal nothing more is sent.

#include "tests/fault_sweep_flows.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

constexpr FaultKind kOnce[] = {
    FaultKind::kSilence,     FaultKind::kDelay, FaultKind::kLostByte, FaultKind::kChangedByte,
    FaultKind::kExtraByte,   FaultKind::kSplit, FaultKind::kDoubled,  FaultKind::kWrongPrefix,
    FaultKind::kWrongLength, FaultKind::kAlarm};

/// A long transfer says the same in its middle.
bool Counts(std::size_t line, std::size_t lines) {
  return lines < 40 || line <= 5 || line + 5 > lines || line % 23 == 0;
}

class FaultSweep : public ::testing::TestWithParam<SweptFlow> {
 protected:
  /// Runs the flow with what `spoil` does to the line.
  AfterFlow Try(const std::function<void(Trial&)>& spoil) {
    const auto run = std::make_unique<Trial>();
    (run.get()->*GetParam().prepare)();
    before_ = {GetParam().look(), Committed(run->Ct())};
    run->Forget();
    spoil(*run);
    (run.get()->*GetParam().flow)();
    EXPECT_TRUE(run->Ct().ControlDigits() == "0000" || AppState.AxesMayBeHeld) << "left held";
    sent_ = run->Lines();
    EXPECT_FALSE(run->RunsUnheardOf());
    boxes_ = run->BoxCount();
    run->LetLineServe();
    bad_data_ = run->BoxShown(TwoLines(384, 385));
    AfterFlow outcome{GetParam().look(), Committed(run->Ct())};
    run->End();
    return outcome;
  }
  void ExpectOneOrTheOther(const AfterFlow& now, const AfterFlow& good) {
    EXPECT_TRUE(now.ct == before_.ct || now.ct == good.ct) << "the controller keeps a half";
    for (std::size_t i = 0; i < now.pc.size(); ++i) {
      EXPECT_TRUE(now.pc[i] == before_.pc[i] || now.pc[i] == good.pc[i])
          << "half of field " << i << ": " << now.pc[i].substr(0, 60);
    }
    EXPECT_TRUE(GetParam().in_steps || now.pc == before_.pc || now.pc == good.pc) << "half taken";
    EXPECT_TRUE(now == good || boxes_ > 0) << "nobody is told";
  }

  AfterFlow before_;
  Texts sent_;
  std::size_t boxes_ = 0;
  bool bad_data_ = false;  ///< told of
};

TEST_P(FaultSweep, EveryFaultAtEveryLine) {
  const AfterFlow good = Try([](Trial&) {});
  const Texts lines = sent_;
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(Try([](Trial& trial) { trial.TakePort(); }), before_) << "without a port";
  EXPECT_GT(boxes_, 0u);
  for (std::size_t at = 1; at <= lines.size(); ++at) {
    if (!Counts(at, lines.size())) continue;
    SCOPED_TRACE("line " + std::to_string(at) + ": " + lines[at - 1]);
    const int n = static_cast<int>(at);
    ExpectOneOrTheOther(Try([&](Trial& trial) { trial.Spoil(FaultKind::kErrorReply, "", n); }),
                        good);
    // What may move is stopped all the same.
    EXPECT_TRUE(sent_.size() == at || sent_[at] == "0SP") << "sent after a refusal";
    ExpectOneOrTheOther(Try([&](Trial& trial) { trial.Spoil(FaultKind::kDeaf, lines[at - 1], 0); }),
                        good);
    EXPECT_GT(boxes_, 0u);
    const bool carries_data = lines[at - 1].starts_with("0W") && lines[at - 1].size() > 10;
    if (carries_data) {
      const AfterFlow misheard =
          Try([&](Trial& trial) { trial.Spoil(FaultKind::kChangedByte, lines[at - 1], 1, 3); });
      EXPECT_TRUE(misheard.ct == before_.ct || !bad_data_) << "stored all the same";
    }
    ExpectOneOrTheOther(Try([&](Trial& trial) { trial.DieAt(n); }), good);
    const FaultKind kind = kOnce[at % std::size(kOnce)];
    SCOPED_TRACE(qvr7sim::FaultName(kind));
    const AfterFlow now = Try([&](Trial& trial) { trial.Spoil(kind, "", n); });
    if (kind != FaultKind::kChangedByte) ExpectOneOrTheOther(now, good);
  }
}

INSTANTIATE_TEST_SUITE_P(Flows, FaultSweep, ::testing::ValuesIn(kFlows), [](const auto& info) {
  std::string name = info.param.name;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == ' ' || c == ','; }, '_');
  return name;
});

}  // namespace
}  // namespace tr7
