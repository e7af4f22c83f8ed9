#include "payroll/parametre/ekrankurallari.h"

#include "core/sayi.h"

namespace belvani {

std::string GvAltSinirMetni(const GvTablosu& tablo, int satir) {
  if (satir < 1) return {};
  std::string metin = TutarMetni(tablo.GvLimit[std::size_t(satir) - 1], 0);
  return metin == "0" ? std::string() : metin;
}

std::string KanunSatiriKusuru(const KanunSatiri& satir) {
  if (satir.bastar.Bos()) return "Kanun Başlangıç Tarihi Hatalı";
  if (satir.bittar.Bos()) return "Kanun Bitiş Tarihi Hatalı";
  return {};
}

std::vector<int> OranliDallar(const HesapTurleri& turler) {
  std::vector<int> dallar;
  for (int i = 0; i < DalSayisi; ++i)
    if (turler[std::size_t(i)].no != 0) dallar.push_back(i);
  return dallar;
}

}  // namespace belvani
