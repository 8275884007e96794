#include <kroui/base/KeyTable.h>
#include <kroui/ui/UI_Window.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;
using kroui::testing::LogNodePtr;
using Strings = std::vector<std::string>;

// root
//   panel (restricts Tab to its children when asked)
//     one, two, three
//   after
class UI_WindowFocus : public kroui::testing::WindowFixture<> {
protected:
  void SetUp() override {
    WindowFixture::SetUp();
    window = &MakeWindow();
    panel = Add(window->GetRoot(), "panel", {0, 0, 100, 100});
    one = Add(*panel, "one", {0, 0, 10, 10});
    two = Add(*panel, "two", {10, 0, 20, 10});
    three = Add(*panel, "three", {20, 0, 30, 10});
    after = Add(window->GetRoot(), "after", {100, 0, 150, 10});
    TakeLog();
  }

  std::string FocusName() const {
    const auto* node = static_cast<const kroui::testing::LogNode*>(window->GetFocusedNode());
    return node ? node->Name() : "none";
  }
  void Tab(ModifierKeys modifiers = {}) {
    Headless().TypeKey(kKey_Tab, modifiers);
    Pump();
  }

  UI_Window* window = nullptr;
  LogNodePtr panel, one, two, three, after;
};

TEST_F(UI_WindowFocus, MovingTheFocusTellsTheLoserFirst) {
  EXPECT_TRUE(one->SetFocus());
  EXPECT_TRUE(two->SetFocus());
  EXPECT_TRUE(two->HasFocus());
  EXPECT_TRUE(panel->ContainsFocus());
  EXPECT_FALSE(after->ContainsFocus());
  two->KillFocus();
  EXPECT_EQ(TakeLog(), (Strings{"one.SetFocus", "one.KillFocus", "two.SetFocus", "two.KillFocus"}));
  EXPECT_EQ(window->GetFocusedNode(), nullptr);
}

TEST_F(UI_WindowFocus, AHiddenDisabledOrDetachedNodeCannotTakeTheFocus) {
  one->Hide();
  two->Disable();
  LogNodePtr detached = krocore::MakeIntrusive<kroui::testing::LogNode>("detached", &log);
  TakeLog();
  EXPECT_FALSE(one->SetFocus());
  EXPECT_FALSE(two->SetFocus());
  EXPECT_FALSE(detached->SetFocus());
  EXPECT_EQ(TakeLog(), Strings{});
}

TEST_F(UI_WindowFocus, LosingVisibilityOrLeavingTheTreeDropsTheFocus) {
  three->SetFocus();
  panel->Hide();
  EXPECT_EQ(window->GetFocusedNode(), nullptr);
  panel->Show();
  after->SetFocus();
  after->RemoveFromParent();
  EXPECT_EQ(window->GetFocusedNode(), nullptr);
  EXPECT_EQ(TakeLog(), (Strings{"three.SetFocus", "three.KillFocus", "panel.Visibility", "one.Visibility",
                                "two.Visibility", "three.Visibility", "panel.Visibility", "one.Visibility",
                                "two.Visibility", "three.Visibility", "after.SetFocus", "after.KillFocus"}));
}

struct ChainCase {
  const char* label;
  const char* start;
  bool forward;
  bool panelWantsFocus;
  bool panelKeepsFocus;
  const char* skipped; // a node that does not want the focus, or null
  Strings expected;    // the focus after each of three Tabs
};

class UI_WindowFocusChain : public UI_WindowFocus, public testing::WithParamInterface<ChainCase> {};

TEST_P(UI_WindowFocusChain, TabWalksTheTreeInOrderAndWraps) {
  const ChainCase& c = GetParam();
  panel->wantsFocus = c.panelWantsFocus;
  panel->allowsFocusToAdvance = !c.panelKeepsFocus;
  for (const LogNodePtr& node : {one, two, three, after}) {
    if (c.skipped && node->Name() == c.skipped) node->wantsFocus = false;
  }
  if (std::string(c.start) != "none") {
    for (const LogNodePtr& node : {panel, one, two, three, after}) {
      if (node->Name() == c.start) node->SetFocus();
    }
  }
  Strings seen;
  for (int i = 0; i < 3; ++i) {
    Tab(c.forward ? ModifierKeys() : ModifierKeys(kModKey_Shift));
    seen.push_back(FocusName());
  }
  EXPECT_EQ(seen, c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Chains, UI_WindowFocusChain,
    testing::Values(ChainCase{"FromNobodyForward", "none", true, false, false, nullptr, {"one", "two", "three"}},
                    ChainCase{"WrapsAtTheEnd", "three", true, false, false, nullptr, {"after", "one", "two"}},
                    ChainCase{"ShiftTabGoesBack", "one", false, false, false, nullptr, {"after", "three", "two"}},
                    ChainCase{"AContainerThatWantsFocusComesFirst", "none", true, true, false, nullptr,
                              {"panel", "one", "two"}},
                    ChainCase{"ANodeThatDoesNotWantFocusIsSkipped", "one", true, false, false, "two",
                              {"three", "after", "one"}},
                    ChainCase{"TabStaysAmongTheChildrenOfAKeeper", "two", true, false, true, nullptr,
                              {"three", "one", "two"}},
                    ChainCase{"TheKeeperItselfStillAdvances", "panel", true, true, true, nullptr,
                              {"one", "two", "three"}}),
    [](const auto& row) { return std::string(row.param.label); });

TEST_F(UI_WindowFocus, DisabledAndHiddenSubtreesAreLeftOutOfTheChain) {
  panel->wantsFocus = false;
  panel->Disable();
  Tab();
  EXPECT_EQ(FocusName(), "after");
  panel->Enable();
  two->Hide();
  three->Disable();
  Tab();
  Tab();
  EXPECT_EQ(FocusName(), "after") << "one, then straight back to after";
  EXPECT_EQ(std::count(log.begin(), log.end(), "one.SetFocus"), 1);
}

struct RoadCase {
  const char* label;
  bool preTakes;
  bool nodeTakes;
  bool parentTakes;
  bool postTakes;
  Strings expected;
};

class UI_WindowKeyRoad : public UI_WindowFocus, public testing::WithParamInterface<RoadCase> {};

TEST_P(UI_WindowKeyRoad, TheWindowHooksSurroundTheFocusedNodeAndItsParents) {
  const RoadCase& c = GetParam();
  two->SetFocus();
  two->consumesKeys = c.nodeTakes;
  panel->consumesKeys = c.parentTakes;
  window->SetKeyboardPreDispatchHook([&](const KeyboardEvent& e) {
    if (e.GetAction() == KeyboardEvent::kAction_KeyDown) log.push_back("pre");
    return c.preTakes;
  });
  window->SetKeyboardPostDispatchHook([&](const KeyboardEvent& e) {
    if (e.GetAction() == KeyboardEvent::kAction_KeyDown) log.push_back("post");
    return c.postTakes;
  });
  TakeLog();
  Headless().SendKeyDown(kKey_K, kModKey_Control);
  Pump();
  EXPECT_EQ(TakeLog(), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Takers, UI_WindowKeyRoad,
                         testing::Values(RoadCase{"PreDispatchTakesIt", true, true, true, true, {"pre"}},
                                         RoadCase{"TheNodeTakesIt", false, true, true, true, {"pre", "two.KeyDown"}},
                                         RoadCase{"TheParentTakesWhatTheNodeDeclines", false, false, true, true,
                                                  {"pre", "two.KeyDown", "panel.KeyDown"}},
                                         RoadCase{"PostDispatchGetsWhatTheChainDeclines", false, false, false, true,
                                                  {"pre", "two.KeyDown", "panel.KeyDown", "post"}}),
                         [](const auto& row) { return std::string(row.param.label); });

TEST_F(UI_WindowFocus, TypingAKeySendsDownCharacterAndUpWithTheModifiersHeld) {
  two->SetFocus();
  two->consumesKeys = true; // so that the parent's share of the road stays out of the log
  TakeLog();
  ModifierKeys seenWhileDown;
  ModifierKeys seenAfterUp;
  window->SetKeyboardPreDispatchHook([&](const KeyboardEvent& e) {
    ModifierKeys& seen = e.GetAction() == KeyboardEvent::kAction_KeyUp ? seenAfterUp : seenWhileDown;
    seen = kroui::backend::GetBackend().GetModifierState();
    return false;
  });
  Headless().TypeKey(kKey_K, kModKey_Shift);
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"two.KeyDown", "two.Char:K", "two.KeyUp"}));
  EXPECT_EQ(seenWhileDown, ModifierKeys(kModKey_Shift));
  EXPECT_EQ(seenAfterUp, ModifierKeys(kModKey_Shift));
  EXPECT_EQ(Headless().GetModifierState(), ModifierKeys()) << "released once the events are handled";

  Headless().TypeKey(kKey_K, kModKey_Control);
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"two.KeyDown", "two.KeyUp"})) << "Ctrl+K types no character";
}

TEST_F(UI_WindowFocus, KeysGoToTheFocusedWindowOnly) {
  UI_Window& other = MakeWindow({400, 100, 500, 200});
  LogNodePtr field = Add(other.GetRoot(), "field", {0, 0, 50, 20});
  field->SetFocus();
  two->SetFocus();
  two->consumesKeys = true;
  TakeLog();
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), other.GetNativeWindow()) << "shown last, so active";
  Headless().TypeText(U"ab");
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"field.Char:a", "field.Char:b"}));
  EXPECT_TRUE(other.IsActive());
  EXPECT_FALSE(window->IsActive());

  Headless().MoveMouseTo(window->GetNativeWindow(), {150, 50});
  Headless().Click(); // clicking activates
  Headless().TypeText(U"c");
  Pump();
  EXPECT_TRUE(window->IsActive());
  EXPECT_EQ(TakeLog().back(), "two.Char:c");
}

} // namespace
