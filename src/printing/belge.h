// Belge: a paper in all the forms that it has: drawn pages, text for a dot-matrix printer, a table for the screen, a
// spreadsheet. Its print command says nothing of any of them; the print settings choose.
//
//   RaporBelgesi belge(DefterRaporu(…), {.YzcYon = KagitYonu::Yatay});
//   belge.Ayarla(ayar);                             // as the print dialog was left
//   Sonuc<PdfCiktisi> pdf = BelgePdf(belge);
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "core/sonuc.h"
#include "core/tarih.h"
#include "printing/grafikyaprak.h"
#include "printing/grafikyazici.h"
#include "printing/metinalici.h"
#include "printing/yaprak.h"
#include "printing/yzcayar.h"

namespace belvani {

using RaporAlici = std::function<void(const Rapor& parca)>;

class Belge {
 public:
  // What its print dialog starts with.
  explicit Belge(YzcAyarlari ilk) : ayar_(std::move(ilk)) {}
  virtual ~Belge() = default;

  // Heads, lines of a page, orientation, copies and way as the settings say. Without it the document is as it was made.
  // Settings that it does not honour keep what it began with.
  void Ayarla(const YzcAyarlari& ayar);
  const YzcAyarlari& Ayar() const { return ayar_; }
  // The settings that it honours; a fixed form none.
  virtual YzcDestegi Destek() const { return {}; }

  virtual std::string Baslik() const = 0;
  // Its title, also where the settings keep it off the paper, and what it is of ("2009-07"): names its files.
  std::string DosyaBasligi() const;
  void Donem(std::string donem) { donem_ = std::move(donem); }
  virtual bool Bos() const = 0;                    // nothing to print
  virtual bool Kayitsiz() const { return Bos(); }  // made of no records; it may have lines to print all the same
  // The forms. Large ones take their time: `ilerleme` shows it, and stopped it throws Vazgecilmis.
  // The drawn one, as long as this document lives; null for one that has none.
  std::unique_ptr<CizilenBelge> Cizim(Ilerleme* ilerleme = nullptr) const { return CizimYap(ilerleme); }
  // The text, UTF-8; empty for one that has none, or nothing to print.
  std::string Metin(Ilerleme* ilerleme = nullptr) const;
  // The same in pieces, as they are made.
  void MetniVer(const MetinAlici& al) const { MetinYap(al, nullptr); }
  // The spreadsheet file.
  Sonuc<std::string> Xlsx(Ilerleme* ilerleme = nullptr) const { return XlsxYap(ilerleme); }
  // Asked before a text page goes to the printer, of papers for sheets that are put in by hand: where it is not empty,
  // what stands before the page goes out first, and a no ends the print there. Pages count from 1.
  virtual std::string SayfaSozu(int) const { return {}; }
  // Who or what should be on it and is not, in the user's words; told beside the paper. Else empty.
  virtual std::string Eksikler() const { return {}; }
  // Told where the file of a text print cannot be opened.
  virtual std::string MetinAcilamadi() const;
  // Told in place of a text print that does not exist.
  virtual std::string MetinYok() const { return "Bu belge yalnız grafik yazıcıdan alınabilir."; }
  // Told in the place of any print, of a paper that only the screen and other programs have; else empty.
  virtual std::string BaskiYok() const { return {}; }
  // What its user should know about the text form (lines too long for the printer); else empty.
  virtual std::string MetinUyarisi() const { return {}; }
  // For the screen; null for a paper that is no table.
  virtual std::shared_ptr<const Rapor> Tablo() const { return nullptr; }
  // Puts the rows of that table into another order, for all forms of the paper; `sira` names each row once.
  virtual void Sirala(std::span<const int>) {}
  // What it says as rows for other programs (CSV, JSON); null when it is a form.
  virtual std::shared_ptr<const Rapor> Veri() const { return Tablo(); }
  // The same in reports of some of its rows each, at least one; nothing of a form.
  virtual void VeriyiVer(const RaporAlici& al) const {
    if (const auto veri = Veri()) al(*veri);
  }

 private:
  virtual std::unique_ptr<CizilenBelge> CizimYap(Ilerleme* ilerleme) const = 0;
  virtual void MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const = 0;
  virtual Sonuc<std::string> XlsxYap(Ilerleme* ilerleme) const = 0;
  virtual void AyarDegisti() {}

  YzcAyarlari ayar_;
  std::string donem_;
};

// A list.
class RaporBelgesi : public Belge {
 public:
  // `unvan` of the company stands in the head when the settings ask for it and the report does not have it itself.
  RaporBelgesi(Rapor rapor, YzcAyarlari ilk = {}, GrafikDuzeni grafik = {}, SayfaDuzeni sayfa = {},
               std::string unvan = {});

  YzcDestegi Destek() const override;
  std::string Baslik() const override { return kagit_->baslik; }
  bool Bos() const override { return tablo_->Kolonlar().empty(); }  // without rows it still has its heads
  bool Kayitsiz() const override { return tablo_->Satirlar().empty(); }
  std::string MetinUyarisi() const override;
  std::shared_ptr<const Rapor> Tablo() const override { return tablo_; }
  void Sirala(std::span<const int> sira) override;

 private:
  std::unique_ptr<CizilenBelge> CizimYap(Ilerleme* ilerleme) const override;
  void MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const override;
  Sonuc<std::string> XlsxYap(Ilerleme* ilerleme) const override;
  void AyarDegisti() override;

  std::shared_ptr<const Rapor> ilk_;    // in the order that it was made in
  std::shared_ptr<const Rapor> tablo_;  // as it is shown
  std::shared_ptr<const Rapor> kagit_;  // with the head of the settings
  GrafikDuzeni grafik_;
  SayfaDuzeni sayfa_;
  std::string unvan_;
};

// Slips.
class YaprakliBelge final : public Belge {
 public:
  // `veri` gives the slips as a table with a row for each person, in pieces.
  using VeriVeren = std::function<void(const RaporAlici& al)>;
  YaprakliBelge(YaprakBelgesi yapraklar, SayfadaYaprak sayfada, YzcAyarlari ilk = {}, VeriVeren veri = nullptr);

  YzcDestegi Destek() const override { return {.baslik = true, .satir = true}; }
  std::string Baslik() const override { return yapraklar_.baslik; }
  bool Bos() const override { return yapraklar_.yapraklar.empty(); }
  std::shared_ptr<const Rapor> Veri() const override;
  void VeriyiVer(const RaporAlici& al) const override;

 private:
  std::unique_ptr<CizilenBelge> CizimYap(Ilerleme* ilerleme) const override;
  void MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const override;
  Sonuc<std::string> XlsxYap(Ilerleme* ilerleme) const override;
  void AyarDegisti() override;

  YaprakBelgesi yapraklar_;
  SayfadaYaprak sayfada_;
  VeriVeren veri_;
};

// The report's head as the settings want it: title, day of printing, page number, company. What is off and stands in
// the report goes; what is on and does not stand there comes.
Rapor BasligiAyarla(Rapor rapor, const YzcAyarlari& ayar, const std::string& unvan, Tarih bugun);

struct PdfCiktisi {
  std::string baytlar;  // empty: nothing to print
  std::string uyari;
};

// The pages of the way that the settings choose: of the text way, the text pages as they would print.
std::unique_ptr<CizilenBelge> BelgeSayfalari(const Belge& belge, Ilerleme* ilerleme = nullptr);
Sonuc<PdfCiktisi> BelgePdf(const Belge& belge, Ilerleme* ilerleme = nullptr);

// The text form as the bytes that a dot-matrix printer takes; empty without any.
std::string BelgeHam(const Belge& belge, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
