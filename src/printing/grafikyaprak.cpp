#include "printing/grafikyaprak.h"

#include <algorithm>
#include <array>
#include <span>

#include "printing/grafikyazici.h"

namespace belvani {
namespace {

constexpr double EnBuyukPunto = 8;
constexpr double BaslikOrani = 1.25;  // title to rows, in size
constexpr double EtiketAraligi = 2;   // millimetres between label and value
constexpr double BloklarArasi = 4;    // millimetres, at least
constexpr double YapraklarArasi = 6;  // millimetres, with a line to cut along in the middle
constexpr double CizgiPayi = 0.5;     // lines that a rule takes
constexpr std::size_t BlokSayisi = 4;
constexpr KagitBoyu Kagit = A4(KagitYonu::Dikey);
constexpr double SayfaEni = Kagit.en - 2 * KenarMm;
constexpr double SayfaBoyu = Kagit.boy - 2 * KenarMm;

using Blok = std::span<const BlokSatiri>;

// Side by side: left, right, and the two halves of what the text form leaves out.
std::array<Blok, BlokSayisi> Bloklar(const Yaprak& yaprak) {
  const Blok ek = yaprak.ek;
  const std::size_t yarim = (ek.size() + 1) / 2;
  return {yaprak.sol, yaprak.sag, ek.first(yarim), ek.subspan(yarim)};
}

// A label without what fills it up on fixed-width printers.
std::string_view Etiket(std::string_view etiket) {
  return etiket.substr(0, etiket.find_last_not_of(" *:") + 1);
}

double SatirSayisi(const Yaprak& yaprak) {
  std::size_t blok = 0;
  for (const Blok& b : Bloklar(yaprak)) blok = std::max(blok, b.size());
  return double(2 + yaprak.bas.size() + blok + yaprak.cumleler.size()) + 2 * CizgiPayi;
}

// Millimetres that labels and values of a block take, over all slips.
struct BlokEni {
  double etiket = 0;
  double deger = 0;

  double Tamami() const { return etiket == 0 && deger == 0 ? 0 : etiket + EtiketAraligi + deger; }
};

class YaprakCizici {
 public:
  YaprakCizici(const YaprakBelgesi& belge, Tuval& tuval) : belge_(belge), tuval_(tuval) {
    yazi_.punto = EnBuyukPunto;
    Olc();
    const double oran = SigmaOrani();
    if (oran < 1) {
      yazi_.punto *= oran;
      Olc();
    }
    satirBoyu_ = SatirBoyu(yazi_);
  }

  GrafikYaprakSonucu Yaz() {
    GrafikYaprakSonucu sonuc;
    for (const auto& yaprak : belge_.yapraklar) {
      const double boy = SatirSayisi(yaprak) * satirBoyu_;
      const bool sigar = sonuc.sayfaSayisi > 0 && y_ + YapraklarArasi + boy <= KenarMm + SayfaBoyu;
      sigar ? AraCiz() : SayfaBasla(sonuc.sayfaSayisi++);
      YaprakCiz(yaprak);
    }
    if (sonuc.sayfaSayisi > 0) tuval_.SayfaBitir();
    if (yazi_.punto < EnKucukPunto)
      sonuc.uyari = "Yapraklar kağıda sığmayacak kadar büyük: okunması güç, çok küçük harflerle basıldı.";
    return sonuc;
  }

 private:
  // How much smaller letters have to be for the widest blocks and the tallest slip.
  double SigmaOrani() const {
    double harfEni = 0;
    for (const auto& en : enler_) harfEni += en.etiket + en.deger;
    double satir = 0;
    for (const auto& yaprak : belge_.yapraklar) satir = std::max(satir, SatirSayisi(yaprak));
    const double boy = satir * SatirBoyu(yazi_);
    constexpr double bosluk = EtiketAraligi * BlokSayisi + BloklarArasi * (BlokSayisi - 1);
    return std::min({1.0, (SayfaEni - bosluk) / std::max(1.0, harfEni), SayfaBoyu / std::max(1.0, boy)});
  }

  void Olc() {
    enler_ = {};
    basEtiketi_ = 0;
    for (const auto& yaprak : belge_.yapraklar) {
      const auto bloklar = Bloklar(yaprak);
      for (std::size_t b = 0; b < BlokSayisi; ++b)
        for (const auto& satir : bloklar[b]) {
          enler_[b].etiket = std::max(enler_[b].etiket, MetinEni(Etiket(satir.etiket), yazi_));
          enler_[b].deger = std::max(enler_[b].deger, MetinEni(Deger(satir), yazi_));
        }
      for (const auto& satir : yaprak.bas) basEtiketi_ = std::max(basEtiketi_, MetinEni(Etiket(satir.etiket), yazi_));
    }
  }

  std::string Deger(const BlokSatiri& satir) const { return YaprakMetni(satir.deger, belge_.paraOndaligi); }

  void SayfaBasla(int oncekiler) {
    if (oncekiler > 0) tuval_.SayfaBitir();
    tuval_.SayfaBasla(Kagit);
    y_ = KenarMm;
  }

  void AraCiz() {
    const double orta = y_ + YapraklarArasi / 2;
    tuval_.Cizgi({0, orta}, {Kagit.en, orta}, InceCizgi);
    y_ += YapraklarArasi;
  }

  void YaprakCiz(const Yaprak& yaprak) {
    Yazi baslik = yazi_;
    baslik.punto *= BaslikOrani;
    baslik.kalinlik = YaziKalinligi::Kalin;
    Satir(belge_.baslik, baslik, MetinHizasi::Orta);
    Satir(yaprak.altBaslik, yazi_, MetinHizasi::Orta);
    for (const auto& satir : yaprak.bas) BasSatiri(satir);
    CizgiCiz();
    BloklariCiz(Bloklar(yaprak));
    CizgiCiz();
    for (const auto& cumle : yaprak.cumleler) Satir(cumle, yazi_, MetinHizasi::Sol);
  }

  void Satir(const std::string& metin, const Yazi& yazi, MetinHizasi hiza) {
    Kutuya(0, SayfaEni, metin, yazi, hiza);
    y_ += satirBoyu_;
  }

  void BasSatiri(const BlokSatiri& satir) {
    const double yer = std::min(basEtiketi_, SayfaEni / 2) + EtiketAraligi;
    Kutuya(0, yer - EtiketAraligi, Etiket(satir.etiket), yazi_, MetinHizasi::Sol);
    Kutuya(yer, SayfaEni - yer, Deger(satir), yazi_, MetinHizasi::Sol);
    y_ += satirBoyu_;
  }

  void CizgiCiz() {
    const double orta = y_ + CizgiPayi * satirBoyu_ / 2;
    tuval_.Cizgi({KenarMm, orta}, {KenarMm + SayfaEni, orta}, InceCizgi);
    y_ += CizgiPayi * satirBoyu_;
  }

  // The blocks share the width that they leave free.
  void BloklariCiz(const std::array<Blok, BlokSayisi>& bloklar) {
    double bos = SayfaEni;
    for (const auto& en : enler_) bos -= en.Tamami();
    const double ust = y_;
    double x = 0;
    double alt = ust;
    for (std::size_t b = 0; b < BlokSayisi; ++b) {
      y_ = ust;
      for (const auto& satir : bloklar[b]) {
        Kutuya(x, enler_[b].etiket, Etiket(satir.etiket), yazi_, MetinHizasi::Sol);
        Kutuya(x + enler_[b].etiket + EtiketAraligi, enler_[b].deger, Deger(satir), yazi_, MetinHizasi::Sag);
        y_ += satirBoyu_;
      }
      alt = std::max(alt, y_);
      x += enler_[b].Tamami() + bos / (BlokSayisi - 1);
    }
    y_ = alt;
  }

  void Kutuya(double x, double en, std::string_view metin, const Yazi& yazi, MetinHizasi hiza) {
    MetinKutuya(tuval_, {KenarMm + x, y_, en, satirBoyu_}, metin, yazi, hiza);
  }

  const YaprakBelgesi& belge_;
  Tuval& tuval_;
  Yazi yazi_;
  std::array<BlokEni, BlokSayisi> enler_;
  double basEtiketi_ = 0;
  double satirBoyu_ = 0;
  double y_ = 0;  // upper edge of the line being drawn
};

}  // namespace

GrafikYaprakSonucu GrafikYapraklari(const YaprakBelgesi& belge, Tuval& tuval) {
  return YaprakCizici(belge, tuval).Yaz();
}

}  // namespace belvani
