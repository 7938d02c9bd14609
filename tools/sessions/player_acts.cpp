#include <algorithm>
#include <numeric>
#include <utility>

#include "sessions/player.h"
#include "store/setting_names.h"

// What a person can do at the desk.

namespace sessions {
namespace {

constexpr std::size_t kBalls = 7;
constexpr std::size_t kDate = 7;
constexpr std::size_t kDay = 8;

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

const std::vector<Player::Choice>& Player::Choices() {
  static const std::vector<Choice> choices{
      {6, &Player::PickLine},     {6, &Player::PickRow},
      {6, &Player::Browse},       {8, &Player::Add},
      {3, &Player::TypeDraw},     {1, &Player::TypeAgain},
      {1, &Player::TypeWrong},    {4, &Player::Save},
      {1, &Player::Clear},        {2, &Player::Reset},
      {9, &Player::Edit},         {3, &Player::ChangeABox},
      {8, &Player::RemoveDraw},   {5, &Player::OpenPanel},
      {3, &Player::ChangeACell},  {3, &Player::Accept},
      {1, &Player::Cancel},       {3, &Player::Scan},
      {1, &Player::FilterDays},   {1, &Player::StartFrom},
      {3, &Player::ActivateMain}, {5, &Player::OpenMain},
      {4, &Player::CloseMain},    {2, &Player::ShowAnother},
      {2, &Player::CloseAnother}, {5, &Player::StorePending},
      {7, &Player::Undo},         {1, &Player::ChooseDatabase},
      {2, &Player::BreakDisk},    {3, &Player::Restart},
      {4, &Player::Elsewhere},
  };
  return choices;
}

void Player::Act() {
  NoticeWindow();
  NoticeDraw();
  if (next_ && desk_ && Main() && world_.chance.Percent(75)) {
    (this->*std::exchange(next_, nullptr))();
    return;
  }
  next_ = nullptr;
  const std::vector<Choice>& choices = Choices();
  const int all = std::accumulate(choices.begin(), choices.end(), 0,
                                  [](int sum, const Choice& c) { return sum + c.weight; });
  int left = world_.chance.Between(1, all);
  const auto choice = std::find_if(choices.begin(), choices.end(), [&](const Choice& candidate) {
    left -= candidate.weight;
    return left <= 0;
  });
  const auto act = choice->act;
  if (!desk_) return act == &Player::Elsewhere ? elsewhere_() : Start();
  const bool needs_no_window = act == &Player::OpenMain || act == &Player::Restart ||
                               act == &Player::Elsewhere || act == &Player::ShowAnother ||
                               act == &Player::CloseAnother || act == &Player::ChooseDatabase ||
                               act == &Player::BreakDisk || act == &Player::Undo ||
                               act == &Player::StorePending;
  if (Main() || needs_no_window) (this->*act)();
}

void Player::Click(base::Control& control, Intent intent, std::function<void()> then) {
  Do({.line = "click " + control.FullName(),
      .act = [&] { desk_->User().Click(control); },
      .intent = std::move(intent),
      .then = std::move(then)});
}

bool Player::IsEditing() const { return Main()->cmdedit.Caption() != "Edit"; }

void Player::Paste(base::TextBox& box, const std::string& text) {
  Do({.line = "paste " + box.FullName() + " " + Quoted(text),
      .act = [&] { desk_->User().Paste(box, text); }});
}

// --- Browsing

void Player::PickLine() {
  base::ListBox& list = Main()->List7;
  if (list.ListCount() == 0) return;
  const int row = world_.chance.Between(0, list.ListCount() - 1);
  Do({.line = "pick MainWindow.List7 " + std::to_string(row),
      .act = [&] { desk_->User().Pick(list, row); }});
}

void Player::PickRow() {
  base::ListView& table = Main()->ListView1;
  if (table.RowCount() == 0) return;
  const int row = world_.chance.Between(1, table.RowCount());
  Do({.line = "pick MainWindow.ListView1 " + std::to_string(row),
      .act = [&] { desk_->User().Pick(table, row); }});
}

void Player::Browse() {
  main_window::MainWindow& window = *Main();
  Click(*world_.chance.OneOf<base::Button*>(
      {&window.cmdFirst, &window.cmdPrev, &window.cmdNext, &window.cmdLast}));
}

void Player::Scan() { Click(Main()->CmdScan); }

void Player::FilterDays() {
  base::ComboBox& days = Main()->Combo7;
  const int day = world_.chance.Between(0, days.ListCount() - 1);
  Do({.line = "pick MainWindow.Combo7 " + std::to_string(day),
      .act = [&] { desk_->User().Pick(days, day); }});
}

void Player::StartFrom() {
  base::TextBox& box = Main()->TxtStartDrawAt(0);
  const std::string keys = "{Back}" + std::to_string(world_.chance.Between(0, 40));
  Do({.line = "type MainWindow.TxtStartDrawAt(0) " + Quoted(keys),
      .act = [&] { desk_->User().Type(box, keys); }});
}

// --- Entry

void Player::Add() {
  Click(Main()->cmdAdd);
  next_ = world_.chance.Percent(10) ? &Player::TypeWrong : &Player::TypeDraw;
}

void Player::TypeDraw() {
  if (!Main()->cmdSave.Enabled()) return;
  last_typed_ = world_.NewDraw();
  Type(last_typed_);
}

void Player::TypeAgain() {
  if (Main()->cmdSave.Enabled() && !last_typed_.empty()) Type(last_typed_);
}

// The balls in any order, box by box, or the whole draw as one line.
void Player::Type(const Draw& draw) {
  Fields fields = FieldsOf(draw);
  for (std::size_t k = 0; k < 4; ++k) {
    std::swap(fields[k], fields[static_cast<std::size_t>(world_.chance.Between(0, 4))]);
  }
  if (world_.chance.Percent(30)) {
    std::string line = fields[kDate];
    for (std::size_t k = 0; k < kBalls; ++k) line += " " + fields[k];
    Paste(Main()->TxtBall01, line);
  } else {
    for (std::size_t k = 0; k < kBalls && Main(); ++k) {
      Paste(Main()->BallBox(static_cast<int>(k)), fields[k]);
    }
    if (Main()) Paste(Main()->txtDate, fields[kDate]);
    if (Main()) Paste(Main()->TxtBall07, fields[kDay]);
  }
  next_ = &Player::Save;
}

void Player::TypeWrong() {
  if (!Main()->cmdSave.Enabled()) return;
  TypeDraw();
  if (!Main()) return;
  const int wrong = world_.chance.Between(0, 4);
  if (wrong == 0) Paste(Main()->TxtBall03, "");
  if (wrong == 1) Paste(Main()->TxtBall04, "105");
  if (wrong == 2) Paste(Main()->TxtBall07, "");
  if (wrong == 3) Paste(Main()->txtDate, "05/11/155");
  if (wrong == 4) Paste(Main()->txtDate, "");
}

void Player::Save() {
  Click(Main()->cmdSave, {.kind = Kind::kSave, .made = SortedDrawOf(InBoxes())});
}

void Player::Clear() {
  Click(Main()->cmdClear);
  next_ = &Player::TypeDraw;
}

void Player::Reset() { Click(Main()->CmdReset); }

void Player::Edit() {
  if (IsEditing()) {
    if (!belief_.editing) Complain("an edit that nobody began");
    return SaveEdit(DrawOf(InBoxes()), belief_.editing.value_or(kOdd));
  }
  Click(Main()->cmdedit, {}, [this, on_show = belief_.on_show] {
    if (!IsEditing()) return;
    if (!on_show) Complain("an edit begins although no draw is on show");
    belief_.editing = on_show;
    next_ = &Player::ChangeABox;
  });
}

void Player::SaveEdit(const Draw& made, const Draw& target) {
  Click(Main()->cmdedit, {.kind = Kind::kEdit, .made = made, .target = target});
}

void Player::ChangeABox() {
  const int box = world_.chance.Between(0, 9);
  if (box < static_cast<int>(kBalls)) {
    Paste(Main()->BallBox(box), world_.NewBall());
  } else if (box == 7) {
    Paste(Main()->txtDate, world_.NewDate());
  } else if (box == 8) {
    Paste(Main()->TxtBall07, world_.chance.OneOf<std::string>({"Su", "Mon", "Sat"}));
  } else {
    Paste(Main()->txtDate, world_.chance.Percent(20) ? "7/10/15" : world_.NewDate());
  }
  if (Main() && IsEditing()) next_ = &Player::Edit;
}

// --- The table

void Player::RemoveDraw() {
  Click(Main()->Command18, {}, [this, on_show = belief_.on_show, rows = Rows().size()] {
    if (Rows().size() >= rows) return;
    if (!on_show) return Complain("a removal although no draw is on show");
    belief_.Remove(*on_show);
    world_.report.Count("removals");
  });
}

void Player::OpenPanel() {
  base::ListView& table = Main()->ListView1;
  const int row = table.SelectedIndex();
  if (row < 1) return;
  const Draw draw = belief_.Identify(DrawOfRow(table.Row(row))).value_or(kOdd);
  Do({.line = "dblclick MainWindow.ListView1",
      .act = [&] { desk_->User().DoubleClick(table); },
      .then = [this, draw] { belief_.panel_on = draw; }});
  next_ = &Player::ChangeACell;
}

void Player::Accept() {
  if (!Main()->Picture6.Visible()) return;
  Click(Main()->Label18, {}, [this, draw = belief_.panel_on, made = DrawOf(InPanel())] {
    // Of a draw that was removed meanwhile there is no row to correct.
    if (Main()->Picture6.Visible() || !draw || !Contains(Rows(), made)) return;
    belief_.Correct(*draw, made);
    world_.report.Count("corrected rows");
  });
}

void Player::ChangeACell() {
  if (!Main()->Picture6.Visible()) return;
  const int cell = world_.chance.Between(0, 8);
  std::string text = world_.NewBall();
  if (cell == 7) text = world_.chance.Percent(20) ? "7/10/15" : world_.NewDate();
  if (cell == 8) text = world_.chance.OneOf<std::string>({"Su", "Mo"});
  Paste(Main()->TxtChange(cell), text);
  next_ = world_.chance.Percent(20) ? &Player::ChangeACell : &Player::Accept;
}

void Player::Cancel() {
  if (Main()->Picture6.Visible()) Click(Main()->CmdCancelSave);
}

// --- Windows

void Player::ActivateMain() {
  belief_.Activate();
  Do({.line = "activate MainWindow",
      .act = [this] { desk_->User().Switch(*Main()); },
      .then = [this] { belief_.Activate(); }});
}

void Player::OpenMain() {
  shell::FrmMain* const frame = desk_->Frame();
  if (!frame) return;
  belief_.Activate();
  Do({.line = "menu MnuMainWindow",
      .act = [&] { desk_->User().Choose(frame->MnuMainWindow); },
      .then = [this] { belief_.Activate(); }});
}

void Player::CloseMain() {
  Do({.line = "close MainWindow",
      .act = [this] { desk_->User().Close(*Main()); },
      .intent = {.kind = Kind::kClose}});
  next_ = &Player::OpenMain;
}

void Player::ShowAnother() {
  shell::FrmMain* const frame = desk_->Frame();
  if (!frame) return;
  base::MenuItem* const item = world_.chance.OneOf<base::MenuItem*>(
      {&frame->MnuOptions, &frame->mnuHelpAbout, &frame->MnuNumberSelector, &frame->MnuWheel});
  Do({.line = "menu " + item->Name(), .act = [&] { desk_->User().Choose(*item); }});
}

void Player::CloseAnother() {
  for (base::Form* const form : desk_->Desktop().OpenForms()) {
    if (form == Main() || form == desk_->Frame()) continue;
    Do({.line = "close " + form->Name(), .act = [&] { desk_->User().Close(*form); }});
    return;
  }
}

void Player::Restart() {
  if (!running_.empty()) return;
  if (world_.chance.Percent(30)) {
    Kill();
  } else {
    Stop();
  }
  if (!desk_) Start();
}

// --- Storing and taking back

void Player::StorePending() {
  Do({.line = "call StorePending",
      .act = [this] { desk_->StorePending(); },
      .intent = {.kind = Kind::kStore}});
}

void Player::Undo() {
  std::string told;
  const std::vector<Belief::StepBack> steps = belief_.StepsBack();
  Do({.line = "call Undo",
      .act = [&] { told = desk_->Undo(); },
      .intent = {.kind = Kind::kUndo},
      .then = [&] { CheckUndone(steps, told); }});
}

void Player::CheckUndone(const std::vector<Belief::StepBack>& steps, const std::string& told) {
  if (!told.empty()) world_.report.Count("steps back");
  const std::string wrong = belief_.StepBackTold(steps, told);
  if (!wrong.empty()) Complain(wrong);
  const bool could =
      !steps.empty() && steps.front().is_sure && running_.size() == 1 && belief_.loaded;
  if (could && told.empty() && !was_told_ && !HasFailed(*running_.back())) {
    Complain("nothing was taken back, and nobody told");
  }
}

// --- The world

void Player::ChooseDatabase() {
  const std::string name = world_.chance.OneOf<std::string>(
      {"UK-National-Lottery.dat", "UK-National-Lottery.dat", "Other.dat", "US-Small.dat"});
  world_.report.Inside("# the setting DataBaseName becomes " + name);
  world_.settings.Save(store::kDeskApplication, store::kDataSection, store::kDataBaseNameKey, name);
  if (running_.empty()) world_.report.End();
}

void Player::BreakDisk() {
  const int n = world_.chance.Between(1, 12);
  const int error =
      world_.chance.OneOf<int>({base::kDiskFull, base::kPermission, base::kPathAccess});
  world_.report.Inside("# " + name_ + "operation " + std::to_string(n) + " of the disk fails");
  disk_.FailFromNow(n, error);
  if (running_.empty()) world_.report.End();
}

}  // namespace sessions
