#include "screens/payroll/sabpu.h"

#include "payroll/hesap/satirlar.h"
#include "payroll/parametre/dosyalar.h"

namespace belvani {
namespace {

constexpr std::array<std::string_view, YardimSayisi> TipAlanlari{"tip01", "tip02", "tip03", "tip04", "tip05", "tip06",
                                                                 "tip07", "tip08", "tip09", "tip10", "tip11"};

AlanGrubu Gunler() {
  AlanGrubu grup{"Gün ve Saatler", {}};
  for (std::size_t i = 0; i < KazancSayisi; ++i) {
    const bool gun = i < GunSatiriSayisi;
    const AlanTanimi kolon = gun ? AlanTanimi(GunKolonlari[i]) : AlanTanimi(MesaiKolonlari[i - GunSatiriSayisi]);
    grup.alanlar.push_back(DiziAlani(kolon.ad, &Sablon::SablonGun, i, KazancAdlari[i].data(),
                                     {.ondalik = gun ? 0 : 2, .enCok = kolon.sinir.enCok}));
  }
  return grup;
}

AlanGrubu Yardimlar(const YardimTanimlari& tanimlar) {
  AlanGrubu grup{"Yardımlar", {}, 2};
  for (std::size_t i = 0; i < YardimSayisi; ++i) {
    grup.alanlar.push_back(
        DiziAlani(YardimKolonlari[i].ad, &Sablon::SablonYardim, i, tanimlar[i].adi.c_str(), {.harf = 12}));
    grup.alanlar.push_back(DiziAlani(TipAlanlari[i], &Sablon::SablonYardimTip, i, i == 0 ? "Yardım Şekli" : "",
                                     {.liste = SablonTipAdlari}));
  }
  return grup;
}

}  // namespace

sabpu::sabpu(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "sabpu", QStringLiteral("Şablon Puantaj")),
      sablon_(SablonOku(baglam.oturum.FirmaDizini).deger) {
  AlanlariDiz({{Gunler()}, {Yardimlar(parametreler.firma.Parametreler().yardimlar)}});
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  Goster(sablon_);
}

void sabpu::Kaydet() {
  if (DegisenleriOku(sablon_) && FirmaYazildi(SablonKaydet(Oturumu().FirmaDizini, sablon_))) Kapat();
}

}  // namespace belvani
