#include "notices/ekbelgeleri.h"

#include <algorithm>

#include "core/asama.h"
#include "core/store/tablo.h"
#include "core/tables/arac.h"
#include "core/turkce.h"
#include "documents/listebelgesi.h"
#include "notices/ekkagidi.h"
#include "printing/form/metinformu.h"
#include "printing/form/tabloluform.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

constexpr EkKolonu SiraKolonu{8, 4, "SIRA", "NO", MetinHizasi::Sag};
constexpr EkKolonu KurulusKolonu{21, 8, "SOS.GÜV.", "KUR.KODU", MetinHizasi::Orta};
constexpr EkKolonu SicilKolonu{61, 25, "SOSYAL GÜVENLİK", "SİCİL NO", MetinHizasi::Sol, 13};
constexpr EkAnahtari KurulusAnahtari{"(9) SOSYAL GÜVENLİK KURULUŞ KODU",
                                     {"SSK", "EMEKLİ SANDIĞI", "BANKA ve DİĞERLERİ", "BAĞ-KUR"}};

// Duties are in no record; the box is for the pen.
const EkTanimi Ek1{"EK - 1   İŞÇİ GİRİŞ  BİLDİRİM LİSTESİ",
                   {SiraKolonu,
                    {58, 41, "ADI SOYADI", ""},
                    {28, 15, "BABA ADI", ""},
                    {28, 15, "DOĞUM YERİ", ""},
                    {23, 10, "DOĞUM", "TARİHİ", MetinHizasi::Orta},
                    {15, 6, "CİN-", "SİYETİ", MetinHizasi::Orta},
                    {15, 5, "GÖREV", "KODU", MetinHizasi::Orta},
                    {24, 10, "İŞE GİRİŞ", "TARİHİ", MetinHizasi::Orta},
                    KurulusKolonu,
                    SicilKolonu},
                   {{"(7) GÖREV KODU", {"İŞVEREN VEKİLİ", "USTABAŞI", "İŞÇİ", "ÇIRAK"}}, KurulusAnahtari}};

const EkTanimi Ek2{"EK - 2   İŞÇİ ÇIKIŞ  BİLDİRİM LİSTESİ",
                   {SiraKolonu,
                    {36, 20, "ADI", ""},
                    {36, 20, "SOYADI", ""},
                    {28, 15, "BABA ADI", ""},
                    {22, 10, "DOĞUM", "TARİHİ", MetinHizasi::Orta},
                    {22, 10, "ÇIKIŞ", "TARİHİ", MetinHizasi::Orta},
                    {13, 5, "ÇIKIŞ", "KODU", MetinHizasi::Orta, 2},
                    {34, 20, "ÇIKIŞ NEDENİ", ""},
                    KurulusKolonu,
                    SicilKolonu},
                   {KurulusAnahtari}};

// Sexes on the form, in the order of the identity's list.
constexpr std::array<std::string_view, 2> CinsiyetHarfleri{"E", "K"};

EkSatiri FormSatiri(const GirenSatiri& s) {
  return {s.adsoy,
          s.baba,
          s.dogyer,
          s.dogtar.Metin(),
          s.cins < CinsiyetHarfleri.size() ? std::string(CinsiyetHarfleri[s.cins]) : std::string(),
          "",
          s.girtar.Metin(),
          KurulusKodu(s.sskno),
          s.sskno};
}

EkSatiri FormSatiri(const CikanSatiri& s) {
  return {
      s.adi,  s.soyadi, s.baba, s.dogtar.Metin(), s.ciktar.Metin(), s.CikisKodu(), s.cikissebebi, KurulusKodu(s.sskno),
      s.sskno};
}

const Kolonlar<GirenSatiri> GirisKolonlari{
    {"adsoy", "Adı Soyadı", 41, [](auto& s) { return s.adsoy; }},
    {"baba", "Baba Adı", 15, [](auto& s) { return s.baba; }},
    {"dogyer", "Doğum Yeri", 15, [](auto& s) { return s.dogyer; }},
    {"dogtar", "Doğum Tarihi", 10, [](auto& s) { return s.dogtar; }},
    {"girtar", "Giriş Tarihi", 10, [](auto& s) { return s.girtar; }},
    {"sskno", "SSK No", 25, [](auto& s) { return s.sskno; }},
};

const Kolonlar<CikanSatiri> CikisKolonlari{
    {"adsoy", "Adı Soyadı", 41, [](auto& s) { return s.AdSoyadi(); }},
    {"baba", "Baba Adı", 15, [](auto& s) { return s.baba; }},
    {"dogtar", "Doğum Tarihi", 10, [](auto& s) { return s.dogtar; }},
    {"ciktar", "Çıkış Tarihi", 10, [](auto& s) { return s.ciktar; }},
    {"cikneden", "Çıkış Nedeni", 23, [](auto& s) { return s.CikisNedeni(); }},
    {"sskno", "SSK No", 25, [](auto& s) { return s.sskno; }},
};

// What all pages are made of.
struct EkKagidi {
  const EkTanimi& tanim;
  EkBasligi baslik;
  std::vector<EkSatiri> satirlar;

  // What `ciz` makes of each page in turn; at least one.
  template <class Ciz>
  auto Sayfalar(Ciz ciz, Ilerleme* ilerleme) const {
    std::vector<decltype(ciz(tanim, baslik, EkSayfasi()))> sayfalar;
    const std::size_t sayi = std::max<std::size_t>(1, (satirlar.size() + EkSayfaKisisi - 1) / EkSayfaKisisi);
    Asama asama(ilerleme, sayi);
    for (std::size_t no = 1; no <= sayi; ++no) {
      asama.Adim();
      const std::size_t ilk = (no - 1) * EkSayfaKisisi;
      const auto kisiler = std::span(satirlar).subspan(ilk, std::min(EkSayfaKisisi, satirlar.size() - ilk));
      sayfalar.push_back(
          ciz(tanim, baslik, {.no = int(no), .sayfaSayisi = int(sayi), .ilk = ilk, .satirlar = kisiler}));
    }
    return sayfalar;
  }
};

template <class KisiSatiri>
std::unique_ptr<Belge> EkBelgesiYap(const BelgeKaynagi& kaynak, const EkTanimi& tanim, const char* baslik,
                                    const Kolonlar<KisiSatiri>& kolonlar, const std::vector<KisiSatiri>& kisiler,
                                    const TarihAraligi& aralik, const EsasIs& is) {
  Rapor rapor = RaporYap(kolonlar, kisiler, kaynak.firma.paraonda);
  rapor.baslik = rapor.ekranBasligi = baslik;
  rapor.ustSatirlar = {{.sol = kaynak.firma.unvan, .orta = AralikMetni(aralik), .sirket = true}};
  const auto arac = Tablo<Arac>(kaynak.motor).Bul();
  const auto kagit = std::make_shared<EkKagidi>(EkKagidi{tanim,
                                                         {.firma = kaynak.firma,
                                                          .araciKodu = arac ? arac->kod : std::string(),
                                                          .isi = DenetimsizMetin(is.isi),
                                                          .aralik = aralik},
                                                         {}});
  kagit->satirlar.reserve(kisiler.size());
  for (const KisiSatiri& kisi : kisiler) kagit->satirlar.push_back(FormSatiri(kisi));
  return std::make_unique<TabloluForm>(
      BaskiAyari(baslik, KagitYonu::Yatay), std::move(rapor),
      FormYapanlar{.sayfalar = [kagit](Ilerleme* i) { return kagit->Sayfalar(EkSayfasiCiz, i); },
                   .metin = [kagit](Ilerleme* i) { return SayfalariBirlestir(kagit->Sayfalar(EkSayfasiMetni, i)); }});
}

}  // namespace

std::unique_ptr<Belge> GirisListesiBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik, const EsasIs& is) {
  return EkBelgesiYap(kaynak, Ek1, "İşçi Giriş Bildirim Listesi", GirisKolonlari,
                      GirenleriOku(kaynak.motor, aralik, kaynak.ilerleme), aralik, is);
}

std::unique_ptr<Belge> CikisListesiBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik, const EsasIs& is) {
  return EkBelgesiYap(kaynak, Ek2, "İşçi Çıkış Bildirim Listesi", CikisKolonlari,
                      CikanlariOku(kaynak.motor, aralik, kaynak.ilerleme), aralik, is);
}

}  // namespace belvani
