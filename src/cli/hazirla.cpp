// hazirla, bordro-sil, geri-al
#include "cli/giris.h"
#include "cli/ortak.h"
#include "cli/sirketsecimi.h"
#include "core/store/koru.h"
#include "payroll/hazirlik/aysaklama.h"
#include "payroll/hazirlik/hazirlik.h"
#include "payroll/hazirlik/mahsupkaybi.h"

namespace belvani::cli {
namespace {

struct HazirlaSecenekleri {
  SirketSecimi sirketler;
  GirisDosyasi giris;
  Donem donem;
  SorunListesi sorunlar;
};

void Hazirla(Genel& genel, const SirketIsi& isi, const HazirlaSecenekleri& s) {
  const auto o = genel.YazmayaAc(isi.kod);
  const KuruluMevzuat mevzuat = KuruluMevzuatOku(o->DataPath);
  auto yasal = YasalParametreleriAl(mevzuat);
  auto kosullar = KosullariYukle(*o, Degeri(yasal), s.donem.yil, s.donem.ay);
  Degeri(kosullar);
  MevzuatUyarisi(genel, mevzuat, s.donem);
  const auto girisler =
      s.giris.ad.empty() ? std::vector<GirisSatiri>() : GirisListesiOku(DosyayiOku(s.giris.ad), s.giris, s.sorunlar);
  // Told before it is gone; the month as it was can be brought back.
  auto kayip = Koru([&] { return AyinMahsupKaybi(o->depo.db.IcMotor(), s.donem.yil, s.donem.ay, kosullar->paraonda); });
  if (Degeri(kayip)) genel.bildirim.Uyari("Uyarı: " + (*kayip)->metin);
  TerminalIlerlemesi ilerleme;
  auto sonuc = TopluHazirla(*o, *kosullar, girisler, &ilerleme);
  std::vector<std::string> sorunlar;
  for (const Kusur& sorun : Degeri(sonuc).sorunlar)
    sorunlar.push_back((sorun.derece == Derece::Hata ? "Hata: " : "Uyarı: ") +
                       (sorun.kod.empty() ? "" : sorun.kod + ": ") +
                       (sorun.satir == 0 ? "" : "satır " + std::to_string(sorun.satir) + ": ") + sorun.metin);
  s.sorunlar.Sirketinki(isi).Soyle(genel.bildirim, sorunlar);
  if (sonuc->KimseYok()) isi.Atla("Bu ayda çalışan personel yok: " + sonuc->Ozet());
  if (!sonuc->kaydedildi) throw KomutHatasi{"Bordro kaydedilmedi: girişlerde hata var"};
  Yaz("Bordro Hazırlık Tamamlandı: " + sonuc->Ozet() + "\n");
}

struct SilSecenekleri {
  std::string kod;
  Donem donem;
};

void BordroyuSil(Genel& genel, const SilSecenekleri& s) {
  const auto o = genel.YazmayaAc(s.kod);
  auto silinen = BordroSil(*o, s.donem.yil, s.donem.ay);
  Yaz("Bordro Tamamen Silindi: " + std::to_string(Degeri(silinen)) + " kayıt\n");
}

struct GeriAlSecenekleri {
  std::string kod, ay;
  bool onay = false;
};

void GeriAl(Genel& genel, const GeriAlSecenekleri& s) {
  const Donem donem = DonemOku(s.ay);
  const auto o = genel.YazmayaAc(s.kod);
  OnayliBildirim onayli;
  auto gelen = AyiGeriAl(*o, donem.yil, donem.ay, s.onay ? onayli : static_cast<Bildirim&>(genel.bildirim));
  if (!Degeri(gelen)) throw KomutHatasi{"Geri alınmadı; geri almak için --onay veriniz: " + s.ay};
  Yaz("Bordro geri alındı: " + std::to_string(**gelen) + " kayıt\n");
}

}  // namespace

void HazirlaKomutlari(CLI::App& app, Genel& genel) {
  auto h = std::make_shared<HazirlaSecenekleri>();
  auto* hazirla = app.add_subcommand(
      "hazirla", "Ayın bordrosunu bütün personel için şablondan, varsa giriş listesinden hazırlar ve kaydeder");
  h->sirketler.SecenekEkle(*hazirla);
  DonemSecenekleri(*hazirla, h->donem);
  auto* giris = hazirla->add_option(
      "--giris", h->giris.ad,
      "giriş listesi (CSV): kod, gün ve saat alanları, yrd01…yrd11, eksiksebebi, ucretsizizin, "
      "rapcalismadi, borckes, sskiscior, sskisverenor, issiziscior, issizisverenor, damgaveror; listede "
      "olmayan kişi ve sütun şablondan");
  OndalikSecenegi(*hazirla, h->giris.ondalik);
  h->sirketler.YalnizTekSirkette(giris);
  h->sorunlar.SecenekEkle(*hazirla);
  hazirla->callback([&genel, h] {
    h->sirketler.DizinHazirla(h->sorunlar.Dosya());
    h->sirketler.Calistir(genel, [&](const SirketIsi& isi) { Hazirla(genel, isi, *h); });
  });

  auto s = std::make_shared<SilSecenekleri>();
  auto* sil = app.add_subcommand("bordro-sil", "Ayın bordrosunu bütün personel için siler");
  sil->add_option("KOD", s->kod, "şirket")->required();
  DonemSecenekleri(*sil, s->donem);
  sil->callback([&genel, s] { BordroyuSil(genel, *s); });

  auto g = std::make_shared<GeriAlSecenekleri>();
  auto* geriAl = app.add_subcommand(
      "geri-al",
      "Ayın bordrosunu silinmeden ya da hazirla üzerine yazmadan önceki haline döndürür; şimdiki hali saklanır");
  geriAl->add_option("KOD", g->kod, "şirket")->required();
  geriAl->add_option("--ay", g->ay, "ay, YYYY-AA")->required();
  geriAl->add_flag("--onay", g->onay, "sormadan geri alır; verilmezse hiçbir kayıt değişmez");
  geriAl->callback([&genel, g] { GeriAl(genel, *g); });
}

}  // namespace belvani::cli
