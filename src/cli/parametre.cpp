// parametre-kur, parametre
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/dosya.h"
#include "payroll/hazirlik/kosullar.h"
#include "payroll/parametre/mevzuat.h"
#include "payroll/parametre/uyeler.h"
#include "printing/yzccnt.h"

namespace belvani::cli {
namespace {

struct KurSecenekleri {
  std::string donem, kaynak;
  bool eskiLira = false;
  bool hazir = false;
  bool kabul = false;
  bool ozelGider = false;
};

// The one table that no set of a month brings: it is of a year.
void OzelGiderTablosuKur(const VeriYolu& veri, const Donem& donem, Lira lira) {
  const auto tablo = OzelGvMevzuati(MevzuatDizini(), donem.yil, lira);
  if (!tablo) throw KomutHatasi{tablo.KusurMetni()};
  Basarmali(veri.Yarat());
  Basarmali(OzelGvKaydet(veri, *tablo));
  Yaz(std::to_string(donem.yil) + " özel gider indirimi tablosu kuruldu.\n");
}

void ParametreleriKur(Genel& genel, const KurSecenekleri& s) {
  const Donem donem = DonemOku(s.donem);
  const MevzuatAyi ay{donem.yil, donem.ay};
  const VeriYolu veri = genel.DataPath();
  if (s.kabul) {
    Basarmali(MevzuatiKabulEt(veri, ay));
    return Yaz("Kurulu rakamlar " + ay.Metin() + " için kabul edildi.\n");
  }
  const Lira lira = s.eskiLira ? Lira::Eski : Lira::Yeni;
  if (s.ozelGider) return OzelGiderTablosuKur(veri, donem, lira);
  Basarmali(veri.Yarat());
  std::string kaynak = s.kaynak;
  if (kaynak.empty()) {
    auto adres = ParametreAdresi(donem.yil, donem.ay, lira);
    kaynak = Degeri(adres);
  }
  auto kurulum = MevzuatKur(veri, ay, kaynak, {.saklanan = s.hazir ? Saklanan::Birakilir : Saklanan::GeriGelir});
  if (Degeri(kurulum).sakladi)
    genel.bildirim.Uyari("Kurulu rakamlarda yayımlanandan farklı olanlar vardı: kendi dönemleri için saklandı.");
  if (kurulum->geriGeldi)
    genel.bildirim.Uyari("Bu dönem için saklanan rakamlarınız geri geldi (yayımlananlar için: --hazir).");
  Yaz("Parametre İndirildi.. (" + s.donem + ")\n");
}

// A damaged row of the law's eras has no day.
Json UyeJson(Tarih gun) {
  return gun.Metin();
}
template <class U>
Json UyeJson(const U& deger) {
  return DegerJson(UyeDegeri(deger));
}
template <class U, std::size_t N>
Json UyeJson(const std::array<U, N>& dizi) {
  Json j = Json::array();
  for (const U& eleman : dizi) j.push_back(UyeJson(eleman));
  return j;
}

template <class Kayit>
Json KayitJson(const Kayit& kayit) {
  Json j;
  HerUye<Kayit>([&](const auto& uye) { j[uye.ad] = UyeJson(kayit.*uye.uye); });
  return j;
}

// The figures of the law that have one of these types, by the names of the records' members.
template <class... Turler>
void RakamlariEkle(Json& j, const YasalParametreler& p) {
  const auto ekle = [&]<class Kayit>(const Kayit& kayit) {
    HerUye<Kayit>([&](const auto& uye) {
      using U = std::remove_cvref_t<decltype(kayit.*uye.uye)>;
      if constexpr ((std::is_same_v<U, Turler> || ...)) j[uye.ad] = UyeJson(kayit.*uye.uye);
    });
  };
  ekle(p.oranlar);
  ekle(p.agi);
  ekle(p.gv);
}

Json ParametreJson(const YasalParametreler& p) {
  Json j;
  RakamlariEkle<Tutar>(j, p);
  RakamlariEkle<Tek>(j, p);
  RakamlariEkle<decltype(YasalOranlar::SakatIndirim), decltype(GvTablosu::GvLimit), decltype(GvTablosu::GvOran)>(j, p);
  for (std::size_t i = 0; i < DalSayisi; ++i) {
    if (p.hesapTurleri[i].no == 0) continue;
    Json dal = KayitJson(p.hesapTurleri[i]);
    dal["isci"] = KayitJson(p.oranlar.IsciOran[i]);
    dal["isveren"] = KayitJson(p.oranlar.IsverenOran[i]);
    j["dallar"].push_back(std::move(dal));
  }
  for (const auto& k : p.kanunlar) j["kanun"].push_back(KayitJson(k));
  return j;
}

// A line for each figure; branches without rates are left out.
std::string ParametreMetni(const Json& j) {
  std::string metin;
  for (const auto& [ad, deger] : j.items()) {
    if (ad == "dallar" || ad == "kanun") continue;
    metin += Solda(ad, 13) + " ";
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
  auto* hazir = kur->add_flag("--hazir", s->hazir, "bu dönem için saklanan kendi rakamlarınız yerine yayımlananlar");
  kur->add_flag("--kabul", s->kabul, "kurulu rakamlar bu dönem için kabul edilir, bir daha uyarılmaz; bir şey kurulmaz")
      ->excludes(hazir);
  kur->add_flag("--ozel-gider", s->ozelGider,
                "dönemin yılının özel gider indirimi tablosunu kurar (ozgvtbl.dat), başka bir şey kurmaz");
  kur->callback([&genel, s] { ParametreleriKur(genel, *s); });

  auto* goster = app.add_subcommand("parametre", "Kurulu yasal parametreleri gösterir");
  auto json = std::make_shared<bool>(false);
  goster->add_flag("--json", *json, "JSON olarak");
  goster->callback([&genel, json] { ParametreleriYaz(genel, *json); });
}

}  // namespace belvani::cli
