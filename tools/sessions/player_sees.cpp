#include <algorithm>
#include <array>
#include <utility>

#include "sessions/player.h"
#include "store/draw_record.h"

// What a person sees on the desk, held against what there is to see.

namespace sessions {
namespace {

constexpr std::size_t kBalls = 7;

// The procedures that change draws. They fail only where the disk does.
constexpr std::array<const char*, 9> kStoring{
    "SaveNewRecord", "DoDataBase",    "Form_Unload",     "StorePending", "Undo",
    "cmdSave_Click", "cmdedit_Click", "Command18_Click", "Label18_Click"};

Draws WithoutBlanks(Draws draws) {
  const auto first =
      std::find_if(draws.begin(), draws.end(), [](const Draw& draw) { return draw != kBlank; });
  draws.erase(draws.begin(), first);
  return draws;
}

bool HasText(const std::vector<std::string>& texts, const std::string& words) {
  return std::any_of(texts.begin(), texts.end(), [&](const std::string& text) {
    return text.find(words) != std::string::npos;
  });
}

}  // namespace

Fields Player::InBoxes() const {
  Fields fields;
  for (std::size_t k = 0; k < kBalls; ++k) fields[k] = Main()->BallBox(static_cast<int>(k)).Text();
  fields[kBalls] = Main()->txtDate.Text();
  fields[kBalls + 1] = Main()->TxtBall07.Text();
  return fields;
}

Fields Player::InPanel() const {
  Fields fields;
  for (std::size_t k = 0; k < fields.size(); ++k) {
    fields[k] = Main()->TxtChange(static_cast<int>(k)).Text();
  }
  return fields;
}

Draws Player::Lines() const {
  Draws draws;
  for (const std::string& line : Main()->List7.Rows()) draws.push_back(DrawOfLine(line));
  return WithoutBlanks(draws);
}

Draws Player::Rows() const {
  Draws draws;
  for (const auto& row : Main()->ListView1.Rows()) draws.push_back(DrawOfRow(row));
  return WithoutBlanks(draws);
}

Draw Player::DrawOfRow(const base::ListView::Cells& cells) {
  Fields fields;
  std::copy_n(cells.begin(), std::min(cells.size(), fields.size()), fields.begin());
  return DrawOf(fields);
}

// Another window has read the file anew.
void Player::NoticeWindow() {
  main_window::MainWindow* const main = Main();
  if (main == window_) return;
  window_ = main;
  left_unstored_ = left_unstored_ || belief_.HasToStore();
  belief_.LeaveWindow();
  if (!main) return;
  const std::optional<std::string> bytes = world_.folder.OnDisk(belief_.open);
  if (bytes) belief_.Load(*bytes);
}

void Player::NoticeDraw() {
  if (!Main()) return;
  if (reads_anew_ && Main()->ListView1.RowCount() > 0) {
    reads_anew_ = false;
    const std::optional<std::string> bytes = world_.folder.OnDisk(belief_.open);
    if (bytes) belief_.Load(*bytes);
  }
  if (Main()->cmdedit.Caption() == "Edit") belief_.editing.reset();
  if (!Main()->Picture6.Visible()) belief_.panel_on.reset();
  const Draw seen = DrawOf(InBoxes());
  if (const auto draw = belief_.Identify(seen)) {
    belief_.on_show = draw;
  } else if (seen == kBlank) {
    belief_.on_show.reset();
  } else if (Contains(belief_.FileDraws(), kOdd)) {
    belief_.on_show = kOdd;
  }
}

void Player::CheckLists() {
  if (!Main()) return;

  const Draws lines = Lines();
  const Draws rows = Rows();
  const bool is_as_known = belief_.loaded && lines == belief_.FileDraws();
  if (!is_as_known && HasReadAnew(lines, rows)) {
    failed_ = false;
  } else if (belief_.loaded && Same(lines, belief_.FileDraws())) {
    if (!Becomes(lines, rows, belief_.Waiting())) {
      Complain("the table shows other draws" + Difference(lines, rows));
    }
    failed_ = false;
  } else {
    // A scan that came in a yield of its load leaves the window without a draw, and so does a file
    // that is missing; nothing can be changed then.
    const bool is_bare = lines.empty() && !Main()->cmdAdd.Enabled() && !Main()->cmdedit.Enabled() &&
                         !Main()->Command18.Enabled();
    if (!failed_ && !is_bare) {
      Complain("the list shows other draws" + Difference(belief_.FileDraws(), lines));
    }
    belief_.loaded.reset();
  }
}

// What a file held while the desk had it open.
bool Player::HasReadAnew(const Draws& lines, const Draws& rows) {
  const std::vector<std::string>& past = world_.folder.Past(belief_.open);
  const auto read = std::find_if(past.rbegin(), past.rend(), [&](const std::string& bytes) {
    return Same(lines, Read(bytes).draws) && Same(lines, rows);
  });
  if (read == past.rend()) return false;
  belief_.Load(*read);
  return true;
}

bool Player::HasFailed(const Running& running) const {
  return disk_.Failures() > running.failures_before;
}

void Player::CheckBoxes(const Running& running) {
  Report& report = world_.report;
  if (!running.boxes.empty()) report.Count("acts with boxes");
  const bool refused =
      HasText(running.boxes, "othing was saved") || HasText(running.boxes, "othing was changed");
  if (refused) report.Count("refusals");
  if (refused && running.intent.is_done) Complain("told that nothing was saved, and saved");
  if (HasFailed(running)) report.Count("acts with a failure of the disk");
  if (HasFailed(running) || !running.knew_all || moment_.another_program_came_between) return;
  for (const char* procedure : kStoring) {
    if (!HasText(running.boxes, "illigal operation at " + std::string(procedure))) continue;
    Complain("an error although nothing had failed");
  }
}

// What was done without a word has to be done.
void Player::CheckDone(const Running& running) {
  const Intent& intent = running.intent;
  if (HasFailed(running) || !running.was_done) return;
  const bool stores = intent.kind == Kind::kStore && belief_.HasToStore();
  if (!was_told_ && (left_unstored_ || stores)) {
    Complain("what waited was not stored, and nobody told");
  }
  const bool changes = intent.kind == Kind::kSave ||
                       (intent.kind == Kind::kEdit && !Same(intent.made, intent.target));
  if (running.boxes.empty() && running.knew_all && changes && !intent.is_done) {
    Complain("nothing was saved, and nobody told");
  }
}

void Player::CheckFiles() {
  for (const std::string& difference : world_.folder.Differences()) Complain(difference);
}

}  // namespace sessions
