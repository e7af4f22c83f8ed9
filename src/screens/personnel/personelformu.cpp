#include "screens/personnel/personelformu.h"

#include "core/tables/esco.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "core/turkce.h"
#include "personnel/kimlik.h"
#include "ui/pencere.h"
#include "ui/xtext.h"

namespace belvani {

void PersonelFormu::PersonelKomutlari(AlanTutamagi kod) {
  Komutlar({{.komut = FormKomutu::Rehber, .dugme = " Personel  Rehberi ", .islev = [this] { RehberAc(); }},
            {.komut = FormKomutu::Ilk, .islev = [this] { GitVeTut(Yon::Ilk); }},
            {.komut = FormKomutu::Onceki, .islev = [this] { GitVeTut(Yon::Onceki); }},
            {.komut = FormKomutu::Sonraki, .islev = [this] { GitVeTut(Yon::Sonraki); }},
            {.komut = FormKomutu::Son, .islev = [this] { GitVeTut(Yon::Son); }}});
  AnahtarBagla(kod, [this](const std::string& yazilan) {
    bulundu_ = Bul(yazilan);
    KisiyiTut();
  });
}

void PersonelFormu::GitVeTut(Yon yon) {
  Git(yon);
  KisiyiTut();
}

void PersonelFormu::KisiyiTut() {
  if (!SonAnahtar().empty()) Oturumu().SonKisi = SonAnahtar();
}

// A code that was typed and never saved, or has been deleted since, is nobody's.
void PersonelFormu::showEvent(QShowEvent* olay) {
  const bool bos = YazilanAnahtar().empty();
  Form::showEvent(olay);
  const std::string& son = Oturumu().SonKisi;
  if (bos && !son.empty() && !KisiAdi(Oturumu(), son).empty()) AnahtarAra(std::string(son));
}

QString KisiEkrani(AlanTutamagi alan) {
  if (alan.kayit == typeid(Kimlik)) return QStringLiteral("nufus");
  if (alan.kayit == typeid(Esco)) return QStringLiteral("escofrm");
  if (alan == sicil::cikiskodu || alan == sicil::cikissebebi) return QStringLiteral("percik");
  return QStringLiteral("perkart");
}

void PersonelFormu::KisiyeGit(const std::string& kod, AlanTutamagi alan) {
  if (!TurkceEsit(kod, SonAnahtar()) && !AnahtarAra(kod)) return;
  if (AlanDenetimi* denetim = DenetimBul(alan))
    denetim->Odak()->setFocus(Qt::TabFocusReason);
  else
    KoddanBasla();
}

bool PersonelFormu::EkrandakiMi() {
  const std::string kod = YazilanAnahtar();
  if (!kod.empty() && kod != SonAnahtar()) return AnahtarAra(kod) && !bulundu_;
  KisiyiTut();
  return true;
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
