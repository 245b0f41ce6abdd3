#pragma once
// The tape grid as Qt sees it: a table over the core's tape store, one
// column per tape and one row per grid row. Nothing is copied; Sync() tells
// the views what changed since the last look, so a tape of tens of thousands
// of lines, or a thousand tapes, costs no more than one short one.

#include <QAbstractTableModel>
#include <cstdint>

namespace brenko {
class TapeStore;
}

namespace brenko::ui {

class TapeTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  TapeTableModel(const TapeStore& tapes, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index,
                int role = Qt::DisplayRole) const override;

  // Brings the views up to date with the store. Only `shownColumn` is in
  // view: a change of another column's lines is seen when it is shown.
  void Sync(int shownColumn);

 private:
  const TapeStore& tapes_;
  int rows_;
  int cols_;
  int column_ = -1;
  std::uint64_t columnRevision_ = 0;
};

}  // namespace brenko::ui
