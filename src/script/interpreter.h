#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "script/arguments.h"
#include "script/json_values.h"
#include "script/stage.h"

namespace script {

enum ExitStatus : int {
  kWholeScriptRan = 0,
  kExpectFailed = 1,
  kScriptWrong = 2,
};

// How strictly a script is held.
struct Rules {
  bool keep_going = false;  // a failed expect does not end the run
  bool strict = false;      // what was queued has to be used
};

// Plays a script on a stage, line by line.
class Interpreter {
 public:
  // `file` is the script's name in messages. Answers to questions go to `out`, one line of JSON
  // each; what is wrong goes to `err` as "FILE:LINE: why".
  Interpreter(Stage& stage, std::string file, Rules rules, std::ostream& out, std::ostream& err)
      : stage_(stage), file_(std::move(file)), rules_(rules), out_(out), err_(err) {}

  // Returns an ExitStatus.
  int Run(std::istream& script);

 private:
  // Ends the run from any depth of nested events. It is no error of the desk, so nothing in the
  // desk takes it.
  struct RunEnded {};

  void RunLines(std::istream& script);
  void RunLine(std::string_view line, int number);
  void Execute(std::string_view line, int number);
  void During(WordReader& reader, int number);
  void Expect(std::string_view text, int number);
  Json Ask(const Arguments& words);
  // Tells of each thing that was queued and never used, in the order of the lines.
  void TellUnused();
  // Tells, and ends the run if the status says so.
  void Tell(int number, const std::string& why, ExitStatus status);
  void TellAt(int number, const std::string& why);

  Stage& stage_;
  const std::string file_;
  const Rules rules_;
  std::ostream& out_;
  std::ostream& err_;
  int status_ = kWholeScriptRan;
};

}  // namespace script
