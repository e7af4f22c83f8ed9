#include "core/session/yukseltme.h"

#include <algorithm>
#include <cassert>

#include "core/asama.h"
#include "core/session/sirket.h"
#include "core/session/sirketyedegi.h"
#include "core/store/brdozet.h"
#include "core/store/depoonarimi.h"
#include "core/store/koru.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

// Those that are there stay as they are.
bool AlanlariEkle(Veritabani& db, const YukseltmeAdimi& adim) {
  const auto eklenir = [&](std::string_view tablo, std::string_view alan) {
    return !db.TabloVarMi(tablo) || db.AlanVarMi(tablo, alan) || db.AlanEkle(tablo, *TabloBul(tablo)->AlanBul(alan));
  };
  return std::ranges::all_of(adim.eklenen, [&](const AdimAlanlari& a) {
    return std::ranges::all_of(a.alanlar, [&](std::string_view alan) { return eklenir(a.tablo, alan); });
  });
}

// Steps 0 and 1 succeed on a store that has no `firma` record to stamp.
bool DamgasizOlur(std::size_t adim) {
  return adim < 2;
}

// Fields, filling, stamp, and checksums of the pay records that have none: a store without the fields must not be
// stamped as if it had them.
bool AdimiYap(Veritabani& db, std::size_t no, Tek programVersiyonu, Tutar sskTaban) {
  const YukseltmeAdimi& adim = YukseltmeAdimlari()[no];
  return db.Koru(false, [&] {
    Motor& motor = db.IcMotor();
    Islem islem(motor);
    if (!AlanlariEkle(db, adim)) return false;
    adim.doldur(motor, sskTaban);
    BrdOzetleri(motor).EksikleriYaz();
    const auto damga = motor.Hazirla("update firma set versiyon = ?");
    damga->SayiBagla(1, adim.damga == 0 ? programVersiyonu.Sayi() : adim.damga);
    damga->Calistir();
    if (motor.DegisenSatir() == 0 && !DamgasizOlur(no)) {
      db.HataYaz("firma kaydı yok, versiyon yazılamadı");
      return false;
    }
    islem.Onayla();
    return true;
  });
}

Durum AlanKontrol(Oturum& o) {
  const auto yarim = Koru([&] { return YarimYukseltmeKusuru(o.depo.db.IcMotor()); });
  if (!yarim) return yarim.Kusuru();
  return *yarim ? Durum(**yarim) : Tamam();
}

Durum CiftKontrol(Oturum& o) {
  const auto cift = Koru([&] { return CiftBordrolar(o.depo.db.IcMotor()); });
  if (!cift) return cift.Kusuru();
  if (cift->empty()) return Tamam();
  return Kusur{"Aynı ayın bordrosu birden çok kez duran " + std::to_string(cift->size()) + " kayıt var, ilki: " +
               cift->front().front().kod + "\nHangisinin kalacağı belvani-cli denetle --onar ile seçilir."};
}

// Cards whose kind of insurance or board-fee flag would be another one after the step; and all.
std::pair<std::int64_t, std::int64_t> DegisecekKartlar(Motor& motor) {
  const auto kolonlar = motor.Kolonlar("sicil");
  const bool turVar = std::ranges::find(kolonlar, "tur", &MotorKolonu::ad) != kolonlar.end();
  const auto komut = motor.Hazirla(std::string("select count(case when coalesce(sskdurum, 0) not in (0, 4) or ") +
                                   (turVar ? "coalesce(tur, 0)" : "0") +
                                   " <> (case when sskdurum = 4 then 1 else 0 end) then 1 end), count(*) from sicil");
  if (!komut->Adim()) return {};
  return {komut->Tam(0), komut->Tam(1)};
}

// What the steps do, between the backup and the last words.
Gelisme<GuncellemeSonucu> Yurut(Oturum& o, const AdimIsaretleri& isaretli, Tutar sskTaban, Ilerleme* ilerleme) {
  const auto adimlar = std::size_t(std::ranges::count(isaretli, true));
  std::size_t biten = 0;
  for (std::size_t i = 0; i < AdimSayisi; ++i) {
    if (!isaretli[i]) continue;
    if (ilerleme != nullptr) {
      ilerleme->Adim(biten++, adimlar);
      ilerleme->Asama(AdimBasligi(i));
    }
    if (auto adim = VeritabaniGuncelle(o, i, sskTaban); adim.hal != GuncellemeSonucu::Tamam) return adim;
  }
  return GuncellemeSonucu::Tamam;
}

}  // namespace

std::string_view AdimBasligi(std::size_t adim) {
  return YukseltmeAdimlari().at(adim).baslik;
}

AdimIsaretleri AcikAdimlar(Tek depoVersiyonu) {
  AdimIsaretleri acik{};
  for (std::size_t i = 0; i < AdimSayisi; ++i) acik[i] = VersiyonMetni(depoVersiyonu) < YukseltmeAdimlari()[i].versiyon;
  return acik;
}

AdimIsaretleri AcikAdimlar(Depo& depo) {
  AdimIsaretleri acik = AcikAdimlar(depo.Versiyon());
  for (const EksikAdim& eksik : depo.db.Koru(std::vector<EksikAdim>(), [&] { return EksikAdimlar(depo.db.IcMotor()); }))
    acik[eksik.adim] = true;
  return acik;
}

Durum YapiKontrol(Oturum& o) {
  Durum ayni = VersiyonKontrol(o);
  return ayni ? AlanKontrol(o) : ayni;
}

Sonuc<bool> SigortaTuruOnayi(Oturum& o, const AdimIsaretleri& isaretli, Bildirim& bildirim) {
  if (!isaretli[SigortaTuruAdimi]) return true;
  const auto kartlar = Koru([&] { return DegisecekKartlar(o.depo.db.IcMotor()); });
  if (!kartlar) return kartlar.Kusuru();
  const auto [degisen, toplam] = *kartlar;
  return degisen == 0 ||
         bildirim.SilinsinMi("Bütün Kartların SSK Durumu Yeniden Yazılacak Eminmisiniz ?",
                             std::string(AdimBasligi(SigortaTuruAdimi)) + ": " + std::to_string(toplam) + " karttan " +
                                 std::to_string(degisen) + " kart değişecek");
}

Sonuc<std::string> YukseltmeOncesiYedek(Oturum& o) {
  const Kusur kapali{"Veritabanı açık değil"};
  const auto yedek = o.depo.db.AcikMi()
                         ? YedekAl(o.DataPath, o.FirmaKod, {.tur = YedekTuru::Yukseltme, .depo = &o.depo.db.IcMotor()})
                         : Sonuc<AlinanYedek>(kapali);
  if (yedek) return yedek->yol;
  return Kusur{"Yükseltmeden önce yedek alınamadı, hiçbir geçiş yapılmadı: " + yedek.KusurMetni()};
}

Gelisme<GuncellemeSonucu> VeritabaniGuncelle(Oturum& o, std::size_t adim, Tutar sskTaban) {
  assert(adim < AdimSayisi);
  using enum GuncellemeSonucu;
  const std::string yol = DepoAdresi(o.FirmaDizini);
  o.depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
  if (!o.depo.db.DbAc(yol))
    return {ProgramBitsin, Kusur{"Dosyalar Güvenli Kapatılıp Açılamadı..\n" + o.depo.db.SonHata()}};
  const bool yapildi = AdimiYap(o.depo.db, adim, o.Versiyon, sskTaban);
  const std::string kusur = o.depo.db.SonHata();
  if (const Durum acildi = o.depo.VeritabaniAc(yol); !acildi) {
    if (adim != 0) return {Basarisiz, acildi.Kusuru()};
    return {ProgramBitsin, Kusur{"Database Tekrar Açılamadı\n" + acildi.KusurMetni()}};
  }
  if (yapildi) return Tamam;
  return {Basarisiz, Kusur{std::string(AdimBasligi(adim)) + "\nyapılamadı: " + kusur}};
}

Gelisme<GuncellemeSonucu> AdimlariYurut(Oturum& o, const AdimIsaretleri& isaretli, Tutar sskTaban, Ilerleme* ilerleme) {
  using enum GuncellemeSonucu;
  if (std::ranges::count(isaretli, true) == 0) return {IsaretYok, Kusur{"İşaretleme Yapılmamış.."}};
  if (o.SaltOkunur) return {IsaretYok, Kusur{SaltOkunurUyarisi}};
  if (const auto baskalari = Icerdekiler(o.FirmaDizini, o.icerde.get()); !baskalari.empty())
    return {IsaretYok,
            Kusur{"Bu şirkette başka kullanıcılar var, güncelleme yapılmadı:" + IcerdekiSatirlari(baskalari)}};
  if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
  const auto yedek = YukseltmeOncesiYedek(o);
  if (!yedek) return {Basarisiz, yedek.Kusuru()};
  auto sonuc = Yurut(o, isaretli, sskTaban, ilerleme);
  if (sonuc.hal == Tamam) {
    // The store works without them: nobody is told when they cannot be made.
    o.depo.db.IndeksleriKur();
    for (const Durum& kalan : {AlanKontrol(o), CiftKontrol(o)})
      if (!kalan) sonuc.sozler.push_back(kalan.Kusuru());
  }
  sonuc.sozler.push_back(KuralKusuru("Yükseltmeden önceki yedek: " + *yedek));
  return sonuc;
}

}  // namespace belvani
