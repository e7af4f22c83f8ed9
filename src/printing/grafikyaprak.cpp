#include "printing/grafikyaprak.h"

#include <algorithm>
#include <span>

#include "core/asama.h"
#include "printing/grafikyazici.h"

namespace belvani {
namespace {

constexpr double EnBuyukPunto = 10;
constexpr double BaslikOrani = 1.25;   // title to rows, in size
constexpr double EtiketAraligi = 1.5;  // millimetres between label and value
constexpr double BloklarArasi = 4;     // millimetres, at least
constexpr double EnCokAra = 24;        // and at most
constexpr double CizgiPayi = 0.5;      // lines that a rule takes
constexpr double SatirAraligi = 1.1;   // of the height of letters
constexpr KagitBoyu Kagit = A4(KagitYonu::Dikey);
constexpr std::size_t BlokSayisi = GrafikYapraklar::BlokSayisi;

using Blok = std::span<const BlokSatiri>;
using BlokEni = GrafikYapraklar::BlokEni;

// How the sheet is divided, and how many blocks of a slip stand side by side.
struct Bolunme {
  int sutun, satir;
  std::size_t yanYana;
};
constexpr Bolunme BolunmeBul(int sayfada) {
  return sayfada == 4 ? Bolunme{2, 2, 2} : sayfada == 2 ? Bolunme{1, 2, BlokSayisi} : Bolunme{1, 1, 2};
}

// Left, right, and the two halves of what the text form leaves out.
std::array<Blok, BlokSayisi> Bloklar(const Yaprak& yaprak) {
  const Blok ek = yaprak.ek;
  const std::size_t yarim = (ek.size() + 1) / 2;
  return {yaprak.sol, yaprak.sag, ek.first(yarim), ek.subspan(yarim)};
}

// A label without what fills it up on fixed-width printers.
std::string_view Etiket(std::string_view etiket) {
  return etiket.substr(0, etiket.find_last_not_of(" *:") + 1);
}

double SatirSayisi(const Yaprak& yaprak, std::size_t yanYana) {
  const auto bloklar = Bloklar(yaprak);
  std::size_t satir = 2 + yaprak.bas.size() + yaprak.cumleler.size();
  double cizgi = 1;
  for (std::size_t b = 0; b < BlokSayisi; b += yanYana) {
    std::size_t boy = 0;
    for (std::size_t k = b; k < b + yanYana; ++k) boy = std::max(boy, bloklar[k].size());
    satir += boy;
    ++cizgi;
  }
  return double(satir) + cizgi * CizgiPayi;
}

// All words of a slip that are no values. Slips of the same words differ in their values alone.
std::string Sozler(const Yaprak& yaprak) {
  std::string sozler = yaprak.altBaslik;
  for (const auto* blok : {&yaprak.bas, &yaprak.sol, &yaprak.sag, &yaprak.ek}) {
    sozler += '\f';
    for (const auto& satir : *blok) (sozler += satir.etiket) += '\n';
  }
  for (const auto& cumle : yaprak.cumleler) (sozler += '\n') += cumle;
  return sozler;
}

// Draws one slip line by line from the upper edge of its place.
class YaprakKalemi {
 public:
  // `kalip` takes the words, `tuval` the values.
  YaprakKalemi(Tuval& tuval, Tuval& kalip, const Dikdortgen& yer, const YaziBicimi& yazi)
      : tuval_(tuval), kalip_(kalip), yer_(yer), yazi_(yazi), satirBoyu_(SatirBoyu(yazi) * SatirAraligi), y_(yer.y) {}

  void Satir(std::string_view metin, const YaziBicimi& yazi, MetinHizasi hiza) {
    Kutuya(kalip_, 0, yer_.en, metin, yazi, hiza);
    y_ += satirBoyu_;
  }

  void BasSatiri(std::string_view etiket, std::string_view deger, double etiketEni) {
    const double yer = std::min(etiketEni, yer_.en / 2) + EtiketAraligi;
    Kutuya(kalip_, 0, yer - EtiketAraligi, etiket, yazi_, MetinHizasi::Sol);
    Kutuya(tuval_, yer, yer_.en - yer, deger, yazi_, MetinHizasi::Sol);
    y_ += satirBoyu_;
  }

  void Cizgi() {
    const double orta = y_ + CizgiPayi * satirBoyu_ / 2;
    kalip_.Cizgi({yer_.x, orta}, {yer_.x + yer_.en, orta}, InceCizgi);
    y_ += CizgiPayi * satirBoyu_;
  }

  // Blocks side by side, which share the width that they leave free.
  void Blokla(std::span<const Blok> bloklar, std::span<const BlokEni> enler, int paraOndaligi) {
    double bos = yer_.en;
    for (const BlokEni& en : enler) bos -= en.etiket + EtiketAraligi + en.deger;
    const double ara = std::min(EnCokAra, bos / double(bloklar.size() - 1));
    const double ust = y_;
    double x = 0;
    double alt = ust;
    for (std::size_t b = 0; b < bloklar.size(); ++b) {
      y_ = ust;
      const double degerYeri = x + enler[b].etiket + EtiketAraligi;
      for (const BlokSatiri& satir : bloklar[b]) {
        Kutuya(kalip_, x, enler[b].etiket, Etiket(satir.etiket), yazi_, MetinHizasi::Sol);
        Kutuya(tuval_, degerYeri, enler[b].deger, YaprakMetni(satir.deger, paraOndaligi), yazi_, MetinHizasi::Sag);
        y_ += satirBoyu_;
      }
      alt = std::max(alt, y_);
      x = degerYeri + enler[b].deger + ara;
    }
    y_ = alt;
  }

 private:
  void Kutuya(Tuval& nereye, double x, double en, std::string_view metin, const YaziBicimi& yazi, MetinHizasi hiza) {
    MetinKutuya(nereye, {yer_.x + x, y_, en, satirBoyu_}, metin, yazi, hiza);
  }

  Tuval& tuval_;
  Tuval& kalip_;
  const Dikdortgen yer_;
  const YaziBicimi& yazi_;
  const double satirBoyu_;
  double y_;  // upper edge of the line being drawn
};

}  // namespace

GrafikYapraklar::GrafikYapraklar(const YaprakBelgesi& belge, SayfadaYaprak sayfada, Ilerleme* ilerleme)
    : belge_(belge), sayfada_(int(sayfada)) {
  yazi_.punto = EnBuyukPunto;
  const double oran = SigmaOrani(Olc(ilerleme));
  if (oran >= 1) return;
  yazi_.punto *= oran;
  basEtiketi_ *= oran;
  for (BlokEni& en : enler_) en = {en.etiket * oran, en.deger * oran};
}

// Widths of the letters set, in one walk over the slips; gives the lines of the tallest.
double GrafikYapraklar::Olc(Ilerleme* ilerleme) {
  const std::size_t yanYana = BolunmeBul(sayfada_).yanYana;
  double enCokSatir = 0;
  Asama asama(ilerleme, belge_.yapraklar.size());
  for (const auto& yaprak : belge_.yapraklar) {
    asama.Adim();
    enCokSatir = std::max(enCokSatir, SatirSayisi(yaprak, yanYana));
    const auto bloklar = Bloklar(yaprak);
    for (std::size_t b = 0; b < BlokSayisi; ++b)
      for (const auto& satir : bloklar[b]) {
        enler_[b].etiket = std::max(enler_[b].etiket, MetinEni(Etiket(satir.etiket), yazi_));
        enler_[b].deger = std::max(enler_[b].deger, MetinEni(YaprakMetni(satir.deger, belge_.paraOndaligi), yazi_));
      }
    for (const auto& satir : yaprak.bas) basEtiketi_ = std::max(basEtiketi_, MetinEni(Etiket(satir.etiket), yazi_));
  }
  return enCokSatir;
}

// How much smaller letters have to be for the widest blocks and the tallest slip.
double GrafikYapraklar::SigmaOrani(double enCokSatir) const {
  const std::size_t yanYana = BolunmeBul(sayfada_).yanYana;
  const Dikdortgen yer = Yer(0);
  double oran = 1;
  for (std::size_t b = 0; b < BlokSayisi; b += yanYana) {
    double harfEni = 0;
    for (std::size_t k = b; k < b + yanYana; ++k) harfEni += enler_[k].etiket + enler_[k].deger;
    const double bosluk = EtiketAraligi * double(yanYana) + BloklarArasi * double(yanYana - 1);
    oran = std::min(oran, (yer.en - bosluk) / std::max(1.0, harfEni));
  }
  return std::min(oran, yer.boy / std::max(1.0, enCokSatir * SatirBoyu(yazi_) * SatirAraligi));
}

int GrafikYapraklar::SayfaSayisi() const {
  return (int(belge_.yapraklar.size()) + sayfada_ - 1) / sayfada_;
}

// The place of the slip `sira` of a sheet.
Dikdortgen GrafikYapraklar::Yer(int sira) const {
  const Bolunme b = BolunmeBul(sayfada_);
  const double en = Kagit.en / b.sutun;
  const double boy = Kagit.boy / b.satir;
  const int sutun = sira % b.sutun;
  const int satir = sira / b.sutun;
  return {en * sutun + KenarMm, boy * satir + KenarMm, en - 2 * KenarMm, boy - 2 * KenarMm};
}

void GrafikYapraklar::SayfaCiz(int no, Tuval& tuval) const {
  const Bolunme b = BolunmeBul(sayfada_);
  tuval.SayfaBasla(Kagit);
  if (b.satir > 1) tuval.Kalip("kesim").Cizgi({0, Kagit.boy / 2}, {Kagit.en, Kagit.boy / 2}, InceCizgi);
  if (b.sutun > 1) tuval.Kalip("kesim").Cizgi({Kagit.en / 2, 0}, {Kagit.en / 2, Kagit.boy}, InceCizgi);
  const int ilk = (no - 1) * sayfada_;
  const int son = std::min(ilk + sayfada_, int(belge_.yapraklar.size()));
  for (int i = ilk; i < son; ++i) {
    const Yaprak yaprak = belge_.yapraklar[std::size_t(i)];
    YaprakCiz(yaprak, Yer(i - ilk), tuval, tuval.Kalip(std::to_string(i - ilk) + Sozler(yaprak)));
  }
  tuval.SayfaBitir();
}

void GrafikYapraklar::YaprakCiz(const Yaprak& yaprak, const Dikdortgen& yer, Tuval& tuval, Tuval& kalip) const {
  const std::size_t yanYana = BolunmeBul(sayfada_).yanYana;
  YaprakKalemi kalem(tuval, kalip, yer, yazi_);
  YaziBicimi baslik = yazi_;
  baslik.punto *= BaslikOrani;
  baslik.kalinlik = YaziKalinligi::Kalin;
  kalem.Satir(belge_.baslik, baslik, MetinHizasi::Orta);
  kalem.Satir(yaprak.altBaslik, yazi_, MetinHizasi::Orta);
  for (const auto& satir : yaprak.bas)
    kalem.BasSatiri(Etiket(satir.etiket), YaprakMetni(satir.deger, belge_.paraOndaligi), basEtiketi_);
  const auto bloklar = Bloklar(yaprak);
  for (std::size_t b = 0; b < BlokSayisi; b += yanYana) {
    kalem.Cizgi();
    kalem.Blokla(std::span(bloklar).subspan(b, yanYana), std::span(enler_).subspan(b, yanYana), belge_.paraOndaligi);
  }
  kalem.Cizgi();
  for (const auto& cumle : yaprak.cumleler) kalem.Satir(cumle, yazi_, MetinHizasi::Sol);
}

std::string GrafikYapraklar::Uyari() const {
  if (yazi_.punto >= EnKucukPunto) return {};
  return "Yapraklar kağıda sığmayacak kadar büyük: okunması güç, çok küçük harflerle basıldı.";
}

}  // namespace belvani
