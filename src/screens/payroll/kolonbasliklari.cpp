#include "screens/payroll/kolonbasliklari.h"

#include <QHeaderView>

namespace belvani {

KolonBasliklari::KolonBasliklari(dclist& liste, QWidget* ust) : QWidget(ust), liste_(liste) {
  setFixedHeight(fontMetrics().height() + 6);
  const QHeaderView* ustluk = liste.horizontalHeader();
  connect(ustluk, &QHeaderView::sectionResized, this, &KolonBasliklari::Yerlestir);
  connect(ustluk, &QHeaderView::geometriesChanged, this, &KolonBasliklari::Yerlestir);
}

void KolonBasliklari::Ekle(const QString& metin, const QString& ilk, const QString& son) {
  auto* etiket = new QLabel(metin, this);
  etiket->setAlignment(Qt::AlignCenter);
  etiket->setProperty("baslik", true);
  basliklar_.push_back({etiket, liste_.Model().KolonBul(ilk), liste_.Model().KolonBul(son)});
  Yerlestir();
}

void KolonBasliklari::Yerlestir() {
  const QHeaderView* ustluk = liste_.horizontalHeader();
  for (const Baslik& b : basliklar_) {
    const int bas = liste_.frameWidth() + ustluk->sectionViewportPosition(b.ilk);
    const int bit = liste_.frameWidth() + ustluk->sectionViewportPosition(b.son) + ustluk->sectionSize(b.son);
    b.etiket->setGeometry(bas, 0, bit - bas, height());
  }
}

}  // namespace belvani
