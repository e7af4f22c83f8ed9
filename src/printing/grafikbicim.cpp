#include <algorithm>
#include <limits>

#include "core/asama.h"
#include "core/turkce.h"
#include "printing/grafikyazici.h"

namespace belvani {
namespace {

constexpr double RahatPunto = 7;       // below this a sheet is turned sideways
constexpr double SatirAraligi = 1.12;  // of the height of letters
constexpr double KolonBoslugu = 0.7;   // between columns, of the size of letters
constexpr double EnCokEkBosluk = 4;    // millimetres more between columns where the sheet has room
constexpr double OrtalamaHarf = 0.62;  // width of a letter, of its size
constexpr double DarHucre = 0.6;       // how narrow a single long text may become
constexpr double ImzaEni = 20;         // millimetres of a column for the pen, however full the sheet
constexpr double RahatImzaEni = 32;    // and where there is room
constexpr double ImzaBoyu = 7;         // of a row that is signed

// Widths below are those of letters one point high.
YaziBicimi BirPunto(const GrafikDuzeni& duzen, YaziKalinligi kalinlik) {
  return {.punto = 1, .kalinlik = kalinlik, .aile = duzen.aile};
}

// The widest number of as many letters as the column needs: digits are all equally wide.
double SayiEni(const Rapor& rapor, std::size_t k, int gruplama, const YaziBicimi& yazi) {
  const RaporKolonu& kolon = rapor.Kolonlar()[k];
  const std::int64_t enCok = std::numeric_limits<std::int64_t>::max();
  const Hucre dolu = kolon.tur == KolonTuru::Tutar ? Hucre(Tutar::Hamdan(enCok)) : Hucre(enCok);
  const std::string metin = HucreMetni(dolu, kolon, gruplama);
  const auto harf = std::min(metin.size(), std::size_t(rapor.GerekliEn(k, gruplama)));
  return MetinEni(std::string_view(metin).substr(metin.size() - harf), yazi);
}

// The labels of the sums, in their column.
double EtiketEni(const Rapor& rapor, std::size_t k, const YaziBicimi& yazi) {
  if (rapor.EtiketKolonu() != k) return 0;
  return std::max(MetinEni(rapor.toplamEtiketi, yazi), MetinEni(rapor.sayfaToplamEtiketi, yazi));
}

bool Imzalanir(const RaporKolonu& kolon) {
  return kolon.tur == KolonTuru::Bos;
}

// Millimetres that the letters cannot have.
double ImzaPayi(const Rapor& rapor) {
  return ImzaEni * double(std::ranges::count_if(rapor.Kolonlar(), Imzalanir));
}

double MetinKolonuEni(const Rapor& rapor, std::size_t k, const YaziBicimi& yazi) {
  double enUzun = EtiketEni(rapor, k, yazi);
  for (std::size_t i = 0; i < rapor.Satirlar().size(); ++i) {
    const Hucre hucre = rapor.Satirlar().Hucresi(i, k);
    if (const auto* metin = std::get_if<std::string>(&hucre)) enUzun = std::max(enUzun, MetinEni(*metin, yazi));
  }
  const double bildirilen = rapor.Kolonlar()[k].en * OrtalamaHarf * PuntoMm;
  return std::min(enUzun, std::max(bildirilen, DarHucre * enUzun));
}

// Digits are all equally wide, names of months are not.
double TarihEni(KolonTuru tur, const YaziBicimi& yazi) {
  double en = 0;
  for (int ay = 1; ay <= 12; ++ay) en = std::max(en, MetinEni(TarihMetni(Tarih(2000, ay, 28), tur), yazi));
  return en;
}

double IcerikEni(const Rapor& rapor, std::size_t k, int gruplama, const YaziBicimi& yazi) {
  const RaporKolonu& kolon = rapor.Kolonlar()[k];
  switch (kolon.tur) {
    case KolonTuru::Metin:
      return MetinKolonuEni(rapor, k, yazi);
    case KolonTuru::Tam:
    case KolonTuru::Tutar:
      return SayiEni(rapor, k, gruplama, yazi);
    case KolonTuru::Tarih:
    case KolonTuru::KisaTarih:
    case KolonTuru::UzunTarih:
    case KolonTuru::GunAy:
    case KolonTuru::Gun:
    case KolonTuru::Ay:
      return TarihEni(kolon.tur, yazi);
    case KolonTuru::Bos:
      break;
  }
  return 0;
}

// The head in two lines of which none is cut: broken where the text printer breaks it, or later.
IkiSatir TamBaslik(const RaporKolonu& kolon) {
  const auto harfler = [](const IkiSatir& b) { return HarfSayisi(b[0]) + HarfSayisi(b[1]); };
  const std::size_t harf = HarfSayisi(kolon.baslik);
  int en = std::max(kolon.en, 1);
  IkiSatir baslik = BaslikBol(kolon.baslik, en);
  while (harfler(baslik) + 1 < harf) baslik = BaslikBol(kolon.baslik, ++en);
  return baslik;
}

KagitBicimi Kagit(const Rapor& rapor, int gruplama) {
  KagitBicimi kagit;
  kagit.gruplama = gruplama;
  for (const auto& kolon : rapor.Kolonlar()) {
    kagit.basliklar.push_back(TamBaslik(kolon));
    if (!kagit.basliklar.back()[0].empty()) kagit.baslikBoyu = 2;
  }
  return kagit;
}

std::vector<double> Enler(const Rapor& rapor, const GrafikDuzeni& duzen, const KagitBicimi& kagit, Ilerleme* ilerleme) {
  const YaziBicimi yazi = BirPunto(duzen, YaziKalinligi::Normal);
  const YaziBicimi kalin = BirPunto(duzen, YaziKalinligi::Kalin);
  std::vector<double> enler;
  Asama asama(ilerleme, rapor.Kolonlar().size());
  for (std::size_t k = 0; k < rapor.Kolonlar().size(); ++k) {
    asama.Adim();
    double en = IcerikEni(rapor, k, kagit.gruplama, yazi);
    if (!Imzalanir(rapor.Kolonlar()[k]))
      for (const auto& baslik : kagit.basliklar[k]) en = std::max(en, MetinEni(baslik, kalin));
    enler.push_back(en);
  }
  return enler;
}

double TabloEni(const std::vector<double>& enler) {
  double toplam = KolonBoslugu * PuntoMm * (std::max(1.0, double(enler.size())) - 1);
  for (const double en : enler) toplam += en;
  return toplam;
}

double KullanilirEn(KagitYonu yon) {
  return A4(yon).en - 2 * KenarMm;
}

// What is to be set: the width of its letters, and the millimetres that are kept for the pen.
struct TabloOlcusu {
  double en = 0;
  double imza = 0;
};

// The size at which a table of this width fills the sheet, narrowing left out.
double DoluPunto(KagitYonu yon, const TabloOlcusu& tablo) {
  return tablo.en > 0 ? (KullanilirEn(yon) - tablo.imza) / tablo.en : std::numeric_limits<double>::max();
}

KagitYonu YonSec(const GrafikDuzeni& duzen, const TabloOlcusu& tablo) {
  if (duzen.yon) return *duzen.yon;
  const bool sigar = DoluPunto(KagitYonu::Dikey, tablo) >= std::min(duzen.punto, RahatPunto);
  return sigar ? KagitYonu::Dikey : KagitYonu::Yatay;
}

// Size and narrowness of the letters.
void YaziKur(GrafikBicimi& bicim, const GrafikDuzeni& duzen, const TabloOlcusu& tablo) {
  const double dolu = DoluPunto(bicim.yon, tablo);
  bicim.yazi = {.punto = std::min(duzen.punto, dolu), .aile = duzen.aile};
  if (dolu >= EnKucukPunto || dolu >= duzen.punto) return;
  bicim.yazi.genislik = std::max(EnDarYazi, dolu / EnKucukPunto);
  bicim.yazi.punto = dolu / bicim.yazi.genislik;
  bicim.okunur = bicim.yazi.punto >= EnKucukPunto * 0.999;
}

// Room that is left goes to the pen first, then between the columns.
void KolonlariYerlestir(GrafikBicimi& bicim, const Rapor& rapor, const std::vector<double>& enler) {
  const double olcek = bicim.yazi.punto * bicim.yazi.genislik;
  const double aralik = std::max(1.0, double(enler.size()) - 1);
  const double imza = ImzaPayi(rapor);
  double bos = std::max(0.0, KullanilirEn(bicim.yon) - TabloEni(enler) * olcek - imza);
  const double ekImza = imza > 0 ? std::min(bos * ImzaEni / imza, RahatImzaEni - ImzaEni) : 0;
  bos -= ekImza * imza / ImzaEni;
  const double bosluk = KolonBoslugu * PuntoMm * olcek + std::min(bos / aralik, EnCokEkBosluk);
  double x = 0;
  for (std::size_t k = 0; k < enler.size(); ++k) {
    const double en = Imzalanir(rapor.Kolonlar()[k]) ? ImzaEni + ekImza : enler[k] * olcek;
    bicim.kolonlar.push_back({x, en});
    bicim.en = x + en;
    x = bicim.en + bosluk;
  }
}

double UstSatirEni(const UstSatir& satir, const YaziBicimi& yazi) {
  double en = (int(satir.sayfaNo) + int(satir.sayfaSayisi)) * MetinEni("/0000", yazi);
  for (const auto& parca : {satir.sol, satir.orta, satir.sag})
    if (!parca.empty()) en += MetinEni(parca, yazi) + yazi.punto * PuntoMm;
  return en;
}

}  // namespace

GrafikBicimi GrafikBicimle(const Rapor& rapor, const GrafikDuzeni& duzen, Ilerleme* ilerleme) {
  GrafikBicimi bicim;
  bicim.kagit = Kagit(rapor, BinlikGruplama);
  auto enler = Enler(rapor, duzen, bicim.kagit, ilerleme);
  const KagitYonu genis = duzen.yon.value_or(KagitYonu::Yatay);
  TabloOlcusu tablo{TabloEni(enler), ImzaPayi(rapor)};
  if (DoluPunto(genis, tablo) < std::min(duzen.punto, EnKucukPunto * EnDarYazi)) {
    bicim.kagit.gruplama = 0;
    enler = Enler(rapor, duzen, bicim.kagit, ilerleme);
    tablo.en = TabloEni(enler);
  }
  bicim.yon = YonSec(duzen, tablo);
  YaziKur(bicim, duzen, tablo);
  KolonlariYerlestir(bicim, rapor, enler);
  for (const auto& satir : rapor.ustSatirlar) bicim.en = std::max(bicim.en, UstSatirEni(satir, bicim.yazi));
  bicim.en = std::max(bicim.en, MetinEni(rapor.baslik, bicim.yazi) * 1.5);
  bicim.en = std::min(bicim.en, KullanilirEn(bicim.yon));
  bicim.satirBoyu = SatirBoyu(bicim.yazi) * SatirAraligi;
  if (tablo.imza > 0) bicim.kagit.satirBoyu = std::max(1.0, ImzaBoyu / bicim.satirBoyu);
  bicim.satirSayisi = int((A4(bicim.yon).boy - 2 * KenarMm) / bicim.satirBoyu);
  return bicim;
}

}  // namespace belvani
