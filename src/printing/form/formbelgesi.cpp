#include "printing/form/formbelgesi.h"

#include <algorithm>

namespace belvani {
namespace {

class FormCizimi final : public CizilenBelge {
 public:
  explicit FormCizimi(const std::vector<FormSayfasi>& sayfalar) : sayfalar_(sayfalar) {}

  int SayfaSayisi() const override { return int(sayfalar_.size()); }
  void SayfaCiz(int no, Tuval& tuval) const override {
    const FormSayfasi& sayfa = sayfalar_.at(std::size_t(no) - 1);
    const auto ilk = std::ranges::find_if(sayfalar_, [&](const FormSayfasi& s) { return AyniForm(s, sayfa); });
    FormCiz(sayfa, tuval, "form " + std::to_string(ilk - sayfalar_.begin()));
  }

 private:
  const std::vector<FormSayfasi>& sayfalar_;
};

YzcAyarlari VarOlanYollar(YzcAyarlari ayar, bool cizim, bool metin) {
  ayar.YzcGrafikAcik = cizim;
  ayar.YzcDosAcik = metin;
  if (!cizim || !metin) ayar.YzcDosMod = metin;
  return ayar;
}

}  // namespace

FormBelgesi::FormBelgesi(YzcAyarlari ilk, std::vector<FormSayfasi> sayfalar, std::string metin)
    : Belge(VarOlanYollar(std::move(ilk), !sayfalar.empty(), !metin.empty())),
      sayfalar_(std::move(sayfalar)),
      metin_(std::move(metin)) {}

std::unique_ptr<CizilenBelge> FormBelgesi::CizimYap(Ilerleme*) const {
  if (sayfalar_.empty()) return nullptr;
  return std::make_unique<FormCizimi>(sayfalar_);
}

Sonuc<std::string> FormBelgesi::XlsxYap(Ilerleme*) const {
  return Kusur{"Bu belge bir form; Excel'e gönderilemez."};
}

}  // namespace belvani
