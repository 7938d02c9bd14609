#include "script/ports.h"

#include <time.h>

#include <algorithm>

#include "base/language/code_page.h"
#include "script/wrong_script.h"

namespace script {
namespace {

using base::Answer;

std::vector<Answer> AnswersOf(base::BoxButtons buttons) {
  switch (buttons) {
    case base::BoxButtons::kOkCancel:
      return {Answer::kOk, Answer::kCancel};
    case base::BoxButtons::kYesNo:
      return {Answer::kYes, Answer::kNo};
    case base::BoxButtons::kYesNoCancel:
      return {Answer::kYes, Answer::kNo, Answer::kCancel};
    case base::BoxButtons::kRetryCancel:
      return {Answer::kRetry, Answer::kCancel};
    case base::BoxButtons::kOk:
      break;
  }
  return {Answer::kOk};
}

template <typename T>
T TakeFirst(std::deque<Queued<T>>& queue) {
  T first = std::move(queue.front().value);
  queue.pop_front();
  return first;
}

}  // namespace

Answer ScriptedBoxes::Ask(const base::MessageBox& box) {
  Answer answer = base::DefaultAnswer(box.buttons);
  if (!answers.empty()) {
    answer = TakeFirst(answers);
    const std::vector<Answer> offered = AnswersOf(box.buttons);
    if (std::find(offered.begin(), offered.end(), answer) == offered.end()) {
      throw WrongScript(std::string("a box has no button for the answer ") + Name(answer) + ": " +
                        base::ToUtf8(box.text));
    }
  }
  shown.push_back({.message = box, .answer = answer, .input = {}, .typed = {}});
  return answer;
}

std::optional<std::string> ScriptedBoxes::Input(const base::InputBox& box) {
  std::optional<std::string> typed = inputs.empty() ? box.default_text : TakeFirst(inputs);
  shown.push_back({.is_input = true, .message = {}, .input = box, .typed = typed});
  return typed;
}

void ScriptedPump::Pump() {
  ++yields_;
  while (!actions_.empty() && actions_.begin()->first <= yields_) {
    const auto action = actions_.extract(actions_.begin()).mapped();
    action.value();
  }
}

void ScriptedPump::InYield(int n, std::function<void()> action, int line) {
  actions_.emplace(yields_ + n, Queued<std::function<void()>>{std::move(action), line});
}

std::vector<int> ScriptedPump::Waiting() const {
  std::vector<int> lines;
  for (const auto& [yield, action] : actions_) lines.push_back(action.line);
  return lines;
}

base::DateTime ScriptedClock::Now() {
  if (standing) return *standing;
  const time_t now = time(nullptr);
  tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

const char* Name(base::BoxButtons buttons) {
  switch (buttons) {
    case base::BoxButtons::kOkCancel:
      return "okcancel";
    case base::BoxButtons::kYesNo:
      return "yesno";
    case base::BoxButtons::kYesNoCancel:
      return "yesnocancel";
    case base::BoxButtons::kRetryCancel:
      return "retrycancel";
    case base::BoxButtons::kOk:
      break;
  }
  return "ok";
}

const char* Name(base::BoxIcon icon) {
  switch (icon) {
    case base::BoxIcon::kInformation:
      return "information";
    case base::BoxIcon::kQuestion:
      return "question";
    case base::BoxIcon::kExclamation:
      return "exclamation";
    case base::BoxIcon::kCritical:
      return "critical";
    case base::BoxIcon::kNone:
      break;
  }
  return "none";
}

const char* Name(Answer answer) {
  switch (answer) {
    case Answer::kCancel:
      return "cancel";
    case Answer::kYes:
      return "yes";
    case Answer::kNo:
      return "no";
    case Answer::kRetry:
      return "retry";
    case Answer::kOk:
      break;
  }
  return "ok";
}

std::optional<Answer> AnswerNamed(const std::string& name) {
  for (const Answer answer :
       {Answer::kOk, Answer::kCancel, Answer::kYes, Answer::kNo, Answer::kRetry}) {
    if (name == Name(answer)) return answer;
  }
  return std::nullopt;
}

}  // namespace script
