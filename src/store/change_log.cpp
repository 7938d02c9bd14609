#include "store/change_log.h"

#include <algorithm>

namespace store {

ByteChange ChangeOf(std::string_view before, std::string_view after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  const auto [split, other] = std::mismatch(
      before.begin(), before.begin() + static_cast<std::ptrdiff_t>(shorter), after.begin());
  const auto start = static_cast<std::size_t>(split - before.begin());
  const auto most = static_cast<std::ptrdiff_t>(shorter - start);
  const auto behind = static_cast<std::size_t>(
      std::mismatch(before.rbegin(), before.rbegin() + most, after.rbegin()).first -
      before.rbegin());
  return {.offset = start,
          .old_bytes = std::string(before.substr(start, before.size() - start - behind)),
          .new_bytes = std::string(after.substr(start, after.size() - start - behind))};
}

bool IsIn(const ByteChange& change, std::string_view after) {
  return change.offset <= after.size() && after.substr(change.offset).starts_with(change.new_bytes);
}

std::string TakenBack(const ByteChange& change, std::string_view after) {
  std::string before(after);
  before.replace(change.offset, change.new_bytes.size(), change.old_bytes);
  return before;
}

void ChangeLog::ForgetPending() {
  for (auto change = changes_.rbegin(); change != changes_.rend() && !change->told.empty();
       ++change) {
    change->pending_before.clear();
    if (change->bytes.IsNone()) change->told.clear();
  }
  std::erase_if(changes_,
                [](const Change& change) { return change.told.empty() && change.bytes.IsNone(); });
}

std::string_view ChangeLog::Newest() const {
  const auto newest = std::find_if(changes_.rbegin(), changes_.rend(),
                                   [](const Change& change) { return !change.told.empty(); });
  return newest == changes_.rend() ? std::string_view() : newest->told;
}

std::optional<ChangeLog::Undoing> ChangeLog::PlanUndo(std::string_view bytes) const {
  if (Newest().empty()) return std::nullopt;
  Undoing plan{.bytes = std::string(bytes)};
  for (auto change = changes_.rbegin(); plan.told.empty(); ++change) {
    if (!IsIn(change->bytes, plan.bytes)) return std::nullopt;
    plan.bytes = TakenBack(change->bytes, plan.bytes);
    plan.told = change->told;
    plan.pending = change->pending_before;
    plan.place = change->place;
    ++plan.changes;
  }
  return plan;
}

void ChangeLog::Drop(std::size_t changes) { changes_.resize(changes_.size() - changes); }

}  // namespace store
