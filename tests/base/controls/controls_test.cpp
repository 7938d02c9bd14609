#include <gtest/gtest.h>

#include "base/controls/form.h"
#include "base/controls/group.h"
#include "base/controls/list_controls.h"
#include "base/controls/simple_controls.h"
#include "base/windows/desktop.h"

namespace base {
namespace {

struct Window : Form {
  Window() : Form("Window", FormRole::kChild) {}
  TextBox box{*this, "txtBox"};
  Label label{*this, "Label"};
  Option first{*this, "first"};
  Option second{*this, "second"};
  Option other{*this, "other"};
  ListBox plain{*this, "plain"};
  ListBox sorted{*this, "sorted"};
  ComboBox combo{*this, "combo"};
  ListView table{*this, "table"};
  Group<Bar> bars{*this, "bars", 2, 4};
};

TEST(Form, FindsControlsWithoutRegardToCase) {
  Window window;
  EXPECT_EQ(window.Find("TXTBOX"), &window.box);
  EXPECT_EQ(window.Find("BARS", 3), &window.bars(3));
  EXPECT_EQ(window.Find("bars"), nullptr);
  EXPECT_EQ(window.Find("txtBox", 0), nullptr);
  EXPECT_EQ(window.bars(3).FullName(), "Window.bars(3)");
}

TEST(Form, IsToldTheFirstChangeOnly) {
  Window window;
  window.ClearChanged();
  for (Control* control : window.Controls()) control->ClearChanged();
  int told = 0;
  window.on_changed = [&] { ++told; };
  window.label.SetCaption("a");
  window.box.SetText("b");
  window.box.SetText("b");
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(window.label.Changed());
  EXPECT_FALSE(window.combo.Changed());
}

TEST(Group, AMissingMemberIsError340) {
  Window window;
  EXPECT_EQ(window.bars.Count(), 3);
  EXPECT_EQ(window.bars.First(), 2);
  EXPECT_EQ(window.bars.Last(), 4);
  try {
    window.bars(5);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 340);
    EXPECT_EQ(error.Description(), "Control array element '5' doesn't exist");
  }
  EXPECT_THROW(window.bars(0), Error);
}

TEST(TextBox, ChangeRunsOnAnotherTextOnly) {
  Window window;
  int changes = 0;
  window.box.on.change = [&] { ++changes; };
  window.box.SetText("x");
  window.box.SetText("x");
  EXPECT_EQ(changes, 1);
}

TEST(Label, ANumberIsWrittenAsText) {
  Window window;
  window.label.SetNumber(0);
  EXPECT_EQ(window.label.Caption(), "0");
  window.label.SetCaption("x");
  window.label.SetNumber(0);
  EXPECT_EQ(window.label.Caption(), "0");
}

TEST(Option, ExcludesOthersOfItsGroup) {
  Window window;
  window.other.SetGroup("elsewhere");
  window.other.SetValue(true);
  window.first.SetValue(true);
  window.second.SetValue(true);
  EXPECT_FALSE(window.first.Value());
  EXPECT_TRUE(window.second.Value());
  EXPECT_TRUE(window.other.Value());
}

TEST(ListBox, KeepsTheOrderOfAdding) {
  Window window;
  window.plain.AddItem("b");
  window.plain.AddItem("a");
  window.plain.InsertItem(1, "c");
  EXPECT_EQ(window.plain.Rows(), (std::vector<std::string>{"b", "c", "a"}));
  EXPECT_EQ(window.plain.Row(3), "");
  EXPECT_EQ(window.plain.Row(-1), "");
  EXPECT_THROW(window.plain.InsertItem(4, "d"), Error);
}

TEST(ListBox, EveryReaderSeesTheSortedOrder) {
  Window window;
  window.sorted.SetSorted();
  for (const char* row : {"045 7", "045 12", "003 1"}) window.sorted.AddItem(row);
  EXPECT_EQ(window.sorted.Row(0), "003 1");
  window.sorted.SetListIndex(1);
  EXPECT_EQ(window.sorted.Text(), "045 12");
  window.sorted.AddItem("001 5");
  EXPECT_EQ(window.sorted.ListIndex(), 2);
  EXPECT_EQ(window.sorted.Text(), "045 12");
}

TEST(ListBox, ASelectionOutsideTheRowsIsError380) {
  Window window;
  window.plain.AddItem("a");
  window.plain.SetListIndex(-1);
  try {
    window.plain.SetListIndex(1);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 380);
  }
}

TEST(ListBox, RemovingTheSelectedRowSelectsNone) {
  Window window;
  for (const char* row : {"a", "b", "c"}) window.plain.AddItem(row);
  window.plain.SetListIndex(2);
  window.plain.RemoveItem(0);
  EXPECT_EQ(window.plain.Text(), "c");
  window.plain.RemoveItem(1);
  EXPECT_EQ(window.plain.ListIndex(), -1);
}

TEST(ListBox, AKeyStaysWithItsRow) {
  Window window;
  for (const int key : {1, 2, 3, 7}) window.plain.AddItem("row", key);
  window.plain.RemoveItem(1);
  EXPECT_EQ(window.plain.Key(1), 3);
  EXPECT_EQ(window.plain.RowWithKey(2), -1);
  EXPECT_EQ(window.plain.RowWithKey(7), 2);
  window.plain.InsertItem(1, "row", 2);
  EXPECT_EQ(window.plain.RowWithKey(2), 1);
  EXPECT_EQ(window.plain.RowWithKey(7), 3);
  window.plain.AddItem("without a key");
  EXPECT_EQ(window.plain.Key(4), 0);
  EXPECT_EQ(window.plain.Key(-1), 0);
  EXPECT_EQ(window.plain.Key(5), 0);
  EXPECT_EQ(window.plain.RowWithKey(0), -1);
  window.plain.Clear();
  EXPECT_EQ(window.plain.RowWithKey(1), -1);
}

TEST(ListView, AKeyStaysWithItsRow) {
  Window window;
  for (const int key : {1, 2, 3, 7}) window.table.AddRow({"row"}, key);
  window.table.RemoveRow(2);
  EXPECT_EQ(window.table.Key(2), 3);
  EXPECT_EQ(window.table.RowWithKey(2), 0);
  EXPECT_EQ(window.table.RowWithKey(7), 3);
  EXPECT_EQ(window.table.Key(0), 0);
  EXPECT_EQ(window.table.Key(4), 0);
  EXPECT_EQ(window.table.RowWithKey(0), 0);
  window.table.Clear();
  EXPECT_EQ(window.table.RowWithKey(1), 0);
}

// Keys mostly stand at or before their own number, but nothing says that they must.
TEST(ListView, AKeyIsFoundBehindItsOwnNumber) {
  Window window;
  for (const int key : {9, 8, 1}) window.table.AddRow({"row"}, key);
  EXPECT_EQ(window.table.RowWithKey(1), 3);
  EXPECT_EQ(window.table.RowWithKey(9), 1);
}

TEST(ComboBox, ItsTextIsTheItemChosen) {
  Window window;
  window.combo.SetItems({"All Days", "Monday"});
  EXPECT_EQ(window.combo.Text(), "");
  window.combo.SetListIndex(1);
  EXPECT_EQ(window.combo.Text(), "Monday");
  window.combo.SetText("all days");
  EXPECT_EQ(window.combo.ListIndex(), 0);
  EXPECT_THROW(window.combo.SetListIndex(2), Error);
}

TEST(ListView, CountsRowsFromOne) {
  Window window;
  window.table.AddRow({"a", "1"});
  window.table.AddRow({"b", "2"});
  EXPECT_EQ(window.table.Cell(2, 1), "2");
  EXPECT_THROW(window.table.Cell(0, 0), Error);
  EXPECT_THROW(window.table.Cell(3, 0), Error);
  EXPECT_THROW(window.table.Select(3), Error);
  window.table.Select(2);
  window.table.RemoveRow(1);
  EXPECT_EQ(window.table.SelectedIndex(), 1);
  EXPECT_EQ(window.table.Cell(1, 0), "b");
}

TEST(Property, IsReadByNameInAnyCase) {
  Window window;
  window.bars(2).SetValue(45);
  EXPECT_EQ(std::get<double>(*window.bars(2).Property("VALUE")), 45);
  EXPECT_EQ(std::get<bool>(*window.box.Property("Enabled")), true);
  EXPECT_EQ(std::get<double>(*window.table.Property("SelectedIndex")), 0);
  EXPECT_FALSE(window.box.Property("Caption").has_value());
}

}  // namespace
}  // namespace base
