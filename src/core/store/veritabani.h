// Veritabani: an open store, and the operations through which all logic reaches it.
//
// The named operations are guarded: whatever fails in the engine comes back as False (or an empty result), nothing is
// raised, and only the caller reports. They are not mute for us: SonHata() keeps the last failure's text, and the
// environment variable BELVANI_GUNLUK names a file to which every failure is added.
//
// Bulk work (a whole company at once) goes below these operations, through Motor and the typed rows of
// core/store/satirlar.h, and there failures are MotorHatasi.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/islem.h"
#include "core/store/motor.h"
#include "core/tables/alan.h"

namespace belvani {

class Imlec;

// What a result column of a query holds when the query cannot tell by itself: SqlAc(rs, "select sum(gvmatrah) as t …",
// {…}, {{"t", AlanTipi::Tutar}}).
struct SonucTipi {
  std::string_view ad;
  AlanTipi tip;
};

class Veritabani {
 public:
  Veritabani();
  ~Veritabani();
  Veritabani(const Veritabani&) = delete;
  Veritabani& operator=(const Veritabani&) = delete;

  bool DbAc(const std::string& yol);
  bool DbYarat(const std::string& yol);
  void DbKapat();
  bool AcikMi() const { return motor_ != nullptr; }
  // Another number after each opening and closing: a cursor of an earlier one counts as closed.
  std::uint64_t AcilisNo() const { return acilisNo_; }

  // Opens a cursor on a table of the schema, on its first record.
  bool TabloAc(Imlec& rs, std::string_view tablo);

  // Runs a query with its values bound in order; the cursor stands on the first row and knows the row count.
  // False when the query fails or has no rows; in the latter case the cursor is open and empty.
  bool SqlAc(Imlec& rs, std::string_view sql, const std::vector<Deger>& degerler = {},
             const std::vector<SonucTipi>& tipler = {});

  bool AlanVarMi(std::string_view tablo, std::string_view alan);
  bool AlanEkle(std::string_view tablo, const AlanTanimi& alan);
  bool TabloEkle(const TabloTanimi& tanim);
  bool TabloVarMi(std::string_view tablo);
  // The indexes that the tables of an earlier version lack (core/store/indeksler.h).
  bool IndeksleriKur();

  const std::string& SonHata() const { return sonHata_; }
  void HataYaz(std::string metin);

  // Below the guard; the store must be open.
  Motor& IcMotor() { return *motor_; }

  // Runs `is`; any failure is kept in SonHata() and gives `basarisiz`. A fault in that also says when it was the way to
  // the server that broke: its user would look for the reason in what he has typed.
  template <class Is, class T>
  T Koru(T basarisiz, Is&& is) noexcept {
    try {
      if (!AcikMi()) throw MotorHatasi(MotorKusuru::Acilamadi, "Veritabanı açık değil");
      AraNokta nokta(*motor_);  // in an open transaction the caller may go on after a failure
      T sonuc = is();
      nokta.Birak();
      return sonuc;
    } catch (const MotorHatasi& h) {
      HataYaz(h.what());
      if constexpr (requires { basarisiz.Kusuru().metin; })
        if (h.tur == MotorKusuru::Koptu || (AcikMi() && h.tur == MotorKusuru::Acilamadi))
          basarisiz.Kusuru().metin += std::string("\n") + h.what();
      return basarisiz;
    } catch (const std::exception& h) {
      HataYaz(h.what());
      return basarisiz;
    }
  }

 private:
  std::unique_ptr<Motor> motor_;
  std::uint64_t acilisNo_ = 0;
  std::string sonHata_;
};

}  // namespace belvani
