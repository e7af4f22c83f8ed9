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

std::optional<Kusur> HesapTurleriKusuru(const HesapTurleri& turler) {
  for (std::size_t i = 0; i < turler.size(); ++i)
    for (std::size_t once = 0; once < i; ++once) {
      if (turler[i].no == 0 || turler[i].no != turler[once].no) continue;
      Kusur kusur = KuralKusuru("Hesap Türü No iki kez verilemez: " + std::to_string(turler[i].no) + " (" +
                                    std::to_string(once + 1) + ". ve " + std::to_string(i + 1) + ". satır)",
                                {typeid(HesapTuru), "no"});
      kusur.satir = int(i) + 1;
      return kusur;
    }
  return std::nullopt;
}

KazancBayraklari OnerilenBayraklar() {
  using namespace bayrak;
  constexpr std::uint8_t vergili = Acik | Gv | Dv;
  constexpr std::uint8_t tam = vergili | Ssk;
  constexpr std::uint8_t muafiyetli = tam | Muaf;
  constexpr std::uint8_t yalnizDamga = Acik | Dv;
  KazancBayraklari b;
  b.k.fill(tam);
  b.y = {tam, muafiyetli,  muafiyetli,  muafiyetli, yalnizDamga, yalnizDamga,
         tam, yalnizDamga, yalnizDamga, vergili,    yalnizDamga};
  return b;
}

std::vector<int> OranliDallar(const HesapTurleri& turler) {
  std::vector<int> dallar;
  for (int i = 0; i < DalSayisi; ++i)
    if (turler[std::size_t(i)].no != 0) dallar.push_back(i);
  return dallar;
}

}  // namespace belvani
