#include "app/durumcubugu.h"

#include "core/session/sirket.h"
#include "core/tarih.h"
#include "ui/metin.h"

namespace belvani {
namespace {

constexpr int EnCokAdEni = 260, EnCokYolEni = 340;

void Koy(QLabel* etiket, const QString& metin, int enCokEn, Qt::TextElideMode kisaltma) {
  etiket->setText(etiket->fontMetrics().elidedText(metin, kisaltma, enCokEn));
  etiket->setToolTip(metin);
}

}  // namespace

DurumCubugu::DurumCubugu(QWidget* ust) : QStatusBar(ust) {
  setSizeGripEnabled(false);
  auto* tuslar = new QLabel(QStringLiteral("<b>F1</b>&nbsp;Yardım&nbsp;&nbsp; <b>F6</b>&nbsp;Masaüstü&nbsp;&nbsp; "
                                           "<b>F10</b>&nbsp;Menü&nbsp;&nbsp; <b>Ctrl+PgUp/PgDown</b>&nbsp;Ay"),
                            this);
  addWidget(tuslar);
  for (QLabel** etiket : {&firma_, &kullanici_, &donem_, &depo_}) {
    *etiket = new QLabel(this);
    (*etiket)->setTextFormat(Qt::PlainText);
    (*etiket)->setContentsMargins(8, 0, 8, 0);
    addPermanentWidget(*etiket);
  }
}

void DurumCubugu::Yaz(const Oturum& o) {
  Koy(firma_, Yazi(o.FirmaKod), EnCokAdEni, Qt::ElideRight);
  Koy(kullanici_, QStringLiteral("Kullanıcı: ") + Yazi(o.Kullanici), EnCokAdEni, Qt::ElideRight);
  const bool ayVar = o.firma.firmaay >= 1 && o.firma.firmaay <= 12;
  donem_->setText(ayVar ? Yazi(AyAdi(o.firma.firmaay)) + " " + QString::number(o.firma.firmayil) : QString());
  Koy(depo_, Yazi(DepoAdresi(o.FirmaDizini)), EnCokYolEni, Qt::ElideMiddle);
}

}  // namespace belvani
