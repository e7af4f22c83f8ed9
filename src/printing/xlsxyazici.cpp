#include "printing/xlsxyazici.h"

#include <algorithm>
#include <numeric>

#include "core/asama.h"
#include "core/turkce.h"
#include "printing/xlsxkitap.h"

namespace belvani {
namespace {

class RaporSayfasi {
 public:
  explicit RaporSayfasi(const Rapor& rapor)
      : rapor_(rapor),
        kitap_(rapor.ekranBasligi),
        duz_(kitap_.StilEkle({})),
        koyu_(kitap_.StilEkle({.koyu = true})),
        baslik_(kitap_.StilEkle({.baslik = true})) {
    for (const auto& kolon : rapor.Kolonlar()) {
      XlsxStili stil = KolonStili(kolon);
      govde_.push_back(kitap_.StilEkle(stil));
      stil.koyu = true;
      toplam_.push_back(kitap_.StilEkle(stil));
    }
  }

  Sonuc<std::string> Yaz(Ilerleme* ilerleme) {
    KolonEnleri();
    kitap_.A4Yazdir(XlsxYonu(std::accumulate(enler_.begin(), enler_.end(), 0)));
    Basi();
    Asama asama(ilerleme, rapor_.Satirlar().size());
    for (const auto& satir : rapor_.Satirlar()) {
      asama.Adim();
      SatirYaz(satir.hucreler, govde_);
    }
    if (rapor_.ToplamVar() && !rapor_.Satirlar().empty()) SatirYaz(rapor_.Toplam(), toplam_);
    Blok();
    return kitap_.Bitir(ilerleme);
  }

 private:
  void KolonEnleri() {
    for (std::size_t k = 0; k < rapor_.Kolonlar().size(); ++k) {
      const RaporKolonu& kolon = rapor_.Kolonlar()[k];
      // The full form of a day also where its column shows less: days before 1900 go in as texts.
      const int enAz = TarihMi(kolon.tur) ? TarihHarfi(KolonTuru::Tarih) : 0;
      const int gerekli = std::max(enAz, rapor_.GerekliEn(k, BinlikGruplama));
      const int en = std::max({gerekli, int(HarfSayisi(kolon.kisaBaslik)), kolon.tur == KolonTuru::Bos ? kolon.en : 0});
      enler_.push_back(XlsxKolonEni(en));
      kitap_.KolonEni(int(k), enler_.back());
    }
  }

  void Basi() {
    std::vector<std::string> satirlar{rapor_.ekranBasligi};
    for (const auto& ust : rapor_.ustSatirlar)
      if (std::string metin = UstEkranMetni(ust); !metin.empty()) satirlar.push_back(std::move(metin));
    kitap_.UstuDondur(int(satirlar.size()) + 1);
    for (const auto& metin : satirlar) {
      kitap_.Yaz(satir_, 0, metin, satir_ == 0 ? koyu_ : duz_);
      ++satir_;
    }
    for (std::size_t k = 0; k < rapor_.Kolonlar().size(); ++k)
      kitap_.Yaz(satir_, int(k), rapor_.Kolonlar()[k].kisaBaslik, baslik_);
    ++satir_;
  }

  void SatirYaz(const std::vector<Hucre>& hucreler, const std::vector<XlsxKitap::Stil>& stiller) {
    for (std::size_t k = 0; k < hucreler.size(); ++k) kitap_.Yaz(satir_, int(k), hucreler[k], stiller[k]);
    ++satir_;
  }

  // Values stand in the first column that the longest label leaves free.
  int BlokKolonu() const {
    std::size_t etiketEni = 0;
    for (const auto& b : rapor_.sonBlok) etiketEni = std::max(etiketEni, HarfSayisi(b.etiket));
    int kolon = 1;
    for (std::size_t yer = 0; std::size_t(kolon) <= enler_.size(); ++kolon)
      if ((yer += std::size_t(enler_[std::size_t(kolon) - 1])) >= etiketEni) break;
    return kolon;
  }

  void Blok() {
    if (rapor_.sonBlok.empty()) return;
    ++satir_;
    const auto tutar = kitap_.StilEkle({.sayiBicimi = XlsxTutarBicimi(rapor_.paraOndaligi)});
    const auto tam = kitap_.StilEkle({.sayiBicimi = XlsxTutarBicimi(0)});
    const int kolon = BlokKolonu();
    for (const auto& b : rapor_.sonBlok) {
      kitap_.Yaz(satir_, 0, b.etiket, duz_);
      kitap_.Yaz(satir_++, kolon, b.deger, std::holds_alternative<Tutar>(b.deger) ? tutar : tam);
    }
  }

  const Rapor& rapor_;
  XlsxKitap kitap_;
  XlsxKitap::Stil duz_;
  XlsxKitap::Stil koyu_;
  XlsxKitap::Stil baslik_;
  std::vector<XlsxKitap::Stil> govde_;
  std::vector<XlsxKitap::Stil> toplam_;
  std::vector<int> enler_;
  int satir_ = 0;
};

// Two blocks side by side, columns A to D.
class YaprakSayfasi {
 public:
  explicit YaprakSayfasi(const YaprakBelgesi& belge)
      : belge_(belge),
        kitap_(belge.baslik),
        duz_(kitap_.StilEkle({})),
        koyu_(kitap_.StilEkle({.koyu = true})),
        tutar_(kitap_.StilEkle({.sayiBicimi = XlsxSifirliBicim(belge.paraOndaligi)})),
        tarih_(kitap_.StilEkle({.sayiBicimi = XlsxTarihBicimi})) {}

  Sonuc<std::string> Yaz(Ilerleme* ilerleme) {
    for (int k = 0; k < 4; ++k) kitap_.KolonEni(k, k % 2 == 0 ? 28 : 16);
    kitap_.A4Yazdir(KagitYonu::Dikey);
    Asama asama(ilerleme, belge_.yapraklar.size());
    for (const auto& yaprak : belge_.yapraklar) {
      asama.Adim();
      kitap_.SayfaBasi(satir_);
      YaprakYaz(yaprak);
    }
    return kitap_.Bitir(ilerleme);
  }

 private:
  void YaprakYaz(const Yaprak& yaprak) {
    kitap_.Yaz(satir_++, 0, belge_.baslik, koyu_);
    kitap_.Yaz(satir_++, 0, yaprak.altBaslik, duz_);
    Bloklar(yaprak.bas, {});
    ++satir_;
    Bloklar(yaprak.sol, yaprak.sag);
    ++satir_;
    const auto orta = yaprak.ek.begin() + std::ptrdiff_t((yaprak.ek.size() + 1) / 2);
    Bloklar({yaprak.ek.begin(), orta}, {orta, yaprak.ek.end()});
    for (const auto& cumle : yaprak.cumleler) kitap_.Yaz(satir_++, 0, cumle, duz_);
    satir_ += 2;
  }

  void Bloklar(const std::vector<BlokSatiri>& sol, const std::vector<BlokSatiri>& sag) {
    for (std::size_t i = 0; i < std::max(sol.size(), sag.size()); ++i, ++satir_) {
      if (i < sol.size()) AlanYaz(0, sol[i]);
      if (i < sag.size()) AlanYaz(2, sag[i]);
    }
  }

  void AlanYaz(int kolon, const BlokSatiri& alan) {
    kitap_.Yaz(satir_, kolon, alan.etiket, duz_);
    const bool tutar = std::holds_alternative<Tutar>(alan.deger);
    const bool tarih = std::holds_alternative<Tarih>(alan.deger);
    kitap_.Yaz(satir_, kolon + 1, alan.deger, tutar ? tutar_ : tarih ? tarih_ : duz_);
  }

  const YaprakBelgesi& belge_;
  XlsxKitap kitap_;
  XlsxKitap::Stil duz_;
  XlsxKitap::Stil koyu_;
  XlsxKitap::Stil tutar_;
  XlsxKitap::Stil tarih_;
  int satir_ = 0;
};

}  // namespace

Sonuc<std::string> XlsxRaporu(const Rapor& rapor, Ilerleme* ilerleme) {
  return RaporSayfasi(rapor).Yaz(ilerleme);
}

Sonuc<std::string> XlsxYapraklari(const YaprakBelgesi& belge, Ilerleme* ilerleme) {
  return YaprakSayfasi(belge).Yaz(ilerleme);
}

}  // namespace belvani
