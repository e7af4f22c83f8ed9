// sirket-ac, sirketler, denetle
#include "core/session/sirket.h"

#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/dosya.h"

namespace belvani::cli {
namespace {

struct SirketAcSecenekleri {
  std::string kod, kullanici, sifre, unvan;
  int yil = 0;
  int ay = 0;
};

void SirketiAc(Genel& genel, const SirketAcSecenekleri& s) {
  Oturum o;
  o.DataPath = genel.DataPath();
  Basarmali(DizinYarat(o.DataPath));
  Basarmali(SirketOlustur(o, s.kod, s.kullanici, s.sifre, genel.bildirim));
  auto& firma = o.depo.firma;
  firma.IlkKayit();
  firma.KayitDuzelt();
  if (!s.unvan.empty()) firma.AlanYaz("unvan", s.unvan);
  if (s.yil != 0) firma.AlanYaz("firmayil", std::int64_t(s.yil));
  if (s.ay != 0) firma.AlanYaz("firmaay", std::int64_t(s.ay));
  if (!firma.KayitYaz()) throw KomutHatasi{"Firma Bilgileri Güncellenemedi: " + o.depo.db.SonHata()};
  Yaz("Şirket açıldı: " + o.FirmaKod + "\n");
}

struct SirketBilgisi {
  std::string kod, unvan, donem;
};

SirketBilgisi SirketiOku(const std::string& dataPath, const std::string& kod) {
  Oturum o;
  o.DataPath = dataPath;
  // A directory without a sound store is listed with its own words, and the list goes on.
  struct Sessiz : Bildirim {
    void Bilgi(std::string_view) override {}
    void Uyari(std::string_view) override {}
    bool Soru(std::string_view) override { return false; }
  } sessiz;
  if (!belvani::SirketAc(o, kod, sessiz) || !FirmaYukle(o)) return {kod, "Database'e Ulaşılamadı", ""};
  const std::string ay = std::to_string(o.firmaay);
  return {kod, o.unvan, (ay.size() < 2 ? "0" + ay : ay) + "-" + std::to_string(o.firmayil)};
}

void SirketleriYaz(Genel& genel, bool json) {
  const std::string dataPath = genel.DataPath();
  Json dizi = Json::array();
  std::string metin;
  for (const auto& kod : Sirketler(dataPath)) {
    const SirketBilgisi s = SirketiOku(dataPath, kod);
    dizi.push_back({{"kod", s.kod}, {"unvan", s.unvan}, {"donem", s.donem}});
    metin += s.kod + "\t" + s.unvan + "\t" + s.donem + "\n";
  }
  Yaz(json ? dizi.dump(2) + "\n" : metin);
}

void Denetle(Genel& genel, const std::string& kod) {
  const auto o = genel.SirketAc(kod);
  if (const std::string kusur = o->depo.db.IcMotor().ButunlukKusuru(); !kusur.empty())
    throw KomutHatasi{"Veritabanı bozuk: " + kusur};
  Yaz("Veritabanı sağlam: " + o->FirmaKod + "\n");
}

}  // namespace

void SirketKomutlari(CLI::App& app, Genel& genel) {
  auto* ac = app.add_subcommand("sirket-ac", "Yeni şirket açar: dizini, veritabanı ve ilk kullanıcısı ile");
  auto s = std::make_shared<SirketAcSecenekleri>();
  ac->add_option("KOD", s->kod, "şirketin adı; dizini bu adla açılır")->required();
  ac->add_option("--kullanici", s->kullanici, "ilk kullanıcının adı")->required();
  ac->add_option("--sifre", s->sifre, "ilk kullanıcının şifresi (verilmezse boş)");
  ac->add_option("--unvan", s->unvan, "şirketin ünvanı");
  YilSecenegi(*ac, s->yil, "çalışma yılı (verilmezse bu yıl)");
  AySecenegi(*ac, s->ay, "çalışma ayı (verilmezse bu ay)");
  ac->callback([&genel, s] { SirketiAc(genel, *s); });

  auto* liste = app.add_subcommand("sirketler", "Data dizinindeki şirketleri dönemleriyle listeler");
  auto json = std::make_shared<bool>(false);
  liste->add_flag("--json", *json, "JSON olarak");
  liste->callback([&genel, json] { SirketleriYaz(genel, *json); });

  auto* denetle = app.add_subcommand("denetle", "Şirketin veritabanını baştan sona okuyup sağlamlığını denetler");
  auto kod = std::make_shared<std::string>();
  denetle->add_option("KOD", *kod, "şirket")->required();
  denetle->callback([&genel, kod] { Denetle(genel, *kod); });
}

}  // namespace belvani::cli
