#include "screens/personnel/yakinvizitesi.h"

#include <QGridLayout>
#include <QGroupBox>

#include "core/tables/esco.h"
#include "ozluk/vizitekagidi.h"
#include "ui/metin.h"

namespace belvani {
namespace {

// The days as the screen shows them.
struct GunAlanlari {
  std::array<std::int16_t, 12> gunler{};
  std::int32_t toplam = 0;
};

constexpr const char* GunAdlari[] = {"gun1", "gun2", "gun3", "gun4",  "gun5",  "gun6",
                                     "gun7", "gun8", "gun9", "gun10", "gun11", "gun12"};
constexpr int EnCokToplamGun = 999;  // of several records of a month together
constexpr auto Yakinlik = Uye("yakinlik", &ViziteYakini::yakinlik);
constexpr auto ToplamAlani = Uye("toplam", &GunAlanlari::toplam);

AlanGrubu YakinGrubu(std::vector<Alan> adlar) {
  AlanGrubu grup{"Hasta", {{Yakinlik, "Sigortalıya Yakınlığı", {.liste = ViziteYakinliklari, .harf = 14}}}};
  grup.alanlar.insert(grup.alanlar.end(), adlar.begin(), adlar.end());
  const std::vector<Alan> digerleri{
      {Uye("dogyer", &ViziteYakini::dogyer, esco::dogyer.boyut), "Doğum Yeri"},
      {Uye("dogtar", &ViziteYakini::dogtar), "Doğum Tarihi"},
      {Uye("cins", &ViziteYakini::cins), "Cinsiyeti", {.liste = YakinCinsiyetleri, .harf = 14}},
      {Uye("tcno", &ViziteYakini::tcno, esco::tcno.boyut), "T.C. Kimlik No"},
      {Uye("adr", &ViziteYakini::adr, esco::adr.boyut), "Adresi"}};
  grup.alanlar.insert(grup.alanlar.end(), digerleri.begin(), digerleri.end());
  return grup;
}

}  // namespace

YakinVizitesi::YakinVizitesi(EkranBaglami& baglam, const QString& kelime, const QString& baslik, ViziteTuru tur,
                             std::vector<belvani::Alan> adlar)
    : ViziteEkrani(baglam, kelime, baslik, tur) {
  QWidget* kisi = GrupYap(KisiGrubu());
  QWidget* tarihler = GrupYap(TarihGrubu("Bugünün Tarihi", "Bu Gün", true));
  QWidget* yakin = GrupYap(YakinGrubu(std::move(adlar)));
  Govde()->addLayout(YanYana({{kisi, tarihler}, {yakin}, {GunleriYap()}}));
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().Tutamak() == Yakinlik)
      YakiniGoster();
    else if (alan.Satir().kayitTuru == typeid(GunAlanlari))
      ToplamiGoster();
  };
  Baslat();
  AylariGoster({}, false);
}

// Two columns of six months, their sum below.
QWidget* YakinVizitesi::GunleriYap() {
  constexpr int yari = 6;
  auto* kutu = new QGroupBox(QStringLiteral("Prim Ödenen Gün Sayısı"), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setHorizontalSpacing(10);
  izgara->setVerticalSpacing(6);
  for (int i = 0; i < int(ayAdlari_.size()); ++i) {
    const auto sira = std::size_t(i);
    AlanDenetimi& gun = DenetimEkle(
        DiziAlani<GunAlanlari>(GunAdlari[i], &GunAlanlari::gunler, sira, (std::to_string(i + 1) + ". Ay").c_str(),
                               {.enCok = EnCokToplamGun, .harf = 5}),
        kutu);
    ayAdlari_[sira] = new QLabel(kutu);
    ayAdlari_[sira]->setBuddy(gun.Odak());
    ayAdlari_[sira]->setMinimumWidth(ayAdlari_[sira]->fontMetrics().horizontalAdvance("2009/AĞUSTOS "));
    izgara->addWidget(ayAdlari_[sira], i % yari, i / yari * 2);
    izgara->addWidget(gun.Parca(), i % yari, i / yari * 2 + 1);
  }
  AlanDenetimi& toplam = DenetimEkle({ToplamAlani, "Toplam", {.harf = 5, .kapali = true}}, kutu);
  izgara->addWidget(new QLabel(QStringLiteral("Toplam"), kutu), yari, 2);
  izgara->addWidget(toplam.Parca(), yari, 3);
  izgara->setRowStretch(yari + 1, 1);
  return kutu;
}

void YakinVizitesi::AylariGoster(const ViziteAylari& aylar, bool) {
  aylar_ = aylar;
  GunAlanlari alanlar{.toplam = Topla(aylar).gun};
  for (std::size_t i = 0; i < aylar.size(); ++i) {
    alanlar.gunler[i] = std::int16_t(std::min(aylar[i].gun, EnCokToplamGun));
    ayAdlari_[i]->setText(Yazi(aylar[i].Adi()));
  }
  Yukle(alanlar);
}

bool YakinVizitesi::KagidaYaz(ViziteKagidi& kagit) {
  GunAlanlari alanlar;
  if (!Oku(alanlar) || !Oku(kagit.yakin)) return false;
  kagit.aylar = aylar_;
  for (std::size_t i = 0; i < kagit.aylar.size(); ++i) kagit.aylar[i].gun = alanlar.gunler[i];
  return true;
}

void YakinVizitesi::YakiniGoster() {
  Yukle(YakinBul(Oturumu(), SonAnahtar(), std::uint8_t(TamDegeri(Denetim(Yakinlik).Oku()))));
}

void YakinVizitesi::ToplamiGoster() {
  std::int64_t toplam = 0;
  for (const auto& d : Denetimler())
    if (d->Satir().kayitTuru == typeid(GunAlanlari) && d->Satir().Tutamak() != ToplamAlani)
      toplam += TamDegeri(d->Oku());
  Denetim(ToplamAlani).Koy(toplam);
}

}  // namespace belvani
