#include "ui/bind/list_models.h"

#include <QMimeData>

#include "ui/bind/binder.h"

namespace ui {

int ListRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

QVariant ListRows::data(const QModelIndex& index, int role) const {
  // The control may have fewer rows than were last told of.
  if (!list_ || index.row() >= list_->ListCount()) return {};
  if (role == Qt::DisplayRole) return Shown(list_->Row(index.row()));
  return {};
}

bool ListRows::Refresh() {
  if (!list_ || revision_ == list_->RowsRevision()) return false;
  revision_ = list_->RowsRevision();
  if (rows_ == list_->ListCount() && rows_ > 0) {
    emit dataChanged(index(0), index(rows_ - 1));
    return true;
  }
  beginResetModel();
  rows_ = list_->ListCount();
  endResetModel();
  return true;
}

void ListRows::Forget() {
  beginResetModel();
  list_ = nullptr;
  rows_ = 0;
  endResetModel();
}

int TableRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int TableRows::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant TableRows::data(const QModelIndex& index, int role) const {
  if (!table_ || index.row() >= table_->RowCount()) return {};
  if (role == Qt::TextAlignmentRole) return int{Qt::AlignCenter};
  if (role != Qt::DisplayRole) return {};
  const base::ListView::Cells& cells = table_->Row(index.row() + 1);
  const auto column = static_cast<std::size_t>(index.column());
  return column < cells.size() ? Shown(cells[column]) : QString();
}

QVariant TableRows::headerData(int section, Qt::Orientation orientation, int role) const {
  if (!table_ || role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) {
    return QStringLiteral("%1").arg(section + 1, 3, 10, QLatin1Char('0'));
  }
  const auto& headers = table_->Headers();
  const auto column = static_cast<std::size_t>(section);
  return column < headers.size() ? Shown(headers[column]) : QString();
}

Qt::ItemFlags TableRows::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QStringList TableRows::mimeTypes() const { return {QStringLiteral("text/plain")}; }

QMimeData* TableRows::mimeData(const QModelIndexList& indexes) const {
  QStringList cells;
  for (const QModelIndex& index : indexes) cells << data(index, Qt::DisplayRole).toString();
  auto* const dragged = new QMimeData;
  dragged->setText(cells.join(QLatin1Char(' ')));
  return dragged;
}

bool TableRows::Refresh() {
  const int columns = table_ ? static_cast<int>(table_->Headers().size()) : 0;
  if (!table_ || (revision_ == table_->RowsRevision() && columns == columns_)) return false;
  revision_ = table_->RowsRevision();
  if (rows_ == table_->RowCount() && columns == columns_ && rows_ > 0 && columns_ > 0) {
    emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    return true;
  }
  beginResetModel();
  rows_ = table_->RowCount();
  columns_ = columns;
  endResetModel();
  return true;
}

void TableRows::Forget() {
  beginResetModel();
  table_ = nullptr;
  rows_ = 0;
  endResetModel();
}

}  // namespace ui
