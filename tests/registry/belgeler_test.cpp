// Every paper of the registry: it comes in all its forms, and the print settings change just what it says.
#include "registry/belgeler.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <set>

#include "core/asama.h"
#include "core/ortam.h"
#include "core/saat.h"
#include "documents/belgeyap.h"
#include "documents/doludepo.h"
#include "gecici.h"
#include "printing/ayardenetimi.h"
#include "printing/csvyazici.h"

namespace belvani {
namespace {

using testing::StartsWith;

// The papers of a company with people enough for two pages, its name and address filled in.
struct Belgelik {
  SabitGun bugun{Tarih(2008, 7, 20)};  // papers of a day are of this one
  test::DoluDepo depo{20080701, 30};
  YasalParametreler yasal;
  Firma firma;
  BelgeKaynagi kaynak{.motor = depo.db.IcMotor(), .yasal = yasal, .firma = firma, .sirket = depo.sirket};

  Belgelik() {
    firma.unvan = "Çınar Tekstil";
    firma.paraonda = 2;
    firma.issaati = Tek(8);
    // Everyone leaves in the month, but for a few that left before it; half of them came in it.
    depo.db.IcMotor().Calistir(
        "update sicil set girtar = case when cast(substr(kod, 2) as integer) % 2 = 0 then '2005-01-01' else "
        "'2008-07-01' end, ciktar = case when kod like '%4' then '2008-06-15' else '2008-07-31' end, "
        "ucret = 6930000; insert into kimlik (kod, baba) select kod, 'Ömer' from sicil");
    depo.db.IcMotor().Calistir("update brd set eksiksebebi = oto % 3");
  }
  std::unique_ptr<Belge> Yap(const BelgeTanimi& tanim, int yil = test::Yil) {
    const auto secim = tanim.secim();
    secim->AyKoy(yil, test::Ay);
    EXPECT_FALSE(secim->Kusuru());
    return secim->BelgeYap(kaynak);
  }
};

bool DonemiSecilir(const BelgeTanimi& tanim) {
  for (const auto& sutun : tanim.alanlar)
    for (const AlanGrubu& grup : sutun)
      for (const Alan& alan : grup.alanlar)
        if (alan.Tutamak() == AlanTutamagi(Uye("yil", &DefterSecim::yil))) return true;
  return false;
}

// A room that is named twice would give each of its papers twice.
TEST(KayitliBelgeler, EachHasItsOwnScreenAndCommand) {
  std::set<std::string_view> ekranlar, komutlar;
  for (const BelgeTanimi& tanim : Belgeler()) {
    EXPECT_TRUE(ekranlar.insert(tanim.ekran).second) << tanim.ekran;
    EXPECT_TRUE(tanim.komut.empty() || komutlar.insert(tanim.komut).second) << tanim.komut;
  }
}

TEST(KayitliBelgeler, ComesOutInEveryForm) {
  Belgelik belgelik;
  for (const BelgeTanimi& tanim : Belgeler()) {
    SCOPED_TRACE(tanim.ekran);
    const auto belge = belgelik.Yap(tanim);
    EXPECT_FALSE(belge->Bos() || belge->Kayitsiz());
    EXPECT_FALSE(belge->Baslik().empty());
    EXPECT_GT(BelgeSayfalari(*belge)->SayfaSayisi(), 0);
    if (belge->BaskiYok().empty())
      EXPECT_THAT(BelgePdf(*belge)->baytlar, StartsWith("%PDF"));
    else
      EXPECT_EQ(BelgePdf(*belge).KusurMetni(), belge->BaskiYok());
    EXPECT_THAT(*belge->Xlsx(), StartsWith("PK"));
    // A form has the words of the law in place of its title.
    EXPECT_THAT(belge->Metin(), testing::HasSubstr(belge->Destek().baslik ? belge->Baslik() : belgelik.firma.unvan));
    ASSERT_NE(belge->Veri(), nullptr);
    EXPECT_EQ(belge->Tablo() == nullptr, tanim.ekran == "brdzarf") << "all but the slips are tables";
    EXPECT_GT(std::ranges::count(CsvRaporu(*belge->Veri()), '\n'), 1);
    if (!tanim.kayitYok.empty() && DonemiSecilir(tanim)) {
      EXPECT_TRUE(belgelik.Yap(tanim, 1995)->Kayitsiz());
    }
  }
}

TEST(KayitliBelgeler, SettingsChangeWhatThePaperSays) {
  Belgelik belgelik;
  for (const BelgeTanimi& tanim : Belgeler()) {
    SCOPED_TRACE(tanim.ekran);
    const auto belge = belgelik.Yap(tanim);
    EXPECT_TRUE(belge->Destek().baslik || belge->Destek() == YzcDestegi{}) << "a list, or a form of the law";
    test::AyarlariDenetle(*belge);
  }
}

// Stopped at any step of any form, a paper is thrown out of and leaves nothing behind; watched to its end it is the
// same.
TEST(KayitliBelgeler, EachOneCanBeStoppedAtEveryStep) {
  struct Sayan final : Ilerleme {
    int kalan = 0;
    bool Adim(std::size_t, std::size_t) override { return --kalan != 0; }
  } izleyen;
  Belgelik belgelik;
  const test::GeciciDizin gecici;
  const auto ortam = test::OrtamKoy("TMPDIR", gecici.Yol().c_str());
  const std::vector<std::function<std::string(const Belge&, Ilerleme*)>> bicimler{
      [](const Belge& b, Ilerleme* i) { return BelgeHam(b, i); },
      [](const Belge& b, Ilerleme* i) { return std::to_string(BelgeSayfalari(b, i)->SayfaSayisi()); },
      [](const Belge& b, Ilerleme* i) {
        return b.BaskiYok().empty() ? BelgePdf(b, i)->uyari : std::to_string(BelgeSayfalari(b, i)->SayfaSayisi());
      },
      [](const Belge& b, Ilerleme* i) { return std::string(b.Xlsx(i) ? "PK" : ""); }};
  for (const BelgeTanimi& tanim : Belgeler()) {
    SCOPED_TRACE(tanim.ekran);
    belgelik.kaynak.ilerleme = nullptr;
    const auto yapilan = belgelik.Yap(tanim);
    std::vector<std::function<std::string(Ilerleme*)>> isler{[&](Ilerleme* i) {
      belgelik.kaynak.ilerleme = i;
      return belgelik.Yap(tanim)->Metin();
    }};
    for (const auto& bicim : bicimler) isler.push_back([&](Ilerleme* i) { return bicim(*yapilan, i); });
    for (const auto& is : isler) {
      int adim = 1;
      for (bool bitti = false; !bitti; adim += adim / 2 + 1) {
        izleyen.kalan = adim;
        try {
          EXPECT_EQ(is(&izleyen), is(nullptr));
          bitti = true;
        } catch (const Vazgecilmis&) {
        }
        ASSERT_TRUE(std::filesystem::is_empty(gecici.Yol()));
      }
      EXPECT_GT(adim, 2) << "form " << &is - isler.data();
    }
  }
}

// Whose figures are the installed law's is told when that is another month's: with an allowance on the wage papers, on
// others always, on the leave list never.
TEST(KayitliBelgeler, AnotherMonthsLawIsTold) {
  Belgelik belgelik;
  Motor& motor = belgelik.depo.db.IcMotor();
  std::vector<MevzuatAyi> bakilan;
  const auto soz = [&](const BelgeTanimi& tanim, MevzuatHali hal) {
    const auto secim = tanim.secim();
    secim->AyKoy(test::Yil, test::Ay);
    return BelgeMevzuatSozu(tanim, *secim, motor, [&](MevzuatAyi ay) {
      bakilan.push_back(ay);
      return MevzuatGorusu{.hal = hal, .baslik = "başka ay:", .satirlar = {}};
    });
  };
  const auto sorulan = [&](MevzuatHali hal) {
    std::set<std::string_view> ekranlar;
    for (const BelgeTanimi& tanim : Belgeler())
      if (!soz(tanim, hal).empty()) ekranlar.insert(tanim.ekran);
    return ekranlar;
  };
  using Ekranlar = std::set<std::string_view>;
  EXPECT_EQ(sorulan(MevzuatHali::BaskaAy), (Ekranlar{"agibrd", "brdbas", "brdicmal", "brdzarf", "eksikgun", "setbrd"}));
  EXPECT_EQ(sorulan(MevzuatHali::Uygun), Ekranlar{});
  EXPECT_EQ(bakilan.at(0).ay, test::Ay);
  EXPECT_EQ(soz(*BelgeBul("agibrd"), MevzuatHali::BaskaAy),
            "başka ay.\nBu belgede ondan gelen: Asgari Ücretin Yıllık Brüt Tutarı");
  motor.Hazirla("update brd set ogv = 0")->Adim();
  EXPECT_EQ(sorulan(MevzuatHali::BaskaAy), (Ekranlar{"agibrd", "brdicmal", "eksikgun"}));
}

// Files are named by what the paper is of.
TEST(KayitliBelgeler, NamesOfFiles) {
  Belgelik belgelik;
  for (const auto& [ekran, ad] : {std::pair("brdicmal", "BORDRO ÖZETİ 2008-07"),
                                  {"brdui", "Ücretli İzinler Listesi 2008"},
                                  {"dortay", "DÖRT AYLIK SİGORTA PRİMLERİ BORDROSU 2008-2. Dönem"}}) {
    const BelgeTanimi& tanim = *BelgeBul(ekran);
    const auto secim = tanim.secim();
    secim->AyKoy(2008, 7);
    const auto belge = BelgeYap(tanim, *secim, belgelik.kaynak);
    YzcAyarlari ayar = belge->Ayar();
    ayar.YzcBaslikYaz = false;
    belge->Ayarla(ayar);
    EXPECT_EQ(belge->DosyaBasligi(), ad) << "whatever its head shows";
  }
}

// A further entry of the menu makes another paper of the screen's.
TEST(KayitliBelgeler, EveryEntryHasItsProduct) {
  Belgelik belgelik;
  int girisler = 0;
  for (const BelgeTanimi& tanim : Belgeler()) {
    const auto baslik = [&](const BelgeGirisi* giris) {
      const auto secim = tanim.secim();
      secim->AyKoy(test::Yil, test::Ay);
      if (giris != nullptr) giris->sec(*secim);
      return secim->BelgeYap(belgelik.kaynak)->Baslik();
    };
    std::set<std::string> basliklar{baslik(nullptr)};
    for (const BelgeGirisi& giris : tanim.girisler) {
      EXPECT_TRUE(basliklar.insert(baslik(&giris)).second) << giris.ad;
      EXPECT_FALSE(giris.pencereTip.empty()) << "the screen's own entry has none";
      ++girisler;
    }
  }
  EXPECT_GE(girisler, 2);
}

// What is entered in a field comes back out of it, and choices begin with values that a field can show.
TEST(KayitliBelgeler, FieldsWriteIntoTheChoices) {
  for (const BelgeTanimi& tanim : Belgeler()) {
    SCOPED_TRACE(tanim.ekran);
    const auto secim = tanim.secim();
    std::set<std::string_view> adlar;
    AlanSutunlari hepsi = tanim.alanlar;
    hepsi.push_back({{"command line", tanim.komutAlanlari}});
    for (const auto& sutun : hepsi)
      for (const AlanGrubu& grup : sutun)
        for (const Alan& alan : grup.alanlar) {
          SCOPED_TRACE(alan.tanim.ad);
          EXPECT_TRUE(adlar.insert(alan.tanim.ad).second) << "two fields of one name";
          void* kayit = secim->Kayit(alan.kayitTuru);
          ASSERT_NE(kayit, nullptr) << "the paper does not take this choice";
          const auto& liste = alan.ek.liste;
          EXPECT_TRUE(alan.ek.komutSozcukleri.empty() || alan.ek.komutSozcukleri.size() == liste.size());
          std::vector<Deger> degerler{alan.oku(kayit)};
          if (alan.tanim.tip == AlanTipi::Mantik) degerler = {true, false, true};
          if (alan.tanim.tip == AlanTipi::Tarih) degerler = {Tarih(2008, 2, 29), Null{}};
          if (alan.tanim.tip == AlanTipi::Metin) degerler = {std::string("K1")};
          for (std::size_t i = 0; i < liste.size(); ++i) degerler.emplace_back(std::int64_t(i) + alan.ek.listeTabani);
          for (const Deger& deger : degerler) {
            alan.yaz(kayit, deger);
            EXPECT_EQ(alan.oku(kayit), deger);
          }
        }
  }
}

}  // namespace
}  // namespace belvani
