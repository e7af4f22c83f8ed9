#include "payroll/parametre/ekrankurallari.h"

#include "core/sayi.h"

namespace belvani {

std::string GvAltSinirMetni(const GvTablosu& tablo, int satir) {
  if (satir < 1) return {};
  std::string metin = TutarMetni(tablo.GvLimit[std::size_t(satir) - 1], 0);
  return metin == "0" ? std::string() : metin;
}

std::optional<Kusur> KanunSatiriKusuru(const KanunSatiri& satir) {
  if (satir.bastar.Bos()) return KanunTarihiKusuru("bastar");
  if (satir.bittar.Bos()) return KanunTarihiKusuru("bittar");
  return std::nullopt;
}

Kusur KanunTarihiKusuru(std::string_view alan) {
  if (alan == "bastar") return KuralKusuru("Kanun Başlangıç Tarihi Hatalı", {typeid(KanunSatiri), "bastar"});
  return KuralKusuru("Kanun Bitiş Tarihi Hatalı", {typeid(KanunSatiri), "bittar"});
}

std::vector<int> OranliDallar(const HesapTurleri& turler) {
  std::vector<int> dallar;
  for (int i = 0; i < DalSayisi; ++i)
    if (turler[std::size_t(i)].no != 0) dallar.push_back(i);
  return dallar;
}

}  // namespace belvani
