// hesapla: one calculation, or a list of them, without a store. The values of a person come from JSON instead of from a
// company, and go the same way from there on: PersonelYukle, BordroHesapla.
#include "cli/giris.h"
#include "cli/hesapgirdisi.h"
#include "cli/ortak.h"

namespace belvani::cli {
namespace {

Json IzJson(const Iz& iz) {
  Json dizi = Json::array();
  for (const IzAdimi& adim : iz) {
    Json girdiler = Json::object();
    for (const auto& g : adim.girdiler) girdiler[g.ad] = g.deger;
    dizi.push_back({{"alan", adim.alan}, {"kural", adim.kural}, {"girdiler", girdiler}, {"sonuc", adim.sonuc}});
  }
  return dizi;
}

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

void Hesapla(Genel& genel, bool izli) {
  const Json girdi = JsonOku(GirdiyiOku());
  const bool liste = girdi.is_array();
  Json sonuclar = Json::array();
  std::string hatalar;
  const Json tekli = Json::array({girdi});
  for (const Json& biri : liste ? girdi : tekli) {
    sonuclar.push_back(BirHesap(genel, biri, izli));
    if (!sonuclar.back().contains("hata")) continue;
    if (liste) hatalar += std::to_string(sonuclar.size()) + ". hesap: ";
    hatalar += sonuclar.back()["hata"].get<std::string>() + "\n";
  }
  if (liste || hatalar.empty()) Yaz((liste ? sonuclar : sonuclar.front()).dump(2) + "\n");
  if (!hatalar.empty()) throw KomutHatasi{hatalar.substr(0, hatalar.size() - 1)};
}

}  // namespace

void HesaplaKomutu(CLI::App& app, Genel& genel) {
  auto* komut = app.add_subcommand("hesapla",
                                   "Şirket olmadan hesaplar: standart girdiden JSON (bir nesne veya dizi) okur, bordro "
                                   "kaydının bütün tutarlarını ve NetOdenen'i JSON olarak verir");
  auto izli = std::make_shared<bool>(false);
  komut->add_flag("--iz", *izli, "her tutarın nasıl bulunduğunu da verir");
  komut->footer(
      "Girdi: donem {yil, ay}; sicil {alanlar}; giris {gün, saat, yrd01…yrd11, borckes};\n"
      "isteğe bağlı: esco [{yakinlik, agiok}], devgvmatrah, devgvtutar, calismagun, toind1…3,\n"
      "firma {issaati, paraonda, tehlike, sinif, tersfirma}, muaf, indir ve sendika satırları,\n"
      "kaztan {k1…k9, y1…y11}, eskilira, parametre {AsgariUcret, SskTaban, …}.\n"
      "Parametre verilmezse o ayın programla gelen rakamları kullanılır.");
  komut->callback([&genel, izli] { Hesapla(genel, *izli); });
}

}  // namespace belvani::cli
