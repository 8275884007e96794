#include "MarkerTestSupport.h"

#include <be/markers/CompoundAction.h>
#include <be/markers/Markers.h>
#include <be/markers/ScopedUndoStep.h>
#include <be/markers/UndoStack.h>
#include <be/markers/UpgradeValidator.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <thread>

namespace BE {
namespace {

using test::Fields;
using test::Order;
using Pairs = std::vector<std::pair<std::int64_t, MarkerID>>;

class MarkersTest : public ::testing::Test {
protected:
  std::shared_ptr<UndoStack> mStack = std::make_shared<UndoStack>();
  std::shared_ptr<Markers> mMarkers = Markers::Create(mStack);
  UpgradeValidator mValidator;

  IMarkerRef Add(std::int64_t seconds, ICompoundAction* action = nullptr) {
    return mMarkers->AddMarker(Fields(seconds), mValidator, action);
  }
};

TEST_F(MarkersTest, KeepsMarkersByStartThenInsertionWithStableIDs) {
  Add(5);
  Add(2);
  const IMarkerRef third = Add(5);
  Add(2);
  EXPECT_EQ(Order(*mMarkers), (Pairs{{2, 2}, {2, 4}, {5, 1}, {5, 3}}));
  ASSERT_TRUE(mMarkers->ChangeMarker(*third, Fields(1), mValidator, nullptr));
  EXPECT_EQ(Order(*mMarkers), (Pairs{{1, 3}, {2, 2}, {2, 4}, {5, 1}})) << "moved, kept its ID";
  ASSERT_TRUE(mMarkers->RemoveMarker(*third, mValidator, nullptr));
  EXPECT_EQ(Add(9)->GetID(), 5u) << "an ID is never given twice";
  EXPECT_EQ(mMarkers->FindMarker(4, mValidator)->GetStart(), TickTime::FromSeconds(2));
  EXPECT_EQ(mMarkers->FindMarker(3, mValidator), nullptr);
}

TEST_F(MarkersTest, AnnouncesEveryChangeAlsoByUndoAndRedo) {
  test::ChangeCounter counter(*mMarkers);
  CompoundAction action("step");
  const IMarkerRef marker = Add(1, &action);
  mMarkers->ChangeMarker(*marker, Fields(2), mValidator, &action);
  mMarkers->RemoveMarker(*marker, mValidator, &action);
  EXPECT_EQ(counter.Count(), 3);
  action.Undo();
  action.Redo();
  EXPECT_EQ(counter.Count(), 9);
}

TEST_F(MarkersTest, RefusesUnsoundFieldsAndStrangersMarkers) {
  krocore::debug::ScopedAssertionRecorder recorder;
  MarkerFields negative = Fields(1);
  negative.duration = TickTime(-1);
  MarkerFields unknown = Fields(1);
  unknown.start = TickTime::Unknown();
  MarkerFields badColor = Fields(1);
  badColor.color = static_cast<MarkerUtils::MarkerColorID>(8);
  MarkerFields badType = Fields(1, 0, MarkerUtils::MarkerColorID::kRed, "Sticky");
  for (const MarkerFields& fields : {negative, unknown, badColor, badType})
    EXPECT_EQ(mMarkers->AddMarker(fields, mValidator, nullptr), nullptr);
  const auto other = Markers::Create();
  const IMarkerRef stranger = other->AddMarker(Fields(1), mValidator, nullptr);
  EXPECT_FALSE(mMarkers->RemoveMarker(*stranger, mValidator, nullptr));
  EXPECT_FALSE(mMarkers->ChangeMarker(*stranger, Fields(3), mValidator, nullptr));
  EXPECT_TRUE(mMarkers->GetMarkers(mValidator).empty());
  EXPECT_EQ(recorder.Count(), 6u);
  EXPECT_TRUE(recorder.Contains("Marker refused: the duration is negative"));
  EXPECT_TRUE(recorder.Contains("The marker belongs to another collection"));
}

TEST_F(MarkersTest, ValidatorsHoldOnlyOnTheirThreadAndChangesOnlyOnTheMainOne) {
  Add(1);
  const ReadValidator mainRead;
  bool foreignRead = true, foreignUpgrade = true, ownRead = false;
  std::thread([&] {
    foreignRead = mainRead.IsValid();
    const UpgradeValidator upgrade;
    foreignUpgrade = upgrade.IsValid();
    ownRead = ReadValidator().IsValid();
  }).join();
  EXPECT_FALSE(foreignRead);
  EXPECT_FALSE(foreignUpgrade);
  EXPECT_TRUE(ownRead);
  EXPECT_TRUE(UpgradeValidator(mainRead).IsValid());

  krocore::debug::ScopedAssertionRecorder recorder;
  std::size_t seen = 1;
  IMarkerRef added;
  std::thread([&] {
    seen = mMarkers->GetMarkers(mainRead).size();
    added = mMarkers->AddMarker(Fields(2), UpgradeValidator(), nullptr);
  }).join();
  EXPECT_EQ(seen, 0u);
  EXPECT_EQ(added, nullptr);
  EXPECT_EQ(mMarkers->GetMarkers(mValidator).size(), 1u);
  EXPECT_TRUE(recorder.Contains("Markers changed without a valid upgrade validator"));
}

TEST_F(MarkersTest, EachOperationUndoesAndRedoesAsOneStep) {
  {
    ScopedUndoStep step(mStack, "Add");
    Add(3, &step.Action());
    Add(1, &step.Action());
  }
  const IMarkerRef one = mMarkers->FindMarker(2, mValidator);
  {
    ScopedUndoStep step(mStack, "Move");
    mMarkers->ChangeMarker(*one, Fields(7), mValidator, &step.Action());
  }
  {
    ScopedUndoStep step(mStack, "Replace");
    mMarkers->ReplaceMarkers({{10, Fields(4)}}, mValidator, &step.Action());
  }
  {
    ScopedUndoStep step(mStack, "Remove");
    mMarkers->RemoveMarker(*mMarkers->FindMarker(10, mValidator), mValidator, &step.Action());
  }
  const std::vector<Pairs> history = {{}, {{1, 2}, {3, 1}}, {{3, 1}, {7, 2}}, {{4, 10}}, {}};
  ASSERT_EQ(mStack->GetUndoCount(), 4u);
  EXPECT_EQ(mStack->GetUndoName(), "Remove");
  for (std::size_t i = history.size() - 1; i > 0; --i) {
    EXPECT_EQ(Order(*mMarkers), history[i]) << i;
    ASSERT_TRUE(mStack->Undo());
  }
  EXPECT_EQ(Order(*mMarkers), history[0]);
  EXPECT_FALSE(mStack->Undo());
  for (std::size_t i = 1; i < history.size(); ++i) {
    ASSERT_TRUE(mStack->Redo());
    EXPECT_EQ(Order(*mMarkers), history[i]) << i;
  }
  EXPECT_FALSE(mStack->Redo());
}

TEST_F(MarkersTest, UndoStackDropsEmptyStepsAndTheRedoBranch) {
  { ScopedUndoStep nothing(mStack, "Nothing"); }
  EXPECT_EQ(mStack->GetUndoCount(), 0u);
  { ScopedUndoStep step(mStack, "A"); Add(1, &step.Action()); }
  mStack->Undo();
  EXPECT_EQ(mStack->GetRedoCount(), 1u);
  { ScopedUndoStep step(mStack, "B"); Add(2, &step.Action()); }
  EXPECT_EQ(mStack->GetRedoCount(), 0u);
  CompoundAction outer("outer");
  { ScopedUndoStep inner(mStack, "inner", &outer); Add(3, &inner.Action()); }
  EXPECT_EQ(mStack->GetUndoCount(), 1u) << "a caller's action is the caller's to push";
  EXPECT_EQ(outer.GetChangeCount(), 1u);
}

TEST_F(MarkersTest, UndoOutlivingItsCollectionDoesNothing) {
  CompoundAction action("step");
  Add(1, &action);
  mMarkers.reset();
  action.Undo();
  action.Redo();
  SUCCEED();
}

} // namespace
} // namespace BE
