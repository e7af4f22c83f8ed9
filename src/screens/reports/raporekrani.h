// RaporEkrani: what both report designers share. The columns of a report stand in a list; fields beside it make a new
// one or change the current one. Below stands how the report would begin, anew after each change.
//
//   Insert adds the column of the fields, F4 puts them into the current one, Delete takes it out
//   Ctrl+Up, Ctrl+Down move the current column
//   F2 the reports, F5 saves, F7 deletes the report, F6 " Ekrana Listele", F8 " Yazıcıya Yazdır", F9 " Excel'e Gönder"
//
// `Kolon` is the column of a report file. What a design says is judged by the reports' own rules.
#pragma once

#include <QTimer>

#include "reports/rapordosyalari.h"
#include "ui/dclist.h"
#include "ui/form.h"
#include "ui/xgrid.h"

namespace belvani {

// What the designers ask for besides the columns.
struct RaporAdi {
  std::string ad, baslik, aciklama;
};

template <class Kolon>
class RaporEkrani : public Form {
 protected:
  using Kolonlar = std::vector<Kolon>;

  // A column of the list of columns.
  struct ListeKolonu {
    const char* ad;
    const char* baslik;
    int en;
    char tip;
    std::function<std::string(const Kolon&)> metin;
  };

  RaporEkrani(EkranBaglami& baglam, const char* kelime, const QString& baslik, std::vector<ListeKolonu> kolonlar);

  // To be called at the end of the screen's own constructor; `alanlar` are the fields of the report and of a column.
  void Ac(const AlanSutunlari& alanlar);

  // Of the data path.
  virtual std::vector<std::string> Raporlar() const = 0;
  virtual Sonuc<Kolonlar> Al(const std::string& ad) const = 0;
  virtual Durum Yaz(const std::string& ad, const Kolonlar& kolonlar) const = 0;
  virtual std::string_view Uzanti() const = 0;
  virtual std::size_t EnCokKolon() const = 0;
  virtual std::string IlkAlan() const = 0;  // of the list of fields
  // A column of this field to begin with: its head and width.
  virtual Kolon Baslayan(const Kolon& secilen) const = 0;
  // The report; `onizleme`: its first rows, made without reading much. Nothing when a field cannot be read, which is
  // told, but for a look at it.
  virtual std::optional<Rapor> RaporYap(const RaporBicimi& bicim, bool onizleme, Ilerleme* ilerleme) = 0;
  // Another choice that the report depends on has changed.
  void OnizlemeYenile() { onizlemeSaati_.start(); }
  const Kolonlar& Tasarim() const { return kolonlar_; }

  bool Kaydedilmemis() const override { return Form::Kaydedilmemis() || kolonlar_ != kaydedilen_; }
  bool YazilaniKaydet() override;

 private:
  void KolonDugmeleri();
  void KomutlariKur();
  void ListeyiKur(std::vector<ListeKolonu> kolonlar);
  void Listele(int simdiki);
  void AlanSecildi(AlanDenetimi& alan);
  std::optional<Kolon> YazilanKolon();
  bool KolonEkle();
  void KolonDegistir();
  void KolonSil();
  void KolonTasi(int adim);
  void RaporSec();
  void RaporGetir(const std::string& ad);
  bool RaporKaydet();
  void RaporKaldir();
  void Onizle();
  std::unique_ptr<Belge> BelgeYap();
  void EkranaListele(const std::shared_ptr<Belge>& belge);
  void Yazdir(const std::shared_ptr<Belge>& belge);
  void ExceleGonder(const std::shared_ptr<Belge>& belge);

  dclist* liste_;
  xgrid* onizleme_;  // how it begins
  QTimer onizlemeSaati_;
  std::vector<ListeKolonu> listeKolonlari_;
  Kolonlar kolonlar_;
  Kolonlar kaydedilen_;  // as the file has them
};

extern template class RaporEkrani<OzlukKolonu>;
extern template class RaporEkrani<BordroKolonu>;

}  // namespace belvani
