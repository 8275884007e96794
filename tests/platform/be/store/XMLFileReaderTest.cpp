// Damaged and hostile files: each must give the right kind of failure, or
// read harmlessly, and never crash or allocate from a number in the file.
#include "StoreTestSupport.h"

#include <chrono>
#include <fstream>

namespace {

using namespace BE;
using BE::test::Dump;
using BE::test::MakeReader;

constexpr StoreReadStatus kRead = StoreReadStatus::kRead;
constexpr StoreReadStatus kNotAStore = StoreReadStatus::kNotAStore;
constexpr StoreReadStatus kVersion = StoreReadStatus::kIncompatibleVersion;

std::string Store(const std::string& body, const std::string& version = "version=\"1\"") {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<propertystore " + version + ">" + body +
         "</propertystore>";
}

struct HostileCase {
  const char* name;
  std::string bytes;
  StoreReadStatus status;
  std::string dump; ///< what a successful read holds
};

std::ostream& operator<<(std::ostream& out, const HostileCase& c) { return out << c.name; }

class HostileFile : public testing::TestWithParam<HostileCase> {};

TEST_P(HostileFile, GivesTheRightKindOfFailure) {
  const HostileCase& c = GetParam();
  auto reader = MakeReader();
  const StoreReadResult read = reader->ReadBytes(c.bytes);
  EXPECT_EQ(read.Status(), c.status) << read.Error();
  EXPECT_EQ(read.Error().empty(), c.status == kRead);
  EXPECT_EQ(Dump(*reader), c.dump);
}

const std::string kValue = "<unsigned key=\"n\" value=\"1\"/>";

INSTANTIATE_TEST_SUITE_P(
    Cases, HostileFile,
    testing::Values(
        HostileCase{"Sound", Store(kValue), kRead, "n: unsigned 1\n"},
        HostileCase{"Empty", "", kNotAStore, ""},
        HostileCase{"BinaryGarbage", std::string("\x00\xFF\xFE<\x01\x80>", 7), kNotAStore, ""},
        HostileCase{"Truncated", Store(kValue).substr(0, 70), kNotAStore, ""},
        HostileCase{"WrongRoot", "<store version=\"1\">" + kValue + "</store>", kNotAStore, ""},
        HostileCase{"TwoRoots", Store(kValue) + Store(""), kNotAStore, ""},
        HostileCase{"Utf16", std::string("\xFF\xFE<\0a\0/\0>\0", 10), kNotAStore, ""},
        HostileCase{"MissingVersion", Store(kValue, ""), kVersion, ""},
        HostileCase{"FutureVersion", Store(kValue, "version=\"2\""), kVersion, ""},
        HostileCase{"ZeroVersion", Store(kValue, "version=\"0\""), kVersion, ""},
        HostileCase{"NegativeVersion", Store(kValue, "version=\"-1\""), kVersion, ""},
        HostileCase{"TextVersion", Store(kValue, "version=\"one\""), kVersion, ""},
        HostileCase{"UnknownElement", Store("<number key=\"n\" value=\"1\"/>"), kNotAStore, ""},
        HostileCase{"MissingKey", Store("<bool value=\"true\"/>"), kNotAStore, ""},
        HostileCase{"EmptyKey", Store("<bool key=\"\" value=\"true\"/>"), kNotAStore, ""},
        HostileCase{"DuplicateKey", Store(kValue + kValue), kNotAStore, ""},
        HostileCase{"MissingValue", Store("<bool key=\"b\"/>"), kNotAStore, ""},
        HostileCase{"ValueWithContent", Store("<bool key=\"b\" value=\"true\">x</bool>"), kNotAStore, ""},
        HostileCase{"TextInGroup", Store("<group key=\"g\">loose text</group>"), kNotAStore, ""},
        HostileCase{"BoolWord", Store("<bool key=\"b\" value=\"yes\"/>"), kNotAStore, ""},
        HostileCase{"IntegerOverflow", Store("<integer key=\"i\" value=\"9223372036854775808\"/>"),
                    kNotAStore, ""},
        HostileCase{"IntegerSpace", Store("<integer key=\"i\" value=\" 1\"/>"), kNotAStore, ""},
        HostileCase{"UnsignedNegative", Store("<unsigned key=\"u\" value=\"-1\"/>"), kNotAStore, ""},
        HostileCase{"UnsignedOverflow", Store("<unsigned key=\"u\" value=\"4294967296\"/>"), kNotAStore, ""},
        HostileCase{"RealWord", Store("<real key=\"r\" value=\"half\"/>"), kNotAStore, ""},
        HostileCase{"InvalidUtf8", Store("<string key=\"s\" value=\"\xC3\x28\"/>"), kNotAStore, ""},
        HostileCase{"InvalidUtf8Key", Store("<string key=\"\xF5\" value=\"\"/>"), kNotAStore, ""},
        HostileCase{"SurrogateReference", Store("<string key=\"s\" value=\"&#xD800;\"/>"), kNotAStore, ""},
        HostileCase{
            "NestedEntityDtd",
            "<!DOCTYPE propertystore [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;\">]>" +
                Store("<string key=\"s\" value=\"&b;&a;\"/>"),
            kNotAStore, ""},
        HostileCase{"ExternalEntityDtd",
                    "<!DOCTYPE p [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>" +
                        Store("<string key=\"s\" value=\"&x;\"/>"),
                    kNotAStore, ""},
        HostileCase{"PlainDoctype", "<!DOCTYPE propertystore>" + Store(kValue), kNotAStore, ""},
        HostileCase{
            "DoctypeAfterDeclarationAndComment",
            "<?xml version=\"1.0\"?><!-- c --><!DOCTYPE propertystore SYSTEM \"store.dtd\"><propertystore "
            "version=\"1\">" +
                kValue + "</propertystore>",
            kNotAStore, ""},
        HostileCase{"DoctypeTextInsideACommentIsFine",
                    Store("<!-- <!DOCTYPE x [<!ENTITY a \"b\">]> -->" + kValue), kRead, "n: unsigned 1\n"},
        HostileCase{"ProcessingInstructionBeforeTheStore", "<?app hint?>" + Store(kValue), kRead,
                    "n: unsigned 1\n"},
        HostileCase{"CommentsAndBomIgnored",
                    "\xEF\xBB\xBF<!-- note -->" + Store("<!-- c --><bool value=\"true\" key=\"b\"/><?pi x?>"),
                    kRead, "b: bool true\n"},
        HostileCase{"HugeItemCountIsJustANumber", Store("<unsigned key=\"itemcount\" value=\"4000000000\"/>"),
                    kRead, "itemcount: unsigned 4000000000\n"}),
    [](const testing::TestParamInfo<HostileCase>& row) { return std::string(row.param.name); });

std::string Nested(std::size_t depth) {
  std::string open, close;
  for (std::size_t i = 0; i < depth; ++i) {
    open += "<group key=\"g\">";
    close += "</group>";
  }
  return Store(open + close);
}

TEST(XMLFileReader, BoundsGroupDepthWithoutRecursing) {
  auto reader = MakeReader();
  EXPECT_TRUE(reader->ReadBytes(Nested(kMaxPropertyGroupDepth)));
  const StoreReadResult tooDeep = reader->ReadBytes(Nested(kMaxPropertyGroupDepth + 1));
  EXPECT_EQ(tooDeep.Status(), kNotAStore);
  EXPECT_NE(tooDeep.Error().find("groups nest deeper than 64"), std::string::npos) << tooDeep.Error();
  EXPECT_EQ(reader->ReadBytes(Nested(200000)).Status(), kNotAStore);
}

TEST(XMLFileReader, RefusesADtdUnexpandedAndSaysWhy) {
  std::string doctype = "<!DOCTYPE propertystore [<!ENTITY l0 \"lol\">";
  for (int level = 1; level <= 9; ++level) {
    std::string refs;
    for (int i = 0; i < 10; ++i) refs += "&l" + std::to_string(level - 1) + ";";
    doctype += "<!ENTITY l" + std::to_string(level) + " \"" + refs + "\">";
  }
  auto reader = MakeReader();
  ASSERT_TRUE(reader->ReadBytes(Store(kValue)));
  const auto start = std::chrono::steady_clock::now();
  const StoreReadResult read =
      reader->ReadBytes(doctype + "]>" + Store("<string key=\"s\" value=\"&l9;\"/>"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  EXPECT_EQ(read.Status(), kNotAStore);
  EXPECT_NE(read.Error().find("has a document type declaration (DTD)"), std::string::npos) << read.Error();
  // Refused before anything was taken: the store read before is still there.
  EXPECT_EQ(Dump(*reader), "n: unsigned 1\n");
}

TEST(XMLFileReader, RefusesOversizedMissingAndFolderPathsUnread) {
  test::TemporaryFolder folder;
  const auto path = folder / "huge.kys";
  std::ofstream{path};
  std::filesystem::resize_file(path, 100u * 1024 * 1024); // sparse: costs no disk
  auto reader = MakeReader();
  const StoreReadResult huge = reader->ReadFile(path);
  EXPECT_EQ(huge.Status(), kNotAStore);
  EXPECT_NE(huge.Error().find("\"" + path.string() + "\" is too large"), std::string::npos) << huge.Error();
  EXPECT_EQ(reader->ReadBytes(std::string(kMaxPropertyStoreFileBytes + 1, ' ')).Status(), kNotAStore);
  EXPECT_EQ(reader->ReadFile(folder / "missing.kys").Status(), kNotAStore);
  EXPECT_EQ(reader->ReadFile(folder.Path()).Status(), kNotAStore);
}

TEST(XMLFileReader, AFailedReadKeepsTheStoreAndGroupReadBefore) {
  auto reader = MakeReader();
  ASSERT_TRUE(reader->ReadBytes(Store("<group key=\"g\">" + kValue + "</group>")));
  ASSERT_TRUE(reader->OpenGroup("g"));
  EXPECT_EQ(reader->ReadBytes(Store(kValue, "version=\"7\"")).Error(),
            "The text has the format version 7; this store reads version 1");
  EXPECT_FALSE(reader->ReadBytes("<propertystore version=\"1\"><unsigned key=\"n\""));
  EXPECT_EQ(reader->ReadUnsigned("n"), 1u);
  EXPECT_EQ(reader->GetVersion(), kXMLPropertyStoreVersion);
}

} // namespace
