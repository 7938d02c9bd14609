#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Draws as a person compares them, and the bytes of a file read and written without a line of the
// desk's own code.

namespace sessions {

// "03 07 12 20 30 40 05 05/12/05 Sa". All draws of a run differ, so that a draw is known by this.
using Draw = std::string;
using Draws = std::vector<Draw>;

// What stands in a row or in the boxes: seven balls, date, day.
using Fields = std::array<std::string, 9>;

// A draw that is not of the common form, such as one that was cut by another program. It is taken
// for any other.
inline constexpr const char* kOdd = "?";
inline constexpr const char* kBlank = "";

// Balls to two digits, the day to two letters; kBlank where nothing but zeros stands.
Draw DrawOf(const Fields& fields);
// The same with the balls as a save puts them in order.
Draw SortedDrawOf(Fields fields);
Fields FieldsOf(const Draw& draw);
std::string DateOf(const Draw& draw);
// The draw of a line of the list.
Draw DrawOfLine(const std::string& line);

std::string Encode(const Draw& draw);

// The draws of a file. The last one may be cut.
struct Reading {
  Draws draws{};
  bool is_whole = true;
};
Reading Read(std::string_view bytes);
// The lengths of the records, for whoever cuts a file where one ends.
std::vector<std::size_t> RecordLengths(std::string_view bytes);

bool Same(const Draw& a, const Draw& b);
bool Same(const Draws& a, const Draws& b);
bool Contains(const Draws& draws, const Draw& draw);
// Where two runs of draws part, for a person.
std::string Difference(const Draws& expected, const Draws& seen);

// A draw that was corrected (`now`) or removed, and may not have reached the file.
struct WaitingRow {
  Draw was{};
  std::optional<Draw> now{};
  bool may_be_forgotten = false;
  bool ChangesNothing() const { return now && *now == was; }
};
using WaitingRows = std::vector<WaitingRow>;

// Whether one run of draws becomes the other by the rows that wait: all of them but those that may
// be forgotten, which count or not.
bool Becomes(const Draws& before, const Draws& after, const WaitingRows& rows);

}  // namespace sessions
