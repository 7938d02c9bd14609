#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sessions {

// What one run did, act by act, and what was wrong with it; and over all runs, how often what
// happened.
class Report {
 public:
  void Count(std::string_view what) { ++counts_[std::string(what)]; }
  // Adds the counts of another one.
  void Add(const Report& other);
  // "3 saves, 2 edits"
  std::string Counts() const;

  // An act, as a line of a script. What happened inside it stands before it.
  void Begin(const std::string& line);
  void Inside(const std::string& line);
  void End();
  void Complain(const std::string& what);
  const std::vector<std::string>& Complaints() const { return complaints_; }
  std::string Script() const;
  // Acts are printed as they begin.
  bool is_talking = false;

 private:
  std::map<std::string, long> counts_;
  std::vector<std::string> lines_;
  std::string act_;
  std::vector<std::string> inside_;
  std::vector<std::string> complaints_;
};

}  // namespace sessions
