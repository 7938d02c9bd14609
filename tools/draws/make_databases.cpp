// Makes the delivered databases from figures: one line a draw, an ISO date, the main balls
// ascending, then the bonus ball or balls.
//
//     make-databases FIGURES-FOLDER DATABASES-FOLDER

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "base/language/dates.h"
#include "base/language/text.h"
#include "store/draw_record.h"

namespace {

// How a lottery's figures fill the seven slots of a record.
struct Lottery {
  const char* figures;
  const char* database;
  const char* date_pattern;
  std::array<int, store::kBalls> column;  // of each slot B1..B6, BB; 0 leaves it "00"
};

constexpr Lottery kLotteries[] = {
    // Six balls and a bonus: every slot as named.
    {"uk_lotto.csv", "UK-National-Lottery.dat", "DD/MM/YY", {1, 2, 3, 4, 5, 6, 7}},
    // Six balls in all: the sixth stands in the bonus slot.
    {"us_powerball.csv", "US-MultiState-Powerball.dat", "MM/DD/YY", {1, 2, 3, 4, 5, 0, 6}},
    // Five balls and two bonus balls.
    {"euromillions.csv", "EU-Euro-Millions.dat", "DD/MM/YY", {1, 2, 3, 4, 5, 6, 7}},
};

base::DateTime IsoDate(const std::string& text) {
  base::DateTime date{};
  date.year = std::stoi(text.substr(0, 4));
  date.month = std::stoi(text.substr(5, 2));
  date.day = std::stoi(text.substr(8, 2));
  return date;
}

store::DrawRecord Record(const Lottery& lottery, const std::vector<std::string>& figures) {
  const base::DateTime date = IsoDate(figures.at(0));
  store::DrawRecord record;
  for (int slot = 0; slot < store::kBalls; ++slot) {
    const int column = lottery.column.at(static_cast<std::size_t>(slot));
    record.Ball(slot) =
        store::PadBall(column == 0 ? "" : figures.at(static_cast<std::size_t>(column)));
  }
  record.day = base::Left(base::FormatDate(date, "dddd"), 2);
  record.date = base::FormatDate(date, lottery.date_pattern);
  return record;
}

int MakeDatabase(const Lottery& lottery, const std::filesystem::path& from,
                 const std::filesystem::path& to) {
  std::ifstream figures(from / lottery.figures);
  std::ofstream database(to / lottery.database, std::ios::binary);
  std::string line;
  std::getline(figures, line);  // the headings
  int draws = 0;
  while (std::getline(figures, line)) {
    if (line.empty()) continue;
    if (line.back() == '\r') line.pop_back();
    database << store::EncodeRecord(Record(lottery, base::Split(line, ",")));
    ++draws;
  }
  if (draws == 0 || !database.flush()) {
    std::cerr << "Could not make " << lottery.database << " from " << lottery.figures << '\n';
    return 1;
  }
  std::cout << lottery.database << ": " << draws << " draws\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: make-databases FIGURES-FOLDER DATABASES-FOLDER\n";
    return 2;
  }
  int failures = 0;
  for (const Lottery& lottery : kLotteries) failures += MakeDatabase(lottery, argv[1], argv[2]);
  return failures == 0 ? 0 : 1;
}
