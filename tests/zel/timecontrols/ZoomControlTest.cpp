#include "ZoomTestSupport.h"

#include <zel/timecontrols/ZoomControl.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;

constexpr int kZoomIn = 701;
constexpr int kZoomOut = 702;

// A control 120x20 at 10,10 in the window: zoom out from 10 to 30, the
// position between, zoom in from 110 to 130. Its commander is the root view.
class ZoomControlTest : public ZELTest::ZoomFixture {
protected:
  void SetUp() override {
    ZoomFixture::SetUp();
    control = std::make_shared<ZEL::ZoomControl>(root);
    ASSERT_TRUE(control->Create(root, {10, 10, 130, 30}, 5, true));
    control->SetCommandIDs(kZoomIn, kZoomOut);
    control->SetPosition(3, 5);
    root->obeys = {kZoomIn, kZoomOut};
    listener.SubscribeTo(control->GetStationID());
    Pump();
    TakeLog();
  }
  void TearDown() override {
    control.reset();
    ZoomFixture::TearDown();
  }
  void ClickIn() { ClickAt(120, 20); }
  void ClickOut() { ClickAt(20, 20); }
  /// What the root obeyed, from the log.
  Strings Obeyed() {
    Strings obeyed;
    for (const std::string& entry : TakeLog()) {
      if (entry.starts_with("root:obey")) obeyed.push_back(entry);
    }
    return obeyed;
  }

  std::shared_ptr<ZEL::ZoomControl> control;
  ZELTest::ZoomListener listener{5};
};

TEST_F(ZoomControlTest, AClickPostsTheButtonsCommandUpTheChainAndBroadcastsTheStep) {
  ClickIn();
  EXPECT_EQ(Obeyed(), (Strings{"root:obey 701"}));
  EXPECT_EQ(listener.Take(), (Strings{"changed 4/5"}));
  ClickOut();
  ClickOut();
  EXPECT_EQ(Obeyed(), (Strings{"root:obey 702", "root:obey 702"}));
  EXPECT_EQ(listener.Take(), (Strings{"changed 3/5", "changed 2/5"}));
  unsigned int position = 0, maximum = 0;
  control->GetPosition(position, maximum);
  EXPECT_EQ(position, 2u);
  EXPECT_EQ(maximum, 5u);
}

TEST_F(ZoomControlTest, AButtonAtItsEndOfTheLevelsDoesNothing) {
  control->SetPosition(5, 5);
  ClickIn();
  EXPECT_TRUE(Obeyed().empty());
  control->SetPosition(0, 5);
  ClickOut();
  EXPECT_TRUE(Obeyed().empty());
  EXPECT_TRUE(listener.Take().empty());
}

TEST_F(ZoomControlTest, WithoutLevelsAClickOnlyPosts) {
  control->SetPosition(0, 0);
  ClickIn();
  ClickOut();
  EXPECT_EQ(Obeyed(), (Strings{"root:obey 701", "root:obey 702"}));
  EXPECT_TRUE(listener.Take().empty());
}

TEST_F(ZoomControlTest, AReleaseOffTheButtonCancelsTheClick) {
  MoveTo(120, 20);
  Press();
  MoveTo(60, 20);
  Release();
  EXPECT_TRUE(Obeyed().empty());
  EXPECT_TRUE(listener.Take().empty());
}

TEST_F(ZoomControlTest, APositionBeyondTheLevelsIsHeldAtTheEnd) {
  control->SetPosition(9, 4);
  unsigned int position = 0, maximum = 0;
  control->GetPosition(position, maximum);
  EXPECT_EQ(position, 4u);
  EXPECT_EQ(maximum, 4u);
  EXPECT_TRUE(listener.Take().empty()) << "code sets the position quietly";
}

TEST_F(ZoomControlTest, WithoutThePositionTheButtonsShareTheWidth) {
  auto pair = std::make_shared<ZEL::ZoomControl>(root);
  ASSERT_TRUE(pair->Create(root, {10, 100, 70, 120}, 5, false));
  pair->SetCommandIDs(kZoomIn, kZoomOut);
  ClickAt(50, 110); // the right half
  EXPECT_EQ(Obeyed(), (Strings{"root:obey 701"}));
}

TEST_F(ZoomControlTest, BeforeCreationItReportsAndACreatedOneCannotBeCreatedAgain) {
  ZEL::ZoomControl idle(ZEL::CommanderWeakPtr{});
  krocore::debug::ScopedAssertionRecorder recorder;
  idle.SetCommandIDs(1, 2);
  idle.SetPosition(1, 2);
  unsigned int position = 7, maximum = 7;
  idle.GetPosition(position, maximum);
  EXPECT_EQ(position + maximum, 0u);
  EXPECT_TRUE(idle.GetStationID().IsEmpty());
  ASSERT_EQ(recorder.Count(), 4u);
  for (const auto& report : recorder.Reports()) EXPECT_EQ(report.message, "ZoomControl has not been initialized");
  EXPECT_EQ(recorder.Reports()[0].operation, "ZEL::ZoomControl::SetCommandIDs");

  recorder.Clear();
  EXPECT_FALSE(control->Create(root, {0, 0, 50, 20}, 1, true));
  ASSERT_EQ(recorder.Count(), 1u);
  EXPECT_EQ(recorder.Reports()[0].message, "ZoomControl has already been initialized");
}

} // namespace
