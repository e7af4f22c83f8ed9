// What the commands share: the session they open, how they report, how they end.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <string>

#include "core/bildirim.h"
#include "core/hedef.h"
#include "core/okunus.h"
#include "core/session/oturum.h"
#include "core/sonuc.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani::cli {

// Ends the command: the text goes to standard error, the exit status is 1.
struct KomutHatasi {
  std::string metin;
};

// Messages and warnings to standard error. Questions are answered no: a batch program does not guess.
class StandartHata : public Bildirim {
 public:
  void Bilgi(std::string_view metin) override;
  void Uyari(std::string_view metin) override;
  bool Soru(std::string_view metin) override;
};

// The user has agreed beforehand.
class OnayliBildirim final : public StandartHata {
 public:
  bool Soru(std::string_view) override { return true; }
};

// Options of the program itself.
struct Genel {
  std::string veri;       // --veri
  bool adlarTam = false;  // codes are names as their places are spelled, what was left behind has been tidied up
  StandartHata bildirim;

  // The data path: --veri, else the machine's setting.
  std::string DataPath();
  // The same as it was given, before anything there is looked for.
  std::string DataPathMetni() const;
  // The company's store, opened without login: who may read the files may work on them. One that cannot be written is
  // told and opened for reading.
  std::unique_ptr<Oturum> SirketAc(const std::string& kod, SirketErisimi erisim = SirketErisimi::Yazilir);
  // For a command that changes it: others see that someone is in.
  std::unique_ptr<Oturum> YazmayaAc(const std::string& kod);
};

// Adds one command with its options to the program.
using KomutEkle = void (*)(CLI::App&, Genel&);
void SirketKomutlari(CLI::App& app, Genel& genel);
void DenetleKomutu(CLI::App& app, Genel& genel);
void PaylasKomutu(CLI::App& app, Genel& genel);
void SunucuKomutlari(CLI::App& app, Genel& genel);
void YedekKomutlari(CLI::App& app, Genel& genel);
void ParametreKomutlari(CLI::App& app, Genel& genel);
void AktarimKomutlari(CLI::App& app, Genel& genel);
void KisiKomutlari(CLI::App& app, Genel& genel);
void HazirlaKomutlari(CLI::App& app, Genel& genel);
void DevirKomutlari(CLI::App& app, Genel& genel);
void HesaplaKomutu(CLI::App& app, Genel& genel);
void BelgeKomutlari(CLI::App& app, Genel& genel);
void KidemKomutu(CLI::App& app, Genel& genel);
void BildirgeKomutu(CLI::App& app, Genel& genel);
void BildirimKomutlari(CLI::App& app, Genel& genel);
void ViziteKomutu(CLI::App& app, Genel& genel);
void MuhasebeKomutlari(CLI::App& app, Genel& genel);
void RaporKomutu(CLI::App& app, Genel& genel);

struct Donem {
  int yil = 0;
  int ay = 0;
};
Donem DonemOku(const std::string& metin);  // "2009-07"
// A day of an option as fields read it: also "2009-07-31" is one.
std::string GunSecenegi(const std::string& metin);
// An option that is a day, gg.aa.yyyy or ISO; any other text ends the command as a wrong call.
CLI::Option* TarihSecenegi(CLI::App& komut, const char* ad, const char* aciklama, Tarih& tarih);
// A whole number of an option; a wrong one ends the command as a wrong call.
int SayiOku(const char* secenek, const std::string& metin, int enAz, int enCok);
CLI::Option* SayiSecenegi(CLI::App& komut, const char* ad, const char* aciklama, int& deger, int enAz, int enCok);
CLI::Option* YilSecenegi(CLI::App& komut, int& yil, const char* aciklama);
CLI::Option* AySecenegi(CLI::App& komut, int& ay, const char* aciklama);
void DonemSecenekleri(CLI::App& komut, Donem& donem);  // --yil, --ay

// Tells on standard error when the installed law is not that of the month; the command goes on.
void MevzuatUyarisi(Genel& genel, const KuruluMevzuat& mevzuat, const Donem& donem);

// Runs it; what it ends with goes to standard error. False: it has failed.
bool HatayiSoyleyerek(const std::function<void()>& is);

template <class T>
T& Degeri(Sonuc<T>& sonuc) {
  if (!sonuc) throw KomutHatasi{sonuc.KusurMetni()};
  return *sonuc;
}
void Basarmali(const Durum& durum);

// How far a long run is, on a terminal alone; a log file stays clean.
class TerminalIlerlemesi final : public Ilerleme {
 public:
  TerminalIlerlemesi();
  bool Adim(std::size_t biten, std::size_t toplam) override;

 private:
  bool terminal_;
};

// --ondalik: what the decimal mark of a file is, where that cannot be seen from its numbers.
void OndalikSecenegi(CLI::App& komut, OndalikImi& im);

std::string DosyayiOku(const std::string& yol);  // or KomutHatasi
std::string GirdiyiOku();                        // standard input to its end

// Standard output for "" and "-", else the file of that name (core/hedef.h).
HedefDosya HedefAc(const std::string& dosya);
// Text in pieces, gathered before they go out; the old file stays until Bitir.
class MetinCikisi {
 public:
  explicit MetinCikisi(const std::string& dosya = {}) : hedef_(HedefAc(dosya)), terminal_(hedef_.Terminal()) {}

  void Yaz(std::string_view metin);  // or KomutHatasi
  void Bosalt();                     // what was gathered
  void Bitir();

 private:
  HedefDosya hedef_;
  bool terminal_;
  std::string bekleyen_;
};
// Text; a terminal gets no letter that would command it.
void Yaz(const std::string& metin, const std::string& dosya = {});
// What no terminal can show (pictures, workbooks, bytes for a printer), and none gets.
void BaytlariYaz(const std::string& baytlar, const std::string& dosya);

}  // namespace belvani::cli
