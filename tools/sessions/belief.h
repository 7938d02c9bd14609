#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sessions/draws.h"
#include "sessions/watched_disk.h"

namespace sessions {

// An act under way that may write to the database, as the person meant it when it began.
struct Intent {
  enum class Kind { kOther, kSave, kEdit, kStore, kClose, kUndo };
  Kind kind = Kind::kOther;
  Draw made{};    // the draw saved, or what an edit makes of one
  Draw target{};  // the draw edited
  bool is_done = false;
};

// What surrounds a write.
struct Moment {
  bool another_program_came_between = false;
  bool may_write_again = false;  // the person said so of a file that is gone
  bool is_kept = false;          // an earlier state holds what was replaced
  bool may_close = false;        // the window was told to close
};

// What one desk may do: a plain model of the draws that it read, of the rows that wait, and of what
// can be taken back. It knows of the desk only what the person did and saw.
class Belief {
 public:
  std::string open;                   // the name of the database
  std::optional<std::string> loaded;  // its bytes as they were read or written last; nothing while
                                      // not every draw is known
  // Each draw as it stands in the file.
  std::optional<Draw> on_show;
  std::optional<Draw> editing;
  std::optional<Draw> panel_on;  // the draw that the row editor was opened on

  Draws FileDraws() const;
  const WaitingRows& Waiting() const { return waiting_; }
  // True when something waits that has to be stored.
  bool HasToStore() const;

  // These bytes were read.
  void Load(const std::string& bytes);
  // They are to be read anew, and nobody knows yet whether they could be.
  void Forget();
  // Nothing that waits or can be taken back outlives a window.
  void LeaveWindow();
  // The window was activated: what waits may be forgotten by that.
  void Activate();

  // The draw in the file that this text stands for.
  std::optional<Draw> Identify(const Draw& seen) const;
  // The draw as the table has it.
  Draw InTable(const Draw& draw) const;

  void Remove(const Draw& draw);
  void Correct(const Draw& draw, const Draw& now);
  // An edit left the draw as it stands in the file, and takes a correction of it back by that.
  void KeepAsItWas(const Draw& draw);

  // The acts that are running, the outermost first.
  std::vector<Intent*> intents;
  // Takes a write of the desk over; what is wrong with it, or nothing.
  std::string Take(const WriteSeen& write, const Moment& moment);

  // What a step back may make of the file.
  struct StepBack {
    std::string told{};
    std::string bytes{};
    WaitingRows waiting{};
    std::size_t left = 0;
    bool is_sure = true;
  };
  std::vector<StepBack> StepsBack() const;
  // Takes a step back over that was told; what is wrong with it, or nothing.
  std::string StepBackTold(const std::vector<StepBack>& steps, const std::string& told);

 private:
  struct Logged {
    std::string told{};
    std::string bytes{};
    WaitingRows waiting{};
    bool is_store = false;
    bool changes_file = false;
    bool may_be_forgotten = false;
  };
  struct Change {
    const Draws& before;
    const Draws& after;
    const WriteSeen& write;
    const Moment& moment;
  };
  std::string WrongPlace(const WriteSeen& write, const Moment& moment) const;
  bool IsExplained(const Change& change);
  bool IsExplainedBy(Intent& intent, const Change& change);
  bool IsSave(Intent& intent, const Change& change);
  bool IsEdit(Intent& intent, const Change& change);
  bool IsStore(const Change& change);
  bool IsStepBack(const Change& change) const;
  WaitingRows::const_iterator Find(const Draw& draw) const;
  void Drop(const Draw& draw);
  void DoubtWhatIsGone();
  bool IsKnownInTable(const Draw& draw) const;
  void Follow(const Change& change, const WaitingRows& stored);

  WaitingRows waiting_;
  std::vector<Logged> log_;
};

}  // namespace sessions
