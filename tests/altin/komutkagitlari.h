// The papers as `belvani-cli` gives them: texts, tables, workbooks, printer bytes, the file of the declaration.
#pragma once

#include "altin/kagitlar.h"
#include "altin/kitapmetni.h"
#include "altin/sayfametni.h"
#include "declarations/bildirgetablosu.h"

namespace belvani::test {

// A list of the month in a form that can be read as it stands.
inline Kagit Liste(const Ay& ay, const char* komut, const char* bicim, const std::string& secenekler = {},
                   const char* ek = "") {
  return {ay, std::string(komut) + ek + "." + bicim,
          [=](OrnekSirket& o) { return o.AylikKomut(komut, secenekler + " --bicim " + bicim); }};
}

inline Kagit Kitap(const Ay& ay, const char* komut, const std::string& secenekler = {}) {
  return {ay, std::string(komut) + ".xlsx.txt",
          [=](OrnekSirket& o) { return KitapMetni(o.AylikDosya(komut, secenekler + " --bicim xlsx")); }};
}

inline Kagit YaziciBaytlari(const Ay& ay, const char* komut, const std::string& secenekler) {
  return {ay, std::string(komut) + ".ham.txt",
          [=](OrnekSirket& o) { return HamMetni(o.AylikDosya(komut, secenekler + " --bicim ham")); }};
}

inline Kagit IzinListesi(const Ay& ay, const char* tip, const char* bicim, const std::string& secenekler = {}) {
  return {ay, std::string("izin-") + tip + "." + bicim, [=](OrnekSirket& o) {
            return o.Komut("izin", std::string("--tip ") + tip + " --bicim " + bicim + " " + secenekler);
          }};
}

inline Kagit DortAylikListesi(const Ay& ay, const char* bicim) {
  return {ay, std::string("dort-aylik.") + bicim, [=](OrnekSirket& o) {
            return o.Komut("dort-aylik", "--donem " + std::to_string((ay.ay - 1) / 4 + 1) + " --bicim " + bicim);
          }};
}

// Apprentices keep the file from being written; they are taken out, as its user would.
inline Kagit EBildirge(const Ay& ay, const std::string& haric) {
  return {ay, "bildirge.xml", [=](OrnekSirket& o) {
            return o.AylikKomut("bildirge", "--bicim xml " + (haric.empty() ? "" : "--haric " + haric));
          }};
}

inline Kagit BildirgeTablosuKagidi(const Ay& ay, const std::string& secenekler) {
  return {ay, "bildirge.xlsx.txt", [=](OrnekSirket& o) {
            const std::string dolu = o.AylikDosya("bildirge", secenekler + " --bicim xlsx");
            return DoldurulanHucreler(*TabloSablonu(o.oturum), dolu);
          }};
}

// Severance of people who leave on a day: whole years and a few days, above the ceiling, from a net wage.
inline Kagit Kidem(const Ay& ay, const char* ad, const std::string& secenekler) {
  return {ay, ad, [=](OrnekSirket& o) { return o.GunKomutu("kidem", secenekler); }};
}

inline Kagitlar KidemKagitlari() {
  return {Kidem(SonAy, "kidem-001.metin", "001 --cikis 31.12.2009 --iz"),
          Kidem(SonAy, "kidem-001.json", "001 --cikis 31.12.2009 --bicim json"),
          Kidem(SonAy, "kidem-tavan.metin", "004 --cikis 30.06.2009 --ucret 4000 --tavan yariyil --haric ihbar"),
          Kidem(UcuncuDonem, "kidem-002.metin", "002 --cikis 15.07.2008"),
          {SonAy, "kidem-001.xlsx.txt",
           [](OrnekSirket& o) { return KitapMetni(o.GunDosyasi("kidem", "001 --cikis 31.12.2009 --bicim xlsx")); }},
          {SonAy, "kidem-icmal.csv",
           [](OrnekSirket& o) { return o.GunKomutu("kidem-icmal", "--baz 31.12.2009 --bicim csv"); }},
          {SonAy, "kidem-icmal.json",
           [](OrnekSirket& o) { return o.GunKomutu("kidem-icmal", "--baz 30.06.2009 --kod 001 006 --bicim json"); }},
          {SonAy, "kidem-icmal.xlsx.txt",
           [](OrnekSirket& o) { return KitapMetni(o.GunDosyasi("kidem-icmal", "--baz 31.12.2009 --bicim xlsx")); }}};
}

// The account of a person.
inline Kagit CariHesabi(const char* bicim, const std::string& kisi) {
  return {SonAy, std::string("cari.") + bicim,
          [=](OrnekSirket& o) { return o.GunKomutu("cari", kisi + " --bicim " + bicim); }};
}

// A report that comes with the program, which has its period of its own.
inline Kagit HazirRapor(const char* ad, const char* bicim, const std::string& secenekler) {
  return {SonAy, std::string(ad) + "." + bicim,
          [=](OrnekSirket& o) { return o.SirketKomutu("rapor", secenekler + " --bicim " + bicim); }};
}

inline Kagitlar DonemKagitlari(const Ay& ay) {
  return {Liste(ay, "bordro", "csv"),
          Liste(ay, "bordro", "metin"),
          Liste(ay, "icmal", "metin"),
          Liste(ay, "icmal", "csv"),
          Liste(ay, "ozel-bordro", "metin"),
          Liste(ay, "pusula", "csv"),
          Liste(ay, "bildirge", "json", "--belge 01 --kanun 05510")};
}

inline Kagitlar KomutKagitlari() {
  Kagitlar hepsi;
  for (const Ay& ay : Donemler) {
    auto kagitlar = DonemKagitlari(ay);
    std::move(kagitlar.begin(), kagitlar.end(), std::back_inserter(hepsi));
  }
  const std::string cirak2008 = "1603200727814", cirak2009 = "81706234494";
  for (const Kagit& kagit : {EBildirge(BirinciDonem, ""),
                             EBildirge(IkinciDonem, ""),
                             EBildirge(UcuncuDonem, cirak2008),
                             EBildirge(DorduncuDonem, cirak2008),
                             EBildirge(SonAy, cirak2009),
                             Liste(BirinciDonem, "bildirge", "metin", "--belge 01 --kanun 05510"),
                             Liste(IkinciDonem, "bildirge", "metin", "--belge 01 --kanun 05510"),
                             BildirgeTablosuKagidi(SonAy, "--belge 01 --kanun 14447"),
                             BildirgeTablosuKagidi(IkinciDonem, "--belge 01 --kanun 05510"),
                             Liste(SonAy, "pusula", "metin", "--kod 001 006"),
                             Liste(UcuncuDonem, "pusula", "metin", "--kod 011 014"),
                             Liste(UcuncuDonem, "bordro", "json", "--kod 011 012"),
                             Liste(UcuncuDonem, "icmal", "json"),
                             Liste(SonAy, "ozel-bordro", "csv"),
                             Liste(SonAy, "agi", "csv"),
                             Liste(SonAy, "agi", "metin", "--kod 001 014"),
                             Liste(SonAy, "ozel-bordro", "metin", "--kod 032 032", "-cirak"),
                             Liste(SonAy, "agi", "metin", "--kod 032 032", "-cirak"),
                             Liste(UcuncuDonem, "agi", "json", "--kod 009 010"),
                             IzinListesi(SonAy, "icmal", "metin"),
                             IzinListesi(SonAy, "personel", "metin"),
                             IzinListesi(SonAy, "donem", "metin"),
                             IzinListesi(SonAy, "personel", "csv", "--kod 004 011"),
                             IzinListesi(SonAy, "donem", "csv"),
                             Liste(SonAy, "muhasebe-fisi", "metin"),
                             Liste(SonAy, "muhasebe-fisi", "json", "--grup YÖN"),
                             Liste(UcuncuDonem, "muhasebe-fisi", "csv"),
                             Liste(SonAy, "muhasebe-fisi", "journal"),
                             Kitap(SonAy, "muhasebe-fisi"),
                             DortAylikListesi(BirinciDonem, "json"),
                             DortAylikListesi(SonAy, "csv"),
                             DortAylikListesi(SonAy, "metin"),
                             Liste(SonAy, "eksik-gun", "json"),
                             Liste(BirinciDonem, "eksik-gun", "metin"),
                             Kitap(SonAy, "eksik-gun"),
                             HazirRapor("rapor-personel", "metin", "'Personel Listesi'"),
                             HazirRapor("rapor-girenler", "csv", "'Dönemde Girenler' --yil 2006 2008"),
                             HazirRapor("rapor-ucret", "metin", "'Ücret Kartı' --kod 001 004 --ay 1 3"),
                             HazirRapor("rapor-vergi", "json", "'Vergi Matrahları' --kisi-basina --kod 001 003"),
                             CariHesabi("metin", "002"),
                             CariHesabi("csv", "004"),
                             CariHesabi("json", "011"),
                             Kitap(SonAy, "bordro", "--kod 001 004"),
                             Kitap(SonAy, "icmal"),
                             Kitap(SonAy, "agi", "--kod 009 011"),
                             Kitap(UcuncuDonem, "pusula", "--kod 011 012"),
                             Kitap(SonAy, "ozel-bordro", "--kod 009 011"),
                             YaziciBaytlari(SonAy, "bordro", "--kod 001 003"),
                             YaziciBaytlari(SonAy, "pusula", "--kod 010 010")})
    hepsi.push_back(kagit);
  for (const Kagit& kagit : KidemKagitlari()) hepsi.push_back(kagit);
  return hepsi;
}

}  // namespace belvani::test
