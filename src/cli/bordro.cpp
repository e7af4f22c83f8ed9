// bordro, pusula, icmal, ozel-bordro, izin, agi: the papers of the pay records
#include "cli/belgecikti.h"
#include "documents/bordrobelgeleri.h"
#include "documents/deftersorgu.h"
#include "documents/icmal.h"
#include "payroll/hazirlik/kosullar.h"

namespace belvani::cli {
namespace {

struct BelgeSecenekleri {
  std::string kod;
  Donem donem;
  DefterSecim secim;  // who; the period comes from `donem`
  std::string izinTipi = "icmal";
  int sayfada = int(SayfadaYaprak::Iki);
  BelgeCiktisi cikti;
};

// What a paper is made from.
struct Is {
  Genel& genel;
  Oturum& oturum;
  const BelgeSecenekleri& secenekler;
  YasalParametreler yasal;

  BelgeKaynagi Kaynak() const {
    return {.motor = oturum.depo.db.IcMotor(), .yasal = yasal, .paraonda = oturum.firma.paraonda};
  }
  int Yil() const { return secenekler.donem.yil; }
  int Ay() const { return secenekler.donem.ay; }
  DefterSecim Secim() const {
    DefterSecim secim = secenekler.secim;
    secim.yil = Yil();
    secim.ay = Ay();
    return secim;
  }
  void Ver(const Belge& belge, const Rapor& tablo) const {
    if (tablo.Satirlar().empty()) genel.bildirim.Bilgi("Bu dönemde bordro kaydı yok");
    BelgeYaz(belge, tablo, secenekler.cikti);
  }
  void Ver(const std::unique_ptr<Belge>& belge) const { Ver(*belge, *belge->Tablo()); }
};

// The ledger as JSON is for other programs: the records with all their fields.
Json KayitlarJson(const std::vector<BordroSatiri>& satirlar) {
  Json dizi = Json::array();
  for (const auto& satir : satirlar) KayitJson(satir.brd, dizi.emplace_back(Json::object()));
  return dizi;
}

void Defter(const Is& is) {
  const BelgeCiktisi& cikti = is.secenekler.cikti;
  if (cikti.bicim == "json")
    return Yaz(KayitlarJson(DefterSatirlariOku(is.Kaynak().motor, is.Secim())).dump(2) + "\n", cikti.dosya);
  const DefterAyari ayar = DefterAyariOku(is.oturum.FirmaDizini + "bordro.ini");
  DefterSecenek secenek;
  secenek.kolonlar = ayar.kolonlar;
  is.Ver(DefterBelgesi(is.Kaynak(), is.Secim(), secenek, {.yaziTipi = ayar.yaziTipi, .punto = ayar.punto}));
}

void Pusula(const Is& is) {
  const auto sayfada = SayfadaYaprak(is.secenekler.sayfada);
  is.Ver(*UcretPusulalari(is.Kaynak(), is.Secim(), sayfada), PusulaTablosu(is.Kaynak(), is.Secim()));
}

void Ozet(const Is& is) {
  if (IcmalGirdileriOku(is.Kaynak().motor, is.Yil(), is.Ay()).empty())
    is.genel.bildirim.Bilgi("Bu dönemde bordro kaydı yok");
  is.Ver(IcmalBelgesi(is.Kaynak(), is.Yil(), is.Ay()));
}

void OzelBordro(const Is& is) {
  is.Ver(OzelBordroBelgesi(is.Kaynak(), is.Secim(), {}, {}));
}

void Izin(const Is& is) {
  const std::string& tip = is.secenekler.izinTipi;
  const IzinRaporu rapor = tip == "personel" ? IzinRaporu::Personel
                           : tip == "donem"  ? IzinRaporu::Donemsel
                                             : IzinRaporu::Icmal;
  BelgeYaz(*IzinBelgesi(is.Kaynak(), is.Yil(), is.secenekler.secim.kod, rapor, {}), is.secenekler.cikti);
}

void Agi(const Is& is) {
  is.Ver(AgiBelgesi(is.Kaynak(), is.Secim()));
}

enum class Sorulan { YilVeAy, Yil };

// Ranges of people, both ends included.
struct AralikSecenegi {
  const char* ad;
  const char* aciklama;
  MetinAraligi DefterSecim::*aralik;
};
constexpr AralikSecenegi araliklar[] = {
    {"--kod", "personel kodları, ilk ve son", &DefterSecim::kod},
    {"--grup", "gruplar, ilk ve son", &DefterSecim::grup},
    {"--tip", "tipler, ilk ve son", &DefterSecim::tip},
    {"--ozel", "özel kodlar, ilk ve son", &DefterSecim::ozel},
};

void AralikEkle(CLI::App& komut, const AralikSecenegi& secenek, const std::shared_ptr<BelgeSecenekleri>& s) {
  komut
      .add_option_function<std::vector<std::string>>(
          secenek.ad,
          [s, aralik = secenek.aralik](const std::vector<std::string>& uclar) {
            s->secim.*aralik = {uclar[0], uclar[1]};
          },
          secenek.aciklama)
      ->expected(2)
      ->type_name("BAŞ BİT");
}

struct BelgeKomutu {
  const char* ad;
  const char* aciklama;
  void (*yap)(const Is&);
  Sorulan sorulan = Sorulan::YilVeAy;
};

constexpr BelgeKomutu komutlar[] = {
    {"bordro", "Ayın ücret bordrosunu sonundaki icmaliyle verir (json: kayıtların bütün alanları)", Defter},
    {"pusula", "Ayın ücret pusulalarını verir", Pusula},
    {"icmal", "Ayın bordro özetini verir", Ozet},
    {"ozel-bordro", "Ayın özel bordrosunu verir: günlük brüt, yemek, yol", OzelBordro},
    {"izin", "Ücretli izinlerin listesini verir", Izin, Sorulan::Yil},
    {"agi", "Yılın başından aya kadar asgari geçim indirimi bordrosunu verir", Agi},
};

}  // namespace

void BelgeKomutlari(CLI::App& app, Genel& genel) {
  for (const auto& belge : komutlar) {
    auto s = std::make_shared<BelgeSecenekleri>();
    auto* komut = app.add_subcommand(belge.ad, belge.aciklama);
    komut->add_option("KOD", s->kod, "şirket")->required();
    if (belge.sorulan == Sorulan::YilVeAy) {
      DonemSecenekleri(*komut, s->donem);
      if (belge.yap != Ozet)
        for (const auto& aralik : araliklar) AralikEkle(*komut, aralik, s);
    } else {
      AralikEkle(*komut, araliklar[0], s);
      YilSecenegi(*komut, s->donem.yil, "bu yılın sonuna kadar")->required();
      komut->add_option("--tip", s->izinTipi, "icmal, personel (kişilerin ayları) veya donem (yılın ayları)")
          ->check(CLI::IsMember({"icmal", "personel", "donem"}));
    }
    if (belge.yap == Pusula)
      komut->add_option("--sayfada", s->sayfada, "PDF'in bir yaprağındaki pusula: 1, 2 veya 4")
          ->check(CLI::IsMember({1, 2, 4}));
    CiktiSecenekleri(*komut, s->cikti);
    komut->callback([&genel, s, yap = belge.yap] {
      const auto o = genel.SirketAc(s->kod);
      auto yasal = YasalParametreleriAl(o->DataPath);
      yap({genel, *o, *s, std::move(Degeri(yasal))});
    });
  }
}

}  // namespace belvani::cli
