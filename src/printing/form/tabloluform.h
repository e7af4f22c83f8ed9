// TabloluForm: a statutory form that is filled from a list. The list is its table, for the screen, a spreadsheet and
// other programs; its pages are drawn as the law prints them, when they are asked for.
//
//   TabloluForm belge(ayar, rapor, {.sayfalar = [kagit](Ilerleme* i) { return DortAylikSayfalari(kagit, i); },
//                                   .metin = [kagit](Ilerleme* i) { return DortAyYazdir(*kagit, i); }});
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "printing/belge.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

struct FormYapanlar {
  std::function<FormSayfalari(Ilerleme*)> sayfalar;
  // The form for a text printer; without one it is printed as a drawing only, and other programs get the lines of its
  // list as text.
  std::function<std::string(Ilerleme*)> metin = nullptr;
  std::function<std::string(int sayfa)> sayfaSozu = nullptr;  // Belge::SayfaSozu
  std::string eksikler = {};                                  // Belge::Eksikler
};

class TabloluForm final : public Belge {
 public:
  TabloluForm(YzcAyarlari ilk, Rapor tablo, FormYapanlar yapanlar);

  std::string Baslik() const override { return tablo_->baslik; }
  bool Bos() const override { return false; }  // without rows it is the empty form
  bool Kayitsiz() const override { return tablo_->Satirlar().empty(); }
  std::shared_ptr<const Rapor> Tablo() const override { return tablo_; }
  void Sirala(std::span<const int> sira) override;
  std::string SayfaSozu(int sayfa) const override;
  std::string Eksikler() const override { return yapanlar_.eksikler; }

 private:
  std::unique_ptr<CizilenBelge> CizimYap(Ilerleme* ilerleme) const override;
  void MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const override;
  Sonuc<std::string> XlsxYap(Ilerleme* ilerleme) const override;

  std::shared_ptr<const Rapor> ilk_;    // in the order of the form
  std::shared_ptr<const Rapor> tablo_;  // as it is shown
  FormYapanlar yapanlar_;
};

}  // namespace belvani
