#include "ui/dclistdenetim.h"

#include "core/girdi.h"
#include "core/sayi.h"
#include "core/tarih.h"
#include "ui/metin.h"

namespace belvani {
namespace {

// Month and year that are not typed come from today: 12.03 typed in 2005 is 12.03.2005. A year that was begun is the
// user's own.
QString Tamamlanan(QString metin) {
  if (metin.endsWith('.')) metin.chop(1);
  const qsizetype nokta = metin.count('.');
  if (metin.isEmpty() || nokta > 1) return metin;
  const QString bugun = Yazi(Tarih::Bugun().Metin());
  return metin + bugun.mid(nokta == 0 ? bugun.indexOf('.') : bugun.lastIndexOf('.'));
}

bool TarihDenetle(const dclistKolonu& kolon, QString& metin, Bildirim& bildirim) {
  const bool gerek = kolon.denetim == HucreDenetimi::TarihGerek || kolon.denetim == HucreDenetimi::TarihGerekTatilUyar;
  const Tarih tarih = YazilanTarih(Utf8(Tamamlanan(metin)));
  if (tarih.Bos() && !metin.isEmpty() && kolon.denetim == HucreDenetimi::TarihYaDaBos) {
    bildirim.Bilgi("Hatalı Tarih Girildi.\nDüzeltiniz.");
    return false;
  }
  if (tarih.Bos()) {
    metin.clear();
    if (gerek) bildirim.Bilgi("Hatalı Tarih Girildi.\nDüzeltiniz.");
    return !gerek;
  }
  metin = Yazi(tarih.Metin());
  const bool tatilUyar =
      kolon.denetim == HucreDenetimi::TarihGerekTatilUyar || kolon.denetim == HucreDenetimi::TarihTatilUyar;
  if (tatilUyar && (tarih.GunAdi() == "Cumartesi" || tarih.GunAdi() == "Pazar"))
    bildirim.Bilgi(tarih.UzunMetin() + "\nTatil gününe denk gelen tarih girdiniz.");
  return true;
}

}  // namespace

bool HucreDenetle(const dclistKolonu& kolon, QString& metin, Bildirim& bildirim) {
  if (kolon.tip == dclistKolonu::Tip::Tarih) return TarihDenetle(kolon, metin, bildirim);
  if (kolon.denetim == HucreDenetimi::MetinGerek && metin.trimmed().isEmpty()) {
    bildirim.Bilgi("En Az Bir Harf Girmelisiniz.");
    return false;
  }
  if (kolon.denetim == HucreDenetimi::SayiGerek && kolon.tip == dclistKolonu::Tip::Sayi && !TutarOku(Utf8(metin))) {
    bildirim.Bilgi("Bir Sayi Girmelisiniz.");
    return false;
  }
  return true;
}

}  // namespace belvani
