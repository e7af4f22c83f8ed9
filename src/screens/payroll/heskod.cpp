#include "screens/payroll/heskod.h"

#include <QTimer>

#include "core/turkce.h"
#include "payroll/parametre/ekrankurallari.h"
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
  Liste().SatirGuncelle = [this](int) { return Yaz(); };
  if (degisir) IndirDugmesi(ParametreDosyasi::HesapTur, [this] { ListeyiGoster(); });
  const auto yaz = [this](const auto& satirlar) {
    auto turler = Dizide<HesapTurleri>(satirlar);
    for (HesapTuru& tur : turler) tur.ack = Kirp(tur.ack);
    if (const auto kusur = HesapTurleriKusuru(turler)) {
      Bildir(*kusur);
      QTimer::singleShot(0, &Liste(), [this, satir = kusur->satir - 1] { Liste().HucreyeGit(satir, "no"); });
      return false;
    }
    return YasalYazildi(HesapTurleriKaydet(Oturumu().DataPath, turler));
  };
  Ac(
      GorunenSatir, [this] { return Satirlar(Parametreler().yasal.hesapTurleri); }, yaz);
}

}  // namespace belvani
