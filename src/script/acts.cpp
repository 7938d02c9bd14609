#include "script/acts.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "base/controls/list_controls.h"
#include "base/controls/simple_controls.h"
#include "base/language/code_page.h"
#include "base/language/dates.h"
#include "script/wrong_script.h"

namespace script {
namespace {

using base::ControlKind;

// --- The run

void Start(Stage& stage, const Arguments& words) {
  words.Demand(0, 1);
  const bool wait_in_splash = words.Count() == 1;
  if (wait_in_splash && words.At(0) != Word{"splash"}) {
    throw WrongScript("start goes with splash or alone, not with: " + words.At(0).text);
  }
  stage.Start(wait_in_splash);
}

void Stop(Stage& stage, const Arguments& words) {
  words.Demand(0);
  stage.Stop();
}

// "2005-12-05 14:30:00"
base::DateTime LocalTime(const std::string& text) {
  base::DateTime time;
  int length = 0;
  const int fields = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.year, &time.month,
                                 &time.day, &time.hour, &time.minute, &time.second, &length);
  if (fields != 6 || length != static_cast<int>(text.size()) ||
      base::ReadDate(text, base::DateOrder::kMonthFirst) != time) {
    throw WrongScript("no time of the form 2005-12-05 14:30:00: " + text);
  }
  return time;
}

void SetClock(Stage& stage, const Arguments& words) {
  words.Demand(1, 2);
  if (words.At(0) == Word{"real"} && words.Count() == 1) {
    stage.ports.clock.standing.reset();
    return;
  }
  std::string text = words.At(0).text;
  if (words.Count() == 2) text += " " + words.At(1).text;
  stage.ports.clock.standing = LocalTime(text);
}

void QueueAnswers(Stage& stage, const Arguments& words) {
  words.Demand(1, words.Count());
  for (int n = 0; n < words.Count(); ++n) {
    const std::optional<base::Answer> answer = AnswerNamed(words.At(n).text);
    if (!answer) throw WrongScript("no answer to a box: " + words.At(n).text);
    stage.ports.boxes.answers.push_back({*answer, stage.line});
  }
}

void QueueInput(Stage& stage, const Arguments& words) {
  words.Demand(1);
  if (words.At(0) == Word{"cancel"}) {
    stage.ports.boxes.inputs.push_back({std::nullopt, stage.line});
  } else {
    stage.ports.boxes.inputs.push_back({words.Text(0), stage.line});
  }
}

// --- The user at a control

// The control that the first word names. A person can do nothing with one that is disabled.
base::Control& Target(Stage& stage, const Arguments& words) {
  base::Control& control = stage.Control(words.Ref(0));
  if (!control.Enabled()) throw WrongScript(control.FullName() + " is disabled");
  return control;
}

// The same, of one kind of control.
template <typename T>
T& TargetOf(Stage& stage, const Arguments& words, ControlKind kind, const char* what) {
  base::Control& control = Target(stage, words);
  if (control.Kind() != kind) throw WrongScript(control.FullName() + " is no " + what);
  return static_cast<T&>(control);
}

base::Control& FocusTarget(Stage& stage, const Arguments& words) {
  base::Control& control = Target(stage, words);
  if (!control.TakesFocus()) {
    throw WrongScript(control.FullName() + " cannot take the focus");
  }
  return control;
}

void Click(Stage& stage, const Arguments& words) {
  words.Demand(1);
  stage.Desk().User().Click(Target(stage, words));
}

void DoubleClick(Stage& stage, const Arguments& words) {
  words.Demand(1);
  stage.Desk().User().DoubleClick(Target(stage, words));
}

base::MouseButton ButtonNamed(const Arguments& words) {
  words.Demand(1, 2);
  if (words.Count() == 1 || words.At(1).text == "left") return base::MouseButton::kLeft;
  if (words.At(1).text == "right") return base::MouseButton::kRight;
  throw WrongScript("no mouse button: " + words.At(1).text);
}

void Press(Stage& stage, const Arguments& words) {
  const base::MouseButton button = ButtonNamed(words);
  stage.Desk().User().Press(Target(stage, words), button);
}

void Release(Stage& stage, const Arguments& words) {
  const base::MouseButton button = ButtonNamed(words);
  stage.Desk().User().Release(Target(stage, words), button);
}

void Hover(Stage& stage, const Arguments& words) {
  words.Demand(1);
  stage.Desk().User().Hover(Target(stage, words));
}

void Type(Stage& stage, const Arguments& words) {
  words.Demand(2);
  stage.Desk().User().Type(FocusTarget(stage, words), words.Text(1));
}

void Paste(Stage& stage, const Arguments& words) {
  words.Demand(2);
  auto& box = TargetOf<base::TextBox>(stage, words, ControlKind::kTextBox, "text box");
  stage.Desk().User().Paste(box, words.Text(1));
}

void Focus(Stage& stage, const Arguments& words) {
  words.Demand(1);
  stage.Desk().User().Focus(FocusTarget(stage, words));
}

// The place of a text among rows. Throws when it is not among them.
template <typename Rows, typename TextOf>
int PlaceOf(const Rows& rows, const std::string& text, const Word& word, TextOf text_of) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return text_of(row) == text; });
  if (found == rows.end()) throw WrongScript("no row reads: " + word.text);
  return static_cast<int>(found - rows.begin());
}

void Pick(Stage& stage, const Arguments& words) {
  words.Demand(2);
  base::User& user = stage.Desk().User();
  base::Control& control = Target(stage, words);
  const auto whole_row = [](const std::string& row) { return row; };
  const auto first_cell = [](const base::ListView::Cells& row) {
    return row.empty() ? std::string() : row.front();
  };
  const Word& row = words.At(1);
  if (control.Kind() == ControlKind::kListBox) {
    auto& list = static_cast<base::ListBox&>(control);
    user.Pick(list,
              row.quoted ? PlaceOf(list.Rows(), words.Text(1), row, whole_row) : words.Number(1));
  } else if (control.Kind() == ControlKind::kComboBox) {
    auto& combo = static_cast<base::ComboBox&>(control);
    user.Pick(combo,
              row.quoted ? PlaceOf(combo.Items(), words.Text(1), row, whole_row) : words.Number(1));
  } else if (control.Kind() == ControlKind::kListView) {
    auto& table = static_cast<base::ListView&>(control);
    user.Pick(table, row.quoted ? PlaceOf(table.Rows(), words.Text(1), row, first_cell) + 1
                                : words.Number(1));
  } else {
    throw WrongScript(control.FullName() + " has no rows");
  }
}

void Header(Stage& stage, const Arguments& words) {
  words.Demand(2);
  auto& table = TargetOf<base::ListView>(stage, words, ControlKind::kListView, "list view");
  stage.Desk().User().ClickHeader(table, words.Number(1));
}

void Drop(Stage& stage, const Arguments& words) {
  words.Demand(2);
  stage.Desk().User().Drop(Target(stage, words), words.Text(1));
}

void Menu(Stage& stage, const Arguments& words) {
  words.Demand(1);
  std::string name = words.At(0).text;
  if (name.find('.') == std::string::npos) name = "frmMain." + name;
  base::Control& control = stage.Control(ParseReference(name));
  if (control.Kind() != ControlKind::kMenuItem) {
    throw WrongScript(control.FullName() + " is no menu item");
  }
  stage.Desk().User().Choose(static_cast<base::MenuItem&>(control));
}

void Key(Stage& stage, const Arguments& words) {
  words.Demand(2);
  stage.Desk().User().Key(Target(stage, words), words.Number(1));
}

void MoveScroll(Stage& stage, const Arguments& words) {
  words.Demand(2);
  auto& bar = TargetOf<base::Scroll>(stage, words, ControlKind::kScroll, "scroll bar");
  const int value = words.Number(1);
  const auto [least, most] = std::minmax({bar.Min(), bar.Max()});  // a range may run downwards
  if (value < least || value > most) {
    throw WrongScript(bar.FullName() + " does not reach to " + words.At(1).text);
  }
  stage.Desk().User().MoveScroll(bar, value);
}

void Fire(Stage& stage, const Arguments& words) {
  words.Demand(1);
  auto& timer = TargetOf<base::Timer>(stage, words, ControlKind::kTimer, "timer");
  stage.Desk().User().Fire(timer);
}

// --- The user at a window

void Close(Stage& stage, const Arguments& words) {
  words.Demand(1);
  stage.Desk().User().Close(stage.Window(words.At(0).text));
}

void Activate(Stage& stage, const Arguments& words) {
  words.Demand(1);
  stage.Desk().User().Switch(stage.Window(words.At(0).text));
}

}  // namespace

const Act& FindAct(const std::string& name) {
  static const std::map<std::string, Act> acts{
      {"start", Start},
      {"stop", Stop},
      {"clock", SetClock},
      {"answer", QueueAnswers},
      {"input", QueueInput},
      {"click", Click},
      {"dblclick", DoubleClick},
      {"press", Press},
      {"release", Release},
      {"hover", Hover},
      {"type", Type},
      {"paste", Paste},
      {"focus", Focus},
      {"pick", Pick},
      {"header", Header},
      {"drop", Drop},
      {"menu", Menu},
      {"key", Key},
      {"scroll", MoveScroll},
      {"fire", Fire},
      {"close", Close},
      {"activate", Activate},
  };
  static const Act none;
  const auto found = acts.find(name);
  return found == acts.end() ? none : found->second;
}

}  // namespace script
