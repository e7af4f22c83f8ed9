#include "core/session/depo.h"

#include "core/dosya.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokFoto = 1'000'000'000;  // bytes: the most that a field of the store takes

bool AcVeyaBildir(Veritabani& db, Imlec& rs, std::string_view tablo, const char* hataMetni, Bildirim& bildirim) {
  if (db.TabloAc(rs, tablo)) return true;
  bildirim.Uyari(hataMetni);
  return false;
}

void TabloYaratilamadi(std::string_view tablo, Bildirim& bildirim) {
  bildirim.Uyari(std::string(tablo) + " SQL Tablosu Yaratılamadı");
}

void YoksaEkle(Veritabani& db, std::string_view tablo, std::string_view alan) {
  if (db.TabloVarMi(tablo) && !db.AlanVarMi(tablo, alan)) db.AlanEkle(tablo, *TabloBul(tablo)->AlanBul(alan));
}

}  // namespace

bool Depo::VeritabaniYarat(const std::string& yol, Bildirim& bildirim) {
  TablolariKapat(KapatmaKapsami::VeritabaniDa);
  if (!db.DbYarat(yol)) {
    bildirim.Uyari(yol + "\nDatabase Yaratılamadı");
    return false;
  }
  for (const char* tablo : {"peruser", "firma", "sicil", "foto", "kimlik", "brd", "dvr", "esco", "muaf", "arac",
                            "indir", "sendika", "cari"})
    if (!TabloYarat(tablo, bildirim)) {
      VeritabaniKaldir(yol);
      return false;
    }
  return true;
}

void Depo::VeritabaniKaldir(const std::string& yol) {
  TablolariKapat(KapatmaKapsami::VeritabaniDa);
  MotorDosyasiniSil(yol);
}

bool Depo::TabloYarat(std::string_view tablo, Bildirim& bildirim) {
  const TabloTanimi* tanim = TabloBul(tablo);
  if (tanim != nullptr && db.TabloEkle(*tanim)) return true;
  TabloYaratilamadi(tablo, bildirim);
  return false;
}

bool Depo::VeritabaniAc(const std::string& yol, Bildirim& bildirim) {
  TablolariKapat(KapatmaKapsami::VeritabaniDa);
  if (!db.DbAc(yol)) return false;
  if (!AcVeyaBildir(db, peruser, "peruser", "PErUser SQL Tablosu Açılamadı", bildirim)) return false;
  if (!AcVeyaBildir(db, firma, "firma", "Firma SQL Tablosu Açılamadı", bildirim)) return false;
  YoksaEkle(db, "sicil", "meslekkod");
  const char* const sicilHatasi = "Sicil SQL Tablosu Açılamadı";
  if (!AcVeyaBildir(db, sicil, "sicil", sicilHatasi, bildirim)) return false;
  if (!AcVeyaBildir(db, foto, "foto", sicilHatasi, bildirim)) return false;
  if (!AcVeyaBildir(db, kimlik, "kimlik", sicilHatasi, bildirim)) return false;
  if (Tek(SayiDegeri(firma.AlanOku("versiyon"))) == ProgramVersiyonu) YoksaEkle(db, "brd", "brdkanun");
  YoksaEkle(db, "brd", "rapcalismadi");
  if (!AcVeyaBildir(db, brd, "brd", sicilHatasi, bildirim)) return false;

  return GecTabloyuAc(dvr, "dvr", "Devir SQL Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(esco, "esco", "Eş ve Çocuk SQL Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(muaf, "muaf", "Muafiyetler Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(arac, "arac", "Aracı Bilgileri Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(indir, "indir", "İndirimler Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(kaztan, "kaztan", "Kazançlar Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(entpar, "entpar", "Entegrasyon Parametreleri Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(sendika, "sendika", "Sendika Parametreleri Tablosu Açılamadı", bildirim) &&
         GecTabloyuAc(cari, "cari", "Cari Modul Tablosu Açılamadı", bildirim);
}

bool Depo::GecTabloyuAc(Imlec& rs, std::string_view tablo, const char* hataMetni, Bildirim& bildirim) {
  while (!db.TabloAc(rs, tablo)) {
    if (db.TabloEkle(*TabloBul(tablo))) continue;
    // Another computer may have made it between our two looks.
    if (db.TabloAc(rs, tablo)) return true;
    TabloYaratilamadi(tablo, bildirim);
    bildirim.Uyari(hataMetni);
    return false;
  }
  return true;
}

void Depo::TablolariKapat(KapatmaKapsami kapsam) {
  for (Imlec* rs : {&peruser, &firma, &sicil, &foto, &kimlik, &brd, &dvr, &muaf, &arac, &indir, &sendika, &esco,
                    &kaztan, &cari, &entpar})
    rs->RsKapat();
  if (kapsam == KapatmaKapsami::VeritabaniDa) db.DbKapat();
}

bool Depo::FotoYaz(const std::string& kod, const std::string& dosya) {
  return db.Koru(false, [&] {
    const auto icerik = DosyaOku(dosya, EnCokFoto);
    if (!icerik) return false;
    Islem islem(db.IcMotor());
    if (foto.KayitBul("kod", kod)) foto.KayitSil();
    foto.KayitEkle();
    foto.AlanYaz("kod", kod);
    foto.AlanYaz("resim", Baytlar(icerik->begin(), icerik->end()));
    if (!foto.KayitYaz()) return false;
    islem.Onayla();
    return true;
  });
}

bool Depo::FotoOku(const std::string& kod, const std::string& hedef) {
  const bool bulundu = foto.KayitBul("kod", kod);
  const Deger resim = bulundu ? foto.AlanOku("resim") : Deger(Null{});
  const auto* baytlar = std::get_if<Baytlar>(&resim);
  const std::string icerik = baytlar == nullptr ? std::string() : std::string(baytlar->begin(), baytlar->end());
  return DosyaYaz(hedef, icerik) && bulundu;
}

}  // namespace belvani
