// sirket-ac, sirketler, denetle
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/session/firmabilgi.h"
#include "core/session/sirketlistesi.h"

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
  Basarmali(VeriYolu(o.DataPath).Yarat());
  if (const auto acildi = SirketOlustur(o, s.kod, s.kullanici, s.sifre, genel.bildirim); !acildi)
    throw KomutHatasi{acildi.KusurMetni()};
  Okunan<Firma> firma = FirmaDuzenle(o);
  if (!s.unvan.empty()) firma.simdi.unvan = s.unvan;
  if (s.yil != 0) firma.simdi.firmayil = std::int16_t(s.yil);
  if (s.ay != 0) firma.simdi.firmaay = std::uint8_t(s.ay);
  if (const auto yazilan = FirmaKaydet(o, firma); !yazilan)
    throw KomutHatasi{yazilan.KusurMetni() + ": " + o.depo.db.SonHata()};
  Yaz("Şirket açıldı: " + o.FirmaKod + "\n");
}

void SirketleriYaz(Genel& genel, bool json) {
  Json dizi = Json::array();
  std::string metin;
  for (const SirketSatiri& s : SirketListesi(genel.DataPath())) {
    dizi.push_back({{"kod", s.ad}, {"unvan", s.unvan}, {"donem", s.donem}});
    metin += s.ad + "\t" + s.unvan + "\t" + s.donem + "\n";
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
