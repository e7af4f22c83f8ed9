// KolonYazici: a table as a plain printer writes it: columns of fixed width, line by line. The heads, the lines and the
// free lines at the foot of a page are counted here, and the owner is asked for head and foot by two events. It is the
// column mode of the text printer (xprn.h), and writes the text form of the screen's lists (kolonmetni.h).
//
//   yazici.xprnReset();
//   yazici.AddKolon({xprnTuru::Metin, "Adı", "", 20});
//   yazici.SayfaBasi = [&](int&) { yazici.xPrnNewPage("Şubat"); };
//   if (!yazici.xprnOpen(KolonYazici::MetinModu)) return;
//   yazici.Bilgi(0, adi);
//   yazici.LPrn();
//   Durum durum = yazici.xprnClose();
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/sonuc.h"
#include "core/tarih.h"
#include "printing/doskod.h"
#include "printing/rapor.h"
#include "printing/yzcayar.h"

namespace belvani {

enum class xprnTuru { Metin = 0, Sayi = 1, Tarih = 2, Bos = 3, KisaTarih = 4 };

// What a column starts with.
struct xprnKolonu {
  xprnTuru tur = xprnTuru::Metin;
  std::string baslik1;  // second line of the heads
  std::string baslik2;  // first line; when any column has one, the heads have two lines
  int en = 0;           // letters
  int ondalik = 0;
};

class KolonYazici {
 public:
  virtual ~KolonYazici() = default;

  static constexpr int MetinModu = 2;

  void xprnReset();        // no columns, no page; takes lines again
  bool xprnOpen(int mod);  // 0 none, 1 graphic, 2 text; the print settings correct 1 and 2
  Durum xprnClose();

  void AddKolon(xprnKolonu kolon);     // at most 255
  void Bilgi(int kolon, Hucre deger);  // columns from 0; one that is not there is ignored
  void Bilgi(int kolon, DosBicem bicem, Hucre deger);
  Hucre Bilgi(int kolon) const;
  void xprnOnda(int kolon, int ondalik);
  bool LPrn();                       // the values of the columns
  bool LPrn(std::string_view harf);  // a rule of that letter
  void xPrnNewPage(const std::string& baslik);
  void xPrnEndPage();

  int SonSat = 0;                                   // lines kept free at the foot
  int xprnYzcEn = 132;                              // letters of a line
  std::function<void(int& sayfaNo)> SayfaBasi;      // must print the head, by xPrnNewPage
  std::function<void(int& satirSayisi)> SayfaSonu;  // once a page, when only the free lines are left

  int SatirSayaci() const { return satir_; }

 protected:
  KolonYazici(const YzcAyarlari& ayar, std::string unvan, std::function<Tarih()> bugun);
  KolonYazici(const KolonYazici&) = default;

  bool acik_ = true;  // false: closed, or stopped by its user

 private:
  struct Kolon {
    xprnKolonu tanim;
    Hucre deger = {};
    DosBicem bicem = DosBicem::Duz;
  };

  // The way of the lines; a failed one leaves `acik_` false.
  virtual void YoluAc() { acik_ = true; }
  virtual Durum YoluKapat() { return Tamam(); }
  virtual bool SatirVer(const std::string& satir) = 0;  // false: this one did not go out

  bool SatirAlir() const { return acik_ && mod_ == MetinModu; }
  bool SatirYaz(const std::string& satir);
  std::string Cizgi(std::string_view harf) const;
  void SayfaBasligi(const std::string& baslik);

  const YzcAyarlari& ayar_;
  std::string unvan_;
  std::function<Tarih()> bugun_;
  std::vector<Kolon> kolonlar_;
  bool ikiSatirBaslik_ = false;
  int mod_ = 0;
  int sayfaNo_ = 0;
  int satir_ = 0;
  bool sonuSoylendi_ = false;
};

}  // namespace belvani
