// The wage ledger of a month, "HİZMET ERBABI ÜCRET BORDROSU": a row for each pay record, column totals, and the
// employer's sums below them.
//
// DefterRaporu makes the document out of records that the store has given; it asks nothing itself. The same document
// goes to paper, screen and spreadsheet.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/tables/brd.h"
#include "core/tables/firma.h"
#include "core/tables/sicil.h"
#include "documents/belgetanimi.h"
#include "payroll/hesap/donem.h"
#include "payroll/hesap/kayittoplami.h"
#include "printing/kagit.h"
#include "printing/rapor.h"

namespace belvani {

// A pay record with its person.
struct BordroSatiri {
  Brd brd;
  Sicil sicil;
  std::string tcno;  // of `kimlik`; empty for a person without an identity record
};

// Of whom and when, apart from the rows.
struct DefterBaslik {
  int yil = 0;
  int ay = 0;     // 1 to 12
  Firma firma;    // title, address, numbers, `tersfirma`
  Tek damgaOran;  // stamp duty on wages of the period, per thousand
  int paraonda = 2;
};

// Both ends included; texts compare as Turkish does, without regard to case.
struct MetinAraligi {
  std::string bas;
  std::string bit = "ZZZZ";
};

enum class DefterSirasi {
  Kod,    // by run, then personnel code
  SskNo,  // by run, then social-security number
  Kisi,   // by personnel code, then run
};

// Which records.
struct DefterSecim {
  int yil = 0;
  int ay = 0;
  int noBas = 1;  // run numbers
  int noBit = 99;
  MetinAraligi kod;
  MetinAraligi grup;
  MetinAraligi tip;
  MetinAraligi ozel;
  DefterSirasi sira = DefterSirasi::Kod;

  void AyKoy(int secilenYil, int secilenAy) { std::tie(yil, ay) = std::tuple(secilenYil, secilenAy); }
  BelgeZamani Zaman() const { return {yil, ay, AyMetni(yil, ay)}; }
};

// The ledger has 24 columns. "Adı Soyadı" and "İmza" are always there, for without a name and a place to sign it would
// be no wage ledger; each of the others has a switch, in print order.
constexpr std::size_t DefterAnahtarSayisi = 22;
using DefterAnahtarlari = std::array<bool, DefterAnahtarSayisi>;

// "1" is on, any other character off; what is missing at the end is on.
DefterAnahtarlari DefterAnahtarlariOku(std::string_view metin);
std::string DefterAnahtarMetni(const DefterAnahtarlari& anahtarlar);

// Off at first: "Girişi", "Çıkışı", "İG.", "GV İndir.", "Sendika", "Borç Kes.", "A.G.İ.".
constexpr std::string_view VarsayilanDefterAnahtarlari = "1110011011111101100101";

// Heads of the columns with a switch, in the order of the switches: labels of the check boxes.
std::vector<std::string> DefterAnahtarAdlari();

// What the user chose about the form of the ledger.
struct DefterSecenek {
  DefterAnahtarlari kolonlar = DefterAnahtarlariOku(VarsayilanDefterAnahtarlari);
  bool icmal = true;           // "Bordro Altında İcmal Olsun"
  bool herBordroYeni = false;  // "Her Bordro Yeni Sayfaya Yazılsın": a page for each run number
  SayfaDuzeni duzen;           // lines of a page, "Satırlar Arasında", "Kolonlar Arasında"; for the paper writers
};

// No rows: a document without rows and end block. Throws TutarTasmasi when an amount leaves its range.
Rapor DefterRaporu(const std::vector<BordroSatiri>& satirlar, const DefterBaslik& baslik, const DefterSecenek& secenek);

// From the store. Throws MotorHatasi and TutarTasmasi.
std::unique_ptr<Belge> DefterBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const DefterSecenek& secenek,
                                     const BelgeYazisi& yazi);

// The lines of the employer at the head of wage papers, and the page number.
UstSatir UnvanSatiri(const Firma& firma);
UstSatir IsyeriSatiri(const Firma& firma);
UstSatir VergiDairesiSatiri(const Firma& firma);

// Sums of the employer's side, as the end blocks of wage papers name them.
struct BlokToplami {
  const char* etiket;
  Ifade ifade;
};
inline constexpr BlokToplami IsverenMatrahi{"Toplam SSK İşveren Matrahı :", brd::sskmatrahisveren};
inline constexpr BlokToplami IsverenKesintisi{"Toplam SSK İşveren Kesintisi :", brd::sskkesintiisveren};
inline constexpr BlokToplami IsverenKatkisi{"Toplam İşveren Devlet Katkısı:", brd::katki};
inline constexpr BlokToplami IsverenIssizligi{"Toplam İşsizliik İşveren Kesintisi :", brd::issizisveren};
inline constexpr BlokToplami OdenecekPrim{"Toplam Ödenecek SSK Primi :", toplam::odenecekPrim};

// Adds them up, record by record.
class BlokToplayan {
 public:
  explicit BlokToplayan(std::vector<BlokToplami> tanimlar)
      : tanimlar_(std::move(tanimlar)), tutarlar_(tanimlar_.size()) {}

  void Ekle(const Brd& brd);
  std::vector<BlokSatiri> Satirlar() const;

 private:
  std::vector<BlokToplami> tanimlar_;
  std::vector<Tutar> tutarlar_;
};

// The period of the papers of a month.
BordroDonemi BelgeDonemi(const DefterBaslik& baslik);

// "Ocak 2008 DÖNEMİ"; of a company whose period straddles the month "15.01.2008 İLE 14.02.2008 DÖNEMİ ".
std::string DonemMetni(const BordroDonemi& donem);

}  // namespace belvani
