#include <krocore/string/UTFConversion.h>

#include <gtest/gtest.h>

namespace {

using namespace krocore::string;

TEST(UTFConversion, ValidTextRoundTripsThroughEveryEncoding) {
  const std::string text = "Timecode 01:00:00;00 \xC3\xA9\xE2\x88\x92\xEF\xBC\x91\xF0\x9F\x8E\xAC"; // é − １ 🎬
  const std::u16string utf16 = UTF8to16(text);
  EXPECT_EQ(utf16.substr(utf16.size() - 5), std::u16string(u"\u00E9\u2212\uFF11\U0001F3AC"));
  EXPECT_EQ(UTF16to8(utf16), text);
  EXPECT_EQ(UTF32to8(UTF8to32(text)), text);
}

TEST(UTFConversion, EveryScalarValueSurvivesUTF8AndUTF16) {
  for (char32_t c = 0; c <= 0x10FFFF; c += (c < 0x800 ? 1 : 61)) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    std::string utf8;
    AppendUTF8(utf8, c);
    std::size_t position = 0;
    ASSERT_EQ(DecodeUTF8(utf8, position), c);
    ASSERT_EQ(position, utf8.size());
    ASSERT_EQ(UTF16to8(UTF8to16(utf8)), utf8);
  }
}

TEST(UTFConversion, LoneSurrogatesInUTF16BecomeReplacementCharacters) {
  EXPECT_EQ(UTF16to8(std::u16string(u"a") + char16_t(0xD800) + u"b"), "a\xEF\xBF\xBD" "b");
  EXPECT_EQ(UTF16to8(std::u16string(1, char16_t(0xDC00))), "\xEF\xBF\xBD");
  EXPECT_EQ(UTF16to8(std::u16string{char16_t(0xDC00), char16_t(0xD800)}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(UTF16to8(std::u16string(1, char16_t(0xDBFF))), "\xEF\xBF\xBD"); // high surrogate at the end
}

struct InvalidCase {
  const char* name;
  std::string input;
  std::u32string expected;
};

class InvalidUTF8 : public testing::TestWithParam<InvalidCase> {};

TEST_P(InvalidUTF8, BecomesOneReplacementPerMaximalInvalidPart) {
  EXPECT_EQ(UTF8to32(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Sequences, InvalidUTF8,
    testing::Values(InvalidCase{"LoneContinuation", "a\x80z", U"a\uFFFDz"},
                    InvalidCase{"OverlongSlash", "\xC0\xAF", U"\uFFFD\uFFFD"},
                    InvalidCase{"OverlongThreeByte", "\xE0\x80\xAF", U"\uFFFD\uFFFD\uFFFD"},
                    InvalidCase{"EncodedSurrogate", "\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD"},
                    InvalidCase{"PastMaximum", "\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD"},
                    InvalidCase{"TruncatedAtEnd", "ok\xE2\x88", U"ok\uFFFD"},
                    InvalidCase{"TruncatedBeforeASCII", "\xF0\x9F\x8E" "A", U"\uFFFDA"},
                    InvalidCase{"InvalidLeadBytes", "\xFE\xFF", U"\uFFFD\uFFFD"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(UTFConversion, InvalidCodePointsAreNeverWritten) {
  std::string out;
  AppendUTF8(out, 0xD800);
  AppendUTF8(out, 0x110000);
  EXPECT_EQ(out, "\xEF\xBF\xBD\xEF\xBF\xBD");
}

} // namespace
