#include "screens/personnel/vizite1.h"

#include <QGroupBox>

#include "ozluk/vizitekagidi.h"

namespace belvani {
namespace {

constexpr double EnCokTutar = 999'999'999.99;
constexpr int EnCokYil = 9999;
constexpr int EnCokAy = 12;
constexpr int GorunenAy = 11;  // a small display has no room for the twelfth
constexpr int EnCokGun = 30;
constexpr int EnCokIzin = 99;

// A year has no thousands mark.
SatirKolonu<ViziteAyi> YilKolonu() {
  auto kolon = UyeKolonu("yil", "Yıl", 70, &ViziteAyi::yil, {.enCok = EnCokYil});
  kolon.metin = [](const ViziteAyi& ay, std::size_t) { return ay.yil == 0 ? "" : std::to_string(ay.yil); };
  return kolon;
}

std::vector<SatirKolonu<ViziteAyi>> AyKolonlari(int paraonda) {
  const KolonEki tutar{.enCok = EnCokTutar, .ondalik = paraonda};
  return {YilKolonu(),
          UyeKolonu("ay", "Ay", 50, &ViziteAyi::ay, {.enCok = EnCokAy}),
          UyeKolonu("gun", "Gün Sayısı", 90, &ViziteAyi::gun, {.enCok = EnCokGun}),
          UyeKolonu("ucret", "Ücret", 130, &ViziteAyi::ucret, tutar),
          UyeKolonu("ekodeme", "Ek Ödeme", 130, &ViziteAyi::ekodeme, tutar),
          UyeKolonu("prim", "Prim İkramiye", 130, &ViziteAyi::prim, tutar),
          UyeKolonu("izin", "Ü.İ.G.", 70, &ViziteAyi::izin, {.enCok = EnCokIzin})};
}

AlanGrubu ViziteKimligi() {
  return {"Kimlik",
          {{Uye("dogtar", &ViziteFormu::dogtar), "Doğum Tarihi"},
           {Uye("tcno", &ViziteFormu::tcno, kimlik::tcno.boyut), "T.C. Kimlik No"}}};
}

}  // namespace

vizite1::vizite1(EkranBaglami& baglam)
    : ViziteEkrani(baglam, "vizite1", QStringLiteral("Sigortalıya Ait Vizite Kağıdı"), ViziteTuru::Sigortali),
      liste_(new dclist(baglam.bildirim, this)),
      tablo_(*liste_, AyKolonlari(baglam.oturum.firma.paraonda)) {
  AlanGrubu vizite = TarihGrubu("Düzenleme Tarihi", "Vizite Tarihi", false);
  vizite.alanlar.push_back({Uye("saati", &ViziteFormu::saat, ViziteFormu::SaatHarfi), "Saati"});
  AlanlariDiz({{KisiGrubu()}, {vizite}, {ViziteKimligi()}});
  liste_->setObjectName("dclist1");
  liste_->Model().KolonAyari(0).grup = 0;
  liste_->Editable(true);
  liste_->YeniSatirli(false);
  liste_->horizontalHeader()->setSectionsClickable(false);  // the months stay in their order
  SatirlaraYerAc(*liste_, GorunenAy);
  liste_->HucreDegisti = [this](int, const QString&) { ToplamlariGoster(); };
  liste_->SatirSil = [this](int satir) {
    HucreyiBosalt(satir);
    return false;
  };
  Govde()->addWidget(liste_, 1);
  toplamlar_ = YaziEkle({}, "baslik");
  Baslat();
  AylariGoster({}, false);
}

// What was typed stays with its month when only the visit has moved.
void vizite1::AylariGoster(const ViziteAylari& aylar, bool ayniKisi) {
  ViziteAylari yeni = aylar;
  if (ayniKisi) YazilaniTasi(Okunan(), yeni);
  aylar_ = yeni;
  tablo_.Doldur({yeni.begin(), yeni.end()});
  ToplamlariGoster();
}

ViziteAylari vizite1::Okunan() const {
  ViziteAylari aylar = aylar_;
  for (std::size_t i = 0; i < aylar.size() && int(i) < liste_->ListCount(); ++i) aylar[i] = tablo_.Oku(i, aylar[i]);
  return aylar;
}

bool vizite1::KagidaYaz(ViziteKagidi& kagit) {
  if (!liste_->OkUpdateData()) return false;
  kagit.aylar = Okunan();
  return true;
}

void vizite1::HucreyiBosalt(int satir) {
  liste_->Text(satir, liste_->CurrentCol(), {});
  ToplamlariGoster();
}

void vizite1::ToplamlariGoster() {
  const ViziteToplami t = Topla(Okunan());
  const int onda = Oturumu().firma.paraonda;
  toplamlar_->setText(
      Yazi("Gün : " + std::to_string(t.gun) + "    Ücret : " + TutarMetni(t.ucret, onda) +
           "    Ek Ödeme : " + TutarMetni(t.ekodeme, onda) + "    Prim İkramiye : " + TutarMetni(t.prim, onda) +
           "    Toplam : " + TutarMetni(t.Tutarlar(), onda) + "    Ücretli İzin : " + std::to_string(t.izin) + " gün"));
}

}  // namespace belvani
