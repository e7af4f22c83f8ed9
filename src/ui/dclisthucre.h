// The editing box of a dclist: makes the editor of a cell and turns its keys into steps through the row.
#pragma once

#include <QStyledItemDelegate>

namespace belvani {

class dclist;

// Property of an editor: its text when it was opened.
inline constexpr const char* IlkMetin = "ilkMetin";

class dclistHucre : public QStyledItemDelegate {
  Q_OBJECT
 public:
  explicit dclistHucre(dclist& liste);

  QWidget* createEditor(QWidget* ust, const QStyleOptionViewItem& secenek, const QModelIndex& yer) const override;
  void setEditorData(QWidget* duzenleyici, const QModelIndex& yer) const override;
  // The list itself writes the text, once it has been checked.
  void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

 protected:
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  dclist& liste_;
};

}  // namespace belvani
