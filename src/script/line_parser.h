#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace script {

// One word of a line in UTF-8. A quoted word is the text of a JSON string and is never read as a
// number or a key word.
struct Word {
  std::string text;
  bool quoted = false;
  bool operator==(const Word&) const = default;
};

// Takes the words of a line one after the other. Words are separated by blanks and tabs.
class WordReader {
 public:
  // The text must outlive the reader.
  explicit WordReader(std::string_view text) : rest_(text) {}

  // The next word, or nothing at the end. Throws WrongScript for a quote that does not close, a
  // text that is no JSON string, or a quote inside or directly behind a word.
  std::optional<Word> Next();
  // What no word was taken of, without blanks at its ends.
  std::string_view Rest() const;

 private:
  std::string_view rest_;
};

std::vector<Word> SplitWords(std::string_view text);

// True for an empty line and for a comment.
bool IsPassedOver(std::string_view line);

// The whole number that an unquoted word is; nothing for every other word.
std::optional<int> WholeNumber(const Word& word);

// "Window", "Window.Control", "Window.Control(7)", each with ".Property" behind it or not. Of
// "Window.Name" the name stands in `control`, be it a control or a property of the window.
struct Reference {
  static constexpr int kNoIndex = -1;
  std::string text;  // as written
  std::string window;
  std::string control;
  int index = kNoIndex;
  std::string property;
};

// Throws WrongScript for a text of another form.
Reference ParseReference(const std::string& text);

// "QUESTION = JSON" or "QUESTION ~ "REGEX"", split at the first sign between blanks outside quotes.
struct Expectation {
  std::string question;
  char sign = '=';
  std::string right;
};

// Throws WrongScript when there is no sign.
Expectation ParseExpectation(std::string_view text);

}  // namespace script
