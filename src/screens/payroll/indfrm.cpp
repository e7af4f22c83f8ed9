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
  Ac(3);
}

std::vector<Indir> indfrm::Satirlar() const {
  std::vector<Indir> satirlar;
  for (const auto& tanim : Parametreler().firma.Parametreler().indirimler) satirlar.push_back(tanim.value_or(Indir{}));
  return satirlar;
}

bool indfrm::Yaz(const std::vector<Indir>& satirlar) {
  std::array<Indir, 3> indirimler;
  std::ranges::copy(satirlar, indirimler.begin());
  if (!Oldu(IndirimleriKaydet(Tanimlar(), indirimler))) return false;
  ZoomEfekt();
  return true;
}

}  // namespace belvani
