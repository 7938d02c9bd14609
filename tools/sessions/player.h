#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/controls/user.h"
#include "sessions/belief.h"
#include "sessions/watched_disk.h"
#include "sessions/world.h"
#include "shell/desk.h"

namespace sessions {

// A person at one desk. Acts at random, with other acts in the yields, and holds what the desk
// shows, tells and writes against what it may do.
class Player {
 public:
  // `name` stands before the acts in a script; the first desk has none. `elsewhere` is what happens
  // besides: the other desk, other programs.
  Player(World& world, std::string name, std::function<void()> elsewhere);
  ~Player();

  bool IsRunning() const { return desk_ != nullptr; }
  void Start();
  // The person closes the desk.
  void Stop();
  // The process ends without a word.
  void Kill();
  // One act of those that can be done now.
  void Act();
  // The name of the database that is open, or was.
  const std::string& Database() const { return belief_.open; }

 private:
  class Eyes;
  class Boxes;
  class Yields;
  class Clock;
  struct Choice {
    int weight;
    void (Player::*act)();
  };
  // An act that is running.
  struct Running {
    Intent intent{};
    std::vector<std::string> boxes{};
    int failures_before = 0;
    bool knew_all = false;
    bool was_done = false;
  };
  // One act as it is to be done.
  struct Step {
    std::string line{};
    std::function<void()> act{};
    Intent intent{};
    // What the person knows by it, once it is done.
    std::function<void()> then{};
  };

  // --- Doing
  using Kind = Intent::Kind;
  void Do(Step step);
  void Announce(const std::string& line);
  void CountDone(const Running& running);
  void Finish(const Running& running, const Step& step);
  bool Try(const std::function<void()>& act);
  bool IsOutermost() const { return running_.size() == 1; }
  void InAYield();
  base::Answer Ask(const base::MessageBox& box);

  // --- Acts (player_acts.cpp)
  static const std::vector<Choice>& Choices();
  void PickLine();
  void PickRow();
  void Browse();
  void Add();
  void TypeDraw();
  void TypeAgain();
  void TypeWrong();
  void Save();
  void Clear();
  void Reset();
  void Edit();
  void SaveEdit(const Draw& made, const Draw& target);
  void ChangeABox();
  void RemoveDraw();
  void OpenPanel();
  void ChangeACell();
  void Accept();
  void Cancel();
  void Scan();
  void FilterDays();
  void StartFrom();
  void ActivateMain();
  void OpenMain();
  void CloseMain();
  void ShowAnother();
  void CloseAnother();
  void StorePending();
  void Undo();
  void CheckUndone(const std::vector<Belief::StepBack>& steps, const std::string& told);
  void ChooseDatabase();
  void BreakDisk();
  void Restart();
  void Elsewhere() { elsewhere_(); }
  void Click(base::Control& control, Intent intent = {}, std::function<void()> then = {});
  bool IsEditing() const;
  void Paste(base::TextBox& box, const std::string& text);
  void Type(const Draw& draw);

  // --- Seeing (player_sees.cpp)
  main_window::MainWindow* Main() const { return desk_ ? desk_->Main() : nullptr; }
  Fields InBoxes() const;
  Fields InPanel() const;
  Draws Lines() const;
  Draws Rows() const;
  static Draw DrawOfRow(const base::ListView::Cells& cells);
  void NoticeWindow();
  void NoticeDraw();
  void CheckLists();
  bool HasReadAnew(const Draws& lines, const Draws& rows);
  void CheckDone(const Running& running);
  bool HasFailed(const Running& running) const;
  void CheckBoxes(const Running& running);
  void CheckFiles();
  void Complain(const std::string& what);

  // --- What the disk tells
  std::optional<std::string> BytesOf(const std::string& path) const;
  void Opened(const std::string& path, bool came_into_being);
  void BeforeWrite(const std::string& path, bool is_append);
  void Wrote(const WriteSeen& write);
  void WroteBeside(const std::string& name, const WriteSeen& write);
  void Removed(const std::string& path, const std::string& bytes);

  World& world_;
  const std::string name_;
  const std::function<void()> elsewhere_;
  Belief belief_;
  std::unique_ptr<Eyes> eyes_;
  WatchedDisk disk_;
  std::unique_ptr<Boxes> boxes_;
  std::unique_ptr<Yields> pump_;
  std::unique_ptr<Clock> clock_;
  test::FixedRegion region_;
  std::unique_ptr<shell::Desk> desk_;

  std::vector<Running*> running_;
  main_window::MainWindow* window_ = nullptr;  // the one known last
  Moment moment_;
  std::optional<std::string> held_;  // before another state was loaded in its place
  std::string kept_;                 // the earlier state kept last
  bool failed_ = false;              // the disk failed since every draw was known

  bool was_told_ = false;       // a box came since the outermost act began
  bool left_unstored_ = false;  // and a window was left with rows that waited
  std::string last_typed_;
  int yields_ = 0;
  bool reads_anew_ = false;  // the desk loads its buffers again
  int inside_ = 0;           // acts done inside the outermost one
  int yield_percent_ = 0;
  void (Player::*next_)() = nullptr;  // what goes well behind the last act
};

}  // namespace sessions
