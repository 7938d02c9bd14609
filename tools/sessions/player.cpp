#include "sessions/player.h"

#include <algorithm>
#include <stdexcept>

#include "sessions/outsider.h"

namespace sessions {
namespace {

constexpr int kDeepest = 3;
constexpr int kMostInside = 6;
constexpr int kMostYields = 20000;

std::vector<base::Answer> AnswersOf(base::BoxButtons buttons) {
  using base::Answer;
  switch (buttons) {
    case base::BoxButtons::kYesNo:
      return {Answer::kYes, Answer::kNo};
    case base::BoxButtons::kYesNoCancel:
      return {Answer::kYes, Answer::kNo, Answer::kCancel};
    case base::BoxButtons::kRetryCancel:
      return {Answer::kCancel};
    case base::BoxButtons::kOkCancel:
      return {Answer::kOk, Answer::kCancel};
    case base::BoxButtons::kOk:
      break;
  }
  return {Answer::kOk};
}

std::string Word(base::Answer answer) {
  switch (answer) {
    case base::Answer::kYes:
      return "yes";
    case base::Answer::kNo:
      return "no";
    case base::Answer::kCancel:
      return "cancel";
    case base::Answer::kRetry:
      return "retry";
    case base::Answer::kOk:
      break;
  }
  return "ok";
}

}  // namespace

// --- The doors of the desk

class Player::Eyes : public WatchedDisk::Watcher {
 public:
  explicit Eyes(Player& player) : player_(player) {}
  std::optional<std::string> BytesOf(const std::string& path) override {
    return player_.BytesOf(path);
  }
  void Opened(const std::string& path, bool came_into_being) override {
    player_.Opened(path, came_into_being);
  }
  void BeforeWrite(const std::string& path, bool is_append) override {
    player_.BeforeWrite(path, is_append);
  }
  void Wrote(const WriteSeen& write) override { player_.Wrote(write); }
  void Kept(const std::string& /*path*/, const std::string& second_path) override {
    player_.kept_ = second_path;
  }
  void Removed(const std::string& path, const std::string& bytes) override {
    player_.Removed(path, bytes);
  }
  void Renamed(const std::string& path, const std::string& new_path) override {
    Folder& folder = player_.world_.folder;
    const std::string name = folder.NameOf(path);
    if (name != "Temp.dat") return player_.Complain("renamed " + name);
    folder.ExpectNone(name);
    folder.Expect(folder.NameOf(new_path), player_.BytesOf(new_path).value_or(""));
  }

 private:
  Player& player_;
};

class Player::Boxes : public base::MessageBoxes {
 public:
  explicit Boxes(Player& player) : player_(player) {}
  base::Answer Ask(const base::MessageBox& box) override { return player_.Ask(box); }

 private:
  Player& player_;
};

class Player::Yields : public base::EventPump {
 public:
  explicit Yields(Player& player) : player_(player) {}
  void Pump() override { player_.InAYield(); }

 private:
  Player& player_;
};

class Player::Clock : public base::Clock {
 public:
  explicit Clock(World& world) : world_(world) {}
  base::DateTime Now() override { return world_.Later(); }

 private:
  World& world_;
};

Player::Player(World& world, std::string name, std::function<void()> elsewhere)
    : world_(world),
      name_(std::move(name)),
      elsewhere_(std::move(elsewhere)),
      eyes_(std::make_unique<Eyes>(*this)),
      disk_(world.disk, *eyes_),
      boxes_(std::make_unique<Boxes>(*this)),
      pump_(std::make_unique<Yields>(*this)),
      clock_(std::make_unique<Clock>(world)) {
  yield_percent_ = world_.chance.OneOf<int>({0, 0, 3, 10, 30});
}

Player::~Player() = default;

// --- Doing

void Player::Start() {
  const base::Ports ports{.boxes = *boxes_,
                          .pump = *pump_,
                          .clock = *clock_,
                          .region = region_,
                          .files = disk_,
                          .settings = world_.settings};
  desk_ = std::make_unique<shell::Desk>(ports, world_.folder.Root().string());
  Do({.line = "start", .act = [this] { desk_->Start(); }});
}

void Player::Stop() {
  Do({.line = "stop", .act = [this] { desk_->Stop(); }, .intent = {.kind = Kind::kClose}});
  if (desk_->Ended()) {
    window_ = nullptr;
    belief_.LeaveWindow();
    desk_.reset();
  } else {
    Complain("the desk does not end");
  }
}

void Player::Kill() {
  world_.report.Begin("# " + name_ + "the desk is killed");
  desk_.reset();
  window_ = nullptr;
  belief_.LeaveWindow();
  world_.report.Count("kills");
  world_.report.End();
}

void Player::Do(Step step) {
  NoticeWindow();
  if (running_.empty()) {
    moment_ = {};
    yields_ = inside_ = 0;
    was_told_ = left_unstored_ = false;
  }
  Running running{.intent = std::move(step.intent),
                  .failures_before = disk_.Failures(),
                  .knew_all = belief_.loaded.has_value()};
  if (running.intent.kind == Kind::kClose) moment_.may_close = true;
  Announce(step.line);
  running_.push_back(&running);
  belief_.intents.push_back(&running.intent);
  running.was_done = Try(step.act);
  belief_.intents.pop_back();
  Finish(running, step);
  running_.pop_back();
  if (name_.empty() && running_.empty()) world_.report.End();
}

void Player::Announce(const std::string& line) {
  Report& report = world_.report;
  report.Count("acts");
  if (!name_.empty()) return report.Inside("# " + name_ + line);
  if (running_.empty()) return report.Begin(line);
  report.Inside("during " + std::to_string(yields_) + " " + line);
}

bool Player::Try(const std::function<void()>& act) {
  try {
    act();
    return true;
  } catch (const base::ActRefused& refusal) {
    world_.report.Inside(std::string("# refused: ") + refusal.what());
  } catch (const base::Error& error) {
    Complain("error " + std::to_string(error.Number()) + " came out of the desk");
  } catch (const std::exception& failure) {
    Complain(std::string("out of the desk came: ") + failure.what());
  }
  return false;
}

void Player::Finish(const Running& running, const Step& step) {
  failed_ = failed_ || HasFailed(running);
  const Intent& intent = running.intent;
  const bool kept = intent.kind == Kind::kEdit && intent.made == intent.target;
  if (kept && running.was_done && running.boxes.empty()) belief_.KeepAsItWas(intent.target);
  NoticeWindow();
  if (running.was_done && Main() && step.then) step.then();
  CountDone(running);
  NoticeDraw();
  CheckBoxes(running);
  CheckFiles();
  if (!IsOutermost()) return;
  CheckLists();
  NoticeDraw();
  CheckDone(running);
}

void Player::CountDone(const Running& running) {
  Report& report = world_.report;
  if (!running.was_done) report.Count("acts that could not be done");
  if (!running.intent.is_done) return;
  if (running.intent.kind == Kind::kSave) report.Count("saves");
  if (running.intent.kind == Kind::kEdit) report.Count("edits");
  if (running.intent.kind == Kind::kStore) report.Count("rows stored");
  if (running.intent.kind == Kind::kClose) report.Count("rows stored at a close");
}

void Player::InAYield() {
  if (++yields_ > kMostYields) throw std::runtime_error("a procedure that does not end");
  if (running_.size() >= kDeepest || inside_ >= kMostInside) return;
  if (!world_.chance.Percent(yield_percent_)) return;
  ++inside_;
  world_.report.Count("acts in a yield");
  const auto next = next_;
  Act();
  next_ = next;
}

base::Answer Player::Ask(const base::MessageBox& box) {
  if (world_.chance.Percent(3)) elsewhere_();
  base::Answer answer = world_.chance.OneOf(AnswersOf(box.buttons));
  if (box.text.find("report the error") != std::string::npos) answer = base::Answer::kNo;
  world_.report.Inside("# box: " + box.text.substr(0, box.text.find("\r\n\r\nDo you wish")));
  if (box.buttons != base::BoxButtons::kOk) world_.report.Inside("answer " + Word(answer));
  if (!running_.empty()) running_.back()->boxes.push_back(box.text);
  was_told_ = true;
  if (box.text.find("no longer in its folder") != std::string::npos) {
    moment_.may_write_again = answer == base::Answer::kYes;
  }
  if (box.title == "Buffers are empty") {
    belief_.LeaveWindow();
    reads_anew_ = true;  // once the box is closed
  }
  const bool asks_to_load = box.text.find("Load it again?") != std::string::npos;
  if (asks_to_load && answer == base::Answer::kYes) {
    held_ = belief_.loaded;
    belief_.Forget();
  }
  return answer;
}

// --- What the disk tells

std::optional<std::string> Player::BytesOf(const std::string& path) const {
  return world_.folder.OnDisk(world_.folder.NameOf(path));
}

void Player::Opened(const std::string& path, bool came_into_being) {
  const std::string name = world_.folder.NameOf(path);
  if (came_into_being) world_.folder.Expect(name, "");
  belief_.open = name;
}

void Player::BeforeWrite(const std::string& path, bool is_append) {
  const std::string name = world_.folder.NameOf(path);
  if (name != belief_.open || !world_.chance.Percent(1)) return;
  const std::string told = is_append || world_.chance.Percent(50) ? AppendFromOutside(world_, name)
                                                                  : ActFromOutside(world_, name);
  if (told.empty()) return;
  world_.report.Inside(told + " between two calls");
  moment_.another_program_came_between = true;
}

void Player::Wrote(const WriteSeen& write) {
  const std::string name = world_.folder.NameOf(write.path);
  if (name != belief_.open) return WroteBeside(name, write);
  moment_.is_kept = !kept_.empty() && BytesOf(kept_) == write.before;
  kept_.clear();
  if (write.after) world_.folder.Expect(name, *write.after);
  if (write.is_append && write.before == write.after) world_.folder.ExpectMore();
  const std::string wrong = belief_.Take(write, moment_);
  if (!wrong.empty()) Complain("the desk " + wrong);
}

// Rows of its own are kept beside a database that another program changed.
void Player::WroteBeside(const std::string& name, const WriteSeen& write) {
  if (!name.starts_with("DataBases/") || !name.ends_with(".dat")) return;
  const std::string own = belief_.open.substr(0, belief_.open.size() - 4) + " own ";
  const bool is_state = name.starts_with("DataBases/Earlier/") && held_ && write.after == held_;
  if (write.before || !(is_state || name.starts_with(own))) {
    return Complain("the desk wrote to " + name);
  }
  world_.folder.Expect(name, *write.after);
  if (is_state) return world_.report.Count("states kept before another was loaded");
  world_.report.Count("own rows kept");
  if (!Becomes(belief_.FileDraws(), Read(*write.after).draws, belief_.Waiting())) {
    Complain("the rows kept as " + name + " are not those that the desk held");
  }
}

void Player::Removed(const std::string& path, const std::string& bytes) {
  const std::string name = world_.folder.NameOf(path);
  world_.folder.ExpectNone(name);
  constexpr std::size_t kStatesKept = 20;
  const bool is_state = name.starts_with("DataBases/Earlier/");
  if (!is_state) return Complain("the desk removed " + name);
  if (bytes == world_.folder.OnDisk(belief_.open)) return;
  if (desk_ && desk_->Earlier().size() >= kStatesKept) return;
  Complain("the desk removed " + name + ", which is needed");
}

void Player::Complain(const std::string& what) { world_.report.Complain(name_ + what); }

}  // namespace sessions
