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

  // To be called once the screen is made. `oku`: the rows as the session has them; `yaz` saves them, and is true when
  // they are saved. `boy` rows are seen without scrolling.
  void Ac(int boy, std::function<std::vector<Satir>()> oku, std::function<bool(const std::vector<Satir>&)> yaz) {
    oku_ = std::move(oku);
    yaz_ = std::move(yaz);
    if (liste_->editTriggers() != QAbstractItemView::NoEditTriggers)
      Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
    ListeyiGoster();
    SatirlaraYerAc(*liste_, boy);
  }
  void ListeyiGoster() { tablo_.Doldur(oku_()); }
  std::vector<Satir> Okunan() const { return tablo_.Oku(oku_()); }
  bool Yaz() { return yaz_(Okunan()); }
  void Kaydet() {
    if (liste_->OkUpdateData() && Yaz()) ListeyiGoster();
  }
  // Rows of a fixed number, out of their record and into it.
  static std::vector<Satir> Satirlar(const auto& dizi) { return {dizi.begin(), dizi.end()}; }
  template <class Dizi>
  static Dizi Dizide(const std::vector<Satir>& satirlar) {
    Dizi dizi;
    std::ranges::copy(satirlar, dizi.begin());
    return dizi;
  }
  dclist& Liste() { return *liste_; }
  // Rows that were taken out too.
  bool Kaydedilmemis() const override {
    return ParametreEkrani::Kaydedilmemis() || (liste_->ListCount() != int(oku_().size()));
  }

 private:
  dclist* liste_;
  SatirTablosu<Satir> tablo_;
  std::function<std::vector<Satir>()> oku_;
  std::function<bool(const std::vector<Satir>&)> yaz_;
};

}  // namespace belvani
