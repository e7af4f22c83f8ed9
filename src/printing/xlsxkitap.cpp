#include "printing/xlsxkitap.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <locale.h>
#include <unistd.h>
#include <utility>
#include <vector>
#include <xlsxwriter.h>

#include "core/asama.h"
#include "core/dosya.h"
#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/xlsxsatirlari.h"
#include "printing/zipdosya.h"

namespace belvani {
namespace {

constexpr std::size_t SayfaAdiHarfi = 31;
constexpr std::int32_t IlkGun = 61;  // 01.03.1900: from here on both calendars count alike
constexpr std::size_t EnBuyukIskelet = std::size_t(1) << 24;
constexpr double YanKenar = 0.4;  // inches
constexpr double UstKenar = 0.6;
constexpr double DikeyHarf = 100;  // letters that an upright page takes at the size of the screen
constexpr const char* SayfaParcasi = "xl/worksheets/sheet1.xml";
constexpr std::string_view BosSatirlar = "<sheetData/>";
constexpr std::string_view BosAlan = "<dimension ref=\"A1\"/>";

// The library prints numbers by the locale of the thread: a decimal comma would spoil the file.
class NoktaliSayilar {
 public:
  NoktaliSayilar() : onceki_(::uselocale(C())) {}
  ~NoktaliSayilar() { ::uselocale(onceki_); }
  NoktaliSayilar(const NoktaliSayilar&) = delete;
  NoktaliSayilar& operator=(const NoktaliSayilar&) = delete;

 private:
  static locale_t C() {
    static const locale_t c = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return c;
  }
  locale_t onceki_;
};

// Broken bytes would make the whole file unreadable; they are taken for the Windows code page.
std::string SaglamMetin(std::string_view metin) {
  return DenetimsizMetin(GecerliUtf8(metin) ? std::string(metin) : KodSayfasindan(metin, KodSayfasi::Windows1254));
}

std::string SayfaAdi(std::string_view ad) {
  std::string temiz = SaglamMetin(ad);
  std::replace_if(
      temiz.begin(), temiz.end(),
      [](char c) { return std::string_view("[]:*?/\\'").find(c) != std::string_view::npos; }, ' ');
  temiz = Kirp(IlkHarfler(Kirp(temiz), SayfaAdiHarfi));
  return temiz.empty() ? "Rapor" : temiz;
}

// The library tells a failed write on standard error, in English; our caller tells it where its user looks.
class SessizHata {
 public:
  SessizHata() : onceki_(::dup(STDERR_FILENO)) {
    const int bos = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (bos < 0) return;
    ::dup2(bos, STDERR_FILENO);
    ::close(bos);
  }
  ~SessizHata() {
    if (onceki_ < 0) return;
    ::dup2(onceki_, STDERR_FILENO);
    ::close(onceki_);
  }
  SessizHata(const SessizHata&) = delete;
  SessizHata& operator=(const SessizHata&) = delete;

 private:
  int onceki_;
};

// A part of the workbook as it goes by: how many cells begin in it, and whether it ends as XML does.
class ParcaOkuru {
 public:
  void Al(std::string_view blok) {
    metin_ += blok;
    for (std::size_t i = 0; (i = metin_.find(HucreBasi, i)) != std::string::npos; i += HucreBasi.size()) ++hucreler_;
    if (const auto yer = blok.find_last_not_of("\r\n"); yer != std::string_view::npos) son_ = blok[yer];
    metin_.erase(0, metin_.size() - std::min(metin_.size(), HucreBasi.size() - 1));
  }
  std::size_t Hucreler() const { return hucreler_; }
  bool Tam() const { return son_ == '>'; }

 private:
  static constexpr std::string_view HucreBasi = "<c r=\"";
  std::string metin_;  // the piece, behind what of the one before may be the front of a cell
  std::size_t hucreler_ = 0;
  char son_ = 0;
};

lxw_format* BicimYap(lxw_workbook* kitap, const XlsxStili& stil) {
  lxw_format* bicim = workbook_add_format(kitap);
  if (!stil.sayiBicimi.empty()) format_set_num_format(bicim, stil.sayiBicimi.c_str());
  if (stil.koyu || stil.baslik) format_set_bold(bicim);
  if (stil.baslik) {
    format_set_text_wrap(bicim);
    format_set_align(bicim, LXW_ALIGN_VERTICAL_CENTER);
    format_set_bottom(bicim, LXW_BORDER_THIN);
    format_set_bg_color(bicim, 0xE7E9EC);
  }
  return bicim;
}

}  // namespace

struct XlsxKitap::Ic {
  explicit Ic(std::string_view sayfaAdi) : yol(GeciciDosya()) {
    if (yol.empty()) return;
    const NoktaliSayilar nokta;
    kitap = workbook_new(yol.c_str());
    if (kitap != nullptr) sayfa = workbook_add_worksheet(kitap, SayfaAdi(sayfaAdi).c_str());
  }
  ~Ic() {
    Kapat();
    std::error_code hata;
    if (!yol.empty()) std::filesystem::remove(yol, hata);
  }

  bool Kapat() {
    if (kitap == nullptr) return false;
    const SessizHata sessiz;
    const NoktaliSayilar nokta;
    return workbook_close(std::exchange(kitap, nullptr)) == LXW_NO_ERROR;
  }

  // The library's file has no rows yet: they go between the head of its sheet and what follows them.
  Sonuc<std::string> Doldur(ZipDosyasi dosya) {
    std::string xml = dosya.Oku(SayfaParcasi).value_or("");
    const auto yer = xml.find(BosSatirlar);
    if (yer == xml.npos) return Kusur{};
    std::string bas = xml.substr(0, yer);
    if (const auto alan = bas.find(BosAlan); alan != bas.npos)
      bas.replace(alan, BosAlan.size(), "<dimension ref=\"" + satirlar.Alan() + "\"/>");
    SikisikParca parca = Sikistir(bas, ParcaSonu::Suren);
    parca += satirlar.Bitir();
    parca += Sikistir(std::string_view(xml).substr(yer + BosSatirlar.size()), ParcaSonu::Son);
    dosya.Degistir(SayfaParcasi, std::move(parca));
    return dosya.Bitir();
  }

  // The library does not look whether its own temporary files were written to the end, so the file is read back: every
  // part whole, and in the sheet as many cells as were written.
  bool Saglam(const ZipDosyasi& dosya, Ilerleme* ilerleme) const {
    Asama asama(ilerleme);
    std::size_t hucreler = 0;
    for (const auto& ad : dosya.Adlar()) {
      ParcaOkuru okur;
      const auto al = [&](std::string_view blok) {
        asama.Adim();
        okur.Al(blok);
      };
      if (!dosya.Aktar(ad, al) || !okur.Tam()) return false;
      if (ad == SayfaParcasi) hucreler = okur.Hucreler();
    }
    return hucreler == satirlar.Hucreler();
  }

  std::string yol;
  lxw_workbook* kitap = nullptr;
  lxw_worksheet* sayfa = nullptr;
  std::vector<std::pair<XlsxStili, int>> stiller;  // with the number of the look in the file
  XlsxSatirlari satirlar;
  std::vector<lxw_row_t> sayfaBaslari;
};

XlsxKitap::XlsxKitap(std::string_view sayfaAdi) : ic_(std::make_unique<Ic>(sayfaAdi)) {}
XlsxKitap::~XlsxKitap() = default;

XlsxKitap::Stil XlsxKitap::StilEkle(const XlsxStili& stil) {
  // One format for each look, and none for the plain one.
  auto& stiller = ic_->stiller;
  const auto ayni = std::find_if(stiller.begin(), stiller.end(), [&](const auto& s) { return s.first == stil; });
  if (ayni != stiller.end()) return Stil(ayni - stiller.begin());
  const bool duz = stil == XlsxStili{} || ic_->kitap == nullptr;
  stiller.emplace_back(stil, duz ? 0 : lxw_format_get_xf_index(BicimYap(ic_->kitap, stil)));
  return Stil(stiller.size()) - 1;
}

void XlsxKitap::KolonEni(int kolon, double harf) {
  if (ic_->sayfa != nullptr) worksheet_set_column(ic_->sayfa, lxw_col_t(kolon), lxw_col_t(kolon), harf, nullptr);
}

void XlsxKitap::UstuDondur(int satir) {
  if (ic_->sayfa == nullptr) return;
  worksheet_freeze_panes(ic_->sayfa, lxw_row_t(satir), 0);
  worksheet_repeat_rows(ic_->sayfa, lxw_row_t(satir - 1), lxw_row_t(satir - 1));
}

void XlsxKitap::A4Yazdir(KagitYonu yon) {
  if (ic_->sayfa == nullptr) return;
  const NoktaliSayilar nokta;
  if (yon == KagitYonu::Yatay) worksheet_set_landscape(ic_->sayfa);
  worksheet_set_paper(ic_->sayfa, 9);  // A4
  worksheet_fit_to_pages(ic_->sayfa, 1, 0);
  worksheet_set_margins(ic_->sayfa, YanKenar, YanKenar, UstKenar, UstKenar);
  worksheet_set_footer(ic_->sayfa, "&CSayfa &P / &N");
}

void XlsxKitap::SayfaBasi(int satir) {
  if (satir > 0 && ic_->sayfaBaslari.size() < LXW_BREAKS_MAX) ic_->sayfaBaslari.push_back(lxw_row_t(satir));
}

void XlsxKitap::Yaz(int satir, int kolon, const Hucre& hucre, Stil stil) {
  const XlsxYeri yer{satir + 1, kolon + 1};
  const int no = ic_->stiller[std::size_t(stil)].second;
  if (const auto* m = std::get_if<std::string>(&hucre)) {
    if (const std::string metin = SaglamMetin(*m); !metin.empty()) ic_->satirlar.Metin(yer, metin, no);
  } else if (const auto* tam = std::get_if<std::int64_t>(&hucre)) {
    ic_->satirlar.Sayi(yer, std::to_string(*tam), no);
  } else if (const auto* tutar = std::get_if<Tutar>(&hucre)) {
    ic_->satirlar.Sayi(yer, SayiMetni(tutar->Sayi()), no);
  } else if (const auto* tarih = std::get_if<Tarih>(&hucre); tarih != nullptr && !tarih->Bos()) {
    if (tarih->SeriNo() >= IlkGun)
      ic_->satirlar.Sayi(yer, std::to_string(tarih->SeriNo()), no);
    else
      ic_->satirlar.Metin(yer, tarih->Metin(), no);
  }
}

Sonuc<std::string> XlsxKitap::Bitir(Ilerleme* ilerleme) {
  if (ic_->sayfa == nullptr) return Kusur{"Tablo dosyası yazılamadı: geçici dosya açılamıyor"};
  if (const auto kusur = ic_->satirlar.Kusuru(); !kusur.empty())
    return Kusur{"Tablo dosyası yazılamadı: " + std::string(kusur)};
  if (!ic_->sayfaBaslari.empty()) {
    ic_->sayfaBaslari.push_back(0);  // ends the library's list
    worksheet_set_h_pagebreaks(ic_->sayfa, ic_->sayfaBaslari.data());
  }
  const Kusur yazilamadi{"Tablo dosyası yazılamadı: geçici dosyaların dizini dolu ya da yazılamıyor"};
  if (!ic_->Kapat()) return yazilamadi;
  auto baytlar = DosyaOku(ic_->yol, EnBuyukIskelet);
  if (!baytlar) return yazilamadi;
  auto iskelet = ZipDosyasi::Ac(std::move(*baytlar));
  if (!iskelet) return yazilamadi;
  auto dolu = ic_->Doldur(std::move(*iskelet));
  if (!dolu) return yazilamadi;
  auto dosya = ZipDosyasi::Ac(std::move(*dolu));
  if (!dosya || !ic_->Saglam(*dosya, ilerleme)) return yazilamadi;
  return std::move(*dosya).Baytlar();
}

std::string XlsxTutarBicimi(int ondalik) {
  return XlsxSifirliBicim(ondalik) + ";-" + XlsxSifirliBicim(ondalik) + ";";
}

std::string XlsxSifirliBicim(int ondalik) {
  return ondalik > 0 ? "#,##0." + std::string(std::size_t(ondalik), '0') : "#,##0";
}

KagitYonu XlsxYonu(double toplamEn) {
  return toplamEn > DikeyHarf ? KagitYonu::Yatay : KagitYonu::Dikey;
}

int XlsxKolonEni(int harf) {
  constexpr int enGenis = 60, pay = 2;
  return std::min(harf, enGenis) + pay;
}

XlsxStili KolonStili(const RaporKolonu& kolon) {
  switch (kolon.tur) {
    case KolonTuru::Tam:
      return {.sayiBicimi = XlsxTutarBicimi(0)};
    case KolonTuru::Tutar:
      return {.sayiBicimi = XlsxTutarBicimi(kolon.ondalik)};
    case KolonTuru::Tarih:
      return {.sayiBicimi = XlsxTarihBicimi};
    case KolonTuru::KisaTarih:
      return {.sayiBicimi = XlsxKisaTarihBicimi};
    case KolonTuru::UzunTarih:
      return {.sayiBicimi = XlsxUzunTarihBicimi};
    case KolonTuru::GunAy:
      return {.sayiBicimi = "dd.mm"};
    case KolonTuru::Gun:
      return {.sayiBicimi = "dd"};
    case KolonTuru::Ay:
      return {.sayiBicimi = "mm"};
    case KolonTuru::Metin:
    case KolonTuru::Bos:
      return {};
  }
  return {};
}

}  // namespace belvani
