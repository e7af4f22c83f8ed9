#include <cassert>

#include "core/turkce.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "notices/ekkagidi.h"
#include "notices/metintablosu.h"

namespace belvani {
namespace {

using Satirlar = std::vector<std::string>;

std::vector<int> KolonHarfleri(const EkTanimi& tanim) {
  std::vector<int> harfler;
  for (const EkKolonu& k : tanim.kolonlar) harfler.push_back(k.harf);
  return harfler;
}

int SatirEni(const EkTanimi& tanim) {
  int en = 1;
  for (const EkKolonu& k : tanim.kolonlar) en += k.harf + 1;
  return en;
}

void IsyeriKutusu(Satirlar& s, int en, const EkBasligi& b, const EkSayfasi& sayfa) {
  constexpr int kodEni = 20, bolgeEni = 41, sayfaEni = 20;
  const Firma& firma = b.firma;
  const auto adres = FirmaAdresi(firma);
  const MetinTablosu ust({kodEni, bolgeEni, en - kodEni - bolgeEni - sayfaEni - 5, sayfaEni});
  const MetinTablosu kutu({en - 2});
  s.push_back(ust.Ust());
  s.push_back(ust.Satir({" İş Kodu : " + (firma.iskodu == 0 ? std::string() : std::to_string(firma.iskodu)),
                         " Bölge Çalışma No : " + firma.bolcal, " Ait Olduğu Tarihler : " + AralikMetni(b.aralik),
                         " Sayfa : " + std::to_string(sayfa.no) + " / " + std::to_string(sayfa.sayfaSayisi)}));
  s.push_back(ust.Birlesme());
  s.push_back(kutu.Satir({" İşyerinin Ünvanı           : " + firma.unvan}));
  s.push_back(kutu.Satir({" İş Yerinde Yapılan Esas İş : " + b.isi}));
  s.push_back(kutu.Satir({" Adresi                     : " + adres[0]}));
  s.push_back(kutu.Satir({"                              " + adres[1]}));
  s.push_back(kutu.Alt());
}

// Each group of the number in a box of its own, wide enough for all that the store holds of it.
void SicilKutulari(Satirlar& s, int en, const EkBasligi& b) {
  constexpr int etiketEni = 26;
  constexpr std::array<std::pair<std::string_view, int>, 7> gruplar{
      {{"Sektör", 8}, {"Meslek", 8}, {"Şube", 4}, {"Dosya", 15}, {"İl", 4}, {"İlçe", 4}, {"Kont.", 5}}};
  std::vector<int> enler{etiketEni};
  std::vector<std::string> basliklar{"İşyerinin SSK Sicil No"}, degerler{""};
  int dolu = etiketEni + 2;
  const auto numara = NumaraGruplari(b.firma);
  for (std::size_t i = 0; i < gruplar.size(); ++i) {
    enler.push_back(gruplar[i].second);
    basliklar.emplace_back(gruplar[i].first);
    degerler.push_back(numara[i].deger);
    dolu += gruplar[i].second + 1;
  }
  enler.push_back(en - dolu - 1);
  basliklar.emplace_back("Aracı");
  degerler.push_back(b.araciKodu);
  const MetinTablosu tablo(enler);
  s.push_back(tablo.Ust());
  s.push_back(tablo.Satir(basliklar));
  s.push_back(tablo.Satir(degerler));
  s.push_back(tablo.Alt());
}

void Tablo(Satirlar& s, const EkTanimi& tanim, const EkSayfasi& sayfa) {
  const MetinTablosu tablo(KolonHarfleri(tanim));
  std::vector<std::string> ust, alt, numaralar;
  for (const EkKolonu& k : tanim.kolonlar) {
    ust.emplace_back(k.baslik1);
    alt.emplace_back(k.baslik2);
    numaralar.push_back("(" + std::to_string(numaralar.size() + 1) + ")");
  }
  s.push_back(tablo.Ust());
  s.push_back(tablo.OrtaliSatir(ust));
  s.push_back(tablo.OrtaliSatir(alt));
  s.push_back(tablo.OrtaliSatir(numaralar));
  for (std::size_t i = 0; i < EkSayfaKisisi; ++i) {
    std::vector<std::string> hucreler;
    if (i < sayfa.satirlar.size()) {
      hucreler.push_back(std::to_string(sayfa.ilk + i + 1));
      hucreler.insert(hucreler.end(), sayfa.satirlar[i].begin(), sayfa.satirlar[i].end());
    }
    s.push_back(tablo.Ara());
    s.push_back(tablo.Satir(hucreler));
  }
  s.push_back(tablo.Alt());
}

// The keys side by side, the signature on their right.
void Ayak(Satirlar& s, const EkTanimi& tanim) {
  constexpr int anahtarEni = 38;
  const std::array<std::string_view, 6> imza{"", EkBeyani, EkImzasi, EkImzaAciklamasi, "", EkTarihi};
  for (std::size_t satir = 0; satir < imza.size(); ++satir) {
    std::string metin = " ";
    for (const EkAnahtari& anahtar : tanim.anahtarlar) {
      std::string parca;
      if (satir == 0) parca = anahtar.baslik;
      if (satir >= 1 && satir <= anahtar.kodlar.size())
        parca = "  " + std::to_string(satir) + " - " + std::string(anahtar.kodlar[satir - 1]);
      metin += parca + std::string(anahtarEni - HarfSayisi(parca), ' ');
    }
    s.push_back(metin + std::string(imza[satir]));
  }
}

}  // namespace

std::string EkSayfasiMetni(const EkTanimi& tanim, const EkBasligi& baslik, const EkSayfasi& sayfa) {
  const int en = SatirEni(tanim);
  Satirlar satirlar{Ortalanmis(tanim.baslik, en), ""};
  IsyeriKutusu(satirlar, en, baslik, sayfa);
  SicilKutulari(satirlar, en, baslik);
  satirlar.emplace_back();
  Tablo(satirlar, tanim, sayfa);
  assert(satirlar.size() == std::size_t(EkSonSatiri));
  Ayak(satirlar, tanim);
  return SayfaMetni(satirlar);
}

}  // namespace belvani
