#include "MarkerTestSupport.h"

namespace ZEL {
namespace {

using namespace ZEL::testing;
using IDList = std::vector<BE::MarkerID>;

// In order: 2s #2, 5s #1, 5s #3, 5s #4 (blue, filtered out), 8s #5, 10s-14s #6.
class MarkerQueries : public MarkerFixture {
protected:
  void SetUp() override {
    MarkerFixture::SetUp();
    mA = Add(Fields(5));
    mB = Add(Fields(2));
    mC = Add(Fields(5));
    mD = Add(Fields(5, MarkerColorID::kBlue));
    mE = Add(Fields(8));
    mF = Add(Fields(10, MarkerColorID::kGreen, BE::kMarkerType_Chapter, 4));
    SetSelectedMarkerFilterColors({Standard(MarkerColorID::kGreen)});
  }
  static TickTime At(std::int64_t seconds) { return TickTime::FromSeconds(seconds); }

  BE::IMarkerRef mA, mB, mC, mD, mE, mF;
};

TEST_F(MarkerQueries, WalkEqualTimesInInsertionOrderBothWays) {
  EXPECT_EQ(IDOf(GetFirstVisibleMarker(Markers())), 2u);
  EXPECT_EQ(IDOf(GetLastVisibleMarker(Markers())), 6u);
  EXPECT_EQ(IDOf(GetNextVisibleMarker(Markers(), At(2))), 1u) << "the earliest inserted at 5s";
  EXPECT_EQ(IDOf(GetNextVisibleMarker(Markers(), At(5))), 5u) << "strictly after the time";
  EXPECT_EQ(IDOf(GetNextVisibleMarker(Markers(), *mA)), 3u) << "the next at the same time";
  EXPECT_EQ(IDOf(GetNextVisibleMarker(Markers(), *mC)), 5u) << "the hidden one skipped";
  EXPECT_EQ(IDOf(GetNextVisibleMarker(Markers(), *mF)), 0u);
  EXPECT_EQ(IDOf(GetPreviousVisibleMarker(Markers(), At(5))), 2u) << "strictly before the time";
  EXPECT_EQ(IDOf(GetPreviousVisibleMarker(Markers(), At(8))), 3u) << "the latest inserted visible at 5s";
  EXPECT_EQ(IDOf(GetPreviousVisibleMarker(Markers(), *mC)), 1u);
  EXPECT_EQ(IDOf(GetPreviousVisibleMarker(Markers(), *mA)), 2u);
  EXPECT_EQ(IDOf(GetPreviousVisibleMarker(Markers(), *mB)), 0u);
}

TEST_F(MarkerQueries, FindTheMarkerMetAtATime) {
  BE::MarkerLocation where{};
  EXPECT_EQ(IDOf(GetVisibleMarker(Markers(), At(5), &where)), 1u);
  EXPECT_EQ(where, BE::MarkerLocation::kStart);
  EXPECT_EQ(IDOf(GetVisibleMarker(Markers(), At(14), &where)), 6u);
  EXPECT_EQ(where, BE::MarkerLocation::kEnd);
  EXPECT_EQ(IDOf(GetVisibleMarker(Markers(), At(12), &where)), 6u);
  EXPECT_EQ(where, BE::MarkerLocation::kInside);
  EXPECT_EQ(GetVisibleMarker(Markers(), At(6)), nullptr);
  EXPECT_EQ(IDOf(GetVisibleDurationMarkerEndingAtTime(Markers(), At(14))), 6u);
  EXPECT_EQ(GetVisibleDurationMarkerEndingAtTime(Markers(), At(8)), nullptr) << "a point marker has no end";
  SetSelectedMarkerFilterTypes({std::string(BE::kMarkerType_Comment)});
  EXPECT_EQ(GetVisibleMarker(Markers(), At(12)), nullptr) << "the chapter is filtered out";
}

TEST_F(MarkerQueries, SelectedMarkersPassTheFilterInTheirOrder) {
  EXPECT_EQ(IDOf(GetVisibleMatchingSelectedMarker(Markers(), {mE, mD, mC})), 3u);
  const auto stranger = BE::Sequence().GetMarkers()->AddMarker(Fields(0), mValidator, nullptr);
  EXPECT_EQ(GetVisibleMatchingSelectedMarker(Markers(), {stranger, mD}), nullptr);
  EXPECT_EQ(IDs(GetVisibleSelectedMarkers({mE, mD, mC})), (IDList{5, 3}));
}

TEST_F(MarkerQueries, InterestingTimesCollectStartsAndEndsInRange) {
  MarkerTimeMap times;
  FindAllVisibleInterestingTimes(mValidator, mSequence, At(5), At(14),
                                 kInterestingMarkerStarts | kInterestingMarkerEnds, times);
  ASSERT_EQ(times.size(), 4u);
  EXPECT_EQ(IDs(times[At(5)]), (IDList{1, 3}));
  EXPECT_EQ(IDs(times[At(8)]), (IDList{5}));
  EXPECT_EQ(IDs(times[At(10)]), (IDList{6}));
  EXPECT_EQ(IDs(times[At(14)]), (IDList{6}));
  times.clear();
  FindAllVisibleInterestingTimes(mValidator, mSequence, At(6), At(20), kInterestingMarkerStarts, times);
  EXPECT_EQ(times.size(), 2u) << "8s and 10s";
}

} // namespace
} // namespace ZEL
