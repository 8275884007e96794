#include <krocore/settings/Preferences.h>
#include <krocore/settings/Settings.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using krocore::settings::ValueStore;

namespace {

class ValueStoreTest : public testing::Test {
protected:
  void SetUp() override {
    mFolder = std::filesystem::temp_directory_path() /
              ("zel-values-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
               testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(mFolder);
  }
  void TearDown() override { std::filesystem::remove_all(mFolder); }

  std::filesystem::path mFolder;
  ValueStore mStore;
};

TEST_F(ValueStoreTest, ObserversHearOnlyRealChanges) {
  std::vector<std::string> heard;
  const auto id = mStore.AddObserver([&](std::string_view name) { heard.emplace_back(name); });
  mStore.Set("TimeBar.TickMarks.Max", 120);
  mStore.Set("TimeBar.TickMarks.Max", 120);
  mStore.Set("TimeBar.TickMarks.Max", 150);
  mStore.Remove("TimeBar.TickMarks.Max");
  mStore.Remove("TimeBar.TickMarks.Max");
  EXPECT_EQ(heard, (std::vector<std::string>{"TimeBar.TickMarks.Max", "TimeBar.TickMarks.Max",
                                              "TimeBar.TickMarks.Max"}));
  mStore.RemoveObserver(id);
  mStore.Set("Other", 1);
  EXPECT_EQ(heard.size(), 3u);
}

TEST_F(ValueStoreTest, AnObserverMayReadAndWriteTheStore) {
  mStore.AddObserver([this](std::string_view name) {
    if (name == "a") mStore.Set("b", mStore.GetInteger("a", 0) * 2);
  });
  mStore.Set("a", 21);
  EXPECT_EQ(mStore.GetInteger("b", 0), 42);
}

TEST_F(ValueStoreTest, SavedValuesLoadIntoAnotherStore) {
  mStore.Set("FE.Prefs.Shortcuts.Filename", "My Keys.kys");
  mStore.Set("TimeBar.TickMarks.Max", 150);
  mStore.Set("Zoom", 0.25);
  const auto path = mFolder / "prefs.txt";
  ASSERT_TRUE(mStore.SaveToFile(path));

  ValueStore other;
  other.Set("Untouched", true);
  int notified = 0;
  other.AddObserver([&](std::string_view) { ++notified; });
  auto loaded = other.LoadFromFile(path);
  ASSERT_TRUE(loaded) << loaded.Error();
  EXPECT_EQ(other.GetString("FE.Prefs.Shortcuts.Filename", ""), "My Keys.kys");
  EXPECT_EQ(other.GetInteger("TimeBar.TickMarks.Max", 0), 150);
  EXPECT_EQ(other.GetReal("Zoom", 0), 0.25);
  EXPECT_TRUE(other.GetBool("Untouched", false));
  EXPECT_EQ(notified, 3);
  for (const auto& entry : std::filesystem::directory_iterator(mFolder))
    EXPECT_EQ(entry.path().filename(), "prefs.txt") << "a temporary file was left behind";
}

TEST_F(ValueStoreTest, DamagedOrMissingFileChangesNothingAndSaysWhy) {
  mStore.Set("Kept", 1);
  const auto path = mFolder / "damaged.txt";
  std::ofstream(path) << "{ \"Kept\": 2, \"Half\": ";
  auto loaded = mStore.LoadFromFile(path);
  ASSERT_FALSE(loaded);
  EXPECT_NE(loaded.Error().find("is damaged: line 1"), std::string::npos) << loaded.Error();
  EXPECT_EQ(mStore.GetInteger("Kept", 0), 1);
  EXPECT_FALSE(mStore.Has("Half"));

  auto missing = mStore.LoadFromFile(mFolder / "missing.txt");
  ASSERT_FALSE(missing);
  EXPECT_NE(missing.Error().find("cannot be read"), std::string::npos);
}

TEST_F(ValueStoreTest, FailedSaveLeavesWhatWasThereAndNoTemporaryFile) {
  const auto path = mFolder / "prefs.txt";
  mStore.Set("Version", 1);
  ASSERT_TRUE(mStore.SaveToFile(path));
  // A file cannot replace a folder that holds something, so this save fails
  // at its last step, after the new bytes were written beside it.
  const auto blocker = mFolder / "blocker";
  std::filesystem::create_directory(blocker);
  std::ofstream(blocker / "keep") << "kept";
  mStore.Set("Version", 2);
  auto saved = mStore.SaveToFile(blocker);
  ASSERT_FALSE(saved);
  EXPECT_NE(saved.Error().find("could not be replaced"), std::string::npos) << saved.Error();
  EXPECT_TRUE(std::filesystem::exists(blocker / "keep"));
  std::size_t entries = 0;
  for (const auto& entry : std::filesystem::directory_iterator(mFolder)) {
    ++entries;
    EXPECT_EQ(entry.path().string().find(".saving-"), std::string::npos) << entry.path();
  }
  EXPECT_EQ(entries, 2u);
  ValueStore reread;
  ASSERT_TRUE(reread.LoadFromFile(path));
  EXPECT_EQ(reread.GetInteger("Version", 0), 1);
}

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

constexpr const char* kOldFormat = "# ZEL values 1\n{\n  \"FE.Prefs.Shortcuts.Filename\" = \"Mine.kys\";\n}\n";

TEST_F(ValueStoreTest, AFileInTheOldFormatIsRefusedClearlyAndLeftAsItIs) {
  const auto path = mFolder / "prefs.txt";
  std::ofstream(path) << kOldFormat;
  mStore.Set("Kept", 1);
  auto loaded = mStore.LoadFromFile(path);
  ASSERT_FALSE(loaded);
  EXPECT_NE(loaded.Error().find("older format"), std::string::npos) << loaded.Error();
  EXPECT_NE(loaded.Error().find(".bak"), std::string::npos) << loaded.Error();
  EXPECT_EQ(mStore.GetInteger("Kept", 0), 1);
  EXPECT_EQ(ReadAll(path), kOldFormat);
}

TEST_F(ValueStoreTest, SavingOverAnUnreadableFileKeepsItBesideFirst) {
  const auto path = mFolder / "prefs.txt";
  std::ofstream(path) << kOldFormat;
  std::ofstream(mFolder / "prefs.txt.bak") << "an earlier copy";
  mStore.Set("Zoom", 2.0);
  auto saved = mStore.SaveToFile(path);
  ASSERT_TRUE(saved) << saved.Error();
  EXPECT_EQ(ReadAll(mFolder / "prefs.txt.bak"), "an earlier copy");
  EXPECT_EQ(ReadAll(mFolder / "prefs.txt.bak.2"), kOldFormat);
  EXPECT_EQ(ReadAll(path), "{\n  \"Zoom\": 2.0\n}\n");

  // The file reads now: saving again makes no more copies.
  ASSERT_TRUE(mStore.SaveToFile(path));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(mFolder), std::filesystem::directory_iterator()), 3);
}

TEST_F(ValueStoreTest, AnUnreadableFileThatCannotBeKeptIsNotSavedOver) {
  const auto path = mFolder / "prefs.txt";
  std::ofstream(path) << "{ damaged";
  std::ofstream(mFolder / "prefs.txt.bak") << "";
  for (int i = 2; i <= 100; ++i) std::ofstream(mFolder / ("prefs.txt.bak." + std::to_string(i))) << "";
  mStore.Set("Zoom", 2.0);
  auto saved = mStore.SaveToFile(path);
  ASSERT_FALSE(saved);
  EXPECT_NE(saved.Error().find("not saved over"), std::string::npos) << saved.Error();
  EXPECT_EQ(ReadAll(path), "{ damaged");
}

TEST(SettingsAndPreferences, AreSeparateSingletons) {
  auto& settings = krocore::settings::Settings::Instance();
  auto& preferences = krocore::settings::Preferences::Instance();
  settings.Set("Only.In.Settings", 1);
  EXPECT_FALSE(preferences.Has("Only.In.Settings"));
  settings.Remove("Only.In.Settings");
}

} // namespace
