#include "screens/personnel/pergiralanlar.h"

namespace belvani {
namespace {

constexpr int VergiNoHarfi = 11;
constexpr int EskiIsyeriHarfi = 34;
constexpr int SskNoHarfi = 20;
constexpr int ListeHarfi = 22;

constexpr std::array<std::string_view, SandikSayisi> SandikAdlari{"sandik0", "sandik1", "sandik2"};
constexpr std::array<std::string_view, SandikSayisi> SandikNoAdlari{"sandikNo0", "sandikNo1", "sandikNo2"};
constexpr std::array<std::string_view, SandikSayisi> AylikAdlari{"sandikAyligi0", "sandikAyligi1", "sandikAyligi2"};

}  // namespace

AlanGrubu GirisBasligi() {
  return {"Personel",
          {{sicil::kod, "Sicil no", {.anahtar = true}},
           {sicil::sskno, "SSK No", {.harf = SskNoHarfi}},
           {Uye("tur", &GirisEki::tur), "Giriş Türü", {.liste = GirisTurleri}}}};
}

AlanGrubu GirisKimligi() {
  return {"Kimlik",
          {{kimlik::serino, "1-Nüfus Seri No"},
           {kimlik::tcno, "2-TC Kimlik No"},
           {sicil::soyadi, "3- Soyadı"},
           {sicil::ilksoyadi, "4-İlk Soyadı"},
           {sicil::adi, "5-Adı"},
           {kimlik::baba, "6-Baba Adı"},
           {kimlik::ana, "7-Ana Adı"},
           {kimlik::dogyer, "8-Doğum Yeri"},
           {kimlik::dogtar, "9-Doğum Tarihi"},
           {kimlik::cins, "10-Cinsiyeti", {.liste = Cinsiyetler}},
           {kimlik::uyruk, "11-Uyruk", {.ipucu = "T.C., yabancıda ülkesinin adı"}}}};
}

AlanGrubu GirisNufusKaydi() {
  return {"Nüfusa Kayıtlı Olduğu Yer",
          {{kimlik::il, "İl"},
           {kimlik::ilce, "İlçe"},
           {kimlik::mahkoy, "Mahalle/Köy"},
           {kimlik::cilt, "Cilt No"},
           {kimlik::sayfa, "Sıra(Sayfa) No"},
           {kimlik::kutuk, "Hane (Kütük)"}},
          2};
}

AlanGrubu GirisAdresi() {
  return {"Adres ve Öğrenim",
          {{kimlik::adr1, "Adresi"}, {kimlik::adr2, ""}, {kimlik::tahsil, "12-Öğrenimi", {.liste = Tahsiller}}}};
}

SandikAlanlari SandikSatiri(std::size_t sandik) {
  return {DiziAlani(SandikAdlari[sandik], &GirisEki::sandik, sandik, Sandiklar[sandik].data()),
          DiziAlani(SandikNoAdlari[sandik], &GirisEki::sandikNo, sandik, "Sicil/Sandık No", {}, GirisEki::NoHarfi),
          DiziAlani(AylikAdlari[sandik], &GirisEki::sandikAyligi, sandik, SandikAyligi[sandik].data())};
}

AlanGrubu GirisEskiIsyeri() {
  return {"14-Eski İşyeri Bilgileri",
          {{Uye("eskiUnvan", &GirisEki::eskiUnvan, GirisEki::UnvanHarfi), "Ünvanı", {.harf = EskiIsyeriHarfi}},
           {Uye("eskiAdres", &GirisEki::eskiAdres, GirisEki::AdresHarfi), "Adresi", {.harf = EskiIsyeriHarfi}},
           {Uye("eskiIl", &GirisEki::eskiIl, GirisEki::YerHarfi), "İli"},
           {Uye("eskiIlce", &GirisEki::eskiIlce, GirisEki::YerHarfi), "İlçe"}}};
}

AlanGrubu GirisBilgileri() {
  return {"İşe Giriş",
          {{Uye("vergiNo", &GirisEki::vergiNo, VergiNoHarfi), "15-Vergi No"},
           {sicil::girtar, "İşe Giriş Tarihi"},
           {giriseki::islemTarihi, "İşlem Tarihi", {.ipucu = "Bildirgenin verildiği gün"}},
           {sicil::sskdurum, "SSK Durumu", {.liste = SonraDolar, .harf = ListeHarfi}},
           {giriseki::emekliTercihi, "SSK'dan Yaşlılık Aylığı\nAlıyorsa Tercihi", {.liste = EmekliTercihleri}},
           {sicil::tahsisno, "Tahsis No"}}};
}

}  // namespace belvani
