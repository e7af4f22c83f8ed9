#include "declarations/aylikbildirge.h"

#include "core/dosya.h"
#include "core/sayi.h"
#include "core/session/aracibilgi.h"
#include "core/store/satirlar.h"
#include "declarations/bildirgesorgu.h"

namespace belvani {
namespace {

constexpr std::size_t KodHanesi = 2;
constexpr std::size_t KagitKisiSiniri = 5;
constexpr std::size_t SorunSiniri = 10;
constexpr int Gruplama = 3;

constexpr const char* Hesaplatilmamis = "Bildirge Hesaplatılmamış";

std::vector<std::string> BelgeTuruListesi(const HesapTurleri& turler) {
  std::vector<std::string> liste{"00-Tümü"};
  for (const auto& tur : turler)
    if (tur.no > 0) liste.push_back(IkiHane(tur.no) + "-" + tur.ack);
  return liste;
}

std::optional<Firma> FirmaKaydi(Motor& motor) {
  auto firmalar = KayitlariOku<Firma>(motor);
  if (firmalar.empty()) return std::nullopt;
  return std::move(firmalar.front());
}

std::string SorunMetni(const std::vector<std::string>& sorunlar) {
  std::string metin = "Dosyaya olduğu gibi yazılamayan bilgiler var:\n";
  for (std::size_t i = 0; i < std::min(sorunlar.size(), SorunSiniri); ++i) metin += sorunlar[i] + "\n";
  if (sorunlar.size() > SorunSiniri) metin += "… ve " + std::to_string(sorunlar.size() - SorunSiniri) + " bilgi daha\n";
  return metin + "Bu Haliyle Yazılsın mı ?";
}

}  // namespace

AylikBildirge::AylikBildirge(Oturum& oturum, const YasalParametreler& yasal, Bildirim& bildirim)
    : o_(oturum), yasal_(yasal), bildirim_(bildirim) {}

// Runs `is`; a failure of the store and an amount out of range are told and give false.
template <class Is>
bool AylikBildirge::Koru(Is&& is) {
  try {
    is();
    return true;
  } catch (const MotorHatasi& h) {
    bildirim_.Uyari(h.what());
  } catch (const TutarTasmasi& h) {
    bildirim_.Uyari(h.what());
  }
  return false;
}

bool AylikBildirge::Ac() {
  bildirge_ = {};
  bildirge_.secim.yil = o_.firma.firmayil;
  bildirge_.secim.ay = o_.firma.firmaay;
  belgeTurleri_ = BelgeTuruListesi(yasal_.hesapTurleri);
  kanunlar_ = {"Tümü"};
  tehlikeOrani_ = {};
  return Koru([&] {
    Motor& motor = o_.depo.db.IcMotor();
    for (auto& kanun : KisiKanunlari(motor)) kanunlar_.push_back(std::move(kanun));
    if (const auto firma = FirmaKaydi(motor))
      tehlikeOrani_ = TehlikeOrani(firma->tehlike, firma->sinif.Sayi());
    else
      bildirim_.Bilgi("İşyeri Tanımlamaları Yapılmamış");
    OranlariYukle();
  });
}

int AylikBildirge::BelgeTuru() const {
  return BastakiSayi(std::string_view(belgeTurleri_[std::size_t(bildirge_.secim.belgeTuru)]).substr(0, KodHanesi));
}

bool AylikBildirge::Hesapla() {
  OranlariYukle();
  if (Koru([&] { AylikBildirgeHesapla(); }) && PrimleriHesapla()) return true;
  OranlariYukle();
  return false;
}

// Clears what an earlier calculation left.
void AylikBildirge::OranlariYukle() {
  const BildirgeSecimi secim = bildirge_.secim;
  bildirge_ = {};
  bildirge_.secim = secim;
  bildirge_.PrimOran = PrimOranlari(yasal_, BelgeTuru(), tehlikeOrani_);
}

void AylikBildirge::AylikBildirgeHesapla() {
  Motor& motor = o_.depo.db.IcMotor();
  const BildirgeSecimi& secim = bildirge_.secim;
  const auto firma = FirmaKaydi(motor);
  const BildirgeKosullari kosullar{
      yasal_, {secim.yil, secim.ay, firma && firma->tersfirma ? DonemTuru::Ters : DonemTuru::Takvim}, Yuvarla()};
  BildirgeSuzgeci suzgec{.yil = secim.yil, .ay = secim.ay, .belgeTuru = BelgeTuru()};
  if (secim.kanun > 0) suzgec.kanun = kanunlar_[std::size_t(secim.kanun)];
  BildirgeKayitlariOku(motor, suzgec, [&](const BildirgeKaydi& kayit) { KaydiEkle(bildirge_, kayit, kosullar); });
}

bool AylikBildirge::PrimleriHesapla() {
  bildirge_.prim = {};
  return Koru([&] {
    bildirge_.prim =
        belvani::PrimleriHesapla(bildirge_.toplamlar, bildirge_.PrimOran, bildirge_.DevletKatki, Yuvarla());
  });
}

bool AylikBildirge::ToplamlariYenile() {
  bildirge_.toplamlar = {};
  const bool toplandi = Koru([&] { bildirge_.toplamlar = belvani::ToplamlariYenile(bildirge_.satirlar, yasal_); });
  return PrimleriHesapla() && toplandi;
}

bool AylikBildirge::SatirYaz(std::size_t sira, BildirgeSatiri satir) {
  if (sira >= bildirge_.satirlar.size())
    bildirge_.satirlar.push_back(Duzenli(std::move(satir)));
  else
    bildirge_.satirlar[sira] = Duzenli(std::move(satir));
  return ToplamlariYenile();
}

bool AylikBildirge::SatirSil(std::size_t sira) {
  if (sira < bildirge_.satirlar.size()) bildirge_.satirlar.erase(bildirge_.satirlar.begin() + std::ptrdiff_t(sira));
  return ToplamlariYenile();
}

bool AylikBildirge::ToplamlariYaz(const BildirgeToplamlari& toplamlar) {
  bildirge_.toplamlar = toplamlar;
  return PrimleriHesapla();
}

std::string AylikBildirge::OranMetni(std::size_t brans) const {
  return SayiMetni(bildirge_.PrimOran[brans].Sayi());
}

std::string AylikBildirge::PrimMetni(std::size_t brans) const {
  return SayiFormat(YalinMetin(bildirge_.prim.primler[brans]), o_.firma.paraonda, Gruplama);
}

std::string AylikBildirge::GenelToplamMetni() const {
  return SayiFormat(YalinMetin(bildirge_.prim.genelToplam), o_.firma.paraonda, Gruplama);
}

IsyeriBilgileri AylikBildirge::Isyeri() {
  Firma firma;
  Koru([&] { firma = FirmaKaydi(o_.depo.db.IcMotor()).value_or(Firma()); });
  return IsyeriniHazirla(firma, AraciOku(o_).kod);
}

bool AylikBildirge::BildirgeKontrol() {
  return belvani::BildirgeKontrol(bildirge_, Isyeri(), bildirim_);
}

bool AylikBildirge::XmlKosullari() {
  const bool bos = bildirge_.satirlar.empty();
  if (bos)
    bildirim_.Bilgi(Hesaplatilmamis);
  else if (bildirge_.secim.belgeTuru != 0)
    bildirim_.Bilgi("Bildirgeyi  Tüm Sigorta Kolları İçin Hesaplatın");
  return !bos && bildirge_.secim.belgeTuru == 0;
}

std::string AylikBildirge::XmlYolu() const {
  return o_.FirmaDizini + XmlDosyaAdi(bildirge_.secim);
}

std::optional<std::string> AylikBildirge::XmlHazirla() {
  const IsyeriBilgileri isyeri = Isyeri();
  if (!belvani::BildirgeKontrol(bildirge_, isyeri, bildirim_)) return std::nullopt;
  BildirgeDosyasi dosya;
  if (!Koru([&] { dosya = BildirgeXml(bildirge_, isyeri, Yuvarla()); })) return std::nullopt;
  if (!dosya.sorunlar.empty() && !bildirim_.Soru(SorunMetni(dosya.sorunlar))) return std::nullopt;
  return std::move(dosya.icerik);
}

bool AylikBildirge::XmlYaz(const std::string& dosya) {
  const auto icerik = XmlHazirla();
  if (!icerik) return false;
  if (const Durum yazildi = DosyaYaz(dosya, *icerik); !yazildi) {
    bildirim_.Uyari("Verilen Dosya Adı Hatalı. (Örnek: c:\\bordro112003.xml)\n" + yazildi.KusurMetni());
    return false;
  }
  bildirim_.Bilgi("XML Dosya Hazırlandı");
  return true;
}

AylikBildirge::CiktiKarari AylikBildirge::KagitKosullari(Cikti cikti) {
  const BildirgeSecimi& secim = bildirge_.secim;
  if (bildirge_.satirlar.empty())
    return bildirim_.Soru(std::string(Hesaplatilmamis) + "Boş Bildirge Basılsın mı ?") ? CiktiKarari::BosForm
                                                                                       : CiktiKarari::Yok;
  const char* const ret = secim.belgeTuru == 0 ? "Bildirge Yazılımında Tümünü Birden Alamazsınız"
                          : secim.kanun == 0   ? "Bildirge Yazılımında kanunların Tümünü Birden Alamazsınız"
                                               : nullptr;
  if (ret != nullptr) {
    bildirim_.Bilgi(std::string(ret) + "\nSigorta Kollarına Göre Alınız");
    return CiktiKarari::Yok;
  }
  if (cikti == Cikti::Tablo && bildirge_.satirlar.size() > KagitKisiSiniri)
    bildirim_.Bilgi("5 veya Daha Fazla Personel için E-Bildirge Kullanma Zorunluluğu Vardır..");
  return BildirgeKontrol() ? CiktiKarari::Bildirge : CiktiKarari::Yok;
}

}  // namespace belvani
