#include "printing/sayfalayici.h"

namespace belvani {
namespace {

using Tur = SayfaSatirTuru;

class Sayfalayici {
 public:
  Sayfalayici(const Rapor& rapor, const KagitBicimi& bicim, const SayfaDuzeni& duzen)
      : rapor_(rapor), bicim_(bicim), duzen_(duzen) {}

  std::vector<Sayfa> Bol() {
    const RaporSatirlari& satirlar = rapor_.Satirlar();
    if (satirlar.empty() && !rapor_.Kolonlar().empty()) Basla(0);
    for (std::size_t i = 0; i < satirlar.size(); ++i) {
      if (satirSayaci_ == 0)
        Basla(i);
      else
        AraKoy();
      Koy(Tur::Govde, i);
      SatiriSay();
      const bool son = i + 1 == satirlar.size();
      if (!son && (Dolu() || satirlar.YeniSayfalar()[i + 1])) Bitir(Tur::Nakil, i + 1);
    }
    if (!satirlar.empty()) {
      Bitir(Tur::Toplam, satirlar.size());
      BlokKoy();
    }
    return std::move(sayfalar_);
  }

 private:
  void Koy(Tur tur, std::size_t sira = 0) { sayfalar_.back().satirlar.push_back({tur, sira}); }

  void Basla(std::size_t ilkKayit) {
    sayfalar_.push_back({.no = int(sayfalar_.size()) + 1, .satirlar = {}, .ilkKayit = ilkKayit});
    Koy(Tur::Baslik);
    for (std::size_t i = 0; i < rapor_.ustSatirlar.size(); ++i) Koy(Tur::UstSatir, i);
    Koy(Tur::Cizgi);
    for (std::size_t i = 2 - std::size_t(bicim_.baslikBoyu); i < 2; ++i) Koy(Tur::KolonBasligi, i);
    Koy(Tur::Cizgi);
    satirSayaci_ = double(sayfalar_.back().satirlar.size());
  }

  void AraKoy() {
    switch (duzen_.satirArasi) {
      case SatirArasi::CizgiCek:
        return Koy(Tur::Cizgi);
      case SatirArasi::BosSatir:
        return Koy(Tur::Bos);
      case SatirArasi::Hicbiri:
        return;
    }
  }

  // The separator counts with the row above it, though it is drawn only when another row follows.
  void SatiriSay() { satirSayaci_ += bicim_.satirBoyu + (duzen_.satirArasi == SatirArasi::Hicbiri ? 0 : 1); }

  bool Dolu() const { return satirSayaci_ >= duzen_.satirSayisi - SayfaDibiSatirlari; }

  void Bitir(Tur toplamTuru, std::size_t satirSayisi) {
    Koy(Tur::Cizgi);
    if (rapor_.ToplamVar()) {
      ToplamlariKoy(toplamTuru, satirSayisi);
      Koy(Tur::Cizgi);
    }
    satirSayaci_ = 0;
  }

  void ToplamlariKoy(Tur toplamTuru, std::size_t satirSayisi) {
    const bool sayfalik = !rapor_.sayfaToplamEtiketi.empty();
    if (sayfalik && (toplamTuru == Tur::Nakil || sayfalar_.size() > 1)) Koy(Tur::SayfaToplami, satirSayisi);
    if (!sayfalik || toplamTuru == Tur::Toplam) Koy(toplamTuru, satirSayisi);
  }

  void BlokKoy() {
    const double gerekli = SayfaBoyu(sayfalar_.back(), bicim_) + double(rapor_.sonBlok.size());
    // The last line of a page stays free: with it printed, a form feed would throw a blank page.
    if (!rapor_.sonBlok.empty() && gerekli >= duzen_.satirSayisi) Basla(rapor_.Satirlar().size());
    for (std::size_t i = 0; i < rapor_.sonBlok.size(); ++i) Koy(Tur::Blok, i);
  }

  const Rapor& rapor_;
  const KagitBicimi& bicim_;
  const SayfaDuzeni& duzen_;
  std::vector<Sayfa> sayfalar_;
  double satirSayaci_ = 0;  // of the open page; 0: none is open
};

}  // namespace

bool TabloSatiriMi(SayfaSatirTuru tur) {
  switch (tur) {
    case Tur::KolonBasligi:
    case Tur::Bos:
    case Tur::Govde:
    case Tur::SayfaToplami:
    case Tur::Nakil:
    case Tur::Toplam:
      return true;
    case Tur::Baslik:
    case Tur::UstSatir:
    case Tur::Cizgi:
    case Tur::Blok:
      return false;
  }
  return false;
}

double SatirBoyu(const SayfaSatiri& satir, const KagitBicimi& bicim) {
  return satir.tur == Tur::Govde ? bicim.satirBoyu : 1;
}

double SayfaBoyu(const Sayfa& sayfa, const KagitBicimi& bicim) {
  double boy = 0;
  for (const SayfaSatiri& satir : sayfa.satirlar) boy += SatirBoyu(satir, bicim);
  return boy;
}

std::vector<Sayfa> SayfalaraBol(const Rapor& rapor, const KagitBicimi& bicim, const SayfaDuzeni& duzen) {
  return Sayfalayici(rapor, bicim, duzen).Bol();
}

}  // namespace belvani
