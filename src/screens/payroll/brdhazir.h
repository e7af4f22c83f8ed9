// brdhazir ("Bordro Hazırlık"): the month's payroll, person by person or for all at once. The thin view of
// payroll/hazirlik/giris.h: what comes up, closes, is saved and asked is decided there.
//
//   code field   Enter brings the person up; Home, End, PgUp, PgDn walk; coming back to it closes and saves the entry
//   entry        F9 turns a net allowance into gross, Ctrl+B opens the debt dialog
//   anywhere     F5 to the code field, F7 deletes the record, Ctrl+F7 the month, F4 walks the results, F6 month,
//                F8 "Puantaj "
//
// "Neden bu tutar?" tells how the amount under the cursor came about.
#pragma once

#include "payroll/hazirlik/giris.h"
#include "screens/payroll/nedenpaneli.h"
#include "ui/form.h"

class QComboBox;

namespace belvani {

class brdhazir : public Form {
 public:
  brdhazir(EkranBaglami& baglam, ParametreDeposu& parametreler);

  const BordroGirisi& Giris() const { return giris_; }

 protected:
  bool eventFilter(QObject* nesne, QEvent* olay) override;
  void closeEvent(QCloseEvent* olay) override;
  void showEvent(QShowEvent* olay) override;
  bool Kaydedilmemis() const override;
  bool YazilaniKaydet() override;

 private:
  void UstSatirYap();
  void KodAlaniYap(QHBoxLayout* satir);
  void GovdeYap();
  void KusurYaz(const QString& metin);
  void TuslariBagla();

  void AlanaGirildi(AlanDenetimi* yeni);
  void KodaGirildi();
  bool KisiyiGetir();
  void KapanisiGoster(KapanisSonucu sonuc);
  void Git(Yon yon);
  void GirisiOku();
  void Goster();
  void AcikAlanlariKur();
  void SebepSecildi();
  void BordroNoDoldur();
  void TopluHazirla();
  void SonuclaraGit();
  void BorcSor();
  void RehberAc();
  void Sil();
  void AyiSil();
  void AyiGeriAl();
  void ParametreleriGetir();
  void NettenBrute();
  void PuantajaGit();
  AlanDenetimi* Sahibi(const QObject* nesne) const;
  BordroAlani SimdikiAlan() const;
  void KodaDon();
  QString Para(Tutar tutar) const;
  void UyariRengi(bool kirmizi);

  BordroGirisi giris_;
  bool gosterildi_ = false;
  bool acik_ = false;  // the company has what a payroll needs
  QComboBox* ay_;
  QComboBox* bordroNo_;
  QComboBox* kaynak_;
  QLabel* kisi_;
  QLabel* uyari_;
  QHBoxLayout* girisler_;  // the columns that are typed into
  QLabel* kusur_;
  QLabel* muafiyet_;
  NedenPaneli* neden_;
  std::string rehberden_;  // picked from the guide in the middle of an entry
  AlanDenetimi* simdiki_ = nullptr;
  std::vector<AlanDenetimi*> degisen_;  // typed into since the last calculation
};

}  // namespace belvani
