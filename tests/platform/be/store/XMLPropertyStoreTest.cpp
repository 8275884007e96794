#include "StoreTestSupport.h"

#include <krocore/debug/Assert.h>

#include <limits>

namespace {

using namespace BE;
using BE::test::MakeReader;
using BE::test::MakeWriter;
using BE::test::ReadBack;

TEST(XMLPropertyStore, ClassIDsMakeNewStoresAnsweringOnlyAsTheirInterface) {
  auto writer = MakeWriter();
  auto reader = MakeReader();
  ASSERT_TRUE(writer && reader);
  EXPECT_NE(writer, MakeWriter());
  EXPECT_EQ(krocore::classref::CreateClassInstanceRef<IPropertyStoreReader>(kXMLFileWriterClassID), nullptr);
  EXPECT_EQ(reader->GetVersion(), 0u);
  EXPECT_TRUE(reader->GetKeys().empty());
}

TEST(XMLPropertyStore, RoundTripKeepsTypesNestingOrderAndExtremes) {
  auto writer = MakeWriter();
  writer->WriteInteger("min", std::numeric_limits<std::int64_t>::min());
  writer->WriteUnsigned("count", 4000000000u);
  writer->OpenGroup("outer");
  writer->WriteReal("tenth", 0.1);
  writer->WriteReal("negative zero", -0.0);
  writer->WriteReal("tiny", 5e-324);
  writer->WriteReal("nan", std::numeric_limits<double>::quiet_NaN());
  writer->OpenGroup("inner");
  writer->WriteBool("yes", true);
  writer->CloseGroup();
  writer->OpenGroup("empty");
  writer->CloseGroup();
  writer->WriteReal("infinity", -std::numeric_limits<double>::infinity());
  writer->CloseGroup();
  writer->WriteString("last", "");
  EXPECT_EQ(ReadBack(*writer), "min: integer -9223372036854775808\n"
                               "count: unsigned 4000000000\n"
                               "outer: group\n"
                               "  tenth: real 0.1\n"
                               "  negative zero: real -0\n"
                               "  tiny: real 5e-324\n"
                               "  nan: real nan\n"
                               "  inner: group\n"
                               "    yes: bool true\n"
                               "  empty: group\n"
                               "  infinity: real -inf\n"
                               "last: string \"\"\n");
}

class AwkwardText : public testing::TestWithParam<std::string> {};

TEST_P(AwkwardText, ReadsBackUnchangedAsValueAndAsKey) {
  const std::string& text = GetParam();
  auto writer = MakeWriter();
  writer->WriteString("value", text);
  writer->WriteString("key:" + text, "key");
  auto reader = MakeReader();
  ASSERT_TRUE(reader->ReadBytes(writer->ToBytes()));
  EXPECT_EQ(reader->ReadString("value"), text);
  EXPECT_EQ(reader->ReadString("key:" + text), "key");
}

INSTANTIATE_TEST_SUITE_P(Texts, AwkwardText,
                         testing::Values("", "say \"hi\" 'there'", "a < b && c > d",
                                         "&amp; stays &lt;literal&gt;", "]]> <!-- --> <?pi?>",
                                         "Grüße, 日本語, 🎬", "  padded  ", " ", "line\nbreak\r\nand\ttab\r",
                                         "\x01\x1f control", "\xEF\xBF\xBD replacement"));

struct TypedRead {
  const char* name;
  PropertyValueType type;
  void (*write)(IPropertyStoreWriter&);
};

std::ostream& operator<<(std::ostream& out, const TypedRead& row) { return out << row.name; }

class TypedReads : public testing::TestWithParam<TypedRead> {};

// Each row writes "k" as one type; every question for another type, and for
// the missing key "other", must answer absent.
TEST_P(TypedReads, AnswerOnlyForTheTypeWritten) {
  auto writer = MakeWriter();
  GetParam().write(*writer);
  auto reader = MakeReader();
  ASSERT_TRUE(reader->ReadBytes(writer->ToBytes()));
  const PropertyValueType type = GetParam().type;
  EXPECT_EQ(reader->GetType("k"), type);
  EXPECT_EQ(reader->ReadBool("k").has_value(), type == PropertyValueType::kBool);
  EXPECT_EQ(reader->ReadInteger("k").has_value(), type == PropertyValueType::kInteger);
  EXPECT_EQ(reader->ReadUnsigned("k").has_value(), type == PropertyValueType::kUnsigned);
  EXPECT_EQ(reader->ReadReal("k").has_value(), type == PropertyValueType::kReal);
  EXPECT_EQ(reader->ReadString("k").has_value(), type == PropertyValueType::kString);
  EXPECT_EQ(reader->OpenGroup("k"), type == PropertyValueType::kGroup);
  EXPECT_EQ(reader->GetType("other"), PropertyValueType::kAbsent);
  EXPECT_FALSE(reader->ReadBool("other") || reader->ReadInteger("other") || reader->ReadUnsigned("other") ||
               reader->ReadReal("other") || reader->ReadString("other") || reader->OpenGroup("other"));
}

INSTANTIATE_TEST_SUITE_P(
    Types, TypedReads,
    testing::Values(
        TypedRead{"Bool", PropertyValueType::kBool, [](IPropertyStoreWriter& w) { w.WriteBool("k", false); }},
        TypedRead{"Integer", PropertyValueType::kInteger,
                  [](IPropertyStoreWriter& w) { w.WriteInteger("k", 7); }},
        TypedRead{"Unsigned", PropertyValueType::kUnsigned,
                  [](IPropertyStoreWriter& w) { w.WriteUnsigned("k", 7); }},
        TypedRead{"Real", PropertyValueType::kReal, [](IPropertyStoreWriter& w) { w.WriteReal("k", 7); }},
        TypedRead{"String", PropertyValueType::kString,
                  [](IPropertyStoreWriter& w) { w.WriteString("k", "7"); }},
        TypedRead{"Group", PropertyValueType::kGroup, [](IPropertyStoreWriter& w) { w.OpenGroup("k"); }}),
    [](const testing::TestParamInfo<TypedRead>& row) { return std::string(row.param.name); });

TEST(XMLPropertyStore, WritingAKeyAgainReplacesItInPlace) {
  auto writer = MakeWriter();
  writer->WriteUnsigned("first", 1);
  writer->OpenGroup("group");
  writer->WriteString("old", "dropped with its group");
  writer->CloseGroup();
  writer->WriteBool("value", true);
  writer->OpenGroup("again");
  writer->WriteUnsigned("a", 1);
  writer->CloseGroup();
  writer->WriteString("first", "now a string");
  writer->WriteInteger("group", -1);
  writer->OpenGroup("value");
  writer->CloseGroup();
  writer->OpenGroup("again");
  writer->WriteUnsigned("b", 2);
  EXPECT_EQ(ReadBack(*writer), "first: string \"now a string\"\n"
                               "group: integer -1\n"
                               "value: group\n"
                               "again: group\n"
                               "  a: unsigned 1\n"
                               "  b: unsigned 2\n");
  writer->Clear();
  EXPECT_EQ(ReadBack(*writer), "");
}

TEST(XMLPropertyStore, MisuseIsReportedAndTheFileStillReadsBack) {
  krocore::debug::ScopedAssertionRecorder recorder;
  auto writer = MakeWriter();
  writer->WriteBool("", true);
  writer->WriteString("bad", std::string("a\0b\xFF", 4));
  EXPECT_FALSE(writer->CloseGroup());
  EXPECT_FALSE(writer->OpenGroup("\xC0\x80"));
  writer->WriteBool("inside a refused group", true);
  EXPECT_TRUE(writer->CloseGroup());
  EXPECT_FALSE(MakeReader()->CloseGroup());
  EXPECT_EQ(recorder.Count(), 5u);
  EXPECT_TRUE(recorder.Contains("A property key must be non-empty UTF-8 without NUL"));
  EXPECT_TRUE(recorder.Contains("A property string must be UTF-8 without NUL"));
  EXPECT_TRUE(recorder.Contains("CloseGroup without an open group"));
  EXPECT_EQ(ReadBack(*writer), "bad: string \"a\xEF\xBF\xBD"
                               "b\xEF\xBF\xBD\"\n");
}

TEST(XMLPropertyStore, GroupsPastTheDepthLimitAreRefusedButStayBalanced) {
  krocore::debug::ScopedAssertionRecorder recorder;
  auto writer = MakeWriter();
  for (std::size_t depth = 1; depth <= kMaxPropertyGroupDepth + 2; ++depth)
    EXPECT_EQ(writer->OpenGroup("g"), depth <= kMaxPropertyGroupDepth) << depth;
  writer->WriteBool("lost", true);
  for (std::size_t depth = 0; depth < kMaxPropertyGroupDepth + 2; ++depth) EXPECT_TRUE(writer->CloseGroup());
  writer->WriteBool("kept", true);
  EXPECT_EQ(recorder.Count(), 1u);
  auto reader = MakeReader();
  ASSERT_TRUE(reader->ReadBytes(writer->ToBytes()));
  EXPECT_EQ(reader->ReadBool("kept"), true);
  std::size_t depth = 0;
  while (reader->OpenGroup("g")) ++depth;
  EXPECT_EQ(depth, kMaxPropertyGroupDepth);
  EXPECT_TRUE(reader->GetKeys().empty());
}

// The way a shortcut set is kept: contexts of numbered items, the count last.
TEST(XMLPropertyStore, ASavedShortcutSetReadsBackByItsKeys) {
  test::TemporaryFolder folder;
  auto writer = MakeWriter();
  writer->WriteString("platform", "windows");
  for (const char* context : {"Timeline", "Project"}) {
    writer->OpenGroup(CreateKeyWithSuffix("context", context));
    for (std::uint32_t index = 0; index < 2; ++index) {
      writer->OpenGroup(CreateKeyWithIndex("item", index));
      writer->WriteString("commandname", context + std::to_string(index));
      writer->WriteUnsigned("virtualkey", 0x41 + index);
      writer->WriteBool("modifier.ctrl", index == 1);
      writer->CloseGroup();
    }
    writer->WriteUnsigned("itemcount", 2);
    writer->CloseGroup();
  }
  ASSERT_TRUE(writer->Save(folder / "custom.kys"));
  auto reader = MakeReader();
  const StoreReadResult read = reader->ReadFile(folder / "custom.kys");
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(reader->GetVersion(), kXMLPropertyStoreVersion);
  EXPECT_EQ(reader->ReadString("platform"), "windows");
  ASSERT_TRUE(reader->OpenGroup("context.Project"));
  EXPECT_EQ(reader->ReadUnsigned("itemcount"), 2u);
  ASSERT_TRUE(reader->OpenGroup("item.1"));
  EXPECT_EQ(reader->ReadString("commandname"), "Project1");
  EXPECT_EQ(reader->ReadUnsigned("virtualkey"), 0x42u);
  EXPECT_EQ(reader->ReadBool("modifier.ctrl"), true);
}

} // namespace
