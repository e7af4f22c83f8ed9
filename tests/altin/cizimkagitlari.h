// The papers as they are drawn, and those that only screens make: statutory forms, entry declaration, release.
#pragma once

#include <gtest/gtest.h>

#include "accounting/fisbelgesi.h"
#include "accounting/fisoku.h"
#include "altin/kagitlar.h"
#include "altin/sayfametni.h"
#include "bol.h"
#include "core/session/aracibilgi.h"
#include "declarations/aylikbildirge.h"
#include "declarations/bildirgeformu.h"
#include "declarations/dortaylikkagidi.h"
#include "declarations/eksikgun.h"
#include "declarations/formresimleri.h"
#include "documents/agilistesi.h"
#include "documents/icmal.h"
#include "documents/izin.h"
#include "documents/ozelbordro.h"
#include "documents/pusula.h"
#include "ozluk/girisbildirgesi.h"
#include "ozluk/ibraname.h"
#include "ozluk/vizitekagidi.h"
#include "payroll/devir/cari.h"
#include "severance/kidembelgesi.h"

namespace belvani::test {

using BelgeYap = std::function<std::unique_ptr<Belge>(OrnekSirket&)>;

// What the print dialog starts with.
inline std::string BaskiMetni(const YzcAyarlari& ayar) {
  return "baskı: " + ayar.YzcBaslik + (ayar.YzcYon == KagitYonu::Yatay ? ", yatay, " : ", dikey, ") +
         std::to_string(ayar.YzcSatir) + " satır, " + std::to_string(ayar.YzcKopya) + " kopya" +
         (ayar.YzcGrafikAcik ? ", grafik" : "") + (ayar.YzcDosAcik ? ", metin" : "") + "\n";
}

using AyarDegistir = std::function<void(YzcAyarlari&)>;

// As it leaves the print dialog: with the heads that its user may switch off, and what he changes there.
inline Kagit Baski(const Ay& ay, const char* ad, const BelgeYap& yap, const AyarDegistir& degistir = nullptr) {
  return {ay, std::string(ad) + ".cizim.txt", [=](OrnekSirket& o) {
            const auto belge = yap(o);
            YzcAyarlari ayar = belge->Ayar();
            const std::string ilk = BaskiMetni(ayar);
            if (degistir) degistir(ayar);
            belge->Ayarla(ayar);
            return ilk + BugunsuzMetin(CizimMetni(*belge->Cizim()));
          }};
}

// As it is made, which is what the command line gives.
inline Kagit Cizim(const Ay& ay, const char* ad, const BelgeYap& yap) {
  return {ay, std::string(ad) + ".cizim.txt", [=](OrnekSirket& o) { return CizimMetni(*yap(o)->Cizim()); }};
}

// ---- lists

inline DefterSecenek ButunKolonlar() {
  DefterSecenek secenek;
  secenek.kolonlar.fill(true);
  return secenek;
}

// Few columns in large letters, so that a small company fills more than a page.
inline DefterSecenek BuyukDefter() {
  DefterSecenek secenek;
  secenek.kolonlar = DefterAnahtarlariOku("1010000000000100000101");
  secenek.duzen.satirArasi = SatirArasi::CizgiCek;
  secenek.duzen.kolonArasi = KolonArasi::DikCizgi;
  return secenek;
}

inline DefterSecenek DarDefter() {
  DefterSecenek secenek;
  secenek.kolonlar = DefterAnahtarlariOku("1000000000000000000001");
  return secenek;
}

// A text as it stands, its page ends as lines.
inline std::string MetinSayfalari(const std::string& metin) {
  std::string sayfalar;
  for (const auto& sayfa : Bol(metin, "\f")) sayfalar += (sayfalar.empty() ? "" : "<FF>\n") + sayfa;
  return sayfalar;
}

inline Kagit GenisDefter(const Ay& ay, const char* ad, const char* ilk, const char* son) {
  return {ay, ad, [=](OrnekSirket& o) {
            return MetinSayfalari(DefterBelgesi(o.Kaynak(), o.Secim(ilk, son), ButunKolonlar(), {})->Metin());
          }};
}

// With every line that the print dialog can put above a list.
inline std::string BaslikliMetin(OrnekSirket& o) {
  const auto belge = DefterBelgesi(o.Kaynak(), o.Secim("", "ZZZZ"), {}, {});
  YzcAyarlari ayar = belge->Ayar();
  ayar.YzcSatir = 33;
  belge->Ayarla(ayar);
  return BugunsuzMetin(MetinSayfalari(belge->Metin()));
}

inline Kagit Izinler(const char* ad, IzinRaporu tip, const char* ilk, const char* son) {
  return Baski(SonAy, ad, [=](OrnekSirket& o) { return IzinBelgesi(o.Kaynak(), o.Secim(ilk, son), {tip}, {}); });
}

inline Kagit Pusulalar(const char* ad, SayfadaYaprak sayfada, const char* ilk, const char* son) {
  return Baski(SonAy, ad, [=](OrnekSirket& o) { return UcretPusulalari(o.Kaynak(), o.Secim(ilk, son), {sayfada}); });
}

inline std::unique_ptr<Belge> Ozet(OrnekSirket& o) {
  return IcmalBelgesi(o.Kaynak(), o.Secim("", "ZZZZ"));
}

inline std::unique_ptr<Belge> MahsupFisi(OrnekSirket& o) {
  const Fis fis = FisOku(o.oturum.depo.db.IcMotor(), {.yil = o.donem.yil, .ay = o.donem.ay});
  return FisBelgesi(fis,
                    {.unvan = o.oturum.firma.unvan,
                     .tarih = Tarih(o.donem.yil, o.donem.ay, 28),
                     .fisno = "12",
                     .paraonda = o.oturum.firma.paraonda},
                    HesapPlani(*HazirHesapPlani()));
}

inline Kagitlar CizilenListeler() {
  const auto defter = [](const DefterSecenek& secenek, const BelgeYazisi& yazi, const char* ilk, const char* son) {
    return [=](OrnekSirket& o) { return DefterBelgesi(o.Kaynak(), o.Secim(ilk, son), secenek, yazi); };
  };
  return {Cizim(SonAy, "bordro", defter(ButunKolonlar(), {}, "001", "008")),
          Cizim(UcuncuDonem, "bordro-sayfali", defter(BuyukDefter(), {.yaziTipi = "Times", .punto = 16}, "", "ZZZZ")),
          // A table narrower than the lines above it.
          Baski(DorduncuDonem, "bordro-dar", defter(DarDefter(), {.punto = 6}, "009", "012")),
          GenisDefter(BirinciDonem, "bordro-butun.metin", "", "ZZZZ"),
          GenisDefter(UcuncuDonem, "bordro-butun.metin", "", "ZZZZ"),
          // Amounts so small that each column is as wide as it was declared.
          GenisDefter(SonAy, "bordro-cirak.metin", "032", "032"),
          Kagit{DorduncuDonem, "bordro-baslikli.metin", BaslikliMetin},
          Cizim(IkinciDonem, "ozel-bordro",
                [](OrnekSirket& o) {
                  return OzelBordroBelgesi(o.Kaynak(), o.Secim("009", "013"), {}, {.yaziTipi = "Courier New"});
                }),
          Baski(SonAy, "agi", [](OrnekSirket& o) { return AgiBelgesi(o.Kaynak(), o.Secim("008", "013")); }),
          Baski(SonAy, "muhasebe-fisi", MahsupFisi), Cizim(BirinciDonem, "icmal", Ozet),
          // Sideways the chart has no room below the figures.
          Baski(UcuncuDonem, "icmal-yatay", Ozet, [](YzcAyarlari& ayar) { ayar.YzcYon = KagitYonu::Yatay; }),
          Baski(SonAy, "icmal", Ozet), Pusulalar("pusula-1", SayfadaYaprak::Bir, "010", "010"),
          Pusulalar("pusula-2", SayfadaYaprak::Iki, "001", "003"),
          Pusulalar("pusula-4", SayfadaYaprak::Dort, "009", "013"),
          Izinler("izin-icmal", IzinRaporu::Icmal, "001", "013"),
          Izinler("izin-personel", IzinRaporu::Personel, "004", "011"),
          Izinler("izin-donem", IzinRaporu::Donemsel, "", "ZZZZ")};
}

// ---- the declaration

// Document type 01 under one law, or all people together.
inline BildirgeKagidi BildirgeKagidiYap(OrnekSirket& o, const char* kanun) {
  AylikBildirge bildirge(o.oturum, o.yasal, o.bildirim);
  EXPECT_TRUE(bildirge.Ac());
  BildirgeSecimi& secim = bildirge.Secim();
  secim.yil = o.donem.yil;
  secim.ay = o.donem.ay;
  if (kanun != nullptr) {
    const auto& kanunlar = bildirge.KanunSecenekleri();
    secim.kanun = int(std::ranges::find(kanunlar, kanun) - kanunlar.begin());
    secim.belgeTuru = 1;
  }
  EXPECT_TRUE(bildirge.Hesapla());
  BildirgeKagidi kagit = KagitHazirla(bildirge, o.oturum);
  kagit.arac.kod = "007";
  kagit.arac.isim1 = "Çözgü Taşeronluk";
  kagit.arac.adr1 = "Masura Sok. No:4";
  kagit.arac.tel = "0224 555 90 90";
  return kagit;
}

// The same people again and again until there are `kisi`, of a workplace whose numbers do not fill their cells.
inline BildirgeKagidi Kalabalik(BildirgeKagidi kagit, std::size_t kisi) {
  kagit.firma.meslek = "17";
  kagit.firma.dosya = "457";
  kagit.firma.il = "6";
  kagit.firma.verno = "98765";
  const std::size_t ilk = kagit.satirlar.size();
  for (std::size_t i = 0; kagit.satirlar.size() < kisi; ++i) kagit.satirlar.push_back(kagit.satirlar[i % ilk]);
  return kagit;
}

inline std::vector<FormSayfasi> EksikGunSayfalari(OrnekSirket& o) {
  const BildirgeKagidi kagit = BildirgeKagidiYap(o, nullptr);
  std::vector<EksikGunKisisi> kisiler;
  for (const BildirgeSatiri& s : kagit.satirlar)
    if (s.eksik.value_or(0) > 0)
      kisiler.push_back({s.sskno, s.tcno, s.adi, s.soyadi, s.gun.value_or(0), s.eksikgunsayisi.value_or(0), *s.eksik});
  return Ek10Resmi({.yil = kagit.yil,
                    .ay = kagit.ay,
                    .firma = kagit.firma,
                    .arac = kagit.arac,
                    .muhasebeci = kagit.muhasebeci,
                    .kisiler = kisiler});
}

// ---- four months, and missing days

inline DortAylikKagidi DortAylik(OrnekSirket& o) {
  const DortAySecimi secim{o.donem.yil, (o.donem.ay - 1) / DonemAyi + 1};
  DortAylikKagidi kagit{.secim = secim,
                        .firma = o.oturum.firma,
                        .arac = AraciOku(o.oturum),
                        .muhasebeci = MuhasebeciOku(o.oturum),
                        .satirlar = DortAyHesapla(o.oturum.depo.db.IcMotor(), secim),
                        .paraonda = o.oturum.firma.paraonda};
  kagit.arac.kod = "007";
  kagit.arac.isim1 = "Çözgü Taşeronluk";
  return kagit;
}

// The same people again and again until there are `kisi`.
template <class Satir>
std::vector<Satir> Yinelenen(std::vector<Satir> satirlar, std::size_t kisi) {
  const std::size_t ilk = satirlar.size();
  for (std::size_t i = 0; satirlar.size() < kisi; ++i) satirlar.push_back(satirlar[i % ilk]);
  satirlar.resize(kisi);
  return satirlar;
}

inline DortAylikKagidi DortAylik(OrnekSirket& o, std::size_t kisi) {
  DortAylikKagidi kagit = DortAylik(o);
  kagit.satirlar = Yinelenen(kagit.satirlar, kisi);
  return kagit;
}

inline FormSayfalari DortAylikForm(DortAylikKagidi kagit) {
  return DortAylikSayfalari(std::make_shared<const DortAylikKagidi>(std::move(kagit)));
}

inline EksikGunKagidi EksikGun(OrnekSirket& o, std::size_t kisi) {
  EksikGunKagidi kagit = EksikGunKagidiYap(o.Kaynak(), o.donem.yil, o.donem.ay);
  kagit.form.kisiler = Yinelenen(kagit.form.kisiler, kisi);
  kagit.primler = Yinelenen(kagit.primler, kisi);
  return kagit;
}

inline Kagitlar BildirimKagitlari() {
  return {{UcuncuDonem, "dort-aylik.cizim.txt", [](OrnekSirket& o) { return CizimMetni(DortAylikForm(DortAylik(o))); }},
          {SonAy, "dort-aylik-25.txt", [](OrnekSirket& o) { return AlanMetni(DortAylikForm(DortAylik(o, 25))); }},
          {SonAy, "dort-aylik-26.txt", [](OrnekSirket& o) { return AlanMetni(DortAylikForm(DortAylik(o, 26))); }},
          {BirinciDonem, "dort-aylik-26.metin",
           [](OrnekSirket& o) { return MetinSayfalari(DortAyYazdir(DortAylik(o, 26))); }},
          {SonAy, "eksik-gun.cizim.txt",
           [](OrnekSirket& o) {
             return CizimMetni(EksikGunSayfalari(EksikGunKagidiYap(o.Kaynak(), o.donem.yil, o.donem.ay)));
           }},
          {SonAy, "eksik-gun-20.txt", [](OrnekSirket& o) { return AlanMetni(EksikGunSayfalari(EksikGun(o, 20))); }},
          {SonAy, "eksik-gun-21.txt", [](OrnekSirket& o) { return AlanMetni(EksikGunSayfalari(EksikGun(o, 21))); }}};
}

inline Kagitlar BildirgeKagitlari() {
  constexpr const char* kanun = "05510";
  return {{IkinciDonem, "bildirge.cizim.txt",
           [](OrnekSirket& o) { return CizimMetni(BildirgeSayfalari(BildirgeKagidiYap(o, kanun))); }},
          {SonAy, "bildirge-alanlar.txt",
           [](OrnekSirket& o) { return AlanMetni(BildirgeSayfalari(BildirgeKagidiYap(o, kanun))); }},
          {SonAy, "bildirge-kalabalik.metin",
           [](OrnekSirket& o) { return BildirgeYazdir(Kalabalik(BildirgeKagidiYap(o, kanun), 34)); }},
          {SonAy, "eksikgun.cizim.txt", [](OrnekSirket& o) { return CizimMetni(EksikGunSayfalari(o)); }},
          {SonAy, "eksikgun-alanlar.txt", [](OrnekSirket& o) { return AlanMetni(EksikGunSayfalari(o)); }}};
}

// ---- a person's papers

inline GirisBildirgesi GirisKagidi(OrnekSirket& o) {
  GirisFormu form = GirisBul(o.oturum, "006", Tarih(2008, 9, 29)).value();
  form.ek.sandik = {true, false, true};
  form.ek.sandikAyligi = {false, true, false};
  form.ek.sandikNo = {"ES 1204", "", "BAG 77"};
  form.ek.emekliTercihi = 2;
  form.ek.eskiUnvan = "İplik ve Boya A.Ş.";
  form.ek.eskiAdres = "Fabrika Yolu No:9";
  form.ek.eskiIl = "Bursa";
  form.ek.eskiIlce = "Gürsu";
  form.ek.vergiNo = "1234567890";
  return {.form = form, .firma = o.oturum.firma, .sskDurumu = "01-Tüm Sigorta Kolları", .amblemPng = "amblem"};
}

inline Ibraname CikisKagidi(OrnekSirket& o) {
  Ibraname kagit{.form = CikisBul(o.oturum, "005").value(),
                 .firma = o.oturum.firma,
                 .odemeler = {},
                 .tarih = Tarih(2008, 9, 30),
                 .paraonda = o.oturum.firma.paraonda};
  // Each cell another amount, so that no two can change places unseen.
  std::int64_t sayac = 0;
  for (OdemeSatiri& satir : kagit.odemeler.satirlar)
    for (Tutar& hucre : satir) hucre = Tutar(double(++sayac) * 1234.56);
  return kagit;
}

inline std::unique_ptr<Belge> KidemKagidi(OrnekSirket& o) {
  KidemHesabi hesap(o.oturum.depo.db.IcMotor(), KidemKosullariYukle(o.Kaynak()));
  if (!hesap.KisiBul("007")) throw std::runtime_error("007");
  hesap.CikisKoy(Tarih(2009, 6, 30));
  return KidemBelgesi(hesap.Cizelge());
}

inline Kagitlar KisiKagitlari() {
  return {
      Cizim(SonAy, "kidem", KidemKagidi),
      {UcuncuDonem, "giris.cizim.txt",
       [](OrnekSirket& o) { return CizimMetni(GirisBildirgesiSayfalari(GirisKagidi(o))); }},
      {UcuncuDonem, "giris.metin", [](OrnekSirket& o) { return GirisBildirgesiMetni(GirisKagidi(o)); }},
      {UcuncuDonem, "giris.ham.txt",
       [](OrnekSirket& o) { return HamMetni(BelgeHam(*GirisBildirgesiBelgesi(GirisKagidi(o)))); }},
      {UcuncuDonem, "ibraname.cizim.txt", [](OrnekSirket& o) { return CizimMetni(IbranameSayfalari(CikisKagidi(o))); }},
      {UcuncuDonem, "ibraname.metin", [](OrnekSirket& o) { return IbranameMetni(CikisKagidi(o)); }},
      {UcuncuDonem, "ibraname-duz.metin",
       [](OrnekSirket& o) { return IbranameMetni(CikisKagidi(o), CerceveTuru::Duz); }},
      Cizim(SonAy, "cari", [](OrnekSirket& o) { return std::move(*CariBelgesi(o.oturum, "002")); })};
}

}  // namespace belvani::test
