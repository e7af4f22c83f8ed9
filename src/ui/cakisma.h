// cakisma ("Başka Kullanıcı"): asked when a save meets what another user has written meanwhile. It shows both values of
// every field in which they differ; "Bak" leads back to the screen, with nothing saved.
#pragma once

#include "core/store/cakisma.h"
#include "ui/form.h"

namespace belvani {

enum class CakismaKarari { Onunki, Benimki, Bak };

struct CakisanDeger {
  std::string etiket;
  std::string onunki;
  std::string benimki;
};

class cakisma : public Form {
 public:
  // `karar` is "Bak" until a button is pressed, and must outlive the screen.
  cakisma(EkranBaglami& baglam, CakismaTuru tur, const std::vector<CakisanDeger>& degerler, CakismaKarari& karar);

 private:
  QWidget* DegerleriYap(const std::vector<CakisanDeger>& degerler);

  CakismaKarari& karar_;
};

CakismaKarari CakismaSor(EkranBaglami& baglam, CakismaTuru tur, const std::vector<CakisanDeger>& degerler);

// The words of a value that has no field of its own on the screen, as that of a list's column.
using DegerDili = std::function<std::string(std::string_view alan, const Deger& deger)>;

// The two values of a column under the label that the screen has for it.
CakisanDeger CakisanDegeriYaz(const Form& form, std::string_view tablo, AlanTutamagi alan, const Deger& onunki,
                              const Deger& benimki, const DegerDili& dil);

// Asks whose values shall stay, and makes `kayit` the next attempt to write. False: it is left to the user, who looks,
// or whose record shall stay deleted.
template <class Kayit>
bool CakismayiCoz(EkranBaglami& baglam, const Form& form, Okunan<Kayit>& kayit, const Cakisma<Kayit>& engel,
                  const DegerDili& dil = {}) {
  std::vector<CakisanDeger> degerler;
  Kayit::HerKolon([&](const auto& kolon) {
    if (std::find(engel.alanlar.begin(), engel.alanlar.end(), AlanTutamagi(kolon)) == engel.alanlar.end()) return;
    degerler.push_back(CakisanDegeriYaz(form, Kayit::TabloAdi, kolon, UyeDegeri(engel.onunki.*kolon.uye),
                                        UyeDegeri(kayit.simdi.*kolon.uye), dil));
  });
  const CakismaKarari karar = CakismaSor(baglam, engel.tur, degerler);
  const bool silinmisKalir = engel.tur == CakismaTuru::Silinmis && karar == CakismaKarari::Onunki;
  if (karar == CakismaKarari::Bak || silinmisKalir) return false;
  Uzlastir(kayit, engel, karar == CakismaKarari::Onunki ? Galip::Onunki : Galip::Benimki);
  return true;
}

// Saves a record by `kaydet`, and asks for as long as another user's change stands against it. Other faults are told
// there. A result with a `cakisma` is left to the user.
template <class Kayit, class Kaydet>
auto SorarakKaydet(EkranBaglami& baglam, Form& form, Okunan<Kayit> kayit, Kaydet&& kaydet, const DegerDili& dil = {}) {
  while (true) {
    auto sonuc = kaydet(kayit);
    if (sonuc) return sonuc;
    if (!sonuc.Kusuru().cakisma) {
      form.Bildir(sonuc.Kusuru());
      return sonuc;
    }
    if (!CakismayiCoz(baglam, form, kayit, *sonuc.Kusuru().cakisma, dil)) return sonuc;
  }
}

}  // namespace belvani
