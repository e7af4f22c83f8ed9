// belvani-sablon DOSYA: draws the spreadsheet form of the monthly declaration, which the program then fills
// (bildirgetablosu.h), as data/sablon/aylik.xlsx is shipped.
//
// The sheet is a grid of small cells, 12 by 11 pixels, which A4 holds at a third of its size, letters with it; boxes are
// merged of them so that each address that is filled is the upper left cell of a box. Equal runs give equal bytes.
#include <iostream>
#include <string>
#include <xlsxwriter.h>

#include "declarations/sablonyerleri.h"

namespace {

constexpr int SonKolon = 245;
constexpr int SonSatir = 190;
constexpr int HucreEni = 12;       // pixels; narrower columns are not as wide in every program
constexpr double HucreBoyu = 8.7;  // points
constexpr int IlkKolon = 5;

// Counted from 1, both ends inside.
struct Yer {
  int satir = 0;
  int kolon = 0;
  int sonSatir = 0;
  int sonKolon = 0;
};

// A Sayi and a Tutar show zero as nothing, a Sayac and a Toplam show it.
enum class Bicim { Baslik, Bolum, Etiket, SolEtiket, Cumle, Metin, OrtaMetin, Sayi, Sayac, Tutar, Toplam, Oran };

struct Taraf {
  int ilk, ikinci, son;
};

// Of the people; a caption of the upper line spans from this column to `ustSon`.
struct Kolon {
  int ilk, son;
  int altSatir;
  const char* baslik;
  Bicim bicim;
  const char* ustBaslik = "";
  int ustSon = 0;
};
constexpr int KisiSayisi = 10;
constexpr int GunKolonu = 107;         // the first and the last that are added up
constexpr int IzinUcretiKolonu = 172;  // ends here
constexpr Kolon kolonlar[] = {
    {5, 8, 94, "Sı\nra", Bicim::OrtaMetin},
    {9, 41, 94, "T.C. Kimlik No", Bicim::Metin},
    {42, 65, 94, "Adı", Bicim::Metin},
    {66, 89, 94, "Soyadı", Bicim::Metin},
    {90, 106, 94, "İlk Soyadı", Bicim::Metin},
    {107, 113, 94, "Gün\nSayısı", Bicim::Sayi},
    {114, 130, 98, "Ücret", Bicim::Tutar, "Prime Esas Kazanç", 148},
    {131, 148, 98, "Prim, İkramiye", Bicim::Tutar},
    {149, 158, 98, "Gün", Bicim::Sayi, "Ücretli  İzin", 172},
    {159, 172, 98, "Ücreti", Bicim::Tutar},
    {173, 183, 98, "Gün", Bicim::OrtaMetin, "İşe Giriş Tarihi", 194},
    {184, 194, 98, "Ay", Bicim::OrtaMetin},
    {195, 205, 98, "Gün", Bicim::OrtaMetin, "İşten Çıkış Tarihi", 216},
    {206, 216, 98, "Ay", Bicim::OrtaMetin},
    {217, 233, 94, "Eksik Gün\nNedeni", Bicim::Sayi},
    {234, 245, 94, "Çıkış\nNedeni", Bicim::Sayi},
};

class Sablon {
 public:
  explicit Sablon(const char* dosya)
      : kitap_(workbook_new(dosya)), sayfa_(kitap_ == nullptr ? nullptr : workbook_add_worksheet(kitap_, "Bildirge")) {}

  bool Yaz() {
    if (sayfa_ == nullptr) return false;
    // Widths of columns are counted in digits of the first format's font: one that every system has, or its equal.
    lxw_format* ilk = STAILQ_FIRST(kitap_->formats);
    format_set_font_name(ilk, "Arial");
    format_set_font_size(ilk, 10);
    SayfaDuzeni();
    Bas();
    Taraflar();
    Toplamlar();
    Sigortalilar();
    Ayak();
    lxw_doc_properties bilgi{};
    bilgi.created = 1;  // not the time of the run
    workbook_set_properties(kitap_, &bilgi);
    return kusur_ == LXW_NO_ERROR && workbook_close(kitap_) == LXW_NO_ERROR;
  }

 private:
  void SayfaDuzeni() {
    worksheet_set_column_pixels(sayfa_, 0, SonKolon - 1, HucreEni, nullptr);
    worksheet_set_default_row(sayfa_, HucreBoyu, LXW_FALSE);
    worksheet_gridlines(sayfa_, LXW_HIDE_ALL_GRIDLINES);
    worksheet_set_landscape(sayfa_);
    worksheet_set_paper(sayfa_, 9);  // A4
    worksheet_set_margins(sayfa_, 0.3, 0.3, 0.3, 0.3);
    worksheet_center_horizontally(sayfa_);
    worksheet_fit_to_pages(sayfa_, 1, 1);
    worksheet_set_zoom(sayfa_, 55);
    worksheet_print_area(sayfa_, 0, IlkKolon - 2, SonSatir - 1, SonKolon);
  }

  lxw_format* Stil(Bicim bicim) {
    lxw_format*& stil = stiller_[std::size_t(bicim)];
    if (stil == nullptr) stil = YeniStil(bicim);
    return stil;
  }

  lxw_format* YeniStil(Bicim bicim) {
    lxw_format* stil = workbook_add_format(kitap_);
    const bool etiket = bicim <= Bicim::Cumle;
    format_set_font_name(stil, "Arial");
    format_set_font_size(stil, etiket ? 12 : 15);
    format_set_border(stil, LXW_BORDER_THIN);
    format_set_align(stil, LXW_ALIGN_VERTICAL_CENTER);
    etiket ? format_set_text_wrap(stil) : format_set_shrink(stil);
    switch (bicim) {
      case Bicim::Baslik:
        format_set_font_size(stil, 26);
        [[fallthrough]];
      case Bicim::Bolum:
        format_set_bold(stil);
        [[fallthrough]];
      case Bicim::Etiket:
        format_set_align(stil, LXW_ALIGN_CENTER);
        break;
      case Bicim::SolEtiket:
      case Bicim::Cumle:
        format_set_indent(stil, 1);
        break;
      case Bicim::OrtaMetin:
        format_set_align(stil, LXW_ALIGN_CENTER);
        format_set_num_format(stil, "@");
        break;
      case Bicim::Metin:
        format_set_indent(stil, 1);
        format_set_num_format(stil, "@");
        break;
      case Bicim::Sayi:
        format_set_align(stil, LXW_ALIGN_CENTER);
        format_set_num_format(stil, "0;-0;");
        break;
      case Bicim::Sayac:
        format_set_align(stil, LXW_ALIGN_CENTER);
        format_set_num_format(stil, "0");
        break;
      case Bicim::Tutar:
        format_set_num_format(stil, "#,##0.00;-#,##0.00;");
        break;
      case Bicim::Toplam:
        format_set_num_format(stil, "#,##0.00");
        break;
      case Bicim::Oran:
        format_set_align(stil, LXW_ALIGN_CENTER);
        break;
    }
    return stil;
  }

  void Kutu(const Yer& yer, Bicim bicim, const char* metin = "") {
    const lxw_error sonuc =
        worksheet_merge_range(sayfa_, lxw_row_t(yer.satir - 1), lxw_col_t(yer.kolon - 1), lxw_row_t(yer.sonSatir - 1),
                              lxw_col_t(yer.sonKolon - 1), metin, Stil(bicim));
    if (sonuc != LXW_NO_ERROR) kusur_ = sonuc;
  }

  // A caption and, right of it, a box.
  void Etiketli(const Yer& etiket, const char* metin, int sonKolon, Bicim bicim) {
    Kutu(etiket, Bicim::SolEtiket, metin);
    Kutu({etiket.satir, etiket.sonKolon + 1, etiket.sonSatir, sonKolon}, bicim);
  }

  void Bas() {
    constexpr int solSon = 189, x = 190, deger = 212;
    Kutu({3, IlkKolon, 7, solSon}, Bicim::Baslik, "AYLIK PRİM VE HİZMET BELGESİ");
    Kutu({3, x, 7, SonKolon}, Bicim::Bolum, "EK : 3");
    Etiketli({8, x, 11, deger}, "Yıl", SonKolon, Bicim::Sayi);
    Etiketli({12, x, 15, deger}, "Ay", SonKolon, Bicim::OrtaMetin);
    Kutu({16, x, 17, SonKolon}, Bicim::Etiket, "Belgenin Mahiyeti");
    Etiketli({18, x, 20, deger}, "Asıl:", SonKolon, Bicim::OrtaMetin);
    Etiketli({21, x, 23, deger}, "Ek:", SonKolon, Bicim::OrtaMetin);
    Etiketli({24, x, 26, deger}, "İptal:", SonKolon, Bicim::OrtaMetin);
    Etiketli({27, x, 31, deger}, "Belge Türü", SonKolon, Bicim::OrtaMetin);
    Etiketli({32, x, 39, deger}, "Düzenlenmesine Esas Kanun No", SonKolon, Bicim::OrtaMetin);
    Etiketli({40, x, 45, deger}, "Sayfa No", SonKolon, Bicim::Sayi);
    Etiketli({46, x, 51, deger}, "Toplam Sayfa", SonKolon, Bicim::Sayi);
    IsyeriNumarasi();
  }

  void IsyeriNumarasi() {
    using namespace belvani::sablon;
    int kolon = IlkNumaraKolonu;
    for (const NumaraKutulari& g : numaraKutulari) {
      Kutu({8, kolon - 2, NumaraSatiri - 1, kolon + g.basamak * BasamakEni + 1}, Bicim::Etiket, g.etiket);
      for (int i = 0; i < g.basamak; ++i, kolon += BasamakEni)
        Kutu({NumaraSatiri, kolon, NumaraSatiri + 4, kolon + BasamakEni - 1}, Bicim::OrtaMetin);
      kolon += GrupArasi;
    }
    if (workbook_define_name(kitap_, YerlerAdi, "=Bildirge!$L$13") != LXW_NO_ERROR)
      kusur_ = LXW_ERROR_PARAMETER_VALIDATION;
  }

  void Taraflar() {
    constexpr int isverenX = 49, araciX = 94, devirX = 159, son = 189;
    Kutu({19, IlkKolon, 22, 77}, Bicim::Bolum, "İŞVERENİN");
    Kutu({19, 78, 22, araciX - 1}, Bicim::OrtaMetin);
    Kutu({19, araciX, 22, 119}, Bicim::Bolum, "ARACININ");
    Kutu({19, 120, 22, devirX - 1}, Bicim::OrtaMetin);
    Kutu({19, devirX, 22, son}, Bicim::Bolum, "SİGORTALIYI DEVİR ALANIN");
    constexpr struct {
      int satir, sonSatir;
      const char* etiket;
    } satirlar[] = {{23, 28, "Adı Soyadı / Ünvanı"},
                    {29, 33, "Adresi"},
                    {34, 42, "Semt, İlçe, Şehir, P.Kodu"},
                    {43, 46, "Telefon, E-Posta"},
                    {47, 51, "T.C. / Vergi No"}};
    for (const auto& s : satirlar) {
      Kutu({s.satir, IlkKolon, s.sonSatir, isverenX - 1}, Bicim::SolEtiket, s.etiket);
      Kutu({s.satir, devirX, s.sonSatir, son}, Bicim::Metin);
    }
    for (const auto& [x, ikinci, sonKolon] : {Taraf{isverenX, 72, araciX - 1}, Taraf{araciX, 136, devirX - 1}}) {
      Kutu({23, x, 28, sonKolon}, Bicim::Metin);
      Kutu({29, x, 33, sonKolon}, Bicim::Metin);
      Kutu({34, x, 42, ikinci - 1}, Bicim::Metin);
      for (const int satir : {34, 37, 40}) Kutu({satir, ikinci, satir + 2, sonKolon}, Bicim::Metin);
      Kutu({43, x, 46, ikinci - 1}, Bicim::Metin);
      Kutu({43, ikinci, 46, sonKolon}, Bicim::Metin);
    }
    Kutu({47, isverenX, 51, araciX - 1}, Bicim::Metin);
    Kutu({47, araciX, 51, 135}, Bicim::Metin);
    Kutu({47, 136, 51, devirX - 1}, Bicim::Metin);
  }

  void Toplamlar() {
    Kutu({54, IlkKolon, 60, SonKolon}, Bicim::Bolum,
         "I - T Ü M     S A Y F A L A R A     A İ T    T O P L A M     B İ L G İ L E R");
    constexpr struct {
      const char* etiket;
      Bicim bicim;
    } sayaclar[] = {{"Sigortalı Sayısı", Bicim::Sayac},
                    {"Prim Ödenen Gün Sayısı", Bicim::Sayac},
                    {"Ay İçinde İşe Girenlerin Sayısı", Bicim::Sayac},
                    {"Ay İçinde İşten Ayrılanların Sayısı", Bicim::Sayac},
                    {"Ücretli İzinli Sayısı", Bicim::Sayac},
                    {"Ücretli İzinli Gün Sayısı", Bicim::Sayac},
                    {"Ücretli İzinli Kazancı", Bicim::Toplam}};
    int satir = 61;
    for (const auto& s : sayaclar) {
      Etiketli({satir, IlkKolon, satir + 3, 49}, s.etiket, 84, s.bicim);
      satir += 4;
    }
    constexpr int kolX = 85, matrahX = 143, oranX = 196, primX = 220;
    Kutu({61, kolX, 64, matrahX - 1}, Bicim::Etiket, "SİGORTA KOLLARI");
    Kutu({61, matrahX, 64, oranX - 1}, Bicim::Etiket, "MATRAH");
    Kutu({61, oranX, 64, primX - 1}, Bicim::Etiket, "PRİM ORANI %");
    Kutu({61, primX, 64, SonKolon}, Bicim::Etiket, "PRİM TUTARI");
    satir = 65;
    for (const char* kol :
         {"KISA VADELİ SİGORTA KOLLARI (İŞ KAZASI VE MESLEK HASTALIĞI)", "MALULLÜK, YAŞLILIK VE ÖLÜM",
          "GENEL SAĞLIK SİGORTASI (HASTALIK)", "SOSYAL GÜVENLİK DESTEK PRİMİ", "İŞSİZLİK SİGORTASI"}) {
      Etiketli({satir, kolX, satir + 3, matrahX - 1}, kol, oranX - 1, Bicim::Toplam);
      Kutu({satir, oranX, satir + 3, primX - 1}, Bicim::Oran);
      Kutu({satir, primX, satir + 3, SonKolon}, Bicim::Toplam);
      satir += 4;
    }
    Etiketli({satir, kolX, satir + 3, primX - 1}, "GENEL TOPLAM", SonKolon, Bicim::Toplam);
  }

  void Sigortalilar() {
    Kutu({90, IlkKolon, 93, SonKolon}, Bicim::Bolum,
         "II - A Y   İ Ç İ N D E    Ç A L I Ş T I R I L A N     S İ G O R T A L I L A R");
    for (const auto& k : kolonlar) {
      if (k.ustBaslik[0] != '\0') Kutu({94, k.ilk, 97, k.ustSon}, Bicim::Etiket, k.ustBaslik);
      Kutu({k.altSatir, k.ilk, 100, k.son}, Bicim::Etiket, k.baslik);
    }
    for (int sira = 0; sira <= KisiSayisi; ++sira) {
      const int satir = 101 + 5 * sira;
      for (const auto& k : kolonlar)
        Kutu({satir, k.ilk, satir + 4, k.son}, SatirBicimi(k, sira), SatirMetni(k, sira).c_str());
    }
  }

  void Ayak() {
    Kutu({157, IlkKolon, 164, SonKolon}, Bicim::Cumle,
         "Bu belgedeki bilgilerin işyeri defter, kayıt ve belgelerine uygun olduğunu beyan ve kabul ederiz.");
    Kutu({166, IlkKolon, 170, 84}, Bicim::Etiket, "İŞVEREN / VEKİLİ");
    Kutu({171, IlkKolon, 188, 84}, Bicim::Metin);
    Kutu({166, 85, 170, 148}, Bicim::Etiket, "SERBEST MUHASEBECİ / MALİ MÜŞAVİR");
    Kutu({171, 85, 177, 148}, Bicim::Metin);
    Kutu({178, 85, 182, 148}, Bicim::OrtaMetin);
    Kutu({183, 85, 188, 148}, Bicim::OrtaMetin);
    Kutu({166, 149, 170, 194}, Bicim::Etiket, "ARACI / SİGORTALIYI DEVİR ALAN");
    Kutu({171, 149, 188, 194}, Bicim::Metin);
    Kutu({166, 195, 170, SonKolon}, Bicim::Etiket, "ÜNİTEYE VERİLDİĞİ TARİH");
    Kutu({171, 195, 180, SonKolon}, Bicim::Metin);
    Kutu({181, 195, 188, 203}, Bicim::OrtaMetin);
    Kutu({181, 204, 188, SonKolon}, Bicim::SolEtiket, "RESEN DÜZENLENMİŞTİR");
  }

  // The line of the sums shows its zeros.
  static Bicim SatirBicimi(const Kolon& kolon, int sira) {
    const bool toplanir = sira == KisiSayisi && kolon.ilk >= GunKolonu && kolon.son <= IzinUcretiKolonu;
    if (!toplanir) return kolon.bicim;
    return kolon.bicim == Bicim::Sayi ? Bicim::Sayac : Bicim::Toplam;
  }

  // The eleventh line is that of the sums.
  static std::string SatirMetni(const Kolon& kolon, int sira) {
    if (sira == KisiSayisi) return kolon.ilk == 9 ? "TOPLAM" : "";
    return kolon.ilk == IlkKolon ? std::to_string(sira + 1) : "";
  }

  lxw_workbook* kitap_;
  lxw_worksheet* sayfa_;
  lxw_format* stiller_[std::size_t(Bicim::Oran) + 1] = {};
  lxw_error kusur_ = LXW_NO_ERROR;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Kullanım: belvani-sablon DOSYA\n";
    return 2;
  }
  if (Sablon(argv[1]).Yaz()) return 0;
  std::cerr << argv[1] << ": yazılamadı\n";
  return 1;
}
