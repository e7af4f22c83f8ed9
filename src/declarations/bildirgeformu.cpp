#include "declarations/bildirgeformu.h"

#include "core/asama.h"
#include "core/sayi.h"
#include "core/turkce.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/taraflar.h"
#include "printing/form/formmetni.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Millimetres across the page; down it, lines (satirliform.h).
constexpr double En = A4(KagitYonu::Yatay).en - 2 * KagitSolu;
constexpr double BelgeEni = 66;
constexpr double SolEni = En - BelgeEni;
constexpr double BelgeX = KagitSolu + SolEni;
constexpr int BelgeSatiri = 9;
constexpr double NumaraX = KagitSolu + 4;
constexpr double IsaretBoyu = 3.6;

const std::vector<FormKolonu>& Kolonlar() {
  using enum MetinHizasi;
  static const std::vector<FormKolonu> kolonlar{
      {9, "Sıra", "", "sira", Sag},
      {8, "Deği-", "şiklik", "degisiklik", Orta},
      {25, "Sigorta Sicil No", "", "sskno"},
      {21, "T.C. Kimlik No", "", "tcno"},
      {34, "Adı", "", "adi"},
      {34, "Soyadı", "", "soyadi"},
      {34, "İlk Soyadı", "", "ilksoyadi"},
      {10, "Gün", "Sayısı", "gun", Sag},
      {29, "Prime Esas Kazanç", "", "kazanc", Sag},
      {9, "Ücretli  İzin", "Gün", "izingunu", Sag, 2},
      {26, "", "Ücreti", "izinucreti", Sag},
      {14, "İşe Giriş", "Tarihi", "girtar", Orta},
      {14, "İşten Çıkış", "Tarihi", "ciktar", Orta},
      {14, "Eksik Gün", "Nedeni", "eksik", Orta},
  };
  return kolonlar;
}
constexpr std::size_t ToplamKolonu = 7;  // the first column of the sums

constexpr const char* BransAdlari[BransSayisi] = {
    "KISA VADELİ SİGORTA KOLLARI (İŞ KAZASI VE MESLEK HASTALIĞI)",
    "ANALIK",
    "GENEL SAĞLIK SİGORTASI (HASTALIK)",
    "MALULLÜK, YAŞLILIK VE ÖLÜM",
    "SOSYAL GÜVENLİK DESTEK PRİMİ",
    "İŞSİZLİK SİGORTASI",
};

// ---- head

void Mahiyet(FormKurucu& f, int satir, BelgeMahiyeti secilen) {
  constexpr struct {
    const char* etiket;
    const char* ad;
    BelgeMahiyeti mahiyet;
  } turler[] = {{"Asıl:", "mahiyet.asil", BelgeMahiyeti::Asil},
                {"Ek:", "mahiyet.ek", BelgeMahiyeti::Ek},
                {"İptal:", "mahiyet.iptal", BelgeMahiyeti::Iptal}};
  constexpr double adim = BelgeEni / 3;
  double x = BelgeX;
  f.Kutu(SatirYeri(BelgeX, satir, BelgeEni));
  for (const auto& t : turler) {
    f.Etiket(SatirYeri(x + 4, satir, 9), t.etiket);
    f.Isaret(t.ad, {x + 13, satir * SatirMm + (SatirMm - IsaretBoyu) / 2, IsaretBoyu, IsaretBoyu},
             secilen == t.mahiyet);
    x += adim;
  }
}

void BelgeKutusu(FormKurucu& f, int satir, const BildirgeKagidi& kagit, const KagitSayfasi& sayfa, int sayfaSayisi) {
  constexpr double yari = BelgeEni / 2;
  f.Bolum(SatirYeri(BelgeX, satir, BelgeEni, 2), sayfa.no == 1 ? "EK : 3" : "EK : 3- DEVAM SAYFASI",
          sayfa.no == 1 ? 11 : 10);
  satir = Kutucuklar(f, BelgeX, satir + 2,
                     {{yari, "Yıl", 12, "yil", std::to_string(kagit.yil)}, {yari, "Ay", 12, "ay", IkiHane(kagit.ay)}});
  f.Kutu(SatirYeri(BelgeX, satir, BelgeEni));
  f.Etiket(SatirYeri(BelgeX, satir, BelgeEni), "Belgenin Mahiyeti", MetinHizasi::Orta);
  Mahiyet(f, satir + 1, kagit.mahiyet);
  satir = Kutucuklar(f, BelgeX, satir + 2, {{BelgeEni, "Belge Türü", 38, "belgeturu", kagit.belgeTuru}});
  f.Kutu(SatirYeri(BelgeX, satir, BelgeEni, 2));
  f.Etiket(SatirYeri(BelgeX + KagitPayi, satir, 38), "Düzenlenmesine");
  f.Etiket(SatirYeri(BelgeX + KagitPayi, satir + 1, 38), "Esas Kanun No");
  f.Alan("kanun", SatirYeri(BelgeX + 38 + 2 * KagitPayi, satir + 1, 24), kagit.kanun);
  Kutucuklar(f, BelgeX, satir + 2,
             {{yari, "Sayfa No", 20, "sayfano", std::to_string(sayfa.no)},
              {yari, "Toplam Sayfa", 20, "sayfasayisi", std::to_string(sayfaSayisi)}});
}

constexpr std::string_view BelgeAdi = "AYLIK PRİM VE HİZMET BELGESİ";

int IlkBas(FormKurucu& f, int satir, const BildirgeKagidi& kagit) {
  f.Kutu(SatirYeri(KagitSolu, satir, SolEni, BelgeSatiri));
  f.Baslik(SatirYeri(KagitSolu, satir + 1, SolEni, 2), BelgeAdi, 14);
  IsyeriNumarasi(f, NumaraX, satir + 5, kagit.firma, kagit.arac.kod);
  satir += BelgeSatiri;
  constexpr double yanEni = 110;
  Taraf(f, KagitSolu, satir, yanEni, "İŞVERENİN", "isveren", Isveren(kagit.firma));
  Taraf(f, KagitSolu + yanEni, satir, yanEni, "ARACININ", "araci", Araci(kagit.arac));
  return Taraf(f, KagitSolu + 2 * yanEni, satir, En - 2 * yanEni, "SİGORTALIYI DEVİR ALANIN", "deviralan", {});
}

int DevamBasi(FormKurucu& f, int satir, const BildirgeKagidi& kagit) {
  constexpr double etiketEni = 30;
  const TarafBilgisi isveren = Isveren(kagit.firma);
  f.Kutu(SatirYeri(KagitSolu, satir, SolEni, BelgeSatiri));
  f.Baslik(SatirYeri(KagitSolu, satir, SolEni, 2), BelgeAdi, 11);
  satir = IsyeriNumarasi(f, NumaraX, satir + 2, kagit.firma, kagit.arac.kod);
  satir = Kutucuklar(f, KagitSolu, satir, {{SolEni, "İŞVERENİN Ünvanı", etiketEni, "isveren.unvan", isveren.unvan}});
  satir = Kutucuklar(
      f, KagitSolu, satir,
      {{SolEni, "Adresi", etiketEni, "isveren.adr", std::string(Kirp(isveren.adres[0] + " " + isveren.adres[1]))}});
  return Kutucuklar(f, KagitSolu, satir,
                    {{SolEni, "ARACININ Ünvanı", etiketEni, "araci.unvan", Araci(kagit.arac).unvan}});
}

// ---- I

int Sayaclar(FormKurucu& f, int satir, double en, const BildirgeKagidi& kagit) {
  const BildirgeToplamlari& t = kagit.toplamlar;
  const struct {
    const char* etiket;
    const char* ad;
    std::string deger;
  } sayaclar[] = {
      {"Sigortalı Sayısı", "sigortali", KagitSayisi(t.sigortali)},
      {"Prim Ödenen Gün Sayısı", "gun", KagitSayisi(t.gun)},
      {"Ay İçinde İşe Girenlerin Sayısı", "giren", KagitSayisi(t.giren)},
      {"Ay İçinde İşten Ayrılanların Sayısı", "ayrilan", KagitSayisi(t.ayrilan)},
      {"Ücretli İzinli Sayısı", "izinli", KagitSayisi(t.ucretliIzinli)},
      {"Ücretli İzinli Kazancı", "izinucreti", KagitTutari(t.ucretliKazanc, kagit.paraonda)},
      {"Ücretli İzinli Gün Sayısı", "izingunu", KagitSayisi(t.ucretliGun)},
  };
  for (const auto& s : sayaclar)
    satir =
        Kutucuklar(f, KagitSolu, satir, {{en, s.etiket, 50, std::string("toplam.") + s.ad, s.deger, MetinHizasi::Sag}});
  return satir;
}

void Branslar(FormKurucu& f, int satir, double x, const BildirgeKagidi& kagit) {
  const std::vector<FormKolonu> kolonlar{{KagitSolu + En - x - 92, "SİGORTA KOLLARI", "", "kol"},
                                         {32, "MATRAH", "", "matrah", MetinHizasi::Sag},
                                         {20, "PRİM ORANI %", "", "oran", MetinHizasi::Sag},
                                         {40, "PRİM TUTARI", "", "prim", MetinHizasi::Sag}};
  double kolonX = x;
  for (const auto& k : kolonlar) {
    f.Kutu(SatirYeri(kolonX, satir, k.en));
    f.Etiket(SatirYeri(kolonX, satir, k.en), k.ustBaslik, MetinHizasi::Orta);
    kolonX += k.en;
  }
  ++satir;
  TabloSatirlari(f, x, satir, kolonlar, int(BransSayisi));
  std::vector<std::size_t> sira(KagitBransSirasi.begin(), KagitBransSirasi.end());
  sira.push_back(AnalikBransi);
  for (const std::size_t brans : sira) {
    const KagitBransi& b = kagit.branslar[brans];
    f.Etiket(SatirYeri(x + KagitPayi, satir, kolonlar[0].en - 2 * KagitPayi), BransAdlari[brans]);
    TabloDegerleri(f, x + kolonlar[0].en, satir++, {kolonlar.begin() + 1, kolonlar.end()},
                   "brans" + std::to_string(brans),
                   {KagitTutari(b.matrah, kagit.paraonda), b.oran ? SayiMetni(b.oran->Sayi()) : "",
                    KagitTutari(b.prim, kagit.paraonda)});
  }
}

int ToplamBilgiler(FormKurucu& f, int satir, const BildirgeKagidi& kagit) {
  constexpr double sayacEni = 90;
  constexpr double bransX = KagitSolu + sayacEni;
  f.Bolum(SatirYeri(KagitSolu, satir, En),
          "I - T Ü M     S A Y F A L A R A     A İ T    T O P L A M     B İ L G İ L E R", 8);
  ++satir;
  Branslar(f, satir, bransX, kagit);
  satir = Sayaclar(f, satir, sayacEni, kagit);
  f.Kutu(SatirYeri(KagitSolu, satir, sayacEni));
  return Kutucuklar(f, bransX, satir,
                    {{En - sayacEni, "GENEL TOPLAM", 60, "geneltoplam", KagitTutari(kagit.genelToplam, kagit.paraonda),
                      MetinHizasi::Sag}});
}

// ---- II

int ToplamSatiri(FormKurucu& f, int satir, std::string_view etiket, const std::string& on, const KagitToplami& t,
                 int paraonda) {
  const auto& kolonlar = Kolonlar();
  const std::vector<FormKolonu> toplananlar(kolonlar.begin() + ToplamKolonu, kolonlar.begin() + ToplamKolonu + 4);
  const double degerX =
      KagitSolu + ToplamEn(std::vector<FormKolonu>(kolonlar.begin(), kolonlar.begin() + ToplamKolonu));
  f.Kutu(SatirYeri(KagitSolu, satir, En));
  f.Etiket(SatirYeri(KagitSolu, satir, degerX - KagitSolu - 3), etiket, MetinHizasi::Sag);
  double x = degerX;
  for (const auto& k : toplananlar) {
    f.Kutu(SatirYeri(x, satir, k.en));
    x += k.en;
  }
  TabloDegerleri(f, degerX, satir, toplananlar, on,
                 {KagitSayisi(t.gun), KagitTutari(t.kazanc, paraonda), KagitSayisi(t.izinGunu),
                  KagitTutari(t.izinUcreti, paraonda)});
  return satir + 1;
}

std::vector<std::string> SatirDegerleri(const BildirgeSatiri& s, std::size_t sira, int paraonda) {
  return {std::to_string(sira),
          s.farkmivar.value_or(0) > 0 ? "X" : "",
          s.sskno,
          s.tcno,
          s.adi,
          s.soyadi,
          s.ilksoyadi,
          KagitSayisi(s.gun),
          KagitTutari(s.primkazanc, paraonda),
          KagitSayisi(s.ui),
          KagitTutari(s.uiucret, paraonda),
          KagitTarihi(s.girtar),
          KagitTarihi(s.ciktar),
          KagitSayisi(s.eksik)};
}

int Sigortalilar(FormKurucu& f, int satir, const BildirgeKagidi& kagit, const KagitSayfasi& sayfa) {
  const auto& kolonlar = Kolonlar();
  const bool ilkSayfa = sayfa.no == 1;
  const int kapasite = int(ilkSayfa ? IlkSayfaKisisi : DevamSayfasiKisisi);
  f.Bolum(SatirYeri(KagitSolu, satir, En),
          "II - A Y   İ Ç İ N D E    Ç A L I Ş T I R I L A N     S İ G O R T A L I L A R", 8);
  satir = TabloBasligi(f, KagitSolu, satir + 1, kolonlar);
  if (!ilkSayfa) satir = ToplamSatiri(f, satir, "ÖNCEKİ SAYFADAN DEVİRLER", "devreden", sayfa.devir, kagit.paraonda);
  TabloSatirlari(f, KagitSolu, satir, kolonlar, kapasite);
  for (std::size_t i = sayfa.ilk; i < sayfa.son; ++i)
    TabloDegerleri(f, KagitSolu, satir + int(i - sayfa.ilk), kolonlar, "satir" + std::to_string(i + 1),
                   SatirDegerleri(kagit.satirlar[i], i + 1, kagit.paraonda));
  satir = ToplamSatiri(f, satir + kapasite, "BU SAYFANIN TOPLAMLARI", "sayfa", sayfa.sayfa, kagit.paraonda);
  if (ilkSayfa) return satir;
  return ToplamSatiri(f, satir, "BU SAYFA DAHİL TOPLAMLAR", "dahil", sayfa.dahil, kagit.paraonda);
}

// ---- foot

void Imza(FormKurucu& f, const Dikdortgen& kutu, std::string_view etiket) {
  f.Kutu(kutu);
  f.Etiket(f.Icerisi({kutu.x, kutu.y, kutu.en, SatirMm}), etiket, MetinHizasi::Orta);
}

int Ayak(FormKurucu& f, int satir, const BildirgeKagidi& kagit, int sayfaSayisi, int imzaSatiri) {
  constexpr double tarihEni = 45;
  constexpr double resenEni = 52;
  constexpr double imzaEni = (En - tarihEni - resenEni) / 4;
  const std::string sayi = std::to_string(sayfaSayisi);
  f.Kutu(SatirYeri(KagitSolu, satir, En));
  f.Etiket(f.Icerisi(SatirYeri(KagitSolu, satir, En)),
           "Toplam " + sayi +
               " sayfadan oluşan bu belgedeki bilgilerin işyeri defter, kayıt ve belgelerine uygun olduğunu beyan ve "
               "kabul ederiz.");
  ++satir;
  double x = KagitSolu;
  for (const char* imza : {"İŞVEREN / VEKİLİ", "ARACI", "SİGORTALIYI DEVİR ALAN"}) {
    Imza(f, SatirYeri(x, satir, imzaEni, imzaSatiri), imza);
    x += imzaEni;
  }
  f.Kutu(SatirYeri(x, satir, imzaEni, imzaSatiri));
  MuhasebeciImzasi(f, f.Icerisi(SatirYeri(x, satir, imzaEni)), kagit.muhasebeci);
  x += imzaEni;
  Imza(f, SatirYeri(x, satir, tarihEni, imzaSatiri), "ÜNİTEYE VERİLDİĞİ TARİH");
  x += tarihEni;
  f.Kutu(SatirYeri(x, satir, resenEni, imzaSatiri));
  f.Isaret("resen", {x + 2, satir * SatirMm + (SatirMm - IsaretBoyu) / 2, IsaretBoyu, IsaretBoyu}, false);
  f.Etiket(SatirYeri(x + 4 + IsaretBoyu, satir, resenEni - 5 - IsaretBoyu), "RESEN DÜZENLENMİŞTİR");
  return satir + imzaSatiri;
}

FormSayfasi Sayfasi(const BildirgeKagidi& kagit, const KagitSayfasi& sayfa, int sayfaSayisi) {
  const bool ilk = sayfa.no == 1;
  FormKurucu f = KagitFormu(KagitYonu::Yatay);
  BelgeKutusu(f, KagitUstSatiri, kagit, sayfa, sayfaSayisi);
  int satir = (ilk ? IlkBas : DevamBasi)(f, KagitUstSatiri, kagit);
  if (ilk) satir = ToplamBilgiler(f, satir, kagit);
  satir = Sigortalilar(f, satir, kagit, sayfa);
  satir = Ayak(f, satir, kagit, sayfaSayisi, ilk ? 7 : 4);
  f.Kutu(SatirYeri(KagitSolu, KagitUstSatiri, En, satir - KagitUstSatiri), KagitKalinCizgi);
  return f.Sayfa();
}

}  // namespace

std::vector<FormSayfasi> BildirgeSayfalari(const BildirgeKagidi& kagit, Ilerleme* ilerleme) {
  const auto bolumler = SayfalaraBol(kagit.satirlar);
  const int sayfaSayisi = int(bolumler.size());
  std::vector<FormSayfasi> sayfalar;
  sayfalar.reserve(bolumler.size());
  Asama asama(ilerleme, bolumler.size());
  for (const auto& bolum : bolumler) {
    asama.Adim();
    sayfalar.push_back(Sayfasi(kagit, bolum, sayfaSayisi));
  }
  return sayfalar;
}

std::string BildirgeYazdir(const BildirgeKagidi& kagit) {
  return FormMetni(BildirgeSayfalari(kagit));
}

std::unique_ptr<Belge> BildirgeBelgesi(const BildirgeKagidi& kagit, Ilerleme* ilerleme) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = BildirgeBasligi;
  ayar.YzcYon = KagitYonu::Yatay;
  auto sayfalar = BildirgeSayfalari(kagit, ilerleme);
  std::string metin = FormMetni(sayfalar, ilerleme);
  return std::make_unique<FormBelgesi>(ayar, std::move(sayfalar), std::move(metin));
}

}  // namespace belvani
