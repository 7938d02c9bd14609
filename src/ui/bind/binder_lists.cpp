#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QListView>
#include <QTableView>
#include <memory>

#include "ui/bind/binder.h"
#include "ui/bind/list_models.h"

// Lists, tables and choosers.

namespace ui {
namespace {

// Calls pick(row) for each row that the person goes to with keys or mouse, and for a press on the
// row that is selected already.
template <typename Pick>
void OnPick(QAbstractItemView* view, QObject* owner, Pick pick) {
  const auto pressed_row = std::make_shared<int>(-1);
  QObject::connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, owner,
                   [pick, pressed_row](const QModelIndex& now) {
                     if (!now.isValid()) return;
                     *pressed_row = QApplication::mouseButtons() ? now.row() : -1;
                     pick(now.row());
                   });
  QObject::connect(view, &QAbstractItemView::pressed, owner,
                   [pick, pressed_row](const QModelIndex& index) {
                     const bool picked_by_this_press = *pressed_row == index.row();
                     *pressed_row = -1;
                     if (!picked_by_this_press) pick(index.row());
                   });
}

// `row` counts from 0; -1 selects none.
void SelectRow(QAbstractItemView* view, int row, bool rows_changed) {
  QItemSelectionModel* const selection = view->selectionModel();
  if (row < 0 || row >= view->model()->rowCount()) {
    selection->clear();
    return;
  }
  const QModelIndex index = view->model()->index(row, 0);
  const bool there =
      selection->currentIndex().row() == row && selection->isRowSelected(row, QModelIndex());
  if (there && !rows_changed) return;
  selection->setCurrentIndex(index,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  view->scrollTo(index);
}

}  // namespace

void Binder::Bind(QComboBox* combo, base::ComboBox& control) {
  Name(control, combo);
  const auto revision = std::make_shared<std::uint64_t>(~std::uint64_t{0});
  Add(control, combo, [combo, &control, revision] {
    if (*revision != control.RowsRevision()) {
      *revision = control.RowsRevision();
      combo->clear();
      for (const std::string& item : control.Items()) combo->addItem(Shown(item));
    }
    combo->setPlaceholderText(Shown(control.Text()));
    if (combo->currentIndex() != control.ListIndex()) combo->setCurrentIndex(control.ListIndex());
  });
  connect(combo, &QComboBox::activated, this, [this, &control](int item) {
    ActOn(control, [&](base::User& user) { user.Pick(control, item); });
  });
}

void Binder::Bind(QListView* view, base::ListBox& control) {
  Name(control, view);
  auto* const rows = new ListRows(control, view);
  view->setModel(rows);
  view->setUniformItemSizes(true);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setSelectionMode(QAbstractItemView::SingleSelection);
  connect(this, &Binder::detached, rows, &ListRows::Forget);
  Add(control, view, [view, rows, &control] {
    const bool changed = rows->Refresh();
    SelectRow(view, control.ListIndex(), changed);
  });
  OnPick(view, this, [this, &control](int row) {
    ActOn(control, [&](base::User& user) { user.Pick(control, row); });
  });
  connect(view, &QAbstractItemView::doubleClicked, this, [this, &control] {
    ActOn(control, [&](base::User& user) { user.DoubleClick(control); });
  });
}

void Binder::Bind(QTableView* view, base::ListView& control) {
  Name(control, view);
  auto* const rows = new TableRows(control, view);
  view->setModel(rows);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setSelectionMode(QAbstractItemView::SingleSelection);
  view->setSelectionBehavior(QAbstractItemView::SelectRows);
  view->setTabKeyNavigation(false);
  connect(this, &Binder::detached, rows, &TableRows::Forget);
  const auto in_sight = std::make_shared<int>(0);
  Add(control, view, [view, rows, &control, in_sight] {
    const bool changed = rows->Refresh();
    SelectRow(view, control.SelectedIndex() - 1, changed);
    if (control.RowInSight() == *in_sight) return;
    *in_sight = control.RowInSight();
    if (*in_sight > 0) view->scrollTo(rows->index(*in_sight - 1, 0));
  });
  OnPick(view, this, [this, &control](int row) {
    ActOn(control, [&](base::User& user) { user.Pick(control, row + 1); });
  });
  connect(view->horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this, &control](int column) {
            ActOn(control, [&](base::User& user) { user.ClickHeader(control, column); });
          });
  connect(view, &QAbstractItemView::doubleClicked, this, [this, &control] {
    ActOn(control, [&](base::User& user) { user.DoubleClick(control); });
  });
}

}  // namespace ui
