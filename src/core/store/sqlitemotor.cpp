// The SQLite engine.
//
// Durability: synchronous=FULL, so a committed transaction survives a power cut and an open one vanishes whole. The
// journal (WAL, or rollback journal where several computers write) belongs to the file: opening takes it as it is.
// Text columns carry the collation `turkce`. Its order belongs to the Unicode library's version, which the store
// remembers in user_version: under another version the indexes are rebuilt before anything is searched.

#include "core/store/sqlitemotor.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "core/store/dosyasistemi.h"
#include "core/store/sqlitekomut.h"
#include "core/store/sqlitekopya.h"
#include "core/turkce.h"

namespace belvani {
namespace {

using Milisaniye = std::chrono::milliseconds;

constexpr int UygulamaKimligi = 0x42454C56;  // "BELV", in the header of the file
constexpr Milisaniye KilitBekleme{5000};
constexpr Milisaniye TekBekleme{1000};  // for readers who are about to go

const char* const OturumAyarlari =
    "pragma synchronous=full;"
    "pragma temp_store=memory;"
    "pragma cache_size=-65536;"        // KiB
    "pragma wal_autocheckpoint=4000;"  // pages
    "pragma trusted_schema=off;"
    "pragma cell_size_check=on;";

constexpr const char* PaylasilanDegil =
    "Şirketin veritabanı yalnız kendi bilgisayarı için kurulmuş, paylaşılan diskten açılamaz. Kimse içeride değilken "
    "çalıştırınız: belvani-cli paylas KOD (bütün şirketler için: belvani-cli paylas --hepsi)";

int TurkceSirala(void*, int na, const void* a, int nb, const void* b) {
  return TurkceKarsilastir({static_cast<const char*>(a), std::size_t(na)},
                           {static_cast<const char*>(b), std::size_t(nb)});
}

// The checksums and what keeps them true. An earlier version has no names of this table, but its engine runs the
// triggers.
const char* const OzetTablosu =
    "create table if not exists brdozet (oto integer primary key, ozet bigint);"
    "create trigger if not exists brdozet_degisti after update on brd begin "
    "update brdozet set ozet = null where oto = old.oto; end;"
    "create trigger if not exists brdozet_silindi after delete on brd begin "
    "delete from brdozet where oto = old.oto; end";

struct TetikleriAc {
  sqlite3* db;
  ~TetikleriAc() { sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 1, nullptr); }
};

// Nobody asks the library for its memory statistics, and they cost a lock with every allocation.
void KitapligiHazirla() {
  static const int kod = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  (void)kod;
}

class SqliteMotor final : public Motor {
 public:
  SqliteMotor(const std::string& yol, AcilisKipi kip) {
    KitapligiHazirla();
    const int kod = sqlite3_open_v2(yol.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    try {
      if (kod != SQLITE_OK) throw SqliteHatasi(db_, kod, hal_);
      sqlite3_extended_result_codes(db_, 1);
      sqlite3_busy_timeout(db_, int(KilitBekleme.count()));
      sqlite3_create_collation_v2(db_, "turkce", SQLITE_UTF8, nullptr, &TurkceSirala, nullptr);
      if (kip == AcilisKipi::Tek)
        TekBasinaKal();
      else if (WalBasligi() && PaylasilanDiskte(yol))
        throw MotorHatasi(MotorKusuru::Acilamadi, PaylasilanDegil);
      Calistir(OturumAyarlari);
      Calistir("select count(*) from sqlite_master");  // a file that is no store shows itself here
    } catch (...) {
      sqlite3_close_v2(db_);
      throw;
    }
  }
  ~SqliteMotor() override { sqlite3_close_v2(db_); }
  SqliteMotor(const SqliteMotor&) = delete;
  SqliteMotor& operator=(const SqliteMotor&) = delete;

  void YeniDosyayiImzala() {
    Calistir("pragma application_id=" + std::to_string(UygulamaKimligi));
    SiraSurumunuYaz();
  }

  // Indexes made under another version of the alphabet's order are rebuilt. In a store of another program the number
  // is not ours.
  void SirayiDenetle() {
    if (TekDeger("pragma application_id") != UygulamaKimligi) return;
    if (TekDeger("pragma user_version") == SiraSurumu()) return;
    IslemBaslat(KilitBekleme);
    try {
      Calistir("reindex turkce");
      SiraSurumunuYaz();
      IslemOnayla();
    } catch (...) {
      IslemGeriAl();
      throw;
    }
  }

  std::unique_ptr<Komut> Hazirla(std::string_view sql) override {
    return std::make_unique<SqliteKomut>(db_, sql, hal_);
  }

  // The engine asks while it compiles. Compiled anew after a change of the schema it has them again, which costs time
  // and nothing else.
  std::unique_ptr<Komut> TetiksizHazirla(std::string_view sql) override {
    sqlite3_db_config(db_, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    const TetikleriAc ac{db_};
    return Hazirla(sql);
  }

  void Calistir(std::string_view sql) override {
    BilinenleriUnut();
    const std::string metin(sql);
    Sina(sqlite3_exec(db_, metin.c_str(), nullptr, nullptr, nullptr));
  }

  std::unique_ptr<SatirYazici> SatirYaziciAc(const YazilanKolonlar& kolonlar, YazmaTuru tur) override {
    const std::string sql = SqliteYazmaMetni(kolonlar, tur);
    return std::make_unique<SqliteSatirYazici>(db_, kolonlar.tetiksiz ? TetiksizHazirla(sql) : Hazirla(sql), tur,
                                               int(kolonlar.adlar.size()));
  }

  void IslemBaslat(Milisaniye enCok) override {
    const auto son = std::chrono::steady_clock::now() + enCok;
    sqlite3_busy_timeout(db_, int(std::min(enCok, KilitBekleme).count()));
    int kod = SQLITE_BUSY;
    do kod = sqlite3_exec(db_, "begin immediate", nullptr, nullptr, nullptr);
    while ((kod & 0xFF) == SQLITE_BUSY && std::chrono::steady_clock::now() < son);
    sqlite3_busy_timeout(db_, int(KilitBekleme.count()));
    if (kod != SQLITE_OK) throw SqliteHatasi(db_, kod, hal_);
  }
  void IslemOnayla() override { Sina(sqlite3_exec(db_, "commit", nullptr, nullptr, nullptr)); }
  void IslemGeriAl() noexcept override {
    if (IslemdeMi()) sqlite3_exec(db_, "rollback", nullptr, nullptr, nullptr);
    ++hal_.yazmaSayaci;
  }
  bool IslemdeMi() const override { return sqlite3_get_autocommit(db_) == 0; }

  std::vector<MotorKolonu> Kolonlar(std::string_view tablo) override {
    auto komut = Hazirla("select lower(name), lower(type) from pragma_table_info(?)");
    komut->MetinBagla(1, tablo);
    std::vector<MotorKolonu> kolonlar;
    while (komut->Adim()) kolonlar.push_back({std::string(komut->Metin(0)), std::string(komut->Metin(1))});
    return kolonlar;
  }

  std::string KolonTanimi(const AlanTanimi& alan, bool birincil) const override {
    const std::string ad(alan.ad);
    if (alan.nitelik == AlanNiteligi::Otomatik) return ad + " integer primary key autoincrement";
    const bool bosOlmaz = birincil || alan.nitelik == AlanNiteligi::Zorunlu;
    return ad + " " + TipAdi(alan) + (bosOlmaz ? " not null" : "") +
           (alan.tip == AlanTipi::Metin ? " collate turkce" : "");
  }

  Indeksler TabloIndeksleri(std::string_view tablo) override {
    auto komut = Hazirla("select name, \"unique\" from pragma_index_list(?)");
    komut->MetinBagla(1, tablo);
    Indeksler indeksler;
    while (komut->Adim()) indeksler.emplace(komut->Metin(0), komut->Tam(1) != 0);
    return indeksler;
  }
  std::string TabloMetni(std::string_view tablo, const std::string& kolonlar) const override {
    return "create table " + std::string(tablo) + " (" + kolonlar + ")";
  }
  void OzetleriKur() override { Sina(sqlite3_exec(db_, OzetTablosu, nullptr, nullptr, nullptr)); }

  std::string UymayanKosulu(std::string_view ad, AlanTipi tip) const override {
    const std::string a(ad);
    const auto tam = [&](const char* enAz, const char* enCok) {
      return "typeof(" + a + ") <> 'integer' or " + a + " < " + enAz + " or " + a + " > " + enCok;
    };
    switch (tip) {
      case AlanTipi::Metin:
        return "typeof(" + a + ") <> 'text'";
      case AlanTipi::Byte:
        return tam("0", "255");
      case AlanTipi::Kisa:
        return tam("-32768", "32767");
      case AlanTipi::Uzun:
        return tam("-2147483648", "2147483647");
      case AlanTipi::Tutar:
        return "typeof(" + a + ") <> 'integer'";
      case AlanTipi::Tek:
        return "typeof(" + a + ") not in ('real', 'integer')";
      case AlanTipi::Tarih:
        return "typeof(" + a + ") <> 'text' or date(" + a + ", '+0 days') is null or date(" + a + ", '+0 days') <> " +
               a;
      case AlanTipi::Mantik:
        return tam("0", "1");
      case AlanTipi::Ikili:
        return "typeof(" + a + ") <> 'blob'";
    }
    return "0";
  }

  std::string KimlikKolonu(std::string_view) override { return "rowid"; }
  std::int64_t SonKimlik() override { return sqlite3_last_insert_rowid(db_); }
  std::int64_t DegisenSatir() override { return sqlite3_changes64(db_); }
  std::uint64_t YazmaSayaci() const override { return hal_.yazmaSayaci; }
  std::int64_t SonNumara(std::string_view tablo) override {
    const std::string ad(tablo);
    const std::int64_t enBuyuk = TekDeger("select max(rowid) from " + ad);
    return Numarali(ad) ? std::max(enBuyuk, TekDeger("select seq from sqlite_sequence where name = '" + ad + "'"))
                        : enBuyuk;
  }
  void SonNumarayiKoy(std::string_view tablo, std::int64_t numara) override {
    if (!Numarali(tablo)) return;
    const auto komut = Hazirla("update sqlite_sequence set seq = max(seq, ?1) where name = ?2");
    komut->TamBagla(1, numara);
    komut->MetinBagla(2, tablo);
    komut->Calistir();
    if (DegisenSatir() != 0) return;
    const auto ekle = Hazirla("insert into sqlite_sequence (name, seq) values (?2, ?1)");
    ekle->TamBagla(1, numara);
    ekle->MetinBagla(2, tablo);
    ekle->Calistir();
  }

  DepoYeri Yeri() override { return WalBasligi() ? DepoYeri::BuBilgisayar : DepoYeri::Paylasilan; }
  void YerKoy(DepoYeri yer) override {
    Calistir("pragma journal_mode=delete");
    if (yer == DepoYeri::BuBilgisayar) Calistir("pragma journal_mode=wal");
  }
  void SaltOkunurYap() override {
    Calistir("pragma query_only=on");
    hal_.saltOkunur = true;
  }

  std::string ButunlukKusuru(const AradaSoran& arada) override {
    return DenetimSonucu("pragma integrity_check(1)", arada);
  }
  std::string SayfaKusuru(const AradaSoran& arada) override { return DenetimSonucu("pragma quick_check(1)", arada); }

  void Kopyala(const std::string& yol, const KopyaAdimi& adim) override {
    if (const int kod = SqliteKopyala(db_, yol, adim); kod != SQLITE_OK) throw SqliteHatasi(nullptr, kod, hal_);
  }

 private:
  void Sina(int kod) {
    ++hal_.yazmaSayaci;
    if (kod != SQLITE_OK) throw SqliteHatasi(db_, kod, hal_);
  }

  // Asked for before anything is read: then a write-ahead log needs no memory shared with others, so the store opens
  // on any file system, and the hold of everybody else who has it open, even idly, is met.
  void TekBasinaKal() {
    sqlite3_busy_timeout(db_, int(TekBekleme.count()));
    Calistir("pragma locking_mode=exclusive; begin exclusive; commit");
  }

  // Whether the file's header asks for a write-ahead log. Read through the engine's own handle: closing another one of
  // the file would drop the locks that this process holds on it.
  bool WalBasligi() {
    constexpr sqlite3_int64 okumaBicimi = 19;
    constexpr unsigned char wal = 2;
    sqlite3_file* dosya = nullptr;
    unsigned char bicim = 0;
    if (sqlite3_file_control(db_, "main", SQLITE_FCNTL_FILE_POINTER, &dosya) != SQLITE_OK || dosya == nullptr ||
        dosya->pMethods == nullptr)
      return false;
    return dosya->pMethods->xRead(dosya, &bicim, 1, okumaBicimi) == SQLITE_OK && bicim == wal;
  }

  static std::string TipAdi(const AlanTanimi& alan) {
    switch (alan.tip) {
      case AlanTipi::Metin:
        return "varchar(" + std::to_string(alan.boyut) + ")";
      case AlanTipi::Byte:
        return "tinyint";
      case AlanTipi::Kisa:
        return "smallint";
      case AlanTipi::Uzun:
        return "integer";
      case AlanTipi::Tutar:
        return "bigint";
      case AlanTipi::Tek:
        return "real";
      case AlanTipi::Tarih:
        return "date";
      case AlanTipi::Mantik:
        return "boolean";
      case AlanTipi::Ikili:
        return "blob";
    }
    return {};
  }

  static std::int64_t SiraSurumu() { return std::int32_t(TurkceSiraSurumu()); }
  void SiraSurumunuYaz() { Calistir("pragma user_version=" + std::to_string(SiraSurumu())); }

  std::string DenetimSonucu(const char* sql, const AradaSoran& arada) {
    auto komut = Hazirla(sql);
    komut->AradaSor(arada);
    const std::string sonuc = komut->Adim() ? std::string(komut->Metin(0)) : "denetim yapılamadı";
    komut->Birak();
    return sonuc == "ok" ? std::string() : sonuc;
  }

  // Whether the numbers of the table's rows are never given twice. A store has their list once it has such a table.
  bool Numarali(std::string_view tablo) {
    return TekDeger("select count(*) from sqlite_master where name = '" + std::string(tablo) +
                    "' and sql like '%autoincrement%'") != 0;
  }

  std::int64_t TekDeger(std::string_view sql) {
    auto komut = Hazirla(sql);
    const std::int64_t deger = komut->Adim() ? komut->Tam(0) : 0;
    komut->Birak();
    return deger;
  }

  sqlite3* db_ = nullptr;
  MotorHali hal_;
};

}  // namespace

std::unique_ptr<Motor> SqliteAc(const std::string& yol, AcilisKipi kip) {
  auto motor = std::make_unique<SqliteMotor>(yol, kip);
  motor->SirayiDenetle();
  return motor;
}

std::unique_ptr<Motor> SqliteKopyasiAc(const std::string& yol) {
  auto motor = std::make_unique<SqliteMotor>(yol, AcilisKipi::Tek);
  motor->Calistir("pragma synchronous=off");
  motor->SirayiDenetle();
  motor->YerKoy(DepoYeri::Paylasilan);
  return motor;
}

std::string SqliteSurumu() {
  return sqlite3_libversion();
}

void SqliteSil(const std::string& yol) {
  for (const char* ek : {"", "-wal", "-shm", "-journal"}) ::unlink((yol + ek).c_str());
}

std::unique_ptr<Motor> SqliteYarat(const std::string& yol) {
  // Made empty first, so that the file and all that the engine lays beside it are open to owner and group only.
  const int dosya = ::open(yol.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0660);
  if (dosya < 0) throw MotorHatasi(MotorKusuru::Acilamadi, SqliteKusurMetni(MotorKusuru::Acilamadi) + " [" + yol + "]");
  ::fchmod(dosya, 0660);
  ::close(dosya);
  try {
    auto motor = std::make_unique<SqliteMotor>(yol, AcilisKipi::Ortak);
    if (!PaylasilanDiskte(yol)) motor->YerKoy(DepoYeri::BuBilgisayar);
    motor->YeniDosyayiImzala();
    return motor;
  } catch (...) {
    SqliteSil(yol);
    throw;
  }
}

}  // namespace belvani
