#include "printing/form/formbelgesi.h"

namespace belvani {
namespace {

class Cizim final : public CizilenBelge {
 public:
  explicit Cizim(FormSayfalari sayfalar) : sayfalar_(std::move(sayfalar)) {}

  int SayfaSayisi() const override { return int(sayfalar_.size()); }
  void SayfaCiz(int no, Tuval& tuval) const override { FormCiz(sayfalar_[std::size_t(no) - 1], tuval); }

 private:
  FormSayfalari sayfalar_;
};

YzcAyarlari VarOlanYollar(YzcAyarlari ayar, bool cizim, bool metin) {
  ayar.YzcGrafikAcik = cizim;
  ayar.YzcDosAcik = metin;
  if (!cizim || !metin) ayar.YzcDosMod = metin;
  return ayar;
}

}  // namespace

std::unique_ptr<CizilenBelge> FormCizimi(FormSayfalari sayfalar) {
  return std::make_unique<Cizim>(std::move(sayfalar));
}

FormBelgesi::FormBelgesi(YzcAyarlari ilk, std::vector<FormSayfasi> sayfalar, std::string metin,
                         std::shared_ptr<const Rapor> veri, FormBasimi basim)
    : Belge(VarOlanYollar(std::move(ilk), !sayfalar.empty(), !metin.empty())),
      sayfalar_(std::move(sayfalar)),
      metin_(std::move(metin)),
      veri_(std::move(veri)),
      basim_(std::move(basim)) {}

std::string FormBelgesi::SayfaSozu(int sayfa) const {
  return basim_.sayfaSozu ? basim_.sayfaSozu(sayfa) : std::string();
}

std::string FormBelgesi::MetinAcilamadi() const {
  return basim_.acilamadi.empty() ? Belge::MetinAcilamadi() : basim_.acilamadi;
}

std::unique_ptr<CizilenBelge> FormBelgesi::CizimYap(Ilerleme*) const {
  if (sayfalar_.empty()) return nullptr;
  return FormCizimi({sayfalar_.size(), [this](std::size_t sira) { return sayfalar_[sira]; }});
}

Sonuc<std::string> FormBelgesi::XlsxYap(Ilerleme*) const {
  return Kusur{"Bu belge bir form; Excel'e gönderilemez."};
}

}  // namespace belvani
