// personel-al, aile-al, tanim-al
#include "personnel/aktarim.h"

#include "cli/ortak.h"

namespace belvani::cli {
namespace {

struct AktarimSecenekleri {
  std::string kod, tablo, dosya;
  bool dene = false;

  AktarimKipi Kip() const { return dene ? AktarimKipi::YalnizDene : AktarimKipi::Kaydet; }
};

void SonucuYaz(Genel& genel, const AktarimSecenekleri& s, Sonuc<AktarimSonucu> sonuc) {
  if (!sonuc) throw KomutHatasi{s.dosya + ": " + sonuc.KusurMetni()};
  SatirKusurlariylaBitir(s.dosya + ": hiçbir kayıt alınmadı", sonuc->sorunlar);
  for (const Kusur& u : sonuc->uyarilar)
    genel.bildirim.Uyari("Uyarı: satır " + std::to_string(u.satir) + ", " + u.kod + ": " + u.metin);
  Yaz(std::to_string(sonuc->eklenen) + " kayıt eklendi, " + std::to_string(sonuc->degisen) + " kayıt değişti" +
      (s.dene ? " (deneme, kaydedilmedi)" : "") + "\n");
}

CLI::App* Komut(CLI::App& app, const char* ad, const char* aciklama, AktarimSecenekleri& s) {
  auto* komut = app.add_subcommand(ad, aciklama);
  komut->add_option("KOD", s.kod, "şirket")->required();
  return komut;
}

void Dosya(CLI::App& komut, AktarimSecenekleri& s) {
  komut.add_option("DOSYA", s.dosya, "UTF-8 CSV; ilk satır alan adları, tarihler gg.aa.yyyy")->required();
  komut.add_flag("--dene", s.dene, "yalnız denetler, kaydetmez");
}

}  // namespace

void AktarimKomutlari(CLI::App& app, Genel& genel) {
  auto p = std::make_shared<AktarimSecenekleri>();
  auto* personel = Komut(app, "personel-al", "Personel ve kimlik bilgilerini (sicil, kimlik) dosyadan alır", *p);
  Dosya(*personel, *p);
  personel->callback(
      [&genel, p] { SonucuYaz(genel, *p, PersonelAktar(*genel.SirketAc(p->kod), DosyayiOku(p->dosya), p->Kip())); });

  auto a = std::make_shared<AktarimSecenekleri>();
  auto* aile = Komut(app, "aile-al", "Eş ve çocukları (esco) alır; dosyadaki kişilerin eski kayıtları silinir", *a);
  Dosya(*aile, *a);
  aile->callback(
      [&genel, a] { SonucuYaz(genel, *a, AileAktar(*genel.SirketAc(a->kod), DosyayiOku(a->dosya), a->Kip())); });

  auto t = std::make_shared<AktarimSecenekleri>();
  auto* tanim = Komut(app, "tanim-al", "Şirketin tanımlarını alır: firma, muaf, indir, sendika veya kaztan", *t);
  tanim->add_option("TABLO", t->tablo, "tablonun adı")->required();
  Dosya(*tanim, *t);
  tanim->callback([&genel, t] {
    SonucuYaz(genel, *t, TanimAktar(*genel.SirketAc(t->kod), t->tablo, DosyayiOku(t->dosya), t->Kip()));
  });
}

}  // namespace belvani::cli
