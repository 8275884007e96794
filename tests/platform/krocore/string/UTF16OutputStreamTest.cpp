#include <krocore/string/UTF16OutputStream.h>

#include <gtest/gtest.h>

namespace {

TEST(UTF16OutputStream, CollectsWideNarrowAndSingleCharactersInOrder) {
  krocore::StringUTF16OutputStream stream;
  krocore::UTF16OutputStream& out = stream;
  out << u"key" << std::string_view("=caf\xC3\xA9 \xF0\x9F\x8E\xAC") << u'\n';
  EXPECT_EQ(stream.GetText(), u"key=caf\u00E9 \U0001F3AC\n");
  stream.Clear();
  EXPECT_TRUE(stream.GetText().empty());
}

} // namespace
