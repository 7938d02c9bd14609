#include "script/line_parser.h"

#include <charconv>
#include <nlohmann/json.hpp>

#include "base/language/text.h"
#include "script/wrong_script.h"

namespace script {
namespace {

constexpr std::string_view kBlanks = " \t\r";

bool IsBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }

std::string_view Trim(std::string_view text) { return base::Trim(text, kBlanks); }

// The length of the JSON string that a text begins with, quotes included.
std::size_t QuotedLength(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      return i + 1;
    }
  }
  throw WrongScript("a quote is not closed");
}

std::string Unquote(std::string_view text) {
  try {
    return nlohmann::json::parse(text).get<std::string>();
  } catch (const nlohmann::json::exception&) {
    throw WrongScript("no JSON string: " + std::string(text));
  }
}

std::optional<int> Whole(std::string_view text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

// Takes the piece up to the next dot off the text. Dots do not occur inside brackets.
std::string TakePiece(std::string_view& text) {
  const std::size_t dot = text.find('.');
  std::string piece(text.substr(0, dot));
  text.remove_prefix(dot == std::string_view::npos ? text.size() : dot + 1);
  return piece;
}

// Cuts "(7)" off a name. Throws for brackets that hold no number.
int TakeIndex(std::string& name) {
  const std::size_t open = name.find('(');
  if (open == std::string::npos) return Reference::kNoIndex;
  const std::string_view inside =
      std::string_view(name).substr(open + 1, name.size() - open - (name.back() == ')' ? 2 : 1));
  const std::optional<int> index = Whole(inside);
  if (name.back() != ')' || !index || *index < 0) throw WrongScript("no index: " + name);
  name.resize(open);
  return *index;
}

}  // namespace

std::optional<Word> WordReader::Next() {
  rest_ = Trim(rest_);
  if (rest_.empty()) return std::nullopt;
  const bool quoted = rest_.front() == '"';
  std::size_t length = 0;
  if (quoted) {
    length = QuotedLength(rest_);
  } else {
    while (length < rest_.size() && !IsBlank(rest_[length]) && rest_[length] != '"') ++length;
  }
  if (length < rest_.size() && !IsBlank(rest_[length])) {
    throw WrongScript("a blank is missing at: " + std::string(rest_.substr(length)));
  }
  const std::string_view text = rest_.substr(0, length);
  rest_.remove_prefix(length);
  return Word{quoted ? Unquote(text) : std::string(text), quoted};
}

std::string_view WordReader::Rest() const { return Trim(rest_); }

std::vector<Word> SplitWords(std::string_view text) {
  std::vector<Word> words;
  WordReader reader(text);
  while (std::optional<Word> word = reader.Next()) words.push_back(std::move(*word));
  return words;
}

bool IsPassedOver(std::string_view line) {
  const std::string_view text = Trim(line);
  return text.empty() || text.front() == '#';
}

std::optional<int> WholeNumber(const Word& word) {
  return word.quoted ? std::nullopt : Whole(word.text);
}

Reference ParseReference(const std::string& text) {
  Reference reference;
  reference.text = text;
  std::string_view rest = text;
  reference.window = TakePiece(rest);
  reference.control = TakePiece(rest);
  reference.index = TakeIndex(reference.control);
  reference.property = TakePiece(rest);
  const bool control_missing = reference.control.empty() && text.find('.') != std::string::npos;
  if (reference.window.empty() || control_missing || !rest.empty() || text.back() == '.') {
    throw WrongScript("neither a window nor Window.Control: " + text);
  }
  return reference;
}

Expectation ParseExpectation(std::string_view text) {
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (quoted && text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      quoted = !quoted;
    } else if (!quoted && (text[i] == '=' || text[i] == '~') && i > 0 && IsBlank(text[i - 1]) &&
               i + 1 < text.size() && IsBlank(text[i + 1])) {
      return {std::string(Trim(text.substr(0, i))), text[i], std::string(Trim(text.substr(i + 1)))};
    }
  }
  throw WrongScript("expect needs QUESTION = JSON or QUESTION ~ \"REGEX\"");
}

}  // namespace script
