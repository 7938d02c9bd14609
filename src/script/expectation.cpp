#include "script/expectation.h"

#include "script/regular_expression.h"
#include "script/wrong_script.h"

namespace script {
namespace {

std::string PatternOf(const Expectation& expectation) {
  const std::vector<Word> words = SplitWords(expectation.right);
  if (words.size() != 1 || !words.front().quoted) {
    throw WrongScript("a regular expression stands in quotes: " + expectation.right);
  }
  return words.front().text;
}

nlohmann::json ValueOf(const Expectation& expectation) {
  try {
    return nlohmann::json::parse(expectation.right);
  } catch (const nlohmann::json::exception&) {
    throw WrongScript("no JSON value: " + expectation.right);
  }
}

}  // namespace

std::optional<std::string> Difference(const Expectation& expectation, const Json& answer) {
  const std::string printed = answer.dump();
  const std::string told = expectation.question + " is " + printed;
  if (expectation.sign == '~') {
    if (Found(PatternOf(expectation), printed)) return std::nullopt;
    return told + " and does not match " + expectation.right;
  }
  if (SameJson(answer, ValueOf(expectation))) return std::nullopt;
  return told + " and not " + expectation.right;
}

}  // namespace script
