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

} // namespace
