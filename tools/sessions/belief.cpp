#include "sessions/belief.h"

#include <algorithm>

namespace sessions {
namespace {

std::ptrdiff_t Blanks(const Draws& draws) {
  return std::count(draws.begin(), draws.end(), std::string(kBlank));
}

void LetForget(WaitingRows& rows) {
  for (WaitingRow& row : rows) row.may_be_forgotten = true;
}

// What the desk calls a change; of an odd draw nobody can say.
std::string Told(const Draw& draw, const std::string& done) {
  return draw == kOdd ? kOdd : "Undone: Draw of " + DateOf(draw) + " " + done;
}

}  // namespace

Draws Belief::FileDraws() const { return loaded ? Read(*loaded).draws : Draws{}; }

bool Belief::HasToStore() const {
  return std::any_of(waiting_.begin(), waiting_.end(), [](const WaitingRow& row) {
    return !row.may_be_forgotten && !row.ChangesNothing();
  });
}

void Belief::Load(const std::string& bytes) {
  Forget();
  loaded = bytes;
  DoubtWhatIsGone();
}

void Belief::DoubtWhatIsGone() {
  for (std::optional<Draw>* known : {&on_show, &editing, &panel_on}) {
    if (*known && !Contains(FileDraws(), **known)) *known = kOdd;
  }
}

void Belief::Forget() {
  loaded.reset();
  waiting_.clear();
  log_.clear();
}

void Belief::LeaveWindow() {
  Forget();
  on_show.reset();
  editing.reset();
  panel_on.reset();
}

void Belief::Activate() {
  LetForget(waiting_);
  for (Logged& change : log_) {
    LetForget(change.waiting);
    if (!change.changes_file) change.may_be_forgotten = true;
  }
}

std::optional<Draw> Belief::Identify(const Draw& seen) const {
  const auto corrected = std::find_if(waiting_.begin(), waiting_.end(),
                                      [&](const WaitingRow& row) { return row.now == seen; });
  if (corrected != waiting_.end()) return corrected->was;
  // While an edit is under way the table has it already.
  for (const Intent* intent : intents) {
    const bool is_edit = intent->kind == Intent::Kind::kEdit && !intent->is_done;
    if (is_edit && intent->made == seen) return intent->target;
  }
  const Draws draws = FileDraws();
  // A draw that no box can show is on show where the boxes still hold one that was removed.
  const auto removed = Find(seen);
  if (removed != waiting_.end() && !removed->now && Contains(draws, kOdd)) return kOdd;
  const auto alike = std::count(draws.begin(), draws.end(), seen);
  if (alike > 1) return kOdd;
  if (seen != kBlank && alike == 1) return seen;
  return std::nullopt;
}

Draw Belief::InTable(const Draw& draw) const {
  const auto row = Find(draw);
  return row == waiting_.end() ? draw : row->now.value_or(draw);
}

bool Belief::IsKnownInTable(const Draw& draw) const {
  const auto row = Find(draw);
  return row == waiting_.end() || !row->may_be_forgotten;
}

WaitingRows::const_iterator Belief::Find(const Draw& draw) const {
  if (draw == kOdd) return waiting_.end();
  return std::find_if(waiting_.begin(), waiting_.end(),
                      [&](const WaitingRow& waiting) { return waiting.was == draw; });
}

void Belief::Drop(const Draw& draw) {
  const auto row = Find(draw);
  if (row != waiting_.end()) waiting_.erase(row);
}

void Belief::Remove(const Draw& draw) {
  log_.push_back({.told = IsKnownInTable(draw) ? Told(InTable(draw), "removed") : kOdd,
                  .bytes = loaded.value_or(""),
                  .waiting = waiting_,
                  .may_be_forgotten = draw == kOdd});
  Drop(draw);
  waiting_.push_back({.was = draw, .may_be_forgotten = draw == kOdd});
}

void Belief::Correct(const Draw& draw, const Draw& now) {
  if (InTable(draw) == now) return;
  log_.push_back({.told = Told(now, "changed"),
                  .bytes = loaded.value_or(""),
                  .waiting = waiting_,
                  .may_be_forgotten = draw == kOdd});
  Drop(draw);
  waiting_.push_back({.was = draw, .now = now, .may_be_forgotten = draw == kOdd});
}

void Belief::KeepAsItWas(const Draw& draw) {
  const auto row = Find(draw);
  if (row == waiting_.end()) return;
  log_.push_back({.told = Told(draw, "changed"),
                  .bytes = loaded.value_or(""),
                  .waiting = waiting_,
                  .may_be_forgotten = row->may_be_forgotten});
  waiting_.erase(row);
}

// --- Writes

std::string Belief::WrongPlace(const WriteSeen& write, const Moment& moment) const {
  if (!loaded) return "wrote a database of which it did not know every draw";
  if (!write.after) return "left no file where it wrote";
  // Another program may take the file away, or do in between what the desk is about to do.
  if (moment.another_program_came_between) return {};
  if (!write.before) return "wrote a file that was gone, and nobody had asked for it";
  if (*write.before == *write.after) return "wrote the bytes that stood there";
  if (*write.before != *loaded) return "wrote over what another program had left";
  return {};
}

std::string Belief::Take(const WriteSeen& write, const Moment& moment) {
  if (write.is_append && moment.another_program_came_between && write.before == write.after) {
    return {};  // what was appended went with the file that was taken away
  }
  if (!write.before && moment.may_write_again && loaded && write.after == loaded) return {};
  std::string wrong = WrongPlace(write, moment);
  if (wrong.empty() && write.before && !write.is_append && !moment.is_kept) {
    wrong = "replaced a state that it did not keep";
  }
  if (!wrong.empty()) return wrong;
  const std::string& now = *write.after;
  // Behind what another program had appended in the same moment stands what the desk appended.
  const std::string known =
      write.is_append ? *loaded + now.substr(std::min(write.before.value_or("").size(), now.size()))
                      : now;
  const Reading reading = Read(known);
  const Draws before = FileDraws();
  const bool explained =
      IsExplained({.before = before, .after = reading.draws, .write = write, .moment = moment});
  loaded = known;
  // What another program had cut comes back as it was.
  const bool is_back = !intents.empty() && intents.back()->kind == Intent::Kind::kUndo;
  if (!reading.is_whole && !is_back) return "left a record cut";
  if (Blanks(reading.draws) > Blanks(before)) return "wrote a blank record";
  return explained ? "" : "wrote what nobody had asked for" + Difference(before, reading.draws);
}

bool Belief::IsExplained(const Change& change) {
  for (auto intent = intents.rbegin(); intent != intents.rend(); ++intent) {
    if (IsExplainedBy(**intent, change)) return true;
  }
  return change.moment.may_close && IsStore(change);
}

bool Belief::IsExplainedBy(Intent& intent, const Change& change) {
  switch (intent.kind) {
    case Intent::Kind::kSave:
      return IsSave(intent, change);
    case Intent::Kind::kEdit:
      return IsEdit(intent, change);
    case Intent::Kind::kStore:
    case Intent::Kind::kClose:
      if (!IsStore(change)) return false;
      intent.is_done = true;
      return true;
    case Intent::Kind::kUndo:
      return IsStepBack(change);
    case Intent::Kind::kOther:
      break;
  }
  return false;
}

bool Belief::IsSave(Intent& intent, const Change& change) {
  if (intent.is_done || !change.write.is_append) return false;
  Draws expected = change.before;
  expected.push_back(intent.made);
  if (!Same(change.after, expected)) return false;
  intent.is_done = true;
  log_.push_back({.told = Told(intent.made, "saved"),
                  .bytes = *loaded,
                  .waiting = waiting_,
                  .changes_file = true});
  return true;
}

bool Belief::IsEdit(Intent& intent, const Change& change) {
  if (intent.is_done || change.write.is_append) return false;
  const auto [old, now] = std::mismatch(change.before.begin(), change.before.end(),
                                        change.after.begin(), change.after.end());
  Draws expected = change.before;
  if (old == change.before.end()) {
    // Only a cut draw was made whole.
    if (!Same(intent.made, intent.target)) return false;
  } else {
    if (!Same(*old, intent.target)) return false;
    expected[static_cast<std::size_t>(old - change.before.begin())] = intent.made;
  }
  if (!Same(change.after, expected)) return false;
  intent.is_done = true;
  log_.push_back({.told = Told(intent.made, "changed"),
                  .bytes = *loaded,
                  .waiting = waiting_,
                  .changes_file = true});
  Drop(intent.target);
  Follow(change, {});
  return true;
}

bool Belief::IsStore(const Change& change) {
  if (change.write.is_append || !Becomes(change.before, change.after, waiting_)) return false;
  log_.push_back({.bytes = *loaded, .waiting = waiting_, .is_store = true, .changes_file = true});
  const WaitingRows stored = std::move(waiting_);
  waiting_.clear();
  Follow(change, stored);
  return true;
}

bool Belief::IsStepBack(const Change& change) const {
  const std::vector<StepBack> steps = StepsBack();
  return std::any_of(steps.begin(), steps.end(),
                     [&](const StepBack& step) { return step.bytes == change.write.after; });
}

// A draw that is known by its text goes on by the new one.
void Belief::Follow(const Change& change, const WaitingRows& stored) {
  for (std::optional<Draw>* known : {&on_show, &editing, &panel_on}) {
    if (!*known || Contains(change.after, **known)) continue;
    const auto row = std::find_if(stored.begin(), stored.end(), [&](const WaitingRow& waiting) {
      return waiting.was == **known;
    });
    const auto place = std::find(change.before.begin(), change.before.end(), **known);
    if (row != stored.end()) {
      *known = row->now;
    } else if (change.before.size() == change.after.size() && place != change.before.end()) {
      *known = change.after[static_cast<std::size_t>(place - change.before.begin())];
    } else {
      known->reset();
    }
  }
}

// --- Steps back

std::vector<Belief::StepBack> Belief::StepsBack() const {
  std::vector<StepBack> steps;
  for (std::size_t at = log_.size(); at > 0; --at) {
    const Logged& change = log_[at - 1];
    if (change.is_store) continue;  // goes with the change before it
    steps.push_back({.told = change.told,
                     .bytes = change.bytes,
                     .waiting = change.waiting,
                     .left = at - 1,
                     .is_sure = !change.may_be_forgotten});
    if (!change.may_be_forgotten) break;
  }
  return steps;
}

std::string Belief::StepBackTold(const std::vector<StepBack>& steps, const std::string& told) {
  if (told.empty()) return {};
  const auto step = std::find_if(steps.begin(), steps.end(), [&](const StepBack& candidate) {
    return Same(candidate.told, told) && candidate.bytes == loaded;
  });
  if (step == steps.end()) return "told what was not done: " + told;
  log_.resize(step->left);
  waiting_ = step->waiting;
  DoubtWhatIsGone();
  return {};
}

}  // namespace sessions
