#include "screens/notices/isguc.h"

#include "core/store/koru.h"
#include "documents/secimalanlari.h"
#include "notices/isgucukagidi.h"
#include "screens/notices/grupbasligi.h"
#include "ui/basim.h"

namespace belvani {
namespace {

constexpr int AdEni = 190;
constexpr int SayiEni = 65;
constexpr double EnCokSayi = 999'999;
constexpr int YerHarfi = 120;
constexpr int IletisimHarfi = 40;

AlanGrubu BaslikGrubu() {
  const AlanEki genis{.harf = 36}, dar{.harf = 20};
  return {"İşyeri",
          {{Uye("isyeriNo", &IsgucuBasligi::isyeriNo, 60), "İşyeri No", genis},
           {Uye("yil", &IsgucuBasligi::yil), "Yıl", {.enAz = IlkBelgeYili, .enCok = SonBelgeYili, .harf = 6}},
           {Uye("ay", &IsgucuBasligi::ay), "Ay", {.liste = AyAdlari, .listeTabani = 1}},
           {Uye("adres", &IsgucuBasligi::adres, YerHarfi), "Adres", genis},
           {Uye("telefon", &IsgucuBasligi::telefon, IletisimHarfi), "Telefon", dar},
           {Uye("faks", &IsgucuBasligi::faks, IletisimHarfi), "Faks", dar},
           {Uye("eposta", &IsgucuBasligi::eposta, IletisimHarfi), "E-Mail", genis},
           {Uye("web", &IsgucuBasligi::web, IletisimHarfi), "Web", dar}},
          3};
}

struct SayiKolonu {
  const char* adlar[4];      // in each group
  const char* basliklar[2];  // in each block
  std::int32_t IsgucuSayisi::*uye;
};
constexpr SayiKolonu SayiKolonlari[] = {{{"e1", "e2", "e3", "e4"}, {"E.", "Erkek"}, &IsgucuSayisi::erkek},
                                        {{"k1", "k2", "k3", "k4"}, {"K.", "Kadın"}, &IsgucuSayisi::kadin},
                                        {{"t1", "t2", "t3", "t4"}, {"T.", "Toplam"}, &IsgucuSayisi::toplam}};

std::vector<SatirKolonu<IsgucuSatiri>> IsgucuKolonlari(std::span<const std::string_view> satirAdlari, int blok) {
  std::vector<SatirKolonu<IsgucuSatiri>> kolonlar{AdKolonu<IsgucuSatiri>("Açıklama", AdEni, satirAdlari)};
  kolonlar.front().ad = "ack";
  for (std::size_t g = 0; g < IsgucuSatiri().size(); ++g)
    for (const SayiKolonu& k : SayiKolonlari)
      kolonlar.push_back(UyeKolonuYap<IsgucuSatiri>(k.adlar[g], k.basliklar[blok], SayiEni,
                                                    [ g, uye = k.uye ](auto& satir) -> auto& { return satir[g].*uye; },
                                                    {.enCok = EnCokSayi}));
  return kolonlar;
}

}  // namespace

isguc::isguc(EkranBaglami& baglam)
    : Form(baglam, "isguc", QStringLiteral("İşgücü Çizelgesi")),
      liste1_(new dclist(baglam.bildirim, this)),
      liste2_(new dclist(baglam.bildirim, this)),
      satirlar_(*liste1_, IsgucuKolonlari(IsgucuSatirlari, 0)),
      ayrimlar_(*liste2_, IsgucuKolonlari(IsgucuAyrimSatirlari, 1)),
      cizelge_(BosCizelge(baglam.oturum.firma)) {
  liste1_->setObjectName("dclist1");
  liste2_->setObjectName("dclist2");
  SikDiz();
  Govde()->addWidget(GrupYap(BaslikGrubu()));
  Govde()->addWidget(ListeKutusu({}, *liste1_, IsgucuGruplari, int(IsgucuSatirlari.size())));
  Govde()->addWidget(
      ListeKutusu(Yazi(IsgucuAyrimBasligi), *liste2_, IsgucuAyrimGruplari, int(IsgucuAyrimSatirlari.size())));
  Govde()->addStretch(1);
  Komutlar({{.tus = Qt::Key_F5, .dugme = "Kayıtlardan Doldur", .simge = "calistir", .islev = [this] { Doldur(); }},
            {.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır", .simge = "yazici", .islev = [this] { Yazdir(); }},
            {.tus = Qt::Key_F9, .dugme = " Excel'e Gönder", .simge = "tablo", .islev = [this] { ExceleGonder(); }}});
  Yukle(cizelge_.baslik);
  Goster();
}

QWidget* isguc::ListeKutusu(const QString& baslik, dclist& liste, std::span<const std::string_view> gruplar,
                            int satir) {
  liste.Editable(true);
  liste.YeniSatirli(false);
  liste.horizontalHeader()->setSectionsClickable(false);
  liste.HucreDegisti = [this](int, const QString&) { yazildi_ = true; };
  auto* kutu = new QWidget(this);
  auto* duzen = new QVBoxLayout(kutu);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSpacing(0);
  if (!baslik.isEmpty()) duzen->addWidget(new QLabel(baslik.trimmed(), kutu));
  duzen->addWidget(new GrupBasligi(liste, 1, int(std::size(SayiKolonlari)), gruplar, kutu));
  duzen->addWidget(&liste);
  SatirlaraYerAc(liste, satir);
  liste.setFixedHeight(liste.minimumHeight());
  return kutu;
}

void isguc::Goster() {
  satirlar_.Doldur({cizelge_.satirlar.begin(), cizelge_.satirlar.end()});
  ayrimlar_.Doldur({cizelge_.ayrimlar.begin(), cizelge_.ayrimlar.end()});
}

bool isguc::KendiligindenKaydet() {
  return !yazildi_ || Bildirimi().Soru("Çizelgeye yazılanlar saklanmaz.\nEkran Kapatılsın mı ?");
}

std::optional<IsgucuCizelgesi> isguc::Okunan() {
  if (!liste1_->OkUpdateData() || !liste2_->OkUpdateData()) return std::nullopt;
  IsgucuCizelgesi cizelge = cizelge_;
  if (!Oku(cizelge.baslik)) return std::nullopt;
  for (std::size_t i = 0; i < cizelge.satirlar.size(); ++i) cizelge.satirlar[i] = satirlar_.Oku(i, cizelge.satirlar[i]);
  for (std::size_t i = 0; i < cizelge.ayrimlar.size(); ++i) cizelge.ayrimlar[i] = ayrimlar_.Oku(i, cizelge.ayrimlar[i]);
  return cizelge;
}

// Rows that the store does not know stay as they are typed; the others are asked about when something stands in them.
void isguc::Doldur() {
  auto cizelge = Okunan();
  if (!cizelge) return;
  const IsgucuSatiri bos{};
  const bool dolu = cizelge->satirlar[BelirsizSureliSirasi] != bos || cizelge->satirlar[OzurluSirasi] != bos;
  if (yazildi_ && dolu &&
      !Bildirimi().Soru("Belirsiz Süreli ve Özürlü satırları kayıtlardan doldurulacak.\nDevam Edilsin mi ?"))
    return;
  const auto uyarilar = Koru([&] { return CizelgeyiDoldur(Oturumu().depo.db.IcMotor(), *cizelge); });
  if (!Oldu(uyarilar)) return;
  cizelge_ = std::move(*cizelge);
  Goster();
  for (const Kusur& uyari : *uyarilar) Bildirimi().KusuruGoster(uyari);
}

void isguc::Yazdir() {
  if (const auto cizelge = Okunan()) BelgeBas(Baglam(), *IsgucuBelgesi(*cizelge));
}

void isguc::ExceleGonder() {
  if (const auto cizelge = Okunan()) BelgeExceleGonder(Baglam(), *IsgucuBelgesi(*cizelge));
}

}  // namespace belvani
