#include "screens/personnel/escofrm.h"

#include <QKeyEvent>

#include "core/tckimlik.h"
#include "personnel/aile.h"
#include "personnel/kart.h"
#include "ui/cakisma.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct KodluKolon {
  const char* ad;
  Liste secenekler;
  std::uint8_t Esco::*uye;
};

const std::array<KodluKolon, 3> KodluKolonlar{{{"yakinlik", Yakinliklar, &Esco::yakinlik},
                                               {"cins", KodluCinsiyetler, &Esco::cins},
                                               {"agi", AgiDurumlari, &Esco::agiok}}};

struct MetinKolonu {
  const char* ad;
  std::string Esco::*uye;
};

constexpr MetinKolonu MetinKolonlari[] = {{"tckimlik", &Esco::tcno},
                                          {"adi", &Esco::adi},
                                          {"soyadi", &Esco::soyadi},
                                          {"dogyer", &Esco::dogyer},
                                          {"adr", &Esco::adr}};

QStringList Secenekler(Liste liste) {
  QStringList metinler;
  for (const std::string_view secenek : liste) metinler += Yazi(secenek);
  return metinler;
}

std::string AileDili(std::string_view alan, const Deger& deger) {
  for (const auto& [kolon, liste] :
       {std::pair(&esco::yakinlik, Liste(Yakinliklar)), std::pair(&esco::cins, Liste(KodluCinsiyetler)),
        std::pair(&esco::agiok, Liste(AgiDurumlari))})
    if (kolon->ad == alan) return std::string(KodluMetin(liste, std::uint8_t(TamDegeri(deger))));
  return MetinDegeri(deger);
}

}  // namespace

escofrm::escofrm(EkranBaglami& baglam)
    : PersonelFormu(baglam, "escofrm", QStringLiteral("Eş ve Çocuk Bilgileri")),
      liste_(new dclist(baglam.bildirim, this)) {
  AlanlariDiz({{{"Personel", {EtiketliAlan(esco::kod, {.anahtar = true}), AdSoyAlani()}, 2}}});
  ListeyiKur();
  Govde()->addWidget(liste_, 1);
  YaziEkle(QStringLiteral(
               "Listede: Enter düzeltir · Insert yeni satır ekler · Delete siler. Satırdan ayrılınca kaydedilir."),
           "soluk");
  setTabOrder(&YaziKutusu(esco::kod), liste_);
  Komutlar({{.komut = FormKomutu::Kaydet, .islev = [this] { liste_->OkUpdateData(); }}});
  PersonelKomutlari(esco::kod);
}

void escofrm::ListeyiKur() {
  const auto ekle = [this](char tip, const char* ad, auto kolon, int genislik) {
    liste_->CreateNewCaption(tip, ad, Yazi(AlanEtiketi(Esco::TabloAdi, kolon.ad)), genislik, kolon.boyut);
  };
  ekle('a', "tckimlik", esco::tcno, 110);
  ekle('a', "adi", esco::adi, 120);
  ekle('a', "soyadi", esco::soyadi, 120);
  ekle('s', "yakinlik", esco::yakinlik, 100);
  ekle('s', "cins", esco::cins, 90);
  ekle('t', "dogtar", esco::dogtar, 100);
  ekle('a', "dogyer", esco::dogyer, 120);
  ekle('a', "adr", esco::adr, 230);
  ekle('s', "agi", esco::agiok, 90);
  ekle('b', "oto", esco::oto, 0);
  for (const KodluKolon& k : KodluKolonlar) liste_->SecenekKoy(k.ad, Secenekler(k.secenekler));
  liste_->Gizle("oto");
  liste_->GenisKolon("adr");
  liste_->TercihBoyu(1080, 300);
  liste_->SatirGuncelle = [this](int satir) { return SatirKaydet(satir); };
  liste_->SatirSil = [this](int satir) { return SatirSil(satir); };
  liste_->Tus = [this](const QKeyEvent& olay) { return ListeTusu(olay); };
}

// A row that was not taken must not be lost: the list then stays with its person.
bool escofrm::KendiligindenKaydet() {
  if (liste_->OkUpdateData()) return true;
  liste_->setFocus();
  return false;
}

bool escofrm::Bul(const std::string& kod) {
  if (KendiligindenKaydet()) {
    Goster(kod);
    return true;
  }
  AnahtarKoy(kod_);
  return false;
}

void escofrm::Git(Yon yon) {
  if (!KendiligindenKaydet()) return;
  if (const auto kart = KartGit(Oturumu(), yon, kod_)) Goster(kart->kod);
}

void escofrm::Goster(const std::string& kod) {
  kod_ = kod;
  AnahtarKoy(kod);
  AdiGoster(kod);
  liste_->Model().TopluBasla();
  liste_->Clear();
  okunan_.clear();
  for (const Esco& esco : AileOku(Oturumu(), kod)) SatiriGoster(liste_->Add(), esco);
  liste_->Model().TopluBitir();
  liste_->Editable(true);
  liste_->ChngSat(0);
  AlaniSec();
}

void escofrm::SatiriGoster(int satir, const Esco& esco) {
  okunan_[esco.oto] = esco;
  for (const MetinKolonu& k : MetinKolonlari) liste_->TextByName(satir, k.ad, Yazi(esco.*k.uye));
  for (const KodluKolon& k : KodluKolonlar) {
    const std::uint8_t kod = esco.*k.uye;
    const bool secilmemis = kod == 0 && KodSayisi(k.secenekler.front()) != 0;
    liste_->TextByName(satir, k.ad, secilmemis ? QString() : Yazi(KodluMetin(k.secenekler, kod)));
  }
  liste_->TextByName(satir, "dogtar", Yazi(esco.dogtar.Metin()));
  liste_->TextByName(satir, "oto", QString::number(esco.oto));
}

// A coded cell that was never opened stores 0: nobody becomes the spouse by his name alone.
Esco escofrm::SatirdanOku(int satir) const {
  Esco esco;
  esco.kod = kod_;
  for (const MetinKolonu& k : MetinKolonlari) esco.*k.uye = Utf8(liste_->TextByName(satir, k.ad));
  for (const KodluKolon& k : KodluKolonlar) {
    const std::string hucre = Utf8(liste_->TextByName(satir, k.ad));
    esco.*k.uye = hucre.empty() ? std::uint8_t() : KodSayisi(hucre);
  }
  esco.dogtar = Tarih::MetinOku(Utf8(liste_->TextByName(satir, "dogtar")));
  esco.oto = liste_->TextByName(satir, "oto").toInt();
  return esco;
}

bool escofrm::SatirKaydet(int satir) {
  if (!KartBul(Oturumu(), kod_)) {
    Bildir(KuralKusuru("Bu Kodda Personel Yok: " + kod_, esco::kod));
    return false;
  }
  Okunan<Esco> kayit{.ilk = {}, .simdi = SatirdanOku(satir)};
  if (const auto ilk = okunan_.find(kayit.simdi.oto); ilk != okunan_.end()) kayit.ilk = ilk->second;
  const auto yazilan = SorarakKaydet(
      Baglam(), *this, kayit, [this](const Okunan<Esco>& k) { return AileKaydet(Oturumu(), k); }, AileDili);
  if (!yazilan) return false;
  SatiriGoster(satir, *yazilan);
  ZoomEfekt();
  if (const std::string uyari = TcUyarisi(yazilan->tcno); !uyari.empty()) Bildirimi().Uyari(uyari);
  return true;
}

bool escofrm::SatirSil(int satir) {
  const int oto = liste_->TextByName(satir, "oto").toInt();
  const bool hicKaydedilmedi = oto == 0;
  if (hicKaydedilmedi)
    return Bildirimi().SilinsinMi("Kayıt Silinecek ?", Utf8(liste_->TextByName(satir, "adi")),
                                  SoruDugmeleri::TamamIptal);
  const auto silme = AileSil(Oturumu(), oto, Bildirimi());
  // What another user has deleted goes from the list too.
  const bool yokmus = !silme && silme.Kusuru().derece == Derece::Bilgi;
  return Silindi(silme) || yokmus;
}

// Keys of the screen that the list would keep for its own rows.
bool escofrm::ListeTusu(const QKeyEvent& olay) {
  const bool kisiTusu =
      olay.key() == Qt::Key_PageUp || olay.key() == Qt::Key_PageDown || olay.key() == Qt::Key_F2 ||
      olay.key() == Qt::Key_F5 ||
      (olay.modifiers() == Qt::ControlModifier && (olay.key() == Qt::Key_Home || olay.key() == Qt::Key_End));
  if (!kisiTusu) return false;
  QKeyEvent ekrana(QEvent::KeyPress, olay.key(), olay.modifiers());
  keyPressEvent(&ekrana);
  return true;
}

}  // namespace belvani
