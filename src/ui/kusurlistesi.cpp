#include "ui/kusurlistesi.h"

#include "core/session/renkler.h"
#include "core/tables/esco.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "personnel/etiket.h"
#include "ui/form.h"
#include "ui/listedoldur.h"
#include "ui/renk.h"

namespace belvani {
namespace {

struct DereceGorunumu {
  const char* ad;
  Renk zemin, yazi;
};

DereceGorunumu Gorunum(Derece derece) {
  switch (derece) {
    case Derece::Bilgi:
      return {"Bilgi", Renk::GridArka, Renk::GridText};
    case Derece::Uyari:
      return {"Uyarı", Renk::IpucuArka, Renk::IpucuText};
    case Derece::Hata:
      break;
  }
  return {"Hata", Renk::HataArka, Renk::HataText};
}

// What the screens of a person call the field; other fields have no one name.
template <class... Kayit>
std::string_view Etiket(AlanTutamagi alan) {
  std::string_view etiket;
  ((alan.kayit == typeid(Kayit) ? void(etiket = AlanEtiketi(Kayit::TabloAdi, alan.ad)) : void()), ...);
  return etiket;
}

class KusurListesi final : public Form {
 public:
  KusurListesi(EkranBaglami& baglam, std::vector<SirketKusuru> kusurlar, const QString& ozet)
      : Form(baglam, "kusurlar", QStringLiteral("Uyarılar ve Hatalar")),
        kusurlar_(std::move(kusurlar)),
        liste_(new dclist(baglam.bildirim, this)) {
    QStringList parcalar = ozet.isEmpty() ? QStringList() : QStringList(ozet);
    const auto sayi = [this](auto uyar) { return std::ranges::count_if(kusurlar_, uyar); };
    const auto hata = sayi([](const SirketKusuru& k) { return k.kusur.derece == Derece::Hata; });
    // What a company has to say of itself when all went well is no warning.
    const auto iyi = sayi([](const SirketKusuru& k) { return k.kusur.derece == Derece::Bilgi && !k.sirket.empty(); });
    const auto uyari = std::ssize(kusurlar_) - hata - iyi;
    if (hata > 0) parcalar += QStringLiteral("%1 hata").arg(hata);
    if (uyari > 0) parcalar += QStringLiteral("%1 uyarı").arg(uyari);
    YaziEkle(parcalar.join(", "), "baslik");
    KolonlariYap();
    QLineEdit* arama = liste_->AramaKutusu(this);
    Izle(arama);
    ListedeGezin(*liste_);
    Govde()->addWidget(arama);
    Govde()->addWidget(liste_, 1);
    Doldur();
    liste_->Secildi = [this](int satir) { Git(kusurlar_[std::size_t(satir)]); };
    IlkOdak(liste_);
  }

 private:
  void KolonlariYap() {
    liste_->CreateNewCaption('m', "derece", "Derece", 70);
    liste_->CreateNewCaption('m', "sirket", "Firma", 110);
    liste_->CreateNewCaption('m', "kod", "Sicil No", 110);
    liste_->CreateNewCaption('b', "satir", "Satır", 60);
    liste_->CreateNewCaption('m', "alan", "Alan", 150);
    liste_->CreateNewCaption('m', "metin", "Açıklama", 420);
    liste_->GenisKolon("metin");
    liste_->TercihBoyu(860, 320);
    liste_->Model().Renk = [this](int satir, int kolon) -> std::optional<HucreRengi> {
      if (kolon != 0) return std::nullopt;
      const RenkTablosu renkler = GecerliRenkler(Oturumu());
      const DereceGorunumu g = Gorunum(kusurlar_[std::size_t(satir)].kusur.derece);
      return HucreRengi{RenkYap(RenkAl(renkler, g.zemin)), RenkYap(RenkAl(renkler, g.yazi))};
    };
    const auto hepsinde = [this](auto uyar) { return std::ranges::all_of(kusurlar_, uyar); };
    if (hepsinde([](const SirketKusuru& k) { return k.kusur.satir == 0; })) liste_->Gizle("satir");
    if (hepsinde([](const SirketKusuru& k) { return k.sirket.empty(); })) liste_->Gizle("sirket");
  }

  void Doldur() {
    ListeDoldur(*liste_, kusurlar_, [](const SirketKusuru& k) {
      return std::array{std::string(Gorunum(k.kusur.derece).ad),
                        k.sirket,
                        k.kusur.kod,
                        k.kusur.satir == 0 ? "" : std::to_string(k.kusur.satir),
                        std::string(Etiket<Sicil, Kimlik, Esco>(k.kusur.alan)),
                        k.kusur.metin};
    });
  }

  void Git(const SirketKusuru& k) {
    const bool buradaki = k.sirket.empty() || k.sirket == Oturumu().FirmaKod;
    if (buradaki && !k.kusur.kod.empty()) Baglam().gosterici.KisiyeGit(k.kusur.kod, k.kusur.alan);
  }

  const std::vector<SirketKusuru> kusurlar_;
  dclist* liste_;
};

}  // namespace

void KusurlariGoster(EkranBaglami& baglam, const Kusurlar& kusurlar, const QString& ozet) {
  std::vector<SirketKusuru> satirlar;
  for (const Kusur& kusur : kusurlar) satirlar.push_back({{}, kusur});
  KusurlariGoster(baglam, std::move(satirlar), ozet);
}

void KusurlariGoster(EkranBaglami& baglam, std::vector<SirketKusuru> kusurlar, const QString& ozet) {
  if (!kusurlar.empty()) FormGoster(baglam, std::make_unique<KusurListesi>(baglam, std::move(kusurlar), ozet));
}

}  // namespace belvani
