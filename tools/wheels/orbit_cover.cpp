#include "tools/wheels/orbit_cover.h"

#include <algorithm>
#include <limits>

namespace wheels::tool {
namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

// Takes one value out of a list whose order means nothing.
void Drop(std::vector<std::uint32_t>& values, std::uint32_t value) {
  *std::find(values.begin(), values.end(), value) = values.back();
  values.pop_back();
}

}  // namespace

OrbitCover::OrbitCover(const OrbitTable& table, Chance& chance)
    : table_(table),
      chance_(chance),
      is_chosen_(table.orbits.size()),
      may_come_back_(table.orbits.size(), true),
      worth_(table.orbits.size()),
      changed_at_(table.orbits.size()),
      times_covered_(table.covered_by.size()),
      weight_(table.covered_by.size(), 1),
      just_chosen_(kNone) {
  for (Index subset = 0; subset < table.covered_by.size(); ++subset) uncovered_.push_back(subset);
  for (Index orbit = 0; orbit < table.orbits.size(); ++orbit) {
    worth_[orbit] = static_cast<long>(table.orbits[orbit].covers.size());
  }
}

bool OrbitCover::CanCover() const {
  return !table_.covered_by.empty() &&
         std::none_of(table_.covered_by.begin(), table_.covered_by.end(),
                      [](const std::vector<Index>& orbits) { return orbits.empty(); });
}

std::optional<Masks> OrbitCover::Run(std::size_t limit, long steps, Budget& budget) {
  if (limit == 0 || !CanCover()) return {};
  for (long step = 1; step <= steps && budget.Spend(); ++step) {
    step_ = step;
    if (!chosen_.empty()) PutAwayOne();
    while (lines_ >= limit) PutAwayOne();
    while (!uncovered_.empty() && CoverOne(limit)) RaiseWeights();
    if (uncovered_.empty()) return Lines();
    RaiseWeights();
  }
  return {};
}

long OrbitCover::Compare(Index a, Index b) const {
  return worth_[a] * static_cast<long>(LinesOf(b)) - worth_[b] * static_cast<long>(LinesOf(a));
}

void OrbitCover::Flip(Index orbit) {
  const bool is_chosen = !is_chosen_[orbit];
  is_chosen_[orbit] = is_chosen;
  changed_at_[orbit] = step_;
  for (const Index subset : table_.orbits[orbit].covers) {
    if (is_chosen) {
      Cover(subset, orbit);
    } else {
      Uncover(subset, orbit);
    }
  }
  if (is_chosen) {
    chosen_.push_back(orbit);
    lines_ += LinesOf(orbit);
  } else {
    Drop(chosen_, orbit);
    lines_ -= LinesOf(orbit);
  }
}

void OrbitCover::Cover(Index subset, Index orbit) {
  const int times = ++times_covered_[subset];
  if (times > 2) return;
  // The first to cover it takes its weight from all others, the second from the first. Its own
  // worth stays: what it gained before is what it would lose now.
  for (const Index other : table_.covered_by[subset]) {
    may_come_back_[other] = true;
    if (other != orbit && (times == 1 || is_chosen_[other])) worth_[other] -= weight_[subset];
  }
  if (times == 1) Drop(uncovered_, subset);
}

void OrbitCover::Uncover(Index subset, Index orbit) {
  const int times = --times_covered_[subset];
  if (times > 1) return;
  for (const Index other : table_.covered_by[subset]) {
    may_come_back_[other] = true;
    if (other != orbit && (times == 0 || is_chosen_[other])) worth_[other] += weight_[subset];
  }
  if (times == 0) uncovered_.push_back(subset);
}

void OrbitCover::PutAwayOne() {
  Index least = kNone;
  for (const Index orbit : chosen_) {
    if (orbit == just_chosen_ && chosen_.size() > 1) continue;
    const long compared = least == kNone ? -1 : Compare(orbit, least);
    if (compared < 0 || (compared == 0 && changed_at_[orbit] < changed_at_[least])) least = orbit;
  }
  Flip(least);
  may_come_back_[least] = false;
}

bool OrbitCover::CoverOne(std::size_t limit) {
  const Index subset = uncovered_[chance_.Below(uncovered_.size())];
  Index best = kNone;
  for (const Index orbit : table_.covered_by[subset]) {
    if (!may_come_back_[orbit]) continue;
    const long compared = best == kNone ? 1 : Compare(orbit, best);
    if (compared > 0 || (compared == 0 && changed_at_[orbit] < changed_at_[best])) best = orbit;
  }
  if (best == kNone || lines_ + LinesOf(best) >= limit) return false;
  Flip(best);
  just_chosen_ = best;
  return true;
}

void OrbitCover::RaiseWeights() {
  for (const Index subset : uncovered_) {
    ++weight_[subset];
    for (const Index orbit : table_.covered_by[subset]) ++worth_[orbit];
  }
}

Masks OrbitCover::Lines() const {
  Masks lines;
  for (const Index orbit : chosen_) {
    lines.insert(lines.end(), table_.orbits[orbit].lines.begin(), table_.orbits[orbit].lines.end());
  }
  return lines;
}

}  // namespace wheels::tool
