#include "shell/notices.h"

#include "main/draw_lists.h"

namespace shell {
namespace {

using Access = store::OpenDatabase::Access;

constexpr const char* kInUse = "In use by another desk: nothing can be stored";
constexpr const char* kNoLock = "Nothing can be stored in this folder";

}  // namespace

std::vector<Notice> NoticesOf(const store::OpenDatabase& database) {
  std::vector<Notice> notices;
  if (!database.IsOpen()) return notices;
  if (database.Lock() == Access::kInUse) notices.push_back({kInUse});
  if (database.Lock() == Access::kNone) notices.push_back({kNoLock});
  const std::string pending = main_window::PendingText(database.pending);
  if (!pending.empty()) {
    notices.push_back({pending + " not stored yet.", "Store now", Notice::Act::kStorePending});
  }
  const std::string newest(database.log.Newest());
  if (!newest.empty()) notices.push_back({newest + ".", "Undo", Notice::Act::kUndo});
  return notices;
}

}  // namespace shell
