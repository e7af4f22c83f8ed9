// xprn: the text printer. A document is a stream of characters in a temporary file, which a program of its own then
// sends to the printer.
//
// Direct use: OpenDosPrint, DosDirectPrint for each piece, CloseDosPrint; paging is the document's own business.
// Column mode: AddKolon for each column, xprnOpen, then Bilgi and LPrn for each line. The heads, the lines and the free
// lines at the foot of a page are counted here, and the owner is asked for head and foot by the two events.
//
// The Esc key stops a print at any letter: the rest of the piece goes out unconverted, and every later call returns
// False, without a message, until xprnReset.
//
//   xprn yazici(ayar, ortam);
//   if (!yazici.OpenDosPrint()) return Uyari(DosDosyasiAcilamiyor);
//   yazici.DosDirectPrint(OrtalaMetin("ÜCRET PUSULASI", 80), SatirSonu::Var, DosBicem::Kalin);
//   yazici.CloseDosPrint();
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "core/tarih.h"
#include "printing/paralelport.h"
#include "printing/rapor.h"
#include "printing/yzcayar.h"

namespace belvani {

// What a document says when OpenDosPrint gives False.
inline constexpr const char* DosDosyasiAcilamiyor = "Dos Yazıcı Dosyası Açılamıyor";

enum class SatirSonu { Yok, Var };

// Styles of a piece, and of a column. They can be joined.
enum class DosBicem : unsigned {
  Duz = 0,
  Kalin = 1,  // double strike
  Ikinci = 2,
  Ucuncu = 4,
  TireDizisi = 128,  // a column prints as a row of "-" instead of its value
};
constexpr DosBicem operator|(DosBicem a, DosBicem b) {
  return DosBicem(unsigned(a) | unsigned(b));
}
constexpr bool BicemVar(DosBicem hepsi, DosBicem biri) {
  return (unsigned(hepsi) & unsigned(biri)) != 0;
}

enum class xprnTuru { Metin = 0, Sayi = 1, Tarih = 2, Bos = 3, KisaTarih = 4 };

// What a column starts with.
struct xprnKolonu {
  xprnTuru tur = xprnTuru::Metin;
  std::string baslik1;  // second line of the heads
  std::string baslik2;  // first line; when any column has one, the heads have two lines
  int en = 0;           // letters
  int ondalik = 0;
};

// What the control needs from its surroundings.
struct xprnOrtami {
  Bildirim& bildirim;
  ParalelPort& port;
  std::function<Durum(const std::string& dosya)> belprn;  // sends the finished file; does not wait
  std::function<bool()> escBasili = [] { return false; };
  std::function<Tarih()> bugun = &Tarih::Bugun;
  std::string unvan = {};    // of the company
  std::string portAdi = {};  // of the selected printer, "LPT1:"
};

class xprn {
 public:
  xprn(YzcAyarlari& ayar, xprnOrtami ortam);

  // --- direct ---

  bool OpenDosPrint();  // a new temporary file
  bool DosDirectPrint(std::string_view metin, SatirSonu sonu, DosBicem bicem = DosBicem::Duz);
  // A full disk or a refused directory is told here; nothing is sent then.
  Durum CloseDosPrint();

  // Letter by letter to the port, the line end in front. Slow: no document uses it.
  bool DosDirectPrint2(std::string_view metin, SatirSonu sonu, DosBicem bicem = DosBicem::Duz);
  bool CheckDosPrint();
  int DosPrintPort() const { return portNo_; }
  void DosPrintPort(int no);  // 0 to 4; any other is ignored

  // --- columns ---

  void AddKolon(xprnKolonu kolon);  // at most 255
  void xprnReset();
  bool xprnOpen(int mod);  // 0 none, 1 graphic, 2 text; the print settings correct 1 and 2
  Durum xprnClose();
  void Bilgi(int kolon, Hucre deger);  // columns from 0; one that is not there is ignored
  void Bilgi(int kolon, DosBicem bicem, Hucre deger);
  Hucre Bilgi(int kolon) const;
  void xprnOnda(int kolon, int ondalik);
  bool LPrn();                       // the values of the columns
  bool LPrn(std::string_view harf);  // a rule of that letter
  void xPrnNewPage(const std::string& baslik);
  void xPrnEndPage();

  bool xprnCondencePrint = true;
  int SonSat = 0;                                   // lines kept free at the foot
  int xprnYzcEn = 132;                              // letters of a line
  std::function<void(int& sayfaNo)> SayfaBasi;      // must print the head, by xPrnNewPage
  std::function<void(int& satirSayisi)> SayfaSonu;  // once a page, when only the free lines are left

  int SatirSayaci() const { return satir_; }

 private:
  struct Kolon {
    xprnKolonu tanim;
    Hucre deger = {};
    DosBicem bicem = DosBicem::Duz;
  };

  bool Kes();
  bool SatirYaz(const std::string& satir);
  std::string Alan(const Kolon& kolon) const;
  std::string Cizgi(std::string_view harf) const;
  void SayfaBasligi(const std::string& baslik);
  bool BaytGonder(std::uint8_t bayt);

  YzcAyarlari& ayar_;
  xprnOrtami ortam_;
  std::string dosya_;  // where the stream goes; empty: none is open
  std::string akis_;
  bool acik_ = true;
  int mod_ = 0;
  int portNo_ = 0;
  std::uint8_t portDurumu_ = 0;
  std::vector<Kolon> kolonlar_;
  bool ikiSatirBaslik_ = false;
  int sayfaNo_ = 0;
  int satir_ = 0;
  bool sonuSoylendi_ = false;
};

}  // namespace belvani
