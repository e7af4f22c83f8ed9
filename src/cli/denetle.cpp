// denetle
#include <algorithm>

#include "cli/ortak.h"
#include "cli/sirketsecimi.h"
#include "core/deger.h"
#include "core/store/depoonarimi.h"
#include "core/store/koru.h"
#include "core/tables/uye.h"
#include "payroll/hazirlik/sirketdenetimi.h"
#include "personnel/tanimkodlari.h"

namespace belvani::cli {
namespace {

struct DenetleSecenekleri {
  SirketSecimi sirketler;
  bool onar = false;
  std::vector<std::int64_t> kalan;
};

// A line each below the one before, with the person it is about.
std::string BulguSatirlari(const Kusurlar& bulgular) {
  std::string metin;
  for (const Kusur& k : bulgular)
    metin += std::string("\n") + (k.derece == Derece::Uyari ? "Uyarı: " : "") + (k.kod.empty() ? "" : k.kod + ": ") +
             k.metin;
  return metin;
}

std::string KayitBasligi(const Brd& b) {
  return b.kod + " " + std::to_string(b.yil) + "/" + std::to_string(b.ay);
}

// "12: brutkaz 693.00, gvtutar 10.00": what in a record is otherwise than in the others of its kind.
std::string FarkSatiri(const Brd& b, const AyniBordrolar& grup) {
  std::string metin = "\n    " + std::to_string(b.oto) + ":";
  const char* ayrac = " ";
  Brd::HerKolon([&](const auto& kolon) {
    if (kolon.nitelik == AlanNiteligi::Otomatik) return;
    if (std::ranges::all_of(grup, [&](const Brd& x) { return x.*kolon.uye == b.*kolon.uye; })) return;
    metin += ayrac + std::string(kolon.ad) + " " + MetinDegeri(UyeDegeri(b.*kolon.uye));
    ayrac = ", ";
  });
  return metin + (*ayrac == ' ' ? " ötekiyle aynı" : "");
}

// What was mended, and between what the user has to choose.
std::string OnarimMetni(const Onarim& onarim) {
  std::string metin = "Onarım yapıldı";
  for (const Brd& b : onarim.ayrilan)
    metin += "\n  ayrıldı (brdayrilan): " + KayitBasligi(b) + ", " + std::to_string(b.oto) + " numaralı kayıt";
  for (const std::int64_t oto : onarim.kabulEdilen)
    metin += "\n  olduğu gibi kaldı: " + std::to_string(oto) + " numaralı kayıt";
  if (onarim.ozetlenen != 0) metin += "\n  özeti yazıldı: " + std::to_string(onarim.ozetlenen) + " kayıt";
  for (const AyniBordrolar& grup : onarim.secilmeyen) {
    metin += "\n  birden çok kez var, kalacak olanı --kalan NO ile seçiniz: " + KayitBasligi(grup.front());
    for (const Brd& b : grup) metin += FarkSatiri(b, grup);
  }
  return metin + "\n";
}

void Denetle(Genel& genel, const SirketIsi& isi, const DenetleSecenekleri& s) {
  const auto o = s.onar ? genel.YazmayaAc(isi.kod) : genel.SirketAc(isi.kod, SirketErisimi::YalnizBakis);
  Motor& motor = o->depo.db.IcMotor();
  if (s.onar) {
    auto onarim = DepoyuOnar(motor, s.kalan);
    Yaz(OnarimMetni(Degeri(onarim)));
  }
  const auto bulgular = DepoDenetle(*o);
  if (!bulgular) throw KomutHatasi{bulgular.KusurMetni()};
  if (std::ranges::any_of(*bulgular, [](const Kusur& k) { return k.derece == Derece::Hata; }))
    throw KomutHatasi{"Veritabanı bozuk: " + o->FirmaKod + BulguSatirlari(*bulgular)};
  auto uyarilar = SirketDenetle(*o);
  const auto kodlar = Koru([&] { return TanimsizKodluKisiler(*o); });
  Yaz("Veritabanı sağlam: " + o->FirmaKod + BulguSatirlari(*bulgular) + BulguSatirlari(Degeri(uyarilar)) +
      BulguSatirlari(kodlar ? *kodlar : Kusurlar{kodlar.Kusuru()}) + "\n");
}

}  // namespace

void DenetleKomutu(CLI::App& app, Genel& genel) {
  auto* denetle =
      app.add_subcommand("denetle", "Şirketin veritabanını baştan sona okuyup denetler; kusur varsa 1 ile biter");
  auto s = std::make_shared<DenetleSecenekleri>();
  s->sirketler.SecenekEkle(*denetle);
  denetle->add_flag("--onar", s->onar,
                    "önce eksik indeksleri ve bordro özetlerini tamamlar; iki kez duran bordro kayıtlarını gösterir");
  auto* kalan = denetle->add_option(
      "--kalan", s->kalan,
      "--onar ile: aynı kayıtlardan kalacak olanın, ya da özetini tutmadığı halde olduğu gibi kalacak "
      "kaydın numarası; ötekiler brdayrilan tablosuna ayrılır");
  kalan->type_name("NO");
  s->sirketler.YalnizTekSirkette(kalan);
  denetle->callback([&genel, s] {
    if (!s->kalan.empty() && !s->onar) throw CLI::ValidationError("--kalan", "--onar ile birlikte verilir");
    s->sirketler.Calistir(genel, [&](const SirketIsi& isi) { Denetle(genel, isi, *s); });
  });
}

}  // namespace belvani::cli
