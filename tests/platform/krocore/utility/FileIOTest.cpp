#include <krocore/utility/FileIO.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(FileIO, ReadsBackWhatWasWrittenAndRefusesFilesOverTheLimit) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("zel-fileio-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()));
  const std::string bytes("binary\0data\r\n", 13);
  ASSERT_TRUE(krocore::utility::WriteFileAtomically(path, bytes));
  auto read = krocore::utility::ReadFileBytes(path, 13);
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value(), bytes);
  auto tooLarge = krocore::utility::ReadFileBytes(path, 12);
  ASSERT_FALSE(tooLarge);
  EXPECT_NE(tooLarge.Error().find("is too large to be read"), std::string::npos);
  std::filesystem::remove(path);
}

TEST(FileIO, BackupCopiesNeverReplaceAnEarlierCopy) {
  const auto folder = std::filesystem::temp_directory_path() /
                      ("zel-backup-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()));
  std::filesystem::create_directories(folder);
  const auto path = folder / "prefs.json";
  ASSERT_TRUE(krocore::utility::WriteFileAtomically(path, "first"));
  auto first = krocore::utility::KeepBackupCopy(path);
  ASSERT_TRUE(first) << first.Error();
  EXPECT_EQ(first.Value(), folder / "prefs.json.bak");
  ASSERT_TRUE(krocore::utility::WriteFileAtomically(path, "second"));
  auto second = krocore::utility::KeepBackupCopy(path);
  ASSERT_TRUE(second) << second.Error();
  EXPECT_EQ(second.Value(), folder / "prefs.json.bak.2");
  EXPECT_EQ(krocore::utility::ReadFileBytes(first.Value(), 100).Value(), "first");
  EXPECT_EQ(krocore::utility::ReadFileBytes(second.Value(), 100).Value(), "second");
  EXPECT_EQ(krocore::utility::ReadFileBytes(path, 100).Value(), "second") << "the original stays";

  auto missing = krocore::utility::KeepBackupCopy(folder / "missing.json");
  ASSERT_FALSE(missing);
  EXPECT_NE(missing.Error().find("could not be copied"), std::string::npos) << missing.Error();
  std::filesystem::remove_all(folder);
}

} // namespace
