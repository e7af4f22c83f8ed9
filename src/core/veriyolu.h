// VeriYolu: a place where data lies: the data path of an installation, or the place of one company below it. Small
// files by name, read and written whole, listed and locked; below it the places of the companies; and the address of
// the company's store. Nothing above knows what stands behind it, a directory or a database server; only their makers
// do (dizinmakinesi.h, and the store's room for the server).
//
//   VeriYolu veri = "/srv/belvani/";                    // an address makes one, also "postgresql://sunucu/belvani"
//   const auto kanun = veri.Oku("kanun.dat");
//   veri.Alt("ORNEK").Yaz("sablon.dat", baytlar);
//   IniYaz("Muhasebe", "tcno", "…", {veri.Alt("ORNEK"), "bordro.ini"});
//
// A name is a name: one that would leave the place (with a separator, or beginning with a point) is our own fault.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dosya.h"
#include "core/sonuc.h"

namespace belvani {

struct SunucuAdresi;

// What there is to say of a file before its bytes are trusted.
struct DosyaHali {
  std::string baytlar = {};
  std::uintmax_t boy = 0;  // of the file; more than `baytlar` holds when it is larger than was asked for
  bool var = false;
  bool okunamadi = false;  // it is there, but its bytes cannot be had: it must not be written over

  bool operator==(const DosyaHali&) const = default;
};

// By what a file is known to have changed without reading it.
struct DosyaIzi {
  std::uintmax_t boy = 0;
  std::int64_t zaman = 0;  // of its last change, nanoseconds of the computer's clock since 1970

  bool operator==(const DosyaIzi&) const = default;
};

// Held by one at a time, on all computers, until it is destroyed.
class YolKilidi {
 public:
  virtual ~YolKilidi() = default;
};

// A mark of the place below that is called `alt`.
struct AltIsareti {
  std::string alt;
  AdliDosya isaret;
};

// What becomes of a half place that a killed program has left.
enum class YarimTuru {
  Kurulan,  // it stays, and its user is told of it
  Donen,    // the next start removes it: all that is in it is kept elsewhere
};

// A place below another one that comes into being whole or not at all: it is filled while no list names it, and gets
// its name in one step. What has not got it goes with the object.
class YarimYer {
 public:
  virtual ~YarimYer() = default;
  virtual std::string Adres() const = 0;  // a VeriYolu of it is a place like any other
  // What bears the name already is never replaced.
  virtual Durum Adlandir() = 0;
  // Takes the place of what bears its name, which is then the half one.
  virtual Durum YerineGec() = 0;
};

// One kind of place. Names have been checked.
class VeriMakinesi {
 public:
  virtual ~VeriMakinesi() = default;
  // Whether the place's data can be had at all; the fault tells why not. Lists cannot tell it: they are empty then.
  virtual Durum Erisim() const { return Tamam(); }
  virtual DosyaHali Bak(std::string_view ad, std::size_t enCok) const = 0;
  virtual std::optional<DosyaIzi> Iz(std::string_view ad) const = 0;
  virtual Durum Yaz(std::string_view ad, std::string_view baytlar) const = 0;
  virtual Durum YazHepsi(const std::vector<AdliDosya>& dosyalar) const = 0;
  virtual Durum Sil(std::string_view ad) const = 0;
  virtual std::vector<std::string> Dosyalar() const = 0;
  virtual Durum IsaretKoy(std::string_view ad, std::string_view baytlar) const = 0;
  virtual Durum IsaretKaldir(std::string_view ad) const = 0;
  virtual std::vector<AdliDosya> Isaretler() const = 0;
  virtual Sonuc<std::unique_ptr<YolKilidi>> Kilitle(std::chrono::milliseconds enCok) const = 0;
  virtual std::string Adres(std::string_view ad) const = 0;
  virtual std::shared_ptr<const VeriMakinesi> Alt(std::string_view ad) const = 0;
  virtual std::vector<std::string> Altlar() const = 0;
  virtual bool AltVar(std::string_view ad) const = 0;
  virtual Durum Yarat() const = 0;
  virtual std::string Kimlik() const = 0;
  virtual bool BagMi() const = 0;
  virtual std::vector<DosyaHali> BakHepsi(const std::vector<std::string_view>& adlar, std::size_t enCok) const = 0;
  virtual std::vector<AltIsareti> AltIsaretleri() const = 0;
  virtual Sonuc<std::unique_ptr<YarimYer>> YarimAlt(std::string_view ad, YarimTuru tur) const = 0;
  virtual std::vector<std::string> YarimAltlar() const = 0;
  virtual Sonuc<std::string> YarimaCevir(std::string_view ad) const = 0;
  virtual Durum YarimSil(std::string_view ad) const = 0;
  virtual void Toparla() const = 0;
  virtual Durum DosyayaAl(std::string_view ad, const std::string& yol) const = 0;
  virtual Durum DosyadanKoy(std::string_view ad, const std::string& yol) const = 0;
  virtual std::string YerelDizin() const = 0;
  virtual std::shared_ptr<const VeriMakinesi> Yedekler() const = 0;
  virtual bool Sunucuda() const = 0;
};

// Who makes the places of a server. The store's room, which knows the server's language, says so when it is linked;
// without it a server's address is a place where everything fails with the reason.
using VeriMakinesiYapici = std::shared_ptr<const VeriMakinesi> (*)(const SunucuAdresi& adres);
VeriMakinesiYapici SunucuYapicisiKoy(VeriMakinesiYapici yapici);  // gives the one before

class VeriYolu {
 public:
  static constexpr std::size_t EnCokBayt = 64u << 20;

  VeriYolu(const std::string& adres);                            // NOLINT: an address is a place
  VeriYolu(const char* adres) : VeriYolu(std::string(adres)) {}  // NOLINT

  // The whole file; nothing when it is absent, cannot be read or is larger than `enCok`.
  std::optional<std::string> Oku(std::string_view ad, std::size_t enCok = EnCokBayt) const;
  // The same with the reason.
  DosyaHali Bak(std::string_view ad, std::size_t enCok = EnCokBayt) const;
  bool Var(std::string_view ad) const { return Bak(ad, 0).var; }
  std::optional<DosyaIzi> Iz(std::string_view ad) const;  // nothing when it is no file
  // In one step: a reader, a full disk or a power cut sees the old content or the new, never a half.
  Durum Yaz(std::string_view ad, std::string_view baytlar) const;
  // Several files as one: all readers see the old ones or the new ones, over a kill and a power cut too. Under the
  // lock.
  Durum YazHepsi(const std::vector<AdliDosya>& dosyalar) const;
  // Several files as they stand together: never some from before a YazHepsi and some from after it.
  std::vector<DosyaHali> BakHepsi(const std::vector<std::string_view>& adlar, std::size_t enCok = EnCokBayt) const;
  // A file of any size into a new file of this computer, and the other way round, in one step for its readers.
  Durum DosyayaAl(std::string_view ad, const std::string& yol) const;
  Durum DosyadanKoy(std::string_view ad, const std::string& yol) const;
  Durum Sil(std::string_view ad) const;  // a file that is not there is a success
  // Names of the files, but for those that begin with a point.
  std::vector<std::string> Dosyalar() const { return makine_->Dosyalar(); }
  // Marks, which programs lay for one another while they are at work in a place: a few bytes under a name. They are no
  // files of the place: Dosyalar() does not see them, and they go with it.
  Durum IsaretKoy(std::string_view ad, std::string_view baytlar) const;  // replaces the one of this name
  Durum IsaretKaldir(std::string_view ad) const;                         // one that is not there is a success
  std::vector<AdliDosya> Isaretler() const { return makine_->Isaretler(); }
  // Those of all places below.
  std::vector<AltIsareti> AltIsaretleri() const { return makine_->AltIsaretleri(); }
  // For reading, changing and writing as one step: the files of this place, not those of the places below. Waits at
  // most so long; the failure says that someone else is at it. Null where nothing can be locked (a place that cannot be
  // written, a file system without locks).
  Sonuc<std::unique_ptr<YolKilidi>> Kilitle(std::chrono::milliseconds enCok = std::chrono::seconds(5)) const;

  // Where the file is, for the user's eyes, and for the engine that opens a store. That of the place itself is how an
  // address is kept: two that mean one place may have been typed in two ways.
  std::string Adres(std::string_view ad = {}) const { return makine_->Adres(ad); }
  // Whether anything can be had from here; the fault tells why not (a broken address, a server that is away). A
  // directory that is not there is an empty place.
  Durum Erisim() const { return makine_->Erisim(); }
  // Its data does not lie on a disk that this computer sees.
  bool Sunucuda() const { return makine_->Sunucuda(); }
  // Where this computer keeps what is exported from here: the place itself, or a directory in the user's own data,
  // which is made when asked for. With a separator at its end.
  std::string YerelDizin() const { return makine_->YerelDizin(); }

  // The places below: one for each company.
  VeriYolu Alt(std::string_view ad) const;
  std::vector<std::string> Altlar() const { return makine_->Altlar(); }
  bool AltVar(std::string_view ad) const;
  // A new place below, whole or not at all.
  Sonuc<std::unique_ptr<YarimYer>> YarimAlt(std::string_view ad, YarimTuru tur = YarimTuru::Kurulan) const;
  // Places below that were never finished and that nobody is at. Their names begin with a point, as no other one's
  // does.
  std::vector<std::string> YarimAltlar() const { return makine_->YarimAltlar(); }
  // Makes a place below, which holds files alone, a half one again, whole and in one step, and gives its new name.
  Sonuc<std::string> YarimaCevir(std::string_view ad) const;
  // Removes a half place with all in it; refused while someone is at it.
  Durum YarimSil(std::string_view ad) const;
  // At a program's start: what killed programs have left half done is finished or goes. What someone is at stays.
  void Toparla() const { makine_->Toparla(); }
  // Where backups of the places below are kept, below a place for each: always a directory of a disk that this computer
  // sees. It need not be there, and no list names it.
  VeriYolu Yedekler() const { return VeriYolu(makine_->Yedekler()); }
  // Makes the place itself, where there is none.
  Durum Yarat() const { return makine_->Yarat(); }
  // The same for all addresses of one place; empty where there is none.
  std::string Kimlik() const { return makine_->Kimlik(); }
  // What stands at the address only leads to the place, which may be anywhere.
  bool BagMi() const { return makine_->BagMi(); }

 private:
  explicit VeriYolu(std::shared_ptr<const VeriMakinesi> makine) : makine_(std::move(makine)) {}

  std::shared_ptr<const VeriMakinesi> makine_;
};

}  // namespace belvani
