#include "severance/kidembelgesi.h"

#include <algorithm>
#include <optional>

#include "core/turkce.h"
#include "printing/excelkont.h"
#include "printing/prnx.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

using Cizelge = KidemCizelgesi;

constexpr int SatirHarfi = 63;
constexpr int DegerSonu = 54;  // letters up to the end of the values; what is said behind them fits in the rest
constexpr int YilOndaligi = 2;
constexpr int Gruplama = 3;

// ---- amounts

std::optional<Tutar> Tutari(const Cizelge& c, double KidemTutarlari::*uye, bool haric = false) {
  if (!c.sonuc.tutarlar || haric) return std::nullopt;
  return Gosterilen((*c.sonuc.tutarlar).*uye, c.paraonda);
}

std::optional<Tutar> Vergisi(const Cizelge& c, Tutar KidemTutarlari::*uye, bool haric) {
  if (!c.sonuc.tutarlar || haric) return std::nullopt;
  return Gosterilen(((*c.sonuc.tutarlar).*uye).Sayi(), c.paraonda);
}

using T = KidemTutarlari;

struct KidemTutari {
  std::string_view ad;
  std::optional<Tutar> (*deger)(const Cizelge&);
};

// clang-format off
constexpr KidemTutari Tutarlar[] = {
    {"AylikUcret",        [](const Cizelge& c) { return std::optional(Gosterilen(c.form.AylikUcret.Sayi(), c.paraonda)); }},
    {"dvgvmatrah",        [](const Cizelge& c) { return std::optional(Gosterilen(c.matrah.dvgvmatrah.Sayi(), c.paraonda)); }},
    {"dvgvtutar",         [](const Cizelge& c) { return std::optional(Gosterilen(c.matrah.dvgvtutar.Sayi(), c.paraonda)); }},
    {"kidemTavan",        [](const Cizelge& c) {
       return c.sonuc.tutarlar ? std::optional(Gosterilen(c.KidemTavan.Sayi(), c.paraonda)) : std::nullopt;
     }},
    {"gunlukUcret",       [](const Cizelge& c) { return Tutari(c, &T::gunlukUcret); }},
    {"gunlukEsas",        [](const Cizelge& c) { return Tutari(c, &T::gunlukEsas); }},
    {"gunlukKidem",       [](const Cizelge& c) { return Tutari(c, &T::gunlukKidem); }},
    {"kidemKazanci",      [](const Cizelge& c) { return Tutari(c, &T::gunlukEsas, c.form.kidemHaric); }},
    {"brutKidem",         [](const Cizelge& c) { return Tutari(c, &T::brutKidem, c.form.kidemHaric); }},
    {"kidemDamga",        [](const Cizelge& c) { return Vergisi(c, &T::kidemDamga, c.form.kidemHaric); }},
    {"netKidem",          [](const Cizelge& c) { return Tutari(c, &T::netKidem, c.form.kidemHaric); }},
    {"brutIhbar",         [](const Cizelge& c) { return Tutari(c, &T::brutIhbar, c.form.ihbarHaric); }},
    {"ihbarGelirVergisi", [](const Cizelge& c) { return Vergisi(c, &T::ihbarGelirVergisi, c.form.ihbarHaric); }},
    {"ihbarDamga",        [](const Cizelge& c) { return Vergisi(c, &T::ihbarDamga, c.form.ihbarHaric); }},
    {"netIhbar",          [](const Cizelge& c) { return Tutari(c, &T::netIhbar, c.form.ihbarHaric); }},
    {"netToplam",         [](const Cizelge& c) { return Tutari(c, &T::netToplam); }},
};
// clang-format on

// ---- lines

enum class SatirTuru { Deger, Cizgi, Baslik };

struct Satir {
  SatirTuru tur;
  const char* metin = "";                    // on paper
  const char* tablo = "";                    // beside its value in a spreadsheet; "": not there
  std::string_view tutar = {};               // amount by name
  Hucre (*deger)(const Cizelge&) = nullptr;  // or any other value
  const char* ek = "";                       // behind the value
  const char* cizim = nullptr;               // on the drawn page, where it is worded otherwise
};

constexpr Satir Cizgi{SatirTuru::Cizgi};

// clang-format off
constexpr Satir Satirlar[] = {
    Cizgi,
    {SatirTuru::Deger, "Personel Kodu : ", "Personel Kodu", {}, [](const Cizelge& c) -> Hucre { return c.form.kod; }},
    {SatirTuru::Deger, "SSK Sicil No  : ", "SSK Sicil No",  {}, [](const Cizelge& c) -> Hucre { return c.form.sskno; }},
    {SatirTuru::Deger, "Adı           : ", "Adı",           {}, [](const Cizelge& c) -> Hucre { return c.form.adi; }},
    {SatirTuru::Deger, "Soyadı        : ", "Soyadı",        {}, [](const Cizelge& c) -> Hucre { return c.form.soyadi; }},
    {SatirTuru::Deger, "Giriş Tarihi  : ", "Giriş Tarihi",  {}, [](const Cizelge& c) -> Hucre { return c.form.girtar; }},
    {SatirTuru::Deger, "Çıkış Tarihi  : ", "Çıkış Tarihi",  {}, [](const Cizelge& c) -> Hucre { return c.form.ciktar; }},
    {SatirTuru::Deger, "Ücreti        : ", "Ücreti", "AylikUcret"},
    Cizgi,
    {SatirTuru::Deger, "Kıdem Tazminat Tavanı     : ", "Kıdem Tazminat Tavanı",     "kidemTavan"},
    {SatirTuru::Deger, "Günlük Kıdem Tazminat     : ", "Günlük Kıdem Tazminat",     "gunlukKidem"},
    {SatirTuru::Deger, "Günlük Ücret              : ", "Günlük Ücret",              "gunlukUcret"},
    {SatirTuru::Deger, "Günlük Kıdem'e Esas Ücret : ", "Günlük Kıdem'e Esas Ücret", "gunlukEsas"},
    {SatirTuru::Deger, "Toplam Çalışma Günü       : ", "Toplam Çalışma Günü", {},
     [](const Cizelge& c) -> Hucre { return std::int64_t(c.sonuc.CalismaGunu); }},
    {SatirTuru::Deger, "Kıdeme Esas Gün           : ", "", {},
     [](const Cizelge& c) -> Hucre { return SayiFormat(SayiMetni(c.sonuc.KidemYil), YilOndaligi, Gruplama); },
     "", "Kıdem'e Esas Gün          : "},
    {SatirTuru::Deger, "İhbar Günü                : ", "İhbar Günü", {},
     [](const Cizelge& c) -> Hucre { return std::int64_t(c.sonuc.IhbarGun); }},
    Cizgi,
    {SatirTuru::Baslik, "KIDEM TAZMİNATI", "KIDEM TAZMİNATI"},
    Cizgi,
    {SatirTuru::Deger, "Kıdem'e Esas Kazanç       : ", "Kıdeme Esas Kazanç", "kidemKazanci", nullptr, " (Günlük)"},
    {SatirTuru::Deger, "Brüt Tutar                : ", "Brüt Tutar",         "brutKidem"},
    {SatirTuru::Deger, "Damga Vergisi             : ", "Damga Vergisi",      "kidemDamga"},
    Cizgi,
    {SatirTuru::Deger, "NET KIDEM TAZMİNATI       : ", "Net Kıdem Tazminatı", "netKidem"},
    Cizgi,
    {SatirTuru::Baslik, "İHBAR TAZMİNATI", "İHBAR TAZMİNATI"},
    Cizgi,
    {SatirTuru::Deger, "Brüt Tutar                : ", "Brüt Tutar",         "brutIhbar"},
    {SatirTuru::Deger, "Gelir Vergisi             : ", "Gelir Vergisi",      "ihbarGelirVergisi"},
    {SatirTuru::Deger, "Damga Vergisi             : ", "Damga Vergisi",      "ihbarDamga"},
    Cizgi,
    {SatirTuru::Deger, "NET İHBAR TAZMİNATI       : ", "Net İhbar Tazminatı", "netIhbar"},
    Cizgi,
    {SatirTuru::Baslik, "NET TOPLAM TAZMİNAT", "NET TOPLAM TAZMİNAT"},
    Cizgi,
    {SatirTuru::Deger, "NET ÖDENECEK              : ", "Net Ödenecek Tazminat", "netToplam"},
    Cizgi,
};
// clang-format on

Hucre Degeri(const Satir& s, const Cizelge& c) {
  if (s.deger != nullptr) return s.deger(c);
  const auto tutar = KidemTutariBul(c, s.tutar);
  return tutar ? Hucre(*tutar) : Hucre(Null{});
}

std::string DegerMetni(const Satir& s, const Cizelge& c, int en) {
  const Hucre deger = Degeri(s, c);
  if (const auto* tutar = std::get_if<Tutar>(&deger)) return TutarAlan(*tutar, en, c.paraonda, Gruplama);
  return SolBosluk(DenetimsizMetin(DuzMetin(deger)), en);
}

enum class Bicim { Metin, Cizim };

using KagitSatiri = std::optional<std::string>;  // nothing: a rule

KagitSatiri SatirMetni(const Satir& s, const Cizelge& c, Bicim bicim) {
  switch (s.tur) {
    case SatirTuru::Cizgi:
      return std::nullopt;
    case SatirTuru::Baslik:
      return OrtalaMetin(s.metin, SatirHarfi);
    case SatirTuru::Deger:
      break;
  }
  const std::string_view etiket = bicim == Bicim::Cizim && s.cizim != nullptr ? s.cizim : s.metin;
  const std::string deger = DegerMetni(s, c, DegerSonu - int(HarfSayisi(etiket)));
  return std::string(etiket) + deger + (Kirp(deger).empty() ? "" : s.ek);
}

// What follows the empty line and the title.
std::vector<KagitSatiri> GovdeSatirlari(const Cizelge& c, Bicim bicim) {
  std::vector<KagitSatiri> satirlar;
  for (const Satir& s : Satirlar) satirlar.push_back(SatirMetni(s, c, bicim));
  if (!c.notlar.empty()) satirlar.emplace_back("");
  for (const std::string& soz : c.notlar)
    for (std::string& satir : SatirlaraBol(soz, SatirHarfi)) satirlar.emplace_back(std::move(satir));
  for (KagitSatiri& satir : satirlar)
    if (satir) satir->erase(satir->find_last_not_of(' ') + 1);
  return satirlar;
}

// The lines in letters of one width, as the text form has them.
class KidemCizimi final : public CizilenBelge {
 public:
  explicit KidemCizimi(const Cizelge& c) : satirlar_(GovdeSatirlari(c, Bicim::Cizim)) {}

  int SayfaSayisi() const override { return 1; }
  void SayfaCiz(int, Tuval& tuval) const override {
    YzcAyarlari ayar;
    prnx yazici(ayar, &tuval, nullptr);
    yazici.OpenPrinter(prnxTuru(ayar), std::string(KidemBasligi), {.izgara = Izgara()});
    yazici.YeniSayfa();
    yazici.Lprint("", 0, SatirSonu::Var);
    yazici.Lprint(OrtalaMetin(KidemBasligi, SatirHarfi), 0, SatirSonu::Var, MetinHizasi::Sol, HucreBicem::Kalin);
    for (const KagitSatiri& satir : satirlar_)
      satir ? yazici.Lprint(*satir, 0, SatirSonu::Var) : yazici.LinePrint(SatirHarfi, SatirSonu::Var);
    yazici.SayfaBitti(SayfaDibi::Birak);
  }

 private:
  static prnxIzgara Izgara() {
    constexpr double harfMm = 2.54, satirMm = 5, ustMm = 15, punto = 11;
    const KagitBoyu kagit = A4(KagitYonu::Dikey);
    YaziBicimi yazi{.punto = punto, .aile = YaziAilesi::EsEnli};
    yazi.genislik = harfMm / MetinEni("0", yazi);
    return {.kagit = kagit,
            .bas = {(kagit.en - SatirHarfi * harfMm) / 2, ustMm},
            .harfEni = harfMm,
            .satirBoyu = satirMm,
            .yazi = yazi};
  }

  std::vector<KagitSatiri> satirlar_;
};

// ---- spreadsheet

Sonuc<std::string> KidemTablosu(const Cizelge& c, Ilerleme* ilerleme) {
  constexpr int etiketEni = 32, degerEni = 20;
  excelkont excel;
  excel.Baslik = "Tazminat";
  excel.ParaOndaligi = c.paraonda;
  if (const Durum acildi = excel.OpenExcell(); !acildi) return acildi.Kusuru();
  excel.KolonEni(1, etiketEni);
  excel.KolonEni(2, degerEni);
  int satir = 1;
  excel.SetExcell(satir, 1, std::string(KidemBasligi), ExcelYazisi::Koyu);
  for (const Satir& s : Satirlar) {
    if (*s.tablo == '\0') continue;
    const bool baslik = s.tur == SatirTuru::Baslik;
    excel.SetExcell(++satir, 1, std::string(s.tablo), baslik ? ExcelYazisi::Koyu : ExcelYazisi::Normal);
    if (s.tur == SatirTuru::Deger) excel.SetExcell(satir, 2, Degeri(s, c));
  }
  for (const std::string& soz : c.notlar) excel.SetExcell(++satir, 1, soz);
  return excel.Kitap(ilerleme);
}

YzcAyarlari BaskiAyari() {
  YzcAyarlari ayar;
  ayar.YzcBaslik = KidemBasligi;
  return ayar;
}

class KidemKagidi final : public Belge {
 public:
  explicit KidemKagidi(Cizelge c) : Belge(BaskiAyari()), c_(std::move(c)) {
    Donem(c_.form.kod + " " + c_.form.ciktar.Iso());
  }

  std::string Baslik() const override { return std::string(KidemBasligi); }
  bool Bos() const override { return false; }

 private:
  std::unique_ptr<CizilenBelge> CizimYap(Ilerleme*) const override { return std::make_unique<KidemCizimi>(c_); }
  void MetinYap(const MetinAlici& al, Ilerleme*) const override { al(KidemMetni(c_)); }
  Sonuc<std::string> XlsxYap(Ilerleme* ilerleme) const override { return KidemTablosu(c_, ilerleme); }

  Cizelge c_;
};

}  // namespace

std::optional<Tutar> KidemTutariBul(const KidemCizelgesi& cizelge, std::string_view ad) {
  const auto yer = std::ranges::find(Tutarlar, ad, &KidemTutari::ad);
  return yer == std::end(Tutarlar) ? std::nullopt : yer->deger(cizelge);
}

std::string KidemMetni(const KidemCizelgesi& cizelge) {
  std::string metin = "\n" + OrtalaMetin(KidemBasligi, SatirHarfi) + "\n";
  for (const KagitSatiri& satir : GovdeSatirlari(cizelge, Bicim::Metin))
    metin += satir.value_or(Yinele("-", SatirHarfi)) + "\n";
  return metin;
}

std::unique_ptr<Belge> KidemBelgesi(KidemCizelgesi cizelge) {
  return std::make_unique<KidemKagidi>(std::move(cizelge));
}

}  // namespace belvani
