// Where the random user plays: every screen of the registry, and the windows that are no entry of the menu. A scene
// opens its window; a modal one comes back when that was left.
#pragma once

#include "maymun/ortam.h"
#include "screens/core/startfrm.h"
#include "ui/cakisma.h"
#include "ui/kusurlistesi.h"
#include "ui/pencere.h"

namespace belvani::test {

struct Sahne {
  std::string ad;
  std::function<void(MaymunOrtami&)> ac;
  const char* ilkTuslar = "";  // names of keys, pressed before the random ones begin
  bool birakilmaz = false;     // stays whatever is pressed
};

// The login, as the program shows it before its main window. Who gives it up comes in all the same.
inline void GirisSahnesi(MaymunOrtami& o) {
  o.PencereKapat();
  o.oturum.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  if (GirisYap(o.baglam) == GirisSonucu::Cikis) {
    o.oturum.DataPath = o.VeriYeri();
    o.Gir();
  }
  o.PencereAc();
}

inline void CakismaSahnesi(MaymunOrtami& o) {
  CakismaSor(o.baglam, CakismaTuru::Degismis, {{"Ücreti", "1,250.00", "1,300.00"}, {"Adı", "Işıl", ""}});
}

inline void KusurSahnesi(MaymunOrtami& o) {
  KusurlariGoster(o.baglam,
                  {{.metin = "Personel Giriş Tarihi Hatalı", .kod = "004", .derece = Derece::Uyari},
                   {.metin = "Kişi yok", .kod = "999", .derece = Derece::Uyari}},
                  QStringLiteral("12 kişi kaydedildi"));
}

inline std::vector<Sahne> Sahneler() {
  std::vector<Sahne> sahneler{
      {"startfrm", GirisSahnesi},
      {"masaustu", [](MaymunOrtami& o) { o.pencere->MasaustuneGit(); }, "", true},
      {"gorun", [](MaymunOrtami& o) { o.pencere->Islem(MenuIslemi::Gorunum); }},
      {"frmAbout", [](MaymunOrtami& o) { o.pencere->Islem(MenuIslemi::Hakkinda); }},
      {"yardim", [](MaymunOrtami& o) { o.pencere->Islem(MenuIslemi::Yardim); }},
      {"pencere", [](MaymunOrtami& o) { PersonelSec(o.baglam, "003"); }},
      {"cakisma", CakismaSahnesi},
      {"kusurlar", KusurSahnesi},
  };
  const auto ekran = [](const EkranKaydi& kayit) { return [&kayit](MaymunOrtami& o) { o.pencere->Ac(kayit); }; };
  for (const EkranKaydi& kayit : Ekranlar())
    if (kayit.yap != nullptr) sahneler.push_back({std::string(GirisAdi(kayit)), ekran(kayit)});
  // Windows that stand behind a key of a screen, where random keys seldom come.
  const auto arkasinda = [&](const char* ad, const char* kelime, const char* tuslar) {
    sahneler.push_back({ad, ekran(AnaOrtam::Kayit(kelime)), tuslar});
  };
  arkasinda("yzcsetup", "brdbas", "F8");
  arkasinda("onizleme", "brdbas", "F8 F6");
  arkasinda("perekr", "brdbas", "F6");
  arkasinda("kartta", "perkart", "Ctrl+Home");
  arkasinda("kimlikte", "nufus", "Ctrl+Home");
  arkasinda("ailede", "escofrm", "Ctrl+Home");
  arkasinda("girişte", "pergir", "Ctrl+Home");
  arkasinda("çıkışta", "percik", "Ctrl+Home");
  arkasinda("bordroda", "brdhazir", "Ctrl+Home");
  arkasinda("puantajda", "brdhazir", "F8");
  arkasinda("bildirgede", "yaylik", "F5");
  arkasinda("yzckopy", "yaylik", "F5 F8");
  arkasinda("pusulada", "dizipusu", "F5");
  arkasinda("ayrılmada", "iab", "Ctrl+Home");
  arkasinda("kullanıcıda", "kulfrm", "Ctrl+Home");
  arkasinda("aylarda", "kartxfrm", "Ctrl+Home");
  arkasinda("caride", "percari", "Ctrl+Home");
  arkasinda("devirde", "perdev", "Ctrl+Home");
  arkasinda("Muhpen", "entpar", "Tab Tab Tab Tab Tab F2");
  return sahneler;
}

}  // namespace belvani::test
