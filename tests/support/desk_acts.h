#pragma once

#include <string>

#include "store/draw_record.h"
#include "support/test_desk.h"

// What a person does with draws, in the window of a desk that runs.

namespace test {

// Starts a desk whose tips are off.
void StartQuietly(TestDesk& desk);

// Presses Add and puts a draw into the boxes; SaveDraw stores it as well.
void TypeDraw(TestDesk& desk, const store::DrawRecord& draw);
void SaveDraw(TestDesk& desk, const store::DrawRecord& draw);

// Picks the line of the draw in this place, the first is 1, and gives it another sixth ball;
// EditDraw stores it as well.
void TypeEdit(TestDesk& desk, int place, const std::string& ball);
void EditDraw(TestDesk& desk, int place, const std::string& ball);

// Gives the draw in this row, the first is 1, another sixth ball in the row editor.
void EditRow(TestDesk& desk, int row, const std::string& ball);
void RemoveRow(TestDesk& desk, int row);

}  // namespace test
