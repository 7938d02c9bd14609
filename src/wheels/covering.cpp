#include "wheels/covering.h"

#include <algorithm>

#include "base/language/error.h"

namespace wheels {
namespace {

// How many subsets of `size` of the places last + 1..pool begin before `place`: all of them but
// those of place..pool.
long SubsetsBefore(int place, int last, int size, int pool) {
  return Choose(pool - last, size) - Choose(pool - place + 1, size);
}

bool AscendsWithin(const Places& places, int pool) {
  int last = 0;
  for (const int place : places) {
    if (place <= last || place > pool) return false;
    last = place;
  }
  return true;
}

}  // namespace

long Choose(int n, int k) {
  if (k < 0 || k > n) return 0;
  long ways = 1;
  for (int i = 1; i <= k; ++i) ways = ways * (n - k + i) / i;
  return ways;
}

long LeastLines(int pool, int pick, int match) {
  if (match < 1 || pick < match || pool < pick) throw base::Error(base::kInvalidCall);
  // Each place stands in as many lines as a wheel of the other places with one pick and one match
  // less has at least.
  long lines = 1;
  for (int fixed = match - 1; fixed >= 0; --fixed) {
    lines = (lines * (pool - fixed) + (pick - fixed) - 1) / (pick - fixed);
  }
  return lines;
}

long SubsetRank(const Places& subset, int pool) {
  long rank = 0;
  int last = 0;
  int size = static_cast<int>(subset.size());
  for (const int place : subset) {
    rank += SubsetsBefore(place, last, size--, pool);
    last = place;
  }
  return rank;
}

Places SubsetAt(long rank, int size, int pool) {
  Places subset;
  for (int place = 1; size > 0 && place <= pool; ++place) {
    const long begin_here = Choose(pool - place, size - 1);
    if (rank >= begin_here) {
      rank -= begin_here;
      continue;
    }
    subset.push_back(place);
    --size;
  }
  return subset;
}

CoverProof::CoverProof(int pool, int match) : pool_(pool), match_(match) {
  if (match < 1 || pool < match || pool > kLargestPool) throw base::Error(base::kInvalidCall);
  covered_.resize(static_cast<std::size_t>(Choose(pool, match)));
}

void CoverProof::Add(const Places& line) {
  if (!AscendsWithin(line, pool_)) throw base::Error(base::kInvalidCall);
  Mark(line, 0, match_, 0, 0);
}

void CoverProof::Mark(const Places& line, std::size_t from, int size, int last, long rank) {
  if (size == 0) {
    covered_[static_cast<std::size_t>(rank)] = true;
    return;
  }
  for (std::size_t i = from; i + static_cast<std::size_t>(size) <= line.size(); ++i) {
    Mark(line, i + 1, size - 1, line[i], rank + SubsetsBefore(line[i], last, size, pool_));
  }
}

long CoverProof::Covered() const {
  return static_cast<long>(std::count(covered_.begin(), covered_.end(), true));
}

Places CoverProof::FirstUncovered() const {
  const auto first = std::find(covered_.begin(), covered_.end(), false);
  if (first == covered_.end()) return {};
  return SubsetAt(first - covered_.begin(), match_, pool_);
}

}  // namespace wheels
