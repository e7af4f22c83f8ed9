#include "ui/cakisma.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>

#include "personnel/etiket.h"
#include "ui/metin.h"

namespace belvani {
namespace {

const char* Olan(CakismaTuru tur) {
  switch (tur) {
    case CakismaTuru::Degismis:
      return "Siz bu kaydı düzenlerken başka bir kullanıcı da aynı alanları değiştirmiş.";
    case CakismaTuru::Silinmis:
      return "Siz bu kaydı düzenlerken başka bir kullanıcı onu silmiş.\n"
             "Onunki: silinmiş kalır. Benimki: ekrandaki kayıt yeniden eklenir.";
    case CakismaTuru::Eklenmis:
      return "Siz bu kaydı girerken başka bir kullanıcı aynı kodla bir kayıt eklemiş.";
  }
  return "";
}

std::string DenetiminDili(AlanDenetimi& denetim, const Deger& deger) {
  const Alan& satir = denetim.Satir();
  const auto sira = TamDegeri(deger) - satir.ek.listeTabani;
  if (const auto* liste = dynamic_cast<QComboBox*>(denetim.Odak()); liste != nullptr && sira < liste->count())
    return Utf8(liste->itemText(int(sira)));
  if (satir.ek.secenek && std::size_t(sira) < satir.ek.liste.size())
    return std::string(satir.ek.liste[std::size_t(sira)]);
  if (satir.tanim.tip == AlanTipi::Mantik || satir.ek.kutu) return MantikDegeri(deger) ? "Evet" : "Hayır";
  return MetinDegeri(deger);
}

}  // namespace

cakisma::cakisma(EkranBaglami& baglam, CakismaTuru tur, const std::vector<CakisanDeger>& degerler, CakismaKarari& karar)
    : Form(baglam, "cakisma", QStringLiteral("Başka Kullanıcı")), karar_(karar) {
  Govde()->addWidget(new QLabel(QString::fromUtf8(Olan(tur)), this));
  if (!degerler.empty()) Govde()->addWidget(DegerleriYap(degerler));
  const auto ver = [this](CakismaKarari verilen) {
    karar_ = verilen;
    Kapat();
  };
  // An Enter in haste overwrites nobody.
  Komutlar({{.dugme = "Onunki", .simge = "kullanici", .islev = [ver] { ver(CakismaKarari::Onunki); }},
            {.dugme = "Benimki", .simge = "kaydet", .islev = [ver] { ver(CakismaKarari::Benimki); }},
            {.dugme = "Bak", .simge = "ara", .islev = [ver] { ver(CakismaKarari::Bak); }, .ilkOdak = true}});
}

QWidget* cakisma::DegerleriYap(const std::vector<CakisanDeger>& degerler) {
  auto* kutu = new QGroupBox(QStringLiteral("Değerler"), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setHorizontalSpacing(18);
  const auto yaz = [&](int satir, int sutun, const std::string& metin) {
    auto* etiket = new QLabel(metin.empty() ? QStringLiteral("(boş)") : Yazi(metin), kutu);
    etiket->setTextFormat(Qt::PlainText);
    izgara->addWidget(etiket, satir, sutun);
  };
  yaz(0, 0, "Alan");
  yaz(0, 1, "Onunki");
  yaz(0, 2, "Benimki");
  int satir = 0;
  for (const CakisanDeger& d : degerler) {
    yaz(++satir, 0, d.etiket);
    yaz(satir, 1, d.onunki);
    yaz(satir, 2, d.benimki);
  }
  return kutu;
}

CakismaKarari CakismaSor(EkranBaglami& baglam, CakismaTuru tur, const std::vector<CakisanDeger>& degerler) {
  CakismaKarari karar = CakismaKarari::Bak;
  FormGoster(baglam, std::make_unique<cakisma>(baglam, tur, degerler, karar), FormModu::Modal);
  return karar;
}

CakisanDeger CakisanDegeriYaz(const Form& form, std::string_view tablo, AlanTutamagi alan, const Deger& onunki,
                              const Deger& benimki, const DegerDili& dil) {
  if (AlanDenetimi* denetim = form.DenetimBul(alan))
    return {denetim->Satir().etiket, DenetiminDili(*denetim, onunki), DenetiminDili(*denetim, benimki)};
  const auto metin = [&](const Deger& d) { return dil ? dil(alan.ad, d) : MetinDegeri(d); };
  return {std::string(AlanEtiketi(tablo, alan.ad)), metin(onunki), metin(benimki)};
}

}  // namespace belvani
