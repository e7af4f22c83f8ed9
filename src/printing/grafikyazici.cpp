#include "printing/grafikyazici.h"

#include <algorithm>

#include "printing/sayfalayici.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr BoyaRengi AcikGri = 0xEDEDED;
constexpr double BaslikOrani = 1.25;  // title to rows, in size
constexpr double BlokAraligi = 3;     // millimetres between label and value of the end block

MetinHizasi Hiza(const RaporKolonu& kolon) {
  return kolon.Sayisal() ? MetinHizasi::Sag : MetinHizasi::Sol;
}

// Draws a page.
class RaporKalemi {
 public:
  RaporKalemi(const Rapor& rapor, const GrafikDuzeni& duzen, const GrafikBicimi& bicim, int sayfaSayisi, Tuval& tuval)
      : rapor_(rapor),
        duzen_(duzen),
        tuval_(tuval),
        bas_(tuval.Kalip("baş")),
        bicim_(bicim),
        kalin_(bicim.yazi),
        sayfaSayisi_(std::size_t(sayfaSayisi)) {
    kalin_.kalinlik = YaziKalinligi::Kalin;
    for (const auto& b : rapor_.sonBlok) {
      etiketEni_ = std::max(etiketEni_, MetinEni(b.etiket, bicim_.yazi));
      degerEni_ = std::max(degerEni_, MetinEni(BlokMetni(b, rapor_), bicim_.yazi));
    }
  }

  void SayfaCiz(const Sayfa& sayfa) {
    y_ = KenarMm;
    for (const SayfaSatiri& satir : sayfa.satirlar) {
      boy_ = SatirBoyu(satir, bicim_.kagit) * bicim_.satirBoyu;
      SatirCiz(sayfa, satir);
      y_ += boy_;
    }
    if (duzen_.kolonArasi == KolonArasi::DikCizgi) DikCizgiler(sayfa);
  }

 private:
  void SatirCiz(const Sayfa& sayfa, const SayfaSatiri& satir) {
    switch (satir.tur) {
      case SayfaSatirTuru::Baslik:
        return BaslikCiz();
      case SayfaSatirTuru::UstSatir:
        return UstCiz(rapor_.ustSatirlar[satir.sira], sayfa.no);
      case SayfaSatirTuru::KolonBasligi:
        return KolonBasliklari(satir.sira);
      case SayfaSatirTuru::Cizgi: {
        const double orta = y_ + bicim_.satirBoyu / 2;
        return yzccnt(tuval_).YzcCizgi(KenarMm, orta, KenarMm + TabloEni(), orta);
      }
      case SayfaSatirTuru::Bos:
        return;
      case SayfaSatirTuru::Govde:
        return Hucreler(rapor_.Satirlar()[satir.sira].hucreler);
      case SayfaSatirTuru::SayfaToplami:
        return ToplamSatiri(rapor_.SayfaToplami(sayfa.ilkKayit, satir.sira));
      case SayfaSatirTuru::Nakil:
      case SayfaSatirTuru::Toplam:
        return ToplamSatiri(rapor_.AraToplam(satir.sira));
      case SayfaSatirTuru::Blok:
        return BlokCiz(rapor_.sonBlok[satir.sira]);
    }
  }

  double TabloEni() const { return bicim_.kolonlar.empty() ? 0 : bicim_.kolonlar.back().x + bicim_.kolonlar.back().en; }

  // The box of a column, or of any other stretch of the line.
  Dikdortgen Yer(double x, double en) const { return {KenarMm + x, y_, en, boy_}; }

  void ToplamSatiri(const std::vector<Hucre>& toplamlar) {
    tuval_.DoluKutu({KenarMm, y_, TabloEni(), boy_}, AcikGri);
    Hucreler(toplamlar);
  }

  void BaslikCiz() {
    YaziBicimi yazi = kalin_;
    yazi.punto *= BaslikOrani;
    MetinKutuya(bas_, Yer(0, bicim_.en), rapor_.baslik, yazi, MetinHizasi::Orta);
  }

  // Left, middle and right part. Where they would touch, all are printed narrower and the middle one moves.
  void UstCiz(const UstSatir& ust, int sayfaNo) {
    const std::string sag = UstSagMetni(ust, sayfaNo, sayfaSayisi_);
    YaziBicimi yazi = bicim_.yazi;
    const auto en = [&](const std::string& metin) { return MetinEni(metin, yazi); };
    const double ara = yazi.punto * PuntoMm;
    const double gereken = en(ust.sol) + en(ust.orta) + en(sag) + 2 * ara;
    if (gereken > bicim_.en) yazi.genislik *= (bicim_.en - 2 * ara) / (gereken - 2 * ara);
    const double enSol = ust.sol.empty() ? 0 : en(ust.sol) + ara;
    const double enSag = bicim_.en - en(sag) - ara - en(ust.orta);
    const double orta = std::max(enSol, std::min((bicim_.en - en(ust.orta)) / 2, enSag));
    yzccnt kalem(ust.sayfaNo || ust.sayfaSayisi ? tuval_ : bas_, yazi);
    const double y = y_ + (boy_ - SatirBoyu(yazi)) / 2;
    const auto yaz = [&](const std::string& metin, double x, MetinHizasi hiza) {
      if (!metin.empty()) kalem.YzcHizali(metin, KenarMm + x, y, bicim_.en, 0, yazi.kalinlik, hiza);
    };
    yaz(ust.sol, 0, MetinHizasi::Sol);
    yaz(ust.orta, orta, MetinHizasi::Sol);
    yaz(sag, bicim_.en, MetinHizasi::Sag);
  }

  void KolonBasliklari(std::size_t sira) {
    bas_.DoluKutu({KenarMm, y_, TabloEni(), bicim_.satirBoyu}, AcikGri);
    for (std::size_t k = 0; k < bicim_.kolonlar.size(); ++k)
      MetinKutuya(bas_, Yer(bicim_.kolonlar[k].x, bicim_.kolonlar[k].en), bicim_.kagit.basliklar[k][sira], kalin_,
                  Hiza(rapor_.Kolonlar()[k]));
  }

  void Hucreler(const std::vector<Hucre>& hucreler) {
    for (std::size_t k = 0; k < bicim_.kolonlar.size(); ++k) {
      const RaporKolonu& kolon = rapor_.Kolonlar()[k];
      MetinKutuya(tuval_, Yer(bicim_.kolonlar[k].x, bicim_.kolonlar[k].en),
                  HucreMetni(hucreler[k], kolon, bicim_.kagit.gruplama), bicim_.yazi, Hiza(kolon));
    }
  }

  void BlokCiz(const BlokSatiri& blok) {
    const double sigan = bicim_.en < etiketEni_ + BlokAraligi + degerEni_ ? A4(bicim_.yon).en - 2 * KenarMm : bicim_.en;
    const double degerYeri = std::min(etiketEni_ + BlokAraligi, std::max(0.0, sigan - degerEni_));
    MetinKutuya(tuval_, Yer(0, degerYeri), blok.etiket, bicim_.yazi, MetinHizasi::Sol);
    MetinKutuya(tuval_, Yer(degerYeri, degerEni_), BlokMetni(blok, rapor_), bicim_.yazi, MetinHizasi::Sag);
  }

  // Between the columns, over each stretch of lines that have columns.
  void DikCizgiler(const Sayfa& sayfa) {
    const auto tablo = [&](std::size_t i) { return i < sayfa.satirlar.size() && TabloSatiriMi(sayfa.satirlar[i].tur); };
    const auto cizgi = [&](std::size_t i) {
      return i < sayfa.satirlar.size() && sayfa.satirlar[i].tur == SayfaSatirTuru::Cizgi;
    };
    std::vector<double> yerler{KenarMm};
    for (const SayfaSatiri& satir : sayfa.satirlar)
      yerler.push_back(yerler.back() + SatirBoyu(satir, bicim_.kagit) * bicim_.satirBoyu);
    for (std::size_t i = 0; i < sayfa.satirlar.size(); ++i) {
      if (!tablo(i)) continue;
      const std::size_t bas = i;
      while (tablo(i) || (cizgi(i) && tablo(i + 1))) ++i;
      const double yarim = bicim_.satirBoyu / 2;
      DikCiz(yerler[bas] - (bas > 0 && cizgi(bas - 1) ? yarim : 0), yerler[i] + (cizgi(i) ? yarim : 0));
    }
  }

  void DikCiz(double ust, double alt) {
    Tuval& kalip = tuval_.Kalip("kolon çizgileri " + std::to_string(ust) + " " + std::to_string(alt));
    for (std::size_t k = 1; k < bicim_.kolonlar.size(); ++k) {
      const KolonYeri& onceki = bicim_.kolonlar[k - 1];
      const double x = KenarMm + (onceki.x + onceki.en + bicim_.kolonlar[k].x) / 2;
      kalip.Cizgi({x, ust}, {x, alt}, InceCizgi);
    }
  }

  const Rapor& rapor_;
  const GrafikDuzeni& duzen_;
  Tuval& tuval_;
  Tuval& bas_;  // what stands above the rows of every page, at one place
  const GrafikBicimi& bicim_;
  YaziBicimi kalin_;
  std::size_t sayfaSayisi_;
  double etiketEni_ = 0;
  double degerEni_ = 0;
  double y_ = 0;    // upper edge of the line being drawn
  double boy_ = 0;  // its height
};

}  // namespace

GrafikRapor::GrafikRapor(const Rapor& rapor, GrafikDuzeni duzen, Ilerleme* ilerleme)
    : rapor_(rapor), duzen_(std::move(duzen)), bicim_(GrafikBicimle(rapor, duzen_, ilerleme)) {
  sayfalar_ = SayfalaraBol(rapor_, bicim_.kagit, {.satirSayisi = bicim_.satirSayisi, .satirArasi = duzen_.satirArasi});
}

int GrafikRapor::SayfaSayisi() const {
  return int(sayfalar_.size()) + (EkKendiSayfasinda() ? 1 : 0);
}

// Where the last page has no room for it.
bool GrafikRapor::EkKendiSayfasinda() const {
  if (!duzen_.ek || sayfalar_.empty()) return false;
  const double dolu = (SayfaBoyu(sayfalar_.back(), bicim_.kagit) + 1) * bicim_.satirBoyu;
  return dolu + duzen_.ek->boy > A4(bicim_.yon).boy - 2 * KenarMm;
}

void GrafikRapor::SayfaCiz(int no, Tuval& tuval) const {
  tuval.SayfaBasla(A4(bicim_.yon));
  const bool rapordan = no <= int(sayfalar_.size());
  double dolu = 0;
  if (rapordan) {
    const Sayfa& sayfa = sayfalar_[std::size_t(no - 1)];
    RaporKalemi(rapor_, duzen_, bicim_, SayfaSayisi(), tuval).SayfaCiz(sayfa);
    dolu = (SayfaBoyu(sayfa, bicim_.kagit) + 1) * bicim_.satirBoyu;
  }
  if (duzen_.ek && no == SayfaSayisi())
    duzen_.ek->ciz(tuval, {KenarMm, KenarMm + dolu, A4(bicim_.yon).en - 2 * KenarMm, duzen_.ek->boy});
  tuval.SayfaBitir();
}

std::string GrafikRapor::Uyari() const {
  if (bicim_.okunur || sayfalar_.empty()) return {};
  return "Liste kağıda sığmayacak kadar geniş: okunması güç, çok küçük harflerle basıldı. Kolon sayısını azaltınız.";
}

}  // namespace belvani
