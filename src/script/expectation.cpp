#include "script/expectation.h"

#include <pthread.h>

#include <exception>
#include <functional>
#include <regex>

#include "script/wrong_script.h"

namespace script {
namespace {

constexpr std::size_t kSearchStack = std::size_t{1} << 29;
// What that stack is surely large enough for.
constexpr std::size_t kLongestSearched = 1'250'000;

// Runs a function on a thread with room for deep recursion, and waits for it.
void RunOnLargeStack(const std::function<void()>& run) {
  struct Task {
    const std::function<void()>& run;
    std::exception_ptr failure;
  } task{run, nullptr};
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, kSearchStack);
  pthread_t thread{};
  const int refused = pthread_create(
      &thread, &attributes,
      [](void* argument) -> void* {
        auto* const task = static_cast<Task*>(argument);
        try {
          task->run();
        } catch (...) {
          task->failure = std::current_exception();
        }
        return nullptr;
      },
      &task);
  pthread_attr_destroy(&attributes);
  if (refused != 0) throw WrongScript("there is no room to search a regular expression");
  pthread_join(thread, nullptr);
  if (task.failure) std::rethrow_exception(task.failure);
}

// The library's search recurses with every character it takes, and a report has many.
bool Search(const std::string& text, const std::string& pattern) {
  if (text.size() > kLongestSearched) {
    throw WrongScript("the answer is too long for a regular expression");
  }
  bool found = false;
  try {
    RunOnLargeStack([&] { found = std::regex_search(text, std::regex(pattern)); });
  } catch (const std::regex_error& error) {
    throw WrongScript("no regular expression: " + pattern + ": " + error.what());
  }
  return found;
}

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
    if (Search(printed, PatternOf(expectation))) return std::nullopt;
    return told + " and does not match " + expectation.right;
  }
  if (SameJson(answer, ValueOf(expectation))) return std::nullopt;
  return told + " and not " + expectation.right;
}

}  // namespace script
