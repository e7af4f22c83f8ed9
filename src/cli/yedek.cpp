// yedekle, yedekler, yedekten
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/dosya.h"
#include "core/kaynak.h"
#include "core/session/sirket.h"
#include "core/session/sirketyedegi.h"
#include "core/session/yedektendon.h"
#include "core/yedek/yedekadi.h"

namespace belvani::cli {
namespace {

struct YedekleSecenekleri {
  std::string kod, cikti;
  bool hepsi = false;
};

void YedekAlVeYaz(Genel& genel, const VeriYolu& veri, const std::string& ad, const std::string& hedef) {
  auto alinan = YedekAl(veri, ad, {.hedef = hedef});
  for (const Kusur& uyari : Degeri(alinan).uyarilar) genel.bildirim.Uyari("Uyarı: " + ad + ": " + uyari.metin);
  Yaz("Yedek alındı: " + alinan->yol + " (" + BoyMetni(alinan->boy) + ")\n");
}

// One company that cannot be backed up keeps no other one from it.
void HepsiniYedekle(Genel& genel, const VeriYolu& veri, const std::string& dizin) {
  if (!dizin.empty() && !DizinVar(dizin)) throw KomutHatasi{"Yedeğin yazılacağı dizin bulunamadı: " + dizin};
  std::string alinamayan;
  for (const std::string& ad : Sirketler(veri)) try {
      YedekAlVeYaz(genel, veri, ad, dizin);
    } catch (const KomutHatasi& h) {
      alinamayan += "\n" + ad + ": " + h.metin;
    }
  if (!alinamayan.empty()) throw KomutHatasi{"Yedeği alınamayan şirketler:" + alinamayan};
}

void Yedekle(Genel& genel, const YedekleSecenekleri& s) {
  const VeriYolu veri = genel.DataPath();
  if (s.hepsi) return HepsiniYedekle(genel, veri, s.cikti);
  if (s.kod.empty()) throw CLI::RequiredError("KOD ya da --hepsi");
  auto ad = SirketBul(veri, s.kod);
  YedekAlVeYaz(genel, veri, Degeri(ad), s.cikti);
}

void YedekleriYaz(Genel& genel, const std::string& kod, bool json) {
  const VeriYolu veri = genel.DataPath();
  auto ad = YedekliSirketBul(veri, kod);
  Json dizi = Json::array();
  std::string metin;
  for (const YedekSatiri& y : SirketYedekleri(veri, Degeri(ad))) {
    dizi.push_back({{"zaman", KunyeZamani(y.ad)}, {"tur", TurSozu(y.ad.tur)}, {"boy", y.boy}, {"dosya", y.yol}});
    metin += y.ad.Zaman() + "\t" + std::string(TurMetni(y.ad.tur)) + "\t" + BoyMetni(y.boy) + "\t" + y.yol + "\n";
  }
  Yaz(json ? dizi.dump(2) + "\n" : metin);
}

void GeriYukle(Genel& genel, const DonusIstegi& istek, bool onay) {
  OnayliBildirim onayli;
  auto donus = YedektenDon(genel.DataPath(), istek, onay ? onayli : static_cast<Bildirim&>(genel.bildirim));
  if (!Degeri(donus)) throw KomutHatasi{"Yedek geri yüklenmedi; şirketin yerine konması için --onay veriniz"};
  const Donus& olan = **donus;
  for (const Kusur& uyari : olan.uyarilar) genel.bildirim.Uyari("Uyarı: önceki hali: " + uyari.metin);
  Yaz("Yedek geri yüklendi: " + olan.ad + "\n" + (olan.onceki.empty() ? "" : "Önceki hali: " + olan.onceki + "\n"));
}

}  // namespace

void YedekKomutlari(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<YedekleSecenekleri>();
  auto* yedekle = app.add_subcommand(
      "yedekle", "Şirketi bütün dosyalarıyla tek bir sıkıştırılmış dosyaya yedekler; başkaları çalışırken de alınır");
  auto* kod = yedekle->add_option("KOD", s->kod, "şirket");
  yedekle->add_flag("--hepsi", s->hepsi, "data dizinindeki bütün şirketler, her biri kendi dosyasına")->excludes(kod);
  yedekle->add_option("-o", s->cikti,
                      "yazılacak dosya ya da dizin (verilmezse data dizininde .yedek/KOD; sunucudaki "
                      "şirketin yedeği bu bilgisayarda kullanıcının veri dizininde durur)");
  yedekle->callback([&genel, s] { Yedekle(genel, *s); });

  auto* liste =
      app.add_subcommand("yedekler", "Şirketin data dizinindeki yedeklerini listeler, silinmiş şirketinkini de");
  auto listeKodu = std::make_shared<std::string>();
  auto json = std::make_shared<bool>(false);
  liste->add_option("KOD", *listeKodu, "şirket")->required();
  liste->add_flag("--json", *json, "JSON olarak");
  liste->callback([&genel, listeKodu, json] { YedekleriYaz(genel, *listeKodu, *json); });

  auto* don = app.add_subcommand("yedekten", "Yedeği geri yükler: şirketin yerine ya da yeni bir koda");
  auto istek = std::make_shared<DonusIstegi>();
  auto onay = std::make_shared<bool>(false);
  don->add_option("DOSYA", istek->dosya, "yedek dosyası")->required();
  don->add_option("--kod", istek->yeniKod, "yeni bir şirket olarak bu kodla; var olan bir şirkete dokunulmaz");
  don->add_flag("--onay", *onay, "şirket yerinde duruyorsa sormadan yerine koyar; şimdiki hali önce yedeklenir");
  don->callback([&genel, istek, onay] { GeriYukle(genel, *istek, *onay); });
}

}  // namespace belvani::cli
