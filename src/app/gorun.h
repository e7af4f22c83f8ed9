// gorun ("Görünüm Ayarları"): colours, fonts of the lists, and what the main window shows. Every change is seen at once
// in the whole program; what is not saved is taken back when the screen goes.
#pragma once

#include <QCheckBox>
#include <QGridLayout>

#include "core/session/gorunum.h"
#include "ui/form.h"

namespace belvani {

class dclist;

class gorun : public Form {
 public:
  // `goster` paints the main window with the settings given to it.
  explicit gorun(EkranBaglami& baglam, std::function<void(const GorunumAyari&)> goster = {});

  // What the screen holds at the moment.
  struct Secim {
    GorunumAyari ayar;
    RenkTablosu renkler;
    GridYazilari yazilar;
  };
  const Secim& Simdiki() const { return secim_; }

 protected:
  void closeEvent(QCloseEvent* olay) override;

 private:
  QWidget* RenkleriYap();
  QWidget* HazirlariYap();
  QWidget* YazilariYap();
  QWidget* AnaPencereYap();
  QWidget* ResimSatiriYap();
  QWidget* SetSatiriYap();
  QWidget* OrnekYap();
  // A button that shows its colour; `yaz` takes the chosen one.
  QPushButton* RenkDugmesi(const QString& baslik, const std::function<QColor()>& oku,
                           const std::function<void(std::uint32_t)>& yaz);
  void RenkSec(std::size_t sira, std::uint32_t renk);
  void TabloKoy(const RenkTablosu& tablo, const std::string& zemin);
  YaziTipi YaziSec(const YaziTipi& eski);
  void ResimSec();
  void Onizle();
  void GeriAl();
  void Kaydet();

  std::function<void(const GorunumAyari&)> goster_;
  Secim ilk_, secim_;
  std::vector<std::function<void()>> tazelenecek_;
  xtext* resim_ = nullptr;
  bool degisti_ = false;
};

}  // namespace belvani
