#include "wheels/choosing.h"

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "wheels/number_sets.h"
#include "wheels/wheel_library.h"

namespace wheels {
namespace {

constexpr base::Colour kWhite = 0xFFFFFF;
constexpr int kNumberColumn = 1;
constexpr int kBandColumn = 2;

}  // namespace

void Choosing::Wire() {
  FrmTxt& window = place_.window;
  window.CboMatch.on.click = [this] { CboMatch_Click(); };
  window.CmbWheelPick.on.click = [this] { CmbWheelPick_Click(); };
  window.List2.on.click = [this] { List2_Click(); };
  window.List1.on.click = [this] { List1_Click(); };
  window.TXTActiveNumbers.Each([](base::TextBox& box) {
    box.on.drop = [&box](const std::string& text) { box.SetText(NumberOfEntry(text)); };
  });
  window.Label4.Each([this](base::Label& label) {
    label.on.click = [this, &label] {
      const std::string& hint = label.ToolTipText();
      if (!hint.empty()) place_.World().boxes.Ask({.text = hint});
    };
  });
}

void Choosing::LoadWheels(base::ListBox& list, std::int16_t pick) {
  list.Clear();
  base::Ports& world = place_.World();
  std::string& path = place_.state.wheel_ini_path;
  path = LibraryPath(world.settings, place_.program_folder);
  if (path.empty()) return;
  const base::Profile library(world.files, path);
  WheelNames(library, pick, place_.window.CboMatch.Text(),
             [&list](std::string name) { list.AddItem(std::move(name)); });
}

void Choosing::CmbWheelPick_Click() {
  FrmTxt& window = place_.window;
  LoadWheels(window.List2, base::ToInt16(base::NumericValue(window.CmbWheelPick.Text())));
}

void Choosing::CboMatch_Click() {
  FrmTxt& window = place_.window;
  base::ComboBox& pick = window.CmbWheelPick;
  CmbWheelPick_Click();  // still the old pick
  pick.Clear();
  const std::string& match = window.CboMatch.Text();
  if (match == "3") pick.SetItems({"4", "5", "6"});
  if (match == "4") pick.SetItems({"5", "6"});
  if (match == "5") pick.SetItems({"6"});
  pick.SetText("6");
  CmbWheelPick_Click();
}

void Choosing::List2_Click() {
  place_.state.wheel_pool = PoolOfName(place_.window.List2.Text());
  ShowBoxes();
  List1_Click();
}

void Choosing::ShowBoxes() {
  FrmTxt& window = place_.window;
  for (int box = 0; box < kNumberBoxes; ++box) {
    window.TXTActiveNumbers(box).SetVisible(false);
    window.Label4(box).SetVisible(false);
  }
  for (int box = 0; box < place_.state.wheel_pool; ++box) {
    window.TXTActiveNumbers(box).SetVisible(true);
    window.Label4(box).SetVisible(true);
  }
}

void Choosing::List1_Click() {
  if (const std::optional<int> set = SetOfEntry(place_.window.List1.Text())) MostCommonLocal(*set);
}

void Choosing::DoColorTemp() {
  FrmTxt& window = place_.window;
  const Temperatures table = CutIntoThirds(window.ListPerms.Rows());
  place_.state.cold_count = base::ToInt16(table.cold_count);
  place_.state.warm_top = base::ToInt16(table.warm_top);
  window.ListMain.Clear();
  for (const Temperatures::Row& row : table.rows) {
    window.ListMain.AddRow({row.occurrences, row.number, row.band});
  }
}

void Choosing::MostCommonLocal(int set) {
  FrmTxt& window = place_.window;
  window.TXTActiveNumbers.Each([](base::TextBox& box) { box.SetText(""); });
  if (window.ListMain.RowCount() == 0 && set != kCounted) return;
  const int boxes = FillsAllBoxes(set) ? kNumberBoxes : place_.state.wheel_pool;
  for (int box = 1; box <= boxes; ++box) FillBox(set, box);
  ColourBoxes();
}

void Choosing::FillBox(int set, int box) {
  FrmTxt& window = place_.window;
  base::TextBox& target = window.TXTActiveNumbers(box - 1);
  if (set == kBlank) return target.SetText("");
  if (set == kCounted) return target.SetText(base::IntegerText(box));
  if (set == kOwnNumbers) {
    target.SetText("");
    return target.SetBackColor(kWhite);
  }
  const int item = ItemForBox(set, box, window.ListMain.RowCount(), place_.state.cold_count);
  target.SetText(window.ListMain.Cell(item, kNumberColumn));
}

void Choosing::ColourBoxes() {
  FrmTxt& window = place_.window;
  for (const base::ListView::Cells& item : window.ListMain.Rows()) {
    for (int box = 0; box < place_.state.wheel_pool; ++box) {
      base::TextBox& target = window.TXTActiveNumbers(box);
      if (target.Text() == item[kNumberColumn]) target.SetBackColor(BandColour(item[kBandColumn]));
    }
  }
}

void Choosing::FillNumberSets() {
  for (const char* entry : kNumberSets) place_.window.List1.AddItem(entry);
}

void Choosing::FillHints() {
  FrmTxt& window = place_.window;
  const base::ListBox& hottest = window.List4;
  for (int i = 1; i <= kHints; ++i) {
    window.Label4(i - 1).SetToolTipText(NumberOfEntry(hottest.Row(hottest.ListCount() - i)));
  }
}

}  // namespace wheels
