#include "script/globals.h"

#include <functional>
#include <span>

#include "base/language/text.h"

namespace script {
namespace {

using store::Session;
using wheels::WheelState;

struct Global {
  const char* name;
  std::function<Json(const Session&)> value;
};

Json RecordJson(const store::DrawRecord& draw) {
  Json object = Json::object();
  object["Spare"] = draw.spare;
  for (std::size_t i = 0; i < draw.b.size(); ++i) {
    object["B" + std::to_string(i + 1)] = TextJson(draw.b[i]);
  }
  object["Day"] = TextJson(draw.day);
  object["BB"] = TextJson(draw.bb);
  object["Date"] = TextJson(draw.date);
  return object;
}

template <typename Rows>
Json TableJson(const Rows& rows) {
  Json table = Json::array();
  for (const auto& row : rows) table.push_back(NumbersJson(row));
  return table;
}

Global Text(const char* name, std::string Session::*member) {
  return {name, [member](const Session& s) { return TextJson(s.*member); }};
}

template <typename T>
Global Number(const char* name, T Session::*member) {
  return {name, [member](const Session& s) { return NumberJson(static_cast<double>(s.*member)); }};
}

Global Flag(const char* name, bool Session::*member) {
  return {name, [member](const Session& s) { return Json(s.*member); }};
}

template <typename T>
Global Array(const char* name, T Session::*member) {
  return {name, [member](const Session& s) { return NumbersJson(s.*member); }};
}

template <typename T>
Global Table(const char* name, T Session::*member) {
  return {name, [member](const Session& s) { return TableJson(s.*member); }};
}

Global Colour(const char* name, base::Colour store::BarColours::*member) {
  return {name, [member](const Session& s) { return Json(s.bar_colours.*member); }};
}

Json TextsJson(std::span<const std::string> texts) {
  Json array = Json::array();
  for (const std::string& text : texts) array.push_back(TextJson(text));
  return array;
}

// The state of the wheel window.
struct WheelGlobal {
  const char* name;
  std::function<Json(const WheelState&)> value;
};

template <typename T>
WheelGlobal WheelNumber(const char* name, T WheelState::*member) {
  return {name, [member](const WheelState& s) { return Json(static_cast<int>(s.*member)); }};
}

template <typename T>
WheelGlobal WheelNumbers(const char* name, T WheelState::*member) {
  return {name, [member](const WheelState& s) { return NumbersJson(s.*member); }};
}

WheelGlobal WheelText(const char* name, std::string WheelState::*member) {
  return {name, [member](const WheelState& s) { return TextJson(s.*member); }};
}

template <typename T>
WheelGlobal WheelTexts(const char* name, T WheelState::*member) {
  return {name, [member](const WheelState& s) { return TextsJson(s.*member); }};
}

const std::vector<WheelGlobal>& WheelGlobals() {
  static const std::vector<WheelGlobal> globals{
      WheelNumber("WheelPool", &WheelState::wheel_pool),
      WheelNumber("WheelPick", &WheelState::wheel_pick),
      WheelNumber("WheelMatch", &WheelState::wheel_match),
      WheelNumber("WheelCombos", &WheelState::wheel_combos),
      WheelNumber("WheelTickets", &WheelState::wheel_tickets),
      WheelText("WheelName", &WheelState::wheel_name),
      WheelText("WheelIniPath", &WheelState::wheel_ini_path),
      WheelNumber("ColdCount", &WheelState::cold_count),
      WheelNumber("WarmTop", &WheelState::warm_top),
      WheelTexts("UserNumbers", &WheelState::user_numbers),
      WheelNumber("WizardStep", &WheelState::wizard_step),
      WheelNumbers("CheckNumbers", &WheelState::check_numbers),
      WheelNumbers("LineNumbers", &WheelState::line_numbers),
      WheelNumbers("ColumnHits", &WheelState::column_hits),
      WheelTexts("ColumnHitText", &WheelState::column_hit_text),
      WheelText("WinNumbers", &WheelState::win_numbers),
      WheelText("HitPosition", &WheelState::hit_position),
      WheelText("HitNumbers", &WheelState::hit_numbers),
      WheelNumber("TotalHits", &WheelState::total_hits),
  };
  return globals;
}

const std::vector<Global>& Globals() {
  static const std::vector<Global> globals{
      {"CurrentDraw", [](const Session& s) { return RecordJson(s.current_draw); }},
      {"DrawPos", [](const Session& s) { return NumbersJson(s.database.Positions()); }},
      Number("DrawCount", &Session::draw_count),
      Number("FilePos", &Session::file_pos),
      {"FileLen", [](const Session& s) { return Json(s.database.Length()); }},
      Text("DataBasePath", &Session::data_base_path),
      Text("TempPath", &Session::temp_path),
      Text("DataBaseName", &Session::data_base_name),
      Flag("DataBaseChanged", &Session::data_base_changed),
      Number("CurrentDrawNumber", &Session::current_draw_number),
      Flag("MainWindowLoaded", &Session::main_window_loaded),
      Flag("WheelWindowLoaded", &Session::wheel_window_loaded),
      Array("CurrentBalls", &Session::current_balls),
      Text("ShownDay", &Session::shown_day),
      Text("ShownDate", &Session::shown_date),
      Number("SelectedListRow", &Session::selected_list_row),
      Text("DayText", &Session::day_text),
      Array("BallCount", &Session::ball_count),
      Number("FilterCount", &Session::filter_count),
      Number("ScanTally", &Session::scan_tally),
      Table("PositionHits", &Session::position_hits),
      Table("PositionMarks", &Session::position_marks),
      Array("MatchNumbers", &Session::match_numbers),
      Colour("ColdBarColour", &store::BarColours::cold),
      Colour("WarmBarColour", &store::BarColours::warm),
      Colour("HotBarColour", &store::BarColours::hot),
      Colour("BackBarColour", &store::BarColours::back),
      Colour("FifthBarColour", &store::BarColours::fifth),
      Text("VersionSection", &Session::version_section),
      Text("DateFormatText", &Session::date_format_text),
      Flag("TipsOn", &Session::tips_on),
      Flag("PromptOnRangeChange", &Session::prompt_on_range_change),
      Flag("MnuHgightOn", &Session::mnu_hgight_on),
      Flag("MnuBlueOn", &Session::mnu_blue_on),
      Flag("MnuRWCOn", &Session::mnu_rwc_on),
      Flag("MnuHCOn", &Session::mnu_hc_on),
      Number("LoopI", &Session::loop_i),
      Number("LoopJ", &Session::loop_j),
  };
  return globals;
}

}  // namespace

std::optional<Json> GlobalJson(shell::Desk& desk, std::string_view name) {
  for (const Global& global : Globals()) {
    if (base::EqualNoCase(global.name, name)) return global.value(desk.Session());
  }
  for (const WheelGlobal& global : WheelGlobals()) {
    if (base::EqualNoCase(global.name, name)) return global.value(desk.WheelState());
  }
  return std::nullopt;
}

}  // namespace script
