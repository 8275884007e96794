#include "MarkerTestSupport.h"

#include <be/markers/CompoundAction.h>
#include <be/markers/Markers.h>
#include <be/markers/TrackItem.h>

#include <functional>

namespace ZEL {
namespace {

using namespace ZEL::testing;
using IDList = std::vector<BE::MarkerID>;

class MarkerChanges : public MarkerFixture {
protected:
  // Runs `change` and checks that it is one step of `history`, which takes
  // `markers` from the IDs before to `after` and back, and forth again.
  void ExpectOneStep(BE::UndoStack& history, BE::IMarkers& markers, const IDList& after,
                     const std::function<void()>& change) {
    const IDList before = IDs(markers.GetMarkers(mValidator));
    const std::size_t steps = history.GetUndoCount();
    change();
    EXPECT_EQ(IDs(markers.GetMarkers(mValidator)), after);
    ASSERT_EQ(history.GetUndoCount(), steps + 1);
    history.Undo();
    EXPECT_EQ(IDs(markers.GetMarkers(mValidator)), before);
    history.Redo();
    EXPECT_EQ(IDs(markers.GetMarkers(mValidator)), after);
  }
};

TEST_F(MarkerChanges, EachAddIsOneStep) {
  ExpectOneStep(History(), Markers(), {1}, [&] { AddMarker(Markers(), Fields(3)); });
  ExpectOneStep(History(), Markers(), {2, 1}, [&] { AddMarker(mSequence, Fields(1), mValidator); });
  ExpectOneStep(History(), Markers(), {2, 1, 3}, [&] {
    EXPECT_EQ(AddChapterMarker(Markers(), TickTime::FromSeconds(3), TickTime::FromSeconds(1))->GetType(),
              BE::kMarkerType_Chapter);
  });
  ExpectOneStep(History(), Markers(), {2, 1, 3, 4}, [&] {
    EXPECT_EQ(AddFlashCueMarker(Markers(), TickTime::FromSeconds(4), TickTime())->GetType(),
              BE::kMarkerType_FlashCuePoint);
  });
  BE::CompoundAction action("caller's step");
  AddMarker(Markers(), Fields(9), action, mValidator);
  EXPECT_EQ(History().GetUndoCount(), 4u) << "the caller's action is the caller's step";
  action.Undo();
  EXPECT_EQ(IDs(All()), (IDList{2, 1, 3, 4}));
}

TEST_F(MarkerChanges, AddMarkersSpansCollectionsInOneStep) {
  const auto clip = BE::Markers::Create();
  ExpectOneStep(History(), Markers(), {2, 1}, [&] {
    const auto added = AddMarkers({{mSequence.GetMarkers(), Fields(2)}, {clip, Fields(1)}, {mSequence.GetMarkers(), Fields(1)}});
    EXPECT_EQ(added.size(), 3u);
  });
  EXPECT_EQ(IDs(clip->GetMarkers(mValidator)), (IDList{1}));
  History().Undo();
  EXPECT_TRUE(clip->GetMarkers(mValidator).empty()) << "the clip's marker went with the same step";
}

TEST_F(MarkerChanges, AddMarkerCommandAddsOnlyWhereNoVisibleMarkerStarts) {
  BE::IMarkerRef marker;
  ExpectOneStep(History(), Markers(), {1}, [&] { EXPECT_TRUE(HandleAddMarkerCommand(Markers(), TickTime(), marker)); });
  EXPECT_EQ(IDOf(marker), 1u);
  BE::IMarkerRef again;
  EXPECT_FALSE(HandleAddMarkerCommand(Markers(), TickTime(), again));
  EXPECT_EQ(again, marker);
  SetSelectedMarkerFilterColors({Standard(MarkerColorID::kRed)});
  EXPECT_TRUE(HandleAddMarkerCommand(Markers(), TickTime(), again)) << "the one there is hidden";
  ExpectOneStep(History(), Markers(), {1, 2, 3, 4}, [&] {
    EXPECT_TRUE(HandleAddMarkerCommand(Markers(), {Fields(5), Fields(6)}, marker));
    EXPECT_EQ(IDOf(marker), 3u);
  });
  EXPECT_FALSE(HandleAddMarkerCommand(Markers(), std::vector<BE::MarkerFields>{}, marker));
}

TEST_F(MarkerChanges, RemovalsTakeOnlyVisibleMarkersInOneStep) {
  Add(Fields(1));
  Add(Fields(2, MarkerColorID::kBlue));
  Add(Fields(3));
  SetSelectedMarkerFilterColors({Standard(MarkerColorID::kGreen)});
  ExpectOneStep(History(), Markers(), {2}, [&] { EXPECT_EQ(IDs(RemoveVisibleSequenceMarkers(mSequence)), (IDList{1, 3})); });

  const auto clipHistory = std::make_shared<BE::UndoStack>();
  const auto clip = BE::Markers::Create(clipHistory);
  for (int s : {1, 2, 3}) clip->AddMarker(Fields(s), mValidator, nullptr);
  clip->AddMarker(Fields(2, MarkerColorID::kBlue), mValidator, nullptr);
  ExpectOneStep(*clipHistory, *clip, {4}, [&] { EXPECT_EQ(IDs(RemoveVisibleClipMarkers(*clip)), (IDList{1, 2, 3})); });
}

TEST_F(MarkerChanges, TrackItemSelectionRemovesTheClipMarkersItUses) {
  const auto clip = BE::Markers::Create();
  for (int s : {0, 2, 4, 6}) clip->AddMarker(Fields(s), mValidator, nullptr);
  const auto used = std::make_shared<BE::TrackItem>(clip, TickTime::FromSeconds(2), TickTime::FromSeconds(6));
  const auto other = std::make_shared<BE::TrackItem>(clip, TickTime::FromSeconds(0), TickTime::FromSeconds(1));
  mSequence.AddTrackItem(used);
  mSequence.AddTrackItem(other);
  ASSERT_TRUE(mSequence.SetTrackItemSelected(*used, true));
  EXPECT_FALSE(mSequence.SetTrackItemSelected(BE::TrackItem(clip, TickTime(), TickTime()), true));
  ExpectOneStep(History(), *clip, {1, 4}, [&] {
    EXPECT_EQ(IDs(RemoveVisibleClipMarkersFromTrackItemSelection(mSequence)), (IDList{2, 3}));
  });
}

TEST_F(MarkerChanges, ColourChangesForwardAsOneStep) {
  const auto a = Add(Fields(1));
  const auto b = Add(Fields(2));
  EXPECT_EQ(SetMarkerColorByIndex(Markers(), {a, b}, MarkerColorID::kPurple), 2u);
  EXPECT_EQ(SetMarkerColor(Markers(), {b}, BE::MarkerUtils::GetMarkerColors().at(MarkerColorID::kOrange)), 1u);
  EXPECT_EQ(b->GetColorID(), MarkerColorID::kOrange);
  History().Undo();
  EXPECT_EQ(b->GetColorID(), MarkerColorID::kPurple);
  History().Undo();
  EXPECT_EQ(a->GetColorID(), MarkerColorID::kGreen);
  History().Redo();
  EXPECT_EQ(a->GetColorID(), MarkerColorID::kPurple);
}

} // namespace
} // namespace ZEL
