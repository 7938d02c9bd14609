#pragma once

#include <string>
#include <vector>

#include "script/line_parser.h"

namespace script {

// A command and the words behind it. Every method throws WrongScript for a word that is missing or
// of the wrong kind.
class Arguments {
 public:
  explicit Arguments(std::vector<Word> words);

  const std::string& Command() const { return command_; }
  int Count() const { return static_cast<int>(words_.size()); }
  // At least `least` and at most `most` words behind the command.
  void Demand(int least, int most) const;
  void Demand(int count) const { Demand(count, count); }

  // Words count from 0.
  const Word& At(int n) const;
  // The word as a text of the desk, in Windows-1252.
  std::string Text(int n) const;
  int Number(int n) const;
  Reference Ref(int n) const { return ParseReference(At(n).text); }

 private:
  std::string command_;
  std::vector<Word> words_;
};

}  // namespace script
