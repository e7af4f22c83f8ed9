#include "screens/core/kulfrm.h"

#include "ui/listedoldur.h"

namespace belvani {
namespace {

const std::vector<AlanGrubu> KullaniciGruplari{{"Kullanıcı",
                                                {{kullanicigirisi::ad, "Kullanıcı Adı", {.harf = 14}},
                                                 {kullanicigirisi::eski, "Eski Şifre", {.harf = 14, .sifre = true}},
                                                 {kullanicigirisi::yeni, "Yeni Şifre", {.harf = 14, .sifre = true}},
                                                 {kullanicigirisi::onay, "Onay Şifre", {.harf = 14, .sifre = true}}}}};

}  // namespace

kulfrm::kulfrm(EkranBaglami& baglam)
    : Form(baglam, "kulfrm", QStringLiteral("Kullanıcı İşlemleri")), liste_(new dclist(baglam.bildirim, this)) {
  liste_->CreateNewCaption('m', "kod", "Kullanıcı", 180);
  liste_->CreateNewCaption('m', "pasw", "Şifre", 0);
  liste_->Gizle("pasw");
  liste_->setObjectName("dclist1");
  liste_->GenisKolon("kod");
  liste_->TercihBoyu(220, 180);
  liste_->SatirSecildi = [this](int satir) { Sec(satir); };
  // The current row too, where a new user was to be typed.
  connect(liste_, &QTableView::clicked, this, [this] {
    if (!Kaydedilmemis()) Goster(liste_->CurSat());
  });
  AlanlariDiz({KullaniciGruplari});
  Govde()->addWidget(liste_, 1);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }}});
  ListeyiDoldur();
}

// Whoever was being typed stays when his user does.
void kulfrm::Sec(int satir) {
  if (secilen_ == satir) return;
  if (!YazilanBirakilir()) return liste_->ChngSat(secilen_);
  Goster(satir);
}

void kulfrm::Goster(int satir) {
  secilen_ = satir;
  Yukle(KullaniciGirisi{Utf8(liste_->TextByName(satir, "kod")), Utf8(liste_->TextByName(satir, "pasw")), {}, {}});
}

// The list comes back on its first user.
void kulfrm::ListeyiDoldur() {
  Temizle();
  secilen_ = -1;
  ListeDoldur(*liste_, Kullanicilar(Oturumu()), [](const Peruser& k) { return std::array{k.kod, k.pasw}; });
}

void kulfrm::Kaydet() {
  KullaniciGirisi giris;
  if (!Oku(giris)) return;
  const auto kaydedilen = KullaniciKaydet(Oturumu(), giris);
  if (!Oldu(kaydedilen) || !*kaydedilen) return;
  ZoomEfekt();
  ListeyiDoldur();
  IlkAlanaGit();
}

void kulfrm::Sil() {
  KullaniciGirisi giris;
  if (!Oku(giris) || !Silindi(KullaniciSil(Oturumu(), giris.ad, Bildirimi()))) return;
  ListeyiDoldur();
  IlkAlanaGit();
}

}  // namespace belvani
