// A surface that keeps what is drawn on it, for tests that read pages.
#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "printing/tuval.h"

namespace belvani::test {

enum class OgeTuru { Metin, Cizgi, Kutu, DoluKutu, Resim };

struct Oge {
  OgeTuru tur;
  Dikdortgen kutu;         // of a line: its start, and how far its end lies away
  std::string metin = {};  // of a picture: its bytes
  YaziBicimi yazi = {};
  double kalinlik = 0;  // of a line or a frame, millimetres
  BoyaRengi renk = 0;   // of a filled box

  double Sag() const { return kutu.x + kutu.en; }
  double Alt() const { return kutu.y + kutu.boy; }
};

struct KayitSayfasi {
  KagitBoyu boy;
  std::vector<Oge> ogeler;

  // The texts in the order of drawing; those that share a line are joined by "|".
  std::vector<std::string> Satirlar() const {
    std::vector<std::string> satirlar;
    double y = -1;
    for (const auto& oge : ogeler) {
      if (oge.tur != OgeTuru::Metin) continue;
      const double orta = oge.kutu.y + oge.kutu.boy / 2;
      const bool ayni = !satirlar.empty() && std::abs(orta - y) < 0.1;
      ayni ? satirlar.back() += "|" + oge.metin : satirlar.emplace_back(oge.metin);
      y = orta;
    }
    return satirlar;
  }

  std::size_t Say(OgeTuru tur) const {
    return std::size_t(std::count_if(ogeler.begin(), ogeler.end(), [&](auto& o) { return o.tur == tur; }));
  }
};

struct KayitTuvali final : Tuval {
  std::vector<KayitSayfasi> sayfalar;
  std::set<std::string, std::less<>> kaliplar;  // that were asked for
  bool sayfaAcik = false;

  void SayfaBasla(KagitBoyu boy) override {
    sayfalar.push_back({boy, {}});
    sayfaAcik = true;
  }
  void SayfaBitir() override { sayfaAcik = false; }
  Tuval& Kalip(std::string_view anahtar) override {
    kaliplar.emplace(anahtar);
    return *this;
  }
  void Metin(Nokta yer, std::string_view metin, const YaziBicimi& yazi) override {
    Ekle({OgeTuru::Metin, {yer.x, yer.y, MetinEni(metin, yazi), SatirBoyu(yazi)}, std::string(metin), yazi});
  }
  void Cizgi(Nokta bas, Nokta son, double kalinlik) override {
    Ekle({.tur = OgeTuru::Cizgi, .kutu = {bas.x, bas.y, son.x - bas.x, son.y - bas.y}, .kalinlik = kalinlik});
  }
  void Kutu(const Dikdortgen& kutu, double kalinlik) override {
    Ekle({.tur = OgeTuru::Kutu, .kutu = kutu, .kalinlik = kalinlik});
  }
  void DoluKutu(const Dikdortgen& kutu, BoyaRengi renk) override {
    Ekle({.tur = OgeTuru::DoluKutu, .kutu = kutu, .renk = renk});
  }
  bool Resim(const Dikdortgen& kutu, std::string_view png) override {
    Ekle({.tur = OgeTuru::Resim, .kutu = kutu, .metin = std::string(png)});
    return true;
  }

 private:
  void Ekle(Oge oge) {
    if (sayfaAcik) sayfalar.back().ogeler.push_back(std::move(oge));
  }
};

}  // namespace belvani::test
