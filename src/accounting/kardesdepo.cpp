#include "accounting/kardesdepo.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <unistd.h>

#include "accounting/hesapplani.h"
#include "accounting/kardestablolar.h"
#include "core/dosya.h"
#include "core/store/depokopyasi.h"
#include "core/store/islem.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/store/veritabani.h"
#include "core/sunucuadresi.h"
#include "core/tutamak.h"
#include "core/yarimdizin.h"

namespace belvani {
namespace {

struct KardesTablosu {
  TabloTanimi tanim;
  const char* acilamadi;
  bool bakilir;  // read even where nothing is written
};

struct KardesTanimi {
  const char* dosya;
  const char* is;  // names what a killed program has left of its making
  const char* bulunamadi;
  const char* acilamadi;
  std::vector<KardesTablosu> tablolar;
  Durum (*ilkKayitlar)(Motor& motor);  // of a new store
};

Durum MuhasebeIlkKayitlari(Motor& motor);
Durum IsletmeIlkKayitlari(Motor& motor);

template <class Kayit>
KardesTablosu Tablosu(std::vector<IndeksTanimi> indeksler, const char* acilamadi, bool bakilir) {
  KardesTablosu tablo{{Kayit::TabloAdi, {}, std::move(indeksler), {}}, acilamadi, bakilir};
  Kayit::HerKolon([&](const AlanTanimi& alan) { tablo.tanim.alanlar.push_back(alan); });
  return tablo;
}

IndeksTanimi AnahtarIndeksi(std::string_view alan) {
  return {.ad = alan, .alanlar = {alan}, .tekil = true, .birincil = true};
}

const KardesTanimi& Tanimi(KardesTuru tur) {
  static const KardesTanimi muhasebe{
      "belmuh.dat",
      "belmuh",
      "Muhasebe Şirketi Bulunamadı..",
      MuhasebeAcilamadi,
      {Tablosu<Fisgen>({AnahtarIndeksi("fisno")}, MuhasebeAcilamadi, false),
       Tablosu<Fistra>({{.ad = "refer", .alanlar = {"refer"}, .tekil = true}, {.ad = "fisno", .alanlar = {"fisno"}}},
                       MuhasebeAcilamadi, false),
       Tablosu<Hesplan>({AnahtarIndeksi("kod")}, MuhasebeAcilamadi, true),
       Tablosu<Hestoplam>({AnahtarIndeksi("kod")}, MuhasebeAcilamadi, false)},
      MuhasebeIlkKayitlari};
  static const char* const isletmeAcilamadi = "İşletme Defteri Dosyası Açılamıyor..";
  static const KardesTanimi isletme{
      "belisl.dat",
      "belisl",
      isletmeAcilamadi,
      isletmeAcilamadi,
      {Tablosu<Isltra>({{.ad = "tarih", .alanlar = {"tarih"}}}, "İşletme Hareket Recordset Açılamıyor..", true),
       Tablosu<Islgrup>({AnahtarIndeksi("kod")}, "İşletme Grup Recordset Açılamıyor..", true)},
      IsletmeIlkKayitlari};
  return tur == KardesTuru::Muhasebe ? muhasebe : isletme;
}

enum class Sinif { Tam, Metin, Sayi, Bayt };

// As the engine takes a declared type; days are texts to it.
Sinif TipSinifi(std::string_view tip) {
  const auto gecer = [&](std::string_view soz) { return tip.find(soz) != std::string_view::npos; };
  if (gecer("int") || gecer("bool")) return Sinif::Tam;
  if (gecer("char") || gecer("text") || gecer("clob") || gecer("date")) return Sinif::Metin;
  return tip.empty() || gecer("blob") ? Sinif::Bayt : Sinif::Sayi;
}

bool SinifUyar(AlanTipi tip, std::string_view kolonTipi) {
  const Sinif sinif = TipSinifi(kolonTipi);
  switch (tip) {
    case AlanTipi::Metin:
    case AlanTipi::Tarih:
      return sinif == Sinif::Metin;
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
    case AlanTipi::Tutar:
    case AlanTipi::Mantik:
      return sinif == Sinif::Tam;
    case AlanTipi::Tek:
      return sinif == Sinif::Sayi;
    case AlanTipi::Ikili:
      return true;  // bytes stay bytes in any column
  }
  return false;
}

// "" when the table is as we know it.
std::string YapiKusuru(Motor& motor, const TabloTanimi& tanim) {
  const auto kolonlar = motor.Kolonlar(tanim.ad);
  if (kolonlar.empty()) return "tablo yok: " + std::string(tanim.ad);
  for (const AlanTanimi& alan : tanim.alanlar) {
    const std::string ad = std::string(tanim.ad) + "." + std::string(alan.ad);
    const auto kolon = std::ranges::find(kolonlar, alan.ad, &MotorKolonu::ad);
    if (kolon == kolonlar.end()) return "alan yok: " + ad;
    if (!SinifUyar(alan.tip, kolon->tip)) return "alanın türü başka: " + ad + " (" + kolon->tip + ")";
  }
  return {};
}

Durum YapiyiDenetle(Motor& motor, const KardesTanimi& tanim, KardesErisimi erisim) {
  for (const KardesTablosu& tablo : tanim.tablolar) {
    if (erisim == KardesErisimi::YalnizBakis && !tablo.bakilir) continue;
    if (const std::string kusur = YapiKusuru(motor, tablo.tanim); !kusur.empty())
      return Kusur{std::string(tablo.acilamadi) + "\n" + kusur};
  }
  return Tamam();
}

template <class Kayit>
void HepsiniEkle(Motor& motor, const std::vector<Kayit>& kayitlar) {
  Islem islem(motor);
  KayitYazici<Kayit> yazici(motor);
  for (const Kayit& kayit : kayitlar) yazici.Ekle(kayit);
  islem.Onayla();
}

Durum MuhasebeIlkKayitlari(Motor& motor) {
  const auto plan = HazirHesapPlani();
  if (!plan) return plan.Kusuru();
  return Koru([&] { HepsiniEkle(motor, *plan); });
}

Durum IsletmeIlkKayitlari(Motor& motor) {
  return Koru([&] {
    HepsiniEkle<Islgrup>(motor, {{.kod = "UCR", .isim = "Ücretler"}, {.kod = "SSK", .isim = "SSK Primleri"}});
  });
}

// From the log into the one file. Closing would do it too, and say nothing when it fails.
Durum TekDosyayaTopla(Motor& motor) {
  return Koru([&] {
    const DepoYeri yer = motor.Yeri();
    motor.YerKoy(DepoYeri::Paylasilan);
    if (yer != DepoYeri::Paylasilan) motor.YerKoy(yer);
  });
}

// All of the store into a new file, which nobody else knows yet.
Durum DepoyuKur(KardesTuru tur, const std::string& yol) {
  Veritabani db;
  if (!db.DbYarat(yol)) return Kusur{db.SonHata()};
  for (const KardesTablosu& tablo : Tanimi(tur).tablolar)
    if (!db.TabloEkle(tablo.tanim)) return Kusur{db.SonHata()};
  if (Durum d = Tanimi(tur).ilkKayitlar(db.IcMotor()); !d) return d;
  return TekDosyayaTopla(db.IcMotor());
}

void YarimlariSupur(const std::string& dizin, const char* is) {
  for (const std::string& ad : YarimDizinler(dizin))
    if (YarimDizinAdi(ad, is)) (void)YarimDiziniSil(dizin, ad);
}

// Never over one that is there. Some network disks know no second name of a file.
bool AdVer(const std::string& yeni, const std::string& yol) {
  if (::link(yeni.c_str(), yol.c_str()) == 0) return true;
  if (errno != EEXIST && ::access(yol.c_str(), F_OK) != 0) return ::rename(yeni.c_str(), yol.c_str()) == 0;
  errno = EEXIST;
  return false;
}

// A relative path that was meant from a company on a server, or a server itself.
Durum DizinMi(const std::string& dizin) {
  if (!SunucuAdresiMi(dizin)) return Tamam();
  return Kusur{"Defterler sunucuda değil bir dizinde durur, dizinin tam yolunu veriniz: " + dizin};
}

}  // namespace

std::string KardesDosyasi(KardesTuru tur, const std::string& dizin) {
  return DizinSonu(dizin) + Tanimi(tur).dosya;
}

Sonuc<std::shared_ptr<Motor>> KardesAc(KardesTuru tur, const std::string& dizin, KardesErisimi erisim) {
  const KardesTanimi& tanim = Tanimi(tur);
  if (Durum d = DizinMi(dizin); !d) return Kusur{std::string(tanim.bulunamadi) + "\n" + d.KusurMetni()};
  const std::string yol = KardesDosyasi(tur, dizin);
  std::error_code hata;
  if (dizin.empty() || !std::filesystem::is_regular_file(yol, hata))
    return Kusur{std::string(tanim.bulunamadi) + "\n" + (dizin.empty() ? "dizini seçilmemiş" : "dosya yok: " + yol)};
  return Koru(
      [&]() -> Sonuc<std::shared_ptr<Motor>> {
        std::shared_ptr<Motor> motor = erisim == KardesErisimi::Yazilir ? MotorAc(yol) : MotorBak(yol);
        if (Durum yapi = YapiyiDenetle(*motor, tanim, erisim); !yapi) return yapi.Kusuru();
        return motor;
      },
      std::string(tanim.acilamadi) + "\n");
}

Durum KardesYarat(KardesTuru tur, const std::string& dizin) {
  if (Durum d = DizinMi(dizin); !d) return d;
  const std::string yol = KardesDosyasi(tur, dizin);
  const std::string ust = DizinSonu(dizin);
  if (Durum yaratildi = DizinYarat(ust); !yaratildi) return yaratildi;
  YarimlariSupur(ust, Tanimi(tur).is);
  const auto yarim = YarimDizin::Ac(ust, Tanimi(tur).is);
  if (!yarim) return yarim.Kusuru();
  const std::string yeni = yarim->Yol() + Tanimi(tur).dosya;
  if (Durum kuruldu = DepoyuKur(tur, yeni); !kuruldu) return kuruldu;
  if (!AdVer(yeni, yol))
    return errno == EEXIST ? Kusur{"Bu dizinde zaten var: " + yol} : DosyaHatasi(yol, "dosya kurulamadı", errno);
  DiziniDiskeIndir(ust);
  return Tamam();
}

}  // namespace belvani
