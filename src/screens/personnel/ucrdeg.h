// ucrdeg ("Ucretleri Düzenleme"): the wages of all people employed on one basis, twelve lines at a time. A field is
// written when it is left; Ctrl+Z takes the last writes back.
#pragma once

#include "personnel/ucretduzenle.h"
#include "ui/form.h"

class QScrollBar;

namespace belvani {

class ucrdeg : public Form {
 public:
  explicit ucrdeg(EkranBaglami& baglam);

  static constexpr int SatirSayisi = 12;

 protected:
  bool KendiligindenKaydet() override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  void Yerlestir();
  // Everybody of the chosen basis, from the store; the first of them on the first line.
  void Listele();
  void SayfayiGoster();
  void SatiriGoster(int satir);
  // The bar's position, as far as there are rows; false when a line could not be left.
  bool Git(int ilk);
  // The line on the screen that the editor stands on; -1: none.
  int SatirBul(const QObject* nesne) const;
  // The person of a line with what stands in its fields; nothing when that is what is stored.
  std::optional<Okunan<Sicil>> Yazilan(int satir) const;
  bool SatirYaz(int satir);
  void GeriAl();
  bool SonSatirdanIleri(const QObject* nesne, const QKeyEvent& tus);

  UcretDuzenleme duzenleme_;
  std::vector<Sicil> kisiler_;
  QScrollBar* dikey_ = nullptr;
  std::vector<std::vector<AlanDenetimi*>> satirlar_;  // of each line: code, name, kind, wage
  std::uint8_t tur_ = 0;
  int ilk_ = 0;           // the person on the first line
  bool yaziyor_ = false;  // messages take the focus from the field that is being written
};

}  // namespace belvani
