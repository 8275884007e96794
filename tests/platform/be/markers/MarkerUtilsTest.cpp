#include "MarkerTestSupport.h"

#include <be/markers/MarkerTypeFilter.h>
#include <be/markers/MarkerUtils.h>
#include <be/markers/Markers.h>
#include <be/markers/UndoStack.h>
#include <be/markers/UpgradeValidator.h>

#include <gtest/gtest.h>

namespace BE {
namespace {

using namespace MarkerUtils;

TEST(MarkerUtils, TheStandardTableHoldsEachIDOnceInOrderAndFindsItsOwnColours) {
  const MarkerColorTable& colors = GetMarkerColors();
  ASSERT_EQ(colors.size(), kMarkerColorCount);
  std::size_t expected = 0;
  for (const auto& [id, color] : colors) {
    EXPECT_EQ(static_cast<std::size_t>(id), expected++);
    EXPECT_EQ(FindNearestMarkerColor(color), id);
  }
  EXPECT_EQ(&GetMarkerColors(), &colors);
  EXPECT_EQ(FindNearestMarkerColor({250, 250, 240}), MarkerColorID::kWhite);
  EXPECT_EQ(FindNearestMarkerColor({200, 40, 40}), MarkerColorID::kRed);
}

TEST(MarkerUtils, SetMarkerColorChangesTheListedMarkersAsOneStep) {
  const auto stack = std::make_shared<UndoStack>();
  const auto markers = Markers::Create(stack);
  const UpgradeValidator validator;
  const IMarkerRef a = markers->AddMarker(test::Fields(1), validator, nullptr);
  const IMarkerRef b = markers->AddMarker(test::Fields(2, 0, MarkerColorID::kBlue), validator, nullptr);
  const IMarkerRef c = markers->AddMarker(test::Fields(3), validator, nullptr);
  EXPECT_EQ(SetMarkerColor(*markers, {a, b}, GetMarkerColors().at(MarkerColorID::kBlue), validator), 1u)
      << "b had the colour already";
  EXPECT_EQ(a->GetColorID(), MarkerColorID::kBlue);
  EXPECT_EQ(SetMarkerColorByIndex(*markers, {a, b, c}, MarkerColorID::kYellow, validator), 3u);
  ASSERT_EQ(stack->GetUndoCount(), 2u);
  stack->Undo();
  EXPECT_EQ(a->GetColorID(), MarkerColorID::kBlue);
  EXPECT_EQ(c->GetColorID(), MarkerColorID::kGreen);
  stack->Undo();
  EXPECT_EQ(a->GetColorID(), MarkerColorID::kGreen);
}

TEST(MarkerTypeFilter, ShowsAllUntilKindsAreNamedThenOnlyThose) {
  const ReadValidator validator;
  const auto markers = Markers::Create();
  const IMarkerRef chapter =
      markers->AddMarker(test::Fields(1, 0, MarkerColorID::kRed, kMarkerType_Chapter), UpgradeValidator(), nullptr);
  MarkerTypeFilter filter;
  EXPECT_TRUE(filter.IsShowingAll());
  EXPECT_TRUE(filter.Shows(*chapter));
  filter = MarkerTypeFilter({"WebLink", "Comment", "WebLink"});
  EXPECT_EQ(filter.GetShownTypes(), (std::vector<std::string>{"WebLink", "Comment"}));
  EXPECT_FALSE(filter.Shows(*chapter));
  EXPECT_TRUE(MarkerTypeFilter(filter).ShowsType("Comment"));
}

} // namespace
} // namespace BE
