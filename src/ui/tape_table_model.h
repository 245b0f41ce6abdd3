#pragma once
// The tape grid as Qt sees it: a table over the core's tape store, one
// column per tape and one row per grid row. Nothing is copied; Sync() tells
// the views what changed since the last look, so a tape of tens of thousands
// of lines costs no more than a short one.

#include <QAbstractTableModel>

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

  // Brings the views up to date with the store.
  void Sync();

 private:
  const TapeStore& tapes_;
  int rows_;
  int cols_;
};

}  // namespace brenko::ui
