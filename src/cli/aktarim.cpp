// personel-al, ucret-al, aile-al, tanim-al, ogi-harcama, and what all commands of their kind share
#include "cli/aktarim.h"

#include "accounting/entparaktarim.h"
#include "cli/sorunlar.h"
#include "core/tables/entpar.h"
#include "deductions/ogiaktarim.h"

namespace belvani::cli {
namespace {

struct AktarimSecenekleri {
  std::string kod, tablo, dosya;
  int yil = 0;
  bool dene = false;
  OndalikImi ondalik = OndalikImi::Belirsiz;
  SorunListesi sorunlar;

  AktarimKipi Kip() const { return dene ? AktarimKipi::YalnizDene : AktarimKipi::Kaydet; }
};

void Al(Genel& genel, const AktarimSecenekleri& s, const DosyaAktaran& aktar) {
  const auto o = genel.YazmayaAc(s.kod);
  const std::string icerik = DosyayiOku(s.dosya);
  const Sonuc<AktarimSonucu> sonuc = aktar(*o, AktarilanCsv(std::string_view(icerik), s.ondalik), s.Kip());
  if (!sonuc) throw KomutHatasi{s.dosya + ": " + sonuc.KusurMetni()};
  s.sorunlar.SatirKusurlariylaBitir(s.dosya + ": hiçbir kayıt alınmadı", sonuc->sorunlar);
  std::vector<std::string> uyarilar;
  for (const Kusur& u : sonuc->uyarilar)
    uyarilar.push_back("Uyarı: " + (u.satir == 0 ? "" : "satır " + std::to_string(u.satir) + ", " + u.kod + ": ") +
                       u.metin);
  s.sorunlar.Soyle(genel.bildirim, uyarilar);
  Yaz(std::to_string(sonuc->eklenen) + " kayıt eklendi, " + std::to_string(sonuc->degisen) + " kayıt değişti" +
      (s.dene ? " (deneme, kaydedilmedi)" : "") + "\n");
}

CLI::App* Komut(CLI::App& app, const char* ad, const char* aciklama, AktarimSecenekleri& s) {
  auto* komut = app.add_subcommand(ad, aciklama);
  komut->add_option("KOD", s.kod, "şirket")->required();
  return komut;
}

void Dosya(CLI::App& komut, AktarimSecenekleri& s) {
  komut.add_option("DOSYA", s.dosya, "CSV (UTF-8 veya Windows-1254); ilk satır alan adları, tarihler gg.aa.yyyy")
      ->required();
  komut.add_flag("--dene", s.dene, "yalnız denetler, kaydetmez");
  OndalikSecenegi(komut, s.ondalik);
  s.sorunlar.SecenekEkle(komut);
}

}  // namespace

void AktarimKomutu(CLI::App& app, Genel& genel, const char* ad, const char* aciklama, const DosyaAktaran& aktar) {
  auto s = std::make_shared<AktarimSecenekleri>();
  auto* komut = Komut(app, ad, aciklama, *s);
  Dosya(*komut, *s);
  komut->callback([&genel, s, aktar] { Al(genel, *s, aktar); });
}

void AktarimKomutlari(CLI::App& app, Genel& genel) {
  AktarimKomutu(app, genel, "personel-al", "Personel ve kimlik bilgilerini (sicil, kimlik) dosyadan alır",
                PersonelAktar);
  AktarimKomutu(app, genel, "ucret-al", "Kişilerin ücretlerini (kod, ucret, ucrettipi, ucretags) dosyadan alır",
                UcretAktar);
  AktarimKomutu(app, genel, "aile-al", "Eş ve çocukları (esco) alır; dosyadaki kişilerin eski kayıtları silinir",
                AileAktar);

  auto h = std::make_shared<AktarimSecenekleri>();
  auto* harcama = Komut(app, "ogi-harcama",
                        "Özel gider indirimi harcamalarını (kod, harcama, istenirse gvmatrah) dosyadan alır", *h);
  Dosya(*harcama, *h);
  YilSecenegi(*harcama, h->yil, "harcamaların yılı");
  harcama->callback([&genel, h] {
    Al(genel, *h,
       [h](Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) { return OgiHarcamaAktar(o, h->yil, csv, kip); });
  });

  auto t = std::make_shared<AktarimSecenekleri>();
  auto* tanim =
      Komut(app, "tanim-al", "Şirketin tanımlarını alır: firma, muaf, indir, sendika, kaztan veya entpar", *t);
  tanim->add_option("TABLO", t->tablo, "tablonun adı")->required();
  Dosya(*tanim, *t);
  tanim->callback([&genel, t] {
    Al(genel, *t, [t](Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
      return t->tablo == Entpar::TabloAdi ? EntparAktar(o, csv, kip) : TanimAktar(o, t->tablo, csv, kip);
    });
  });
}

}  // namespace belvani::cli
