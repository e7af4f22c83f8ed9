#include "core/store/sqlitekomut.h"

#include <cerrno>

namespace belvani {
namespace {

constexpr const char* SaltOkunurAcildi = "Şirket salt okunur açıldı, değişiklikler kaydedilemez";

MotorKusuru KusurTuru(int kod) {
  switch (kod & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return MotorKusuru::Kilitli;
    case SQLITE_FULL:
      return MotorKusuru::DiskDolu;
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return MotorKusuru::SaltOkunur;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return MotorKusuru::Bozuk;
    case SQLITE_CANTOPEN:
      return MotorKusuru::Acilamadi;
    case SQLITE_CONSTRAINT:
    case SQLITE_TOOBIG:
    case SQLITE_MISMATCH:
      return MotorKusuru::Kisit;
    default:
      return MotorKusuru::Diger;
  }
}

// A reader too needs room, for what all processes of a store share: the system's own reason tells a full disk.
MotorKusuru KusurTuru(sqlite3* db, int kod) {
  const int neden = db == nullptr ? 0 : sqlite3_system_errno(db);
  const bool sistemin = (kod & 0xFF) == SQLITE_IOERR || (kod & 0xFF) == SQLITE_CANTOPEN;
  return sistemin && (neden == ENOSPC || neden == EDQUOT) ? MotorKusuru::DiskDolu : KusurTuru(kod);
}

}  // namespace

std::string SqliteKusurMetni(MotorKusuru tur) {
  switch (tur) {
    case MotorKusuru::Kilitli:
      return "Veritabanı başka bir kullanıcı tarafından kilitli, biraz sonra yeniden deneyiniz";
    case MotorKusuru::DiskDolu:
      return "Disk dolu, kayıt yazılamadı";
    case MotorKusuru::SaltOkunur:
      return "Veritabanına yazma izni yok";
    case MotorKusuru::Bozuk:
      return "Dosya bozuk veya bir şirket veritabanı değil";
    case MotorKusuru::Acilamadi:
      return "Veritabanı dosyası açılamadı";
    case MotorKusuru::Kisit:
      return "Kayıt veritabanının kurallarına uymuyor";
    case MotorKusuru::Koptu:
    case MotorKusuru::Diger:
      return "Veritabanı işlemi yapılamadı";
  }
  return {};
}

MotorHatasi SqliteHatasi(sqlite3* db, int kod, const MotorHali& hal) {
  const MotorKusuru tur = KusurTuru(db, kod);
  if (tur == MotorKusuru::SaltOkunur && hal.saltOkunur) return MotorHatasi(tur, SaltOkunurAcildi);
  // With the engine's number; its own words are no user's.
  const int no = db == nullptr ? kod : sqlite3_extended_errcode(db);
  return MotorHatasi(tur, SqliteKusurMetni(tur) + " [" + std::to_string(no) + "]");
}

// "insert into t (a, b) values (?1, ?2)". Parameters have the numbers of their columns, the row's own follows.
std::string SqliteYazmaMetni(const YazilanKolonlar& kolonlar, YazmaTuru tur) {
  std::string adlar, sorular, atamalar;
  for (std::size_t i = 0; i < kolonlar.adlar.size(); ++i) {
    const std::string& ad = kolonlar.adlar[i];
    const std::string no = "?" + std::to_string(i + 1), ayrac = i == 0 ? "" : ", ";
    adlar += ayrac + ad;
    sorular += ayrac + no;
    if (i < kolonlar.duran.size() && kolonlar.duran[i]) continue;
    atamalar += (atamalar.empty() ? "" : ", ") + ad + " = " + no;
  }
  const std::string tablo(kolonlar.tablo), ekle = "insert into " + tablo + " (" + adlar + ") values (" + sorular + ")";
  switch (tur) {
    case YazmaTuru::Ekle:
      return ekle;
    case YazmaTuru::Degistir:
      return "update " + tablo + " set " + atamalar + " where rowid = ?" + std::to_string(kolonlar.adlar.size() + 1);
    case YazmaTuru::Koy:
      return ekle + " on conflict (" + kolonlar.adlar.front() + ") do update set " + atamalar;
  }
  return {};
}

}  // namespace belvani
