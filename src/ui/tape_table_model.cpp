#include "ui/tape_table_model.h"

#include <algorithm>

#include "core/tape/tape_store.h"

namespace brenko::ui {

namespace {

int Clamp(std::int32_t n) { return std::max<std::int32_t>(0, n); }

}  // namespace

TapeTableModel::TapeTableModel(const TapeStore& tapes, QObject* parent)
    : QAbstractTableModel(parent),
      tapes_(tapes),
      rows_(Clamp(tapes.Rows())),
      cols_(Clamp(tapes.Cols())) {}

int TapeTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int TapeTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cols_;
}

QVariant TapeTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(tapes_.Cell(index.row(), index.column()));
    case Qt::TextAlignmentRole:
      // Tape lines end in the same column, like the paper roll.
      return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    default:
      return {};
  }
}

void TapeTableModel::Sync(int shownColumn) {
  const int rows = Clamp(tapes_.Rows());
  const int cols = Clamp(tapes_.Cols());
  const std::uint64_t revision = tapes_.ColumnRevision(shownColumn);
  if (cols > cols_) {
    // New tapes (memories) come to the right of the others: the views keep
    // what they know of the columns they had.
    beginInsertColumns(QModelIndex(), cols_, cols - 1);
    cols_ = cols;
    endInsertColumns();
  } else if (cols < cols_) {
    // Tapes went (the frame closed): rare enough to start the views afresh.
    beginResetModel();
    rows_ = rows;
    cols_ = cols;
    endResetModel();
    column_ = shownColumn;
    columnRevision_ = revision;
    return;
  }
  if (rows > rows_) {
    beginInsertRows(QModelIndex(), rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows(QModelIndex(), rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
  // Cells are only ever written, never moved: one signal repaints what is
  // in view. A column that comes into view is painted afresh anyway.
  const bool written = shownColumn == column_ && revision != columnRevision_;
  column_ = shownColumn;
  columnRevision_ = revision;
  if (written && rows_ > 0 && shownColumn >= 0 && shownColumn < cols_) {
    emit dataChanged(index(0, shownColumn), index(rows_ - 1, shownColumn),
                     {Qt::DisplayRole});
  }
}

}  // namespace brenko::ui
