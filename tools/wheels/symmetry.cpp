#include "tools/wheels/symmetry.h"

#include <array>
#include <map>
#include <numeric>
#include <utility>

namespace wheels::tool {
namespace {

Permutation Identity(int pool) {
  Permutation all(static_cast<std::size_t>(pool));
  std::iota(all.begin(), all.end(), 0);
  return all;
}

int& At(Permutation& permutation, int place) {
  return permutation[static_cast<std::size_t>(place)];
}

// Turns the places start..start + length - 1 by one.
void Turn(Permutation& permutation, int start, int length) {
  for (int i = 0; i < length; ++i) At(permutation, start + i) = start + (i + 1) % length;
}

int DrawDivisor(int of, int most, Chance& chance) {
  std::vector<int> divisors;
  for (int divisor = 1; divisor <= most; ++divisor) {
    if (of % divisor == 0) divisors.push_back(divisor);
  }
  return divisors[chance.Below(divisors.size())];
}

// One turn: cycles of one length, and shorter ones whose lengths divide it.
Symmetry Cycles(int pool, Chance& chance) {
  const int length = chance.Between(2, pool);
  Permutation turn = Identity(pool);
  std::string name = "cycles ";
  for (int start = 0; start < pool;) {
    const bool fits = start + length <= pool;
    const bool whole = fits && (start == 0 || chance.Below(4) > 0);
    const int cycle = whole ? length : DrawDivisor(length, pool - start, chance);
    Turn(turn, start, cycle);
    name += (start == 0 ? "" : "+") + std::to_string(cycle);
    start += cycle;
  }
  return {name, {turn}};
}

// Turns of n places, once or several times side by side, and x -> ux of each.
Symmetry Multiplied(int pool, Chance& chance) {
  const int n = chance.Between(3, pool);
  std::vector<int> units;
  for (int unit = 2; unit < n; ++unit) {
    if (std::gcd(unit, n) == 1) units.push_back(unit);
  }
  const int unit = units[chance.Below(units.size())];
  const int copies = chance.Between(1, pool / n);
  Permutation turn = Identity(pool);
  Permutation times = Identity(pool);
  for (int copy = 0; copy < copies; ++copy) {
    Turn(turn, copy * n, n);
    for (int x = 0; x < n; ++x) At(times, copy * n + x) = copy * n + unit * x % n;
  }
  return {std::to_string(copies) + " times " + std::to_string(n) + " with x" + std::to_string(unit),
          {turn, times}};
}

// A grid whose rows and columns turn.
Symmetry Grid(int pool, Chance& chance) {
  const int rows = chance.Between(2, pool / 2);
  const int columns = chance.Between(2, pool / rows);
  Permutation down = Identity(pool);
  Permutation right = Identity(pool);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      At(down, row * columns + column) = (row + 1) % rows * columns + column;
      At(right, row * columns + column) = row * columns + (column + 1) % columns;
    }
  }
  return {"grid " + std::to_string(rows) + "x" + std::to_string(columns), {down, right}};
}

// What symbols 0..n - 1 stand for together: the symbols, their pairs, their ordered pairs.
std::vector<std::pair<int, int>> Things(int kind, int n) {
  std::vector<std::pair<int, int>> things;
  for (int a = 0; a < n; ++a) {
    if (kind == 0) things.emplace_back(a, a);
    for (int b = 0; b < n; ++b) {
      if (kind == 1 ? a < b : kind == 2 && a != b) things.emplace_back(a, b);
    }
  }
  return things;
}

// How a permutation of the symbols moves the things, which stand at start and behind.
void Carry(const Permutation& symbols, int kind, int start, Permutation& places) {
  const auto things = Things(kind, static_cast<int>(symbols.size()));
  std::map<std::pair<int, int>, int> place_of;
  for (const auto& thing : things) {
    place_of.emplace(thing, start + static_cast<int>(place_of.size()));
  }
  for (const auto& [a, b] : things) {
    std::pair<int, int> image{symbols[static_cast<std::size_t>(a)],
                              symbols[static_cast<std::size_t>(b)]};
    if (kind == 1 && image.first > image.second) std::swap(image.first, image.second);
    At(places, place_of.at({a, b})) = place_of.at(image);
  }
}

// Generators of all or of the even permutations of n symbols.
std::array<Permutation, 2> SymbolGenerators(int n, bool even) {
  std::array<Permutation, 2> generators{Identity(n), Identity(n)};
  Turn(generators[0], 0, even ? 3 : 2);
  const bool skip_first = even && n % 2 == 0;
  Turn(generators[1], skip_first ? 1 : 0, skip_first ? n - 1 : n);
  return generators;
}

// The permutations of 3 to 6 symbols on sets of symbols and pairs that fill the pool.
Symmetry Symbols(int pool, Chance& chance) {
  const int n = chance.Between(3, pool < 6 ? 3 : 6);
  const bool even = chance.Below(2) == 0;
  const std::array<Permutation, 2> of_symbols = SymbolGenerators(n, even);
  Symmetry symmetry{(even ? "even of " : "all of ") + std::to_string(n) + " on",
                    {Identity(pool), Identity(pool)}};
  int start = 0;
  for (int tries = 0; tries < 6; ++tries) {
    const int kind = chance.Between(0, 2);
    const int size = static_cast<int>(Things(kind, n).size());
    if (start + size > pool) continue;
    for (std::size_t i = 0; i < of_symbols.size(); ++i) {
      Carry(of_symbols[i], kind, start, symmetry.generators[i]);
    }
    symmetry.name += " " + std::to_string(size);
    start += size;
  }
  return symmetry;
}

}  // namespace

Symmetry NoSymmetry() { return {"no symmetry", {}}; }

Symmetry DrawSymmetry(int pool, Chance& chance) {
  if (pool < 4) return NoSymmetry();
  switch (chance.Below(8)) {
    case 0:
      return Multiplied(pool, chance);
    case 1:
      return Grid(pool, chance);
    case 2:
      return Symbols(pool, chance);
    default:
      return Cycles(pool, chance);
  }
}

}  // namespace wheels::tool
