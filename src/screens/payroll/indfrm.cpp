#include "screens/payroll/indfrm.h"

#include "payroll/hesap/indirim.h"

namespace belvani {
namespace {

constexpr std::string_view IndirimAdlari[] = {"İndirim1", "İndirim2", "İndirim3"};

}  // namespace

indfrm::indfrm(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "indfrm", QStringLiteral("İndirimler"),
                  {AdKolonu<Indir>("", 80, IndirimAdlari), UyeKolonu(indir::adi, "İndirim İsmi", 190),
                   UyeKolonu(indir::sabit, "Sabit İndirim", 120, {.ondalik = baglam.oturum.firma.paraonda}),
                   UyeKolonu(indir::oran, "% İndirim", 90),
                   UyeKolonu(indir::indtip, "İndirim Yeri", 200, {.liste = IndirimYerleri})}) {
  const auto oku = [this] {
    std::vector<Indir> satirlar;
    for (const auto& t : Parametreler().firma.Parametreler().indirimler) satirlar.push_back(t.value_or(Indir{}));
    return satirlar;
  };
  Ac(3, oku, [this](const auto& satirlar) {
    return Yazildi(IndirimleriKaydet(Tanimlar(), Dizide<std::array<Indir, 3>>(satirlar)));
  });
}

}  // namespace belvani
