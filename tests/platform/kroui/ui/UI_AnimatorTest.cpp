#include <kroui/ui/UI_Animator.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;

class UI_AnimatorTest : public kroui::testing::HeadlessFixture<> {
protected:
  void Run(std::int64_t ms) { EventLoop::Instance().RunFor(ms); }
  UI_Animator animator;
  std::vector<float> values;
  std::vector<bool> ends;
  UI_Animator::ApplyFunction Record() {
    return [this](float value) { values.push_back(value); };
  }
  UI_Animator::DoneFunction RecordEnd() {
    return [this](bool finished) { ends.push_back(finished); };
  }
};

TEST_F(UI_AnimatorTest, StepsOnTheEventLoopClockAndEndsExactlyAtTheTarget) {
  animator.Animate(1, 0.f, 100.f, 100, Record(), &UI_Animator::Linear, RecordEnd());
  ASSERT_EQ(values.size(), 1u);
  EXPECT_EQ(values.front(), 0.f) << "the start value at once";
  Run(112); // the first frame after the end
  ASSERT_FALSE(values.empty());
  EXPECT_EQ(values.size(), 8u) << "every 16 ms, then the end value";
  EXPECT_FLOAT_EQ(values[1], 16.f);
  EXPECT_EQ(values.back(), 100.f);
  EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
  EXPECT_EQ(ends, std::vector<bool>{true});
  EXPECT_EQ(animator.GetAnimationCount(), 0u);
  EXPECT_EQ(EventLoop::Instance().GetTimers().GetCount(), 0u) << "the frame timer stops with the last animation";
}

TEST_F(UI_AnimatorTest, ANewAnimationUnderTheSameIdentifierReplacesTheOld) {
  animator.Animate(1, 0.f, 10.f, 100, Record(), &UI_Animator::Linear, RecordEnd());
  animator.Animate(1, 50.f, 60.f, 100, Record(), &UI_Animator::Linear, RecordEnd());
  EXPECT_EQ(ends, std::vector<bool>{false});
  EXPECT_EQ(animator.GetAnimationCount(), 1u);
  EXPECT_TRUE(animator.Stop(1, true));
  EXPECT_EQ(values.back(), 60.f);
  EXPECT_EQ(ends, (std::vector<bool>{false, true}));
  EXPECT_FALSE(animator.Stop(1));
}

TEST_F(UI_AnimatorTest, AZeroDurationAppliesTheEndAtOnce) {
  animator.Animate(3, 0.f, 1.f, 0, Record(), &UI_Animator::EaseInOut, RecordEnd());
  EXPECT_EQ(values, std::vector<float>{1.f});
  EXPECT_EQ(ends, std::vector<bool>{true});
  EXPECT_FALSE(animator.IsAnimating(3));
}

TEST_F(UI_AnimatorTest, ANodesAnimatorIsMadeOnceAndKept) {
  auto node = krocore::MakeIntrusive<UI_Container>();
  const std::shared_ptr<UI_Animator> first = node->Animator();
  EXPECT_EQ(node->Animator(), first);
  first->Animate(1, 0.f, 1.f, 50, {});
  node.Reset();
  EXPECT_EQ(first->GetAnimationCount(), 1u) << "whoever holds the animator keeps it";
}

struct EasingCase {
  const char* label;
  UI_Animator::Easing easing;
  float half;
};

class UI_AnimatorEasing : public testing::TestWithParam<EasingCase> {};

TEST_P(UI_AnimatorEasing, RunsFromZeroToOne) {
  EXPECT_FLOAT_EQ(GetParam().easing(0.f), 0.f);
  EXPECT_FLOAT_EQ(GetParam().easing(1.f), 1.f);
  EXPECT_FLOAT_EQ(GetParam().easing(0.5f), GetParam().half);
  EXPECT_LT(GetParam().easing(0.25f), GetParam().easing(0.75f));
}

INSTANTIATE_TEST_SUITE_P(Curves, UI_AnimatorEasing,
                         testing::Values(EasingCase{"Linear", &UI_Animator::Linear, 0.5f},
                                         EasingCase{"EaseIn", &UI_Animator::EaseIn, 0.25f},
                                         EasingCase{"EaseOut", &UI_Animator::EaseOut, 0.75f},
                                         EasingCase{"EaseInOut", &UI_Animator::EaseInOut, 0.5f}),
                         [](const auto& row) { return std::string(row.param.label); });

} // namespace
