#include "RecordingCommander.h"

#include <zel/commands/CommandHandler.h>

#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThreadQueue.h>
#include <kroscripting/events/Event.h>
#include <kroscripting/events/EventListenerToken.h>

#include <gtest/gtest.h>

using ZEL::Commander;
using ZELTest::RecordingCommander;

namespace {

class CommanderTest : public testing::Test {
protected:
  void SetUp() override {
    mApp = RecordingCommander::Make("App", {}, mLog);
    mPanel = RecordingCommander::Make("P", mApp, mLog);
    mA = RecordingCommander::Make("A", mPanel, mLog);
    mB = RecordingCommander::Make("B", mPanel, mLog);
  }
  void TearDown() override {
    Commander::SetTarget({});
    ZEL::CommandHandler::SetGlobalCommandFilter({});
    krocore::threads::MainThreadQueue::Instance().Clear();
  }

  void Target(const std::shared_ptr<RecordingCommander>& c) {
    Commander::SetTarget(c);
    mLog.clear();
  }

  std::vector<std::string> mLog;
  std::shared_ptr<RecordingCommander> mApp, mPanel, mA, mB;
};

TEST_F(CommanderTest, CommandTravelsUpUntilSomeoneObeysIt) {
  mApp->Handle(7);
  mPanel->Handle(7);
  Target(mA);
  EXPECT_TRUE(mA->PostCommand(7));
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:obey 7", "P:obey 7"})) << "nothing above the handler is asked";
  EXPECT_FALSE(mA->PostCommand(8));
  EXPECT_EQ(mLog.back(), "App:obey 8");
}

TEST_F(CommanderTest, PostingQueuesAScriptingEventAnnouncingTheCommand) {
  std::vector<std::int64_t> announced;
  auto token = kroscripting::events::AddEventListener(
      "ZELCommandEvent", [&](const kroscripting::events::Event& event) {
        if (auto* id = event.payload.GetIf<std::int64_t>("commandID")) announced.push_back(*id);
      });
  mA->PostCommand(42);
  EXPECT_TRUE(announced.empty()) << "the event is delivered later, not during the post";
  krocore::threads::DrainMainThreadQueue();
  EXPECT_EQ(announced, std::vector<std::int64_t>{42});
}

TEST_F(CommanderTest, StatusStopsAtTheFirstAnswerAndTheFilterGoesFirst) {
  mPanel->Answer(5, false);
  mApp->Answer(5, true);
  bool enabled = true, checked = true;
  ZEL::MenuMark mark = ZEL::MenuMark::None;
  ZEL::UTF8String text;
  EXPECT_TRUE(mA->GetCommandStatus(mA, 5, enabled, checked, mark, text));
  EXPECT_FALSE(enabled);
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:status 5", "P:status 5"}));

  mLog.clear();
  ZEL::CommandHandler::SetGlobalCommandFilter([](int id, bool& on, bool&, ZEL::MenuMark&, ZEL::UTF8String&,
                                                 const ZEL::CommanderWeakPtr&) {
    if (id != 5) return false;
    on = true;
    return true;
  });
  EXPECT_TRUE(mA->GetCommandStatus(mA, 5, enabled, checked, mark, text));
  EXPECT_TRUE(enabled);
  EXPECT_TRUE(mLog.empty()) << "no commander is asked about a filtered command";
  EXPECT_FALSE(mA->GetCommandStatus(mA, 6, enabled, checked, mark, text));
  EXPECT_FALSE(enabled) << "flags start false for an unanswered question";
}

TEST_F(CommanderTest, MovingBetweenSiblingsNotifiesOnlyTheSiblings) {
  Target(mA);
  Commander::SetTarget(mB);
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:off", "B:on"}));
  EXPECT_TRUE(mB->IsTarget());
  EXPECT_TRUE(mPanel->IsOnDuty());
  EXPECT_FALSE(mA->IsOnDuty());
}

TEST_F(CommanderTest, FirstTargetPutsTheWholeChainOnDutyBottomUp) {
  Commander::SetTarget(mA);
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:on", "P:on", "App:on"}));
  mLog.clear();
  Commander::SetTarget({});
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:off", "P:off", "App:off"}));
  EXPECT_EQ(Commander::GetTarget(), nullptr);
}

TEST_F(CommanderTest, SwitchToTheSameTargetIsSilentButForcingRunsTheWalks) {
  Target(mA);
  EXPECT_TRUE(Commander::SwitchTarget(mA));
  EXPECT_TRUE(mLog.empty());
  Commander::ForceTargetSwitch(mA);
  EXPECT_TRUE(mLog.empty()) << "both walks stop at once: the common commander is the target itself";
  EXPECT_TRUE(Commander::SwitchTarget(mB));
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:off", "B:on"}));
}

TEST_F(CommanderTest, ReparentingAnOnDutyCommanderLeavesTheTargetAtItsOldSuper) {
  auto other = RecordingCommander::Make("O", mApp, mLog);
  Target(mA);
  mA->SetSuperCommander(other);
  EXPECT_EQ(Commander::GetTarget(), mPanel);
  EXPECT_EQ(mLog, (std::vector<std::string>{"A:off"}));
  EXPECT_EQ(mA->GetSuperCommander(), other);
  mLog.clear();
  mB->SetSuperCommander(mPanel); // the same link: nothing happens
  EXPECT_TRUE(mLog.empty());
}

TEST_F(CommanderTest, DestroyingTheTargetHandsItToTheSuperWithoutRenotifying) {
  Target(mA);
  mA.reset();
  EXPECT_EQ(Commander::GetTarget(), mPanel);
  EXPECT_TRUE(mLog.empty()) << "the panel stays on duty throughout";
  EXPECT_TRUE(mPanel->IsTarget());
  mApp->Handle(3);
  EXPECT_TRUE(ZEL::PostCommand(3, true));
}

TEST_F(CommanderTest, DestroyingARootTargetEmptiesTheTarget) {
  auto lone = RecordingCommander::Make("L", {}, mLog);
  Target(lone);
  lone.reset();
  EXPECT_EQ(Commander::GetTarget(), nullptr);
  EXPECT_FALSE(ZEL::PostCommand(1, true));
}

TEST_F(CommanderTest, FreePostCommandAsksStatusUnlessForced) {
  mA->Handle(9);
  Target(mA);
  mPanel->Answer(9, false);
  EXPECT_FALSE(ZEL::PostCommand(9, false));
  EXPECT_TRUE(mA->Obeyed().empty()) << "a disabled command is never obeyed";
  mPanel->Answer(9, true);
  EXPECT_TRUE(ZEL::PostCommand(9, false));
  ASSERT_EQ(mA->Obeyed().size(), 1u);
  EXPECT_EQ(mA->Obeyed()[0].GetPhase(), ZEL::CommandPhase::None);
  EXPECT_EQ(mA->Obeyed()[0].GetUIPathToAccess(), krocore::utility::ImmutableString("via:command"));
  EXPECT_FALSE(ZEL::PostCommand(10, false)) << "an unanswered command counts as disabled";
  EXPECT_TRUE(ZEL::PostCommand(10, true) == false && mA->Obeyed().size() == 2u) << "forced: posted, not handled";
}

TEST_F(CommanderTest, ACommanderThatThrowsIsContainedAndReportsUnhandled) {
  struct Throwing : Commander {
    using Commander::Commander;
    bool ObeyCommand(const ZEL::Command&) override { throw std::runtime_error("no media"); }
  };
  krocore::debug::ScopedAssertionRecorder recorder;
  auto throwing = std::make_shared<Throwing>(mApp);
  EXPECT_FALSE(throwing->PostCommand(1));
  EXPECT_TRUE(recorder.Contains("Exception escaped a top-level task: no media"));
}

TEST(Command, ConstructorsFillPhasePathAndStamp) {
  const auto before = std::chrono::steady_clock::now();
  const ZEL::Command byID(1);
  EXPECT_EQ(byID.GetPhase(), ZEL::CommandPhase::None);
  EXPECT_EQ(byID.GetUIPathToAccess().View(), "via:command");
  EXPECT_GE(byID.GetTimeStamp(), before);
  const ZEL::Command withPath(2, "menu:edit");
  EXPECT_EQ(withPath.GetUIPathToAccess().View(), "menu:edit");
  const ZEL::Command withPhase(3, ZEL::CommandPhase::Engaged);
  EXPECT_EQ(withPhase.GetPhase(), ZEL::CommandPhase::Engaged);
  const auto stamp = std::chrono::steady_clock::time_point(std::chrono::seconds(5));
  const ZEL::Command stamped(4, ZEL::CommandPhase::Disengaged, stamp);
  EXPECT_EQ(stamped.GetTimeStamp(), stamp);
  EXPECT_EQ(stamped.GetUIPathToAccess().View(), "via:command");
}

} // namespace
