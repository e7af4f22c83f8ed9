// Motor: the database engine behind a company store, and Komut: one of its prepared statements.
//
// Only this room knows which engine it is: SQLite for a file, PostgreSQL for a server. SQL is kept to what both take.
// Values are always bound, never joined into the text. Everything here throws MotorHatasi on failure; Veritabani and
// Imlec turn that into the False of the named operations, other logic catches it where its transaction ends.
//
// What counts beyond a network is how often an answer is waited for. So inside a transaction a write that is not asked
// for its result may be on its way until the next read or the end of the transaction, and a failure of it is thrown
// there; the transaction is lost either way.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/deger.h"
#include "core/tables/alan.h"

namespace belvani {

// Koptu: the way to the server; the next action outside the transaction finds it again.
enum class MotorKusuru { Kilitli, DiskDolu, SaltOkunur, Bozuk, Acilamadi, Kisit, Koptu, Diger };

// what() is a Turkish sentence for the user.
struct MotorHatasi : std::runtime_error {
  MotorHatasi(MotorKusuru kusur, const std::string& metin) : std::runtime_error(metin), tur(kusur) {}
  MotorKusuru tur;
};

// What takes values one after the other. Parameters count from 1.
class Baglanan {
 public:
  virtual ~Baglanan() = default;

  virtual void NullBagla(int no) = 0;
  virtual void TamBagla(int no, std::int64_t deger) = 0;
  virtual void SayiBagla(int no, double deger) = 0;
  virtual void MetinBagla(int no, std::string_view deger) = 0;  // copied
  virtual void BaytBagla(int no, const Baytlar& deger) = 0;

  // Binds any value in the form in which the store keeps it: money scaled, dates ISO, booleans 0 and 1.
  void Bagla(int no, const Deger& deger);
};

// Called in the middle of long work of the engine, now and then; must leave the motor alone. What it throws ends the
// work.
using AradaSoran = std::function<void()>;

// A prepared statement. Columns count from 0, and are known once the first step was made. Texts and bytes of a row hold
// until the next step.
class Komut : public Baglanan {
 public:
  // Several statements whose values are bound may be sent before the first of them is stepped: beyond a network they
  // then cost one wait together.
  virtual void Gonder() {}
  // True: a row stands ready. False: done; the statement may then be bound and run again.
  virtual bool Adim() = 0;
  // From now on asked in the middle of steps, where the engine can; an empty one no more.
  virtual void AradaSor(AradaSoran) {}
  // Ends a run before its last row, which frees what it locks.
  virtual void Birak() = 0;

  virtual int KolonSayisi() const = 0;
  virtual std::string_view KolonAdi(int i) const = 0;
  // The table column that a result column shows; empty for an expression.
  virtual std::string_view KaynakTablo(int i) const = 0;
  virtual std::string_view KaynakKolon(int i) const = 0;

  enum class Tur { Null, Tam, Sayi, Metin, Bayt };
  virtual Tur Turu(int i) const = 0;
  virtual std::int64_t Tam(int i) const = 0;
  virtual double Sayi(int i) const = 0;
  virtual std::string_view Metin(int i) const = 0;
  virtual Baytlar Bayt(int i) const = 0;

  // A whole number that must fit the type; one that does not (a broken store) gives 0.
  template <class T>
  T TamSigan(int i) const {
    const std::int64_t n = Tam(i);
    return std::in_range<T>(n) ? T(n) : T(0);
  }

  // Runs to the end; for statements without rows.
  void Calistir();
};

// Writes whole rows of one table, many at a time, each from the values of the columns it was opened with. What was
// written is there for all that this motor does next, but an engine beyond a network may gather rows until then.
class SatirYazici : public Baglanan {
 public:
  // Writes what is bound; gives the row's number. `kimlik` is that of the row that is changed or put.
  virtual std::int64_t Yaz(std::int64_t kimlik = 0) = 0;
};

enum class YazmaTuru {
  Ekle,      // a new row, numbered by the store
  Degistir,  // the row of a number
  Koy,       // the row of a number, new or not; the number is the first of the columns
};

struct YazilanKolonlar {
  std::string_view tablo;
  std::vector<std::string> adlar;
  std::vector<bool> duran = {};  // by place: a row that is changed holds the same value already; an index is spared
  bool tetiksiz = false;         // the writer does itself what the store's triggers do for other programs
};

// For whom a store is laid out, which decides how it keeps what is not approved yet. The file itself remembers it, and
// opening never changes it.
enum class DepoYeri {
  BuBilgisayar,  // WAL: readers never wait, but its shared memory is seen by the programs of one computer alone
  Paylasilan,    // rollback journal: several computers may work on the file
};

enum class AcilisKipi {
  Ortak,
  Tek,  // everybody else is kept out as long as the motor lives; refused (Kilitli) while someone has the store open
};

struct MotorKolonu {
  std::string ad;
  std::string tip;  // as the table declares it, lower case; another table may be made with it
};

// Whether each index of a table lets a key stand once only, by its name.
using Indeksler = std::map<std::string, bool, std::less<>>;

class Motor {
 public:
  virtual ~Motor() = default;

  // What was once found to hold of the store's make-up holds until something is run that may change it (Calistir).
  bool Biliniyor(std::string_view ne) const { return bilinenler_.contains(ne); }
  void Bilindi(std::string_view ne) { bilinenler_.emplace(ne); }

  virtual std::unique_ptr<Komut> Hazirla(std::string_view sql) = 0;
  // For a statement that does itself what the store's triggers do for other programs: it runs without them.
  virtual std::unique_ptr<Komut> TetiksizHazirla(std::string_view sql) = 0;
  virtual void Calistir(std::string_view sql) = 0;  // statements without parameters, several at once
  virtual std::unique_ptr<SatirYazici> SatirYaziciAc(const YazilanKolonlar& kolonlar, YazmaTuru tur) = 0;

  // The one writer's turn, waited for up to `enCok`: what follows is not mixed with any other's writes.
  virtual void IslemBaslat(std::chrono::milliseconds enCok) = 0;
  virtual void IslemOnayla() = 0;
  virtual void IslemGeriAl() noexcept = 0;
  virtual bool IslemdeMi() const = 0;
  // A place in the open transaction to which a failure leads back (core/store/islem.h); nothing where a statement that
  // fails leaves the transaction as it was.
  virtual void AraNoktaKoy() {}
  virtual void AraNoktaBirak() {}  // all since then has happened
  virtual void AraNoktayaDon() noexcept {}

  virtual std::vector<MotorKolonu> Kolonlar(std::string_view tablo) = 0;  // empty: no such table
  virtual std::string KolonTanimi(const AlanTanimi& alan, bool birincil) const = 0;
  virtual Indeksler TabloIndeksleri(std::string_view tablo) = 0;
  // "create table ad (…)", with the number of a row where the engine does not keep one by itself.
  virtual std::string TabloMetni(std::string_view tablo, const std::string& kolonlar) const = 0;
  // The checksums of pay records and the triggers that keep them true, where they are not there (brdozet.h).
  virtual void OzetleriKur() = 0;
  // SQL: the column `ad` holds, without being Null, what its type cannot.
  virtual std::string UymayanKosulu(std::string_view ad, AlanTipi tip) const = 0;
  virtual std::string KimlikKolonu(std::string_view tablo) = 0;  // the hidden number of a row
  virtual std::int64_t SonKimlik() = 0;                          // of the row inserted last
  virtual std::int64_t DegisenSatir() = 0;                       // by the last write
  virtual std::uint64_t YazmaSayaci() const = 0;                 // grows with every write of this process
  // The last number that the table has given, also to rows that are gone; for a store that takes another one's place.
  virtual std::int64_t SonNumara(std::string_view tablo) = 0;
  virtual void SonNumarayiKoy(std::string_view tablo, std::int64_t numara) = 0;

  virtual DepoYeri Yeri() = 0;
  // Lays the store out anew, and brings all of it into the one file; it must be this motor's alone.
  virtual void YerKoy(DepoYeri yer) = 0;
  // May this motor's user write here, as far as the engine itself knows?
  virtual bool Yazilabilir() { return true; }
  // From now on nothing is written: a write is refused as MotorKusuru::SaltOkunur.
  virtual void SaltOkunurYap() = 0;

  // "" when the store is sound, else what is wrong with it. Reads everything; the second only what a copy takes over.
  virtual std::string ButunlukKusuru(const AradaSoran& arada = {}) = 0;
  virtual std::string SayfaKusuru(const AradaSoran& arada = {}) = 0;

  // The store as it stands at one moment into the new file `yol`, while others go on working. `adim` is told the pages
  // or rows that are done and all there are; what it throws ends the copying.
  using KopyaAdimi = std::function<void(std::size_t biten, std::size_t toplam)>;
  virtual void Kopyala(const std::string& yol, const KopyaAdimi& adim) = 0;

 protected:
  void BilinenleriUnut() { bilinenler_.clear(); }

 private:
  std::set<std::string, std::less<>> bilinenler_;
};

// Opens the store at an address, the path of a file or a place on a server ("postgresql://…#ORNEK/tolu.dat"), or makes
// it anew where there is none, for reading and writing. A file that is laid out for one computer is not opened from
// another one. A new one is laid out as its file system asks for.
std::unique_ptr<Motor> MotorAc(const std::string& adres, AcilisKipi kip = AcilisKipi::Ortak);
std::unique_ptr<Motor> MotorYarat(const std::string& adres);

// Removes a closed store, with what the engine has laid beside it.
void MotorDosyasiniSil(const std::string& adres);

// Versions of the libraries behind both engines, for the user's eyes.
struct MotorSurumu {
  std::string dosya, sunucu;
};
MotorSurumu MotorSurumleri();

}  // namespace belvani
