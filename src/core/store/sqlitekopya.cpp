#include "core/store/sqlitekopya.h"

#include <sqlite3.h>
#include <string_view>
#include <thread>

namespace belvani {
namespace {

constexpr int SayfaAdimi = 2048;
constexpr int EnCokYenidenBaslama = 3;
constexpr std::chrono::seconds KilitBekleme{5};

// One look at the store for as long as it lives, whatever is written meanwhile.
class TekBakis {
 public:
  explicit TekBakis(sqlite3* db) : db_(db) {}
  ~TekBakis() {
    if (bizim_) sqlite3_exec(db_, "commit", nullptr, nullptr, nullptr);
  }
  TekBakis(const TekBakis&) = delete;
  TekBakis& operator=(const TekBakis&) = delete;

  int Baslat() {
    if (sqlite3_get_autocommit(db_) == 0) return SQLITE_OK;
    const int kod = sqlite3_exec(db_, "begin", nullptr, nullptr, nullptr);
    bizim_ = kod == SQLITE_OK;
    return bizim_ ? sqlite3_exec(db_, "select count(*) from sqlite_master", nullptr, nullptr, nullptr) : kod;
  }

 private:
  sqlite3* db_;
  bool bizim_ = false;
};

bool OnceYazan(sqlite3* db) {
  bool wal = false;
  const auto oku = [](void* hal, int, char** deger, char**) {
    *static_cast<bool*>(hal) = deger[0] != nullptr && std::string_view(deger[0]) == "wal";
    return 0;
  };
  sqlite3_exec(db, "pragma journal_mode", oku, &wal, nullptr);
  return wal;
}

class Kopya {
 public:
  Kopya(sqlite3* kaynak, const std::string& yol) : bakis_(kaynak) {
    kod_ = sqlite3_open_v2(yol.c_str(), &hedef_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
                           nullptr);
    // Half a copy is of no use to anybody, so nothing is done for it to survive a crash.
    if (kod_ == SQLITE_OK)
      kod_ = sqlite3_exec(hedef_, "pragma journal_mode=off; pragma synchronous=off", nullptr, nullptr, nullptr);
    // With the log written ahead a look keeps nobody from writing. With the other journal it would: there the engine
    // begins anew when somebody has written between two steps, which is suffered a few times.
    if (kod_ == SQLITE_OK && OnceYazan(kaynak)) kod_ = bakis_.Baslat();
    if (kod_ != SQLITE_OK) return;
    is_ = sqlite3_backup_init(hedef_, "main", kaynak, "main");
    if (is_ == nullptr) kod_ = sqlite3_extended_errcode(hedef_);
  }
  ~Kopya() {
    sqlite3_backup_finish(is_);
    sqlite3_close_v2(hedef_);
  }
  Kopya(const Kopya&) = delete;
  Kopya& operator=(const Kopya&) = delete;

  int Yurut(const Motor::KopyaAdimi& adim) {
    auto son = std::chrono::steady_clock::now() + KilitBekleme;
    while (kod_ == SQLITE_OK) {
      kod_ = sqlite3_backup_step(is_, SayfaAdimi);
      if ((kod_ & 0xFF) == SQLITE_BUSY || (kod_ & 0xFF) == SQLITE_LOCKED) {
        if (std::chrono::steady_clock::now() >= son) return kod_;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        kod_ = SQLITE_OK;
        continue;
      }
      son = std::chrono::steady_clock::now() + KilitBekleme;
      Ilerlet(adim);
    }
    return kod_ == SQLITE_DONE ? SQLITE_OK : kod_;
  }

 private:
  void Ilerlet(const Motor::KopyaAdimi& adim) {
    const int toplam = sqlite3_backup_pagecount(is_), biten = toplam - sqlite3_backup_remaining(is_);
    if (biten < biten_ && ++yenidenBaslama_ == EnCokYenidenBaslama && kod_ == SQLITE_OK) kod_ = bakis_.Baslat();
    biten_ = biten;
    adim(std::size_t(biten), std::size_t(toplam));
  }

  TekBakis bakis_;
  sqlite3* hedef_ = nullptr;
  sqlite3_backup* is_ = nullptr;
  int kod_ = SQLITE_OK;
  int biten_ = 0, yenidenBaslama_ = 0;
};

}  // namespace

int SqliteKopyala(sqlite3* kaynak, const std::string& yol, const Motor::KopyaAdimi& adim) {
  return Kopya(kaynak, yol).Yurut(adim);
}

}  // namespace belvani
