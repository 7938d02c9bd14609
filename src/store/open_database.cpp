#include "store/open_database.h"

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "store/earlier_states.h"

namespace store {
namespace {

std::string LockPath(const std::string& path) {
  return path.substr(0, path.find_last_of("\\/") + 1) + "." + DatabaseName(path) + ".lock";
}

}  // namespace

// --- The file

void OpenDatabase::Open(const std::string& path) {
  if (path != path_) Close();
  ++loads_;
  is_complete_ = false;
  pending.clear();
  log.Clear();
  keeps_own_rows = false;
  path_ = path;
  TryLock();
  try {
    if (access_ != Access::kMine && !files_.Identify(path)) return Close();
    file_.Open(path);
  } catch (const base::Error&) {
    Close();
    throw;
  }
  if (access_ == Access::kMine) DropTwin();
}

// A desk that was killed between keeping the file and replacing it left a second name of the file
// that is still in use: no earlier state, and what is appended would go into it.
void OpenDatabase::DropTwin() {
  try {
    const std::vector<std::string> states = EarlierStates(files_, path_);
    if (states.empty()) return;
    const std::string newest = PathOfState(path_, states.front());
    const std::optional<base::FileIdentity> state = files_.Identify(newest);
    const std::optional<base::FileIdentity> now = files_.Identify(path_);
    // A database may also be a link to the state that somebody went back to, which stays then.
    if (!state || !now || !state->IsSameFile(*now) || state->names < 2) return;
    const std::string aside = newest + ".twin";
    files_.Rename(newest, aside);
    if (files_.Identify(path_)) {
      files_.Remove(aside);
    } else {
      files_.Rename(aside, newest);
    }
  } catch (const base::Error&) {
    // One state too many does no harm.
  }
}

void OpenDatabase::Close() {
  file_.Close();
  lock_.reset();
  access_ = Access::kNone;
  path_.clear();
  BeginWalk();
}

std::string OpenDatabase::Name() const { return DatabaseName(path_); }

// --- The lock

OpenDatabase::Access OpenDatabase::TryLock() {
  if (lock_) return access_;
  base::LockAttempt attempt = files_.TryLock(LockPath(path_));
  lock_ = std::move(attempt.lock);
  access_ = lock_ ? Access::kMine : attempt.held_by_another ? Access::kInUse : Access::kNone;
  if (lock_ && IsOpen()) DropTwin();
  return access_;
}

// --- Draws

void OpenDatabase::BeginWalk() {
  file_.Forget();
  positions_ = {0};
  next_ = 1;
  is_complete_ = false;
  begins_blank_ = false;
}

std::int32_t OpenDatabase::Next(DrawRecord& record) {
  const std::int32_t position = next_;
  if (UpperBound() == 0) begins_blank_ = Length() == 0;
  if (IsOpen()) {
    next_ = file_.Read(position, record);
  } else {
    record = {};
  }
  base::AddInt16(base::ToInt16(UpperBound()), 1);  // the counter of draws holds no more
  positions_.push_back(position);
  return next_;
}

void OpenDatabase::EndWalk() {
  if (!IsOpen()) return;
  file_.Bytes();
  is_complete_ = true;
}

std::int32_t OpenDatabase::PositionOf(double draw_number) const {
  const std::int32_t index = base::ToInt32(draw_number);
  if (index < 0 || index > UpperBound()) throw base::Error(base::kSubscript);
  return positions_[static_cast<std::size_t>(index)];
}

int OpenDatabase::PlaceOf(int number) const {
  if (!begins_blank_) return number;
  return number == 1 ? kBlankPlace : number - 1;
}

int OpenDatabase::NumberOf(int place) const {
  if (place == kBlankPlace) return 1;
  return begins_blank_ ? place + 1 : place;
}

void OpenDatabase::DropBlank() {
  begins_blank_ = false;
  IndexBytes();
}

// The index of what was written: nothing is read back.
void OpenDatabase::IndexBytes() {
  positions_ = {0};
  if (begins_blank_) positions_.push_back(1);
  DrawRecord draw;
  if (Length() == 0) {
    positions_ = {0, 1};
    begins_blank_ = true;
    return;
  }
  std::int32_t position = 1;
  do {
    positions_.push_back(position);
    position = file_.Read(position, draw);
  } while (position < Length());
}

// --- Changes

OpenDatabase::Standing OpenDatabase::Compare() {
  const std::optional<base::FileIdentity> now = files_.Identify(path_);
  if (!now) return Standing::kGone;
  try {
    if (files_.ReadAll(path_) != file_.Bytes()) return Standing::kChanged;
  } catch (const base::Error& error) {
    if (error.Number() == base::kFileNotFound) return Standing::kGone;  // a moment ago
    throw;
  }
  if (!file_.IsTheFile(*now)) file_.Reopen(path_);
  return Standing::kAsRead;
}

std::optional<std::int16_t> OpenDatabase::Append(const DrawRecord& record) {
  const std::int16_t number = base::ToInt16(static_cast<double>(positions_.size()));
  positions_.reserve(positions_.size() + 1);
  // A save that was cut short has left a record torn: it is made whole in the same step, so that it
  // does not swallow the new one.
  std::string missing;
  std::size_t left_over = 0;
  if (Length() > 0) {
    DrawRecord last;
    const auto begin = static_cast<std::size_t>(positions_.back() - 1);
    RecordEnd end = DecodeRecord(file_.Bytes(), begin, last);
    // A single byte behind it is too little to be a record; the new one goes on with it.
    left_over = file_.Bytes().size() - end.offset;
    missing = std::move(end.missing);
  }
  const std::size_t old_size = file_.Bytes().size();
  const std::size_t begin = old_size + missing.size() - left_over;
  const std::string added = missing + EncodeRecord(record).substr(left_over);
  file_.Append(added);
  if (!IsStored(added)) {
    file_.Adopt(file_.Bytes().substr(0, old_size));
    return std::nullopt;
  }
  positions_.push_back(static_cast<std::int32_t>(begin + 1));
  return number;
}

// Whether what was appended is in the file that the path leads to now. Another program may have put
// its own there, with the new draw or without, or have written in front of it or behind it.
bool OpenDatabase::IsStored(const std::string& added) {
  try {
    const std::string there = files_.ReadAll(path_);
    const std::string& mine = file_.Bytes();
    if (there.starts_with(mine)) return true;
    const std::optional<base::FileIdentity> now = files_.Identify(path_);
    const bool is_mine = now && file_.IsTheFile(*now);
    if (!there.ends_with(added) || (!is_mine && there.size() <= mine.size())) return false;
    // Behind a record that was cut meanwhile it would be a part of that one.
    const std::size_t begin = there.size() - added.size();
    std::size_t at = 0;
    for (DrawRecord draw; at < begin;) at = DecodeRecord(there, at, draw).offset;
    return at == begin;
  } catch (const base::Error& error) {
    return error.Number() != base::kFileNotFound;  // nothing speaks against it
  }
}

// The state of a rewrite that failed, unless the file is gone or another one by now.
void OpenDatabase::DropUnlessAlone(const std::string& kept) {
  try {
    if (files_.ReadAll(path_) == files_.ReadAll(kept)) files_.Remove(kept);
  } catch (const base::Error&) {
    // One state too many does no harm.
  }
}

OpenDatabase::Rewritten OpenDatabase::Rewrite(const std::string& bytes, const base::DateTime& now) {
  if (bytes == file_.Bytes()) return {};
  const std::string kept = KeepEarlierState(files_, path_, now);
  try {
    files_.ReplaceKept(path_, bytes, kept);
  } catch (...) {
    DropUnlessAlone(kept);
    throw;
  }
  Rewritten result{.wrote = true};
  try {
    if (files_.ReadAll(kept) != file_.Bytes()) result.foreign = kept;
  } catch (const base::Error&) {
    // The state is there, if unread.
  }
  file_.Adopt(bytes);
  try {
    file_.Reopen(path_);
  } catch (const base::Error&) {
    // It is opened when it is next needed.
  }
  IndexBytes();
  PruneEarlierStates(files_, path_, {now.year, now.month, now.day});
  return result;
}

void OpenDatabase::KeepWhatWasRead(const base::DateTime& now) {
  try {
    const std::string& bytes = file_.Bytes();
    if (bytes.empty() || files_.ReadAll(path_).starts_with(bytes)) return;
    const std::string state = FreeState(files_, path_, now);
    files_.MakeFolder(FolderOfStates(path_));
    files_.Replace(state, bytes);
  } catch (const base::Error&) {
    // The person has chosen the file; a state that cannot be kept is no reason to refuse it.
  }
}

void OpenDatabase::WriteAgain() {
  if (!files_.Create(path_, file_.Bytes())) return;
  file_.Adopt(std::string(file_.Bytes()));
  file_.Reopen(path_);
}

std::vector<std::string> OpenDatabase::Earlier() const { return EarlierStates(files_, path_); }

}  // namespace store
