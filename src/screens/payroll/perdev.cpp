#include "screens/payroll/perdev.h"

#include "payroll/devir/devirkaydi.h"

namespace belvani {
namespace {

std::vector<SatirKolonu<Dvr>> DevirKolonlari(int paraonda) {
  std::vector<SatirKolonu<Dvr>> kolonlar{EtiketliKolon(dvr::yil, 60, {.grup = 0})};
  for (const Kolon<Dvr, Tutar>& tutar :
       {dvr::gvmatrah, dvr::gvtutar, dvr::issizlik, dvr::ogimatrah, dvr::ogitutar, dvr::ogiodenen})
    kolonlar.push_back(EtiketliKolon(tutar, 125, {.ondalik = paraonda}));
  return kolonlar;
}

}  // namespace

perdev::perdev(EkranBaglami& baglam)
    : KisiSatirlari(baglam, "perdev", QStringLiteral("Personel Devir Bilgileri"),
                    DevirKolonlari(baglam.oturum.firma.paraonda)) {
  AlanlariDiz({{{"Personel", {EtiketliAlan(dvr::kod, {.anahtar = true}), AdSoyAlani()}, 2}}});
  Liste().TercihBoyu(816, 280);
  ListeyiAc(dvr::kod);
}

std::vector<Dvr> perdev::SatirlariOku(const std::string& kod) {
  return DevirBilgileri(Oturumu(), kod);
}

Yazim<Dvr> perdev::Yaz(const Okunan<Dvr>& satir) {
  return DevirKaydet(Oturumu(), satir);
}

Sonuc<Silme> perdev::Sil(const Dvr& satir) {
  return DevirSil(Oturumu(), satir, Bildirimi());
}

// The year after the last one.
Dvr perdev::YeniKayit() const {
  Dvr yeni;
  yeni.kod = Kisi();
  const Dvr* son = SonKayitli();
  yeni.yil = std::int16_t(son == nullptr ? Oturumu().firma.firmayil - 1 : son->yil + 1);
  return yeni;
}

// A year that was typed over has become a row of its own; the one before it comes back.
void perdev::Yazildi(const Okunan<Dvr>& satir, const Dvr& yazilan) {
  if (!satir.ilk || satir.ilk->yil == yazilan.yil) return;
  QMetaObject::invokeMethod(
      this, [this] { Yenile(); }, Qt::QueuedConnection);
}

}  // namespace belvani
