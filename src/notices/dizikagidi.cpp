#include "notices/dizikagidi.h"

#include "core/asama.h"
#include "core/turkce.h"
#include "documents/listebelgesi.h"
#include "notices/dizikagidiicerik.h"
#include "printing/form/metinformu.h"
#include "printing/form/tabloluform.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

constexpr const char* BelgeBasligi = "İşe Giriş Bildirgeleri Dizi Pusulası";

struct ListeliSatir {
  int liste = 0;  // 1: first entries, 2: repeated ones
  const DiziSatiri* satir = nullptr;
};

const Kolonlar<ListeliSatir> DiziKolonlari{
    {"liste", "Liste", 5, [](auto& s) { return s.liste; }},
    {"sskno", "SSK No", 25, [](auto& s) { return s.satir->sskno; }},
    {"adsoy", "Adı Soyadı", 41, [](auto& s) { return s.satir->adsoy; }},
};

Rapor DiziRaporu(const Firma& firma, const TarihAraligi& aralik, const DiziPusulasi& pusula) {
  std::vector<ListeliSatir> satirlar;
  for (const DiziSatiri& satir : pusula.ilk) satirlar.push_back({1, &satir});
  for (const DiziSatiri& satir : pusula.tekrar) satirlar.push_back({2, &satir});
  std::erase_if(satirlar, [](const ListeliSatir& s) { return s.satir->Bos(); });
  Rapor rapor = RaporYap(DiziKolonlari, satirlar, firma.paraonda);
  rapor.baslik = rapor.ekranBasligi = BelgeBasligi;
  rapor.ustSatirlar = {{.sol = firma.unvan, .orta = DiziAraligi(aralik), .sirket = true}};
  return rapor;
}

// What all sheets are made of.
struct DiziKagidi {
  Firma firma;
  TarihAraligi aralik;
  DiziPusulasi pusula;

  // What `ciz` makes of each sheet of so many rows; at least one.
  template <class Ciz>
  auto Sayfalar(Ciz ciz, std::size_t sayfadaki, Ilerleme* ilerleme) const {
    const std::size_t satir = DiziSatirSayisi(pusula);
    const int sayi = std::max(1, int((satir + sayfadaki - 1) / sayfadaki));
    std::vector<std::invoke_result_t<Ciz, const DiziSayfasi&>> sayfalar;
    Asama asama(ilerleme, std::size_t(sayi));
    for (int no = 1; no <= sayi; ++no) {
      asama.Adim();
      sayfalar.push_back(ciz({firma, aralik, pusula, no, sayi, (std::size_t(no) - 1) * sayfadaki}));
    }
    return sayfalar;
  }
};

std::string Sayilar(const DiziPusulasi& pusula) {
  const auto dolu = [](const std::vector<DiziSatiri>& liste) {
    return std::to_string(std::ranges::count_if(liste, [](const DiziSatiri& s) { return !s.Bos(); }));
  };
  return dolu(pusula.ilk) + " ilk, " + dolu(pusula.tekrar) + " tekrar girene ait işe giriş bildirgeleri";
}

}  // namespace

std::string DiziBeyani(const DiziPusulasi& pusula) {
  return "Yukarıda yazılı " + Sayilar(pusula) + " ekte sunulmuştur.";
}

std::string DiziAlindisi(const DiziPusulasi& pusula) {
  return "Yukarıda yazılı " + Sayilar(pusula) + " teslim alınmıştır.";
}

std::unique_ptr<Belge> DiziPusulasiBelgesi(const Firma& firma, const TarihAraligi& aralik, DiziPusulasi pusula) {
  for (auto* liste : {&pusula.ilk, &pusula.tekrar})
    for (DiziSatiri& satir : *liste) satir = {DenetimsizMetin(satir.sskno), DenetimsizMetin(satir.adsoy)};
  Rapor rapor = DiziRaporu(firma, aralik, pusula);
  const std::string sinirUyarisi = DiziSinirUyarisi(pusula);
  const auto kagit = std::make_shared<const DiziKagidi>(DiziKagidi{firma, aralik, std::move(pusula)});
  return std::make_unique<TabloluForm>(
      BaskiAyari(BelgeBasligi, KagitYonu::Dikey), std::move(rapor),
      FormYapanlar{.sayfalar = [kagit](Ilerleme* i) { return kagit->Sayfalar(DiziSayfasiCiz, DiziSayfaSatiri, i); },
                   .metin =
                       [kagit](Ilerleme* i) {
                         return SayfalariBirlestir(kagit->Sayfalar(DiziSayfasiMetni, DiziMetinSatiri, i));
                       },
                   .eksikler = sinirUyarisi});
}

std::unique_ptr<Belge> DiziPusulasiBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik) {
  return DiziPusulasiBelgesi(kaynak.firma, aralik, DiziPusulasiOku(kaynak.motor, aralik, kaynak.ilerleme));
}

}  // namespace belvani
