// AylikBildirge: the monthly declaration of a company, from the selection to the file: what its screen holds and
// decides, without the screen.
//
//   Ac --> Secim() --Hesapla--> rows, totals, premiums --SatirEkle, SatirYaz, SatirSil, ToplamYaz--> the same, edited
//                                   |                                                           |
//                                   +-- XmlHazirla, XmlYaz, KagitKosullari <--------------------+
//
// Hesapla makes everything anew out of the store and drops what was edited; the store itself is never written. A month
// of 10,000 people costs two queries. What cannot be done comes back as a fault, and the state stays usable; only what
// is the user's to decide, and what he is told on the way, goes through the Bildirim: also that a grid of another
// selection is calculated anew before it leaves.
// Example: all statuses and laws of July 2009, a row's days changed from 30 to 29: the totals follow the grid, and the
// file says 29.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/asama.h"
#include "core/session/oturum.h"
#include "declarations/bildirgexml.h"

namespace belvani {

// Document type of working pensioners, under the support premium.
constexpr int DestekPrimiBelgesi = 2;

class AylikBildirge {
 public:
  // `yasal` is read at each calculation and must outlive this.
  AylikBildirge(Oturum& oturum, const YasalParametreler& yasal, Bildirim& bildirim);
  AylikBildirge(const AylikBildirge&) = delete;
  AylikBildirge& operator=(const AylikBildirge&) = delete;

  // The lists, the session's month, everything selected, the company's work-accident rate. A company without
  // definitions is a fault in the list that is given, and has a rate of 0.
  Sonuc<Kusurlar> Ac();

  // "00-Tümü", then the statuses: "01-Tüm Sigorta Kolları".
  const std::vector<std::string>& BelgeTurleri() const { return belgeTurleri_; }
  // "Tümü", then the laws of the people.
  const std::vector<std::string>& KanunSecenekleri() const { return kanunlar_; }
  // The screen writes its choices here; positions must be of the lists.
  BildirgeSecimi& Secim() { return bildirge_.secim; }
  // The chosen document type; 0 for all.
  int BelgeTuru() const;
  // Chooses a type by its number, where the lists have it, with its rates.
  void BelgeTuruSec(int no);

  // "Hesapla", F5, and every change of a list. After a fault, and when it was stopped (Vazgecilmis),
  // grid and totals are empty.
  Durum Hesapla(Ilerleme* ilerleme = nullptr);

  // The totals as they were calculated; what stands in Tamami() differs after an edit.
  const BildirgeToplamlari& HesaplananToplamlar() const { return hesaplananToplamlar_; }
  // Why the grid is not what a calculation would give now: "Liste Temmuz 2009, 00-Tümü, Tümü için hesaplandı"; the
  // nature of the document makes no difference. Empty while it is, and before any calculation.
  std::string EskimeMetni() const;
  // Asked before a calculation that would drop edits; without any it is true.
  bool HesaplansinMi();
  // Asked before edits go with their screen.
  bool BirakilsinMi();
  // Asked before whatever leaves an outdated grid. Nothing may leave one that was made for another selection.
  enum class Tazeleme { Gerekmez, Hesaplanir, Vazgecildi };
  Tazeleme TazelensinMi();

  const Bildirge& Tamami() const { return bildirge_; }

  // The row of this number; null when there is none. Valid until the rows change.
  const BildirgeSatiri* Satir(int no) const;
  // The user edits rows, each named by its number. Totals and premiums follow. An edit with which an amount would leave
  // its range is refused and changes nothing; nor does one that leaves the row as it was.
  Sonuc<int> SatirEkle(BildirgeSatiri satir);  // gives its number
  Durum SatirYaz(const BildirgeSatiri& satir);
  Durum SatirSil(int no);
  // He typed into the totals: they are priced as they stand. After a fault there are no premiums.
  Durum ToplamYaz(const BildirgeToplamlari& toplamlar);

  // What the lines of the branches show beside their bases: "12.5", "1,250.00"; an amount of zero shows nothing.
  std::string OranMetni(std::size_t brans) const;
  std::string PrimMetni(std::size_t brans) const;
  std::string GenelToplamMetni() const;

  // What the user did with what he was asked.
  enum class Karar { Devam, Vazgecildi };

  // All checks, in their order, up to the first fault; what he may let through is asked.
  Sonuc<Karar> BildirgeKontrol();
  // What the last of these checks and the way out behind it have found, all of it, at the fields of the people's
  // records: faults of rows, values that spoil the file, wages below zero.
  const Kusurlar& Sorunlar() const { return sorunlar_; }
  // What the last calculation has found: people who are left out, each at the record that he lacks.
  Kusurlar Uyarilar() const;

  // " E-Bildirge Hazırla ", up to the choice of the file: there are rows, of all statuses together.
  Durum XmlKosullari() const;
  // Where the choice of the file starts.
  std::string XmlYolu() const;
  // The bytes of the file, made by `yurut`, with the questions before and after; none when the user gave up, as he may
  // over values that would make the file unreadable. XmlYaz checks again, so a question that was answered yes before is
  // asked once more.
  Sonuc<std::optional<std::string>> XmlHazirla(const Yurutucu& yurut = HemenYurut);
  // Into the file, whole or not at all: a failed write leaves what was there.
  Sonuc<Karar> XmlYaz(const std::string& dosya, const Yurutucu& yurut = HemenYurut);
  // Told when XmlYaz has written it.
  static constexpr const char* XmlHazirlandi = "XML Dosya Hazırlandı";
  // Asked after that; yes opens the web page on which the user sends the file.
  static constexpr const char* GonderimSorusu = "E-Bildirgeyi Göndermek İstermisiniz ?";

  enum class Cikti { Kagit, Tablo };
  enum class CiktiKarari { Yok, BosForm, Bildirge };
  // Paper and spreadsheet: of one status and one law, and checked; without rows an empty form if the user wants one.
  Sonuc<CiktiKarari> KagitKosullari(Cikti cikti);

 private:
  void OranlariYukle();
  void AylikBildirgeHesapla(Ilerleme* ilerleme);
  Durum PrimleriHesapla();
  void EksiUcretleriSoyle();
  bool SecimDegisti() const;
  bool MevzuatDegisti() const;
  template <class Is>
  Durum Duzenle(Is&& is);
  IsyeriBilgileri Isyeri();
  Yuvarlayici Yuvarla() const { return Yuvarlayici(o_.firma.paraonda); }

  Oturum& o_;
  const YasalParametreler& yasal_;
  Bildirim& bildirim_;
  std::vector<std::string> belgeTurleri_;
  std::vector<std::string> kanunlar_;
  Tek tehlikeOrani_;
  Bildirge bildirge_;
  Kusurlar sorunlar_;
  // What the grid was calculated with; none while there is none.
  struct Hesaplanan {
    BildirgeSecimi secim;
    YasalOranlar oranlar;
    HesapTurleri turler;
  };
  std::optional<Hesaplanan> hesaplanan_;
  BildirgeToplamlari hesaplananToplamlar_;
  bool duzeltildi_ = false;
};

}  // namespace belvani
