#include "core/session/depo.h"

#include "core/dosya.h"
#include "core/store/brdozet.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/surum.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokFoto = 1'000'000'000;  // bytes: the most that a field of the store takes

enum class Yoklugu {
  Kusurdur,    // of a store that is no company's, or a broken one
  Giderilir,   // a store of an earlier version: the first opening makes it
  Baslangicta  // the same, and a new store has not got it either
};

struct DepoTablosu {
  std::string_view ad;
  Imlec Depo::*imlec;
  Yoklugu yoklugu;
  const char* acilamadi;
  std::vector<std::string_view> sonradanAlanlar = {};  // that the first opening adds
};

// In the order in which they are made and opened.
const std::vector<DepoTablosu>& DepoTablolari() {
  static const char* const sicilAcilamadi = "Sicil SQL Tablosu Açılamadı";
  using enum Yoklugu;
  static const std::vector<DepoTablosu> tablolar{
      {"peruser", &Depo::peruser, Kusurdur, "PErUser SQL Tablosu Açılamadı"},
      {"firma", &Depo::firma, Kusurdur, "Firma SQL Tablosu Açılamadı"},
      {"sicil", &Depo::sicil, Kusurdur, sicilAcilamadi, {"meslekkod"}},
      {"foto", &Depo::foto, Kusurdur, sicilAcilamadi},
      {"kimlik", &Depo::kimlik, Kusurdur, sicilAcilamadi},
      {"brd", &Depo::brd, Kusurdur, sicilAcilamadi, {"brdkanun", "rapcalismadi"}},
      {"dvr", &Depo::dvr, Giderilir, "Devir SQL Tablosu Açılamadı"},
      {"esco", &Depo::esco, Giderilir, "Eş ve Çocuk SQL Tablosu Açılamadı"},
      {"muaf", &Depo::muaf, Giderilir, "Muafiyetler Tablosu Açılamadı"},
      {"arac", &Depo::arac, Giderilir, "Aracı Bilgileri Tablosu Açılamadı"},
      {"indir", &Depo::indir, Giderilir, "İndirimler Tablosu Açılamadı"},
      {"kaztan", &Depo::kaztan, Baslangicta, "Kazançlar Tablosu Açılamadı"},
      {"entpar", &Depo::entpar, Baslangicta, "Entegrasyon Parametreleri Tablosu Açılamadı"},
      {"sendika", &Depo::sendika, Giderilir, "Sendika Parametreleri Tablosu Açılamadı"},
      {"cari", &Depo::cari, Giderilir, "Cari Modul Tablosu Açılamadı"},
  };
  return tablolar;
}

// `brdkanun` belongs to the version of this program; an older store gets it with its upgrade.
bool Eklenir(Depo& depo, std::string_view alan) {
  return alan != "brdkanun" || depo.Versiyon() == ProgramVersiyonu();
}

void YoksaEkle(Veritabani& db, std::string_view tablo, std::string_view alan) {
  if (db.TabloVarMi(tablo) && !db.AlanVarMi(tablo, alan)) db.AlanEkle(tablo, *TabloBul(tablo)->AlanBul(alan));
}

// Another computer may make the table between two looks at it.
Durum AcVeyaYarat(Depo& depo, const DepoTablosu& tablo) {
  Imlec& rs = depo.*tablo.imlec;
  if (depo.db.TabloAc(rs, tablo.ad)) return Tamam();
  std::string neden = depo.db.SonHata();
  if (tablo.yoklugu != Yoklugu::Kusurdur) {
    if (const Durum yaratildi = depo.TabloYarat(tablo.ad); !yaratildi)
      neden = yaratildi.KusurMetni() + ": " + depo.db.SonHata();
    if (depo.db.TabloAc(rs, tablo.ad)) return Tamam();
  }
  return Kusur{std::string(tablo.acilamadi) + "\n" + neden};
}

}  // namespace

Durum Depo::VeritabaniYarat(const std::string& yol) {
  TablolariKapat(KapatmaKapsami::VeritabaniDa);
  if (!db.DbYarat(yol)) return Kusur{yol + "\nDatabase Yaratılamadı"};
  for (const DepoTablosu& tablo : DepoTablolari()) {
    if (tablo.yoklugu == Yoklugu::Baslangicta) continue;
    if (const Durum yaratildi = TabloYarat(tablo.ad); !yaratildi) {
      VeritabaniKaldir(yol);
      return yaratildi;
    }
  }
  if (Durum ozetler = Koru([&] { BrdOzetleri(db.IcMotor()); }); !ozetler) {
    VeritabaniKaldir(yol);
    return ozetler;
  }
  return Tamam();
}

void Depo::VeritabaniKaldir(const std::string& yol) {
  TablolariKapat(KapatmaKapsami::VeritabaniDa);
  MotorDosyasiniSil(yol);
}

Durum Depo::TabloYarat(std::string_view tablo) {
  const TabloTanimi* tanim = TabloBul(tablo);
  if (tanim != nullptr && db.TabloEkle(*tanim)) return Tamam();
  return Kusur{std::string(tablo) + " SQL Tablosu Yaratılamadı"};
}

Durum Depo::VeritabaniAc(const std::string& yol) {
  TablolariKapat(KapatmaKapsami::VeritabaniDa);
  if (!db.DbAc(yol)) return Kusur{db.SonHata()};
  for (const DepoTablosu& tablo : DepoTablolari()) {
    for (const std::string_view alan : tablo.sonradanAlanlar)
      if (Eklenir(*this, alan)) YoksaEkle(db, tablo.ad, alan);
    if (Durum acildi = AcVeyaYarat(*this, tablo); !acildi) return acildi;
  }
  return Tamam();
}

Tek Depo::Versiyon() {
  const Tek okunamayan(1);
  return db.Koru(okunamayan, [&] {
    Motor& motor = db.IcMotor();
    const auto komut = motor.Hazirla("select versiyon from firma order by " + motor.KimlikKolonu("firma") + " limit 1");
    return komut->Adim() ? Tek(komut->Sayi(0)) : okunamayan;
  });
}

void Depo::TablolariKapat(KapatmaKapsami kapsam) {
  for (const DepoTablosu& tablo : DepoTablolari()) (this->*tablo.imlec).RsKapat();
  if (kapsam == KapatmaKapsami::VeritabaniDa) db.DbKapat();
}

bool Depo::FotoYaz(const std::string& kod, const std::string& dosya) {
  return db.Koru(false, [&] {
    const auto icerik = DosyaOku(dosya, EnCokFoto);
    if (!icerik) return false;
    Tablo<Foto> fotolar(db.IcMotor());
    Islem islem(db.IcMotor());
    fotolar.Sil(kod);
    Foto yeni;
    yeni.kod = kod;
    yeni.resim.assign(icerik->begin(), icerik->end());
    if (!fotolar.Yaz({.ilk = {}, .simdi = std::move(yeni)})) return false;
    islem.Onayla();
    return true;
  });
}

bool Depo::FotoOku(const std::string& kod, const std::string& hedef) {
  const auto kayit = db.Koru(std::optional<Foto>(), [&] { return Tablo<Foto>(db.IcMotor()).Bul(kod); });
  const std::string icerik = kayit ? std::string(kayit->resim.begin(), kayit->resim.end()) : std::string();
  return DosyaYaz(hedef, icerik) && kayit.has_value();
}

}  // namespace belvani
