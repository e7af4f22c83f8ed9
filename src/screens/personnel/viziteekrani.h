// ViziteEkrani: what the screens of the medical papers share: the person, his dates, the day of the visit, printing.
//
//   leaving the code          the person comes into the fields, and the twelve months before the visit
//   leaving the visit's date  the months, when it is another day
//
// What stands in the fields goes on the paper; nothing is saved. A code that nobody has leaves the fields as they are.
#pragma once

#include "core/tables/kimlik.h"
#include "ozluk/vizite.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

struct ViziteKagidi;

class ViziteEkrani : public PersonelFormu {
 protected:
  ViziteEkrani(EkranBaglami& baglam, const QString& kelime, const QString& baslik, ViziteTuru tur);

  // The fields of the person's card; `vizite` captions the day of the visit.
  static AlanGrubu KisiGrubu();
  static AlanGrubu TarihGrubu(const char* bugun, const char* vizite, bool bugunKapali);

  // When all fields stand.
  void Baslat();

  // The months come up, of the same person as before or of another one.
  virtual void AylariGoster(const ViziteAylari& aylar, bool ayniKisi) = 0;
  // Another person stands on the screen.
  virtual void KisiDegisti() {}
  // The screen's own part of the paper; false when something on it cannot stand, which is told.
  virtual bool KagidaYaz(ViziteKagidi& kagit) = 0;

  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  ViziteFormu Okunan() const;
  bool TabloyuYap(bool ayniKisi);
  void ViziteTarihindenAyrildi();
  void Yazdir();

  ViziteTuru tur_;
  std::optional<Kimlik> kimlik_;  // of the person on the screen
  Tarih tablodaki_;               // the visit whose months were asked for last
};

}  // namespace belvani
