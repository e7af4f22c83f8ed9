#include "ui/dclistdenetim.h"

#include "core/sayi.h"
#include "core/tarih.h"
#include "ui/metin.h"

namespace belvani {
namespace {

bool TarihDenetle(const dclistKolonu& kolon, QString& metin, Bildirim& bildirim) {
  const bool gerek = kolon.denetim == HucreDenetimi::TarihGerek || kolon.denetim == HucreDenetimi::TarihGerekTatilUyar;
  if (metin.endsWith('.')) metin.chop(1);
  // What is missing at the end comes from today: 12.03 typed in 2005 is 12.03.2005.
  if (!metin.isEmpty() && metin.size() < 10) metin += Yazi(Tarih::Bugun().Metin()).mid(metin.size());
  const Tarih tarih = Tarih::MetinOku(Utf8(metin));
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
