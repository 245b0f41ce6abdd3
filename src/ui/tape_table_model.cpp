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

void TapeTableModel::Sync() {
  const int rows = Clamp(tapes_.Rows());
  const int cols = Clamp(tapes_.Cols());
  if (cols != cols_) {
    // A tape came or went: rare enough to start the views afresh.
    beginResetModel();
    rows_ = rows;
    cols_ = cols;
    endResetModel();
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
  // in view.
  if (rows_ > 0 && cols_ > 0) {
    emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1),
                     {Qt::DisplayRole});
  }
}

}  // namespace brenko::ui
