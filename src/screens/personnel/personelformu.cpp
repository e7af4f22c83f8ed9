#include "screens/personnel/personelformu.h"

#include "core/tables/esco.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "core/turkce.h"
#include "personnel/kimlik.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/xtext.h"

namespace belvani {

void PersonelFormu::PersonelKomutlari(AlanTutamagi kod) {
  Komutlar({{.komut = FormKomutu::Rehber, .dugme = " Personel  Rehberi ", .islev = [this] { RehberAc(); }},
            {.komut = FormKomutu::Ilk, .islev = [this] { Git(Yon::Ilk); }},
            {.komut = FormKomutu::Onceki, .islev = [this] { Git(Yon::Onceki); }},
            {.komut = FormKomutu::Sonraki, .islev = [this] { Git(Yon::Sonraki); }},
            {.komut = FormKomutu::Son, .islev = [this] { Git(Yon::Son); }}});
  AnahtarBagla(kod, [this](const std::string& yazilan) { Bul(yazilan); });
}

QString KisiEkrani(AlanTutamagi alan) {
  if (alan.kayit == typeid(Kimlik)) return QStringLiteral("nufus");
  if (alan.kayit == typeid(Esco)) return QStringLiteral("escofrm");
  if (alan == sicil::cikiskodu || alan == sicil::cikissebebi) return QStringLiteral("percik");
  return QStringLiteral("perkart");
}

void PersonelFormu::KisiyeGit(const std::string& kod, AlanTutamagi alan) {
  if (!TurkceEsit(kod, SonAnahtar())) {
    if (Kaydedilmemis() && !Bildirimi().Soru("Ekrandaki Değişiklikler Kaydedilmedi\nBırakılıp Bu Kişi Getirilsin mi ?"))
      return;
    AnahtarAra(kod);
  }
  if (AlanDenetimi* denetim = DenetimBul(alan))
    denetim->Odak()->setFocus(Qt::TabFocusReason);
  else
    KoddanBasla();
}

bool PersonelFormu::EkrandakiMi() {
  const std::string kod = YazilanAnahtar();
  if (kod.empty() || kod == SonAnahtar()) return true;
  return !Bul(kod);
}

void PersonelFormu::AdiGoster(const std::string& kod) {
  Yukle(KisiBasligi{KisiAdi(Oturumu(), kod)});
}

void PersonelFormu::KoddanBasla() {
  OdakVer(AnahtarAlani());
}

void PersonelFormu::AlaniSec() {
  if (auto* yazi = qobject_cast<xtext*>(focusWidget())) yazi->selectAll();
}

void PersonelFormu::RehberAc() {
  if (AlanRehberi()) return;
  const auto secilen = PersonelSec(Baglam(), YazilanAnahtar());
  if (secilen) AnahtarAra(*secilen);
  KoddanBasla();
}

}  // namespace belvani
