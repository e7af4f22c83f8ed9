// KidemHesabi: the severance and notice of one person as its screen and its command work it out, and every rule of
// what follows from a change. Nothing of it is stored.
//
//   KidemHesabi hesap(motor, KidemKosullariYukle(kaynak));
//   hesap.KisiBul("001");                    // his days, or today; his wage; calculated
//   hesap.CikisKoy(Tarih(2009, 7, 31));
//   hesap.Sonuc().tutarlar->netKidem
//
// Base and tax of the year follow the leaving day, and with them the wage, unless the user has typed one; notice days
// that he has typed stand until a day changes.
#pragma once

#include <optional>

#include "core/store/motor.h"
#include "payroll/parametre/mevzuatdenetimi.h"
#include "severance/kidemkosullari.h"
#include "severance/kidemtavani.h"

namespace belvani {

// The most that may be entered.
inline constexpr double EnCokKidemUcreti = 99'999'999'999.99;
inline constexpr int EnCokIhbarGunu = 9999;

struct KidemFormu {
  std::string kod{};
  std::string sskno{};
  std::string adi{};
  std::string soyadi{};
  Tarih girtar{};
  Tarih ciktar{};
  Tutar AylikUcret{};
  std::int32_t CalismaGunu = 0;  // shown
  std::int32_t IhbarGun = 0;
  bool kidemHaric = false;
  bool ihbarHaric = false;
  KidemTavaniSecimi tavan = KidemTavaniSecimi::Kurulu;
};

// What a sheet shows of a calculation.
struct KidemCizelgesi {
  KidemFormu form;
  KidemMatrahi matrah;
  Tutar KidemTavan;
  KidemSonucu sonuc;
  std::vector<std::string> notlar;  // what its reader must know, a sentence each
  int paraonda = 2;
};

class KidemHesabi {
 public:
  KidemHesabi(Motor& motor, KidemKosullari kosullar) : motor_(motor), kosullar_(std::move(kosullar)) {}

  const KidemKosullari& Kosullar() const { return kosullar_; }
  // From now on under these.
  void KosullariKoy(KidemKosullari kosullar);

  // Each of these calculates anew; they throw MotorHatasi and TutarTasmasi.
  // False: there is no such person, and everything is empty.
  bool KisiBul(std::string_view kod);
  void GirisKoy(Tarih girtar);  // no day: today
  void CikisKoy(Tarih ciktar);
  void UcretKoy(Tutar AylikUcret);
  void IhbarGunKoy(int gun);
  void HaricKoy(bool kidem, bool ihbar);
  void TavanKoy(KidemTavaniSecimi tavan);

  bool KisiVar() const { return kisi_.has_value(); }
  const KidemFormu& Form() const { return form_; }
  const KidemSonucu& Sonuc() const { return sonuc_; }
  const KidemTavaniGorusu& Tavan() const { return tavan_; }
  KidemCizelgesi Cizelge() const;
  // Why each amount is what it is, the wage too where it comes from the card.
  Iz IzYap() const;

 private:
  KidemGirdisi Girdi() const;
  void UcretiYukle();
  void Hesapla();

  Motor& motor_;
  KidemKosullari kosullar_;
  std::optional<Sicil> kisi_;
  KidemFormu form_;
  KidemMatrahi matrah_;
  KidemTavaniGorusu tavan_;
  std::optional<MevzuatAyi> tavanAyi_;  // that it was looked at for
  bool ucretYazildi_ = false;
  std::optional<int> yazilanIhbarGun_;
  KidemSonucu sonuc_;
};

}  // namespace belvani
