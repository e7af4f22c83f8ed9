// sunucu-kur, yetki, tasi
#include "cli/ortak.h"
#include "core/session/sirket.h"
#include "core/session/sirkettasi.h"
#include "core/store/sunucukurulumu.h"
#include "core/sunucuadresi.h"

namespace belvani::cli {
namespace {

// The data path that the command is for, which must be on a server.
std::string SunucuAdresiAl(Genel& genel) {
  const std::string adres = genel.DataPathMetni();
  if (!SunucuAdresiMi(adres)) throw KomutHatasi{"Bu komut sunucudaki veri içindir: --veri postgresql://sunucu/belvani"};
  return adres;
}

void Kur(Genel& genel) {
  const std::string adres = SunucuAdresiAl(genel);
  Basarmali(SunucuyuKur(adres));
  const auto cozulen = SunucuAdresiCoz(adres);
  Yaz("Sunucu hazır: " + cozulen->Ad() + "\n");
}

struct YetkiSecenekleri {
  std::string kod, kullanici;
  bool saltOku = false, kaldir = false;

  SirketYetkisi Yetki() const {
    if (kaldir) return SirketYetkisi::Yok;
    return saltOku ? SirketYetkisi::Okur : SirketYetkisi::Yazar;
  }
};

const char* YetkiMetni(SirketYetkisi yetki) {
  switch (yetki) {
    case SirketYetkisi::Yazar:
      return "yazar";
    case SirketYetkisi::Okur:
      return "salt okur";
    case SirketYetkisi::Yok:
      return "yetkisiz";
  }
  return "";
}

void YetkileriYaz(const std::string& adres, const std::string& ad) {
  auto satirlar = SirketYetkileri(adres, ad);
  for (const YetkiSatiri& satir : Degeri(satirlar)) Yaz(satir.kullanici + "\t" + YetkiMetni(satir.yetki) + "\n");
}

void Yetki(Genel& genel, const YetkiSecenekleri& s) {
  const std::string adres = SunucuAdresiAl(genel);
  auto ad = SirketBul(adres, s.kod);
  Degeri(ad);
  if (s.kullanici.empty()) return YetkileriYaz(adres, *ad);
  Basarmali(SirketYetkisiVer(adres, *ad, s.kullanici, s.Yetki()));
  Yaz(*ad + ": " + s.kullanici + " " + YetkiMetni(s.Yetki()) + "\n");
}

struct TasiSecenekleri {
  TasimaIstegi istek;
  std::string kaynak, hedef;
};

void Tasi(Genel& genel, const TasiSecenekleri& s) {
  TerminalIlerlemesi ilerleme;
  auto tasinan = SirketTasi(s.kaynak, s.hedef, s.istek, &ilerleme);
  for (const Kusur& uyari : Degeri(tasinan).uyarilar) genel.bildirim.Uyari("Uyarı: " + uyari.metin);
  Yaz((s.istek.kaynakKalsin ? "Şirket kopyalandı: " : "Şirket taşındı: ") + tasinan->ad +
      "\nYedeği: " + tasinan->yedek + "\n");
}

}  // namespace

void SunucuKomutlari(CLI::App& app, Genel& genel) {
  auto* kur = app.add_subcommand("sunucu-kur",
                                 "Sunucudaki veritabanını program için hazırlar (roller, ortak tablolar, harf sırası); "
                                 "eksik olanı tamamlar");
  kur->callback([&genel] { Kur(genel); });

  auto y = std::make_shared<YetkiSecenekleri>();
  auto* yetki = app.add_subcommand("yetki",
                                   "Sunucudaki şirkette bir kullanıcıya yetki verir, yetkisini kaldırır; "
                                   "kullanıcı verilmezse yetkilileri listeler");
  yetki->add_option("KOD", y->kod, "şirket")->required();
  yetki->add_option("KULLANICI", y->kullanici, "sunucudaki kullanıcı (rol)");
  auto* oku = yetki->add_flag("--salt-oku", y->saltOku, "görür, değiştiremez");
  yetki->add_flag("--kaldir", y->kaldir, "artık şirketi görmez")->excludes(oku);
  yetki->callback([&genel, y] { Yetki(genel, *y); });

  auto t = std::make_shared<TasiSecenekleri>();
  auto* tasi = app.add_subcommand(
      "tasi",
      "Şirketi bir veri yerinden ötekine taşır (dizin ya da sunucu); her kayıt ve dosya karşılaştırılır, "
      "eski yerinde yedeği kalır");
  tasi->add_option("KOD", t->istek.kod, "şirket")->required();
  tasi->add_option("KAYNAK", t->kaynak, "şimdiki veri yeri: dizin ya da postgresql://sunucu/veritabanı")->required();
  tasi->add_option("HEDEF", t->hedef, "yeni veri yeri")->required();
  tasi->add_flag("--kaynak-kalsin", t->istek.kaynakKalsin, "şirket eski yerinde de durur (kopyalama)");
  tasi->callback([&genel, t] { Tasi(genel, *t); });
}

}  // namespace belvani::cli
