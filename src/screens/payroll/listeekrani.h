// ListeEkrani: a parameter screen that is one list of rows. A screen says where its rows come from and how they are
// saved; F5 finishes the row being typed and saves all of them.
#pragma once

#include "screens/payroll/parametreekrani.h"
#include "ui/satirtablosu.h"

namespace belvani {

template <class Satir>
class ListeEkrani : public ParametreEkrani {
 protected:
  ListeEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const QString& kelime, const QString& baslik,
              std::vector<SatirKolonu<Satir>> kolonlar)
      : ParametreEkrani(baglam, parametreler, kelime, baslik),
        liste_(new dclist(baglam.bildirim, this)),
        tablo_(*liste_, std::move(kolonlar)) {
    liste_->setObjectName("liste");
    liste_->Editable(true);
    liste_->YeniSatirli(false);
    liste_->setFocus();
    Govde()->addWidget(liste_, 1);
  }

  // The rows as the session has them, and their saving; true when they are saved.
  virtual std::vector<Satir> Satirlar() const = 0;
  virtual bool Yaz(const std::vector<Satir>& satirlar) = 0;

  // To be called once the screen is made; `boy` rows are seen without scrolling.
  void Ac(int boy) {
    if (liste_->editTriggers() != QAbstractItemView::NoEditTriggers)
      Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
    ListeyiGoster();
    SatirlaraYerAc(*liste_, boy);
  }
  void ListeyiGoster() { tablo_.Doldur(Satirlar()); }
  std::vector<Satir> Okunan() const { return tablo_.Oku(Satirlar()); }
  bool Kaydet() {
    if (!liste_->OkUpdateData() || !Yaz(Okunan())) return false;
    ListeyiGoster();
    return true;
  }
  dclist& Liste() { return *liste_; }

 private:
  dclist* liste_;
  SatirTablosu<Satir> tablo_;
};

}  // namespace belvani
