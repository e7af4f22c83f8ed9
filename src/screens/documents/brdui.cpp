#include "screens/documents/brdui.h"

namespace belvani {
namespace {

struct IzinFormu {
  std::uint8_t tip = 0;
};

}  // namespace

brdui::brdui(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : BelgeEkrani(baglam, parametreler, "brdui", QStringLiteral("Ücretli İzinler Raporu")) {
  AlanlariDiz({{{"Rapor",
                 {{Uye("tip", &IzinFormu::tip), "Rapor Tipi", {.liste = IzinRaporAdlari}},
                  {Uye("yil", &SecimFormu::yil), "Yil", {.enCok = 9999}}}},
                KodAraligi("Personel Kodu")}});
  BelgeKomutlari();
  FontDugmesi(yazi_);
  Yukle(IzinFormu{});
  Yukle(IlkSecim());
}

std::unique_ptr<Belge> brdui::BelgeYap() {
  SecimFormu secim;
  IzinFormu izin;
  if (!Oku(secim) || !Oku(izin)) return nullptr;
  return IzinBelgesi(Kaynak(), secim.yil, secim.Secim().kod, IzinRaporu(izin.tip), yazi_);
}

}  // namespace belvani
