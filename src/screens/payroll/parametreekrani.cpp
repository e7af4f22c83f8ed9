#include "screens/payroll/parametreekrani.h"

#include "payroll/hazirlik/mevzuatsorusu.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {

ParametreEkrani::ParametreEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const QString& kelime,
                                 const QString& baslik)
    : Form(baglam, kelime, baslik), parametreler_(parametreler) {
  AlanDegisti = [this](AlanDenetimi& alan) { degisen_.insert(&alan); };
}

void ParametreEkrani::IndirDugmesi(ParametreDosyasi dosya, std::function<void()> goster) {
  const auto indir = [this, dosya, goster = std::move(goster)] {
    MevzuatSorusu soru(Oturumu(), parametreler_, Bildirimi());
    soru.yurut = UzunYurutucu(Baglam(), QStringLiteral("Parametre indiriliyor…"));
    if (Soyle(soru.Getir({Oturumu().firma.firmayil, Oturumu().firma.firmaay}, dosya))) goster();
  };
  Komutlar({{.dugme = "Parametre İndir", .simge = "indir", .islev = indir}});
}

MevzuatGorusu ParametreEkrani::Mevzuat() const {
  return parametreler_.MevzuataBak(Oturumu(), {Oturumu().firma.firmayil, Oturumu().firma.firmaay});
}

bool ParametreEkrani::YasalYazildi(const Durum& durum) {
  if (!Yazildi(durum)) return false;
  parametreler_.YasalYukle(Oturumu().DataPath);
  return true;
}

bool ParametreEkrani::FirmaYazildi(const Durum& durum) {
  return Oldu(durum) && Yazildi(parametreler_.firma.Yukle());
}

bool ParametreEkrani::Yazildi(const Durum& durum) {
  if (!Oldu(durum)) return false;
  ZoomEfekt();
  return true;
}

void ParametreEkrani::AnahtariBul() {
  const std::string anahtar = YazilanAnahtar();
  if (!anahtar.empty() && anahtar != SonAnahtar()) AnahtarAra(anahtar);
}

}  // namespace belvani
