// rapor: a report that its user designed, or one that comes with the program
#include "cli/belgecikti.h"
#include "core/turkce.h"
#include "documents/listebelgesi.h"
#include "documents/secimalanlari.h"
#include "reports/rapordosyalari.h"

namespace belvani::cli {
namespace {

struct RaporIsi {
  std::string kod, ad;
  std::vector<std::string> yil, ay;  // first and last as given; empty
  KisiAraligi kisiler;
  bool kisiBasina = false;
  std::string baslik;
  BelgeCiktisi cikti;
};

bool Bitiyor(const std::string& ad, std::string_view uzanti) {
  return ad.size() > uzanti.size() && AdEsit(std::string_view(ad).substr(ad.size() - uzanti.size()), uzanti);
}

// What the name stands for: a file of the user's, or a report by its name, with or without its extension.
struct Aranan {
  std::string ad;     // without the extension
  std::string dosya;  // "": a report of the data path
  bool ozluk = false;
};

Aranan RaporAra(const std::string& ad, const VeriYolu& veri) {
  for (const auto uzanti : {OzlukUzantisi, BordroUzantisi}) {
    if (!Bitiyor(ad, uzanti)) continue;
    const bool ozluk = uzanti == OzlukUzantisi;
    const std::string uzantisiz = ad.substr(0, ad.size() - uzanti.size());
    if (const auto adi = RaporAdiBul(veri, uzantisiz, uzanti)) return {.ad = *adi, .dosya = {}, .ozluk = ozluk};
    return {.ad = uzantisiz.substr(uzantisiz.find_last_of('/') + 1), .dosya = ad, .ozluk = ozluk};
  }
  const auto ozluk = RaporAdiBul(veri, ad, OzlukUzantisi), bordro = RaporAdiBul(veri, ad, BordroUzantisi);
  if (ozluk && bordro)
    throw KomutHatasi{ad + ": bu adda iki rapor var, uzantısıyla veriniz: " + ad + std::string(OzlukUzantisi) + ", " +
                      ad + std::string(BordroUzantisi)};
  return {.ad = ozluk ? *ozluk : bordro.value_or(ad), .dosya = {}, .ozluk = ozluk.has_value()};
}

// The ends of a range; those of `yoksa` where none was given.
std::pair<int, int> Uclar(const char* secenek, const std::vector<std::string>& verilen, int enAz, int enCok,
                          std::pair<int, int> yoksa) {
  if (verilen.empty()) return yoksa;
  return {SayiOku(secenek, verilen.front(), enAz, enCok), SayiOku(secenek, verilen.back(), enAz, enCok)};
}

struct Aylar {
  std::pair<int, int> yil, ay;

  Tarih IlkGun() const { return {yil.first, ay.first, 1}; }
  Tarih SonGun() const { return {yil.second, ay.second, AyinGunSayisi(yil.second, ay.second)}; }
};

Rapor OzlukRaporuYap(const RaporIsi& is, const Aranan& aranan, const Aylar& aylar, Oturum& oturum) {
  auto kolonlar = aranan.dosya.empty() ? OzlukRaporuAl(oturum.DataPath, aranan.ad, aylar.IlkGun(), aylar.SonGun())
                                       : OzlukRaporuCoz(DosyayiOku(aranan.dosya));
  return OzlukRaporu(oturum.depo.db.IcMotor(), Degeri(kolonlar), is.kisiler, {.baslik = is.baslik},
                     oturum.firma.paraonda);
}

Rapor BordroRaporuYap(const RaporIsi& is, const Aranan& aranan, const Aylar& aylar, Oturum& oturum) {
  auto kolonlar =
      aranan.dosya.empty() ? BordroRaporuAl(oturum.DataPath, aranan.ad) : BordroRaporuCoz(DosyayiOku(aranan.dosya));
  const BordroRaporuSecimi secim{.ilkYil = aylar.yil.first,
                                 .sonYil = aylar.yil.second,
                                 .ilkAy = aylar.ay.first,
                                 .sonAy = aylar.ay.second,
                                 .kisiler = is.kisiler,
                                 .kisiBasina = is.kisiBasina};
  return BordroRaporu(oturum.depo.db.IcMotor(), Degeri(kolonlar), secim, {.baslik = is.baslik});
}

void RaporVer(Genel& genel, RaporIsi is) {
  const auto oturum = genel.SirketAc(is.kod);
  const int yil = oturum->firma.firmayil;
  const Aylar aylar{.yil = Uclar("--yil", is.yil, IlkBelgeYili, SonBelgeYili, {yil, yil}),
                    .ay = Uclar("--ay", is.ay, 1, 12, {1, 12})};
  const Aranan aranan = RaporAra(is.ad, oturum->DataPath);
  if (is.baslik.empty()) is.baslik = aranan.ad;
  Rapor rapor = (aranan.ozluk ? OzlukRaporuYap : BordroRaporuYap)(is, aranan, aylar, *oturum);
  if (rapor.Satirlar().empty()) genel.bildirim.Bilgi("Rapora giren kayıt yok");
  BelgeYaz(*ListeBelgesi(std::move(rapor), KagitYonu::Yatay, {}, {}, oturum->firma.unvan), is.cikti);
}

}  // namespace

void RaporKomutu(CLI::App& app, Genel& genel) {
  auto is = std::make_shared<RaporIsi>();
  auto* komut = app.add_subcommand(
      "rapor", "Tasarlanmış bir raporu verir: özlük (.orp) veya bordro (.brp); programla gelenler adlarıyla");
  komut->add_option("KOD", is->kod, "şirket")->required();
  komut->add_option("RAPOR", is->ad, "raporun adı ya da dosyası")->required();
  const auto ikili = [&](const char* ad, std::vector<std::string>& uclar, const char* yardim) {
    komut->add_option(ad, uclar, yardim)->expected(2)->type_name("BAŞ BİT");
  };
  ikili("--yil", is->yil, "bordro yılları; verilmezse şirketin çalışma yılı");
  ikili("--ay", is->ay, "bordro ayları; verilmezse 1 12");
  const auto aralik = [&](const char* ad, MetinAraligi& sinirlar, const char* yardim) {
    komut
        ->add_option_function<std::vector<std::string>>(
            ad,
            [&sinirlar](const auto& uclar) {
              sinirlar = {uclar.front(), uclar.back()};
            },
            yardim)
        ->expected(2)
        ->type_name("BAŞ BİT");
  };
  aralik("--kod", is->kisiler.kod, "personel kodları");
  aralik("--grup", is->kisiler.grup, "gruplar");
  aralik("--tip", is->kisiler.tip, "tipler");
  aralik("--ozel", is->kisiler.ozel, "özel kodlar");
  komut->add_flag("--kisi-basina", is->kisiBasina,
                  "bordro raporunda her kişiye bir satır: toplanan kolonlar toplamıdır");
  komut->add_option("--baslik", is->baslik, "raporun başlığı; verilmezse adı");
  CiktiSecenekleri(*komut, is->cikti);
  komut->callback([&genel, is] { RaporVer(genel, *is); });
}

}  // namespace belvani::cli
