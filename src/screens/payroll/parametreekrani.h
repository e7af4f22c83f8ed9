// What the screens of the parameters share: the session's parameters, which are right again after every save, the
// download button, and fields of which only those are written that the user has changed: a figure with more decimals
// than the screen shows stays whole.
#pragma once

#include <set>

#include "payroll/hazirlik/tanimlar.h"
#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

enum class ParametreDosyasi;  // payroll/parametre/indir.h

class ParametreEkrani : public Form {
 protected:
  ParametreEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const QString& kelime, const QString& baslik);

  ParametreDeposu& Parametreler() const { return parametreler_; }
  // What the installed law is to the company's month.
  MevzuatGorusu Mevzuat() const;
  TanimOrtami Tanimlar() const { return {Oturumu(), parametreler_, Bildirimi()}; }

  // "Parametre İndir": fetches the file and loads it; then `goster` shows the new figures.
  void IndirDugmesi(ParametreDosyasi dosya, std::function<void()> goster);

  // After a file of the installation, or of the company, was written: a failure is told, a success loaded.
  bool YasalYazildi(const Durum& durum);
  bool FirmaYazildi(const Durum& durum);
  // After a save that has loaded what it saved.
  bool Yazildi(const Durum& durum);

  // Shows a record; nothing of it counts as changed.
  template <class Kayit>
  void Goster(const Kayit& kayit) {
    Yukle(kayit);
    degisen_.clear();
  }
  // Writes the fields that were changed since into `kayit`, or tells which one cannot be stored.
  template <class Kayit>
  bool DegisenleriOku(Kayit& kayit) {
    if (!AlanlarSaglam(typeid(Kayit))) return false;
    for (const auto& d : Denetimler())
      if (d->Satir().kayitTuru == typeid(Kayit) && degisen_.contains(d.get())) d->Satir().yaz(&kayit, d->Oku());
    return true;
  }
  // Looks up the key where it was typed and never left, so that F5 in the key field cannot overwrite a record unseen.
  void AnahtariBul();

 private:
  ParametreDeposu& parametreler_;
  std::set<const AlanDenetimi*> degisen_;
};

}  // namespace belvani
