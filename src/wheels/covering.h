#pragma once

#include <vector>

// The arithmetic of wheels: how few lines can do, and the proof that given lines do it.
//
// A wheel of pool v, pick k and match t is a set of lines of k places out of 1..v such that each
// t places lie together in some line. Places ascend within a line or subset.

namespace wheels {

using Places = std::vector<int>;

// How many ways there are to choose k of n things; 0 when k is below 0 or above n.
long Choose(int n, int k);

// No wheel has fewer lines than this (Schönheim's bound). Throws base::Error kInvalidCall unless
// 1 <= match <= pick <= pool.
long LeastLines(int pool, int pick, int match);

// Where a subset stands among all subsets of its size of 1..pool, in order of their places and
// counted from 0; and back. The subset must ascend within 1..pool, the rank must exist.
long SubsetRank(const Places& subset, int pool);
Places SubsetAt(long rank, int size, int pool);

// Which subsets of `match` of the places 1..pool lie in some line: one bit for each subset.
class CoverProof {
 public:
  // Throws base::Error kInvalidCall unless 1 <= match <= pool <= kLargestPool.
  CoverProof(int pool, int match);

  // Takes one line more. Its places must ascend within 1..pool, otherwise base::Error
  // kInvalidCall is thrown and nothing is marked. A line of fewer than `match` places covers
  // nothing.
  void Add(const Places& line);

  long Subsets() const { return static_cast<long>(covered_.size()); }
  long Covered() const;
  // The first subset, in order of places, that no line holds; empty when each is held.
  Places FirstUncovered() const;

  static constexpr int kLargestPool = 20;

 private:
  // Marks all subsets that go on, with `size` places, after the place at `from` of the line. The
  // subsets that precede the place after `last` number `rank` so far.
  void Mark(const Places& line, std::size_t from, int size, int last, long rank);

  int pool_;
  int match_;
  std::vector<bool> covered_;  // by SubsetRank
};

}  // namespace wheels
