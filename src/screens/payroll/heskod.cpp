#include "screens/payroll/heskod.h"

#include "core/turkce.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

constexpr std::string_view EvetHayir[] = {"0", "1"};
constexpr int GorunenSatir = 16;

}  // namespace

heskod::heskod(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "heskod", QStringLiteral("Hesap Türleri"),
                  {ParametreKolonu<&HesapTuru::no>(50), ParametreKolonu<&HesapTuru::ack>(520),
                   ParametreKolonu<&HesapTuru::isKazasi>(80, {.liste = EvetHayir})}) {
  const bool degisir = std::exchange(Oturumu().PencereTip, {}) == "edit";
  Govde()->addWidget(new QLabel(QStringLiteral("İş Kazası Bölümünde eğer İş Kazası Primi kesilecekse '1' Kesilmeyecek "
                                               "is '0' yaziniz."),
                                this));
  Liste().Editable(degisir);
  Liste().GenisKolon("ack");
  Liste().SatirGuncelle = [this](int) { return Yaz(Okunan()); };
  if (degisir) IndirDugmesi(ParametreDosyasi::HesapTur, [this] { ListeyiGoster(); });
  Ac(GorunenSatir);
}

std::vector<HesapTuru> heskod::Satirlar() const {
  const HesapTurleri& turler = Parametreler().yasal.hesapTurleri;
  return {turler.begin(), turler.end()};
}

bool heskod::Yaz(const std::vector<HesapTuru>& satirlar) {
  HesapTurleri turler;
  std::ranges::copy(satirlar, turler.begin());
  for (HesapTuru& tur : turler) tur.ack = Kirp(tur.ack);
  return YasalYazildi(HesapTurleriKaydet(Oturumu().DataPath, turler));
}

}  // namespace belvani
