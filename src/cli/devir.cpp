// devir, yillik-devir, perdev-al, kart-al, cari, cari-al
#include "cli/aktarim.h"
#include "cli/belgecikti.h"
#include "cli/sorunlar.h"
#include "payroll/devir/aylikbilgi.h"
#include "payroll/devir/cari.h"
#include "payroll/devir/devirkaydi.h"
#include "payroll/devir/yillikdevir.h"
#include "payroll/hazirlik/firmadurumu.h"

namespace belvani::cli {
namespace {

std::string DonemMetni(const FirmaDurumu::Donem& donem) {
  return std::string(AyAdi(donem.ay)) + " " + std::to_string(donem.yil);
}

void Devret(Genel& genel, const std::string& kod, bool evet) {
  const auto o = genel.YazmayaAc(kod);
  FirmaDurumu firma(*o);
  const std::string yeni = DonemMetni(firma.KomsuDonem(Yon::Sonraki));
  if (!evet) throw KomutHatasi{"Dönem değişmedi; " + yeni + " dönemine geçmek için --evet veriniz: " + kod};
  Basarmali(firma.DonemKaydir(Yon::Sonraki));
  Yaz("Şirket dönemi: " + yeni + "\n");
}

struct YillikDevirSecenekleri {
  std::string kod;
  int yil = 0;
  SorunListesi sorunlar;
};

void YiliDevret(Genel& genel, const YillikDevirSecenekleri& s) {
  const auto o = genel.YazmayaAc(s.kod);
  TerminalIlerlemesi ilerleme;
  auto sonuc = YillikDevir(*o, s.yil, &ilerleme);
  std::vector<std::string> yazilamayanlar;
  for (const Kusur& k : Degeri(sonuc).yazilamayanlar)
    yazilamayanlar.push_back("Hata: Kod : " + k.kod + " DataBase Güncellenemedi.");
  s.sorunlar.Soyle(genel.bildirim, yazilamayanlar);
  Yaz("Kontrol Tamamlandı.. " + std::to_string(s.yil) + ": " + std::to_string(sonuc->kisi) + " kişi\n");
  if (!yazilamayanlar.empty()) throw KomutHatasi{std::to_string(yazilamayanlar.size()) + " kişi devredilemedi"};
}

struct CariSecenekleri {
  std::string kod, personel;
  BelgeCiktisi cikti;
};

void CariYaz(Genel& genel, const CariSecenekleri& s) {
  const auto o = genel.SirketAc(s.kod);
  const auto belge = CariBelgesi(*o, s.personel);
  if (!belge) throw KomutHatasi{belge.KusurMetni()};
  if ((*belge)->Kayitsiz()) genel.bildirim.Bilgi("Bu personelin cari kaydı yok");
  BelgeYaz(**belge, s.cikti);
}

void DonemKomutlari(CLI::App& app, Genel& genel) {
  auto kod = std::make_shared<std::string>();
  auto evet = std::make_shared<bool>(false);
  auto* devir = app.add_subcommand("devir", "Şirketin çalışma dönemini bir sonraki aya geçirir; bordrolara dokunmaz");
  devir->add_option("KOD", *kod, "şirket")->required();
  devir->add_flag("--evet", *evet, "sormadan geçer; verilmezse dönem değişmez");
  devir->callback([&genel, kod, evet] { Devret(genel, *kod, *evet); });

  auto y = std::make_shared<YillikDevirSecenekleri>();
  auto* yillik = app.add_subcommand("yillik-devir",
                                    "Bir yılın bordrolarını kişi kişi toplar, devir kayıtlarına (dvr) yazar; özel "
                                    "gider indirimi tutarları kalır, istenildiği kadar yinelenebilir");
  yillik->add_option("KOD", y->kod, "şirket")->required();
  YilSecenegi(*yillik, y->yil, "devredilecek yıl")->required();
  y->sorunlar.SecenekEkle(*yillik);
  yillik->callback([&genel, y] { YiliDevret(genel, *y); });
}

}  // namespace

void DevirKomutlari(CLI::App& app, Genel& genel) {
  DonemKomutlari(app, genel);
  AktarimKomutu(app, genel, "perdev-al",
                "Yıllık devir kayıtlarını (dvr: kod, yil, gvmatrah …) alır. Bordro hesabı bunları okumaz; yıl içindeki "
                "matrah için geçmiş ayları kart-al ile alınız",
                DevirAktar);
  AktarimKomutu(app, genel, "kart-al",
                "Geçmiş ayların bordro kayıtlarını (brd: kod, yil, ay, sskmatrah, gvmatrah …) hesaplamadan, yazıldığı "
                "gibi alır: yıl ortasında devralınan personel için. Ayın eski hali geri-al ile döner",
                KartAktar);
  auto c = std::make_shared<CariSecenekleri>();
  auto* cari = app.add_subcommand("cari", "Personelin cari hesabını bakiyeleriyle listeler");
  cari->add_option("KOD", c->kod, "şirket")->required();
  cari->add_option("PERSONEL", c->personel, "personelin sicil kodu")->required();
  CiktiSecenekleri(*cari, c->cikti);
  cari->callback([&genel, c] { CariYaz(genel, *c); });
  AktarimKomutu(
      app, genel, "cari-al",
      "Cari hareketlerini (cari: kod, tarih, islem B ya da A, ack, tutar) alır; her satır yeni bir harekettir, "
      "dosya ikinci kez alınırsa bir daha eklenir",
      CariAktar);
}

}  // namespace belvani::cli
