#include <krocore/utility/Hash.h>

#include <gtest/gtest.h>

#include <bit>
#include <set>
#include <string>

using namespace krocore::utility;

// Published FNV-1a test vectors: a table built on these hashes must not
// change its spread between versions.
static_assert(Fnv1a("") == 0xcbf29ce484222325ull);
static_assert(Fnv1a("a") == 0xaf63dc4c8601ec8cull);
static_assert(Fnv1a("foobar") == 0x85944171f73967e8ull);

TEST(Hash, Fnv1aTreatsBytesAsUnsignedAndContinuesFromABasis) {
  EXPECT_EQ(Fnv1a("\xff"), (kFnv1aOffsetBasis ^ 0xffu) * kFnv1aPrime);
  // Hashing in two pieces is hashing the whole.
  EXPECT_EQ(Fnv1a("bar", Fnv1a("foo")), Fnv1a("foobar"));
  EXPECT_NE(Fnv1a("key", 1), Fnv1a("key", 2));
  EXPECT_NE(Fnv1a(std::string("a\0b", 3)), Fnv1a(std::string("a\0c", 3)));
}

TEST(Hash, GoldenMixSpreadsNeighboursOverTheTopBits) {
  // Pointers that differ in low bits only would all share one slot of a table
  // that takes the top bits; mixed, they spread over most of its slots.
  std::set<std::uint64_t> slots;
  for (std::uint64_t address = 0x7f0000001000; address < 0x7f0000001000 + 64 * 16; address += 16)
    slots.insert(GoldenMix(address) >> (64 - 8));
  EXPECT_GE(slots.size(), 48u);
  EXPECT_EQ(GoldenMix(1), kGoldenRatio64);
}

TEST(Hash, HashCombineDependsOnOrderAndOnEveryPart) {
  EXPECT_NE(HashCombine(1, 2), HashCombine(2, 1));
  EXPECT_NE(HashCombine(7, 0), HashCombine(7, 1));
  EXPECT_NE(HashCombine(0, 5), HashCombine(1, 5));
  // An empty seed still mixes in the constant, so (0, 0) is not 0.
  EXPECT_NE(HashCombine(0, 0), 0u);
}
