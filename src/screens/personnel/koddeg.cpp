#include "screens/personnel/koddeg.h"

#include "personnel/kart.h"

namespace belvani {
namespace {

// Shown beside the old code.
struct KodunSahibi {
  std::string sskno, adsoyad;
};

std::vector<AlanGrubu> KodGruplari() {
  constexpr int adSoyadHarfi = sicil::adi.boyut + 1 + sicil::soyadi.boyut;
  return {{"Personel",
           {{koddegisikligi::eski, "Eski Kod", {.anahtar = true}},
            {Uye("sskno", &KodunSahibi::sskno, sicil::sskno.boyut), "SSK No", {.kapali = true}},
            {Uye("adsoyad", &KodunSahibi::adsoyad, adSoyadHarfi), "Adı Soyadı", {.kapali = true}}}},
          {"Değişiklik",
           {{koddegisikligi::yeni, "Yeni Kod", {.kayitDisi = true}},
            {koddegisikligi::bagli,
             "Aile, devir ve cari kayıtları da taşınsın",
             {.kayitDisi = true, .ipucu = "İşaretlenmezse bu kayıtlar eski kodda kalır"}}}}};
}

}  // namespace

koddeg::koddeg(EkranBaglami& baglam) : PersonelFormu(baglam, "koddeg", QStringLiteral("Personel Kod Değişikliği")) {
  AlanlariDiz({KodGruplari()});
  YaziEkle(QStringLiteral("Kart, kimlik, resim ve bordrolar yeni koda geçer."), "soluk");
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Değiştir", .islev = [this] { Degistir(); }}});
  PersonelKomutlari(koddegisikligi::eski);
}

bool koddeg::Bul(const std::string& kod) {
  const auto kart = KartBul(Oturumu(), kod);
  Yukle(kart ? KodunSahibi{kart->sskno, kart->adi + " " + kart->soyadi} : KodunSahibi());
  AnahtarKoy(kart ? kart->kod : kod);
  Denetim(koddegisikligi::yeni).Temizle();
  AlaniSec();
  return kart.has_value();
}

void koddeg::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Bul(kart->kod);
}

void koddeg::Degistir() {
  KodDegisikligi d;
  if (!EkrandakiMi() || !Oku(d)) return;
  const auto degisim = KodDegistir(Oturumu(), d);
  if (!degisim) {
    for (const Kusur& kusur : degisim.Kusuru()) Bildir(kusur);
    return AlaniSec();
  }
  Bildirimi().Bilgi(degisim->Metin());
  Temizle();
  KoddanBasla();
}

}  // namespace belvani
