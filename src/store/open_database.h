#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/language/dates.h"
#include "base/ports/file_system.h"
#include "store/change_log.h"
#include "store/draw_file.h"
#include "store/draw_record.h"

namespace store {

// The open database and the only code that opens, appends to, rewrites and reopens its file. Draws
// are written only to the file that they were read from, only while that file is what was read, and
// only as one step that happened whole or not at all. Whoever changes something asks MayWrite,
// IsComplete and Compare first.
class OpenDatabase {
 public:
  explicit OpenDatabase(base::FileSystem& files) : files_(files), file_(files) {}

  // --- The file

  // Closes what was open, locks the database for this desk, and opens the file. A missing one comes
  // into being, empty, unless the lock is not to be had: then none is open, as where it cannot be
  // opened, which throws.
  void Open(const std::string& path);
  void Close();
  bool IsOpen() const { return file_.IsOpen(); }
  // As it was opened; what settings say by now is of no account.
  const std::string& Path() const { return path_; }
  // The file's name without ".dat", as messages have it.
  std::string Name() const;
  // Grows with every Open: what was known before it holds no longer.
  int Loads() const { return loads_; }
  std::int32_t Length() const { return file_.IsOpen() ? file_.Length() : 0; }

  // --- The lock

  enum class Access {
    kMine,   // changes are stored
    kInUse,  // another desk holds the database
    kNone,   // its disk or folder allows no lock
  };
  Access Lock() const { return access_; }
  // Tries for the lock again unless it is held.
  Access TryLock();

  // --- Draws

  // One walk through the file as it is on the disk now; an empty file, or none, is one blank
  // record. Until EndWalk the database counts as not complete. Next throws error 6 at the 32,768th
  // record, and what the disk throws.
  void BeginWalk();
  // Fills the record; the position behind it.
  std::int32_t Next(DrawRecord& record);
  void EndWalk();

  // Every draw of the file is known. Nothing is ever changed in a database that is not complete.
  bool IsComplete() const { return is_complete_; }
  // The position of record n at n; element 0 holds nothing.
  const std::vector<std::int32_t>& Positions() const { return positions_; }
  int UpperBound() const { return static_cast<int>(positions_.size()) - 1; }
  // Error 9 outside the index.
  std::int32_t PositionOf(double draw_number) const;
  std::int32_t Read(std::int32_t position, DrawRecord& record) {
    return file_.Read(position, record);
  }
  // The index of a file that was empty begins with a blank record, which is in no file and goes
  // when the lists are filled anew. So a draw has a number in the index and a place in the file,
  // from 1, by which lines, rows and changes know it.
  static constexpr int kBlankPlace = 1 << 30;
  bool BeginsBlank() const { return begins_blank_; }
  int PlaceOf(int number) const;
  int NumberOf(int place) const;
  void DropBlank();
  const std::string& Bytes() { return file_.Bytes(); }

  // --- Changes

  enum class Standing { kAsRead, kChanged, kGone };
  // Holds the file on the disk against what was read or last written. Only its bytes count: who
  // touches, copies or synchronises it raises no alarm.
  Standing Compare();
  // Appends a draw; its number in the index. Nothing where the path has come to lead elsewhere
  // since Compare: the draw is not in the database then. Error 6 for the 32,768th, before anything
  // is written.
  std::optional<std::int16_t> Append(const DrawRecord& record);

  struct Rewritten {
    bool wrote = false;     // false where the file held these bytes already
    std::string foreign{};  // the state that was kept, where somebody else had written it meanwhile
  };
  // Puts these bytes in place of the file, of which an earlier state is kept.
  Rewritten Rewrite(const std::string& bytes, const base::DateTime& now);
  // Keeps what was read, or written last, among the earlier states, before a file that somebody
  // else has changed is read in its place. One that only grew has it all.
  void KeepWhatWasRead(const base::DateTime& now);
  // Writes what was read, or written last, to a path where no file is any more; one that has come
  // there meanwhile stays.
  void WriteAgain();
  // The names of the earlier states that are kept, the newest first.
  std::vector<std::string> Earlier() const;

  // --- What is not in the file yet, and what can be taken back

  PendingRows pending;
  ChangeLog log;
  // The person left a file alone that somebody else had changed: what the desk holds is kept beside
  // it at the close.
  bool keeps_own_rows = false;

 private:
  void DropTwin();
  void IndexBytes();
  bool IsStored(const std::string& added);
  void DropUnlessAlone(const std::string& kept);

  base::FileSystem& files_;
  DrawFile file_;
  std::string path_;
  std::unique_ptr<base::FileLock> lock_;
  Access access_ = Access::kNone;
  std::vector<std::int32_t> positions_{0};
  std::int32_t next_ = 1;
  int loads_ = 0;
  bool is_complete_ = false;
  bool begins_blank_ = false;
};

}  // namespace store
