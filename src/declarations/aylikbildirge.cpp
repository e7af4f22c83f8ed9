#include "declarations/aylikbildirge.h"

#include <algorithm>
#include <tuple>

#include "core/hedef.h"
#include "core/sayi.h"
#include "core/session/aracibilgi.h"
#include "core/store/koru.h"
#include "core/veriyolu.h"
#include "declarations/bildirgekagidi.h"
#include "declarations/bildirgesorgu.h"
#include "declarations/bildirgetablosu.h"
#include "payroll/parametre/mevzuatdenetimi.h"

namespace belvani {
namespace {

constexpr std::size_t KodHanesi = 2;
constexpr std::size_t KagitKisiSiniri = 5;
constexpr std::size_t SorunSiniri = 10;

constexpr const char* DuzeltmelerSilinir = "Listede veya toplamlarda elle yaptığınız düzeltmeler silinecek.";
constexpr const char* Hesaplatilmamis = "Bildirge Hesaplatılmamış";

std::vector<std::string> BelgeTuruListesi(const HesapTurleri& turler) {
  std::vector<std::string> liste{"00-Tümü"};
  for (const auto& tur : turler)
    if (tur.no > 0) liste.push_back(IkiHane(tur.no) + "-" + tur.ack);
  return liste;
}

std::string SorunMetni(const Kusurlar& sorunlar) {
  std::string metin = "Dosyaya olduğu gibi yazılamayan bilgiler var:\n";
  for (std::size_t i = 0; i < std::min(sorunlar.size(), SorunSiniri); ++i) metin += sorunlar[i].metin + "\n";
  if (sorunlar.size() > SorunSiniri) metin += "… ve " + std::to_string(sorunlar.size() - SorunSiniri) + " bilgi daha\n";
  return metin + "Bu Haliyle Yazılsın mı ?";
}

// The faults of the rows, each at the field of the person's records that its cell was made of.
Kusurlar KaynaktakiKusurlar(Kusurlar kusurlar) {
  std::erase_if(kusurlar, [](const Kusur& k) { return k.satir == 0; });
  for (Kusur& kusur : kusurlar) kusur.alan = KaynakAlani(kusur.alan.ad);
  return kusurlar;
}

}  // namespace

AylikBildirge::AylikBildirge(Oturum& oturum, const YasalParametreler& yasal, Bildirim& bildirim)
    : o_(oturum), yasal_(yasal), bildirim_(bildirim) {}

Sonuc<Kusurlar> AylikBildirge::Ac() {
  bildirge_ = {};
  bildirge_.secim.yil = o_.firma.firmayil;
  bildirge_.secim.ay = o_.firma.firmaay;
  belgeTurleri_ = BelgeTuruListesi(yasal_.hesapTurleri);
  kanunlar_ = {"Tümü"};
  tehlikeOrani_ = o_.firmaVar ? TehlikeOrani(o_.firma.tehlike, o_.firma.sinif.Sayi()) : Tek();
  OranlariYukle();
  return Koru([&] {
    for (auto& kanun : KisiKanunlari(o_.depo.db.IcMotor())) kanunlar_.push_back(std::move(kanun));
    return o_.firmaVar ? Kusurlar() : Kusurlar{KuralKusuru("İşyeri Tanımlamaları Yapılmamış")};
  });
}

int AylikBildirge::BelgeTuru() const {
  return BastakiSayi(std::string_view(belgeTurleri_[std::size_t(bildirge_.secim.belgeTuru)]).substr(0, KodHanesi));
}

void AylikBildirge::BelgeTuruSec(int no) {
  const auto yer = std::ranges::find(belgeTurleri_, IkiHane(no), [](const auto& t) { return t.substr(0, KodHanesi); });
  if (yer != belgeTurleri_.end()) bildirge_.secim.belgeTuru = int(yer - belgeTurleri_.begin());
  OranlariYukle();
}

Durum AylikBildirge::Hesapla(Ilerleme* ilerleme) {
  OranlariYukle();
  Durum hesaplandi = Koru([&] { AylikBildirgeHesapla(ilerleme); });
  if (hesaplandi) hesaplandi = PrimleriHesapla();
  if (!hesaplandi) {
    OranlariYukle();
    return hesaplandi;
  }
  hesaplanan_ = {bildirge_.secim, yasal_.oranlar, yasal_.hesapTurleri};
  hesaplananToplamlar_ = bildirge_.toplamlar;
  return hesaplandi;
}

bool AylikBildirge::SecimDegisti() const {
  const auto kapsam = [](const BildirgeSecimi& s) { return std::tuple(s.yil, s.ay, s.belgeTuru, s.kanun); };
  return hesaplanan_ && kapsam(hesaplanan_->secim) != kapsam(bildirge_.secim);
}

bool AylikBildirge::MevzuatDegisti() const {
  return hesaplanan_ && (hesaplanan_->oranlar != yasal_.oranlar || hesaplanan_->turler != yasal_.hesapTurleri);
}

std::string AylikBildirge::EskimeMetni() const {
  if (SecimDegisti()) {
    const BildirgeSecimi& s = hesaplanan_->secim;
    const std::string& kanun = kanunlar_[std::size_t(s.kanun)];
    return "Liste " + MevzuatAyi{s.yil, s.ay}.Metin() + ", " + belgeTurleri_[std::size_t(s.belgeTuru)] + ", " +
           (kanun.empty() ? std::string("(boş)") : kanun) + " için hesaplandı; seçim değişti.";
  }
  return MevzuatDegisti() ? "Liste hesaplandıktan sonra yasal parametreler değişti." : "";
}

bool AylikBildirge::HesaplansinMi() {
  return !duzeltildi_ || bildirim_.Soru(std::string(DuzeltmelerSilinir) + "\nBildirge Yeniden Hesaplansın mı ?");
}

bool AylikBildirge::BirakilsinMi() {
  return !duzeltildi_ || bildirim_.Soru(std::string(DuzeltmelerSilinir) + "\nEkran Kapatılsın mı ?");
}

AylikBildirge::Tazeleme AylikBildirge::TazelensinMi() {
  const std::string neden = EskimeMetni();
  if (neden.empty()) return Tazeleme::Gerekmez;
  const std::string silinen = duzeltildi_ ? std::string("\n") + DuzeltmelerSilinir : "";
  if (bildirim_.Soru(neden + silinen + "\nBildirge Yeniden Hesaplansın mı ?")) return Tazeleme::Hesaplanir;
  return SecimDegisti() ? Tazeleme::Vazgecildi : Tazeleme::Gerekmez;
}

// Clears what an earlier calculation left.
void AylikBildirge::OranlariYukle() {
  const BildirgeSecimi secim = bildirge_.secim;
  bildirge_ = {};
  bildirge_.secim = secim;
  hesaplanan_.reset();
  hesaplananToplamlar_ = {};
  duzeltildi_ = false;
  bildirge_.PrimOran = PrimOranlari(yasal_, BelgeTuru(), tehlikeOrani_);
}

void AylikBildirge::AylikBildirgeHesapla(Ilerleme* ilerleme) try {
  const BildirgeSecimi& secim = bildirge_.secim;
  const DonemTuru donem = o_.firma.tersfirma ? DonemTuru::Ters : DonemTuru::Takvim;
  const BildirgeKosullari kosullar{yasal_, {secim.yil, secim.ay, donem}, Yuvarla()};
  BildirgeSuzgeci suzgec{.yil = secim.yil, .ay = secim.ay, .belgeTuru = BelgeTuru()};
  if (secim.kanun > 0) suzgec.kanun = kanunlar_[std::size_t(secim.kanun)];
  BildirgeKayitlariOku(
      o_.depo.db.IcMotor(), suzgec, [&](const BildirgeKaydi& kayit) { KaydiEkle(bildirge_, kayit, kosullar); },
      ilerleme);
} catch (const Vazgecilmis&) {
  OranlariYukle();
  throw;
}

Durum AylikBildirge::PrimleriHesapla() {
  bildirge_.prim = {};
  return Koru([&] {
    bildirge_.prim =
        belvani::PrimleriHesapla(bildirge_.toplamlar, bildirge_.PrimOran, bildirge_.DevletKatki, Yuvarla());
  });
}

const BildirgeSatiri* AylikBildirge::Satir(int no) const {
  const auto satir = std::ranges::find(bildirge_.satirlar, no, &BildirgeSatiri::no);
  return satir == bildirge_.satirlar.end() ? nullptr : &*satir;
}

// Changes the rows by `is` and makes totals and premiums anew; after a fault everything is as it was.
template <class Is>
Durum AylikBildirge::Duzenle(Is&& is) {
  Bildirge once = bildirge_;
  is(bildirge_);
  const Durum toplandi = Koru([&] {
    bildirge_.toplamlar = ToplamlariYenile(bildirge_.satirlar, yasal_);
    bildirge_.prim =
        belvani::PrimleriHesapla(bildirge_.toplamlar, bildirge_.PrimOran, bildirge_.DevletKatki, Yuvarla());
  });
  if (!toplandi)
    bildirge_ = std::move(once);
  else
    duzeltildi_ = true;
  return toplandi;
}

Sonuc<int> AylikBildirge::SatirEkle(BildirgeSatiri satir) {
  int no = 0;
  const Durum eklendi = Duzenle([&](Bildirge& b) { no = belvani::SatirEkle(b, std::move(satir)); });
  if (!eklendi) return eklendi.Kusuru();
  return no;
}

Durum AylikBildirge::SatirYaz(const BildirgeSatiri& satir) {
  const BildirgeSatiri* eski = Satir(satir.no);
  if (eski == nullptr || *eski == satir) return Tamam();
  return Duzenle([&](Bildirge& b) { *std::ranges::find(b.satirlar, satir.no, &BildirgeSatiri::no) = satir; });
}

Durum AylikBildirge::SatirSil(int no) {
  if (Satir(no) == nullptr) return Tamam();
  return Duzenle([&](Bildirge& b) { std::erase_if(b.satirlar, [&](const BildirgeSatiri& s) { return s.no == no; }); });
}

Durum AylikBildirge::ToplamYaz(const BildirgeToplamlari& toplamlar) {
  if (toplamlar == bildirge_.toplamlar) return Tamam();
  bildirge_.toplamlar = toplamlar;
  duzeltildi_ = true;
  return PrimleriHesapla();
}

std::string AylikBildirge::OranMetni(std::size_t brans) const {
  return SayiMetni(bildirge_.PrimOran[brans].Sayi());
}

std::string AylikBildirge::PrimMetni(std::size_t brans) const {
  return KagitTutari(bildirge_.prim.primler[brans], o_.firma.paraonda);
}

std::string AylikBildirge::GenelToplamMetni() const {
  return KagitTutari(bildirge_.prim.genelToplam, o_.firma.paraonda);
}

IsyeriBilgileri AylikBildirge::Isyeri() {
  return IsyeriniHazirla(o_.firma, AraciOku(o_).kod);
}

Sonuc<AylikBildirge::Karar> AylikBildirge::BildirgeKontrol() {
  auto kusurlar = Koru([&] { return belvani::BildirgeKontrol(bildirge_, Isyeri()); });
  if (!kusurlar) return kusurlar.Kusuru();
  sorunlar_ = KaynaktakiKusurlar(*kusurlar);
  for (auto& kusur : *kusurlar) {
    switch (kusur.derece) {
      case Derece::Bilgi:
        bildirim_.KusuruGoster(kusur);
        break;
      case Derece::Uyari:
        if (!bildirim_.Soru(kusur.metin + "\nBu Haliyle Kabul Edilsin mi ?")) return Karar::Vazgecildi;
        break;
      case Derece::Hata:
        return std::move(kusur);
    }
  }
  return Karar::Devam;
}

// The spreadsheet parts wage and bonus; where the bonus has filled the base, a wage below zero would go to the
// institution.
void AylikBildirge::EksiUcretleriSoyle() {
  Kusurlar eksiler;
  int sira = 0;
  for (const auto& satir : bildirge_.satirlar) {
    ++sira;
    const Tutar ucret = KazanciBol(satir).ucret;
    if (ucret >= Tutar()) continue;
    eksiler.push_back({.metin = SatirSahibi(satir) + ": Excel formunda ücret eksi (" +
                                KagitTutari(ucret, o_.firma.paraonda) + "), ikramiye kazançtan çok",
                       .alan = KaynakAlani("primkazanc"),
                       .kod = satir.kod,
                       .satir = sira,
                       .derece = Derece::Uyari});
  }
  if (eksiler.empty()) return;
  std::string metin = "Excel formunda ücreti eksi olanlar var:";
  for (const Kusur& eksi : eksiler) metin += "\n" + eksi.metin;
  bildirim_.Uyari(metin);
  sorunlar_.insert(sorunlar_.end(), eksiler.begin(), eksiler.end());
}

Kusurlar AylikBildirge::Uyarilar() const {
  Kusurlar uyarilar;
  for (const std::string& kod : bildirge_.kimliksizler)
    uyarilar.push_back({.metin = "Kimlik bilgisi olmadığı için bildirgeye alınmadı",
                        .alan = KaynakAlani("tcno"),
                        .kod = kod,
                        .derece = Derece::Uyari});
  return uyarilar;
}

Durum AylikBildirge::XmlKosullari() const {
  if (bildirge_.satirlar.empty()) return KuralKusuru(Hesaplatilmamis);
  if (bildirge_.secim.belgeTuru != 0) return KuralKusuru("Bildirgeyi  Tüm Sigorta Kolları İçin Hesaplatın");
  return Tamam();
}

std::string AylikBildirge::XmlYolu() const {
  return VeriYolu(o_.FirmaDizini).YerelDizin() + XmlDosyaAdi(bildirge_.secim);
}

Sonuc<std::optional<std::string>> AylikBildirge::XmlHazirla(const Yurutucu& yurut) {
  const auto karar = BildirgeKontrol();
  if (!karar) return karar.Kusuru();
  if (*karar == Karar::Vazgecildi) return std::optional<std::string>();
  Sonuc<BildirgeDosyasi> dosya = BildirgeDosyasi();
  const bool bitti = yurut(
      [&](Ilerleme* ilerleme) { dosya = Koru([&] { return BildirgeXml(bildirge_, Isyeri(), Yuvarla(), ilerleme); }); });
  if (!dosya) return dosya.Kusuru();
  sorunlar_.insert(sorunlar_.end(), dosya->sorunlar.begin(), dosya->sorunlar.end());
  if (!bitti || (!dosya->sorunlar.empty() && !bildirim_.Soru(SorunMetni(dosya->sorunlar))))
    return std::optional<std::string>();
  return std::optional(std::move(dosya->icerik));
}

Sonuc<AylikBildirge::Karar> AylikBildirge::XmlYaz(const std::string& dosya, const Yurutucu& yurut) {
  const auto icerik = XmlHazirla(yurut);
  if (!icerik) return icerik.Kusuru();
  if (!*icerik) return Karar::Vazgecildi;
  if (const Durum yazildi = HedefeYaz(dosya, **icerik); !yazildi)
    return Kusur{"Verilen Dosya Adı Hatalı. (Örnek: c:\\bordro112003.xml)\n" + yazildi.KusurMetni()};
  return Karar::Devam;
}

Sonuc<AylikBildirge::CiktiKarari> AylikBildirge::KagitKosullari(Cikti cikti) {
  const BildirgeSecimi& secim = bildirge_.secim;
  if (bildirge_.satirlar.empty())
    return bildirim_.Soru(std::string(Hesaplatilmamis) + "Boş Bildirge Basılsın mı ?") ? CiktiKarari::BosForm
                                                                                       : CiktiKarari::Yok;
  const char* const ret = secim.belgeTuru == 0 ? "Bildirge Yazılımında Tümünü Birden Alamazsınız"
                          : secim.kanun == 0   ? "Bildirge Yazılımında kanunların Tümünü Birden Alamazsınız"
                                               : nullptr;
  if (ret != nullptr) return KuralKusuru(std::string(ret) + "\nSigorta Kollarına Göre Alınız");
  if (cikti == Cikti::Tablo && bildirge_.satirlar.size() > KagitKisiSiniri)
    bildirim_.Bilgi("5 veya Daha Fazla Personel için E-Bildirge Kullanma Zorunluluğu Vardır..");
  const auto karar = BildirgeKontrol();
  if (!karar) return karar.Kusuru();
  if (*karar == Karar::Vazgecildi) return CiktiKarari::Yok;
  if (cikti == Cikti::Tablo) EksiUcretleriSoyle();
  return CiktiKarari::Bildirge;
}

}  // namespace belvani
