#include "personnel/kodkayitlari.h"

#include "core/store/kisibordrolari.h"
#include "core/tables/kodtasiyanlar.h"
#include "core/tables/tablolar.h"
#include "payroll/hazirlik/aysaklama.h"

namespace belvani {
namespace {

std::size_t KayitSayisi(Motor& motor, std::string_view tablo, std::string_view kod) {
  if (motor.Kolonlar(tablo).empty()) return 0;  // a store of an earlier version
  if (tablo == Brd::TabloAdi) return KisininBordroNumaralari(motor, kod).size();
  const auto komut = motor.Hazirla("select count(*) from " + std::string(tablo) + " where kod = ?");
  komut->MetinBagla(1, kod);
  return komut->Adim() ? std::size_t(komut->Tam(0)) : 0;
}

}  // namespace

std::vector<KodKaydi> KodunKayitlari(Motor& motor, std::string_view kod) {
  std::vector<KodKaydi> kayitlar;
  for (const auto& [tablo, ad] : KodTasiyanTablolar) kayitlar.push_back({tablo, ad, KayitSayisi(motor, tablo, kod)});
  kayitlar.push_back({"brdonceki", "saklanan bordro", SaklananlarinNumaralari(motor, kod).size()});
  std::erase_if(kayitlar, [](const KodKaydi& k) { return k.sayi == 0; });
  return kayitlar;
}

std::string KayitSayilari(const std::vector<KodKaydi>& kayitlar) {
  std::string metin;
  for (const KodKaydi& k : kayitlar)
    metin += (metin.empty() ? "" : ", ") + std::string(k.ad) + " " + std::to_string(k.sayi);
  return metin;
}

}  // namespace belvani
