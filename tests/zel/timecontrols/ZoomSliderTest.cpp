#include "ZoomTestSupport.h"

#include <zel/timecontrols/ZoomSlider.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;

// A slider 120x20 at 10,100 in the window over levels 0 to 8: the knob's
// centre travels 112 pixels from 4 to 116, 14 a level; level 2 lies at x 42.
class ZoomSliderTest : public ZELTest::ZoomFixture {
protected:
  void SetUp() override {
    ZoomFixture::SetUp();
    slider = std::make_shared<ZEL::ZoomSlider>(root);
    ASSERT_TRUE(slider->Create(root, {10, 100, 130, 120}, 9));
    slider->SetPosition(2, 8);
    listener.SubscribeTo(slider->GetStationID());
    Pump();
  }
  void TearDown() override {
    slider.reset();
    ZoomFixture::TearDown();
  }
  unsigned int Position() const {
    unsigned int position = 0, maximum = 0;
    slider->GetPosition(position, maximum);
    return position;
  }

  std::shared_ptr<ZEL::ZoomSlider> slider;
  ZELTest::ZoomListener listener{9};
};

TEST_F(ZoomSliderTest, DraggingTheKnobBroadcastsEachLevelAndTheEnd) {
  MoveTo(44, 110); // 2 pixels right of the knob's centre
  Press();
  MoveTo(58, 110);
  MoveTo(60, 110); // still level 3: no message
  MoveTo(500, 110);
  Release();
  EXPECT_EQ(Position(), 8u);
  EXPECT_EQ(listener.Take(), (Strings{"changing 3/8", "changing 8/8", "changed 8/8"}));
}

TEST_F(ZoomSliderTest, PressingTheTrackBringsTheKnob) {
  MoveTo(10 + 4 + 14 * 7 + 3, 110);
  Press();
  Release();
  EXPECT_EQ(Position(), 7u);
  EXPECT_EQ(listener.Take(), (Strings{"changing 7/8", "changed 7/8"}));
}

TEST_F(ZoomSliderTest, ANotchOfTheWheelIsALevel) {
  MoveTo(80, 110);
  Headless().Wheel(0, 120);
  Pump();
  Headless().Wheel(0, -240);
  Pump();
  EXPECT_EQ(Position(), 1u);
  EXPECT_EQ(listener.Take(), (Strings{"changed 3/8", "changed 1/8"}));
}

TEST_F(ZoomSliderTest, AReleaseWhereThePressBeganBroadcastsNothing) {
  MoveTo(42, 110);
  Press();
  MoveTo(90, 110);
  MoveTo(42, 110);
  Release();
  EXPECT_EQ(listener.Take(), (Strings{"changing 5/8", "changing 2/8"}));
}

TEST_F(ZoomSliderTest, BeforeCreationItReports) {
  ZEL::ZoomSlider idle(ZEL::CommanderWeakPtr{});
  krocore::debug::ScopedAssertionRecorder recorder;
  idle.SetPosition(1, 2);
  EXPECT_TRUE(idle.GetStationID().IsEmpty());
  ASSERT_EQ(recorder.Count(), 2u);
  for (const auto& report : recorder.Reports()) EXPECT_EQ(report.message, "ZoomSlider has not been initialized");
  EXPECT_EQ(recorder.Reports()[0].operation, "ZEL::ZoomSlider::SetPosition");
}

} // namespace
