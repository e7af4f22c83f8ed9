#include "screens/payroll/yrdisim.h"

#include "payroll/hesap/muafiyet.h"

namespace belvani {

namespace {

static_assert(ListeyeUyar(muaf::indtip, MuafiyetSekilleri.size()));

constexpr std::string_view YardimNolari[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"};
static_assert(std::size(YardimNolari) == YardimSayisi);

}  // namespace

yrdisim::yrdisim(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "yrdisim", QStringLiteral("Yardım İsimlendirme"),
                  {AdKolonu<Muaf>("No", 40, YardimNolari), UyeKolonu(muaf::adi, "Açıklama", 220),
                   UyeKolonu(muaf::indtip, "Muafiyet Şekli", 180, {.liste = MuafiyetSekilleri}),
                   UyeKolonu(muaf::oran, "Oran %", 90),
                   UyeKolonu(muaf::sabit, "Sabit", 120, {.ondalik = baglam.oturum.firma.paraonda})}) {
  Ac(
      YardimSayisi, [this] { return Satirlar(Parametreler().firma.Parametreler().yardimlar); },
      [this](const auto& satirlar) {
        return Yazildi(YardimlariKaydet(Tanimlar(), Dizide<YardimTanimlari>(satirlar)));
      });
}

}  // namespace belvani
