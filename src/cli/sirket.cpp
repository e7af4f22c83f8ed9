// sirket-ac, sirket-sil, sirketler
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/saat.h"
#include "core/session/sirketlistesi.h"
#include "core/session/yenisirket.h"

namespace belvani::cli {
namespace {

struct SirketAcSecenekleri {
  std::string kod, kullanici, sifre, unvan;
  int yil = 0;
  int ay = 0;
};

// A password in the arguments is seen by everybody on the computer: "-" stands for one line of standard input.
std::string SifreOku(const std::string& secenek) {
  if (secenek != "-") return secenek;
  const std::string girdi = GirdiyiOku();
  return girdi.substr(0, girdi.find_first_of("\r\n"));
}

void SirketiAc(Genel& genel, const SirketAcSecenekleri& s) {
  Oturum o;
  o.DataPath = genel.DataPath();
  const auto kart = [&s](Firma& firma) {
    if (!s.unvan.empty()) firma.unvan = s.unvan;
    if (s.yil != 0) firma.firmayil = std::int16_t(s.yil);
    if (s.ay != 0) firma.firmaay = std::uint8_t(s.ay);
  };
  Basarmali(SirketKur(o, {.ad = s.kod, .kullanici = s.kullanici, .sifre = SifreOku(s.sifre), .kart = kart}));
  Yaz("Şirket açıldı: " + o.FirmaKod + "\n");
}

Json IcerdekiDizisi(const std::vector<Icerdeki>& icerdekiler) {
  Json dizi = Json::array();
  for (const Icerdeki& i : icerdekiler)
    dizi.push_back({{"kullanici", i.kullanici}, {"bilgisayar", i.bilgisayar}, {"giris", AnMetni(i.giris)}});
  return dizi;
}

void SirketleriYaz(Genel& genel, bool json) {
  const VeriYolu veri = genel.DataPath();
  Json dizi = Json::array();
  std::string metin;
  for (const SirketSatiri& s : SirketListesi(veri)) {
    dizi.push_back({{"kod", s.ad}, {"unvan", s.unvan}, {"donem", s.Donem()}, {"icerde", IcerdekiDizisi(s.icerde)}});
    metin += s.ad + "\t" + s.unvan + "\t" + s.Donem() + (s.icerde.empty() ? "" : "\t" + IcerdekiMetni(s.icerde)) + "\n";
  }
  // They are no companies, so programs that read the list do not see them.
  for (const std::string& ad : YarimSirketler(veri))
    genel.bildirim.Uyari("Yarım kalmış şirket: " + ad + " (silmek için: sirket-sil " + ad + " --onay)");
  Yaz(json ? dizi.dump(2) + "\n" : metin);
}

void SirketiSil(Genel& genel, const std::string& kod, bool onay) {
  Oturum o;
  o.DataPath = genel.DataPath();
  OnayliBildirim onayli;
  auto silinen = SirketSil(o.DataPath, kod, o, onay ? onayli : static_cast<Bildirim&>(genel.bildirim));
  if (Degeri(silinen) != Silme::Silindi) throw KomutHatasi{"Silinmedi; silmek için --onay veriniz: " + kod};
  Yaz("Şirket silindi: " + kod + "\n");
}

}  // namespace

void SirketKomutlari(CLI::App& app, Genel& genel) {
  auto* ac = app.add_subcommand("sirket-ac", "Yeni şirket açar: dizini, veritabanı ve ilk kullanıcısı ile");
  auto s = std::make_shared<SirketAcSecenekleri>();
  ac->add_option("KOD", s->kod, "şirketin adı; dizini bu adla açılır")->required();
  ac->add_option("--kullanici", s->kullanici, "ilk kullanıcının adı")->required();
  ac->add_option("--sifre", s->sifre, "ilk kullanıcının şifresi (verilmezse boş; - ise standart girdiden okunur)");
  ac->add_option("--unvan", s->unvan, "şirketin ünvanı");
  YilSecenegi(*ac, s->yil, "çalışma yılı (verilmezse bu yıl)");
  AySecenegi(*ac, s->ay, "çalışma ayı (verilmezse bu ay)");
  ac->callback([&genel, s] { SirketiAc(genel, *s); });

  auto* liste = app.add_subcommand("sirketler", "Şirketleri dönemleriyle ve içeride olanlarla listeler");
  auto json = std::make_shared<bool>(false);
  liste->add_flag("--json", *json, "JSON olarak");
  liste->callback([&genel, json] { SirketleriYaz(genel, *json); });

  auto* sil = app.add_subcommand("sirket-sil", "Şirketi bütün dosyalarıyla siler; yarım kalmış olanı da");
  auto silinen = std::make_shared<std::string>();
  auto onay = std::make_shared<bool>(false);
  sil->add_option("KOD", *silinen, "şirketin dizini, yazıldığı gibi")->required();
  sil->add_flag("--onay", *onay, "sormadan siler; verilmezse hiçbir şey silinmez");
  sil->callback([&genel, silinen, onay] { SirketiSil(genel, *silinen, *onay); });
}

}  // namespace belvani::cli
