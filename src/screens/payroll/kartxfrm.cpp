#include "screens/payroll/kartxfrm.h"

#include "payroll/devir/aylikbilgi.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct KartYili {
  std::int16_t yil;
};

constexpr auto Yil = Uye("kartyili", &KartYili::yil);

std::vector<SatirKolonu<Brd>> KartKolonlari(int paraonda) {
  std::vector<SatirKolonu<Brd>> kolonlar;
  for (const Kolon<Brd, std::uint8_t>& gun : {brd::ay, brd::ng, brd::ht, brd::ui, brd::rt, brd::eksiksebebi})
    kolonlar.push_back(EtiketliKolon(gun, 42));
  const auto tutar = [&](const Kolon<Brd, Tutar>& kolon, const char* ad = nullptr) {
    kolonlar.push_back(EtiketliKolon(kolon, 80, {.ondalik = paraonda}));
    if (ad != nullptr) kolonlar.back().ad = ad;
  };
  tutar(brd::sskmatrah);
  tutar(brd::sskkesinti);
  tutar(brd::sskmatrahisveren, "sskisvrmatrah");
  tutar(brd::sskkesintiisveren, "sskisvrkesinti");
  for (const auto& kolon : {brd::gvmatrah, brd::gvtutar, brd::dvmatrah, brd::dvtutar, brd::ogv}) tutar(kolon);
  return kolonlar;
}

}  // namespace

kartxfrm::kartxfrm(EkranBaglami& baglam)
    : KisiSatirlari(baglam, "kartxfrm", QStringLiteral("Personel Aylık Bilgileri"),
                    KartKolonlari(baglam.oturum.firma.paraonda)),
      yil_(baglam.oturum.firma.firmayil) {
  AlanlariDiz({{{"Personel",
                 {Alan(brd::kod, "Sicil No", {.anahtar = true}), AdSoyAlani(),
                  Alan(Yil, "Dönem Yıl", {.enCok = EnBuyukGirdi(brd::yil), .harf = 6, .kayitDisi = true})},
                 3}}});
  Liste().TercihBoyu(1300, 420);
  ListeyiAc(brd::kod);
  YaziEkle(QStringLiteral("Yazılan olduğu gibi saklanır, hesaplama yapılmaz."), "soluk");
  setTabOrder(&YaziKutusu(brd::kod), &YaziKutusu(Yil));
  setTabOrder(&YaziKutusu(Yil), &Liste());
  Yukle(KartYili{std::int16_t(yil_)});
  // A message may come up, so it waits until the field is left.
  connect(&YaziKutusu(Yil), &xtext::Ayrildi, this, &kartxfrm::YilaGec, Qt::QueuedConnection);
}

// A row that was refused stays with its year.
void kartxfrm::YilaGec() {
  KartYili secilen{};
  if (!Oku(secilen) || secilen.yil == yil_) return;
  if (!KendiligindenKaydet()) return Yukle(KartYili{std::int16_t(yil_)});
  yil_ = secilen.yil;
  if (!Kisi().empty()) Yenile();
}

std::vector<Brd> kartxfrm::SatirlariOku(const std::string& kod) {
  return AylikBilgiler(Oturumu(), kod, yil_);
}

Yazim<Brd> kartxfrm::Yaz(const Okunan<Brd>& satir) {
  return AylikBilgiKaydet(Oturumu(), satir);
}

Sonuc<Silme> kartxfrm::Sil(const Brd& satir) {
  return AylikBilgiSil(Oturumu(), satir, Bildirimi());
}

// The month after the last one.
Brd kartxfrm::YeniKayit() const {
  Brd yeni;
  yeni.kod = Kisi();
  yeni.yil = std::int16_t(yil_);
  yeni.no = 1;
  const Brd* son = SonKayitli();
  const int ay = son == nullptr ? 1 : son->ay + 1;
  yeni.ay = std::uint8_t(ay <= 12 ? ay : 0);
  return yeni;
}

void kartxfrm::Yazildi(const Okunan<Brd>&, const Brd& yazilan) {
  std::string sozler;
  for (const std::string& soz : AritmetikKusurlari(yazilan, Oturumu().firma.paraonda)) sozler += "\n" + soz;
  if (!sozler.empty()) Bildirimi().Uyari(std::to_string(yazilan.ay) + ". ay yazıldığı gibi saklandı:" + sozler);
}

}  // namespace belvani
