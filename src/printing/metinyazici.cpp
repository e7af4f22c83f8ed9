#include "printing/metinyazici.h"

#include <algorithm>

#include "core/asama.h"
#include "core/turkce.h"
#include "printing/sayfalayici.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

// A text in the field of a column: filled up, never cut.
std::string Alan(const std::string& metin, int en, const RaporKolonu& kolon) {
  return kolon.Sayisal() ? Sagda(metin, en) : Solda(metin, en);
}

// `metin` put at letter `yer` of the line, or one blank behind what already stands there.
void Yerlestir(std::string& satir, int yer, const std::string& metin) {
  if (metin.empty()) return;
  const int dolu = int(HarfSayisi(satir));
  satir.append(std::size_t(dolu == 0 ? std::max(yer, 0) : std::max(yer - dolu, 1)), ' ');
  satir += metin;
}

// Whether the line at `yer` is one of the table's, with columns.
bool TabloMu(const Sayfa& sayfa, std::size_t yer) {
  return yer < sayfa.satirlar.size() && TabloSatiriMi(sayfa.satirlar[yer].tur);
}

class MetinYazici {
 public:
  MetinYazici(const Rapor& rapor, const SayfaDuzeni& duzen)
      : rapor_(rapor), duzen_(duzen), bicim_(KagitBicimle(rapor, duzen)), kolonSayisi_(bicim_.enler.size()) {}

  void Yaz(const MetinAlici& al, Ilerleme* ilerleme) {
    const auto sayfalar = SayfalaraBol(rapor_, bicim_, duzen_);
    sayfaSayisi_ = sayfalar.size();
    Asama asama(ilerleme, sayfaSayisi_);
    for (const auto& sayfa : sayfalar) {
      asama.Adim();
      std::string metin = sayfa.no > 1 ? "\f" : "";
      for (std::size_t i = 0; i < sayfa.satirlar.size(); ++i) {
        std::string satir = DenetimsizMetin(Satir(sayfa, i));
        satir.erase(satir.find_last_not_of(' ') + 1);
        metin += satir + '\n';
      }
      al(metin);
    }
  }

 private:
  std::string Satir(const Sayfa& sayfa, std::size_t yer) const {
    const auto [tur, sira] = sayfa.satirlar[yer];
    switch (tur) {
      case SayfaSatirTuru::Baslik:
        return Ortala(rapor_.baslik);
      case SayfaSatirTuru::UstSatir:
        return Ust(rapor_.ustSatirlar[sira], sayfa.no);
      case SayfaSatirTuru::KolonBasligi:
        return Basliklar(sira);
      case SayfaSatirTuru::Cizgi:
        return Cizgi(TabloMu(sayfa, yer - 1), TabloMu(sayfa, yer + 1));
      case SayfaSatirTuru::Bos:
        return BosSatir();
      case SayfaSatirTuru::Govde:
        return Hucreler(rapor_.Satirlar()[sira].hucreler);
      case SayfaSatirTuru::SayfaToplami:
        return Hucreler(rapor_.SayfaToplami(sayfa.ilkKayit, sira));
      case SayfaSatirTuru::Nakil:
      case SayfaSatirTuru::Toplam:
        return Hucreler(rapor_.AraToplam(sira));
      case SayfaSatirTuru::Blok:
        return Blok(rapor_.sonBlok[sira]);
    }
    return {};
  }

  std::string Ortala(const std::string& metin) const { return Yinele(" ", OrtaYeri(metin, bicim_.en)) + metin; }

  std::string Ust(const UstSatir& ust, int sayfaNo) const {
    const std::string sag = UstSagMetni(ust, sayfaNo, sayfaSayisi_);
    std::string satir = ust.sol;
    Yerlestir(satir, OrtaYeri(ust.orta, bicim_.en), ust.orta);
    Yerlestir(satir, bicim_.en - int(HarfSayisi(sag)), sag);
    return satir;
  }

  // One line of the table: `alan` gives what stands in column k, filled to its width.
  template <class Alan>
  std::string TabloSatiri(Alan alan, std::string_view ayrac) const {
    std::string satir;
    for (std::size_t k = 0; k < kolonSayisi_; ++k) {
      if (k > 0) satir += ayrac;
      satir += alan(k);
    }
    return satir;
  }

  bool DikCizgili() const { return duzen_.kolonArasi == KolonArasi::DikCizgi; }
  std::string_view Ayrac() const { return DikCizgili() ? "│" : " "; }

  std::string Basliklar(std::size_t sira) const {
    return TabloSatiri(
        [&](std::size_t k) { return Alan(bicim_.basliklar[k][sira], bicim_.enler[k], rapor_.Kolonlar()[k]); }, Ayrac());
  }

  // Vertical lines cross a rule only towards the sides where the table goes on.
  std::string Cizgi(bool yukari, bool asagi) const {
    const std::string_view harf = DikCizgili() ? "─" : "-";
    const std::string_view kesisme = !DikCizgili() ? " " : yukari && asagi ? "┼" : asagi ? "┬" : "┴";
    return TabloSatiri([&](std::size_t k) { return Yinele(harf, bicim_.enler[k]); }, kesisme);
  }

  std::string BosSatir() const {
    return TabloSatiri([&](std::size_t k) { return Yinele(" ", bicim_.enler[k]); }, Ayrac());
  }

  std::string Hucreler(const std::vector<Hucre>& hucreler) const {
    return TabloSatiri([&](std::size_t k) { return HucreAlani(hucreler[k], k); }, Ayrac());
  }

  std::string HucreAlani(const Hucre& hucre, std::size_t k) const {
    const RaporKolonu& kolon = rapor_.Kolonlar()[k];
    std::string metin = HucreMetni(hucre, kolon, bicim_.gruplama);
    if (kolon.tur == KolonTuru::Metin) metin = std::string(IlkHarfler(metin, std::size_t(bicim_.enler[k])));
    return Alan(metin, bicim_.enler[k], kolon);
  }

  std::string Blok(const BlokSatiri& satir) const {
    int etiketEni = 0;
    int degerEni = 0;
    for (const auto& b : rapor_.sonBlok) {
      etiketEni = std::max(etiketEni, int(HarfSayisi(b.etiket)));
      degerEni = std::max(degerEni, int(HarfSayisi(BlokMetni(b, rapor_))));
    }
    return Solda(satir.etiket, etiketEni) + " " + Sagda(BlokMetni(satir, rapor_), degerEni);
  }

  const Rapor& rapor_;
  const SayfaDuzeni& duzen_;
  const KagitBicimi bicim_;
  const std::size_t kolonSayisi_;
  std::size_t sayfaSayisi_ = 0;
};

}  // namespace

std::string MetinRaporu(const Rapor& rapor, const SayfaDuzeni& duzen, Ilerleme* ilerleme) {
  return MetinTopla([&](const MetinAlici& al) { MetinRaporunuVer(rapor, duzen, al, ilerleme); });
}

void MetinRaporunuVer(const Rapor& rapor, const SayfaDuzeni& duzen, const MetinAlici& al, Ilerleme* ilerleme) {
  MetinYazici(rapor, duzen).Yaz(al, ilerleme);
}

}  // namespace belvani
