#include "base/controls/list_controls.h"

#include <algorithm>

#include "base/controls/form.h"
#include "base/language/error.h"
#include "base/language/text.h"
#include "base/language/text_order.h"

namespace base {
namespace {

const std::string kNoText;

// The index of an item that reads so without regard to case, or -1.
int IndexOf(const std::vector<std::string>& items, std::string_view text) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (EqualNoCase(items[i], text)) return static_cast<int>(i);
  }
  return -1;
}

// The place of a key, counted from 0, or -1. Keys mostly grow with their rows and stand at or
// before their own number, so the search begins there.
int PlaceOf(const std::vector<int>& keys, int key) {
  if (key <= 0) return -1;
  for (auto place = std::min(static_cast<std::ptrdiff_t>(keys.size()), std::ptrdiff_t{key});
       place-- > 0;) {
    if (keys[static_cast<std::size_t>(place)] == key) return static_cast<int>(place);
  }
  const auto found = std::find(keys.begin(), keys.end(), key);
  return found == keys.end() ? -1 : static_cast<int>(found - keys.begin());
}

int KeyAt(const std::vector<int>& keys, int place) {
  const auto index = static_cast<std::size_t>(place);
  return place < 0 || index >= keys.size() ? 0 : keys[index];
}

}  // namespace

// --- ListBox

void ListBox::RowsChanged() {
  ++rows_revision_;
  MarkChanged();
}

void ListBox::Clear() {
  rows_.clear();
  keys_.clear();
  in_order_ = true;
  list_index_ = -1;
  RowsChanged();
}

void ListBox::AddItem(std::string row, int key) {
  if (!sorted_) {
    rows_.push_back(std::move(row));
    keys_.push_back(key);
  } else if (list_index_ < 0) {
    rows_.push_back(std::move(row));
    in_order_ = false;
  } else {
    // A selection stays on its row, so the place of the new one has to be known now.
    Sort();
    const auto place = std::upper_bound(
        rows_.begin(), rows_.end(), row,
        [](const std::string& a, const std::string& b) { return CompareText(a, b) < 0; });
    if (place - rows_.begin() <= list_index_) ++list_index_;
    rows_.insert(place, std::move(row));
  }
  RowsChanged();
}

void ListBox::InsertItem(int index, std::string row, int key) {
  if (index < 0 || index > ListCount()) throw Error(kInvalidCall);
  rows_.insert(rows_.begin() + index, std::move(row));
  if (!sorted_) keys_.insert(keys_.begin() + index, key);
  if (list_index_ >= index) ++list_index_;
  RowsChanged();
}

void ListBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) throw Error(kInvalidCall);
  Sort();
  rows_.erase(rows_.begin() + index);
  if (!sorted_) keys_.erase(keys_.begin() + index);
  if (list_index_ == index) list_index_ = -1;
  if (list_index_ > index) --list_index_;
  RowsChanged();
}

void ListBox::Sort() const {
  if (in_order_) return;
  SortTexts(rows_);
  in_order_ = true;
}

const std::string& ListBox::Row(int index) const {
  Sort();
  if (index < 0 || index >= ListCount()) return kNoText;
  return rows_[static_cast<std::size_t>(index)];
}

const std::vector<std::string>& ListBox::Rows() const {
  Sort();
  return rows_;
}

int ListBox::Key(int index) const { return KeyAt(keys_, index); }

int ListBox::RowWithKey(int key) const { return PlaceOf(keys_, key); }

int ListBox::ListIndex() const { return list_index_; }

void ListBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw Error(kInvalidProperty);
  Sort();
  Set(list_index_, index);
}

std::optional<PropertyValue> ListBox::Property(std::string_view name) const {
  if (EqualNoCase(name, "Text")) return Text();
  if (EqualNoCase(name, "ListIndex")) return static_cast<double>(list_index_);
  if (EqualNoCase(name, "ListCount")) return static_cast<double>(ListCount());
  return Control::Property(name);
}

// --- ComboBox

void ComboBox::Clear() { SetItems({}); }

void ComboBox::AddItem(std::string item) {
  items_.push_back(std::move(item));
  ++rows_revision_;
  MarkChanged();
}

void ComboBox::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  text_.clear();
  list_index_ = -1;
  ++rows_revision_;
  MarkChanged();
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw Error(kInvalidProperty);
  Set(list_index_, index);
  Set(text_, index < 0 ? std::string() : items_[static_cast<std::size_t>(index)]);
}

void ComboBox::SetText(std::string text) {
  Set(list_index_, IndexOf(items_, text));
  Set(text_, std::move(text));
}

std::optional<PropertyValue> ComboBox::Property(std::string_view name) const {
  if (EqualNoCase(name, "Text")) return text_;
  if (EqualNoCase(name, "ListIndex")) return static_cast<double>(list_index_);
  if (EqualNoCase(name, "ListCount")) return static_cast<double>(ListCount());
  return Control::Property(name);
}

// --- ListView

void ListView::SetHeaders(std::vector<std::string> headers) { Set(headers_, std::move(headers)); }

void ListView::RowsChanged() {
  ++rows_revision_;
  MarkChanged();
}

void ListView::Clear() {
  rows_.clear();
  keys_.clear();
  selected_ = 0;
  row_in_sight_ = 0;
  RowsChanged();
}

void ListView::AddRow(Cells cells, int key) {
  rows_.push_back(std::move(cells));
  keys_.push_back(key);
  RowsChanged();
}

void ListView::RemoveRow(int row) {
  if (row < 1 || row > RowCount()) throw Error(kSubscript);
  rows_.erase(rows_.begin() + (row - 1));
  keys_.erase(keys_.begin() + (row - 1));
  if (selected_ > row || selected_ > RowCount()) --selected_;
  RowsChanged();
}

const ListView::Cells& ListView::Row(int row) const {
  if (row < 1 || row > RowCount()) throw Error(kSubscript);
  return rows_[static_cast<std::size_t>(row - 1)];
}

const std::string& ListView::Cell(int row, int cell) const {
  const Cells& cells = Row(row);
  if (cell < 0 || cell >= static_cast<int>(cells.size())) throw Error(kSubscript);
  return cells[static_cast<std::size_t>(cell)];
}

int ListView::Key(int row) const { return KeyAt(keys_, row - 1); }

int ListView::RowWithKey(int key) const { return PlaceOf(keys_, key) + 1; }

void ListView::SetCell(int row, int cell, std::string text) {
  if (Cell(row, cell) == text) return;
  rows_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(cell)] = std::move(text);
  RowsChanged();
}

void ListView::Select(int row) {
  if (row < 0 || row > RowCount()) throw Error(kSubscript);
  Set(selected_, row);
}

void ListView::EnsureVisible(int row) { Set(row_in_sight_, row); }

std::optional<PropertyValue> ListView::Property(std::string_view name) const {
  if (EqualNoCase(name, "Text")) return selected_ > 0 ? Cell(selected_, 0) : std::string();
  if (EqualNoCase(name, "SelectedIndex")) return static_cast<double>(selected_);
  if (EqualNoCase(name, "ListCount")) return static_cast<double>(RowCount());
  if (EqualNoCase(name, "Headers")) return headers_;
  return Control::Property(name);
}

}  // namespace base
