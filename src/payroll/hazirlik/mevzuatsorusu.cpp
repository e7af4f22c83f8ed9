#include "payroll/hazirlik/mevzuatsorusu.h"

namespace belvani {

namespace {

// What fetching would put away.
std::string GidecekRakamlar(const KuruluMevzuat& kurulu, std::optional<ParametreDosyasi> yalniz) {
  MevzuatGorusu liste{MevzuatHali::Kullanici, "Kurulu parametrelerde değiştirdiğiniz rakamlar var:", {}};
  for (const RakamFarki& fark : KullanicininRakamlari(kurulu))
    if (!yalniz || BolumDosyasi(fark.bolum) == ParametreDosyaAdi(*yalniz)) liste.satirlar.push_back(fark.Metin());
  return liste.satirlar.empty() ? std::string() : liste.Metin();
}

}  // namespace

Gelisme<bool> MevzuatSorusu::Uygun(MevzuatAyi ay) {
  const MevzuatGorusu gorus = parametreler_.MevzuataBak(o_, ay);
  const std::string getirilsinMi = gorus.Metin() + "\n\n" + ay.Metin() + " parametreleri getirilsin mi ?";
  switch (gorus.hal) {
    case MevzuatHali::Uygun:
      return true;
    case MevzuatHali::Kullanilamaz: {
      if (!bildirim_.Soru(getirilsinMi)) return false;
      auto geldi = Getir(ay);
      geldi.hal = geldi.hal && parametreler_.MevzuataBak(o_, ay).hal != MevzuatHali::Kullanilamaz;
      return geldi;
    }
    case MevzuatHali::BaskaAy:
      if (sorulanlar_.contains({ay.Iso(), parametreler_.yasalSurumu})) return true;
      if (bildirim_.Soru(getirilsinMi)) return Getir(ay);
      sorulanlar_.insert({ay.Iso(), parametreler_.yasalSurumu});
      return true;
    case MevzuatHali::Kullanici:
      if (!bildirim_.Soru(gorus.Metin() + "\n\n" + ay.Metin() + " bu rakamlarla hesaplansın mı ?")) return false;
      if (const Durum kabul = MevzuatiKabulEt(o_.DataPath, ay); !kabul) return {true, kabul.Kusuru()};
      return true;
  }
  return false;
}

Gelisme<bool> MevzuatSorusu::Getir(MevzuatAyi ay, std::optional<ParametreDosyasi> yalniz) {
  const std::string giden = GidecekRakamlar(KuruluMevzuatOku(o_.DataPath), yalniz);
  if (!giden.empty() &&
      !bildirim_.Soru(giden + "\n\nBunlar saklanacak ve kendi ayları yeniden getirilince geri gelecek.\n" + ay.Metin() +
                      " parametreleri getirilsin mi ?"))
    return false;
  MevzuatIstegi istek{.yalniz = yalniz};
  if (!yalniz && SaklananVar(o_.DataPath, ay) &&
      !bildirim_.Soru(ay.Metin() + " için daha önce değiştirdiğiniz rakamlar saklı.\n"
                                   "Yayımlananlar yerine onlar mı gelsin ?"))
    istek.saklanan = Saklanan::Birakilir;
  return Indir(ay, istek);
}

// Given up, it ends in a fault or is thrown out of; where it was too late for that, the law has come.
Gelisme<bool> MevzuatSorusu::Indir(MevzuatAyi ay, MevzuatIstegi istek) {
  std::optional<Sonuc<MevzuatKurulumu>> kurulum;
  bool vazgecildi = false;
  const bool bitti = yurut([&](Ilerleme* ilerleme) {
    istek.sinir.ilerleme = ilerleme;
    kurulum.emplace(parametreler_.MevzuatiGetir(o_, ay, istek));
    vazgecildi = ilerleme != nullptr && ilerleme->Vazgecildi();
  });
  if (kurulum && *kurulum) return {true, KuralKusuru("Parametre İndirildi..")};
  if (!bitti || !kurulum || vazgecildi)
    return {false, KuralKusuru("Parametre indirmeden vazgeçildi, hiçbir şey değişmedi.")};
  return {false, Kusur{"Parametre Bulunamadı..\n" + kurulum->KusurMetni()}};
}

}  // namespace belvani
