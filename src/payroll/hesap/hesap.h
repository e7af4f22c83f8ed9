// Inside of the calculation: its working values and its steps, in the order in which bordro.cpp runs them. Not for
// other rooms; they call bordro.h.
#pragma once

#include "payroll/hesap/bordro.h"
#include "payroll/hesap/isveren.h"
#include "payroll/hesap/oran.h"
#include "payroll/hesap/satirlar.h"
#include "payroll/hesap/ucret.h"

namespace belvani {

template <class Izleyici>
class Hesap {
 public:
  Hesap(const BordroGirdi& girdi, Izleyici izleyici);

  // Earnings and bases (hesapkazanc.cpp).
  void Ucret();
  void GunSatirlari();
  void IlkTavan();
  void UcretliIzinMatrahi();
  void MesaiSatirlari();
  void Yardimlar();
  void SskMatrahi();

  // Deductions and net (hesapkesinti.cpp).
  void IsciPaylari();
  void GelirVergisiMatrahi();
  void Sakatlik();
  void DigerIndirimler();
  void Vergiler();
  void IsverenTarafi();
  void VergiDilimleriniIzle();
  void AsgariGecimIndirimi();
  void SendikaVeCirak();
  void NetOdenen();

  BordroSonucu Sonuc() const { return {k_, net_, sskGun_, false}; }

 private:
  void CirakSifirla();
  Tutar GunTavani() const { return GunlukSinir(yasal_.SskTavan, sskGun_, yuvarla_); }

  // Adds a line to the bases that its flags name: not money-rounded, stored with four decimals.
  void MatrahlaraEkle(std::uint8_t bayraklar, double deger) {
    if (bayraklar & bayrak::Ssk) k_.sskmatrah = Tutar(k_.sskmatrah.Sayi() + deger);
    if (bayraklar & bayrak::Gv) k_.gvmatrah = Tutar(k_.gvmatrah.Sayi() + deger);
    if (bayraklar & bayrak::Dv) k_.dvmatrah = Tutar(k_.dvmatrah.Sayi() + deger);
  }
  void MatrahlaraEkle(std::uint8_t bayraklar, Tutar deger) {
    if (bayraklar & bayrak::Ssk) k_.sskmatrah += deger;
    if (bayraklar & bayrak::Gv) k_.gvmatrah += deger;
    if (bayraklar & bayrak::Dv) k_.dvmatrah += deger;
  }

  const BordroGirdi& g_;
  const Sicil& sicil_;
  const YasalOranlar& yasal_;
  const Yuvarlayici yuvarla_;
  const Uygulama uygulama_;
  const Izleyici izle_;
  const int sskGun_;

  Brd k_;  // the record under calculation
  Tutar gunlukUcret_;
  Tutar saatlikUcret_;
  Tutar kalanMatrah_;  // income-tax base left after deductions: what is taxed this month
  Tutar net_;
};

}  // namespace belvani
