#include "script/functions.h"

#include "store/pasted_line.h"

#include <charconv>
#include <cmath>
#include <functional>
#include <limits>

#include "base/host/profile.h"
#include "base/language/dates.h"
#include "base/language/error.h"
#include "base/language/numbers.h"
#include "base/language/text.h"
#include "base/language/text_order.h"
#include "script/wrong_script.h"
#include "wheels/hit_check.h"
#include "wheels/wheel_lines.h"

namespace script {
namespace {

// The arguments behind the function's name, counted from 0.
class Call {
 public:
  Call(Stage& stage, const Arguments& words) : stage_(stage), words_(words) {}

  Stage& On() const { return stage_; }
  std::string Text(int n) const { return words_.Text(n + 1); }
  // The number that an unquoted word is; a text counts as the language converts it.
  double Number(int n) const {
    const std::optional<double> number = Literal(n);
    return number ? *number : base::ToDouble(Text(n));
  }
  // Converts a number as a number and a text as a text.
  template <typename Convert>
  Json Whole(Convert convert) const {
    const std::optional<double> number = Literal(0);
    return Json(static_cast<int>(number ? convert(*number) : convert(std::string_view(Text(0)))));
  }
  base::DateOrder Dates() const { return stage_.ports.region.order; }

 private:
  std::optional<double> Literal(int n) const {
    const Word& word = words_.At(n + 1);
    double number = 0;
    const char* const end = word.text.data() + word.text.size();
    const auto [stop, error] = std::from_chars(word.text.data(), end, number);
    if (word.quoted || stop != end || error != std::errc() || !std::isfinite(number)) {
      return std::nullopt;
    }
    return number;
  }

  Stage& stage_;
  const Arguments& words_;
};

struct Function {
  const char* name;
  int arguments;
  std::function<Json(const Call&)> run;
};

std::string DrawLineAt(const Call& call) {
  store::Session& session = call.On().Desk().Session();
  store::DrawRecord draw;
  session.database.Read(session.database.PositionOf(call.Number(0)), draw);
  return store::DrawLine(draw);
}

Json StorePending(const Call& call) {
  call.On().Desk().StorePending();
  return nullptr;
}

Json Earlier(const Call& call) {
  Json names = Json::array();
  for (const std::string& name : call.On().Desk().Earlier()) names.push_back(TextJson(name));
  return names;
}

// A path that names no file of the host's root lies below the program folder.
std::string ProfileText(const Call& call) {
  std::string path = call.Text(2);
  const bool rooted = !path.empty() && (path.front() == '/' || path.front() == '\\');
  base::FileSystem& files = call.On().Files();
  if (!rooted || !files.FileExists(path)) path = call.On().PathOf(path);
  return base::ReadIniString(files, call.Text(0), call.Text(1), path);
}

wheels::WheelWizard& OpenWheels(const Call& call) {
  wheels::WheelWizard* const window = call.On().Desk().Wheels();
  if (window == nullptr || !window->Loaded()) throw WrongScript("FrmTxt is not open");
  return *window;
}

Json Hits(const Call& call) {
  OpenWheels(call).HitCheck().GetHits(base::ToInt16(call.Number(0)));
  const wheels::WheelState& state = call.On().Desk().WheelState();
  return {{"HitPosition", TextJson(state.hit_position)},
          {"HitNumbers", TextJson(state.hit_numbers)},
          {"TotalHits", state.total_hits}};
}

Json CheckForDuplicates(const Call& call) {
  OpenWheels(call).NumberBoxes().CheckForDuplicates(base::ToInt16(call.Number(0)),
                                                    base::ToInt16(call.Number(1)));
  return nullptr;
}

float ToFloat(double number) {
  if (std::fabs(number) > std::numeric_limits<float>::max()) throw base::Error(base::kOverflow);
  return static_cast<float>(number);
}

const std::vector<Function>& Functions() {
  static const std::vector<Function> functions{
      {"PadBall", 1, [](const Call& c) { return TextJson(store::PadBall(c.Text(0))); }},
      {"StripLetters", 1, [](const Call& c) { return TextJson(store::StripLetters(c.Text(0))); }},
      {"StripSymbols", 1, [](const Call& c) { return TextJson(store::StripSymbols(c.Text(0))); }},
      {"StripControls", 1, [](const Call& c) { return TextJson(store::StripControls(c.Text(0))); }},
      {"ReplCrap", 1, [](const Call& c) { return TextJson(wheels::ReplCrap(c.Text(0))); }},
      {"SortValues", 1, [](const Call& c) { return TextJson(wheels::SortValues(c.Text(0))); }},
      {"AddToLenght", 1, [](const Call& c) { return TextJson(wheels::AddToLenght(c.Text(0))); }},
      {"dolenth", 1,
       [](const Call& c) { return TextJson(wheels::dolenth(base::ToInt16(c.Number(0)))); }},
      {"doSl", 1, [](const Call& c) { return TextJson(wheels::doSl(c.Text(0))); }},
      {"ConvertToUserNumbers", 1,
       [](const Call& c) {
         return TextJson(OpenWheels(c).Generation().ConvertToUserNumbers(c.Text(0)));
       }},
      {"GetCurrentLine", 1,
       [](const Call& c) {
         return TextJson(OpenWheels(c).HitCheck().GetCurrentLine(base::ToInt16(c.Number(0))));
       }},
      {"GetHits", 1, Hits},
      {"CheckForDuplicates", 2, CheckForDuplicates},
      {"StorePending", 0, StorePending},
      {"Undo", 0, [](const Call& c) { return TextJson(c.On().Desk().Undo()); }},
      {"Earlier", 0, Earlier},
      {"DrawLine", 1, [](const Call& c) { return TextJson(DrawLineAt(c)); }},
      {"ReadIniString", 3, [](const Call& c) { return TextJson(ProfileText(c)); }},
      {"WeekDayName", 1,
       [](const Call& c) { return TextJson(base::DateText(c.Text(0), "dddd", c.Dates())); }},
      {"DoubleText", 1, [](const Call& c) { return TextJson(base::DoubleText(c.Number(0))); }},
      {"SingleText", 1,
       [](const Call& c) { return TextJson(base::SingleText(ToFloat(c.Number(0)))); }},
      {"ToInt16", 1,
       [](const Call& c) { return c.Whole([](auto value) { return base::ToInt16(value); }); }},
      {"ToInt32", 1,
       [](const Call& c) { return c.Whole([](auto value) { return base::ToInt32(value); }); }},
      {"ToByte", 1,
       [](const Call& c) { return c.Whole([](auto value) { return base::ToByte(value); }); }},
      {"NumericValue", 1, [](const Call& c) { return NumberJson(base::NumericValue(c.Text(0))); }},
      {"IsDate", 1, [](const Call& c) { return Json(base::IsDate(c.Text(0), c.Dates())); }},
      {"DateText", 2,
       [](const Call& c) { return TextJson(base::DateText(c.Text(0), c.Text(1), c.Dates())); }},
      {"CompareText", 2,
       [](const Call& c) { return Json(base::CompareText(c.Text(0), c.Text(1))); }},
  };
  return functions;
}

const Function& FunctionNamed(const std::string& name) {
  for (const Function& function : Functions()) {
    if (base::EqualNoCase(function.name, name)) return function;
  }
  throw WrongScript("there is no function " + name);
}

}  // namespace

Json CallFunction(Stage& stage, const Arguments& words) {
  const Function& function = FunctionNamed(words.At(0).text);
  words.Demand(function.arguments + 1);
  try {
    return function.run(Call(stage, words));
  } catch (const base::Error& error) {
    return {{"error", error.Number()}, {"description", TextJson(error.Description())}};
  }
}

}  // namespace script
