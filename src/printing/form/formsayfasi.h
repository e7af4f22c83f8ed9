// FormSayfasi: a page of a fixed form, as data: its frame and words, and the values written into it.
//
// The frame (boxes, lines, words, pictures) is the paper as the law prints it. The values are named, so that a screen
// can show them over the drawn form, move them and change their texts; what it changed is drawn the same way.
//
//   FormKurucu form(A4(KagitYonu::Dikey));
//   form.Bolum({10, 10, 60, 8}, "1-Kimlik", 9);
//   form.EtiketliKutular({10, 18}, 10, {{30, "Adı", EtiketUstte, "adi", "Işıl"}, {30, "İli", 12, "il", "Bursa"}});
//   form.Basamaklar("sskno", {.x = 30, .y = 11, .sayi = 7, .en = 5, .boy = 6}, "1034567");
//   FormCiz(form.Sayfa(), tuval);
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/tuval.h"
#include "printing/uretilendizi.h"

namespace belvani {

struct FormYazisi {
  Dikdortgen yer;
  std::string metin;
  YaziBicimi yazi;
  MetinHizasi hiza = MetinHizasi::Sol;
  bool sayfanin = false;  // of this page alone: "3. SAYFA"
};

struct FormCizgisi {
  Nokta bas;
  Nokta son;
  double kalinlik = InceCizgi;
};

struct FormKutusu {
  Dikdortgen yer;
  double kalinlik = InceCizgi;
};

struct FormResmi {
  Dikdortgen yer;
  std::string png;
};

struct FormAlani {
  std::string ad;  // only one of this name on a page
  Dikdortgen yer;
  std::string deger;
  YaziBicimi yazi;
  MetinHizasi hiza = MetinHizasi::Sol;
  int hucre = 0;  // not 0: one letter a cell, `yer` being that many cells of equal width
};

struct FormSayfasi {
  KagitBoyu boy;
  std::vector<FormKutusu> kutular;
  std::vector<FormCizgisi> cizgiler;
  std::vector<FormResmi> resimler;
  std::vector<FormYazisi> yazilar;
  std::vector<FormAlani> alanlar;
};

using FormSayfalari = UretilenDizi<FormSayfasi>;

// One page, from SayfaBasla to SayfaBitir. Words and values stand in the middle of the height of their boxes; what is
// wider than its box is made narrower, never cut. A value with more letters than cells is written as one text over all
// of them, narrow enough. The frame and the words that pages have in common are kept once (see Tuval).
void FormCiz(const FormSayfasi& sayfa, Tuval& tuval);

// Cells of equal size, side by side, for one digit each.
struct HucreDizisi {
  double x = 0;
  double y = 0;
  int sayi = 0;
  double en = 0;   // of a cell
  double boy = 0;  // of a cell

  Dikdortgen Tamami() const { return {x, y, sayi * en, boy}; }
};

// A caption and the value of a field in one frame.
constexpr double EtiketUstte = 0;
struct EtiketliKutu {
  double en = 0;
  std::string_view etiket;
  double etiketEni = EtiketUstte;  // room of the caption on the left; EtiketUstte: it stands above the value
  std::string ad;
  std::string deger;
  MetinHizasi hiza = MetinHizasi::Sol;
};

// Puts a page together. Words and values take the letters that are set at the time.
class FormKurucu {
 public:
  explicit FormKurucu(KagitBoyu boy) { sayfa_.boy = boy; }

  YaziBicimi etiketYazisi{.punto = 7};
  YaziBicimi degerYazisi{.punto = 9, .kalinlik = YaziKalinligi::Kalin};
  double pay = 1.5;  // between a frame and what stands in it

  void Kutu(const Dikdortgen& yer, double kalinlik = InceCizgi);
  void Cizgi(Nokta bas, Nokta son, double kalinlik = InceCizgi);
  void Resim(const Dikdortgen& yer, std::string_view png);
  void Etiket(const Dikdortgen& yer, std::string_view metin, MetinHizasi hiza = MetinHizasi::Sol);
  void Alan(std::string_view ad, const Dikdortgen& yer, std::string_view deger, MetinHizasi hiza = MetinHizasi::Sol);

  // Bold words in a box, without and with its frame.
  void Baslik(const Dikdortgen& kutu, std::string_view metin, double punto, MetinHizasi hiza = MetinHizasi::Orta);
  void Bolum(const Dikdortgen& kutu, std::string_view metin, double punto, MetinHizasi hiza = MetinHizasi::Orta);
  // The same with words that the form's other pages do not have.
  void SayfaAdi(const Dikdortgen& kutu, std::string_view metin, double punto);

  // A frame with its caption in the upper line.
  void EtiketliCerceve(const Dikdortgen& kutu, std::string_view etiket);
  // Captioned boxes of one height, side by side. Gives the y below them.
  double EtiketliKutular(Nokta solUst, double boy, const std::vector<EtiketliKutu>& kutular);

  // The cells with their frame, and a value in them from the left, or so that its last letter is in the last cell.
  void Basamaklar(std::string_view ad, const HucreDizisi& hucreler, std::string_view deger,
                  MetinHizasi hiza = MetinHizasi::Sag);

  // A box to tick: "X" in it, or nothing.
  void Isaret(std::string_view ad, const Dikdortgen& yer, bool isaretli);

  // The frame of a table with its inner lines; gives the whole of it.
  Dikdortgen Tablo(Nokta solUst, const std::vector<double>& kolonEnleri, double satirBoyu, int satirSayisi);

  // What is left of a box between the blanks at its sides.
  Dikdortgen Icerisi(const Dikdortgen& kutu) const { return {kutu.x + pay, kutu.y, kutu.en - 2 * pay, kutu.boy}; }

  const FormSayfasi& Sayfa() const { return sayfa_; }

 private:
  FormSayfasi sayfa_;
};

}  // namespace belvani
