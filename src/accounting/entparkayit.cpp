#include "accounting/entparkayit.h"

#include "core/store/koru.h"

namespace belvani {
namespace {

constexpr std::size_t NoHanesi = 3;

struct OneriSatiri {
  std::uint8_t yer;
  std::uint8_t ba;
  const char* altHesap;
  const char* hesap;
};

// "Net Ödenen" is gross less the employee's deductions plus the allowance, so the allowance stands against the tax.
constexpr OneriSatiri Oneri[] = {{5, BorcTarafi, "770.01", "770"},    {20, BorcTarafi, "770.02", "770"},
                                 {16, AlacakTarafi, "335.01", "335"}, {11, AlacakTarafi, "360.01", "360"},
                                 {15, BorcTarafi, "360.01", "360"},   {12, AlacakTarafi, "360.02", "360"},
                                 {21, AlacakTarafi, "361.01", "361"}};

}  // namespace

std::string EntparAnahtari(const std::string& grup, std::size_t no) {
  std::string sayi = std::to_string(no);
  sayi.insert(0, NoHanesi - std::min(NoHanesi, sayi.size()), '0');
  return grup + sayi;
}

std::vector<std::string> OzelKodlar(Motor& motor) {
  const auto komut = motor.Hazirla("select ozel from sicil where ozel > '' group by ozel order by ozel");
  std::vector<std::string> kodlar;
  while (komut->Adim()) kodlar.emplace_back(komut->Metin(0));
  return kodlar;
}

EntparGrubu EntparOku(Motor& motor, const std::string& grup) {
  Tablo<Entpar> tablo(motor);
  EntparGrubu sonuc{.grup = grup, .satirlar = {}};
  for (std::size_t no = 0; no < EntparSatiri; ++no) {
    Okunan<Entpar>& satir = sonuc.satirlar[no];
    satir.ilk = tablo.Bul(EntparAnahtari(grup, no));
    satir.simdi = satir.ilk.value_or(Entpar{});
    satir.simdi.no = std::uint8_t(no);
    satir.simdi.grup = grup;
    satir.simdi.grupno = EntparAnahtari(grup, no);
  }
  return sonuc;
}

Durum HesaplariDenetle(const EntparSatirlari& satirlar, const HesapPlani& plan) {
  for (std::size_t i = 0; i < satirlar.size(); ++i) {
    if (satirlar[i].yer == YerYok || plan.Bul(satirlar[i].hesap) != nullptr) continue;
    Kusur kusur =
        KuralKusuru(satirlar[i].hesap + " Hesabı Muhasebede Bulunamadı..\nHesap Kodlarını Düzeltiniz..", entpar::hesap);
    kusur.satir = int(i) + 1;
    return kusur;
  }
  return Tamam();
}

Yazim<Entpar> EntparYaz(Motor& motor, const Okunan<Entpar>& satir) {
  const auto yazilan = [&]() -> Yazim<Entpar> {
    try {
      return Tablo<Entpar>(motor).Yaz(satir);
    } catch (const MotorHatasi& hata) {
      return YazmaEngeli<Entpar>(Kusur{hata.what()});
    }
  }();
  if (yazilan || yazilan.Kusuru().cakisma) return yazilan;
  YazmaEngeli<Entpar> engel = yazilan.Kusuru();
  engel.metin = std::to_string(satir.simdi.no) + " Nolu Enflasyon Parametresi Yazılamadı.\n" + engel.metin;
  return engel;
}

int EntparSil(Motor& motor, const std::string& grup) {
  Islem islem(motor);
  Tablo<Entpar> tablo(motor);
  int silinen = 0;
  for (std::size_t no = 0; no < EntparSatiri; ++no) silinen += tablo.Sil(EntparAnahtari(grup, no)) ? 1 : 0;
  islem.Onayla();
  return silinen;
}

EntparSatirlari EntparOnerisi(const HesapPlani* plan) {
  EntparSatirlari satirlar;
  for (std::size_t i = 0; i < std::size(Oneri); ++i) {
    const OneriSatiri& oneri = Oneri[i];
    const bool altHesapVar = plan == nullptr || plan->Bul(oneri.altHesap) != nullptr;
    satirlar[i].yer = oneri.yer;
    satirlar[i].ba = oneri.ba;
    satirlar[i].hesap = altHesapVar ? oneri.altHesap : oneri.hesap;
  }
  return satirlar;
}

}  // namespace belvani
