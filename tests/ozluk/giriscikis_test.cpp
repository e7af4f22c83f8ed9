// Entry declaration and release: every value in its place on both forms, the frame whole, nothing cut.
#include <gmock/gmock.h>

#include "ozluk/girisbildirgesi.h"
#include "ozluk/ibraname.h"
#include "ozluk/kagit.h"

namespace belvani {
namespace {

using test::Alan;
using test::Doldur;
using test::DoluKayit;
using test::Harfler;
using test::Satirlar;
using test::SayfayiDenetle;
using testing::ElementsAreArray;
using testing::HasSubstr;

Tutar operator""_tl(long double lira) {
  return Tutar(double(lira));
}

// The longest text that the store takes in every field; the digits in cells are as the law has them.
GirisBildirgesi DoluBildirge() {
  GirisBildirgesi b{.form = {.sicil = DoluKayit<Sicil>(), .kimlik = DoluKayit<Kimlik>(), .ek = {}},
                    .firma = DoluKayit<Firma>(),
                    .sskDurumu = Doldur(82),
                    .amblemPng = {}};
  b.form.sicil.sskno = "3401200412345";
  b.form.sicil.girtar = Tarih(2009, 3, 3);
  b.form.kimlik.tcno = "10000000146";
  b.form.kimlik.dogtar = Tarih(1975, 12, 31);
  GirisEki& ek = b.form.ek;
  ek.islemTarihi = Tarih(2009, 3, 2);
  for (auto& no : ek.sandikNo) no = Doldur(GirisEki::NoHarfi);
  ek.eskiUnvan = Doldur(GirisEki::UnvanHarfi);
  ek.eskiAdres = Doldur(GirisEki::AdresHarfi);
  ek.eskiIl = Doldur(GirisEki::YerHarfi);
  ek.eskiIlce = Doldur(GirisEki::YerHarfi);
  ek.vergiNo = "1234567890";
  return b;
}

std::vector<std::string> DegerleriTopla(const GirisBildirgesi& b) {
  const Sicil& s = b.form.sicil;
  const Kimlik& k = b.form.kimlik;
  const GirisEki& e = b.form.ek;
  const Firma& f = b.firma;
  return {s.kod,
          s.adi,
          s.soyadi,
          s.ilksoyadi,
          s.tahsisno,
          s.girtar.Metin(),
          k.serino,
          k.baba,
          k.ana,
          k.uyruk,
          k.dogyer,
          k.il,
          k.ilce,
          k.mahkoy,
          k.cilt,
          k.sayfa,
          k.kutuk,
          k.adr1,
          k.adr2,
          k.dogtar.Metin(),
          e.islemTarihi.Metin(),
          e.eskiIl,
          e.sandikNo[0],
          e.sandikNo[1],
          e.eskiUnvan,
          e.eskiIlce,
          e.sandikNo[2],
          e.eskiAdres,
          f.unvan,
          f.sektor,
          f.meslek,
          f.sube,
          f.dosya,
          f.il,
          f.ilce,
          f.kontrol,
          f.adr1,
          f.adr2,
          f.semt,
          f.adrilce,
          f.adril,
          b.sskDurumu};
}

TEST(GirisBildirgesi, TextHoldsTheLongestValuesInsideItsFrame) {
  const auto bos = Harfler(GirisBildirgesiMetni({}));
  const GirisBildirgesi b = DoluBildirge();
  const std::string metin = GirisBildirgesiMetni(b);
  const auto dolu = Harfler(metin);
  ASSERT_EQ(dolu.size(), 65u);
  ASSERT_EQ(bos.size(), dolu.size());
  for (std::size_t i = 0; i < dolu.size(); ++i) {
    ASSERT_EQ(dolu[i].size(), 97u) << i;
    for (std::size_t k = 0; k < dolu[i].size(); ++k) {
      const bool cerceve = bos[i][k] != " " && bos[i][k] != "X";
      EXPECT_TRUE(!cerceve || dolu[i][k] == bos[i][k]) << "line " << i + 1 << " column " << k + 1;
    }
  }
  for (const auto& deger : DegerleriTopla(b)) EXPECT_NE(metin.find(deger), metin.npos) << deger;
  EXPECT_TRUE(KodSayfasinaSigar(metin, KodSayfasi::Dos857));
}

TEST(GirisBildirgesi, TextDigitsAndMarks) {
  auto b = DoluBildirge();
  const auto harf = [&](int satir, int kolon) {
    return Harfler(GirisBildirgesiMetni(b)).at(std::size_t(satir) - 1).at(std::size_t(kolon) - 1);
  };
  for (int i = 1; i <= 13; ++i) EXPECT_EQ(harf(6, 70 + 2 * i), std::string(1, b.form.sicil.sskno[std::size_t(i) - 1]));
  b.form.sicil.sskno = "407";
  EXPECT_EQ(Satirlar(GirisBildirgesiMetni(b))[5].substr(Satirlar(GirisBildirgesiMetni(b))[5].find("SSK No")),
            "SSK No               │ │ │ │ │ │ │ │ │ │ │4│0│7│");
  b.form.sicil.sskno = std::string(25, '8');
  EXPECT_THAT(GirisBildirgesiMetni(b), HasSubstr("│" + b.form.sicil.sskno + "│")) << "loses no digit";
  EXPECT_EQ(harf(2, 63) + harf(4, 63), "X ");
  b.form.ek.tur = 1;
  EXPECT_EQ(harf(2, 63) + harf(4, 63), " X");

  const auto satirdaki = [&](const char* parca) { EXPECT_THAT(GirisBildirgesiMetni(b), HasSubstr(parca)); };
  b.form.kimlik.uyruk = " t.c.";
  b.form.kimlik.cins = 1;
  b.form.kimlik.tahsil = 5;
  b.form.ek.sandik[1] = b.form.ek.sandikAyligi[2] = true;
  b.form.ek.emekliTercihi = 2;
  satirdaki("[X] T.C. Yabancı :             │");
  satirdaki("[ ] Erkek      [X] Kadın");
  satirdaki("[ ] Yüksek   [X] OkurYazar");
  satirdaki("[ ] Emekli Sandığı");
  satirdaki("[X] Bağ-Kur");
  satirdaki("[X] Aylık");
  satirdaki("[ ] S.G.D.P.   [X] Tüm Sigorta Kolları");
  b.form.kimlik.cins = b.form.kimlik.tahsil = 255;
  satirdaki("[ ] Erkek      [ ] Kadın");
  b.form.kimlik.uyruk = "Almanya";
  satirdaki("[ ] T.C. Yabancı : Almanya");
}

TEST(GirisBildirgesi, DrawnFormHoldsTheSame) {
  auto b = DoluBildirge();
  b.form.kimlik.tahsil = 3;
  b.form.ek.sandik[2] = true;
  b.firma.sektor = "2";
  b.firma.meslek = "1721";
  const auto sayfalar = GirisBildirgesiSayfalari(b);
  ASSERT_EQ(sayfalar.size(), 1u);
  const FormSayfasi& sayfa = sayfalar[0];
  SayfayiDenetle(sayfa);
  std::string hepsi;
  for (const auto& alan : sayfa.alanlar) hepsi += alan.deger + "\n";
  for (const auto& deger : DegerleriTopla(b)) EXPECT_NE(hepsi.find(deger), hepsi.npos) << deger;
  EXPECT_EQ(std::tuple(Alan(sayfa, "sskno").hucre, Alan(sayfa, "sskno").deger), std::tuple(13, "3401200412345"));
  EXPECT_EQ(std::tuple(Alan(sayfa, "tcno").hucre, Alan(sayfa, "tcno").deger), std::tuple(11, "10000000146"));
  std::vector<std::string> isaretli;
  for (const auto& alan : sayfa.alanlar)
    if (alan.deger == "X") isaretli.push_back(alan.ad);
  EXPECT_THAT(isaretli, testing::ElementsAre("giristuru0", "cins0", "tahsil3", "sandik2"));
  b.form.kimlik.uyruk = "Tc.";
  EXPECT_EQ(Alan(GirisBildirgesiSayfalari(b)[0], "uyruk.tc").deger, "X");
  EXPECT_EQ(Alan(GirisBildirgesiSayfalari(b)[0], "uyruk").deger, "");
  EXPECT_TRUE(sayfa.resimler.empty());
  b.amblemPng = "png";
  EXPECT_EQ(GirisBildirgesiSayfalari(b)[0].resimler.size(), 1u);
  const auto belge = GirisBildirgesiBelgesi(b);
  EXPECT_EQ(std::tuple(belge->Baslik(), belge->Ayar().YzcKopya, belge->Ayar().YzcSatir),
            std::tuple("Sigortalı İşe Giriş Bildirgesi", 2, 66));
}

Ibraname OrnekIbraname() {
  Ibraname i;
  i.firma.unvan = "Çınar Tekstil San. ve Tic. A.Ş.";
  i.firma.sektor = "2";
  i.firma.meslek = "1721";
  i.firma.sube = "01";
  i.firma.dosya = "1034567";
  i.firma.il = "034";
  i.firma.ilce = "12";
  i.firma.kontrol = "77";
  i.firma.adr1 = "Organize Sanayi Bölgesi 4. Cadde 17";
  i.firma.adr2 = "Ümraniye İstanbul";
  i.firma.semt = "Dudullu";
  i.tarih = Tarih(2009, 3, 31);
  i.form = {.kod = "1",
            .adSoyad = "Işıl Güneş",
            .sskno = "3401200412345",
            .girtar = Tarih(2004, 3, 15),
            .ciktar = Tarih(2009, 3, 31),
            .cikiskodu = 31,
            .cikissebebi = "Grev",
            .adr1 = "Gül Sok. 5",
            .adr2 = "Çankaya",
            .tel = "0312 555 55 55"};
  i.odemeler.satirlar[0] = {1000.50_tl, 200.25_tl, 800.25_tl, 0.00_tl, 800.25_tl};
  i.odemeler.satirlar[1][0] = 12.34_tl;
  i.odemeler.satirlar[4] = {1234567.00_tl, 0.00_tl, 1234567.00_tl, 0.50_tl, 1234566.50_tl};
  return i;
}

TEST(Ibraname, TextLineByLine) {
  const std::string beklenen[] = {
      "",
      "                                            İBRANAME",
      "",
      " İŞVERENİN",
      " Ünvanı              : Çınar Tekstil San. ve Tic. A.Ş.",
      " SSK İşyeri Sicil No : 2 1721 01 1034567 034 12 77",
      " Adresi              : Organize Sanayi Bölgesi 4. Cadde 17",
      "                       Ümraniye İstanbul Dudullu",
      "",
      " İŞÇİNİN",
      " Adı Soyadı          : Işıl Güneş",
      " SSK Sicil No        : 3401200412345",
      " İşe Giriş Tarihi    : 15.03.2004",
      " İşten Çıkış Tarihi  : 31.03.2009",
      " İşten Ayrılış Sebebi: 31- Borçlar Kanunu, Sendikalar Kanunu, Grev ve Lokavt Kanunu kapsamında",
      "                       kendi istek ve kusuru dışında fesih",
      " Açıklama            : Grev",
      "",
      "┌────────────────────┬──────────────┬───────────────┬──────────────┬──────────────┬──────────────┐",
      "│ ÖDEMELER           │ BRÜT KAZANÇ  │ YASAL KESİNTİ │ NET KAZANÇ   │ ÖZEL KESİNTİ │ NET ÖDENEN   │",
      "├────────────────────┼──────────────┼───────────────┼──────────────┼──────────────┼──────────────┤",
      "│ Hakedilmiş Ücret   │     1,000.50 │        200.25 │       800.25 │              │       800.25 │",
      "│ Fazla Mesai Ücreti │              │               │              │              │              │",
      "│ Kullanılmayan İzin │        12.34 │               │              │              │              │",
      "│ Ücreti             │              │               │              │              │              │",
      "│ Sosyal Haklar      │              │               │              │              │              │",
      "│ İhbar Tazminatı    │              │               │              │              │              │",
      "│ Kıdem Tazminatı    │ 1,234,567.00 │               │ 1,234,567.00 │          .50 │ 1,234,566.50 │",
      "├────────────────────┼──────────────┼───────────────┼──────────────┼──────────────┼──────────────┤",
      "│ Toplam             │ 1,235,579.84 │        200.25 │ 1,235,367.25 │          .50 │ 1,235,366.75 │",
      "└────────────────────┴──────────────┴───────────────┴──────────────┴──────────────┴──────────────┘",
      "",
      "  15.03.2004 tarihinden beri çalıştığım işyerinden yukarıda gösterilen şekilde ayrıldım. Çalışmaya",
      "  başladığım tarihten bugüne kadar geçen sürem içindeki bütün ücretlerimi ve her türlü sosyal hakkım",
      "  ile hafta ve genel tatil günlerine ait ücretlerimi ayrıca yapmış olduğum fazla mesai ücretlerim ile",
      "  yıllık izin ücretlerimi ve ayrılış esnasında hak etmiş olduğum ve yukarıda belirtilen",
      "  istihkaklarımı eksiksiz olarak aldım.",
      "            İşyerinden, Kanun ve Hizmet akdinden doğan hiçbir şekil ve nam altında herhangi",
      "  alacağımın kalmadığını, maddi ve manevi herhangi bir hak talebinde bulunmayacağımı beyanla",
      "  işyerini -geçmişe dönük olarak da- ibra ederim.",
      "",
      "                                                                      31.03.2009",
      "  İşten Ayrılmadan İtibaren 6 ay İçerisinde",
      "  Bulunacağı Tebligat Adresi :                                         İBRA EDEN",
      "  Gül Sok. 5",
      "  Çankaya",
      "  Telefon : 0312 555 55 55                                            ──────────────────────",
  };
  const std::string metin = IbranameMetni(OrnekIbraname());
  EXPECT_THAT(Satirlar(metin), ElementsAreArray(beklenen));
  EXPECT_TRUE(KodSayfasinaSigar(metin, KodSayfasi::Dos857));
  const auto duz = Satirlar(IbranameMetni(OrnekIbraname(), CerceveTuru::Duz));
  EXPECT_EQ(duz.at(19),
            "| ÖDEMELER           | BRÜT KAZANÇ  | YASAL KESİNTİ | NET KAZANÇ   | ÖZEL KESİNTİ | NET ÖDENEN   |");
  EXPECT_EQ(duz.at(20),
            "+--------------------+--------------+---------------+--------------+--------------+--------------+");
}

TEST(Ibraname, LargestAmountsStayWholeOnPaper) {
  Ibraname i = OrnekIbraname();
  for (auto& satir : i.odemeler.satirlar) satir.fill(Tutar::Hamdan(1'234'567'890'123'456'700));
  const auto satirlar = Satirlar(IbranameMetni(i));
  for (const auto& satir : satirlar) EXPECT_LE(HarfSayisi(satir), 132u) << satir;
  EXPECT_LE(satirlar.size(), 66u);
  EXPECT_THAT(IbranameMetni(i), HasSubstr("│ 617283945061728.35 │"));
  SayfayiDenetle(IbranameSayfalari(i)[0]);
  i.odemeler.satirlar[0][0] = Tutar::Hamdan(INT64_MAX);
  EXPECT_THROW(IbranameMetni(i), TutarTasmasi);
}

TEST(Ibraname, DrawnFormHoldsTheSame) {
  for (std::uint8_t kod = 0; kod < std::size(CikisKodlari); ++kod) {
    Ibraname i = OrnekIbraname();
    i.form.cikiskodu = kod;
    const FormSayfasi sayfa = IbranameSayfalari(i).at(0);
    SayfayiDenetle(sayfa);
    EXPECT_EQ(Alan(sayfa, "cikiskodu").deger, CikisKodlari[kod]);
  }
  const FormSayfasi sayfa = IbranameSayfalari(OrnekIbraname())[0];
  EXPECT_EQ(Alan(sayfa, "odeme1.1").deger, "1,000.50");
  EXPECT_EQ(Alan(sayfa, "odeme3.1").deger, "12.34");
  EXPECT_EQ(Alan(sayfa, "odeme7.4").deger, ".50");
  EXPECT_EQ(Alan(sayfa, "odeme8.5").deger, "1,235,366.75");
  EXPECT_EQ(Alan(sayfa, "tel").deger, "Telefon : 0312 555 55 55");
}

}  // namespace
}  // namespace belvani
