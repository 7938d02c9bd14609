#include "wheels/covering.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/language/error.h"

namespace wheels {
namespace {

TEST(Covering, ChoosesKOfN) {
  EXPECT_EQ(Choose(20, 6), 38760);
  EXPECT_EQ(Choose(6, 0), 1);
  EXPECT_EQ(Choose(6, 6), 1);
  EXPECT_EQ(Choose(6, 7), 0);
  EXPECT_EQ(Choose(6, -1), 0);
  EXPECT_EQ(Choose(60, 30), 118264581564861424);
}

TEST(Covering, KnowsTheLeastNumberOfLines) {
  const struct {
    int pool, pick, match;
    long lines;
  } cases[] = {
      {6, 6, 3, 1},   {10, 5, 1, 2},  {7, 3, 2, 7},         {8, 4, 3, 14},   {10, 4, 3, 30},
      {7, 4, 3, 11},  {10, 6, 3, 7},  {26, 6, 3, 130},      {12, 6, 5, 132}, {18, 6, 4, 204},
      {20, 6, 3, 64}, {11, 5, 4, 66}, {20, 10, 10, 184756},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(LeastLines(c.pool, c.pick, c.match), c.lines)
        << c.pool << ' ' << c.pick << ' ' << c.match;
  }
}

TEST(Covering, HasNoLeastNumberForWhatIsNoWheel) {
  EXPECT_THROW(LeastLines(5, 6, 3), base::Error);
  EXPECT_THROW(LeastLines(10, 3, 4), base::Error);
  EXPECT_THROW(LeastLines(10, 3, 0), base::Error);
}

// All subsets of each size of a small pool, met in order of their places.
TEST(Covering, RanksSubsetsInOrderOfTheirPlaces) {
  constexpr int kPool = 9;
  for (int size = 1; size <= kPool; ++size) {
    Places last;
    for (long rank = 0; rank < Choose(kPool, size); ++rank) {
      const Places subset = SubsetAt(rank, size, kPool);
      ASSERT_EQ(subset.size(), static_cast<std::size_t>(size));
      ASSERT_TRUE(std::is_sorted(subset.begin(), subset.end()));
      ASSERT_LT(last, subset);
      ASSERT_EQ(SubsetRank(subset, kPool), rank);
      last = subset;
    }
  }
}

TEST(CoverProof, CountsEachSubsetOnce) {
  CoverProof proof(6, 3);
  EXPECT_EQ(proof.Subsets(), 20);
  EXPECT_EQ(proof.Covered(), 0);
  proof.Add({1, 2, 3, 4});
  EXPECT_EQ(proof.Covered(), 4);
  proof.Add({1, 2, 3, 5});
  EXPECT_EQ(proof.Covered(), 7);
  proof.Add({2, 3});
  EXPECT_EQ(proof.Covered(), 7);
  proof.Add({1, 2, 3, 4, 5, 6});
  EXPECT_EQ(proof.Covered(), 20);
}

TEST(CoverProof, FindsTheFirstUncoveredSubset) {
  CoverProof proof(5, 2);
  EXPECT_EQ(proof.FirstUncovered(), (Places{1, 2}));
  proof.Add({1, 2, 4});
  EXPECT_EQ(proof.FirstUncovered(), (Places{1, 3}));
  proof.Add({1, 3, 5});
  EXPECT_EQ(proof.FirstUncovered(), (Places{2, 3}));
  proof.Add({2, 3, 5});
  EXPECT_EQ(proof.FirstUncovered(), (Places{3, 4}));
  proof.Add({3, 4, 5});
  EXPECT_EQ(proof.FirstUncovered(), Places{});
}

TEST(CoverProof, RefusesWhatIsNoLineOfItsPool) {
  CoverProof proof(6, 2);
  for (const Places& line : {Places{0, 1}, Places{5, 7}, Places{2, 2}, Places{3, 1}}) {
    EXPECT_THROW(proof.Add(line), base::Error);
  }
  EXPECT_EQ(proof.Covered(), 0);
}

TEST(CoverProof, RefusesPoolsThatItCannotHold) {
  EXPECT_THROW(CoverProof(CoverProof::kLargestPool + 1, 3), base::Error);
  EXPECT_THROW(CoverProof(5, 6), base::Error);
  EXPECT_THROW(CoverProof(5, 0), base::Error);
  EXPECT_EQ(CoverProof(CoverProof::kLargestPool, 3).Subsets(), 1140);
}

}  // namespace
}  // namespace wheels
