#pragma once

#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "base/controls/control.h"

// What the desk holds as JSON. Texts come in as Windows-1252; keys keep their order.

namespace script {

using Json = nlohmann::ordered_json;

Json TextJson(std::string_view text);
// The shortest form: 45 and not 45.0, and of a single the digits that tell it from its neighbours.
Json NumberJson(double number);
Json TextsJson(const std::vector<std::string>& texts);
Json PropertyJson(const base::PropertyValue& value);

template <typename Numbers>
Json NumbersJson(const Numbers& numbers) {
  Json list = Json::array();
  for (const auto number : numbers) list.push_back(NumberJson(static_cast<double>(number)));
  return list;
}

// Equal as JSON values: 45 equals 45.0, and the order of an object's keys does not matter.
bool SameJson(const Json& a, const nlohmann::json& b);

}  // namespace script
