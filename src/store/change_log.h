#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace store {

// Rows of the table of draws that are not in the file yet, by the place of their draw: the cells of
// a corrected row, or nothing where the row was removed.
using PendingRows = std::map<int, std::optional<std::vector<std::string>>>;

// What makes one run of bytes of another: everything between the beginning and the end that both
// share.
struct ByteChange {
  std::size_t offset = 0;
  std::string old_bytes{};
  std::string new_bytes{};
  bool IsNone() const { return old_bytes.empty() && new_bytes.empty(); }
};
ByteChange ChangeOf(std::string_view before, std::string_view after);
// Whether the bytes are such as the change made them.
bool IsIn(const ByteChange& change, std::string_view after);
std::string TakenBack(const ByteChange& change, std::string_view after);

// The changes of the draws since the window came up, for taking them back, the newest first.
class ChangeLog {
 public:
  // One change. `told` says what was done, as a person reads it; it is empty for a rewrite that
  // only brought pending rows to the file, which is taken back together with the change before it.
  struct Change {
    std::string told{};
    ByteChange bytes{};
    PendingRows pending_before{};
    int place = 0;  // of the draw concerned
  };
  // The draws as they were before the newest change.
  struct Undoing {
    std::string told{};
    std::string bytes{};
    PendingRows pending{};
    int place = 0;
    std::size_t changes = 0;  // how many of the log this takes back
  };

  void Add(Change change) { changes_.push_back(std::move(change)); }
  void Clear() { changes_.clear(); }
  // What was pending has been given up: nothing of it can be taken back any more.
  void ForgetPending();
  // Empty when there is nothing to take back.
  std::string_view Newest() const;
  // Nothing where nothing can be taken back, or the bytes are not what the newest change made.
  std::optional<Undoing> PlanUndo(std::string_view bytes) const;
  void Drop(std::size_t changes);

 private:
  std::vector<Change> changes_;
};

}  // namespace store
