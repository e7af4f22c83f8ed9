// What the screens of the papers share: the selection, and the commands that make the paper out of it.
//
//   F6 " Ekrana Listele"    F8 " Yazıcıya Yazdır"    F9 " Excel'e Gönder"    F2 in a code field: lookup
//
// A screen says which fields it has and makes its document (BelgeYap); everything after that is the same for all.
#pragma once

#include "documents/bordrobelgeleri.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "ui/form.h"

namespace belvani {

// The fields of a selection. Ranges of text begin empty and end in "ZZZZ", which takes everyone.
struct SecimFormu {
  std::int16_t yil = 0;
  std::uint8_t ay = 1;
  std::int16_t noBas = 1, noBit = 99;
  std::string kodBas, grupBas, tipBas, ozelBas;
  std::string kodBit = MetinAraligi{}.bit, grupBit = kodBit, tipBit = kodBit, ozelBit = kodBit;

  DefterSecim Secim() const;
};

// Rows of a selection: "Bordro Yılı" and "Bordro Ayı"; "Bordro no" from and to; people from and to.
AlanGrubu DonemAlanlari(const char* yilEtiketi, const char* ayEtiketi);
AlanGrubu AralikAlanlari(bool numarali, const char* kodEtiketi);
AlanGrubu KodAraligi(const char* kodEtiketi);  // of people alone, by code

class BelgeEkrani : public Form {
 protected:
  BelgeEkrani(EkranBaglami& baglam, const ParametreDeposu& parametreler, const QString& kelime, const QString& baslik);

  // The document as the fields say; null when one of them cannot be read, which was told.
  virtual std::unique_ptr<Belge> BelgeYap() = 0;

  // Fields first, then these: they stand in the bottom row.
  void BelgeKomutlari();
  // "Yazıcı Fontu ": the font that the document is printed in.
  void FontDugmesi(BelgeYazisi& yazi);

  // The working month of the company.
  SecimFormu IlkSecim() const;
  BelgeKaynagi Kaynak() const;
  // BelgeYap, its failures told.
  std::unique_ptr<Belge> Hazirla();

 private:
  const ParametreDeposu& parametreler_;
};

}  // namespace belvani
