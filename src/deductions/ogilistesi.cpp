#include "deductions/ogilistesi.h"

#include "core/yuvarlama.h"
#include "documents/listebelgesi.h"
#include "isyeri/isyerinumarasi.h"
#include "payroll/hesap/agi.h"
#include "payroll/hesap/ozelgider.h"
#include "payroll/parametre/dosyalar.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

constexpr int AdEni = 24, TutarEni = 12, AyEni = 10;
constexpr int YilinAySayisi = 12;
constexpr const char* AgiNotu =
    "2008'den beri bordrodaki ogv tutarı asgari geçim indirimidir, özel gider indirimi ödemesi değildir.";

// A person with his amounts in the unit of the list.
struct OgiSatiri {
  OgiKisisi kisi;
  int sira = 0;
  Tutar odenen;  // of all months
  Tutar damga;   // payment list
};

std::vector<OgiSatiri> Satirlar(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& b) {
  const Yuvarlayici yuvarla(b.firma.paraonda);
  const auto cevir = [&](Tutar& tutar) { tutar = TutarCevir(tutar, b.yil, yuvarla); };
  std::vector<OgiSatiri> satirlar;
  satirlar.reserve(kisiler.size());
  for (const OgiKisisi& kisi : kisiler) {
    OgiSatiri& s = satirlar.emplace_back(OgiSatiri{kisi, int(satirlar.size()) + 1, {}, {}});
    for (Tutar* tutar : {&s.kisi.gvmatrah, &s.kisi.ogimatrah, &s.kisi.ogitutar}) cevir(*tutar);
    for (auto& ay : s.kisi.aylar) {
      if (ay) cevir(*ay);
      s.odenen += ay.value_or(Tutar());
    }
    s.damga = yuvarla(s.odenen.Sayi() * b.parametreler.damga.Sayi() / 1000);  // of a correction below zero too
  }
  return satirlar;
}

// "Ocak", "Aralık", "13": the year has no more months than it has.
std::string AyBasligi(int ay) {
  return ay >= 1 && ay <= YilinAySayisi ? std::string(AyAdi(ay)) : std::to_string(ay);
}

std::string DonemBasligi(int ay, int yil) {
  return AyBasligi(ay) + " " + std::to_string(yil);
}

// The lines above the columns, the same on every list.
std::vector<UstSatir> UstSatirlar(const std::string& donem, const OgiBaslik& b) {
  const Firma& f = b.firma;
  std::vector<UstSatir> satirlar{{.sol = donem, .sag = "Sayfa : ", .sayfaNo = true},
                                 {.sol = "ÜNVAN : " + f.unvan, .sirket = true},
                                 {.sol = "SSK No: " + IsyeriSicilNo(f)},
                                 {.sol = "V.D./N: " + f.verda + " - " + f.verno}};
  if (b.yil >= AgiIlkYili) satirlar.push_back({.sol = AgiNotu});
  return satirlar;
}

Kolonlar<OgiSatiri> BordroKolonlari(int ilkAy) {
  Kolonlar<OgiSatiri> kolonlar{
      {{"S. No", "No"}, 5, [](auto& s) { return s.sira; }},
      {"Adı Soyadı", AdEni, [](auto& s) { return s.kisi.adSoyad; }},
      {{"Vergi Matrahı", "GV Matrahı"}, TutarEni, [](auto& s) { return s.kisi.gvmatrah; }, Toplanir},
      {{"Harcama Tutarı", "Top.Harcama"}, TutarEni, [](auto& s) { return s.kisi.ogimatrah; }, Toplanir},
      {{"İndirim Tutarı", "H.Esas Tutar"},
       TutarEni,
       [](auto& s) { return IndirimeEsas(s.kisi.gvmatrah, s.kisi.ogimatrah); },
       Toplanir},
      {{"Ödenecek Tutar", "İade Tutar"}, TutarEni, [](auto& s) { return s.kisi.ogitutar; }, Toplanir},
  };
  for (std::size_t i = 0; i < OgiAySayisi; ++i)
    kolonlar.Ekle(
        {AyBasligi(ilkAy + int(i)), AyEni, [i](auto& s) { return s.kisi.aylar[i].value_or(Tutar()); }, Toplanir});
  return kolonlar;
}

const Kolonlar<OgiSatiri> odemeKolonlari{
    {"Sicil No", 8, [](auto& s) { return s.kisi.kod; }},
    {"Adı Soyadı", AdEni, [](auto& s) { return s.kisi.adSoyad; }},
    {"Mahsup Edilen", TutarEni, [](auto& s) { return s.odenen; }, Toplanir},
    {"Damga Vergisi", TutarEni, [](auto& s) { return s.damga; }, Toplanir},
    {"Net Ödenen", TutarEni, [](auto& s) { return s.odenen - s.damga; }, Toplanir},
};

Kolonlar<OgiSatiri> MahsupKolonlari(int ilkAy) {
  Kolonlar<OgiSatiri> kolonlar{
      {"Sicil No", 8, [](auto& s) { return s.kisi.kod; }},
      {"Adı Soyadı", AdEni, [](auto& s) { return s.kisi.adSoyad; }},
      {"Toplam İade", TutarEni, [](auto& s) { return s.kisi.ogitutar; }, Toplanir},
  };
  for (std::size_t i = 0; i < OgiAySayisi; ++i)
    kolonlar.Ekle({AyBasligi(ilkAy + int(i)), AyEni, [i](auto& s) { return s.kisi.aylar[i]; }, Toplanir});
  kolonlar.Ekle({"Ödenen", TutarEni, [](auto& s) { return s.odenen; }, Toplanir});
  kolonlar.Ekle({"Kalan", TutarEni, [](auto& s) { return s.kisi.ogitutar - s.odenen; }, Toplanir});
  return kolonlar;
}

const Kolonlar<OgiKisisi> kalanKolonlari{
    {"sicilno", "Sicil No", 8, [](auto& k) { return k.kod; }},
    {"adisoyadi", "Adı Soyadı", 29, [](auto& k) { return k.adSoyad; }},
    {"topiade", {"Ödenecek", "Toplam İade"}, 13, [](auto& k) { return k.ogitutar; }, Toplanir},
    {"topodenen", {"Ödenen", "Toplam Ödenen"}, 13, [](auto& k) { return k.ogiodenen; }, Toplanir},
    {"topkalan", {"Kalan", "Toplam Kalan"}, 13, [](auto& k) { return k.ogitutar - k.ogiodenen; }, Toplanir},
};

std::string TurEki(OgiTuru tur) {
  switch (tur) {
    case OgiTuru::Calisan:
      return " (Çalışan)";
    case OgiTuru::Ayrilan:
      return " (Ölen,Emekli,Çıkan)";
  }
  return {};
}

void ToplamEtiketleri(Rapor& rapor) {
  rapor.toplamEtiketi = "T O P L A M :";
  rapor.sayfaToplamEtiketi = "SAYFA TOPLAMI :";
}

OzelGiderParametreleri Parametreler(const BelgeKaynagi& k, std::vector<std::string>* uyarilar = nullptr) {
  auto y = OzelGiderYukle(k.sirket, VarsayilanOzelGider(k.firma.firmayil, k.yasal.oranlar.DamgaOran),
                          BozukDosya::Dokunulmaz);
  if (uyarilar != nullptr)
    for (const std::string& uyari : y.uyarilar) uyarilar->push_back(uyari + ": hazır değerler alındı.");
  return y.deger;
}

OgiBaslik OgiBasligi(const BelgeKaynagi& k, const DefterSecim& secim, const OgiBordroSecimi& ogi = {}) {
  return {.yil = secim.yil, .ay = secim.ay, .firma = k.firma, .parametreler = Parametreler(k), .secim = ogi};
}

OgiAyAraligi MahsupAylari(const OgiBaslik& b) {
  return {.yil = b.yil, .ilk = b.parametreler.mahay, .sayi = OgiAySayisi};
}

std::vector<OgiKisisi> TurdekiKisiler(std::vector<OgiKisisi> kisiler, const OgiBaslik& b) {
  std::erase_if(kisiler, [&](const OgiKisisi& k) {
    return OgideCalisiyor(k.ciktar, b.yil, b.ay) != (b.secim.tur == OgiTuru::Calisan);
  });
  return kisiler;
}

}  // namespace

bool OgideCalisiyor(Tarih ciktar, int yil, int ay) {
  return ciktar.Bos() || ciktar >= Tarih(yil, ay, 1);
}

Rapor OgiBordrosu(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& b) {
  const bool bordro = b.secim.urun == OgiUrunu::Bordro;
  const auto satirlar = Satirlar(kisiler, b);
  Rapor rapor = RaporYap(bordro ? BordroKolonlari(b.parametreler.mahay) : odemeKolonlari, satirlar, b.firma.paraonda);
  const std::string ek = TurEki(b.secim.tur);
  rapor.baslik = (bordro ? "ÖZEL GİDER İNDİRİMİNE AİT BORDRO" : "ÖZEL GİDER İNDİRİMİ ÖDEME LİSTESİ") + ek;
  rapor.ekranBasligi = (bordro ? "Özel Gider İndirim Bordrosu" : "Özel Gider İndirim Aylık Tablosu") + ek;
  rapor.ustSatirlar = UstSatirlar("Dönem : " + DonemBasligi(b.ay, b.yil), b);
  ToplamEtiketleri(rapor);
  return rapor;
}

Rapor OgiMahsupIcmali(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& b) {
  const int ilk = b.parametreler.mahay;
  Rapor rapor = RaporYap(MahsupKolonlari(ilk), Satirlar(kisiler, b), b.firma.paraonda);
  rapor.baslik = "ÖZEL GİDER İNDİRİMİ AYLIK MAHSUP İCMALİ";
  rapor.ekranBasligi = "Özel Gider İndirimi Aylık Mahsup İcmali";
  rapor.ustSatirlar = UstSatirlar("Dönem : " + DonemBasligi(ilk, b.yil) + " - " +
                                      DonemBasligi(std::min(ilk + OgiAySayisi - 1, YilinAySayisi), b.yil),
                                  b);
  ToplamEtiketleri(rapor);
  return rapor;
}

Rapor OgiKalanListesi(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& b, Tarih bugun) {
  Rapor rapor = RaporYap(kalanKolonlari, kisiler, b.firma.paraonda);
  rapor.baslik = "ÖGİ Toplam,Ödenen Kalan Listesi";
  rapor.ekranBasligi = rapor.baslik;
  rapor.ustSatirlar = UstSatirlar("Tarih : " + TarihMetni(bugun, KolonTuru::UzunTarih), b);
  ToplamEtiketleri(rapor);
  return rapor;
}

std::unique_ptr<Belge> OgiBordroBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim,
                                        const OgiBordroSecimi& ogi, const SayfaDuzeni& sayfa, const BelgeYazisi& yazi) {
  const OgiBaslik b = OgiBasligi(kaynak, secim, ogi);
  const OgiAyAraligi aylar = ogi.urun == OgiUrunu::Bordro ? MahsupAylari(b) : OgiAyAraligi{b.yil, b.ay, 1};
  const auto kisiler = OgiKisileriOku(kaynak.motor, secim, aylar, OgiKosulu::HarcamaliOlanlar, kaynak.ilerleme);
  const KagitYonu yon = KagitYonu::Yatay;
  return ListeBelgesi(OgiBordrosu(TurdekiKisiler(kisiler, b), b), yon, yazi, sayfa);
}

std::unique_ptr<Belge> OgiMahsupBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const BelgeYazisi& yazi) {
  const OgiBaslik b = OgiBasligi(kaynak, secim);
  const auto kisiler =
      OgiKisileriOku(kaynak.motor, secim, MahsupAylari(b), OgiKosulu::HarcamaliOlanlar, kaynak.ilerleme);
  return ListeBelgesi(OgiMahsupIcmali(kisiler, b), KagitYonu::Yatay, yazi, {});
}

std::unique_ptr<Belge> OgiKalanBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const BelgeYazisi& yazi) {
  const OgiBaslik b = OgiBasligi(kaynak, secim);
  const auto kisiler = OgiKisileriOku(kaynak.motor, secim, {.yil = b.yil}, OgiKosulu::HakEdenler, kaynak.ilerleme);
  return ListeBelgesi(OgiKalanListesi(kisiler, b, Tarih::Bugun()), KagitYonu::Dikey, yazi, {});
}

std::string OgiAgiSozu(const BelgeKaynagi&, BelgeSecimi& secim) {
  return secim.Bul<DefterSecim>()->yil >= AgiIlkYili ? AgiNotu : "";
}

std::string OgiListeSozu(const BelgeKaynagi& kaynak, BelgeSecimi& secim) {
  const int yil = secim.Bul<DefterSecim>()->yil;
  std::vector<std::string> sozler;
  const OzelGiderParametreleri p = Parametreler(kaynak, &sozler);
  if (const auto kusur = OzelGiderParametreKusuru(p)) sozler.push_back("ozgvpar.dat: " + kusur->metin);
  if (p.mahyil != yil)
    sozler.push_back("Mahsup yılı " + std::to_string(p.mahyil) + " olarak ayarlı; bu listenin ayları " +
                     std::to_string(yil) + " yılınındır.");
  if (std::string agi = OgiAgiSozu(kaynak, secim); !agi.empty()) sozler.push_back(std::move(agi));
  std::string soz;
  for (const std::string& satir : sozler) soz += (soz.empty() ? "" : "\n") + satir;
  return soz;
}

}  // namespace belvani
