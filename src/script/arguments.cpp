#include "script/arguments.h"

#include "base/language/code_page.h"
#include "script/wrong_script.h"

namespace script {

Arguments::Arguments(std::vector<Word> words) : words_(std::move(words)) {
  if (words_.empty() || words_.front().quoted) throw WrongScript("a command is missing");
  command_ = words_.front().text;
  words_.erase(words_.begin());
}

void Arguments::Demand(int least, int most) const {
  if (Count() < least) throw WrongScript(command_ + " needs more words");
  if (Count() > most) throw WrongScript(command_ + " has too many words: " + At(most).text);
}

const Word& Arguments::At(int n) const {
  if (n >= Count()) throw WrongScript(command_ + " needs more words");
  return words_[static_cast<std::size_t>(n)];
}

std::string Arguments::Text(int n) const { return base::FromUtf8(At(n).text); }

int Arguments::Number(int n) const {
  const std::optional<int> number = WholeNumber(At(n));
  if (!number) throw WrongScript(command_ + " needs a whole number, not: " + At(n).text);
  return *number;
}

}  // namespace script
