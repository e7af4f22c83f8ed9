#include "screens/documents/setbrd.h"

namespace belvani {
namespace {

struct CizgiFormu {
  std::uint8_t satirArasi = 0, kolonArasi = 0;
};

constexpr std::string_view SatirArasiAdlari[] = {"Hiç Biri", "Çizgi Çek"};
constexpr std::string_view SutunArasiAdlari[] = {"Boş Bırak", "Dik Çizgi"};

}  // namespace

setbrd::setbrd(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : BelgeEkrani(baglam, parametreler, "setbrd", QStringLiteral("Özel Bordro")) {
  AlanlariDiz({{DonemAlanlari("Yıl", "Ay"),
                AralikAlanlari(false, "Personel Kodu"),
                {"Biçim",
                 {{Uye("satirArasi", &CizgiFormu::satirArasi), "Satırlar Arasında", {.liste = SatirArasiAdlari}},
                  {Uye("kolonArasi", &CizgiFormu::kolonArasi), "Sütunlar Arasında", {.liste = SutunArasiAdlari}}}}}});
  BelgeKomutlari();
  FontDugmesi(yazi_);
  Yukle(IlkSecim());
  Yukle(CizgiFormu{});
}

std::unique_ptr<Belge> setbrd::BelgeYap() {
  SecimFormu secim;
  CizgiFormu cizgi;
  if (!Oku(secim) || !Oku(cizgi)) return nullptr;
  const SayfaDuzeni duzen{.satirArasi = cizgi.satirArasi == 1 ? SatirArasi::CizgiCek : SatirArasi::Hicbiri,
                          .kolonArasi = KolonArasi(cizgi.kolonArasi)};
  return OzelBordroBelgesi(Kaynak(), secim.Secim(), duzen, yazi_);
}

}  // namespace belvani
