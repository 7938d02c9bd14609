#include "script/questions.h"

#include <map>
#include <utility>

#include "base/controls/list_controls.h"
#include "base/language/code_page.h"
#include "base/language/text.h"
#include "script/functions.h"
#include "script/globals.h"
#include "script/wrong_script.h"

namespace script {
namespace {

// --- Controls

Json PropertyOf(const base::Control& control, const Reference& reference) {
  const std::string name = reference.property.empty() ? std::string(control.MainProperty())
                                                      : base::FromUtf8(reference.property);
  const std::optional<base::PropertyValue> value = control.Property(name);
  if (!value) throw WrongScript("there is no property " + reference.text);
  return PropertyJson(*value);
}

Json PropertyOf(const base::Form& window, const Reference& reference) {
  const bool has_name = reference.index == Reference::kNoIndex && reference.property.empty();
  const std::string name =
      reference.control.empty() ? "Caption" : base::FromUtf8(reference.control);
  const std::optional<base::PropertyValue> value =
      has_name ? window.Property(name) : std::optional<base::PropertyValue>();
  if (!value) throw WrongScript("there is no control or property " + reference.text);
  return PropertyJson(*value);
}

Json Get(Stage& stage, const Arguments& words) {
  words.Demand(1);
  const Reference reference = words.Ref(0);
  const base::Form& window = stage.Window(reference.window);
  const base::Control* control = FindControl(window, reference);
  return control ? PropertyOf(*control, reference) : PropertyOf(window, reference);
}

Json Rows(Stage& stage, const Arguments& words) {
  words.Demand(1);
  const base::Control& control = stage.Control(words.Ref(0));
  if (control.Kind() == base::ControlKind::kListBox) {
    return TextsJson(static_cast<const base::ListBox&>(control).Rows());
  }
  if (control.Kind() == base::ControlKind::kComboBox) {
    return TextsJson(static_cast<const base::ComboBox&>(control).Items());
  }
  if (control.Kind() != base::ControlKind::kListView) {
    throw WrongScript(control.FullName() + " has no rows");
  }
  Json rows = Json::array();
  for (const auto& cells : static_cast<const base::ListView&>(control).Rows()) {
    rows.push_back(TextsJson(cells));
  }
  return rows;
}

Json Windows(Stage& stage, const Arguments& words) {
  words.Demand(0);
  Json list = Json::array();
  if (!stage.Started()) return list;
  for (const base::Form* form : stage.Desk().Desktop().OpenForms()) {
    if (!form->Visible()) continue;
    list.push_back({{"name", form->Name()}, {"caption", TextJson(form->Caption())}});
  }
  return list;
}

Json Focused(Stage& stage, const Arguments& words) {
  words.Demand(0);
  const base::Control* control = stage.Desk().Desktop().Focused();
  return control ? Json(control->FullName()) : Json();
}

// --- What the desk told and handed out since last asked

Json MessageJson(const ShownBox& box) {
  return {{"kind", "message"},
          {"title", TextJson(box.message.title)},
          {"text", TextJson(box.message.text)},
          {"icon", Name(box.message.icon)},
          {"buttons", Name(box.message.buttons)},
          {"default", Name(base::DefaultAnswer(box.message.buttons))},
          {"answer", Name(box.answer)}};
}

Json InputJson(const ShownBox& box) {
  return {{"kind", "input"},
          {"title", TextJson(box.input.title)},
          {"text", TextJson(box.input.prompt)},
          {"default", TextJson(box.input.default_text)},
          {"answer", box.typed ? TextJson(*box.typed) : Json()}};
}

// Prints and forgets a log.
template <typename Log, typename ToJson>
Json TakeLog(Log& log, const Arguments& words, ToJson to_json) {
  words.Demand(0);
  Json list = Json::array();
  for (const auto& entry : std::exchange(log, {})) list.push_back(to_json(entry));
  return list;
}

Json Boxes(Stage& stage, const Arguments& words) {
  return TakeLog(stage.ports.boxes.shown, words, [](const ShownBox& box) {
    return box.is_input ? InputJson(box) : MessageJson(box);
  });
}

Json Opens(Stage& stage, const Arguments& words) {
  return TakeLog(stage.ports.shell.opened, words, [](const base::ShellOpenRequest& open) {
    return Json{{"verb", TextJson(open.verb)},
                {"file", TextJson(open.file)},
                {"parameters", TextJson(open.parameters)},
                {"folder", TextJson(open.folder)},
                {"show", open.show}};
  });
}

Json Mails(Stage& stage, const Arguments& words) {
  return TakeLog(stage.ports.mail.sent, words, [](const base::MailMessage& mail) {
    return Json{{"recipient", TextJson(mail.recipient)},
                {"subject", TextJson(mail.subject)},
                {"body", TextJson(mail.body)}};
  });
}

Json Prints(Stage& stage, const Arguments& words) {
  return TakeLog(stage.ports.printer.printed, words,
                 [](const std::string& text) { return TextJson(text); });
}

Json Beeps(Stage& stage, const Arguments& words) {
  words.Demand(0);
  return std::exchange(stage.ports.beeper.count, 0);
}

// --- State

Json Global(Stage& stage, const Arguments& words) {
  words.Demand(1);
  std::optional<Json> value = GlobalJson(stage.Desk(), words.Text(0));
  if (!value) throw WrongScript("no shared state is called " + words.At(0).text);
  return std::move(*value);
}

Json Setting(Stage& stage, const Arguments& words) {
  words.Demand(3, 4);
  base::Settings& settings = stage.Settings();
  if (words.Count() == 4) {
    settings.Save(words.Text(0), words.Text(1), words.Text(2), words.Text(3));
  }
  const std::optional<std::string> text =
      settings.Find(words.Text(0), words.Text(1), words.Text(2));
  return text ? TextJson(*text) : Json();
}

Json File(Stage& stage, const Arguments& words) {
  words.Demand(1);
  for (const std::string& name : base::Split(base::ReplaceAll(words.Text(0), "\\", "/"), "/")) {
    if (name == "..") throw WrongScript("a file is asked for below the program folder");
  }
  const std::string path = stage.PathOf(words.Text(0));
  if (!stage.Files().FileExists(path)) return Json();
  return TextJson(stage.Files().ReadAll(path));
}

}  // namespace

const Question& FindQuestion(const std::string& name) {
  static const std::map<std::string, Question> questions{
      {"get", Get},           {"rows", Rows},       {"global", Global}, {"windows", Windows},
      {"boxes", Boxes},       {"opens", Opens},     {"mails", Mails},   {"prints", Prints},
      {"beeps", Beeps},       {"setting", Setting}, {"file", File},     {"focused", Focused},
      {"call", CallFunction},
  };
  static const Question none;
  const auto found = questions.find(name);
  return found == questions.end() ? none : found->second;
}

}  // namespace script
