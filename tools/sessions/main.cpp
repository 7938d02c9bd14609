// random-sessions [--runs N] [--seed S] [--folder DIR] [--acts]: plays random sessions at the desk
// and holds the draws on the disk against a plain model. Status 1 when one of them failed.

#include <unistd.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "sessions/session.h"

namespace {

constexpr int kMostTold = 10;

struct Options {
  std::uint64_t runs = 1000;
  std::uint64_t seed = 1;
  std::filesystem::path folder;
  bool tells_acts = false;
};

bool ReadNumber(std::string_view text, std::uint64_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

std::optional<Options> ReadOptions(int count, char** words) {
  Options options;
  for (int n = 1; n < count; ++n) {
    const std::string_view word = words[n];
    const std::string_view value = n + 1 < count ? words[n + 1] : "";
    if (word == "--acts") {
      options.tells_acts = true;
      continue;
    }
    ++n;
    if (word == "--folder" && !value.empty()) {
      options.folder = value;
    } else if (!(word == "--runs" && ReadNumber(value, options.runs)) &&
               !(word == "--seed" && ReadNumber(value, options.seed))) {
      return std::nullopt;
    }
  }
  return options;
}

void Tell(const sessions::Report& report, std::uint64_t seed) {
  std::printf("\nFAILED: random-sessions --seed %llu --runs 1\n",
              static_cast<unsigned long long>(seed));
  for (const std::string& complaint : report.Complaints()) std::printf("  %s\n", complaint.c_str());
  std::printf("%s", report.Script().c_str());
}

int Play(const Options& options) {
  sessions::Report all;
  std::uint64_t failed = 0;
  for (std::uint64_t run = 0; run < options.runs; ++run) {
    const std::uint64_t seed = options.seed + run;
    const auto report = sessions::PlaySession(options.folder, seed, options.tells_acts);
    all.Add(report);
    if (report.Complaints().empty()) continue;
    if (++failed <= kMostTold) Tell(report, seed);
  }
  std::printf("%llu sessions, %llu failed: %s\n", static_cast<unsigned long long>(options.runs),
              static_cast<unsigned long long>(failed), all.Counts().c_str());
  return failed == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  std::optional<Options> options = ReadOptions(count, words);
  if (!options) {
    std::fprintf(stderr, "random-sessions [--runs N] [--seed S] [--folder DIR] [--acts]\n");
    return 2;
  }
  // The folder is made anew by each run, and taken away at the end.
  const std::string own = "random-sessions-" + std::to_string(getpid());
  options->folder = (options->folder.empty() ? std::filesystem::temp_directory_path()
                                             : std::filesystem::absolute(options->folder)) /
                    own;
  const int status = Play(*options);
  std::error_code ignored;
  std::filesystem::remove_all(options->folder, ignored);
  return status;
}
