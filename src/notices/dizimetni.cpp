#include "core/turkce.h"
#include "isyeri/isyerinumarasi.h"
#include "notices/dizikagidi.h"
#include "notices/dizikagidiicerik.h"
#include "notices/metintablosu.h"

namespace belvani {
namespace {

constexpr int SiraHarfi = 4, NoHarfi = 25, AdHarfi = 41;
constexpr int KisiHarfi = NoHarfi + 1 + AdHarfi;
constexpr int En = SiraHarfi + 2 * KisiHarfi + 4;
constexpr int KapanisSatiri = 18;

const MetinTablosu Baslik({En - 2});
const MetinTablosu Gruplar({SiraHarfi, KisiHarfi, KisiHarfi});
const MetinTablosu Tablo({SiraHarfi, NoHarfi, AdHarfi, NoHarfi, AdHarfi});

void Bas(std::vector<std::string>& s, const DiziSayfasi& d) {
  const std::string no(DiziNoBasligi), ad(DiziAdBasligi);
  s.push_back(Ortalanmis(DiziBasligi[0], En));
  s.push_back(Ortalanmis(DiziBasligi[1], En));
  s.push_back(Baslik.Ust());
  s.push_back(Baslik.Satir({Doldurulmus(" İşyerinin Ünvanı : " + d.firma.unvan, 62) +
                            Doldurulmus("SSK Sicil No : " + IsyeriSicilNo(d.firma), 66) +
                            "Sayfa : " + std::to_string(d.no) + "/" + std::to_string(d.sayfaSayisi)}));
  s.push_back(Baslik.Satir({" İşe Giriş Tarihleri : " + DiziAraligi(d.aralik)}));
  s.push_back(Gruplar.Acilma());
  s.push_back(Gruplar.OrtaliSatir({"", std::string(DiziIlkBasligi) + "  (x)", std::string(DiziTekrarBasligi)}));
  s.push_back(Tablo.Satir({std::string(DiziSiraBasligi), no, ad, no, ad}));
  s.push_back(Tablo.Ara());
}

void Satirlar(std::vector<std::string>& s, const DiziSayfasi& d) {
  const std::size_t satirSayisi = DiziSatirSayisi(d.pusula);
  for (std::size_t sira = d.ilk; sira < d.ilk + DiziMetinSatiri; ++sira) {
    const DiziSatiri ilk = DizininSatiri(d.pusula.ilk, sira), tekrar = DizininSatiri(d.pusula.tekrar, sira);
    s.push_back(Tablo.Satir(
        {sira < satirSayisi ? std::to_string(sira + 1) : "", ilk.sskno, ilk.adsoy, tekrar.sskno, tekrar.adsoy}));
  }
}

// Its lines are counted from the end of the table on.
void Kapanis(std::vector<std::string>& s, const DiziSayfasi& d) {
  s.push_back(Tablo.Alt());
  if (!d.Son()) {
    s.emplace_back(DiziDevami);
    return;
  }
  constexpr int yari = En / 2;
  const auto ikili = [&](std::string_view sol, std::string_view sag) {
    s.push_back(Doldurulmus(sol, yari) + std::string(sag));
  };
  const std::size_t son = s.size() - 1 + KapanisSatiri;
  s.emplace_back(DiziNotu);
  s.emplace_back();
  s.push_back(DiziBeyani(d.pusula));
  s.push_back(DiziAlindisi(d.pusula));
  s.emplace_back();
  ikili(DiziTeslimEden, DiziTeslimAlan);
  for (std::size_t i = 0; i < std::size(DiziTeslimEdenSatirlari); ++i) {
    s.emplace_back();
    ikili(std::string(DiziTeslimEdenSatirlari[i]) + " ........................................",
          std::string(DiziTeslimAlanSatirlari[i]) + " ........................................");
  }
  s.resize(son);
}

}  // namespace

std::string DiziSayfasiMetni(const DiziSayfasi& sayfa) {
  std::vector<std::string> satirlar;
  Bas(satirlar, sayfa);
  Satirlar(satirlar, sayfa);
  Kapanis(satirlar, sayfa);
  return SayfaMetni(satirlar);
}

}  // namespace belvani
