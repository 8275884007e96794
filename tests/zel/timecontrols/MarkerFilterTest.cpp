#include "MarkerTestSupport.h"

#include <atomic>
#include <thread>

namespace ZEL {
namespace {

using namespace ZEL::testing;

struct FilterRow {
  const char* what;
  std::vector<MarkerColorID> colors;
  std::vector<std::string> types;
  bool redChapterVisible;
};

class MarkerFilterTruthTable : public MarkerFixture, public ::testing::WithParamInterface<FilterRow> {};

// The marker under test is a red chapter marker.
TEST_P(MarkerFilterTruthTable, DecidesVisibility) {
  const auto marker = Add(Fields(1, MarkerColorID::kRed, BE::kMarkerType_Chapter));
  std::vector<kroui::drawbot::ColorRGBA> colors;
  for (MarkerColorID id : GetParam().colors) colors.push_back(Standard(id));
  SetSelectedMarkerFilterColors(colors);
  SetSelectedMarkerFilterTypes(GetParam().types);
  EXPECT_EQ(IsMarkerVisible(*marker), GetParam().redChapterVisible);
  BE::MarkerList list = {marker};
  FilterMarkers(list);
  EXPECT_EQ(list.size(), GetParam().redChapterVisible ? 1u : 0u);
  EXPECT_EQ(GetNextVisibleMarker(Markers(), TickTime()) != nullptr, GetParam().redChapterVisible);
}

class MarkerFilter : public MarkerFixture {};

const std::string kChapter(BE::kMarkerType_Chapter), kComment(BE::kMarkerType_Comment);

INSTANTIATE_TEST_SUITE_P(
    MarkerFilter, MarkerFilterTruthTable,
    ::testing::Values(FilterRow{"nothing_selected", {}, {}, true},
                      FilterRow{"its_colour", {MarkerColorID::kRed}, {}, true},
                      FilterRow{"another_colour", {MarkerColorID::kBlue}, {}, false},
                      FilterRow{"any_of_the_colours", {MarkerColorID::kBlue, MarkerColorID::kRed}, {}, true},
                      FilterRow{"its_type", {}, {kChapter}, true},
                      FilterRow{"another_type", {}, {kComment}, false},
                      FilterRow{"any_of_the_types", {}, {kComment, kChapter}, true},
                      FilterRow{"both_match", {MarkerColorID::kRed}, {kChapter}, true},
                      FilterRow{"colour_only_matches", {MarkerColorID::kRed}, {kComment}, false},
                      FilterRow{"type_only_matches", {MarkerColorID::kBlue}, {kChapter}, false},
                      FilterRow{"neither_matches", {MarkerColorID::kBlue}, {kComment}, false}),
    [](const auto& row) { return std::string(row.param.what); });

TEST_F(MarkerFilter, FilterColoursSelectByIDWhateverTheirRounding) {
  const auto cyan = Add(Fields(1, MarkerColorID::kCyan));
  auto drifted = Standard(MarkerColorID::kCyan);
  drifted.red += 0.7f / 255.f;
  drifted.blue -= 0.6f / 255.f;
  AddColorToMarkerFilter(drifted);
  EXPECT_TRUE(IsMarkerColorSelected(*cyan));
  EXPECT_EQ(GetSelectedMarkerFilterColors(), std::vector{drifted}) << "kept as given";
  ClearMarkerFilter();
  EXPECT_FALSE(IsMarkerColorSelected(*cyan)) << "no colour selected";
  EXPECT_TRUE(IsMarkerVisible(*cyan));
  EXPECT_TRUE(GetSelectedMarkerFilterTypes().empty());
}

TEST_F(MarkerFilter, FilterIsReadSafelyWhileTheMainThreadChangesIt) {
  const auto red = Add(Fields(1, MarkerColorID::kRed));
  std::atomic<bool> done = false;
  std::thread reader([&] {
    while (!done) {
      BE::MarkerList list = {red};
      FilterMarkers(list);
      (void)GetSelectedMarkerFilterTypes();
    }
  });
  for (int i = 0; i < 2000; ++i) {
    SetSelectedMarkerFilterColors({Standard(MarkerColorID(i % 8))});
    SetSelectedMarkerFilterTypes({i % 2 ? kComment : kChapter});
  }
  done = true;
  reader.join();
  EXPECT_EQ(GetSelectedMarkerFilterTypes(), std::vector<std::string>{kComment}) << "the last one set";
}

} // namespace
} // namespace ZEL
