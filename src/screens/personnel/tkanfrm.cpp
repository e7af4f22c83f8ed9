#include "screens/personnel/tkanfrm.h"

#include "ui/listedoldur.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr int KanunHarfi = 8;

std::vector<AlanGrubu> KanunGruplari() {
  return {{"Değişecekler",
           {{kanunsecimi::eskiyeGore, "Eski Tabi Olduğu Kanun", {.kayitDisi = true}},
            {kanunsecimi::eski,
             "Eski Kanun No",
             {.harf = KanunHarfi, .kayitDisi = true, .ipucu = "00000: kanunu olmayanlar"}}},
           2},
          {"Değişiklik",
           {{kanunsecimi::yeni, "Yeni Kanun  Kanun No", {.harf = KanunHarfi, .kayitDisi = true}},
            {kanunsecimi::sorarak, "Her Personelde Sorulsun", {.kayitDisi = true}}},
           2}};
}

}  // namespace

tkanfrm::tkanfrm(EkranBaglami& baglam)
    : Form(baglam, "tkanfrm", QStringLiteral("Toplu Kanun değiştirme")), liste_(new dclist(baglam.bildirim, this)) {
  AlanlariDiz({KanunGruplari()});
  ListeyiKur();
  sayilar_ = YaziEkle({}, "soluk");
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Değiştir", .islev = [this] { Degistir(); }},
            {.komut = FormKomutu::Kapat, .dugme = "Vazgeç", .ad = "Command2"}});
  AlanDegisti = [this](AlanDenetimi& alan) {
    const AlanTutamagi hangi = alan.Satir().Tutamak();
    if (hangi != kanunsecimi::eski && hangi != kanunsecimi::eskiyeGore) return;
    Denetim(kanunsecimi::eski).Kapat(!Secim().eskiyeGore);
    // A law that is half typed finds nobody; it is told of when the command is given.
    const auto liste = KanunluKisiler(Oturumu(), Secim());
    Goster(liste ? *liste : KanunListesi());
  };
  Denetim(kanunsecimi::eski).Kapat(true);
  Listele();
}

void tkanfrm::ListeyiKur() {
  liste_->CreateNewCaption('m', "kod", "Personel Kodu", 110);
  liste_->CreateNewCaption('m', "sskno", "SSK No", 150);
  liste_->CreateNewCaption('m', "tcno", "T.C. No", 120);
  liste_->CreateNewCaption('m', "adsoyad", "Ad Soyad", 240);
  liste_->CreateNewCaption('m', "kanun", "Kanun No", 80);
  liste_->GenisKolon("adsoyad");
  liste_->TercihBoyu(740, 320);
  liste_->setObjectName("liste");
  Govde()->addWidget(liste_, 1);
}

KanunSecimi tkanfrm::Secim() const {
  KanunSecimi secim;
  for (const auto& d : Denetimler()) d->Satir().yaz(&secim, d->Oku());
  return secim;
}

bool tkanfrm::Listele() {
  auto liste = KanunluKisiler(Oturumu(), Secim());
  if (!Oldu(liste)) return false;
  Goster(std::move(*liste));
  return true;
}

void tkanfrm::Goster(KanunListesi liste) {
  kisiler_ = std::move(liste.kisiler);
  ListeDoldur(*liste_, kisiler_, [](const KanunluKisi& k) {
    return std::array{k.kod, k.sskno, k.tcno, k.adsoyad, k.kanun};
  });
  std::string metin = std::to_string(kisiler_.size()) + " kişi değişecek";
  if (liste.kimliksiz != 0) metin += "; kimlik kaydı olmayan " + std::to_string(liste.kimliksiz) + " kişi listede yok";
  sayilar_->setText(Yazi(metin));
}

// Everything is asked before anything is written.
void tkanfrm::Degistir() {
  const KanunSecimi secim = Secim();
  const auto kanun = KanunOku(secim.yeni, kanunsecimi::yeni);
  if (!Oldu(kanun) || !Listele()) return;
  const auto degisecekler = KanunuDegisecekler(kisiler_, secim.sorarak, Bildirimi());
  const auto degisim = UzunIs(Baglam(), QStringLiteral("Kanun numaraları değiştiriliyor…"), [&](Ilerleme& ilerleme) {
    return KanunDegistir(Oturumu(), degisecekler, *kanun, &ilerleme);
  });
  if (!degisim || !Oldu(*degisim)) return;
  for (const Kusur& kusur : (*degisim)->yazilmayan) Bildirimi().Uyari(kusur.metin + "\n Kod:" + kusur.kod);
  Listele();
  Bildirimi().Bilgi("Değiştirme Tamamlandı");
}

}  // namespace belvani
