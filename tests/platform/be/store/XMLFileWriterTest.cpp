// What the writer puts on disk: the layout, and saves that either replace a
// file wholly or leave it as it was.
#include "StoreTestSupport.h"

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>

namespace {

using namespace BE;
using BE::test::MakeWriter;
using BE::test::TemporaryFolder;

std::string Contents(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

std::vector<std::string> Names(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(XMLFileWriter, WritesOneEscapedElementPerValueUnderAVersionedRoot) {
  auto writer = MakeWriter();
  writer->WriteString("platform", "<\"a&b\">");
  writer->OpenGroup("context.Timeline");
  writer->OpenGroup("item.0");
  writer->WriteUnsigned("virtualkey", 65);
  writer->WriteBool("modifier.ctrl", true);
  writer->CloseGroup();
  writer->WriteInteger("offset", -2);
  writer->WriteReal("zoom", 1.5);
  writer->CloseGroup();
  EXPECT_EQ(writer->ToBytes(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<propertystore version=\"1\">\n"
                               "  <string key=\"platform\" value=\"&lt;&quot;a&amp;b&quot;>\" />\n"
                               "  <group key=\"context.Timeline\">\n"
                               "    <group key=\"item.0\">\n"
                               "      <unsigned key=\"virtualkey\" value=\"65\" />\n"
                               "      <bool key=\"modifier.ctrl\" value=\"true\" />\n"
                               "    </group>\n"
                               "    <integer key=\"offset\" value=\"-2\" />\n"
                               "    <real key=\"zoom\" value=\"1.5\" />\n"
                               "  </group>\n"
                               "</propertystore>\n");
}

class XMLFileWriterSave : public testing::Test {
protected:
  void SetUp() override {
    mWriter->WriteString("text", std::string(4096, 'x'));
    std::ofstream(mPath, std::ios::binary) << kOld;
  }

  static constexpr const char* kOld = "the previous file";
  TemporaryFolder mFolder;
  std::filesystem::path mPath = mFolder / "set.kys";
  krocore::FlexPtr<IPropertyStoreWriter> mWriter = MakeWriter();
};

TEST_F(XMLFileWriterSave, ReplacesTheFileWhole) {
  ASSERT_TRUE(mWriter->Save(mPath));
  EXPECT_EQ(Contents(mPath), mWriter->ToBytes());
  EXPECT_EQ(Names(mFolder.Path()), std::vector<std::string>{"set.kys"});
}

// Tests run as root, which file modes do not stop: a folder in the way of the
// rename really fails, as does a write cut short by the file size limit.
TEST_F(XMLFileWriterSave, IntoAFolderFailsAndLeavesNoTemporaryFile) {
  const auto folderInTheWay = mFolder / "taken.kys";
  std::filesystem::create_directory(folderInTheWay);
  std::ofstream(folderInTheWay / "inside") << kOld;
  const auto saved = mWriter->Save(folderInTheWay);
  EXPECT_FALSE(saved);
  EXPECT_NE(saved.Error().find("taken.kys"), std::string::npos) << saved.Error();
  EXPECT_EQ(Contents(folderInTheWay / "inside"), kOld);
  EXPECT_EQ(Names(mFolder.Path()), (std::vector<std::string>{"set.kys", "taken.kys"}));
}

TEST_F(XMLFileWriterSave, CutShortKeepsThePreviousFileAndLeavesNoTemporaryFile) {
  rlimit previous{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &previous), 0);
  const auto previousSignal = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limited = previous;
  limited.rlim_cur = 1024;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
  const auto saved = mWriter->Save(mPath);
  setrlimit(RLIMIT_FSIZE, &previous);
  std::signal(SIGXFSZ, previousSignal);
  EXPECT_FALSE(saved);
  EXPECT_EQ(Contents(mPath), kOld);
  EXPECT_EQ(Names(mFolder.Path()), std::vector<std::string>{"set.kys"});
}

} // namespace
