#include "ZoomTestSupport.h"

#include <zel/timecontrols/AudioZoomBarControl.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;

// A bar 12x200 at 200,10 in the window: a pixel is 0.005 of the scale, full scale at the top.
class AudioZoomBarControlTest : public ZELTest::ZoomFixture {
protected:
  void SetUp() override {
    ZoomFixture::SetUp();
    control = std::make_shared<ZEL::AudioZoomBarControl>(root);
    ASSERT_TRUE(control->Create(root, {200, 10, 200 + ZEL::AudioZoomBarControl::GetDefaultWidth(), 210}, 3));
    listener.SubscribeTo(control->GetStationID());
    Pump();
  }
  void TearDown() override {
    control.reset();
    ZoomFixture::TearDown();
  }
  /// Points at `y` pixels down the bar.
  void MoveDown(int y) { MoveTo(206, 10 + y); }
  std::string Window() const {
    char text[32];
    std::snprintf(text, sizeof text, "%.3f-%.3f", control->GetValueMin(), control->GetValueMax());
    return text;
  }

  std::shared_ptr<ZEL::AudioZoomBarControl> control;
  ZELTest::ZoomListener listener{3};
};

TEST_F(AudioZoomBarControlTest, ItShowsTheWholeScaleWithinDocumentedLimitsByDefault) {
  EXPECT_EQ(Window(), "0.000-1.000");
  EXPECT_FLOAT_EQ(control->GetZoomInValue(), 1.f / 64.f);
  EXPECT_FLOAT_EQ(control->GetZoomOutValue(), 1.f);
  EXPECT_EQ(ZEL::AudioZoomBarControl::GetDefaultWidth(), 12);
  EXPECT_FALSE(control->IsZooming());
}

TEST_F(AudioZoomBarControlTest, DraggingTheTopEdgeZoomsAndIsBroadcast) {
  control->SetValueMax(0.5f); // the thumb from 100 to 200
  MoveDown(104);
  Press();
  MoveDown(64); // 40 pixels up: 0.2 more of the scale
  EXPECT_TRUE(control->IsZooming());
  EXPECT_EQ(Window(), "0.000-0.700");
  Release();
  EXPECT_FALSE(control->IsZooming());
  EXPECT_EQ(listener.Take(), (Strings{"audio changing 0.00-0.70", "audio changed 0.00-0.70"}));
}

TEST_F(AudioZoomBarControlTest, TheZoomOutValueStopsTheWindowFromWidening) {
  control->SetValueMax(0.4f);
  control->SetZoomOutValue(0.5f);
  MoveDown(124); // the top edge, at 120
  Press();
  MoveDown(4);
  Release();
  EXPECT_EQ(Window(), "0.000-0.500") << "the bottom edge stays, the top stops at the widest";
  control->SetZoomOutValue(0.2f);
  EXPECT_EQ(Window(), "0.150-0.350") << "a narrower limit closes the window about its centre";
  EXPECT_FLOAT_EQ(control->GetZoomInValue(), 1.f / 64.f);
}

TEST_F(AudioZoomBarControlTest, TheZoomInValueKeepsTheEndsApart) {
  control->SetZoomInValue(0.25f);
  control->SetValueMax(0.5f);
  control->SetValueMin(0.9f); // past the maximum: stops short of it
  EXPECT_EQ(Window(), "0.250-0.500");
  control->SetZoomInValue(0.5f);
  EXPECT_EQ(Window(), "0.125-0.625");
  EXPECT_TRUE(listener.Take().empty()) << "code changes the window quietly";
}

TEST_F(AudioZoomBarControlTest, BeforeCreationItReportsAndAnswersZero) {
  ZEL::AudioZoomBarControl idle(ZEL::CommanderWeakPtr{});
  krocore::debug::ScopedAssertionRecorder recorder;
  idle.SetValueMin(0.2f);
  EXPECT_EQ(idle.GetValueMax(), 0.f);
  EXPECT_FALSE(idle.IsZooming());
  EXPECT_TRUE(idle.GetStationID().IsEmpty());
  ASSERT_EQ(recorder.Count(), 4u);
  for (const auto& report : recorder.Reports()) {
    EXPECT_EQ(report.message, "AudioZoomBarControl has not been initialized");
  }
  EXPECT_EQ(recorder.Reports()[0].operation, "ZEL::AudioZoomBarControl::SetValueMin");
}

} // namespace
