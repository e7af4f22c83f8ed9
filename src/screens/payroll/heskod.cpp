#include "screens/payroll/heskod.h"

#include "payroll/parametre/indir.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

constexpr std::string_view EvetHayir[] = {"0", "1"};

}  // namespace

heskod::heskod(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : HesapTuruEkrani(baglam, parametreler, "heskod", QStringLiteral("Hesap Türleri"),
                      {ParametreKolonu<&HesapTuru::no>(50), ParametreKolonu<&HesapTuru::ack>(520),
                       ParametreKolonu<&HesapTuru::isKazasi>(80, {.liste = EvetHayir})}) {
  const bool degisir = std::exchange(Oturumu().PencereTip, {}) == "edit";
  Govde()->addWidget(new QLabel(QStringLiteral("İş Kazası Bölümünde eğer İş Kazası Primi kesilecekse '1' Kesilmeyecek "
                                               "is '0' yaziniz."),
                                this));
  if (degisir) IndirDugmesi(ParametreDosyasi::HesapTur, [this] { ListeyiGoster(); });
  TurleriAc(degisir);
}

}  // namespace belvani
