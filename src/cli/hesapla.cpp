// hesapla: one calculation, or a list of them, without a store. The values of a person come from JSON instead of from a
// company, and go the same way from there on: PersonelYukle, BordroHesapla.
#include "cli/giris.h"
#include "cli/hesapgirdisi.h"
#include "cli/izjson.h"
#include "cli/jsonakisi.h"
#include "cli/sorunlar.h"

namespace belvani::cli {
namespace {

struct HesaplaSecenekleri {
  bool izli = false;
  SorunListesi sorunlar;
};

// The result, or {"hata": …} with the reasons.
Json BirHesap(Genel& genel, const Json& girdi, bool izli) {
  HesapGirdisi hesap = HesapGirdisiOku(girdi);
  for (const auto& uyari : hesap.uyarilar) genel.bildirim.Uyari("Uyarı: " + uyari);
  if (!hesap.kusurlar.empty()) {
    std::string metin;
    for (const auto& kusur : hesap.kusurlar) metin += (metin.empty() ? "" : "; ") + kusur;
    return {{"hata", metin}};
  }
  const BordroGirdi g = hesap.Girdi();
  if (const auto kusur = GirdiKusuru(g)) return {{"hata", kusur->metin}};
  Iz iz;
  const auto s = TasmaKoru([&] { return BordroHesapla(g, nullptr, izli ? &iz : nullptr); });
  if (!s) return {{"hata", s.KusurMetni()}};
  if (s->gunFazla)
    return {{"hata", "Bu Personel " + std::to_string(g.CalismaGun) + " Gün Çalışmış, Çalışma Gününü Fazla Girmişiniz"}};
  Json sonuc = Json::object();
  KayitJson(s->brd, sonuc);
  sonuc["SskGun"] = s->SskGun;
  sonuc["CalismaGun"] = g.CalismaGun;
  sonuc["NetOdenen"] = OndalikMetin(s->NetOdenen);
  if (izli) sonuc["iz"] = IzJson(iz);
  return sonuc;
}

void BiriniHesapla(Genel& genel, const Json& girdi, bool izli) {
  const Json sonuc = BirHesap(genel, girdi, izli);
  if (sonuc.contains("hata")) throw KomutHatasi{sonuc["hata"].get<std::string>()};
  Yaz(JsonMetni(sonuc) + "\n");
}

// Each result goes out before the next person is read.
void ListeyiHesapla(Genel& genel, JsonGirdisi& girdi, const HesaplaSecenekleri& s) {
  MetinCikisi cikis;
  JsonDizisi dizi(cikis);
  std::vector<std::string> hatalar;
  for (int no = 1; const auto biri = girdi.Sonraki(); ++no) {
    const Json sonuc = BirHesap(genel, *biri, s.izli);
    if (sonuc.contains("hata")) hatalar.push_back(std::to_string(no) + ". hesap: " + sonuc["hata"].get<std::string>());
    dizi.Ekle(sonuc);
  }
  dizi.Bitir();
  cikis.Yaz("\n");
  cikis.Bitir();
  if (const std::string metin = s.sorunlar.Metin(hatalar); !metin.empty()) throw KomutHatasi{metin.substr(1)};
}

void Hesapla(Genel& genel, const HesaplaSecenekleri& s) {
  JsonGirdisi girdi(GirdiyiOku());
  if (girdi.Liste()) return ListeyiHesapla(genel, girdi, s);
  BiriniHesapla(genel, *girdi.Sonraki(), s.izli);
}

}  // namespace

void HesaplaKomutu(CLI::App& app, Genel& genel) {
  auto* komut = app.add_subcommand("hesapla",
                                   "Şirket olmadan hesaplar: standart girdiden JSON (bir nesne veya dizi) okur, bordro "
                                   "kaydının bütün tutarlarını ve NetOdenen'i JSON olarak verir");
  auto s = std::make_shared<HesaplaSecenekleri>();
  komut->add_flag("--iz", s->izli, "her tutarın nasıl bulunduğunu da verir");
  s->sorunlar.SecenekEkle(*komut);
  komut->footer(
      "Girdi: donem {yil, ay}; sicil {alanlar}; giris {gün, saat, yrd01…yrd11, borckes};\n"
      "isteğe bağlı: esco [{yakinlik, agiok}], devgvmatrah, devgvtutar, calismagun, toind1…3,\n"
      "firma {issaati, paraonda, tehlike, sinif, tersfirma}, muaf, indir ve sendika satırları,\n"
      "kaztan {k1…k9, y1…y11}, eskilira, parametre {AsgariUcret, SskTaban, …}.\n"
      "Parametre verilmezse o ayın programla gelen rakamları kullanılır.");
  komut->callback([&genel, s] { Hesapla(genel, *s); });
}

}  // namespace belvani::cli
