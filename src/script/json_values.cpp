#include "script/json_values.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "base/language/code_page.h"

namespace script {
namespace {

// From here on a double does not hold every whole number.
constexpr double kWholeLimit = 9007199254740992.0;

// The double that reads like a single: 0.1 for 0.1f, whose exact value has many more digits.
double AsWritten(float number) {
  std::array<char, 32> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  double value = 0;
  std::from_chars(digits.data(), written.ptr, value);
  return value;
}

}  // namespace

Json TextJson(std::string_view text) { return base::ToUtf8(text); }

Json NumberJson(double number) {
  if (std::trunc(number) == number && std::abs(number) < kWholeLimit) {
    return static_cast<std::int64_t>(number);
  }
  const auto single = static_cast<float>(number);
  if (std::isfinite(single) && static_cast<double>(single) == number) return AsWritten(single);
  return number;
}

Json TextsJson(const std::vector<std::string>& texts) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(TextJson(text));
  return list;
}

Json PropertyJson(const base::PropertyValue& value) {
  if (const bool* flag = std::get_if<bool>(&value)) return *flag;
  if (const double* number = std::get_if<double>(&value)) return NumberJson(*number);
  if (const std::string* text = std::get_if<std::string>(&value)) return TextJson(*text);
  return TextsJson(std::get<std::vector<std::string>>(value));
}

bool SameJson(const Json& a, const nlohmann::json& b) { return nlohmann::json(a) == b; }

}  // namespace script
