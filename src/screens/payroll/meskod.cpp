#include "screens/payroll/meskod.h"

#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/meslekdosyasi.h"
#include "screens/payroll/parametrealani.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr int ListeEni = 600;  // of names as long as "Tümüne Dahil Olup İşsizlik Sigortası Haricindekiler"

}  // namespace

meskod::meskod(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : HesapTuruEkrani(baglam, parametreler, "meskod", QStringLiteral("Meslek Kodları"),
                      {ParametreKolonu<&HesapTuru::no>(50), ParametreKolonu<&HesapTuru::ack>(520)}) {
  Komutlar({{.dugme = "Parametre İndir", .simge = "indir", .islev = [this] { Indir(); }}});
  Liste().SatirSil = [this](int satir) {
    SatiriBosalt(satir);
    return false;
  };
  TurleriAc(true);
  Liste().setMinimumWidth(ListeEni);
}

// Cards keep the place of their branch in the list, so the rows behind a deleted one stay where they are.
void meskod::SatiriBosalt(int satir) {
  const std::string giden = Utf8(Liste().TextByName(satir, "no")) + " " + Utf8(Liste().TextByName(satir, "ack"));
  if (!Bildirimi().SilinsinMi("Satır Silinecek..\nEminmisiniz ???", giden)) return;
  HesapTurleri turler = Parametreler().yasal.hesapTurleri;
  turler[std::size_t(satir)] = {};
  if (YasalYazildi(HesapTurleriKaydet(Oturumu().DataPath, turler))) ListeyiGoster();
}

void meskod::Indir() {
  const auto indirme = UzunIs(Baglam(), QStringLiteral("Meslek kodları indiriliyor…"), [this](Ilerleme& ilerleme) {
    return MeslekDosyasiIndir(Oturumu().DataPath, {.ilerleme = &ilerleme});
  });
  if (!indirme) return;
  if (*indirme)
    Bildirimi().Bilgi("Parametre İndirildi..");
  else
    Bildirimi().Uyari("Parametre Bulunamadı..\n" + indirme->KusurMetni());
}

}  // namespace belvani
