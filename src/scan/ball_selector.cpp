#include "scan/ball_selector.h"

#include "base/language/numbers.h"

namespace scan {
namespace {

constexpr base::Colour kYellow = 0x00FFFF;
constexpr base::Colour kWhite = 0xFFFFFF;
constexpr const char* kNoMark = "00";
constexpr int kMainBalls = 6;

}  // namespace

FrmDropDown::FrmDropDown() : Form("FrmDropDown", base::FormRole::kChild) {
  SetCaption("Ball Selector");
  CmdScan.SetCaption("Start");
  LblRecNum.SetCaption("Draw Number");
  for (int row = 0; row < kRows; ++row) {
    Row(row).Each([](base::Label& label) {
      label.SetCaption(kNoMark);
      label.SetBackColor(kWhite);
    });
  }
}

base::Group<base::Label>& FrmDropDown::Row(int row) {
  const std::array<base::Group<base::Label>*, kRows> rows{
      &Label1, &Label2, &Label3, &Label4, &Label15, &Label16, &Label7, &Label8, &Label9, &Label11};
  return *rows.at(static_cast<std::size_t>(row));
}

void BallSelector::Wire() {
  window_.CmdScan.on.click = [this] { CmdScan_Click(); };
}

void BallSelector::CmdScan_Click() {
  session_.file_pos = 1;
  session_.draw_count = 0;
  window_.txtRecNum.SetText("1");
  do {
    // The first draw is read twice, so the walk stays one draw behind the count of reads.
    session_.ReadDraw(base::NumericValue(window_.txtRecNum.Text()));
    session_.draw_count = base::AddInt16(session_.draw_count, 1);
    window_.txtRecNum.SetText(base::IntegerText(session_.draw_count));
    for (int k = 0; k < kMainBalls; ++k) MoveBallsDown(session_.current_draw.Ball(k));
    ClearTopRow();
  } while (base::NumericValue(window_.txtRecNum.Text()) + 1 <= session_.UpperBound());
}

void BallSelector::MoveBallsDown(const std::string& ball) {
  const int column = base::ToInt16(ball);
  // The top row is written first and then moves down with the column.
  window_.Label1(column).SetCaption(ball);
  window_.Label1(column).SetBackColor(kYellow);
  for (int row = FrmDropDown::kRows - 1; row > 0; --row) {
    base::Label& below = window_.Row(row)(column);
    const base::Label& above = window_.Row(row - 1)(column);
    below.SetCaption(above.Caption());
    below.SetBackColor(above.BackColor());
  }
}

void BallSelector::ClearTopRow() {
  window_.Label1.Each([](base::Label& label) {
    label.SetCaption(kNoMark);
    label.SetBackColor(kWhite);
  });
}

}  // namespace scan
