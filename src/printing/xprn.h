// xprn: the text printer. A document is a stream of characters in a temporary file, which a program of its own then
// sends to the printer.
//
// Direct use: OpenDosPrint, DosDirectPrint for each piece, CloseDosPrint; paging is the document's own business.
// Column mode: AddKolon for each column, xprnOpen, then Bilgi and LPrn for each line, xprnClose (kolonyazici.h).
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

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "printing/kolonyazici.h"
#include "printing/paralelport.h"

namespace belvani {

// What a document says when OpenDosPrint gives False.
inline constexpr const char* DosDosyasiAcilamiyor = "Dos Yazıcı Dosyası Açılamıyor";

enum class SatirSonu { Yok, Var };

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

class xprn : public KolonYazici {
 public:
  xprn(YzcAyarlari& ayar, xprnOrtami ortam);

  // --- direct ---

  bool OpenDosPrint();  // a new temporary file
  bool DosDirectPrint(std::string_view metin, SatirSonu sonu, DosBicem bicem = DosBicem::Duz);
  // A full disk or a refused directory is told here; nothing is sent then.
  Durum CloseDosPrint();

  // Letter by letter to the port, the line end in front: for printers of this computer's own.
  bool DosDirectPrint2(std::string_view metin, SatirSonu sonu, DosBicem bicem = DosBicem::Duz);
  bool CheckDosPrint();
  int DosPrintPort() const { return portNo_; }
  void DosPrintPort(int no);  // 0 to 4; any other is ignored

  bool xprnCondencePrint = true;  // of the column mode

 private:
  void YoluAc() override;
  Durum YoluKapat() override;
  bool SatirVer(const std::string& satir) override { return DosDirectPrint(satir, SatirSonu::Var); }
  bool Kes();
  bool BaytGonder(std::uint8_t bayt);

  xprnOrtami ortam_;
  std::string dosya_;  // where the stream goes; empty: none is open
  std::string akis_;
  int portNo_ = 0;
  std::uint8_t portDurumu_ = 0;
};

}  // namespace belvani
