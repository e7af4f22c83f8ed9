// parametre-kur, parametre
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/dosya.h"
#include "payroll/hazirlik/kosullar.h"
#include "payroll/parametre/indir.h"

namespace belvani::cli {
namespace {

struct KurSecenekleri {
  std::string donem, kaynak;
  bool eskiLira = false;
};

void ParametreleriKur(Genel& genel, const KurSecenekleri& s) {
  const Donem donem = DonemOku(s.donem);
  const std::string dataPath = genel.DataPath();
  Basarmali(DizinYarat(dataPath));
  std::string kaynak = s.kaynak;
  if (kaynak.empty()) {
    auto adres = ParametreAdresi(donem.yil, donem.ay, s.eskiLira ? Lira::Eski : Lira::Yeni);
    kaynak = Degeri(adres);
  }
  Basarmali(ParametreKur(dataPath, kaynak));
  Yaz("Parametre İndirildi.. (" + s.donem + ")\n");
}

Json OranJson(const OranSatiri& o) {
  return {{"ana", o.ana.Sayi()},
          {"has", o.has.Sayi()},
          {"mal", o.mal.Sayi()},
          {"sgdp", o.sgdp.Sayi()},
          {"isz", o.isz.Sayi()}};
}

Json ParametreJson(const YasalParametreler& p) {
  const YasalOranlar& y = p.oranlar;
  Json j;
  const std::pair<const char*, Tutar> tutarlar[] = {{"AsgariUcret", y.AsgariUcret}, {"SskTaban", y.SskTaban},
                                                    {"SskTavan", y.SskTavan},       {"KidemTavan", y.KidemTavan},
                                                    {"MuafTavan", y.MuafTavan},     {"AgiTaban", p.agi.AgiTaban}};
  for (const auto& [ad, tutar] : tutarlar) j[ad] = OndalikMetin(tutar);
  const std::pair<const char*, Tek> oranlar[] = {{"DamgaOran", y.DamgaOran},       {"MuafOran", y.MuafOran},
                                                 {"AgiKendisi", p.agi.AgiKendisi}, {"AgiEsi", p.agi.AgiEsi},
                                                 {"AgiCocuk12", p.agi.AgiCocuk12}, {"AgiCocuk3", p.agi.AgiCocuk3},
                                                 {"AgiCocuk4", p.agi.AgiCocuk4}};
  for (const auto& [ad, oran] : oranlar) j[ad] = oran.Sayi();
  for (const Tutar t : y.SakatIndirim) j["SakatIndirim"].push_back(OndalikMetin(t));
  for (std::size_t i = 0; i < p.gv.GvLimit.size(); ++i) {
    j["GvLimit"].push_back(OndalikMetin(p.gv.GvLimit[i]));
    j["GvOran"].push_back(p.gv.GvOran[i].Sayi());
  }
  for (std::size_t i = 0; i < DalSayisi; ++i) {
    if (p.hesapTurleri[i].no == 0) continue;
    j["dallar"].push_back({{"no", p.hesapTurleri[i].no},
                           {"ack", p.hesapTurleri[i].ack},
                           {"isKazasi", p.hesapTurleri[i].isKazasi},
                           {"isci", OranJson(y.IsciOran[i])},
                           {"isveren", OranJson(y.IsverenOran[i])}});
  }
  for (const auto& k : p.kanunlar)
    j["kanun"].push_back({{"bastar", k.bastar.Metin()}, {"bittar", k.bittar.Metin()}, {"uygulama", k.uygulama}});
  return j;
}

// A line for each figure; branches without rates are left out.
std::string ParametreMetni(const Json& j) {
  std::string metin;
  for (const auto& [ad, deger] : j.items()) {
    if (ad == "dallar" || ad == "kanun") continue;
    metin += ad + std::string(ad.size() < 14 ? 14 - ad.size() : 1, ' ');
    if (!deger.is_array())
      metin += (deger.is_string() ? deger.get<std::string>() : deger.dump());
    else
      for (const auto& e : deger) metin += (e.is_string() ? e.get<std::string>() : e.dump()) + "  ";
    metin += "\n";
  }
  const auto oranlar = [](const Json& o) {
    std::string s;
    for (const auto& [ad, deger] : o.items()) s += " " + ad + " " + deger.dump();
    return s;
  };
  for (const auto& dal : j["dallar"]) {
    const auto bos = [](const Json& o) {
      return std::all_of(o.begin(), o.end(), [](const Json& d) { return d.get<double>() == 0; });
    };
    if (bos(dal["isci"]) && bos(dal["isveren"])) continue;
    metin += "Dal " + dal["no"].dump() + " " + dal["ack"].get<std::string>() + ": işçi" + oranlar(dal["isci"]) +
             "; işveren" + oranlar(dal["isveren"]) + (dal["isKazasi"] == 1 ? " + iş kazası" : "") + "\n";
  }
  for (const auto& k : j["kanun"])
    metin += "Uygulama " + k["uygulama"].dump() + ": " + k["bastar"].get<std::string>() + " - " +
             k["bittar"].get<std::string>() + "\n";
  return metin;
}

void ParametreleriYaz(Genel& genel, bool json) {
  auto yasal = YasalParametreleriAl(genel.DataPath());
  const Json j = ParametreJson(Degeri(yasal));
  Yaz(json ? j.dump(2) + "\n" : ParametreMetni(j));
}

}  // namespace

void ParametreKomutlari(CLI::App& app, Genel& genel) {
  auto* kur = app.add_subcommand("parametre-kur", "Bir dönemin yasal parametre dosyalarını data dizinine kurar");
  auto s = std::make_shared<KurSecenekleri>();
  kur->add_option("--donem", s->donem, "dönem, YYYY-AA")->required();
  kur->add_option("--kaynak", s->kaynak, "parametre adresi (file, http, https); verilmezse programla gelen rakamlar");
  kur->add_flag("--eski-lira", s->eskiLira, "tutarlar altı sıfırı atılmamış lira ile (2003-2004 defterleri için)");
  kur->callback([&genel, s] { ParametreleriKur(genel, *s); });

  auto* goster = app.add_subcommand("parametre", "Kurulu yasal parametreleri gösterir");
  auto json = std::make_shared<bool>(false);
  goster->add_flag("--json", *json, "JSON olarak");
  goster->callback([&genel, json] { ParametreleriYaz(genel, *json); });
}

}  // namespace belvani::cli
