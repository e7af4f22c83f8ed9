// BordroGirisi: the entry of a month's payroll person by person: what the payroll screen holds and decides, without
// the screen.
//
//   KisiYok --KodAl, Git--> KisiSecili --Kapat--> Kaydedildi --KodAl, Git--> KisiSecili
//                              | KayitSil, BordroSil, AyDegistir, a code that is none
//                              +--> KisiYok
//
// While a person is selected, the fields of entry edit Giris(), and Hesapla() is run whenever one of them is left; the
// other fields show Sonuc() and Toplamlar(). Nothing typed is lost by a calculation that cannot be made, a failed save
// or a refused closing. Bringing a person up costs four indexed queries, a calculation none.
// Example: code "12", 20 days worked of 30, reason "01-İstirahat": 11 unpaid days in January, and Kapat() saves.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/silme.h"
#include "core/store/yon.h"
#include "payroll/hazirlik/hazirlik.h"
#include "payroll/hazirlik/mevzuatsorusu.h"
#include "payroll/hesap/bordro.h"

namespace belvani {

// The fields of the screen, as the rules know them.
enum class BordroAlani : std::uint8_t {
  Sonuc,  // shown, not entered
  Kod,
  NormalGun,
  HaftaTatili,
  UcretliIzin,
  ResmiTatil,
  Mazeret,
  Hasta,
  Mesai1,
  Mesai2,
  Mesai3,
  Yardim1,
  Yardim11 = Yardim1 + YardimSayisi - 1,
  EksikSebep,
  UcretsizIzin,
  RaporCalismadi,
  Oran1,  // the rates, in the order of OranKolonlari
  Oran5 = Oran1 + OranKolonlari.size() - 1,
};

// The lines of the flags of a group: earnings (days and hours) and allowances, from 0; none for another field.
constexpr BordroAlani KazancAlani(std::size_t sira) {
  return BordroAlani(std::size_t(BordroAlani::NormalGun) + sira);
}
constexpr BordroAlani YardimAlani(std::size_t sira) {
  return BordroAlani(std::size_t(BordroAlani::Yardim1) + sira);
}
std::optional<std::size_t> KazancSirasi(BordroAlani alan);
std::optional<std::size_t> YardimSirasi(BordroAlani alan);
// A rate: shown among the results, and overtyped where the user knows better.
constexpr BordroAlani OranAlani(std::size_t sira) {
  return BordroAlani(std::size_t(BordroAlani::Oran1) + sira);
}
constexpr bool OranMi(BordroAlani alan) {
  return alan >= BordroAlani::Oran1;
}
// An earning or allowance line, or a field of the missing days: to have been there is to have entered the person. A
// rate counts when it was changed.
constexpr bool GirisAlani(BordroAlani alan) {
  return alan > BordroAlani::Kod && !OranMi(alan);
}

// Where the "Puantaj " button takes the month from. Only the template does anything.
enum class PuantajKaynagi { ElIle, Sablondan, Puantajdan, Pdks };
inline constexpr std::array<std::string_view, 4> PuantajKaynaklari{"El ile", "Şablondan", "Puantajdan", "P.D.K.S.'den"};

enum class KodSonucu {
  Bos,         // no code, or no further person in that direction: nothing has changed
  Bilinmiyor,  // nobody has it; the screen is cleared
  DonemDisi,   // the person does not belong to the period; the screen is cleared
  Yuklendi,
  Yuklenemedi,  // the store could not be read, the template is out of range, or there is no law
};

enum class KapanisSonucu {
  Kapanmadi,       // no open entry, or nobody has entered it
  SonrakiVar,      // Kod() is the next person's code
  Bitti,           // nobody is left: the screen closes
  KaldiEksikGun,   // days are missing without a reason, or the unpaid days do not fill the month
  KaldiGunFazla,   // more days than the person may work
  KaldiNetsiz,     // net not above zero
  KaldiHesapsiz,   // the calculation cannot be made
  KaydetmeHatasi,  // the record was not saved; what was typed is kept
  YenidenGeldi,    // another user has changed the record, and the user looks at that one now
  OkumaHatasi,     // saved, but the next person could not be read
};

// Nobody is being entered any more, or nobody had begun to be.
constexpr bool KapanisTamam(KapanisSonucu sonuc) {
  return sonuc <= KapanisSonucu::Bitti;
}

// Where the focus goes after a reason for missing days was chosen.
enum class SebepSonrasi { KodAlanina, UcretsizIzne };

// The panel beside a person who cannot work the whole month.
struct CalismaUyarisi {
  std::string girisTarihi;  // "??.??.????" when there is none
  std::string cikisTarihi;  // "Çalışıyor" when there is none
  int gun = 0;              // "Çalışabileceği Gün"
};

// The panel of what lowered the bases; shown when `toplam` is above zero.
struct MuafiyetPaneli {
  Tutar muaf;     // exempt from the social-security base
  Tutar indirim;  // disability and the three deductions
  Tutar toplam;
};

// The fields that are shown and not entered, by number; most are kept in no record.
struct EkranToplamlari {
  Tutar kazanclar;      // 21 "Kazançlar"
  Tutar yardimlar;      // 22 "Yardımlar"
  Tutar brut;           // 23 "TOPLAM"
  Tutar ssk;            // 24 "S.S.K."
  Tutar vergiler;       // 25 "G.V.+D.V."
  Tutar yasalKesinti;   // 26 the two before
  Tutar ozelKesinti;    // 27 "Ö.Kes."
  Tutar net;            // 28 "NET"; 0 stands for an empty field
  Tutar isciToplam;     // 41
  Tutar isverenToplam;  // 44
  Tutar kumuleMatrah;   // 45
  Tutar kumuleVergi;    // 46
  int SskGun = 0;       // 47 "Toplam Gün"
  Tutar agi;            // 50 "A.G.İ."
  MuafiyetPaneli panel;
};

class BordroGirisi {
 public:
  enum class Hal { KisiYok, KisiSecili, Kaydedildi };

  BordroGirisi(Oturum& oturum, ParametreDeposu& parametreler, Bildirim& bildirim);
  BordroGirisi(const BordroGirisi&) = delete;
  BordroGirisi& operator=(const BordroGirisi&) = delete;

  // For the session's period. Reads the template anew, and writes the built-in one where there is none; over a broken
  // one only when the user wants it. Gives what he should know; a fault where the company has no definitions or its
  // store cannot be read.
  belvani::Sonuc<Kusurlar> Ac();
  // Another month of the year: the screen is cleared, the code stays.
  void AyDegistir(int ay);
  // Asks about the installed law where it is not that of the month; false: nothing may be calculated with it. Asked
  // anew before people come up and before saving, for a colleague may have fetched another.
  Gelisme<bool> MevzuatUygun();
  // Fetches the law of the month.
  Gelisme<bool> MevzuatiGetir();
  void MevzuatNasilGetirilir(Yurutucu yurut) { mevzuat_.yurut = std::move(yurut); }
  // The run numbers found in the month, then "Yeni".
  std::vector<std::string> BordroNolari();
  // What is to be told when the screen closes and somebody has no record.
  std::optional<Kusur> KapanisDenetimi();

  // The code was typed, and an entry field entered. The person already being entered stays as he is.
  Gelisme<KodSonucu> KodAl(std::string_view metin);
  // Home, PgUp, PgDn, End on the code field: from the last code on.
  Gelisme<KodSonucu> Git(Yon yon);

  // The focus came to a field.
  void AlanaGirildi(BordroAlani alan);
  // A field was left. Gives why the calculation cannot be made, nothing when it was; the net is empty then, the other
  // results stay as they were.
  const std::optional<Kusur>& Hesapla();
  // Position in EksikSebepleri.
  SebepSonrasi SebepSec(int sira);
  // F9 on an allowance field: what stands in it is net and becomes gross.
  Durum NettenBruteCevir(BordroAlani alan);
  // At most this may be taken for a debt: down to a net of zero.
  Tutar BorcLimiti() const;
  // The debt dialog confirms. A debt over the limit is a fault, and the dialog stays open.
  Durum BorcAyarla(Tutar borc);

  // The focus is back on the code field, from wherever it was last: an entry whose fields were visited, or that has
  // changed since the person came up, is checked, saved, and the next person sought.
  Gelisme<KapanisSonucu> Kapat();
  // The entry field that was visited last; Kod when none was.
  BordroAlani SonGirisAlani() const { return sonAlan_; }
  // F7: the person's record of the month. Once it is deleted, the screen is cleared; so with the next two.
  belvani::Sonuc<Silme> KayitSil();
  // Ctrl+F7: all records of the month.
  belvani::Sonuc<Silme> AyinBordrosunuSil(const Yurutucu& yurut = HemenYurut);
  // Ctrl+F8: the month as it was before it was deleted or prepared anew; gives the number of its records, nothing when
  // the answer was no.
  belvani::Sonuc<std::optional<int>> AyiGeriAl(const Yurutucu& yurut = HemenYurut);
  // Before the next: asks where it would take typed payments away. False: the month shall stay.
  belvani::Sonuc<bool> MahsupSilinsinMi();
  // The "Puantaj " button with the template: everybody's month, without a question or a message. The failure is that
  // there is no law to calculate with, or that the store did not take it.
  belvani::Sonuc<HazirlikSonucu> SablondanHazirla(Ilerleme* ilerleme = nullptr);

  Hal Durumu() const { return hal_; }
  const std::string& Kod() const { return kod_; }
  const BordroDonemi& Donem() const { return kosullar_.donem; }
  const Kosullar& Kosul() const { return kosullar_; }
  std::string Baslik() const;         // "Işıl Çağlar ( SSK No:34-1)"
  std::string CalismaSatiri() const;  // "Personel 30 Gün Çalışmış.."
  // What a paper says of an amount of the screen instead; "" where they agree, or nobody is calculated.
  std::string KagittakiTutar(std::string_view alan) const;
  // What the user should know of the person and his rates; "" when there is nothing.
  std::string KisiUyarisi() const;
  const std::optional<CalismaUyarisi>& CalismaPaneli() const { return uyari_; }
  // What saving would take away of the person's record; "" when it takes nothing.
  std::string KaydinKaybi() const;
  // The entry differs from what came up.
  bool Yazildi() const { return hal_ == Hal::KisiSecili && g_.giris != acilis_; }
  bool KayitVar() const { return kisi_.kayit.has_value(); }
  int CalismaGun() const { return g_.CalismaGun; }
  int AyGunu() const { return ayGunu_; }
  // An earning or allowance line: open for this person by the flags of his group.
  bool AlanAcik(BordroAlani alan) const;

  Brd& Giris() { return g_.giris; }
  const Brd& Giris() const { return g_.giris; }
  const BordroSonucu& Sonuc() const { return sonuc_; }
  const EkranToplamlari& Toplamlar() const { return toplamlar_; }
  // Why it cannot be made, as Hesapla has told.
  const std::optional<Kusur>& HesapKusuru() const { return kusur_; }
  // The steps of the present calculation ("Neden bu tutar?"); made when asked for.
  Iz HesapIzi() const;

 private:
  enum class DonemDisiMetni { Gosterilir, Gosterilmez };

  void ParametreleriTazele();
  Gelisme<KodSonucu> Getir(const std::string& kod, DonemDisiMetni metin);
  Gelisme<KodSonucu> KisiyiGetir(const std::string& kod, DonemDisiMetni metin);
  Gelisme<KodSonucu> KisiyiAc(KisiVerisi kisi, int CalismaGun);
  void EkranTemizle();
  Durum HesaplaVeGoster();
  bool EksikGunTamam(Kusurlar& sozler);
  // Why the entry cannot be closed as it is; nothing when it can. What is to be told goes to `sozler`.
  std::optional<KapanisSonucu> Kalma(Kusurlar& sozler);
  // Asks, after what is to be told by now.
  bool SoyleyipSor(Kusurlar& sozler, const std::string& soru);
  void SablonuYukle();
  // Nothing when it is saved, or why the entry goes on.
  std::optional<Gelisme<KapanisSonucu>> Kaydet();
  // `sonrakiler`: the cards behind the person, which were sent for.
  Gelisme<KapanisSonucu> SonrakineGec(belvani::Sonuc<std::unique_ptr<Komut>> sonrakiler);
  belvani::Sonuc<std::int64_t> KayitSayisi();  // of the month

  Oturum& o_;
  ParametreDeposu& parametreler_;
  Bildirim& bildirim_;
  MevzuatSorusu mevzuat_;
  Kosullar kosullar_;
  std::uint64_t surum_ = 0;  // of the parameters in kosullar_

  Hal hal_ = Hal::KisiYok;
  std::string kod_;
  KisiVerisi kisi_;
  BordroGirdi g_;  // points into kisi_ and kosullar_
  Brd acilis_;     // the entry as the person came up
  BordroAlani sonAlan_ = BordroAlani::Kod;
  int ayGunu_ = 0;
  std::optional<CalismaUyarisi> uyari_;
  BordroSonucu sonuc_;
  EkranToplamlari toplamlar_;
  std::optional<Kusur> kusur_;
};

}  // namespace belvani
