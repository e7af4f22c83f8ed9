#include "screens/payroll/yrdisim.h"

#include "core/tables/muaf.h"
#include "payroll/hesap/muafiyet.h"

namespace belvani {

namespace {

static_assert(ListeyeUyar(muaf::indtip, MuafiyetSekilleri.size()));

constexpr std::string_view YardimNolari[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"};
static_assert(std::size(YardimNolari) == YardimSayisi);

}  // namespace

yrdisim::yrdisim(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "yrdisim", QStringLiteral("Yardım İsimlendirme"),
                  {AdKolonu<YardimTanimi>("No", 40, YardimNolari),
                   UyeKolonu("adi", "Açıklama", 220, &YardimTanimi::adi, {.enCok = muaf::adi.boyut}),
                   UyeKolonu("indtip", "Muafiyet Şekli", 180, &YardimTanimi::indtip, {.liste = MuafiyetSekilleri}),
                   UyeKolonu("oran", "Oran %", 90, &YardimTanimi::oran, {.enCok = EnBuyukGirdi(muaf::oran)}),
                   UyeKolonu("sabit", "Sabit", 120, &YardimTanimi::sabit, {.ondalik = baglam.oturum.firma.paraonda})}) {
  Ac(
      YardimSayisi, [this] { return Satirlar(Parametreler().firma.Parametreler().yardimlar); },
      [this](const auto& satirlar) {
        return Yazildi(YardimlariKaydet(Tanimlar(), Dizide<YardimTanimlari>(satirlar)));
      });
}

}  // namespace belvani
