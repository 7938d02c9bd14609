#include "wheels/generation.h"

#include <algorithm>
#include <span>

#include "base/host/profile.h"
#include "base/language/numbers.h"
#include "base/language/text_order.h"
#include "wheels/wheel_library.h"
#include "wheels/wheel_lines.h"

namespace wheels {
namespace {

constexpr base::Colour kPressed = 0xFFFFFF;
constexpr base::Colour kReleased = 0xE0E0E0;

}  // namespace

void Generation::Wire() {
  FrmTxt& window = place_.window;
  window.cmdwizard(1).on.click = [this] { Generate(); };
  window.cmdwizard.Each([](base::Label& button) {
    button.on.mouse_down = [&button](base::MouseButton) { button.SetBackColor(kPressed); };
    button.on.mouse_up = [&button](base::MouseButton) { button.SetBackColor(kReleased); };
  });
  window.cmdwizar(0).on.click = [&window] { window.LstWheel.BringToFront(); };
  window.cmdwizar(1).on.click = [&window] { window.ListMain.BringToFront(); };
  window.LstWheel.on.header_click = [this](int column) { SortByColumn(column); };
}

void Generation::Generate() {
  FrmTxt& window = place_.window;
  WheelState& state = place_.state;
  window.LstWheel.Clear();
  state.wheel_ini_path = LibraryPath(place_.World().settings, place_.program_folder);
  if (state.wheel_ini_path.empty()) return;
  const base::Profile library(place_.World().files, state.wheel_ini_path);
  WheelCount(library);  // a count that is none ends it here, with the sorted lines as they were
  window.LstSorted.Clear();

  const std::optional<std::string> wheel =
      FindWheel(library, state.wheel_pool, window.CmbWheelPick.Text(), window.CboMatch.Text());
  if (wheel) {
    const auto fact = [&](std::string_view key) { return library.Value(*wheel, key); };
    // One by one, so that those before a text that is no number stand.
    state.wheel_pick = base::ToByte(fact("pick"));
    state.wheel_pool = base::ToByte(fact("pool"));
    state.wheel_match = base::ToByte(fact("match"));
    state.wheel_combos = base::ToInt16(fact("combos"));
    state.wheel_tickets = base::ToByte(fact("tickets"));
    state.wheel_name = fact("Wheelname");
    PopulateFromTxtBoxes();
    for (int line = 1; line <= state.wheel_tickets; ++line) {
      const std::string places = SortValues(fact(base::IntegerText(line)));
      window.LstSorted.AddItem(DoFinal(ConvertToUserNumbers(places)));
    }
  }
  window.LstWheel.BringToFront();
}

void Generation::PopulateFromTxtBoxes() {
  std::string* const numbers = place_.state.user_numbers.data();
  std::fill_n(numbers, kNumberBoxes, std::string());
  for (int box = 0; box < place_.state.wheel_pool; ++box) {
    numbers[box] = place_.window.TXTActiveNumbers(box).Text();
  }
}

std::string Generation::ConvertToUserNumbers(const std::string& line) const {
  const WheelState& state = place_.state;
  const std::size_t pool = std::min<std::size_t>(state.wheel_pool, state.user_numbers.size());
  return wheels::ConvertToUserNumbers(line, std::span(state.user_numbers).first(pool));
}

std::string Generation::DoFinal(const std::string& line) {
  std::vector<std::string> cells = CellsOf(line);
  if (cells.empty()) return {};
  std::string sorted = TabbedLine(cells);
  place_.window.LstWheel.AddRow(std::move(cells));
  return sorted;
}

void Generation::SortByColumn(int column) {
  ascending_ = !ascending_;
  base::ListView& table = place_.window.LstWheel;
  const auto cell = [column](const base::ListView::Cells& row) {
    const auto place = static_cast<std::size_t>(column);
    return place < row.size() ? std::string_view(row[place]) : std::string_view();
  };
  std::vector<base::ListView::Cells> rows = table.Rows();
  std::stable_sort(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
    const int order = base::CompareText(cell(a), cell(b));
    return ascending_ ? order < 0 : order > 0;
  });
  table.Clear();
  for (base::ListView::Cells& row : rows) table.AddRow(std::move(row));
}

}  // namespace wheels
