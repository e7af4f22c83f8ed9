#include "app/menuharfi.h"

#include <QSet>

namespace belvani {
namespace {

bool HarfOlur(const QString& baslik, qsizetype yer, const QSet<QChar>& alinan) {
  const QChar harf = baslik[yer];
  // The capital dotted I needs Shift, and the keyboard's dotted i counts as I.
  return harf.isLetter() && harf != u'İ' && !alinan.contains(harf.toUpper());
}

qsizetype HarfYeri(const QString& baslik, const QSet<QChar>& alinan) {
  for (qsizetype yer = 0; yer < baslik.size(); ++yer) {
    const bool kelimeBasi = yer == 0 || !baslik[yer - 1].isLetterOrNumber();
    if (kelimeBasi && HarfOlur(baslik, yer, alinan)) return yer;
  }
  for (qsizetype yer = 0; yer < baslik.size(); ++yer)
    if (HarfOlur(baslik, yer, alinan)) return yer;
  return -1;
}

}  // namespace

QStringList HarfliBasliklar(const QStringList& basliklar) {
  QSet<QChar> alinan;
  QStringList sonuc;
  for (QString baslik : basliklar) {
    const qsizetype yer = HarfYeri(baslik, alinan);
    if (yer >= 0) {
      alinan.insert(baslik[yer].toUpper());
      baslik.insert(yer, '&');
    }
    sonuc += baslik;
  }
  return sonuc;
}

void MenuHarfleriKoy(QWidget& menu) {
  const QList<QAction*> girisler = menu.actions();
  QStringList basliklar;
  for (const QAction* giris : girisler) basliklar += giris->text();
  const QStringList harfli = HarfliBasliklar(basliklar);
  for (qsizetype i = 0; i < girisler.size(); ++i) {
    girisler[i]->setText(harfli[i]);
    if (QMenu* alt = girisler[i]->menu()) MenuHarfleriKoy(*alt);
  }
}

}  // namespace belvani
