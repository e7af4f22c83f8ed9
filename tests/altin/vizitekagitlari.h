// The medical papers, for a visit in May and one in December: drawn, as text, and as the command line gives them.
#pragma once

#include "altin/cizimkagitlari.h"
#include "ozluk/vizitekagidi.h"

namespace belvani::test {

// The relative is a child, of the certificate the mother.
inline ViziteKagidi ViziteYap(OrnekSirket& o, ViziteTuru tur, const char* kod, Tarih gun) {
  ViziteKagidi kagit = BosViziteKagidi(o.oturum, tur);
  auto kisi = KisiDoldur(o.oturum, kod, gun).value();
  kagit.form = kisi.form;
  kagit.form.saat = "09:15";
  kagit.kimlik = kisi.kimlik;
  kagit.yakin = YakinBul(o.oturum, kod, tur == ViziteTuru::AltiAylik ? AnneYakinligi : 5);
  kagit.aylar = *GunTablosuYap(o.oturum, kagit.form);
  for (std::size_t i = 0; i < kagit.aylar.size(); ++i) {
    kagit.aylar[i].ekodeme = Tutar(double(i) * 11.25);
    kagit.aylar[i].prim = Tutar(double(i % 3) * 250);
  }
  return kagit;
}

inline Kagitlar CizilenViziteler() {
  const struct {
    const char* ad;
    ViziteTuru tur;
  } turler[] = {
      {"vizite1", ViziteTuru::Sigortali}, {"vizite2", ViziteTuru::EsVeCocuk}, {"vizite3", ViziteTuru::AltiAylik}};
  const struct {
    const char* ek;
    Tarih gun;
  } gunler[] = {{"mayis", Tarih(2009, 5, 15)}, {"aralik", Tarih(2008, 12, 31)}};
  Kagitlar kagitlar;
  for (const auto& t : turler)
    for (const auto& g : gunler) {
      const std::string ad = std::string(t.ad) + "-" + g.ek;
      const auto yap = [tur = t.tur, gun = g.gun](OrnekSirket& o) { return ViziteYap(o, tur, "010", gun); };
      kagitlar.push_back({SonAy, ad + ".cizim.txt", [yap](OrnekSirket& o) { return CizimMetni(*ViziteCiz(yap(o))); }});
      kagitlar.push_back(
          {SonAy, ad + ".metin", [yap](OrnekSirket& o) { return MetinSayfalari(ViziteYazdir(yap(o))); }});
    }
  return kagitlar;
}

inline Kagit ViziteKomutu(const char* ad, const char* secenekler) {
  return {SonAy, ad, [=](OrnekSirket& o) { return o.SirketKomutu("vizite", secenekler); }};
}

// Also of one who has left, and of a relative who is not recorded.
inline Kagitlar ViziteKagitlari() {
  Kagitlar kagitlar = CizilenViziteler();
  kagitlar.push_back(ViziteKomutu("vizite1-cikan.json", "008 --tur 1 --tarih 15.12.2009 --saat 09:15 --bicim json"));
  kagitlar.push_back(ViziteKomutu("vizite3-yakinsiz.metin", "008 --tur 3 --tarih 31.08.2009 --yakin 1"));
  return kagitlar;
}

}  // namespace belvani::test
