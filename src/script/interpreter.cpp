#include "script/interpreter.h"

#include <algorithm>
#include <istream>
#include <map>
#include <ostream>

#include "base/controls/user.h"
#include "base/language/code_page.h"
#include "base/language/error.h"
#include "script/acts.h"
#include "script/expectation.h"
#include "script/questions.h"
#include "script/wrong_script.h"

namespace script {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Throws WrongScript for a line whose command does not exist, before its time has come.
void DemandCommand(std::string_view line) {
  WordReader reader(line);
  const std::optional<Word> command = reader.Next();
  if (!command) throw WrongScript("a command is missing");
  const bool known = *command == Word{"during"} || *command == Word{"expect"} ||
                     (!command->quoted && (FindAct(command->text) || FindQuestion(command->text)));
  if (!known) throw WrongScript("unknown command: " + command->text);
}

}  // namespace

int Interpreter::Run(std::istream& script) {
  status_ = kWholeScriptRan;
  try {
    RunLines(script);
    if (rules_.strict) TellUnused();
  } catch (const RunEnded&) {
    // The reason has been told.
  }
  return status_;
}

void Interpreter::RunLines(std::istream& script) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    std::string_view text = line;
    if (number == 1 && text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    if (!IsPassedOver(text)) RunLine(text, number);
  }
}

void Interpreter::RunLine(std::string_view line, int number) {
  try {
    Execute(line, number);
  } catch (const WrongScript& wrong) {
    Tell(number, wrong.what(), kScriptWrong);
  } catch (const base::ActRefused& refused) {
    Tell(number, base::ToUtf8(refused.what()), kScriptWrong);
  } catch (const base::Error& error) {
    Tell(number, base::ToUtf8(error.Description()), kScriptWrong);
  }
}

void Interpreter::Execute(std::string_view line, int number) {
  DemandCommand(line);
  stage_.line = number;
  WordReader reader(line);
  const Word command = *reader.Next();
  if (command.text == "during") return During(reader, number);
  if (command.text == "expect") return Expect(reader.Rest(), number);
  const Arguments words(SplitWords(line));
  if (const Act& act = FindAct(command.text)) return act(stage_, words);
  out_ << Ask(words).dump() << std::endl;
}

void Interpreter::During(WordReader& reader, int number) {
  const std::optional<Word> count = reader.Next();
  const std::optional<int> n = count ? WholeNumber(*count) : std::nullopt;
  if (!n || *n < 1) throw WrongScript("during needs the number of a yield, from 1");
  DemandCommand(reader.Rest());
  stage_.ports.pump.InYield(
      *n, [this, line = std::string(reader.Rest()), number] { RunLine(line, number); }, number);
}

void Interpreter::Expect(std::string_view text, int number) {
  const Expectation expectation = ParseExpectation(text);
  const Json answer = Ask(Arguments(SplitWords(expectation.question)));
  if (const auto difference = Difference(expectation, answer)) {
    Tell(number, *difference, kExpectFailed);
  }
}

Json Interpreter::Ask(const Arguments& words) {
  const Question& question = FindQuestion(words.Command());
  if (!question) throw WrongScript("no question: " + words.Command());
  return question(stage_, words);
}

void Interpreter::TellUnused() {
  std::multimap<int, std::string> unused;
  for (const int line : stage_.ports.pump.Waiting()) unused.emplace(line, "this during never ran");
  for (const auto& [answer, line] : stage_.ports.boxes.answers) {
    unused.emplace(line, std::string("nothing took the answer ") + Name(answer));
  }
  for (const auto& [input, line] : stage_.ports.boxes.inputs) {
    unused.emplace(line, "nothing took the input " + (input ? TextJson(*input).dump() : "cancel"));
  }
  for (const auto& [line, why] : unused) TellAt(line, why);
  if (!unused.empty()) status_ = std::max<int>(status_, kExpectFailed);
}

void Interpreter::TellAt(int number, const std::string& why) {
  err_ << file_ << ':' << number << ": " << why << std::endl;
}

void Interpreter::Tell(int number, const std::string& why, ExitStatus status) {
  TellAt(number, why);
  status_ = std::max(status_, static_cast<int>(status));
  if (status == kScriptWrong || !rules_.keep_going) throw RunEnded();
}

}  // namespace script
