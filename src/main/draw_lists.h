#pragma once

#include <string>
#include <string_view>

#include "main/main_window.h"
#include "store/session.h"

// The two lists of the draws: List7 with a line a draw of the file, and the table ListView1, where
// corrections and removals wait for the file. The key of a line and of a row is the draw's place.

namespace main_window {

// The two-letter form of a day typed in one of its known spellings ("mo" "MO" "Mo", ...); any other
// text is returned unchanged.
std::string TwoLetterDay(std::string_view text);

// The short form ("Mon") of a day text by the letters that it begins with, or the text itself.
std::string ShortDay(std::string_view text);

// One row of the table: balls padded, date, day.
base::ListView::Cells TableRow(const store::DrawRecord& record);

// The record that a row of the table is written as: what the boxes make of it. Balls that are no
// numbers from 0 to 255, which no box can show, keep their text.
store::DrawRecord RecordOfRow(const base::ListView::Cells& row);

// The bytes of a whole file, with `line` in place of the one at `index`. The blank row of a file
// that was empty is in none.
std::string BytesOfLines(const base::ListBox& lines, int index, const std::string& line);
std::string BytesOfRows(const base::ListView& table, std::int16_t spare);

// Fills both lists anew from what the desk knows of the file and of pending rows, without any
// event. The selections go, and so does the blank record where the file has draws by now.
void FillLists(store::Session& session, MainWindow& window);

// What is pending, as a person counts it: "1 removal", "2 changes"; empty for nothing.
std::string PendingText(const store::PendingRows& pending);

}  // namespace main_window
