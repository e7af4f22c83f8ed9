#include "screens/payroll/kanun.h"

#include <QTimer>

#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/ekrankurallari.h"
#include "screens/payroll/parametrealani.h"
#include "ui/metin.h"

namespace belvani {
namespace {

constexpr int GorunenSatir = 10;

}  // namespace

kanun::kanun(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "kanun", QStringLiteral("Kanun Tarihleri"),
                  {ParametreKolonu<&KanunSatiri::bastar>(120), ParametreKolonu<&KanunSatiri::bittar>(120),
                   ParametreKolonu<&KanunSatiri::uygulama>(100)}) {
  Liste().YeniSatirli(true);
  Liste().SatirGuncelle = [this](int satir) { return SatirSaglam(satir); };
  Liste().SatirSil = [this](int) { return Bildirimi().SilinsinMi("Satır Silinecek..\nEminmisiniz ???", {}); };
  // A text that is no date has come here as an empty one; what was typed stays in the cell.
  Liste().Dogrula = [this](int, const QString& kolon, QString& metin) {
    if (kolon == "uygulama" || !metin.isEmpty()) return true;
    Bildir(KanunTarihiKusuru(Utf8(kolon)));
    return false;
  };
  YaziEkle(QStringLiteral("Insert satır ekler, Delete siler."), "soluk");
  Ac(
      GorunenSatir, [this] { return Parametreler().yasal.kanunlar; },
      [this](const auto& satirlar) { return Sakla(satirlar); });
}

// Rows that were opened and never filled are left out.
bool kanun::Sakla(const std::vector<KanunSatiri>& satirlar) {
  Kanunlar dolular;
  for (std::size_t i = 0; i < satirlar.size(); ++i) {
    if (satirlar[i] == KanunSatiri{}) continue;
    if (!SatirSaglam(int(i))) return false;
    dolular.push_back(satirlar[i]);
  }
  if (!YasalYazildi(KanunlarKaydet(Oturumu().DataPath, dolular))) return false;
  if (Parametreler().yasal.kanunlar != dolular)
    Bildirimi().Bilgi("Dörtten az satır saklanamaz; hazır kanun tarihleri geri konuldu.");
  return true;
}

// The cursor comes back to a row that cannot stand, whichever way it was left.
bool kanun::SatirSaglam(int satir) {
  const auto kusur = KanunSatiriKusuru(Okunan()[std::size_t(satir)]);
  if (!kusur) return true;
  Bildir(*kusur);
  QTimer::singleShot(0, &Liste(), [this, satir, alan = Yazi(kusur->alan.ad)] {
    Liste().HucreyeGit(satir, alan);
    Liste().setFocus();
  });
  return false;
}

}  // namespace belvani
