#include "MarkerTestSupport.h"
#include "../store/StoreTestSupport.h"

#include <be/markers/MarkerStore.h>
#include <be/markers/Markers.h>
#include <be/markers/UndoStack.h>
#include <be/markers/UpgradeValidator.h>

#include <gtest/gtest.h>

namespace BE {
namespace {

using test::Fields;

std::vector<MarkerRecord> Records(const IMarkers& markers) {
  const ReadValidator validator;
  std::vector<MarkerRecord> records;
  for (const IMarkerRef& m : markers.GetMarkers(validator)) records.push_back({m->GetID(), m->GetFields()});
  return records;
}

// A store whose markers group is `body`, after a count of `count`.
std::string File(const std::string& count, const std::string& body) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<propertystore version=\"1\">\n<group key=\"markers\">\n" +
         count + "\n" + body + "</group>\n</propertystore>\n";
}

std::string Marker(int index, const std::string& id = "1", const std::string& start = "<integer key=\"start\" value=\"0\" />",
                   const std::string& color = "<unsigned key=\"color\" value=\"2\" />",
                   const std::string& duration = "<integer key=\"duration\" value=\"0\" />") {
  return "<group key=\"marker." + std::to_string(index) + "\"><integer key=\"id\" value=\"" + id + "\" />" + start +
         duration + color +
         "<string key=\"type\" value=\"Comment\" /><string key=\"name\" value=\"\" />"
         "<string key=\"comment\" value=\"\" /></group>\n";
}

const std::string kOne = "<unsigned key=\"count\" value=\"1\" />";

class MarkerStoreTest : public ::testing::Test {
protected:
  void SetUp() override {
    MarkerFields chapter = Fields(-3, 2, MarkerUtils::MarkerColorID::kCyan, kMarkerType_Chapter);
    chapter.name = "Intro \"quoted\" <&> \xC3\xA9t\xC3\xA9";
    chapter.comment = "two\nlines";
    mMarkers->AddMarker(Fields(10), mValidator, nullptr);
    mMarkers->AddMarker(chapter, mValidator, nullptr);
    MarkerFields odd = Fields(10, 0, MarkerUtils::MarkerColorID::kWhite, kMarkerType_FlashCuePoint);
    odd.start = TickTime(TickTime::kTicksPerSecond * 10 + 1);
    mMarkers->AddMarker(odd, mValidator, nullptr);
  }

  std::shared_ptr<UndoStack> mStack = std::make_shared<UndoStack>();
  std::shared_ptr<Markers> mMarkers = Markers::Create(mStack);
  UpgradeValidator mValidator;
};

TEST_F(MarkerStoreTest, RoundTripsEveryFieldAndIDExactly) {
  const auto path = std::filesystem::path(::testing::TempDir()) / "markers-round-trip.xml";
  ASSERT_TRUE(MarkerStore::Save(path, *mMarkers, mValidator));
  const auto copy = Markers::Create(mStack);
  ASSERT_TRUE(MarkerStore::Load(path, *copy, mValidator));
  EXPECT_EQ(Records(*copy), Records(*mMarkers));
  EXPECT_EQ(copy->AddMarker(Fields(0), mValidator, nullptr)->GetID(), 4u) << "new IDs follow the ones read";
  std::filesystem::remove(path);
}

TEST_F(MarkerStoreTest, ReadingIsOneUndoStep) {
  const auto before = Records(*mMarkers);
  ASSERT_TRUE(MarkerStore::LoadBytes(File(kOne, Marker(0, "42")), *mMarkers, mValidator));
  EXPECT_EQ(test::Order(*mMarkers), (std::vector<std::pair<std::int64_t, MarkerID>>{{0, 42}}));
  ASSERT_TRUE(mStack->Undo());
  EXPECT_EQ(Records(*mMarkers), before);
}

struct HostileFile {
  const char* what;
  std::string bytes;
  const char* message;
};

class HostileMarkerFile : public MarkerStoreTest, public ::testing::WithParamInterface<HostileFile> {};

TEST_P(HostileMarkerFile, IsRefusedAndLeavesTheMarkersAlone) {
  const auto before = Records(*mMarkers);
  test::ChangeCounter counter(*mMarkers);
  const auto read = MarkerStore::LoadBytes(GetParam().bytes, *mMarkers, mValidator);
  ASSERT_FALSE(read);
  EXPECT_NE(read.Error().find(GetParam().message), std::string::npos) << read.Error();
  EXPECT_EQ(Records(*mMarkers), before);
  EXPECT_EQ(counter.Count(), 0);
  EXPECT_EQ(mStack->GetUndoCount(), 0u);
}

const std::string kTwo = "<unsigned key=\"count\" value=\"2\" />";

INSTANTIATE_TEST_SUITE_P(
    MarkerStore, HostileMarkerFile,
    ::testing::Values(
        HostileFile{"no group", "<?xml version=\"1.0\"?><propertystore version=\"1\"/>", "no group \"markers\""},
        HostileFile{"count as text", File("<string key=\"count\" value=\"1\" />", Marker(0)), "marker count"},
        HostileFile{"huge count", File("<unsigned key=\"count\" value=\"4000000000\" />", Marker(0)),
                    "claims 4000000000 markers"},
        HostileFile{"count above entries", File(kTwo, Marker(0)), "entries besides the count"},
        HostileFile{"entries above count", File(kOne, Marker(0) + Marker(1, "2")), "entries besides the count"},
        HostileFile{"missing item", File(kOne, "<group key=\"marker.7\" />"), "marker.0 is missing"},
        HostileFile{"start as real", File(kOne, Marker(0, "1", "<real key=\"start\" value=\"1.5\" />")),
                    "marker.0: \"start\" is missing or not an integer"},
        HostileFile{"unknown start",
                    File(kOne, Marker(0, "1", "<integer key=\"start\" value=\"9223372036854775807\" />")),
                    "the start time is unknown"},
        HostileFile{"negative duration",
                    File(kOne, Marker(0, "1", "<integer key=\"start\" value=\"0\" />",
                                      "<unsigned key=\"color\" value=\"2\" />",
                                      "<integer key=\"duration\" value=\"-5\" />")),
                    "the duration is negative"},
        HostileFile{"colour out of range",
                    File(kOne, Marker(0, "1", "<integer key=\"start\" value=\"0\" />",
                                      "<unsigned key=\"color\" value=\"8\" />")),
                    "the colour index 8 is not one of 0 to 7"},
        HostileFile{"colour negative",
                    File(kOne, Marker(0, "1", "<integer key=\"start\" value=\"0\" />",
                                      "<integer key=\"color\" value=\"-1\" />")),
                    "\"color\" is missing or not an unsigned number"},
        HostileFile{"zero ID", File(kOne, Marker(0, "0")), "the ID 0 is not above zero"},
        HostileFile{"duplicate IDs", File(kTwo, Marker(0, "7") + Marker(1, "7")), "marker.1: the ID 7 is used twice"},
        HostileFile{"doctype",
                    "<?xml version=\"1.0\"?><!DOCTYPE propertystore [<!ENTITY e \"x\">]>"
                    "<propertystore version=\"1\"><group key=\"markers\">" + kOne + Marker(0) + "</group></propertystore>",
                    "document type declaration"},
        HostileFile{"not XML", "markers: 1", "Markers not read"}),
    [](const auto& row) {
      std::string name = row.param.what;
      for (char& c : name)
        if (c == ' ') c = '_';
      return name;
    });

} // namespace
} // namespace BE
