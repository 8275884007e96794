#include <kroui/ui/UI_Container.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace kroui::ui;
using kroui::testing::LogNode;
using kroui::testing::LogNodePtr;

class UI_ContainerRemoval : public testing::Test {
protected:
  void SetUp() override {
    parent = krocore::MakeIntrusive<LogNode>("parent", &log);
    parent->SetBounds({0, 0, 100, 100});
    for (int i = 0; i < 6; ++i) {
      children.push_back(krocore::MakeIntrusive<LogNode>("c" + std::to_string(i), &log));
      parent->InsertChild(children.back(), {0, 0, 50, 50});
    }
  }
  /// The children in z-order, as indices into `children`.
  std::vector<int> Order() const {
    std::vector<int> order;
    for (const UI_NodePtr& node : parent->GetChildNodes()) {
      for (int i = 0; i < static_cast<int>(children.size()); ++i) {
        if (node.Get() == children[static_cast<std::size_t>(i)].Get()) order.push_back(i);
      }
    }
    return order;
  }

  std::vector<std::string> log;
  LogNodePtr parent;
  std::vector<LogNodePtr> children;
};

TEST_F(UI_ContainerRemoval, RemovingFromAnyPlaceKeepsTheOthersInOrder) {
  EXPECT_TRUE(parent->RemoveChild(*children[1]));
  EXPECT_TRUE(parent->RemoveChild(*children[3]));
  EXPECT_FALSE(parent->RemoveChild(*children[3])) << "no longer a child";
  EXPECT_EQ(parent->GetChildCount(), 4u);
  EXPECT_EQ(parent->IndexOf(*children[4]), 2u);
  EXPECT_EQ(parent->GetChildAt(1), children[2].Get());
  EXPECT_EQ(Order(), (std::vector<int>{0, 2, 4, 5}));
}

TEST_F(UI_ContainerRemoval, HolesLeftByRemovalNeverShowInHitTestingOrInsertion) {
  parent->RemoveChild(*children[4]);
  parent->RemoveChild(*children[5]); // the top: the hole below it goes too
  EXPECT_EQ(parent->HitTest({10, 10}), children[3].Get());
  parent->RemoveChild(*children[0]);
  parent->InsertChild(children[0], {0, 0, 50, 50}, 1);
  EXPECT_EQ(Order(), (std::vector<int>{1, 0, 2, 3}));
  parent->BringToFront(*children[1]);
  EXPECT_EQ(parent->HitTest({10, 10}), children[1].Get());
  EXPECT_TRUE(parent->RemoveChild(*children[2])) << "found where the last reordering put it";
  EXPECT_EQ(Order(), (std::vector<int>{0, 3, 1}));
}

TEST_F(UI_ContainerRemoval, RemovingEveryChildInEitherOrderEmptiesTheContainer) {
  for (std::size_t i = 0; i < 3; ++i) parent->RemoveChild(*children[i]);
  for (std::size_t i = children.size(); i-- > 3;) parent->RemoveChild(*children[i]);
  EXPECT_EQ(parent->GetChildCount(), 0u);
  EXPECT_TRUE(parent->GetChildNodes().empty());
  for (const LogNodePtr& child : children) EXPECT_EQ(child->GetParent(), nullptr);
}

/// Counts the placement notifications it is given.
class TrackingNode : public UI_Node {
public:
  TrackingNode() { SetTracksPlacement(true); }
  int changes = 0;

protected:
  void PlacementChangedSelf() override { ++changes; }
};

TEST_F(UI_ContainerRemoval, ATrackingNodeHearsOfAncestorMovesAndOfEnteringAndLeavingATree) {
  const auto tracker = krocore::MakeIntrusive<TrackingNode>();
  children[0]->InsertChild(tracker, {1, 1, 5, 5});
  EXPECT_EQ(tracker->changes, 1);
  parent->SetBounds({10, 10, 110, 110});
  children[0]->Move({3, 3});
  EXPECT_EQ(tracker->changes, 3);
  children[1]->Move({3, 3}); // not an ancestor
  EXPECT_EQ(tracker->changes, 3);
  parent->RemoveChild(*children[0]);
  EXPECT_EQ(tracker->changes, 4);
  tracker->SetTracksPlacement(false);
  children[0]->Move({4, 4});
  EXPECT_EQ(tracker->changes, 4);
}

} // namespace
