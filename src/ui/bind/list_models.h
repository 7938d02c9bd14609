#pragma once

#include <QAbstractListModel>
#include <QAbstractTableModel>

#include "base/controls/list_controls.h"

namespace ui {

// The rows of a list control, read where they are: a list of any length costs nothing to show.
class ListRows : public QAbstractListModel {
  Q_OBJECT

 public:
  ListRows(const base::ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  // Takes the rows as they are now. True if they were others before.
  bool Refresh();
  // The control is about to go.
  void Forget();

 private:
  const base::ListBox* list_;
  std::uint64_t revision_ = ~std::uint64_t{0};
  int rows_ = 0;
};

// The same for a table and its headings.
class TableRows : public QAbstractTableModel {
  Q_OBJECT

 public:
  TableRows(const base::ListView& table, QObject* parent)
      : QAbstractTableModel(parent), table_(&table) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // A row can be dragged out as the text of its cells, blanks between.
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool Refresh();
  void Forget();

 private:
  const base::ListView* table_;
  std::uint64_t revision_ = ~std::uint64_t{0};
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace ui
