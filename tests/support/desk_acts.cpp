#include "support/desk_acts.h"

namespace test {

void StartQuietly(TestDesk& desk) {
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
}

void TypeDraw(TestDesk& desk, const store::DrawRecord& draw) {
  desk.User().Click(desk.Main().cmdAdd);
  for (int k = 0; k < store::kBalls; ++k) desk.Main().BallBox(k).SetText(draw.Ball(k));
  desk.Main().TxtBall07.SetText(draw.day);
  desk.Main().txtDate.SetText(draw.date);
}

void SaveDraw(TestDesk& desk, const store::DrawRecord& draw) {
  TypeDraw(desk, draw);
  desk.User().Click(desk.Main().cmdSave);
}

void TypeEdit(TestDesk& desk, int place, const std::string& ball) {
  desk.User().Pick(desk.Main().List7, place - 1);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText(ball);
}

void EditDraw(TestDesk& desk, int place, const std::string& ball) {
  TypeEdit(desk, place, ball);
  desk.User().Click(desk.Main().cmdedit);
}

void EditRow(TestDesk& desk, int row, const std::string& ball) {
  desk.User().Pick(desk.Main().ListView1, row);
  desk.User().DoubleClick(desk.Main().ListView1);
  desk.Main().TxtChange(5).SetText(ball);
  desk.User().Click(desk.Main().Label18);
}

void RemoveRow(TestDesk& desk, int row) {
  desk.User().Pick(desk.Main().ListView1, row);
  desk.User().Click(desk.Main().Command18);
}

}  // namespace test
