#include <kroui/ui/UI_Container.h>

#include <krocore/debug/Assert.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;
using kroui::testing::LogNode;
using kroui::testing::LogNodePtr;

class UI_NodeTree : public testing::Test {
protected:
  LogNodePtr Make(const std::string& name) { return krocore::MakeIntrusive<LogNode>(name, &log); }
  LogNodePtr Add(UI_Container& parent, const std::string& name, Rect bounds) {
    LogNodePtr node = Make(name);
    parent.InsertChild(node, bounds);
    return node;
  }
  std::vector<std::string> log;
};

TEST_F(UI_NodeTree, InsertingMovesAChildOutOfItsOldParentAndTheTreeOwnsIt) {
  LogNodePtr first = Make("first");
  LogNodePtr second = Make("second");
  LogNodePtr child = Add(*first, "child", {1, 2, 11, 22});
  EXPECT_EQ(child->GetRefCount(), 2u) << "the test's pointer and the parent's";

  ASSERT_TRUE(second->InsertChild(child, {5, 5, 10, 10}));
  EXPECT_EQ(first->GetChildCount(), 0u);
  EXPECT_EQ(child->GetParent(), second.Get());
  EXPECT_EQ(child->GetBounds(), (Rect{5, 5, 10, 10}));
  EXPECT_EQ(child->GetRefCount(), 2u);

  UI_Node* raw = child.Get();
  child.Reset();
  EXPECT_EQ(second->GetChildAt(0), raw) << "the parent keeps it alive";
  second->RemoveChild(*raw);
  EXPECT_EQ(second->GetChildCount(), 0u);
}

TEST_F(UI_NodeTree, ANodeCannotBeInsertedIntoItsOwnSubtree) {
  LogNodePtr root = Make("root");
  LogNodePtr inner = Add(*root, "inner", {0, 0, 10, 10});
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_FALSE(inner->InsertChild(root, {0, 0, 1, 1}));
  EXPECT_FALSE(root->InsertChild(root, {0, 0, 1, 1}));
  EXPECT_EQ(recorder.Count(), 2u);
  EXPECT_EQ(root->GetParent(), nullptr);
}

TEST_F(UI_NodeTree, ChildrenSurviveTheirParentDetached) {
  LogNodePtr child = Make("child");
  {
    LogNodePtr parent = Make("parent");
    parent->InsertChild(child, {0, 0, 5, 5});
  }
  EXPECT_EQ(child->GetParent(), nullptr);
  EXPECT_EQ(child->GetRefCount(), 1u);
}

TEST_F(UI_NodeTree, ZOrderDecidesWhichOverlappingChildIsHit) {
  LogNodePtr root = Make("root");
  root->SetBounds({0, 0, 100, 100});
  LogNodePtr low = Add(*root, "low", {0, 0, 50, 50});
  LogNodePtr high = Add(*root, "high", {0, 0, 50, 50});
  LogNodePtr bottom = Make("bottom");
  root->InsertChild(bottom, {0, 0, 50, 50}, 0);
  EXPECT_EQ(root->IndexOf(*bottom), 0u);
  EXPECT_EQ(root->HitTest({10, 10}), high.Get());

  root->BringToFront(*low);
  EXPECT_EQ(root->HitTest({10, 10}), low.Get());
  root->SendToBack(*low);
  EXPECT_EQ(root->GetChildAt(0), low.Get());
  EXPECT_EQ(root->HitTest({10, 10}), high.Get());
}

struct HitCase {
  const char* label;
  Point point;
  const char* expected; // null: nothing is hit
};

class UI_NodeHitTest : public UI_NodeTree, public testing::WithParamInterface<HitCase> {};

// root 0..100; panel 10..60 holding button 5..25 (in panel coordinates) and an
// empty node; a hidden node over the panel; a child drawn outside a non-clipping node.
TEST_P(UI_NodeHitTest, FindsTheDeepestVisibleNode) {
  LogNodePtr root = Make("root");
  root->SetBounds({0, 0, 100, 100});
  LogNodePtr panel = Add(*root, "panel", {10, 10, 60, 60});
  Add(*panel, "button", {5, 5, 25, 25});
  Add(*panel, "empty", {30, 30, 30, 40});
  LogNodePtr hidden = Add(*root, "hidden", {10, 10, 60, 60});
  hidden->Hide();
  LogNodePtr loose = Add(*root, "loose", {70, 70, 80, 80});
  loose->SetClipToSelf(false);
  Add(*loose, "outside", {15, 15, 25, 25});

  const UI_Node* hit = root->HitTest(GetParam().point);
  const char* name = hit ? static_cast<const LogNode*>(hit)->Name().c_str() : nullptr;
  if (GetParam().expected == nullptr) {
    EXPECT_EQ(hit, nullptr) << name;
  } else {
    ASSERT_NE(hit, nullptr);
    EXPECT_STREQ(name, GetParam().expected);
  }
}

INSTANTIATE_TEST_SUITE_P(Points, UI_NodeHitTest,
                         testing::Values(HitCase{"ButtonTopLeft", {15, 15}, "button"},
                                         HitCase{"ButtonRightEdgeIsOutside", {35, 20}, "panel"},
                                         HitCase{"ButtonBottomEdgeIsOutside", {20, 35}, "panel"},
                                         HitCase{"EmptyNodeNeverHits", {40, 40}, "panel"},
                                         HitCase{"PanelRightEdgeIsOutside", {60, 30}, "root"},
                                         HitCase{"OutsideRoot", {100, 5}, nullptr},
                                         HitCase{"ChildOutsideANonClippingParent", {90, 90}, "outside"},
                                         HitCase{"NonClippingParentItself", {75, 75}, "loose"}),
                         [](const auto& row) { return std::string(row.param.label); });

struct BindingCase {
  const char* label;
  LayoutBinding binding;
  Rect before; // in a 100x100 parent that becomes 200x150
  Rect after;
};

class UI_NodeLayoutBinding : public UI_NodeTree, public testing::WithParamInterface<BindingCase> {};

TEST_P(UI_NodeLayoutBinding, FollowsTheParentsResize) {
  LogNodePtr parent = Make("parent");
  parent->SetBounds({0, 0, 100, 100});
  LogNodePtr child = Add(*parent, "child", GetParam().before);
  child->SetLayoutBinding(GetParam().binding);
  EXPECT_EQ(child->GetLayoutBinding(), GetParam().binding);
  log.clear();

  parent->Resize({200, 150});
  EXPECT_EQ(child->GetBounds(), GetParam().after);
  const bool moved = GetParam().before != GetParam().after;
  EXPECT_EQ(std::count(log.begin(), log.end(), "child.Bounds"), moved ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Bindings, UI_NodeLayoutBinding,
    testing::Values(
        BindingCase{"TopLeftStays", {true, true, false, false, false, false}, {10, 10, 30, 30}, {10, 10, 30, 30}},
        BindingCase{"BothHorizontalEdgesStretch", {true, true, true, false, false, false}, {10, 10, 90, 30},
                    {10, 10, 190, 30}},
        BindingCase{"AllEdgesStretch", {true, true, true, true, false, false}, {10, 10, 90, 90}, {10, 10, 190, 140}},
        BindingCase{"RightAndBottomOnlyMoveAlong", {false, false, true, true, false, false}, {70, 70, 90, 90},
                    {170, 120, 190, 140}},
        BindingCase{"ProportionalScalesPositionAndSize", {true, true, false, false, true, true}, {10, 20, 30, 40},
                    {20, 30, 60, 60}}),
    [](const auto& row) { return std::string(row.param.label); });

TEST_F(UI_NodeTree, HidingAnAncestorHidesTheSubtreeAndTellsEveryNode) {
  LogNodePtr root = Make("root");
  LogNodePtr panel = Add(*root, "panel", {0, 0, 50, 50});
  LogNodePtr button = Add(*panel, "button", {0, 0, 10, 10});
  panel->Hide();
  EXPECT_TRUE(button->IsShown());
  EXPECT_FALSE(button->IsVisible());
  EXPECT_TRUE(root->IsVisible());
  EXPECT_EQ(log, (std::vector<std::string>{"panel.Visibility", "button.Visibility"}));
  panel->Hide();
  EXPECT_EQ(log.size(), 2u) << "hiding what is hidden changes nothing";
  panel->Show();
  EXPECT_TRUE(button->IsVisible());
}

TEST_F(UI_NodeTree, DisablingAnAncestorDisablesTheSubtree) {
  LogNodePtr root = Make("root");
  LogNodePtr panel = Add(*root, "panel", {0, 0, 50, 50});
  LogNodePtr button = Add(*panel, "button", {0, 0, 10, 10});
  root->Disable();
  EXPECT_TRUE(button->IsEnabled());
  EXPECT_FALSE(button->IsEnabledThroughAncestors());
  root->Enable();
  EXPECT_TRUE(button->IsEnabledThroughAncestors());
}

TEST_F(UI_NodeTree, AWeakReferenceNeverKeepsTheNodeAlive) {
  LogNodePtr node = Make("node");
  RefCountedWeakPtr<LogNode> weak(node);
  RefCountedWeakPtr<UI_Node> base = weak;
  EXPECT_EQ(weak.Lock().Get(), node.Get());
  EXPECT_EQ(node->GetRefCount(), 1u) << "locking returned a temporary";
  node.Reset();
  EXPECT_TRUE(weak.IsExpired());
  EXPECT_EQ(weak.Lock(), nullptr);
  EXPECT_EQ(base.Lock(), nullptr);
}

TEST_F(UI_NodeTree, ParentCoordinatesConvertWithoutAWindow) {
  LogNodePtr root = Make("root");
  LogNodePtr panel = Add(*root, "panel", {10, 20, 60, 70});
  LogNodePtr button = Add(*panel, "button", {5, 6, 15, 16});
  EXPECT_EQ(button->LocalToWindow(Point{1, 1}), (Point{16, 27}));
  EXPECT_EQ(button->WindowToLocal(Point{16, 27}), (Point{1, 1}));
  EXPECT_EQ(button->LocalToScreen(Point{0, 0}), (Point{15, 26})) << "detached: as if the window were at 0,0";
  EXPECT_EQ(button->GetWindow(), nullptr);
}

} // namespace
