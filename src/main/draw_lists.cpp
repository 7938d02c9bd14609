#include "main/draw_lists.h"

#include <algorithm>
#include <array>

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "base/language/text.h"

namespace main_window {
namespace {

constexpr std::size_t kDateCell = 7;
constexpr std::size_t kDayCell = 8;

struct DaySpelling {
  std::string_view begins;
  std::string_view short_form;
};

constexpr std::array<DaySpelling, 14> kShortDays{{
    {"m", "Mon"},
    {"M", "Mon"},
    {"tu", "Tue"},
    {"Tu", "Tue"},
    {"w", "Wed"},
    {"W", "Wed"},
    {"th", "Thu"},
    {"Th", "Thu"},
    {"fr", "Fri"},
    {"Fr", "Fri"},
    {"sa", "Sat"},
    {"Sa", "Sat"},
    {"su", "Sun"},
    {"Su", "Sun"},
}};

constexpr std::array<std::string_view, 7> kDays{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};

}  // namespace

std::string TwoLetterDay(std::string_view text) {
  const std::string_view start = text.substr(0, 2);
  for (std::string_view day : kDays) {
    if (start == day || start == base::Lower(day) || start == base::Upper(day)) {
      return std::string(day);
    }
  }
  return std::string(text);
}

std::string ShortDay(std::string_view text) {
  for (const DaySpelling& day : kShortDays) {
    if (text.starts_with(day.begins)) return std::string(day.short_form);
  }
  return std::string(text);
}

base::ListView::Cells TableRow(const store::DrawRecord& record) {
  base::ListView::Cells cells;
  cells.reserve(9);
  for (int k = 0; k < store::kBalls; ++k) cells.push_back(store::PadBall(record.Ball(k)));
  cells.push_back(record.date);
  cells.push_back(record.day);
  return cells;
}

store::DrawRecord RecordOfRow(const base::ListView::Cells& row) {
  store::DrawRecord draw;
  draw.date = row[kDateCell];
  draw.day = TwoLetterDay(ShortDay(row[kDayCell]));
  try {
    for (int k = 0; k < store::kBalls; ++k) {
      const std::uint8_t ball = base::ToByte(row[static_cast<std::size_t>(k)]);
      draw.Ball(k) = store::PadBall(base::SingleText(ball));
    }
  } catch (const base::Error&) {
    for (int k = 0; k < store::kBalls; ++k)
      draw.Ball(k) = store::PadBall(row[static_cast<std::size_t>(k)]);
    draw.day = TwoLetterDay(row[kDayCell]);
  }
  return draw;
}

std::string BytesOfLines(const base::ListBox& lines, int index, const std::string& line) {
  std::string bytes;
  for (int at = 0; at < lines.ListCount(); ++at) {
    if (lines.Key(at) == store::OpenDatabase::kBlankPlace) continue;
    store::DrawRecord draw;
    store::ParseDrawLine(at == index ? line : lines.Row(at), draw);
    draw.day = TwoLetterDay(draw.day);
    bytes += store::EncodeRecord(draw);
  }
  return bytes;
}

std::string BytesOfRows(const base::ListView& table, std::int16_t spare) {
  std::string bytes;
  for (int row = 1; row <= table.RowCount(); ++row) {
    if (table.Key(row) == store::OpenDatabase::kBlankPlace) continue;
    store::DrawRecord draw = RecordOfRow(table.Row(row));
    draw.spare = spare;
    bytes += store::EncodeRecord(draw);
  }
  return bytes;
}

void FillLists(store::Session& session, MainWindow& window) {
  store::OpenDatabase& database = session.database;
  window.List7.Clear();
  window.ListView1.Clear();
  if (database.Length() > 0) database.DropBlank();
  for (int number = 1; number <= database.UpperBound(); ++number) {
    const int place = database.PlaceOf(number);
    store::DrawRecord draw;
    database.Read(database.PositionOf(number), draw);
    window.List7.AddItem(store::DrawLine(draw), place);
    const auto pending = database.pending.find(place);
    if (pending == database.pending.end()) {
      window.ListView1.AddRow(TableRow(draw), place);
    } else if (pending->second) {
      window.ListView1.AddRow(*pending->second, place);
    }
  }
}

std::string PendingText(const store::PendingRows& pending) {
  if (pending.empty()) return {};
  const bool only_removals = std::none_of(pending.begin(), pending.end(),
                                          [](const auto& row) { return row.second.has_value(); });
  return std::to_string(pending.size()) + (only_removals ? " removal" : " change") +
         (pending.size() == 1 ? "" : "s");
}

}  // namespace main_window
