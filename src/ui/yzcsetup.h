// yzcsetup ("Yazıcı Ayarları"): the print dialog that every document opens first. It shows the print settings that the
// document has set, and stores them back when it is left by one of its ways out. Settings that change nothing on the
// document are off and closed.
#pragma once

#include "printing/yzcayar.h"
#include "ui/form.h"

namespace belvani {

enum class YzcKarar {
  Vazgec,
  Yazdir,       // "&Tamam"
  Onizle,       // "Önizleme"
  PdfKaydet,    // "PDF'e Kaydet"
  MetinKaydet,  // "Dosyaya Kaydet": the bytes of a dot-matrix print
};

class yzcsetup : public Form {
 public:
  // `ayar` must outlive the screen.
  yzcsetup(EkranBaglami& baglam, YzcAyarlari& ayar, const YzcDestegi& destek);

  YzcKarar Karar() const { return karar_; }

 private:
  void Goster();
  void DestegiUygula();
  void KipDegisti();
  void YaziciGoster();
  void YaziciSec();
  void Bitir(YzcKarar karar);

  YzcAyarlari& ayar_;
  const YzcDestegi destek_;
  YzcKarar karar_ = YzcKarar::Vazgec;
  QLabel* yazici_;
  xButton* metinKaydet_ = nullptr;
};

}  // namespace belvani
