#include "payroll/hazirlik/parametredeposu.h"

#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {

Lira DefterLirasi(const Oturum& o, int yil) {
  constexpr int YeniLiraYili = 2005;
  return yil < YeniLiraYili && o.firma.paraonda == 0 ? Lira::Eski : Lira::Yeni;
}

void ParametreDeposu::YasalYukle(const std::string& dataPath) {
  yasal = YasalDosyalariYukle(dataPath, yasal).deger;
  ++yasalSurumu;
}

MevzuatGorusu ParametreDeposu::MevzuataBak(const Oturum& o, MevzuatAyi ay) {
  const KuruluMevzuat kurulu = KuruluMevzuatOku(o.DataPath);
  if (kurulu.uyarilar.empty() && kurulu.parametreler != yasal) YasalYukle(o.DataPath);
  return belvani::MevzuataBak(kurulu, ay);
}

Sonuc<MevzuatKurulumu> ParametreDeposu::MevzuatiGetir(const Oturum& o, MevzuatAyi ay, const MevzuatIstegi& istek) {
  const auto kaynak = ParametreAdresi(ay.yil, ay.ay, DefterLirasi(o, ay.yil));
  if (!kaynak) return kaynak.Kusuru();
  auto kurulum = MevzuatKur(o.DataPath, ay, *kaynak, istek);
  if (kurulum) YasalYukle(o.DataPath);
  return kurulum;
}

}  // namespace belvani
