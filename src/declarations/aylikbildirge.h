// AylikBildirge: the monthly declaration of a company, from the selection to the file: what its screen holds and
// decides, without the screen.
//
//   Ac --> Secim() --Hesapla--> rows, totals, premiums --SatirYaz, SatirSil, ToplamlariYaz--> the same, edited
//                                   |                                                           |
//                                   +-- XmlHazirla, XmlYaz, KagitKosullari <--------------------+
//
// Hesapla makes everything anew out of the store and drops what was edited; the store itself is never written. A month
// of 10,000 people costs two queries. What cannot be done is told, and the state stays usable.
// Example: all statuses and laws of July 2009, a row's days changed from 30 to 29: the totals follow the grid, and the
// file says 29.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/session/oturum.h"
#include "declarations/bildirgexml.h"

namespace belvani {

class AylikBildirge {
 public:
  // `yasal` is read at each calculation and must outlive this.
  AylikBildirge(Oturum& oturum, const YasalParametreler& yasal, Bildirim& bildirim);
  AylikBildirge(const AylikBildirge&) = delete;
  AylikBildirge& operator=(const AylikBildirge&) = delete;

  // The lists, the session's month, everything selected, the company's work-accident rate. False: the store cannot be
  // read. A company without definitions is told of and has a rate of 0.
  bool Ac();

  // "00-Tümü", then the statuses: "01-Tüm Sigorta Kolları".
  const std::vector<std::string>& BelgeTurleri() const { return belgeTurleri_; }
  // "Tümü", then the laws of the people.
  const std::vector<std::string>& KanunSecenekleri() const { return kanunlar_; }
  // The screen writes its choices here; positions must be of the lists.
  BildirgeSecimi& Secim() { return bildirge_.secim; }
  // The chosen document type; 0 for all.
  int BelgeTuru() const;

  // "Hesapla", F5, and every change of a list. False: nothing could be read, and grid and totals are empty.
  bool Hesapla();

  const Bildirge& Tamami() const { return bildirge_; }

  // A row was edited, behind the last one: a new row. Totals and premiums follow. False: an amount leaves its range.
  bool SatirYaz(std::size_t sira, BildirgeSatiri satir);
  bool SatirSil(std::size_t sira);
  // The user typed into the totals: they are priced as they stand.
  bool ToplamlariYaz(const BildirgeToplamlari& toplamlar);

  // What the lines of the branches show beside their bases: "12.5", "1,250.00"; an amount of zero shows nothing.
  std::string OranMetni(std::size_t brans) const;
  std::string PrimMetni(std::size_t brans) const;
  std::string GenelToplamMetni() const;

  // The company's side, read anew.
  IsyeriBilgileri Isyeri();
  bool BildirgeKontrol();

  // " E-Bildirge Hazırla ", up to the choice of the file: there are rows, of all statuses together.
  bool XmlKosullari();
  // Where the choice of the file starts.
  std::string XmlYolu() const;
  // The bytes of the file; nothing when a check fails, or when the user does not want them with values that would make
  // the file unreadable. XmlYaz checks again, so a question that was answered yes before is asked once more.
  std::optional<std::string> XmlHazirla();
  // Into the file, whole or not at all: a failed write leaves what was there.
  bool XmlYaz(const std::string& dosya);
  // Asked after XmlYaz; yes opens the web page on which the user sends the file.
  static constexpr const char* GonderimSorusu = "E-Bildirgeyi Göndermek İstermisiniz ?";

  enum class Cikti { Kagit, Tablo };
  enum class CiktiKarari { Yok, BosForm, Bildirge };
  // Paper and spreadsheet: of one status and one law, and checked; without rows an empty form if the user wants one.
  CiktiKarari KagitKosullari(Cikti cikti);

 private:
  void OranlariYukle();
  void AylikBildirgeHesapla();
  bool PrimleriHesapla();
  bool ToplamlariYenile();
  template <class Is>
  bool Koru(Is&& is);
  Yuvarlayici Yuvarla() const { return Yuvarlayici(o_.firma.paraonda); }

  Oturum& o_;
  const YasalParametreler& yasal_;
  Bildirim& bildirim_;
  std::vector<std::string> belgeTurleri_;
  std::vector<std::string> kanunlar_;
  Tek tehlikeOrani_;
  Bildirge bildirge_;
};

}  // namespace belvani
