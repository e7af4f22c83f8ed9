#include "isyeri/isyerinumarasi.h"
#include "notices/dizikagidi.h"
#include "notices/dizikagidiicerik.h"
#include "printing/form/cerceveliform.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr int SiraHarfi = 4, NoHarfi = 25, AdHarfi = 41;
constexpr int KisiHarfi = NoHarfi + 1 + AdHarfi;
constexpr int En = SiraHarfi + 2 * KisiHarfi + 4;
constexpr int KapanisSatiri = 18;  // from the end of the table to that of the frame
constexpr const char* Noktalar = " ........................................";

const CerceveliForm::Enler Gruplar{SiraHarfi, KisiHarfi, KisiHarfi};
const CerceveliForm::Enler Kolonlar{SiraHarfi, NoHarfi, AdHarfi, NoHarfi, AdHarfi};

void Bas(CerceveliForm& f, const DiziSayfasi& d) {
  const std::string no(DiziNoBasligi), ad(DiziAdBasligi);
  const std::string ilk = std::string(DiziIlkBasligi) + "  (x)";
  f.Kenar();
  for (const std::string_view baslik : DiziBasligi) f.Ortala(baslik);
  f.Satir(SagBosluk(" İşyerinin Ünvanı : " + d.firma.unvan, 62) + "SSK Sicil No : " + IsyeriSicilNo(d.firma));
  f.Satir(SagBosluk(" İşe Giriş Tarihleri : " + DiziAraligi(d.aralik), 62) + "Sayfa : " + std::to_string(d.no) + " / " +
          std::to_string(d.sayfaSayisi));
  f.TabloBasi(Gruplar);
  f.TabloSatiri(Gruplar, {"", OrtalaMetin(ilk, KisiHarfi), OrtalaMetin(DiziTekrarBasligi, KisiHarfi)});
  f.TabloSatiri(Kolonlar, {std::string(DiziSiraBasligi), no, ad, no, ad});
  f.TabloArasi(Kolonlar);
}

void Satirlar(CerceveliForm& f, const DiziSayfasi& d) {
  const std::size_t satirSayisi = DiziSatirSayisi(d.pusula);
  for (std::size_t sira = d.ilk; sira < d.ilk + DiziMetinSatiri; ++sira) {
    const DiziSatiri ilk = DizininSatiri(d.pusula.ilk, sira), tekrar = DizininSatiri(d.pusula.tekrar, sira);
    const std::string no = sira < satirSayisi ? std::to_string(sira + 1) : std::string();
    f.TabloSatiri(Kolonlar, {no, ilk.sskno, ilk.adsoy, tekrar.sskno, tekrar.adsoy});
  }
  f.TabloSonu(Kolonlar);
}

void Kapanis(CerceveliForm& f, const DiziSayfasi& d) {
  if (!d.Son()) return f.Satir(" " + std::string(DiziDevami));
  constexpr int yari = En / 2;
  std::vector<std::string> satirlar{
      std::string(DiziNotu),  "", DiziBeyani(d.pusula),
      DiziAlindisi(d.pusula), "", SagBosluk(DiziTeslimEden, yari) + std::string(DiziTeslimAlan)};
  for (std::size_t i = 0; i < std::size(DiziTeslimEdenSatirlari); ++i) {
    satirlar.emplace_back();
    satirlar.push_back(SagBosluk(std::string(DiziTeslimEdenSatirlari[i]) + Noktalar, yari) +
                       std::string(DiziTeslimAlanSatirlari[i]) + Noktalar);
  }
  satirlar.resize(KapanisSatiri - 2);
  for (const std::string& satir : satirlar) f.Satir(" " + satir);
}

}  // namespace

std::string DiziSayfasiMetni(const DiziSayfasi& sayfa) {
  CerceveliForm form(En);
  Bas(form, sayfa);
  Satirlar(form, sayfa);
  Kapanis(form, sayfa);
  form.Son();
  return form.Sablon() + "\n";
}

}  // namespace belvani
