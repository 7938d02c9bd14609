#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace test {

// One call of a file function of the C library, by its name without the 64 that some bear.
struct SystemCall {
  std::string name;
  std::string path;  // of the file, or what the descriptor is open on as far as the host tells
  std::string to;    // the new name of a rename or a link
  int flags = 0;     // of an open, a flock and whatever else takes some

  std::string Text() const;  // "fsync /a", "rename /a /b"
};

// Sees every file call that this thread makes while it lives, in order, and makes one of them go
// wrong if it is told to. A program that has this file among its objects has its own functions
// stand in front of those of the C library; without a SystemCalls they pass every call straight on.
// Only one may live in a thread at a time.
//
// Numbers count from now, 1 is the next call. With a name, only calls of that name count.
class SystemCalls {
 public:
  SystemCalls();
  ~SystemCalls();
  SystemCalls(const SystemCalls&) = delete;
  SystemCalls& operator=(const SystemCalls&) = delete;

  // The nth call does nothing and fails with this errno, once. (A close that fails has closed.)
  void FailFromNow(int n, int error, std::string name = {});
  // From now on, whatever else it is told: the disk knows no call of this name.
  void Lack(const std::string& name, int error) { lacking_[name] = error; }
  // The first call of each name fails with EINTR.
  void InterruptEachKind();
  // The nth read or write stops after half of its bytes, but not before the first.
  void ShortenFromNow(int n);
  // This process kills itself right before the nth call has done anything, or right after it.
  void KillBefore(int n);
  void KillAfter(int n);
  // Something else happens right before the nth call; it may tell what that one is to do.
  void ActBefore(int n, std::function<void()> act, std::string name = {});

  // Whether what it was told last has happened.
  bool HasStruck() const { return has_struck_; }
  const std::vector<SystemCall>& Seen() const { return seen_; }
  // What was seen as texts, paths in this folder told from there on ("fsync a", "fsync .").
  std::vector<std::string> Texts(const std::string& folder) const;

 private:
  friend struct SystemCallGate;
  enum class Plan { kNone, kFail, kInterruptEachKind, kShorten, kKillBefore, kKillAfter, kAct };

  void Arm(Plan plan, int n, int error = 0, std::string name = {});
  bool IsCounted(const std::string& name) const;
  bool IsNextToStrike(const std::string& name) const;
  int ErrorOf(const SystemCall& call);  // 0 if it is to be made

  Plan plan_ = Plan::kNone;
  int left_ = 0;
  int error_ = 0;
  std::string name_;
  std::function<void()> act_;
  std::map<std::string, int> lacking_;
  bool has_struck_ = false;
  std::vector<std::string> interrupted_;
  std::vector<SystemCall> seen_;
};

}  // namespace test
