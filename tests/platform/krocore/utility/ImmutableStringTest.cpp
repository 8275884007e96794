#include <krocore/utility/ImmutableString.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <thread>
#include <vector>

using krocore::utility::ImmutableString;

TEST(ImmutableString, EqualTextIsOneIdentity) {
  std::string built = "colors.kls.";
  built += "focus";
  const ImmutableString a("colors.kls.focus");
  const ImmutableString b(built);
  EXPECT_EQ(a, b);
  EXPECT_EQ(a.c_str(), b.c_str());
  EXPECT_NE(a, ImmutableString("colors.kls.Focus"));
  EXPECT_EQ(a.View(), "colors.kls.focus");
  EXPECT_EQ(a.Size(), 16u);
}

TEST(ImmutableString, EmptyAndNullAreTheSameEmptyString) {
  const ImmutableString empty;
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_STREQ(empty.c_str(), "");
  EXPECT_EQ(empty, ImmutableString(static_cast<const char*>(nullptr)));
  EXPECT_EQ(empty, ImmutableString(std::string_view()));
}

TEST(ImmutableString, KeepsEmbeddedZerosAndLongTexts) {
  const std::string withZero("a\0b", 3);
  const ImmutableString s(withZero);
  EXPECT_EQ(s.Size(), 3u);
  EXPECT_NE(s, ImmutableString("a"));
  const std::string longText(200000, 'x');
  EXPECT_EQ(ImmutableString(longText).View(), longText);
  EXPECT_EQ(ImmutableString(longText), ImmutableString(longText));
}

TEST(ImmutableString, IsInternedDoesNotIntern) {
  // A text of its own on every run, so that repeated runs start afresh.
  static int run = 0;
  const std::string text = "never.seen.before." + std::to_string(++run);
  EXPECT_FALSE(ImmutableString::IsInterned(text));
  EXPECT_FALSE(ImmutableString::IsInterned(text));
  ImmutableString{std::string_view(text)};
  EXPECT_TRUE(ImmutableString::IsInterned(text));
}

TEST(ImmutableString, OrderingIsConsistentAndLexicalLessSortsText) {
  std::set<ImmutableString> byIdentity{ImmutableString("b"), ImmutableString("a"), ImmutableString("b")};
  EXPECT_EQ(byIdentity.size(), 2u);
  std::set<ImmutableString, krocore::utility::LexicalLess> byText{"zeta", "alpha", "mu"};
  EXPECT_EQ(byText.begin()->View(), "alpha");
  EXPECT_EQ(byText.rbegin()->View(), "zeta");
}

TEST(ImmutableString, EightThreadsInterningTheSameTextsAgreeOnIdentity) {
  constexpr int kThreads = 8;
  constexpr int kTexts = 2000;
  std::vector<std::vector<const char*>> seen(kThreads, std::vector<const char*>(kTexts));
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t, &seen] {
      // Each thread walks the texts from its own start, half of them
      // backwards, so that first interning of a text races between threads.
      for (int i = 0; i < kTexts; ++i) {
        const int n = t % 2 ? (kTexts - 1 - i + t * 97) % kTexts : (i + t * 251) % kTexts;
        seen[t][n] = ImmutableString("threaded.key." + std::to_string(n)).c_str();
      }
    });
  }
  for (auto& thread : threads) thread.join();
  std::set<const char*> distinct;
  for (int n = 0; n < kTexts; ++n) {
    for (int t = 1; t < kThreads; ++t) ASSERT_EQ(seen[t][n], seen[0][n]) << "text " << n;
    distinct.insert(seen[0][n]);
    EXPECT_EQ(std::string(seen[0][n]), "threaded.key." + std::to_string(n));
  }
  EXPECT_EQ(distinct.size(), static_cast<size_t>(kTexts));
}
