#include "screens/core/kulfrm.h"

#include "ui/metin.h"

namespace belvani {
namespace {

// What is typed on the screen.
struct Giris {
  std::string ad, eski, yeni, onay;
};

const std::vector<AlanGrubu> Gruplar{
    {"Kullanıcı",
     {{Uye("ad", &Giris::ad, peruser::kod.boyut), "Kullanıcı Adı", {.harf = 14}},
      {Uye("eski", &Giris::eski, peruser::pasw.boyut), "Eski Şifre", {.harf = 14, .sifre = true}},
      {Uye("yeni", &Giris::yeni, peruser::pasw.boyut), "Yeni Şifre", {.harf = 14, .sifre = true}},
      {Uye("onay", &Giris::onay, peruser::pasw.boyut), "Onay Şifre", {.harf = 14, .sifre = true}}}}};

}  // namespace

kulfrm::kulfrm(EkranBaglami& baglam)
    : Form(baglam, "kulfrm", QStringLiteral("Kullanıcı İşlemleri")), liste_(new dclist(baglam.bildirim, this)) {
  liste_->CreateNewCaption('m', "kod", "Kullanıcı", 180);
  liste_->CreateNewCaption('m', "pasw", "Şifre", 0);
  liste_->Gizle("pasw");
  liste_->setObjectName("dclist1");
  liste_->GenisKolon("kod");
  liste_->setMinimumSize(220, 180);
  liste_->SatirSecildi = [this](int satir) { Goster(satir); };
  // The current row too: it takes the place of what was typed meanwhile.
  connect(liste_, &QTableView::clicked, this, [this] { Goster(liste_->CurSat()); });
  AlanlariDiz({Gruplar});
  Govde()->addWidget(liste_, 1);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }}});
  ListeyiDoldur();
}

void kulfrm::Goster(int satir) {
  Yukle(Giris{Utf8(liste_->TextByName(satir, "kod")), Utf8(liste_->TextByName(satir, "pasw")), {}, {}});
}

// The list comes back on its first user.
void kulfrm::ListeyiDoldur() {
  Temizle();
  liste_->Clear();
  for (const Peruser& kullanici : Kullanicilar(Oturumu())) {
    const int satir = liste_->Add();
    liste_->TextByName(satir, "kod", Yazi(kullanici.kod));
    liste_->TextByName(satir, "pasw", Yazi(kullanici.pasw));
  }
  liste_->ChngSat(0);
}

void kulfrm::Kaydet() {
  Giris giris;
  if (!Oku(giris)) return;
  if (!KullaniciKaydet(Oturumu(), giris.ad, giris.eski, giris.yeni, giris.onay, Bildirimi())) return;
  ZoomEfekt();
  ListeyiDoldur();
  IlkAlanaGit();
}

void kulfrm::Sil() {
  Giris giris;
  if (!Oku(giris) || !KullaniciSil(Oturumu(), giris.ad, Bildirimi())) return;
  ListeyiDoldur();
  IlkAlanaGit();
}

}  // namespace belvani
