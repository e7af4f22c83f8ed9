// FormBelgesi: a paper of fixed forms: its drawn pages and its text, as they were made. It is no table; what it says as
// rows for other programs may be given with it.
//
//   FormBelgesi belge({.YzcBaslik = "Vizite Kağıdı"}, sayfalar, metin);
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "printing/belge.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

// The pages as they stand, drawn one at a time; pages that differ in their values alone share their frame.
std::unique_ptr<CizilenBelge> FormCizimi(FormSayfalari sayfalar);

// How its text goes out, where it differs from other papers.
struct FormBasimi {
  std::string acilamadi = {};                                 // Belge::MetinAcilamadi
  std::function<std::string(int sayfa)> sayfaSozu = nullptr;  // Belge::SayfaSozu
};

// A screen that lets its user move and edit the values gives the pages back by a new FormBelgesi.
class FormBelgesi : public Belge {
 public:
  // `sayfalar` or `metin` may be empty: such a paper has only the other form, and the dialog offers no more.
  FormBelgesi(YzcAyarlari ilk, std::vector<FormSayfasi> sayfalar, std::string metin,
              std::shared_ptr<const Rapor> veri = nullptr, FormBasimi basim = {});

  std::string Baslik() const override { return Ayar().YzcBaslik; }
  bool Bos() const override { return sayfalar_.empty() && metin_.empty(); }
  std::shared_ptr<const Rapor> Veri() const override { return veri_; }
  std::string SayfaSozu(int sayfa) const override;
  std::string MetinAcilamadi() const override;

  const std::vector<FormSayfasi>& Sayfalar() const { return sayfalar_; }

 private:
  std::unique_ptr<CizilenBelge> CizimYap(Ilerleme* ilerleme) const override;
  void MetinYap(const MetinAlici& al, Ilerleme*) const override { al(metin_); }
  Sonuc<std::string> XlsxYap(Ilerleme* ilerleme) const override;

  std::vector<FormSayfasi> sayfalar_;
  std::string metin_;
  std::shared_ptr<const Rapor> veri_;
  FormBasimi basim_;
};

}  // namespace belvani
