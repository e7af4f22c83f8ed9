#include "screens/payroll/hesapturuekrani.h"

#include <QTimer>

#include "core/turkce.h"
#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/ekrankurallari.h"

namespace belvani {

void HesapTuruEkrani::TurleriAc(bool degisir) {
  constexpr int gorunenSatir = 16;
  Liste().Editable(degisir);
  Liste().GenisKolon("ack");
  Liste().SatirGuncelle = [this](int) { return Yaz(); };
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
      gorunenSatir, [this] { return Satirlar(Parametreler().yasal.hesapTurleri); }, yaz);
}

}  // namespace belvani
