#include <krocore/utility/StringArena.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

using krocore::utility::StringArena;

TEST(StringArena, CopiesStayValidAndUnchangedWhileMoreAreAdded) {
  StringArena arena(256);
  std::vector<std::string> texts;
  std::vector<std::string_view> copies;
  for (int i = 0; i < 2000; ++i) {
    texts.push_back("key." + std::to_string(i) + std::string(static_cast<std::size_t>(i % 97), 'x'));
    copies.push_back(arena.Copy(texts.back()));
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(copies[i], texts[i]);
    EXPECT_NE(copies[i].data(), texts[i].data());
  }
}

TEST(StringArena, CopiesDoNotOverlap) {
  StringArena arena(64);
  const std::string_view a = arena.Copy("abcdefgh");
  const std::string_view b = arena.Copy("ijklmnop");
  const std::string_view c = arena.Copy(std::string(100, 'z')); // longer than a block
  EXPECT_EQ(a, "abcdefgh");
  EXPECT_EQ(b, "ijklmnop");
  EXPECT_EQ(c, std::string(100, 'z'));
  EXPECT_TRUE(a.data() + a.size() <= b.data() || b.data() + b.size() <= a.data());
}

TEST(StringArena, EmptyTextAndEmbeddedZeros) {
  StringArena arena;
  EXPECT_TRUE(arena.Copy("").empty());
  const std::string withZero("a\0b", 3);
  EXPECT_EQ(arena.Copy(withZero), withZero);
}

TEST(StringArena, AllocateHonoursAlignmentAfterOddSizes) {
  StringArena arena(128);
  for (std::size_t alignment : {1u, 2u, 8u, 16u}) {
    for (int i = 0; i < 50; ++i) {
      arena.Copy("odd");
      void* memory = arena.Allocate(static_cast<std::size_t>(i) + 1, alignment);
      ASSERT_NE(memory, nullptr);
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % alignment, 0u) << alignment << " " << i;
      std::memset(memory, 0xAB, static_cast<std::size_t>(i) + 1); // ASan checks the room is there
    }
  }
}

TEST(StringArena, BadAlignmentIsReportedAndStillGivesAlignedRoom) {
  std::vector<std::string> reports;
  auto previous = krocore::debug::SetAssertionHandler(
      [&](const krocore::debug::AssertionReport& report) { reports.push_back(report.message); });
  StringArena arena;
  void* memory = arena.Allocate(8, 3);
  krocore::debug::SetAssertionHandler(std::move(previous));
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_NE(reports[0].find("power of two"), std::string::npos);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % alignof(std::max_align_t), 0u);
}

TEST(StringArena, CopiesMoveWithTheArena) {
  StringArena arena(64);
  const std::string_view kept = arena.Copy("kept across a move");
  StringArena moved(std::move(arena));
  StringArena assigned;
  assigned = std::move(moved);
  EXPECT_EQ(kept, "kept across a move");
  EXPECT_EQ(assigned.Copy("more"), "more");
}

TEST(StringArena, ClearStartsAfresh) {
  StringArena arena(64);
  for (int i = 0; i < 100; ++i) arena.Copy("some text that fills blocks");
  arena.Clear();
  EXPECT_EQ(arena.Copy("again"), "again");
}
