#include "screens/documents/brdzarf.h"

namespace belvani {
namespace {

struct PusulaFormu {
  std::uint8_t sayfada = 1;
};

constexpr std::string_view SayfadaAdlari[] = {"1", "2", "4"};
constexpr SayfadaYaprak Sayfada[] = {SayfadaYaprak::Bir, SayfadaYaprak::Iki, SayfadaYaprak::Dort};

}  // namespace

brdzarf::brdzarf(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : BelgeEkrani(baglam, parametreler, "brdzarf", QStringLiteral("Ücret Pusulası")) {
  AlanlariDiz(
      {{DonemAlanlari("Bordro Yılı", "Bordro Ayı"),
        AralikAlanlari(true, "Sicil No"),
        {"Biçim",
         {{Uye("sayfada", &PusulaFormu::sayfada),
           "Bir Yaprakta",
           {.liste = SayfadaAdlari, .secenek = true, .ipucu = "Grafik yazıcıda bir yaprağa basılan pusula"}}}}}});
  BelgeKomutlari();
  Yukle(IlkSecim());
  Yukle(PusulaFormu{});
}

std::unique_ptr<Belge> brdzarf::BelgeYap() {
  SecimFormu secim;
  PusulaFormu pusula;
  if (!Oku(secim) || !Oku(pusula)) return nullptr;
  return UcretPusulalari(Kaynak(), secim.Secim(), Sayfada[pusula.sayfada]);
}

}  // namespace belvani
