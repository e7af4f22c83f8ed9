#include <cassert>

#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "notices/ekkagidi.h"
#include "printing/form/cerceveliform.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

using Hucreler = std::vector<std::string>;

CerceveliForm::Enler KolonHarfleri(const EkTanimi& tanim) {
  CerceveliForm::Enler harfler;
  for (const EkKolonu& k : tanim.kolonlar) harfler.push_back(k.harf);
  return harfler;
}

// The columns with the rules between them, and the frame.
int SatirEni(const EkTanimi& tanim) {
  int en = 1;
  for (const EkKolonu& k : tanim.kolonlar) en += k.harf + 1;
  return en;
}

void IsyeriSatirlari(CerceveliForm& f, int en, const EkBasligi& b, const EkSayfasi& sayfa) {
  constexpr int kodEni = 20, bolgeEni = 41, sayfaEni = 20;
  const CerceveliForm::Enler enler{kodEni, bolgeEni, en - kodEni - bolgeEni - sayfaEni - 5, sayfaEni};
  const Firma& firma = b.firma;
  const auto adres = FirmaAdresi(firma);
  f.TabloBasi(enler);
  f.TabloSatiri(enler, {" İş Kodu : " + (firma.iskodu == 0 ? std::string() : std::to_string(firma.iskodu)),
                        " Bölge Çalışma No : " + firma.bolcal, " Ait Olduğu Tarihler : " + AralikMetni(b.aralik),
                        " Sayfa : " + std::to_string(sayfa.no) + " / " + std::to_string(sayfa.sayfaSayisi)});
  f.TabloSonu(enler);
  f.Satirlar({" İşyerinin Ünvanı           : " + firma.unvan, " İş Yerinde Yapılan Esas İş : " + b.isi,
              " Adresi                     : " + adres[0], "                              " + adres[1]});
}

// Each group of the number in a box of its own, wide enough for all that the store holds of it.
void SicilKutulari(CerceveliForm& f, int en, const EkBasligi& b) {
  constexpr int etiketEni = 26;
  constexpr std::array<std::pair<std::string_view, int>, 7> gruplar{
      {{"Sektör", 8}, {"Meslek", 8}, {"Şube", 4}, {"Dosya", 15}, {"İl", 4}, {"İlçe", 4}, {"Kont.", 5}}};
  CerceveliForm::Enler enler{etiketEni};
  Hucreler basliklar{" İşyerinin SSK Sicil No"}, degerler{""};
  int kalan = en - etiketEni - 3;
  const auto numara = NumaraGruplari(b.firma);
  for (std::size_t i = 0; i < gruplar.size(); ++i) {
    enler.push_back(gruplar[i].second);
    basliklar.emplace_back(gruplar[i].first);
    degerler.push_back(numara[i].deger);
    kalan -= gruplar[i].second + 1;
  }
  enler.push_back(kalan);
  basliklar.emplace_back("Aracı");
  degerler.push_back(b.araciKodu);
  f.TabloBasi(enler);
  f.TabloSatiri(enler, basliklar);
  f.TabloSatiri(enler, degerler);
  f.TabloSonu(enler);
}

void Tablo(CerceveliForm& f, const EkTanimi& tanim, const EkSayfasi& sayfa) {
  const auto enler = KolonHarfleri(tanim);
  Hucreler ust, alt, numaralar;
  for (const EkKolonu& k : tanim.kolonlar) {
    ust.push_back(OrtalaMetin(k.baslik1, k.harf));
    alt.push_back(OrtalaMetin(k.baslik2, k.harf));
    numaralar.push_back(OrtalaMetin("(" + std::to_string(numaralar.size() + 1) + ")", k.harf));
  }
  f.TabloBasi(enler);
  for (const Hucreler& baslik : {ust, alt, numaralar}) f.TabloSatiri(enler, baslik);
  for (std::size_t i = 0; i < EkSayfaKisisi; ++i) {
    Hucreler hucreler(enler.size());
    if (i < sayfa.satirlar.size()) {
      hucreler[0] = std::to_string(sayfa.ilk + i + 1);
      std::ranges::copy(sayfa.satirlar[i], hucreler.begin() + 1);
    }
    f.TabloArasi(enler);
    f.TabloSatiri(enler, hucreler);
  }
  f.TabloSonu(enler);
}

// The keys side by side, the signature on their right.
void Ayak(CerceveliForm& f, const EkTanimi& tanim) {
  constexpr int anahtarEni = 38;
  const std::array<std::string_view, 6> imza{"", EkBeyani, EkImzasi, EkImzaAciklamasi, "", EkTarihi};
  for (std::size_t satir = 0; satir < imza.size(); ++satir) {
    std::string metin = " ";
    for (const EkAnahtari& anahtar : tanim.anahtarlar) {
      std::string parca;
      if (satir == 0) parca = anahtar.baslik;
      if (satir >= 1 && satir <= anahtar.kodlar.size())
        parca = "  " + std::to_string(satir) + " - " + std::string(anahtar.kodlar[satir - 1]);
      metin += SagBosluk(parca, anahtarEni);
    }
    f.Satir(metin + std::string(imza[satir]));
  }
}

}  // namespace

std::string EkSayfasiMetni(const EkTanimi& tanim, const EkBasligi& baslik, const EkSayfasi& sayfa) {
  const int en = SatirEni(tanim);
  CerceveliForm form(en);
  form.Kenar();
  form.Ortala(tanim.baslik);
  IsyeriSatirlari(form, en, baslik, sayfa);
  SicilKutulari(form, en, baslik);
  form.Satirlar({"", ""});
  Tablo(form, tanim, sayfa);
  assert(std::ranges::count(form.Sablon(), '\n') + 1 == EkSonSatiri);
  Ayak(form, tanim);
  form.Son();
  return form.Sablon() + "\n";
}

}  // namespace belvani
