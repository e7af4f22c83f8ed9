#include "screens/personnel/nufus.h"

#include "core/tckimlik.h"
#include "personnel/kimlik.h"
#include "ui/cakisma.h"

namespace belvani {
namespace {

std::vector<std::vector<AlanGrubu>> NufusGruplari() {
  return {{{"Personel", {EtiketliAlan(kimlik::kod, {.anahtar = true}), AdSoyAlani()}, 2},
           {"Kimlik",
            {EtiketliAlan(kimlik::serino), EtiketliAlan(kimlik::tcno, {.harf = 15}),
             EtiketliAlan(kimlik::cins, {.liste = Cinsiyetler, .harf = 13}),
             EtiketliAlan(kimlik::medeni, {.liste = MedeniHaller, .harf = 13}), EtiketliAlan(kimlik::baba),
             EtiketliAlan(kimlik::ana), EtiketliAlan(kimlik::uyruk, {.harf = 15}), EtiketliAlan(kimlik::dogyer),
             EtiketliAlan(kimlik::dogtar), EtiketliAlan(kimlik::dini, {.liste = Dinler, .harf = 13}),
             EtiketliAlan(kimlik::kan, {.liste = KanGruplari, .harf = 13})},
            2},
           {"Nüfusa Kayıtlı Olduğu Yer",
            {EtiketliAlan(kimlik::il), EtiketliAlan(kimlik::ilce), EtiketliAlan(kimlik::mahkoy),
             EtiketliAlan(kimlik::cilt), EtiketliAlan(kimlik::sayfa), EtiketliAlan(kimlik::kutuk)},
            2}},
          {{"Nüfus Cüzdanı",
            {EtiketliAlan(kimlik::nufusd), EtiketliAlan(kimlik::versebeb), EtiketliAlan(kimlik::kayitno),
             EtiketliAlan(kimlik::vertar)}},
           {"Tahsil ve Adres",
            {EtiketliAlan(kimlik::tahsil, {.liste = Tahsiller, .harf = 13}), EtiketliAlan(kimlik::adr1),
             Alan(kimlik::adr2, ""), EtiketliAlan(kimlik::tel)}}}};
}

}  // namespace

nufus::nufus(EkranBaglami& baglam) : PersonelFormu(baglam, "nufus", QStringLiteral("Personel Kimlik Bilgileri")) {
  AlanlariDiz(NufusGruplari());
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }}});
  PersonelKomutlari(kimlik::kod);
  Bosalt();
}

bool nufus::Bul(const std::string& kod) {
  if (const auto kimlik = KimlikBul(Oturumu(), kod)) {
    Goster(*kimlik);
    return true;
  }
  Bosalt();
  AnahtarKoy(kod);
  AdiGoster(kod);
  return false;
}

void nufus::Git(Yon yon) {
  if (const auto kimlik = KimlikGit(Oturumu(), yon, SonAnahtar())) Goster(*kimlik);
}

void nufus::Bosalt() {
  Temizle();
  okunan_.reset();
}

void nufus::Goster(const Kimlik& kimlik) {
  Bosalt();
  okunan_ = kimlik;
  Yukle(kimlik);
  AnahtarKoy(kimlik.kod);
  AdiGoster(kimlik.kod);
  AlaniSec();
}

// The record stays on the screen; the code of the next person may be typed over this one's.
void nufus::Kaydet() {
  if (!EkrandakiMi()) return;
  Okunan<Kimlik> kimlik{.ilk = okunan_, .simdi = okunan_.value_or(Kimlik{})};
  if (!Oku(kimlik.simdi)) return;
  const auto yazilan =
      SorarakKaydet(Baglam(), *this, kimlik, [this](const Okunan<Kimlik>& k) { return KimlikKaydet(Oturumu(), k); });
  if (!yazilan) return;
  Goster(*yazilan);
  KoddanBasla();
  ZoomEfekt();
  if (const std::string uyari = TcUyarisi(yazilan->tcno); !uyari.empty()) Bildirimi().Uyari(uyari);
}

void nufus::Sil() {
  if (!EkrandakiMi() || !Silindi(KimlikSil(Oturumu(), YazilanAnahtar(), Bildirimi()))) return;
  Bosalt();
  KoddanBasla();
}

}  // namespace belvani
