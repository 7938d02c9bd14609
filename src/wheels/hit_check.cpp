#include "wheels/hit_check.h"

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "store/setting_names.h"
#include "wheels/wheel_lines.h"

namespace wheels {
namespace {

constexpr std::string_view kSection = "searchs";
constexpr std::string_view kLastNumbersKey = "lastwincheck";
constexpr const char* kTitle = "Check for win";
constexpr std::string_view kSigns = "!\xA3$%^&*()_+-=[]{}:;@'~#<,>.?/|\\`\xAC";
constexpr int kMostReplaced = 30;
constexpr int kBlankPasses = 3;
constexpr std::size_t kShortestAnswer = 3;
constexpr std::size_t kMostPieces = 50;
constexpr int kHitsToStandOut = 3;
constexpr const char* kTable =
    "<table border=\"1\" cellspacing=\"1\" style=\"border-collapse: collapse\" width=\"500\" id=\"";

std::string Blanked(std::string text, char sign) {
  return ReplaceFirst(std::move(text), std::string_view(&sign, 1), " ", kMostReplaced);
}

}  // namespace

std::string ReplCrap(std::string text) {
  for (const char sign : kSigns) text = Blanked(std::move(text), sign);
  for (char letter = 'a'; letter <= 'z'; ++letter) text = Blanked(base::Lower(text), letter);
  text = Blanked(std::move(text), '\n');
  text = Blanked(std::move(text), '\t');
  for (int pass = 0; pass < kBlankPasses; ++pass) {
    text = ReplaceFirst(std::move(text), "  ", " ", kMostReplaced);
  }
  return text;
}

std::string dolenth(std::int16_t number) {
  const char* const zeros = number < 10 ? "00" : number < 100 ? "0" : "";
  return zeros + base::IntegerText(number);
}

std::string doSl(const std::string& text) { return text.empty() ? text : text + " "; }

std::string LineText(const base::ListView::Cells& row) {
  std::string line = row.front();
  for (std::size_t cell = 1; cell < row.size(); ++cell) line = doSl(line) + row[cell];
  return line;
}

void HitCheck::Wire() {
  place_.window.cmdwizard(3).on.click = [this] { CheckForWins(); };
}

void HitCheck::CheckForWins() {
  if (place_.window.LstWheel.RowCount() == 0) return;
  MakeReport(ReportPath(place_.program_folder, "QND-Win-Report-", place_.World().clock));
}

void HitCheck::MakeReport(const std::string& path) {
  if (!AskForNumbers()) return;
  TakeNumbers();
  Page page;
  base::FileSystem& files = place_.World().files;
  try {
    WriteHead(page);
    const int lines = place_.window.LstWheel.RowCount();
    for (int line = 1; line <= lines; ++line) WriteRow(page, line);
  } catch (const base::Error&) {
    files.Replace(path, page.Text());  // the page ends where it could not go on
    throw;
  }
  page.Line("</table>");
  page.Line("</div>");
  page.Footer();
  files.Replace(path, page.Text());
  OpenPage(place_.World().shell, path);
}

bool HitCheck::AskForNumbers() {
  base::Ports& world = place_.World();
  std::string& numbers = place_.state.win_numbers;
  numbers = Ask("Please paste or type your numbers in to the text box\r\nDo not exceed " +
                    place_.window.CmbWheelPick.Text() +
                    " diffrent numbers for this wheel or results will be incorrect",
                world.settings.Get(store::kDeskApplication, kSection, kLastNumbersKey));
  if (numbers.size() < kShortestAnswer) {
    world.boxes.Ask(
        {.text = "Sorry you did not supply not enough information to check for wins with"});
    numbers = Ask("please paste or type your numbers in to the text box below", numbers);
  }
  if (numbers.empty()) return false;
  world.settings.Save(store::kDeskApplication, kSection, kLastNumbersKey, numbers);
  return true;
}

std::string HitCheck::Ask(const std::string& prompt, const std::string& default_text) {
  const std::optional<std::string> answer =
      place_.World().boxes.Input({.prompt = prompt, .title = kTitle, .default_text = default_text});
  return std::string(base::Trim(ReplCrap(answer.value_or(""))));
}

void HitCheck::TakeNumbers() {
  std::size_t place = 0;
  for (const std::string& piece : PiecesAtBlanks(place_.state.win_numbers, kMostPieces)) {
    if (place == place_.state.check_numbers.size()) throw base::Error(base::kSubscript);
    place_.state.check_numbers[place++] = base::ToInt16(std::string_view(piece));
  }
}

void HitCheck::WriteHead(Page& page) const {
  page.Line("");
  page.Line("<html>");
  page.Line("<head>");
  page.Line("<title>Quorbit Nubmer Desk Hits Report</title>");
  page.Line("</head>");
  page.Line("<body style=\"font-family: Verdana; font-size: 8px\">");
  page.Line("<div align=\"center\">");
  page.Line(kTable, "table2\">");
  page.Line("<tr>");
  page.Line("<td bgcolor=\"#00FFFF\"><b>Numbers checked:</b> ", PageText(place_.state.win_numbers),
            "</td>");
  page.Line("</tr>");
  page.Line("</table>");
  page.Line(kTable, "table1\">");
  page.Line("<tr align=\"center\" bgcolor=\"#00FFFF\">");
  page.Line("<td width=\"35\">Line</td>");
  page.Line("<td width=\"150\">Wheel</td>");
  page.Line("<td width=\"120\">Hit Position</td>");
  page.Line("<td width=\"90\">Total Hits</td>");
  page.Line("<td width=\"150\">Numbers Hit</td>");
  page.Line("</tr>");
}

void HitCheck::WriteRow(Page& page, int line) {
  GetHits(line);
  const WheelState& state = place_.state;
  page.Line(state.total_hits < kHitsToStandOut ? "<tr align=\"center\">"
                                               : "<tr align=\"center\" bgcolor = \"#F5F5F5\">");
  page.Line("<td width=\"35\">", dolenth(base::ToInt16(line)), "</td>");
  page.Line("<td width=\"150\" nowrap>", PageText(GetCurrentLine(line)), "</td>");
  page.Line("<td width=\"120\">", state.hit_position, "</td>");
  page.Line("<td width=\"90\">", base::IntegerText(state.total_hits), "</td>");
  page.Line("<td width=\"150\" align=\"left\">", state.hit_numbers, "</td>");
  page.Line("</tr>");
}

void HitCheck::GetHits(int line) {
  WheelState& state = place_.state;
  const base::ListView::Cells& row = place_.window.LstWheel.Row(line);
  ReadLine(row);
  // Only as many of the numbers as the row has columns are compared, each with all six slots.
  for (std::size_t j = 0; j < row.size(); ++j) {
    for (std::size_t c = 0; c < state.column_hits.size(); ++c) {
      if (state.check_numbers[j] != state.line_numbers[c]) continue;
      state.column_hits[c] = base::AddInt16(state.column_hits[c], 1);
      state.column_hit_text[c] = base::IntegerText(state.line_numbers[c]);
    }
  }
  state.total_hits = 0;
  state.hit_numbers.clear();
  state.hit_position.clear();
  for (std::size_t c = 0; c < state.column_hits.size(); ++c) {
    state.total_hits = base::AddInt16(state.total_hits, state.column_hits[c]);
    state.hit_numbers += doSl(state.column_hit_text[c]);
    state.hit_position += (c == 0 ? "" : " ") + base::IntegerText(state.column_hits[c]);
  }
  ClearIt();
}

void HitCheck::ReadLine(const base::ListView::Cells& row) {
  auto& numbers = place_.state.line_numbers;
  // Slots behind the row's last column keep what a wider wheel left there.
  for (std::size_t j = 0; j + 1 < row.size(); ++j) numbers.at(j) = 0;
  for (std::size_t j = 0; j < row.size(); ++j) {
    numbers.at(j) = base::ToInt16(std::string_view(row[j]));
  }
}

void HitCheck::ClearIt() {
  place_.state.column_hits.fill(0);
  for (std::string& text : place_.state.column_hit_text) text.clear();
}

std::string HitCheck::GetCurrentLine(int line) const {
  return LineText(place_.window.LstWheel.Row(line));
}

}  // namespace wheels
