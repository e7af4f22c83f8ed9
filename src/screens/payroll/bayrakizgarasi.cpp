#include "screens/payroll/bayrakizgarasi.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "ui/metin.h"

namespace belvani {
namespace {

// A check box in the middle of its cell.
class OrtadaKutu final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* boya, const QStyleOptionViewItem& secenek, const QModelIndex& yer) const override {
    QStyleOptionViewItem hucre = secenek;
    initStyleOption(&hucre, yer);
    const QWidget* parca = secenek.widget;
    const QStyle* stil = parca->style();
    hucre.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    stil->drawControl(QStyle::CE_ItemViewItem, &hucre, boya, parca);
    QStyleOptionViewItem kutu = hucre;
    const QSize boy(stil->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, parca),
                    stil->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, parca));
    kutu.rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, boy, secenek.rect);
    kutu.state &= ~(QStyle::State_HasFocus | QStyle::State_Off | QStyle::State_On);
    kutu.state |= hucre.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    stil->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &kutu, boya, parca);
  }
};

}  // namespace

BayrakIzgarasi::BayrakIzgarasi(std::span<const std::string_view> satirlar, std::span<const BayrakSutunu> sutunlar,
                               QWidget* ust)
    : QTableWidget(int(satirlar.size()), int(sutunlar.size()), ust), sutunlar_(sutunlar) {
  setItemDelegate(new OrtadaKutu(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setCornerButtonEnabled(false);
  setSizeAdjustPolicy(AdjustToContents);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  for (int satir = 0; satir < rowCount(); ++satir)
    setVerticalHeaderItem(satir, new QTableWidgetItem(Yazi(satirlar[std::size_t(satir)])));
  for (int sutun = 0; sutun < columnCount(); ++sutun) {
    const BayrakSutunu& s = sutunlar[std::size_t(sutun)];
    auto* baslik = new QTableWidgetItem(QString::fromUtf8(s.baslik));
    baslik->setToolTip(QString::fromUtf8(s.ipucu));
    setHorizontalHeaderItem(sutun, baslik);
    for (int satir = 0; satir < rowCount(); ++satir) {
      auto* kutu = new QTableWidgetItem;
      kutu->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      kutu->setCheckState(Qt::Unchecked);
      setItem(satir, sutun, kutu);
    }
  }
  for (QHeaderView* baslik : {horizontalHeader(), verticalHeader()}) {
    baslik->setSectionResizeMode(QHeaderView::Fixed);
    baslik->setHighlightSections(false);
    baslik->setSectionsClickable(false);
  }
  verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  horizontalHeader()->setDefaultSectionSize(fontMetrics().horizontalAdvance("Giriş") + 26);
  connect(this, &QTableWidget::cellClicked, this, &BayrakIzgarasi::Cevir);
  setCurrentCell(0, 0);
}

void BayrakIzgarasi::Koy(std::span<const std::uint8_t> bayraklar) {
  for (int satir = 0; satir < rowCount(); ++satir)
    for (int sutun = 0; sutun < columnCount(); ++sutun) {
      const bool var = (bayraklar[std::size_t(satir)] & sutunlar_[std::size_t(sutun)].bit) != 0;
      item(satir, sutun)->setCheckState(var ? Qt::Checked : Qt::Unchecked);
    }
}

void BayrakIzgarasi::Al(std::span<std::uint8_t> bayraklar) const {
  for (int satir = 0; satir < rowCount(); ++satir)
    for (int sutun = 0; sutun < columnCount(); ++sutun) {
      std::uint8_t& bayrak = bayraklar[std::size_t(satir)];
      const std::uint8_t bit = sutunlar_[std::size_t(sutun)].bit;
      bayrak = std::uint8_t(item(satir, sutun)->checkState() == Qt::Checked ? bayrak | bit : bayrak & ~bit);
    }
}

void BayrakIzgarasi::Cevir(int satir, int sutun) {
  QTableWidgetItem* kutu = item(satir, sutun);
  kutu->setCheckState(kutu->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void BayrakIzgarasi::keyPressEvent(QKeyEvent* olay) {
  switch (olay->key()) {
    case Qt::Key_Space:
      Cevir(currentRow(), currentColumn());
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      focusNextChild();
      return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      olay->ignore();
      return;
    default:
      QTableWidget::keyPressEvent(olay);
  }
}

}  // namespace belvani
