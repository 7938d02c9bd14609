#include "wheels/wheel_library.h"

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "store/setting_names.h"

namespace wheels {
namespace {

constexpr std::string_view kSection = "QND";
constexpr std::string_view kPathKey = "wheel_path";
constexpr const char* kDefaultPlace = "/wheels/wheels.ini";

std::string Stored(base::Settings& settings) {
  return settings.Get(store::kDeskApplication, kSection, kPathKey);
}

// Calls visit(section) for each wheel until it says that it has found what it looks for.
template <typename Visit>
void WalkWheels(const base::Profile& library, Visit visit) {
  const int count = WheelCount(library);
  for (int i = 1; i <= count; ++i) {
    if (visit(base::IntegerText(i))) return;
  }
}

}  // namespace

std::string LibraryPath(base::Settings& settings, const std::string& program_folder) {
  if (Stored(settings).empty()) {
    settings.Save(store::kDeskApplication, kSection, kPathKey, program_folder + kDefaultPlace);
  }
  return Stored(settings);
}

std::int16_t WheelCount(const base::Profile& library) {
  return base::ToInt16(base::NumericValue(library.Value("Wheels", "wheelcount")));
}

void WheelNames(const base::Profile& library, std::int16_t pick, std::string_view match,
                const std::function<void(std::string name)>& tell) {
  WalkWheels(library, [&](const std::string& section) {
    const bool listed = base::ToDouble(library.Value(section, "pick")) == pick &&
                        library.Value(section, "match") == match;
    if (listed) tell(library.Value(section, "Wheelname"));
    return false;
  });
}

std::uint8_t PoolOfName(const std::string& name) {
  const std::size_t bracket = name.find(']');
  // Places count from 1 here, so a name without a bracket has it at place 0.
  const std::size_t place = bracket == std::string::npos ? 0 : bracket + 1;
  return base::ToByte(base::Trim(base::Mid(name, place + 2, 2)));
}

std::optional<std::string> FindWheel(const base::Profile& library, int pool, std::string_view pick,
                                     std::string_view match) {
  std::optional<std::string> found;
  WalkWheels(library, [&](const std::string& section) {
    const bool is_it = base::ToDouble(library.Value(section, "pool")) == pool &&
                       library.Value(section, "pick") == pick &&
                       library.Value(section, "match") == match;
    if (is_it) found = section;
    return is_it;
  });
  return found;
}

}  // namespace wheels
