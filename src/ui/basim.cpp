#include "ui/basim.h"

#include <QDir>
#include <QMainWindow>
#include <QStandardPaths>
#include <QStatusBar>

#include "core/hedef.h"
#include "printing/excelkont.h"
#include "printing/yazdir.h"
#include "ui/metin.h"
#include "ui/onizleme.h"
#include "ui/perekr.h"
#include "ui/uzunis.h"
#include "ui/yzcsetup.h"

namespace belvani {
namespace {

constexpr const char* PdfFiltresi = "PDF Dosyası(*.pdf)|*.pdf";
constexpr const char* XlsxFiltresi = "Excel Dosyası(*.xlsx)|*.xlsx";
constexpr const char* MetinFiltresi = "Yazıcı Dosyası(*.prn)|*.prn";
constexpr const char* BasilacakYok = "Basılacak kayıt yok";

constexpr int YerSozuSuresi = 60'000;  // milliseconds

// "ORNEK BORDRO ÖZETİ 2009-12"
std::string SirketliAd(EkranBaglami& baglam, const std::string& ad) {
  const std::string& kod = baglam.oturum.FirmaKod;
  return kod.empty() ? ad : kod + " " + ad;
}

// Where the user wants the file, with its extension; nothing when given up. The dialog asks about a file that is there;
// the extension may lead to another one.
std::optional<std::string> DosyaSor(EkranBaglami& baglam, const std::string& ad, const char* filtre,
                                    const QString& uzanti) {
  QString dizin = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (!QDir(dizin).exists()) dizin = QDir::homePath();
  auto yol = baglam.dialoglar.DosyaKaydet("Kaydet", Utf8(QDir(dizin).filePath(Yazi(DosyaAdi(ad)) + uzanti)), filtre);
  if (!yol || Yazi(*yol).endsWith(uzanti, Qt::CaseInsensitive)) return yol;
  *yol += Utf8(uzanti);
  const bool var = QFileInfo::exists(Yazi(*yol));
  if (var && !baglam.bildirim.Soru(*yol + "\nBu dosya var. Üzerine yazılsın mı?")) return std::nullopt;
  return yol;
}

void YeriniSoyle(EkranBaglami& baglam, const std::string& yol) {
  baglam.bildirim.Bilgi("Dosya kaydedildi:\n" + yol);
}

void YeriniSoyleVeAc(EkranBaglami& baglam, const std::string& yol) {
  if (!baglam.baski.dosyaAc) return YeriniSoyle(baglam, yol);
  if (!baglam.bildirim.Soru("Dosya kaydedildi:\n" + yol + "\nAçılsın mı?")) return;
  if (!baglam.baski.dosyaAc(yol)) baglam.bildirim.Uyari("Bu dosyayı açacak bir program yok:\n" + yol);
}

// Of a file that is open in its program already: no box in front of that.
void YeriniYaz(EkranBaglami& baglam, const std::string& yol) {
  if (auto* pencere = qobject_cast<QMainWindow*>(baglam.gosterici.ModalUst()))
    pencere->statusBar()->showMessage("Açılan tablo: " + Yazi(yol) + " (saklamak için başka bir yere kaydediniz)",
                                      YerSozuSuresi);
}

// True when the file is written; else it was told why not.
bool Kaydet(EkranBaglami& baglam, const std::string& yol, std::string_view baytlar) {
  if (const Durum yazildi = HedefeYaz(yol, baytlar); !yazildi) {
    baglam.bildirim.KusuruGoster(yazildi.Kusuru());
    return false;
  }
  return true;
}

// Each returns whether the dialog has done its work and stays away.

bool Yazdir(EkranBaglami& baglam, const Belge& belge) {
  const auto sonuc = UzunIs(baglam, QStringLiteral("Yazdırılıyor…"), [&](Ilerleme& ilerleme) {
    return BelgeYazdir(belge, baglam.baski, baglam.bildirim, &ilerleme);
  });
  if (!sonuc) return false;
  if (!*sonuc) {
    baglam.bildirim.KusuruGoster(sonuc->Kusuru());
    return false;
  }
  if (const std::string& uyari = (*sonuc)->uyari; !uyari.empty()) baglam.bildirim.Uyari(uyari);
  return true;
}

bool PdfKaydet(EkranBaglami& baglam, const Belge& belge) {
  const auto yol = DosyaSor(baglam, SirketliAd(baglam, belge.DosyaBasligi()), PdfFiltresi, ".pdf");
  if (!yol) return false;
  const auto yapilan = UzunIs(baglam, QStringLiteral("PDF hazırlanıyor…"),
                              [&](Ilerleme& ilerleme) { return BelgePdf(belge, &ilerleme); });
  if (!yapilan) return false;
  const Sonuc<PdfCiktisi>& pdf = *yapilan;
  if (!pdf) baglam.bildirim.KusuruGoster(pdf.Kusuru());
  if (!pdf || pdf->baytlar.empty() || !Kaydet(baglam, *yol, pdf->baytlar)) return false;
  if (!pdf->uyari.empty()) baglam.bildirim.Uyari(pdf->uyari);
  YeriniSoyleVeAc(baglam, *yol);
  return true;
}

bool MetinKaydet(EkranBaglami& baglam, const Belge& belge) {
  const auto yol = DosyaSor(baglam, SirketliAd(baglam, belge.DosyaBasligi()), MetinFiltresi, ".prn");
  if (!yol) return false;
  const auto baytlar = UzunIs(baglam, QStringLiteral("Dosya hazırlanıyor…"),
                              [&](Ilerleme& ilerleme) { return BelgeHam(belge, &ilerleme); });
  if (!baytlar || !Kaydet(baglam, *yol, *baytlar)) return false;
  if (const std::string uyari = belge.MetinUyarisi(); !uyari.empty()) baglam.bildirim.Uyari(uyari);
  YeriniSoyle(baglam, *yol);  // bytes for a printer: nothing to open them with
  return true;
}

bool Onizle(EkranBaglami& baglam, const Belge& belge) {
  const std::string uyari = belge.Ayar().YzcDosMod ? belge.MetinUyarisi() : std::string();
  if (!uyari.empty()) baglam.bildirim.Uyari(uyari);
  auto sayfalar = UzunIs(baglam, QStringLiteral("Sayfalar hazırlanıyor…"),
                         [&](Ilerleme& ilerleme) { return BelgeSayfalari(belge, &ilerleme); });
  if (sayfalar) FormGoster(baglam, std::make_unique<onizleme>(baglam, std::move(*sayfalar)), FormModu::Modal);
  return false;
}

bool Yap(EkranBaglami& baglam, const Belge& belge, YzcKarar karar) {
  switch (karar) {
    case YzcKarar::Vazgec:
      return true;
    case YzcKarar::Yazdir:
      return Yazdir(baglam, belge);
    case YzcKarar::Onizle:
      return Onizle(baglam, belge);
    case YzcKarar::PdfKaydet:
      return PdfKaydet(baglam, belge);
    case YzcKarar::MetinKaydet:
      return MetinKaydet(baglam, belge);
  }
  return true;
}

YzcKarar AyarSor(EkranBaglami& baglam, YzcAyarlari& ayar, const YzcDestegi& destek) {
  return ModalCevap(baglam, std::make_unique<yzcsetup>(baglam, ayar, destek), &yzcsetup::Karar);
}

}  // namespace

void BelgeBas(EkranBaglami& baglam, Belge& belge) {
  BelgeBas(baglam, belge, [](YzcKarar, const YzcAyarlari&) { return false; });
}

void BelgeBas(EkranBaglami& baglam, Belge& belge, const BasimSozu& once) {
  if (const std::string yok = belge.BaskiYok(); !yok.empty()) return baglam.bildirim.Bilgi(yok);
  if (belge.Bos()) return baglam.bildirim.Bilgi(BasilacakYok);
  YzcAyarlari ayar = belge.Ayar();
  ayar.yazici = baglam.baski.yazici;
  while (true) {
    const YzcKarar karar = AyarSor(baglam, ayar, belge.Destek());
    baglam.baski.yazici = ayar.yazici;
    if (karar == YzcKarar::Vazgec) return;
    if (ayar.YzcDosMod && !ayar.YzcDosAcik) return baglam.bildirim.Bilgi(belge.MetinYok());
    belge.Ayarla(ayar);
    if (once(karar, ayar) || Yap(baglam, belge, karar)) return;
  }
}

void BelgeBasAyarli(EkranBaglami& baglam, Belge& belge) {
  if (belge.Bos()) return baglam.bildirim.Bilgi(BasilacakYok);
  if (!Yazdir(baglam, belge)) BelgeBas(baglam, belge);
}

void BelgeExceleGonder(EkranBaglami& baglam, const Belge& belge) {
  const auto baytlar =
      UzunIs(baglam, QStringLiteral("Tablo hazırlanıyor…"), [&](Ilerleme& ilerleme) { return belge.Xlsx(&ilerleme); });
  if (!baytlar) return;
  if (!*baytlar) return baglam.bildirim.KusuruGoster(baytlar->Kusuru());
  TabloyuAc(baglam, belge.DosyaBasligi(), **baytlar);
}

void TabloyuAc(EkranBaglami& baglam, const std::string& ad, const std::string& baytlar) {
  const std::string tamAd = SirketliAd(baglam, ad);
  bool acildi = true;
  excelkont excel({.ac = baglam.baski.dosyaAc, .yolSor = [&] {
                     acildi = false;
                     baglam.bildirim.Uyari(ExcelYok);
                     return DosyaSor(baglam, tamAd, XlsxFiltresi, ".xlsx");
                   }});
  excel.Baslik = tamAd;
  excel.HazirKitap(baytlar);
  if (const Durum verildi = excel.CloseExcell(); !verildi) return baglam.bildirim.KusuruGoster(verildi.Kusuru());
  if (excel.Dosya().empty()) return;
  acildi ? YeriniYaz(baglam, excel.Dosya()) : YeriniSoyle(baglam, excel.Dosya());
}

void BelgeEkranaListele(EkranBaglami& baglam, const std::shared_ptr<Belge>& belge) {
  const auto tablo = belge->Tablo();
  if (tablo == nullptr) return baglam.bildirim.Bilgi("Bu Liste Sadece Yazıcıdan Alınabilir.");
  const PerekrIslevleri islevler{.sirala = [belge](const std::vector<int>& sira) { belge->Sirala(sira); },
                                 .yazdir = [&baglam, belge] { BelgeBas(baglam, *belge); },
                                 .excel = [&baglam, belge] { BelgeExceleGonder(baglam, *belge); }};
  FormGoster(baglam, std::make_unique<perekr>(baglam, tablo, islevler));
}

}  // namespace belvani
