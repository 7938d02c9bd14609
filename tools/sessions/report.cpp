#include "sessions/report.h"

#include <cstdio>

namespace sessions {

void Report::Add(const Report& other) {
  for (const auto& [what, count] : other.counts_) counts_[what] += count;
}

std::string Report::Counts() const {
  std::string text;
  for (const auto& [what, count] : counts_) {
    text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + what;
  }
  return text;
}

void Report::Begin(const std::string& line) {
  act_ = line;
  if (is_talking) std::printf("%s\n", line.c_str());
}

void Report::Inside(const std::string& line) {
  inside_.push_back(line);
  if (is_talking) std::printf("  inside: %s\n", line.c_str());
}

void Report::End() {
  lines_.insert(lines_.end(), inside_.begin(), inside_.end());
  if (!act_.empty()) lines_.push_back(act_);
  inside_.clear();
  act_.clear();
}

void Report::Complain(const std::string& what) {
  complaints_.push_back(what);
  Inside("# HERE: " + what);
}

std::string Report::Script() const {
  std::string text;
  for (const std::string& line : lines_) text += line + "\n";
  for (const std::string& line : inside_) text += line + "\n";
  return text + act_ + "\n";
}

}  // namespace sessions
