// Isci: a process of its own that does one piece of work after the other, each told by its number. What it prints is
// caught. It is forked before any store or connection is opened, so it shares none with anybody; when it dies, the
// piece it was at is lost and nothing else. Without its owner it ends behind the piece that it is at.
//
// Where a server wants a password of it, it asks its owner, who asks his user once for all.
//
//   idle --Ver--> at work --Sonuc--> idle          at work --it dies--> ended
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "cli/tampon.h"
#include "core/sunucuadresi.h"

namespace belvani::cli {

enum class Bitis : char {
  Yapildi = 'Y',
  Atlandi = 'A',  // there was nothing to do
  Yapilamadi = 'H',
};

class Isci {
 public:
  // `sifre` answers in this process. KomutHatasi when there can be no process.
  Isci(const std::function<Bitis(std::size_t)>& is, SifreSorucu sifre);
  // Waits for the piece that it is at.
  ~Isci();
  Isci(const Isci&) = delete;
  Isci& operator=(const Isci&) = delete;

  void Ver(std::size_t sira);
  bool Yasiyor() const { return no_ > 0; }
  std::optional<std::size_t> Isi() const { return isi_; }  // that it is at
  int Soket() const { return soket_.No(); }                // readable when there is a result

  struct Sonuc {
    Bitis bitis = Bitis::Yapilamadi;
    std::string olum;  // how it died; empty while it lives
    TamponParcasi cikti, mesaj;
  };
  // Of the piece that it was at; waits until it says something. Nothing: it has asked, and was answered.
  std::optional<Sonuc> SonucuAl();

  // At once, in the middle of its piece.
  void Oldur() const;

 private:
  [[noreturn]] void Calis(int soket, const std::function<Bitis(std::size_t)>& is) const;
  void SifreyiSoyle() const;
  std::string OlumSozu();

  std::shared_ptr<Tampon> cikti_ = std::make_shared<Tampon>();
  std::shared_ptr<Tampon> mesaj_ = std::make_shared<Tampon>();
  SifreSorucu sifre_;
  DosyaTutamagi soket_;
  pid_t no_ = -1;  // -1: gone
  std::optional<std::size_t> isi_;
  std::size_t ciktiBasi_ = 0, mesajBasi_ = 0;
};

// The signals by which a user ends a program, held back while it has processes: what is asked for is looked at between
// two of their results, and they themselves are ended by their owner alone.
class KesmeNobeti {
 public:
  KesmeNobeti();
  ~KesmeNobeti();
  KesmeNobeti(const KesmeNobeti&) = delete;
  KesmeNobeti& operator=(const KesmeNobeti&) = delete;

  // Times that it was asked for, and the signal of the last one.
  static int Sayi();
  static int Sinyal();
};

// Waits until one of them has something to say, or one of those signals comes: under a KesmeNobeti.
void IscileriBekle(const std::vector<std::unique_ptr<Isci>>& isciler);

}  // namespace belvani::cli
