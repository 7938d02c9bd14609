#include "store/earlier_states.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "base/language/error.h"
#include "base/language/text.h"

namespace store {
namespace {

constexpr std::string_view kEnding = ".dat";
constexpr std::string_view kFolder = "Earlier";
constexpr std::string_view kTimePattern = "YYYY-MM-DD HH-NN-SS";
constexpr std::size_t kTimeLength = 19;
constexpr std::size_t kDateLength = 10;
constexpr std::size_t kLast = 20;
constexpr int kDays = 30;
constexpr int kMostOfASecond = 9999;

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.find_last_of("\\/") + 1);
}

// The first name that nothing bears.
std::string Free(base::FileSystem& files, const std::string& stem) {
  std::string path = stem + std::string(kEnding);
  for (int number = 2; files.IsTaken(path); ++number) {
    if (number > kMostOfASecond) throw base::Error(base::kPathAccess);
    path = stem + " (" + std::to_string(number) + ")" + std::string(kEnding);
  }
  return path;
}

// When a state was kept, and which of its second it is: what stands behind the database's name.
struct Moment {
  std::string time;
  int number = 1;
  bool operator<(const Moment& other) const {
    return time != other.time ? time < other.time : number < other.number;
  }
};

bool FitsPattern(std::string_view text) {
  static constexpr std::string_view kForm = "0000-00-00 00-00-00";
  return std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(), [](char c, char form) {
    return form == '0' ? c >= '0' && c <= '9' : c == form;
  });
}

// Nothing for a name of another form.
std::optional<Moment> MomentOf(std::string_view name) {
  name.remove_suffix(std::min(kEnding.size(), name.size()));
  Moment moment;
  if (name.ends_with(')')) {
    const std::size_t open = name.rfind(" (");
    if (open == std::string_view::npos) return std::nullopt;
    const std::string_view digits = name.substr(open + 2, name.size() - open - 3);
    if (digits.empty() || digits.size() > 6 ||
        digits.find_first_not_of("0123456789") != std::string_view::npos) {
      return std::nullopt;
    }
    moment.number = std::stoi(std::string(digits));
    name = name.substr(0, open);
  }
  if (name.size() < kTimeLength || !FitsPattern(name.substr(name.size() - kTimeLength))) {
    return std::nullopt;
  }
  moment.time = name.substr(name.size() - kTimeLength);
  return moment;
}

std::string NameOfState(std::string_view name) {
  const std::size_t numbered = name.rfind(" (");
  const std::size_t end = numbered == std::string_view::npos || !name.ends_with(").dat")
                              ? name.size() - kEnding.size()
                              : numbered;
  return std::string(name.substr(0, end - std::min(end, kTimeLength + 1)));
}

std::string DayBefore(base::Date day, int days) {
  using std::chrono::year_month_day;
  const year_month_day today(std::chrono::year(day.year), std::chrono::month(unsigned(day.month)),
                             std::chrono::day(unsigned(day.day)));
  const year_month_day before(std::chrono::sys_days(today) - std::chrono::days(days));
  return base::FormatDate(
      {int(before.year()), int(unsigned(before.month())), int(unsigned(before.day()))},
      "YYYY-MM-DD");
}

}  // namespace

std::string FolderOfStates(const std::string& path) {
  return FolderOf(path) + std::string(kFolder) + "\\";
}

std::string DatabaseName(const std::string& path) {
  std::string name = path.substr(FolderOf(path).size());
  if (base::EqualNoCase(base::Right(name, kEnding.size()), kEnding)) {
    name.resize(name.size() - kEnding.size());
  }
  return name;
}

std::string FreeName(base::FileSystem& files, const std::string& path, const std::string& words,
                     const base::DateTime& now) {
  return Free(files, FolderOf(path) + DatabaseName(path) + " " + words + " " +
                         base::FormatDate(now, kTimePattern));
}

std::string FreeState(base::FileSystem& files, const std::string& path, const base::DateTime& now) {
  return Free(
      files, FolderOfStates(path) + DatabaseName(path) + " " + base::FormatDate(now, kTimePattern));
}

std::string KeepEarlierState(base::FileSystem& files, const std::string& path,
                             const base::DateTime& now) {
  std::string kept = FreeState(files, path, now);
  files.MakeFolder(FolderOfStates(path));
  files.Keep(path, kept);
  return kept;
}

std::vector<std::string> EarlierStates(base::FileSystem& files, const std::string& path) {
  std::vector<std::string> names = files.List(FolderOfStates(path), std::string(kEnding));
  std::erase_if(names, [&](const std::string& name) {
    return !MomentOf(name) || NameOfState(name) != DatabaseName(path);
  });
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return *MomentOf(b) < *MomentOf(a); });
  return names;
}

std::string PathOfState(const std::string& path, const std::string& name) {
  return FolderOfStates(path) + name;
}

std::vector<std::string> Outlived(const std::vector<std::string>& names, base::Date today) {
  const std::string oldest_day = DayBefore(today, kDays - 1);
  std::vector<std::string> outlived;
  for (std::size_t i = kLast; i < names.size(); ++i) {
    const std::string day = MomentOf(names[i])->time.substr(0, kDateLength);
    const bool first_of_its_day =
        i + 1 == names.size() || MomentOf(names[i + 1])->time.substr(0, kDateLength) != day;
    if (!first_of_its_day || day < oldest_day) outlived.push_back(names[i]);
  }
  return outlived;
}

void PruneEarlierStates(base::FileSystem& files, const std::string& path, base::Date today) {
  for (const std::string& name : Outlived(EarlierStates(files, path), today)) {
    try {
      const std::string state = PathOfState(path, name);
      const std::optional<base::FileIdentity> kept = files.Identify(state);
      const std::optional<base::FileIdentity> open = files.Identify(path);
      // A database may be a link to a state, which is then no earlier one.
      if (kept && open && kept->IsSameFile(*open)) continue;
      files.Remove(state);
    } catch (const base::Error&) {
      // It is asked about again at the next rewrite.
    }
  }
}

}  // namespace store
