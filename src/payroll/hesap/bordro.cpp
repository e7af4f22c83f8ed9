#include "payroll/hesap/bordro.h"

#include "payroll/hesap/hesap.h"
#include "payroll/hesap/sablonyay.h"

namespace belvani {
namespace {

// Amounts that a calculation gives; zero before it.
constexpr Tutar Brd::*SonucAlanlari[] = {
    &Brd::topyardim,
    &Brd::ucret,
    &Brd::brutkaz,
    &Brd::sskmatrah,
    &Brd::sskmatrahisveren,
    &Brd::sskkesinti,
    &Brd::sskkesintiisveren,
    &Brd::gvmatrah,
    &Brd::dvmatrah,
    &Brd::gvtutar,
    &Brd::dvtutar,
    &Brd::issizisci,
    &Brd::issizisveren,
    &Brd::yuvarlama,
    &Brd::ucrizmatrah,
    &Brd::katki,
    &Brd::indirim1,
    &Brd::indirim2,
    &Brd::indirim3,
    &Brd::sakindir,
    &Brd::sendika,
    &Brd::muaftutar,
    &Brd::ogv,
    &Brd::agimatrah,
};

template <class Izleyici>
BordroSonucu Calistir(const BordroGirdi& girdi, Izleyici izleyici) {
  Hesap<Izleyici> hesap(girdi, izleyici);
  hesap.Ucret();
  hesap.GunSatirlari();
  hesap.IlkTavan();
  hesap.UcretliIzinMatrahi();
  hesap.MesaiSatirlari();
  hesap.Yardimlar();
  hesap.SskMatrahi();
  hesap.IsciPaylari();
  hesap.GelirVergisiMatrahi();
  hesap.Sakatlik();
  hesap.DigerIndirimler();
  hesap.Vergiler();
  hesap.IsverenTarafi();
  hesap.AsgariGecimIndirimi();
  hesap.SendikaVeCirak();
  hesap.NetOdenen();
  return hesap.Sonuc();
}

void SablonYardimlariniYay(Brd& brd, const Sablon& sablon, int sskGun, Yuvarlayici yuvarla) {
  for (std::size_t i = 0; i < YardimKolonlari.size(); ++i)
    if (const auto tutar = SablonYardimi(sablon, int(i), sskGun, brd.ng, yuvarla)) brd.*YardimKolonlari[i].uye = *tutar;
}

}  // namespace

template <class I>
Hesap<I>::Hesap(const BordroGirdi& girdi, I izleyici)
    : g_(girdi),
      sicil_(*girdi.sicil),
      yasal_(girdi.yasal->oranlar),
      yuvarla_(girdi.paraonda),
      uygulama_(UygulamaSec(girdi.uygulama)),
      izle_(izleyici),
      sskGun_(SskGunu(girdi.giris)),
      k_(girdi.giris) {
  for (const auto alan : SonucAlanlari) k_.*alan = Tutar();
  k_.brdkanun = BastakiSayi(sicil_.kanun);
}

std::optional<Kusur> GirdiKusuru(const BordroGirdi& g) {
  constexpr int EnBuyukDerece = 3;
  if (g.sicil->sakatdrc > EnBuyukDerece)
    return KuralKusuru("Sakatlık derecesi 0 ile 3 arasında olmalı", sicil::sakatdrc);
  if (!HuzurHakkiMi(*g.sicil) && g.sicil->sskdurum >= DalSayisi)
    return KuralKusuru(
        "SSK durumu " + std::to_string(g.sicil->sskdurum) + " için prim oranı yok (0 ile 31 arasında olmalı)",
        sicil::sskdurum);
  if (g.IsSaati.Sayi() <= 0) return KuralKusuru("Günlük iş saati sıfırdan büyük olmalı");
  return std::nullopt;
}

int SskGunu(const Brd& brd) {
  int toplam = 0;
  for (const auto& kolon : GunKolonlari) toplam += brd.*kolon.uye;
  return toplam;
}

BordroSonucu BrutNetHesapla(const BordroGirdi& girdi) {
  return Calistir(girdi, Izsiz{});
}

BordroSonucu BrutNetHesapla(const BordroGirdi& girdi, Iz& iz) {
  return Calistir(girdi, Izli{&iz});
}

BordroSonucu BordroHesapla(const BordroGirdi& girdi, const Sablon* sablon, Iz* iz) {
  const int sskGun = SskGunu(girdi.giris);
  if (sskGun > girdi.CalismaGun) return {girdi.giris, Tutar(), sskGun, true};
  const auto hesapla = [&](const BordroGirdi& g) { return iz == nullptr ? BrutNetHesapla(g) : BrutNetHesapla(g, *iz); };
  if (sablon == nullptr) return hesapla(girdi);
  BordroGirdi yayilmis = girdi;
  SablonYardimlariniYay(yayilmis.giris, *sablon, sskGun, Yuvarlayici(girdi.paraonda));
  return hesapla(yayilmis);
}

template Hesap<Izsiz>::Hesap(const BordroGirdi&, Izsiz);
template Hesap<Izli>::Hesap(const BordroGirdi&, Izli);

}  // namespace belvani
