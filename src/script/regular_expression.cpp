#include "script/regular_expression.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <new>

#include "script/wrong_script.h"

namespace script {
namespace {

// The library counts its own steps anew at each place of the text where a match may begin. These
// are the steps of the whole search: each part of the pattern that is tried, and each character
// between two of them. A few seconds at most.
constexpr std::uint64_t kMostSteps = 40'000'000;
constexpr std::uint32_t kMostMatchSteps = 10'000'000;
// What the library may come back to lies on the heap, so no text is too long for the stack.
constexpr std::uint32_t kMostKibibytes = 512U * 1024;

struct Steps {
  std::uint64_t taken = 0;
  std::size_t place = 0;
};

template <typename T, void (*release)(T*)>
struct Releaser {
  void operator()(T* thing) const { release(thing); }
};
template <typename T, void (*release)(T*)>
using Owned = std::unique_ptr<T, Releaser<T, release>>;

using Code = Owned<pcre2_code, pcre2_code_free>;
using Match = Owned<pcre2_match_data, pcre2_match_data_free>;
using Limits = Owned<pcre2_match_context, pcre2_match_context_free>;

std::string Message(int error) {
  std::array<PCRE2_UCHAR, 256> text{};
  pcre2_get_error_message(error, text.data(), text.size());
  return {text.begin(), std::find(text.begin(), text.end(), 0)};
}

PCRE2_SPTR Units(const std::string& text) { return reinterpret_cast<PCRE2_SPTR>(text.data()); }

// Called before each part of the pattern is tried.
int CountStep(pcre2_callout_block* callout, void* data) {
  Steps& steps = *static_cast<Steps*>(data);
  const std::size_t place = callout->current_position;
  steps.taken += 1 + (place < steps.place ? steps.place - place : place - steps.place);
  steps.place = place;
  return steps.taken > kMostSteps ? PCRE2_ERROR_MATCHLIMIT : 0;
}

Code Compile(const std::string& pattern) {
  int error = 0;
  PCRE2_SIZE place = 0;
  Code code(pcre2_compile(Units(pattern), pattern.size(), PCRE2_UTF | PCRE2_AUTO_CALLOUT, &error,
                          &place, nullptr));
  if (!code) {
    throw WrongScript("no regular expression: " + pattern + ": " + Message(error));
  }
  return code;
}

Limits MakeLimits(Steps& steps) {
  Limits limits(pcre2_match_context_create(nullptr));
  if (!limits) throw std::bad_alloc();
  pcre2_set_match_limit(limits.get(), kMostMatchSteps);
  pcre2_set_depth_limit(limits.get(), kMostMatchSteps);
  pcre2_set_heap_limit(limits.get(), kMostKibibytes);
  pcre2_set_callout(limits.get(), CountStep, &steps);
  return limits;
}

[[noreturn]] void Refuse(const std::string& pattern, int error) {
  switch (error) {
    case PCRE2_ERROR_MATCHLIMIT:
      throw WrongScript("the regular expression takes too many steps on this answer: " + pattern);
    case PCRE2_ERROR_DEPTHLIMIT:
    case PCRE2_ERROR_HEAPLIMIT:
    case PCRE2_ERROR_NOMEMORY:
      throw WrongScript("the regular expression takes too much memory on this answer: " + pattern);
    default:
      throw WrongScript("the regular expression cannot be searched: " + pattern + ": " +
                        Message(error));
  }
}

}  // namespace

bool Found(const std::string& pattern, const std::string& text) {
  const Code code = Compile(pattern);
  Steps steps;
  const Limits limits = MakeLimits(steps);
  const Match match(pcre2_match_data_create(1, nullptr));
  if (!match) throw std::bad_alloc();
  const int result =
      pcre2_match(code.get(), Units(text), text.size(), 0, 0, match.get(), limits.get());
  if (result == PCRE2_ERROR_NOMATCH) return false;
  if (result < 0) Refuse(pattern, result);
  return true;
}

}  // namespace script
