#include <gtest/gtest.h>

#include <chrono>
#include <set>

#include "tools/wheels/line_search.h"
#include "tools/wheels/orbit_cover.h"
#include "tools/wheels/orbits.h"
#include "tools/wheels/point_extension.h"
#include "tools/wheels/search_plan.h"
#include "tools/wheels/symmetry.h"

namespace wheels::tool {
namespace {

// Long enough never to end a search here: that is for the steps.
constexpr std::chrono::hours kTime(1);

Masks Search(const Shape& shape, std::uint64_t seed, long steps) {
  Chance chance(seed);
  Budget budget(steps, kTime);
  const Masks first = FirstLines(shape, chance, budget);
  return LookForFewer(shape, first, chance, budget).lines;
}

TEST(Masks, StandForPlaces) {
  EXPECT_EQ(ToMask({1, 3, 20}), 0x80005u);
  EXPECT_EQ(ToPlaces(0x80005u), (Places{1, 3, 20}));
  EXPECT_EQ(SubsetsOfPool(4, 2), (Masks{3, 5, 6, 9, 10, 12}));
  EXPECT_EQ(SubsetsOfPool(4, 4), Masks{15});
  EXPECT_EQ(SubsetsOfPool(4, 0), Masks{0});
  EXPECT_EQ(SubsetsOf(0b101001, 2), (Masks{0b1001, 0b100001, 0b101000}));
}

TEST(Symmetry, IsMadeOfPermutations) {
  Chance chance(1);
  for (int round = 0; round < 2000; ++round) {
    const int pool = chance.Between(2, kLargestPool);
    const Symmetry symmetry = DrawSymmetry(pool, chance);
    for (const Permutation& permutation : symmetry.generators) {
      const std::set<int> images(permutation.begin(), permutation.end());
      ASSERT_EQ(images.size(), static_cast<std::size_t>(pool)) << symmetry.name;
      ASSERT_EQ(*images.begin(), 0);
      ASSERT_EQ(*images.rbegin(), pool - 1);
    }
  }
}

TEST(Orbits, TakeLinesTogether) {
  // Seven places that turn: 5 orbits of three places, each of seven lines, and 3 of pairs.
  const Symmetry turn{"turn", {{1, 2, 3, 4, 5, 6, 0}}};
  const OrbitTable table = MakeOrbits({2, 3, 7}, turn, 100);
  ASSERT_EQ(table.orbits.size(), 5u);
  EXPECT_EQ(table.covered_by.size(), 3u);
  std::size_t perfect = 0;
  for (const OrbitTable::Orbit& orbit : table.orbits) {
    EXPECT_EQ(orbit.lines.size(), 7u);
    if (orbit.covers.size() == 3) ++perfect;
  }
  EXPECT_EQ(perfect, 2u);
  EXPECT_EQ(MakeOrbits({2, 3, 7}, turn, 7).orbits.size(), 0u);
  EXPECT_EQ(MakeOrbits({2, 3, 7}, NoSymmetry(), 7).orbits.size(), 35u);
}

TEST(OrbitCover, FindsThePlaneOfSevenPlaces) {
  const OrbitTable table = MakeOrbits({2, 3, 7}, NoSymmetry(), 20);
  Chance chance(1);
  Budget budget(10'000, kTime);
  OrbitCover cover(table, chance);
  const std::optional<Masks> lines = cover.Run(8, 10'000, budget);
  ASSERT_TRUE(lines);
  EXPECT_EQ(Flaws(ToDesign({2, 3, 7}, *lines)), std::vector<std::string>{});
  EXPECT_EQ(lines->size(), 7u);
}

TEST(OrbitCover, FindsNothingWhereNothingIs) {
  const OrbitTable table = MakeOrbits({2, 3, 7}, NoSymmetry(), 20);
  Chance chance(1);
  Budget budget(5'000, kTime);
  for (const std::size_t limit : {7, 1, 0}) {
    EXPECT_FALSE(OrbitCover(table, chance).Run(limit, 1'000, budget));
  }
  const OrbitTable empty;
  EXPECT_FALSE(OrbitCover(empty, chance).Run(8, 1'000, budget));
}

TEST(LineSearch, ExchangesPlacesUntilAllIsCovered) {
  const Shape shape{3, 4, 8};
  Chance chance(1);
  Budget budget(100'000, kTime);
  const std::optional<Masks> lines =
      LineSearch(shape, chance).Run(Masks(14, 0b1111), 100'000, budget);
  ASSERT_TRUE(lines);
  EXPECT_EQ(Flaws(ToDesign(shape, *lines)), std::vector<std::string>{});
}

TEST(LineSearch, StopsWhenItsStepsAreUsedUp) {
  Chance chance(1);
  Budget budget(100, kTime);
  LineSearch search({3, 4, 8}, chance);
  EXPECT_FALSE(search.Run(Masks(13, 0b1111), 60, budget));
  EXPECT_TRUE(budget.IsLeft());
  EXPECT_FALSE(search.Run(Masks(13, 0b1111), 60, budget));
  EXPECT_FALSE(budget.IsLeft());
  EXPECT_FALSE(search.Run({}, 60, budget));
}

TEST(PointExtension, IsAWheelOfOnePlaceMore) {
  const Masks without{0b0111, 0b1011, 0b1101, 0b1110};  // pairs of four places in threes
  const Masks with{0b0011, 0b1100};                     // single places in pairs
  const Design design = ToDesign({2, 3, 5}, Extended(without, with, 5));
  EXPECT_EQ(design.lines.size(), 6u);
  EXPECT_EQ(Flaws(design), std::vector<std::string>{});
}

TEST(PointExtension, GivesAWheelOfAnyShape) {
  for (const Shape& shape : {Shape{1, 2, 7}, Shape{3, 4, 4}, Shape{3, 5, 20}, Shape{5, 6, 13}}) {
    Chance chance(1);
    Budget budget(0, kTime);
    const Design design = ToDesign(shape, FirstLines(shape, chance, budget));
    EXPECT_EQ(Flaws(design), std::vector<std::string>{}) << DesignFileName(shape);
  }
}

TEST(SearchPlan, ReachesTheBestKnownSizes) {
  const struct {
    Shape shape;
    std::size_t lines;
  } cases[] = {
      {{3, 4, 7}, 12}, {{3, 4, 8}, 14}, {{3, 5, 10}, 17}, {{3, 6, 10}, 10},
      {{4, 5, 8}, 20}, {{4, 6, 9}, 12}, {{5, 6, 8}, 12},
  };
  for (const auto& c : cases) {
    const Masks lines = Search(c.shape, 7, 40'000);
    EXPECT_EQ(lines.size(), c.lines) << DesignFileName(c.shape);
    EXPECT_EQ(Flaws(ToDesign(c.shape, lines)), std::vector<std::string>{});
  }
}

// Symmetry finds what exchanges alone hardly ever do.
TEST(SearchPlan, FindsTheSymmetricOnes) { EXPECT_EQ(Search({3, 4, 14}, 7, 200'000).size(), 91u); }

TEST(SearchPlan, IsRepeatable) {
  const Shape shape{3, 5, 13};
  EXPECT_EQ(Search(shape, 3, 9'000), Search(shape, 3, 9'000));
  EXPECT_NE(Search(shape, 3, 9'000), Search(shape, 4, 9'000));
}

TEST(SearchPlan, NeverReturnsMoreLines) {
  const Shape shape{3, 6, 11};
  Chance chance(1);
  Budget some(20'000, kTime);
  const Masks first = FirstLines(shape, chance, some);
  for (const long steps : {0, 1, 100, 5'000}) {
    Budget budget(steps, kTime);
    EXPECT_LE(LookForFewer(shape, first, chance, budget).lines.size(), first.size());
  }
}

}  // namespace
}  // namespace wheels::tool
