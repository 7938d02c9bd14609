#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/controls/control.h"

// The controls that hold rows.

namespace base {

// A list of rows, sorted or in the order of adding. Rows count from 0; index -1 is no selection.
// A sorted list sorts when it is next read, so that filling it is cheap; every reader sees the
// order.
class ListBox : public Control {
 public:
  explicit ListBox(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kListBox, std::move(name), index) {}
  void SetSorted() { sorted_ = true; }
  bool Sorted() const { return sorted_; }

  void Clear();
  // `key` says what a row of an unsorted list stands for, wherever it moves; see Key.
  void AddItem(std::string row, int key = 0);
  // Before the row of this index, which may be the count. Error 5 outside that.
  void InsertItem(int index, std::string row, int key = 0);
  void RemoveItem(int index);
  int ListCount() const { return static_cast<int>(rows_.size()); }
  // The text of a row; rows outside the list read as empty.
  const std::string& Row(int index) const;
  const std::vector<std::string>& Rows() const;
  // The key of a row, 0 outside the list and in a sorted one.
  int Key(int index) const;
  // The row with this key, or -1.
  int RowWithKey(int key) const;
  int ListIndex() const;
  // Selects a row without its event. Error 380 outside -1..count-1.
  void SetListIndex(int index);
  // The selected row's text, empty when none is.
  const std::string& Text() const { return Row(ListIndex()); }
  // Grows with every change of the rows.
  std::uint64_t RowsRevision() const { return rows_revision_; }

  bool TakesFocus() const override { return true; }
  bool HasRows() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Text"; }

 private:
  void Sort() const;
  void RowsChanged();

  mutable std::vector<std::string> rows_;
  std::vector<int> keys_;  // of an unsorted list
  mutable bool in_order_ = true;
  bool sorted_ = false;
  int list_index_ = -1;
  std::uint64_t rows_revision_ = 0;
};

// A chooser with a text and items. Its text is the item chosen, or what was set.
class ComboBox : public Control {
 public:
  explicit ComboBox(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kComboBox, std::move(name), index) {
    SetBackColor(0xFFFFFF);
  }
  void Clear();
  void AddItem(std::string item);
  void SetItems(std::vector<std::string> items);
  const std::vector<std::string>& Items() const { return items_; }
  int ListCount() const { return static_cast<int>(items_.size()); }
  int ListIndex() const { return list_index_; }
  // Chooses an item without its event; -1 clears the text. Error 380 outside the items.
  void SetListIndex(int index);
  const std::string& Text() const { return text_; }
  // Sets the text; an item that reads so becomes the chosen one.
  void SetText(std::string text);
  std::uint64_t RowsRevision() const { return rows_revision_; }

  bool TakesFocus() const override { return true; }
  bool HasRows() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Text"; }

 private:
  std::vector<std::string> items_;
  std::string text_;
  int list_index_ = -1;
  std::uint64_t rows_revision_ = 0;
};

// A table: each row a text and its sub-items. Rows count from 1, row 0 is none; cell 0 is the row's
// text and cell k its sub-item k.
class ListView : public Control {
 public:
  using Cells = std::vector<std::string>;

  explicit ListView(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kListView, std::move(name), index) {
    SetBackColor(0xFFFFFF);
  }
  const std::vector<std::string>& Headers() const { return headers_; }
  void SetHeaders(std::vector<std::string> headers);

  void Clear();
  void Reserve(std::size_t rows) { rows_.reserve(rows); }
  // `key` says what the row stands for, wherever it moves.
  void AddRow(Cells cells, int key = 0);
  // Error 9 when there is no such row. A selection behind it follows its row.
  void RemoveRow(int row);
  int RowCount() const { return static_cast<int>(rows_.size()); }
  // Error 9 when there is no such row or cell.
  const Cells& Row(int row) const;
  const std::string& Cell(int row, int cell) const;
  void SetCell(int row, int cell, std::string text);
  const std::vector<Cells>& Rows() const { return rows_; }
  // The key of a row, 0 when there is no such row.
  int Key(int row) const;
  // The row with this key, or 0.
  int RowWithKey(int key) const;

  int SelectedIndex() const { return selected_; }
  // Selects a row without its event; 0 selects none. Error 9 when there is no such row.
  void Select(int row);
  // Asks the view to bring a row into sight.
  void EnsureVisible(int row);
  int RowInSight() const { return row_in_sight_; }
  std::uint64_t RowsRevision() const { return rows_revision_; }

  bool TakesFocus() const override { return true; }
  bool HasRows() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Text"; }

 private:
  void RowsChanged();

  std::vector<std::string> headers_;
  std::vector<Cells> rows_;
  std::vector<int> keys_;
  int selected_ = 0;
  int row_in_sight_ = 0;
  std::uint64_t rows_revision_ = 0;
};

}  // namespace base
