#include "printing/form/tabloluform.h"

#include "printing/form/formbelgesi.h"
#include "printing/metinyazici.h"
#include "printing/xlsxyazici.h"

namespace belvani {
namespace {

YzcAyarlari MetinYolu(YzcAyarlari ayar, bool var) {
  ayar.YzcDosAcik = var;
  return ayar;
}

}  // namespace

TabloluForm::TabloluForm(YzcAyarlari ilk, Rapor tablo, FormYapanlar yapanlar)
    : Belge(MetinYolu(std::move(ilk), yapanlar.metin != nullptr)),
      ilk_(std::make_shared<const Rapor>(std::move(tablo))),
      tablo_(ilk_),
      yapanlar_(std::move(yapanlar)) {}

// The law's order stays on the form itself.
void TabloluForm::Sirala(std::span<const int> sira) {
  tablo_ = std::make_shared<const Rapor>(ilk_->Sirali(sira));
}

std::string TabloluForm::SayfaSozu(int sayfa) const {
  return yapanlar_.sayfaSozu ? yapanlar_.sayfaSozu(sayfa) : std::string();
}

std::unique_ptr<CizilenBelge> TabloluForm::CizimYap(Ilerleme* ilerleme) const {
  return FormCizimi(yapanlar_.sayfalar(ilerleme));
}

void TabloluForm::MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const {
  yapanlar_.metin ? al(yapanlar_.metin(ilerleme)) : MetinRaporunuVer(*tablo_, {}, al, ilerleme);
}

Sonuc<std::string> TabloluForm::XlsxYap(Ilerleme* ilerleme) const {
  return XlsxRaporu(*tablo_, ilerleme);
}

}  // namespace belvani
