// bordro, pusula, icmal, ozel-bordro, izin, agi: the papers of the pay records
#include "cli/belgecikti.h"
#include "core/store/satirlar.h"
#include "documents/agilistesi.h"
#include "documents/defterayari.h"
#include "documents/deftersorgu.h"
#include "documents/icmal.h"
#include "documents/izin.h"
#include "documents/ozelbordro.h"
#include "documents/pusula.h"
#include "payroll/hazirlik/kosullar.h"

namespace belvani::cli {
namespace {

struct BelgeSecenekleri {
  std::string kod;
  Donem donem;
  std::string izinTipi = "icmal";
  BelgeCiktisi cikti;
};

// What a paper is made from.
struct Is {
  Genel& genel;
  Oturum& oturum;
  const BelgeSecenekleri& secenekler;

  Motor& Store() const { return oturum.depo.db.IcMotor(); }
  int Yil() const { return secenekler.donem.yil; }
  int Ay() const { return secenekler.donem.ay; }
  YasalParametreler Yasal() const {
    auto yasal = YasalParametreleriAl(oturum.DataPath);
    return std::move(Degeri(yasal));
  }
  Firma FirmaKaydi() const { return KayitlariOku<Firma>(Store()).front(); }

  DefterSecim Secim(DefterSirasi sira) const {
    DefterSecim secim;
    secim.yil = Yil();
    secim.ay = Ay();
    secim.sira = sira;
    return secim;
  }
  DefterBaslik Baslik(const YasalParametreler& yasal) const {
    return {.yil = Yil(),
            .ay = Ay(),
            .firma = FirmaKaydi(),
            .damgaOran = yasal.oranlar.DamgaOran,
            .paraonda = oturum.paraonda};
  }
  void BosSoyle(bool bos) const {
    if (bos) genel.bildirim.Bilgi("Bu dönemde bordro kaydı yok");
  }
};

// The ledger as JSON is for other programs: the records with all their fields.
Json KayitlarJson(const std::vector<BordroSatiri>& satirlar) {
  Json dizi = Json::array();
  for (const auto& satir : satirlar) KayitJson(satir.brd, dizi.emplace_back(Json::object()));
  return dizi;
}

void Defter(const Is& is) {
  const auto satirlar = DefterSatirlariOku(is.Store(), is.Secim(DefterSirasi::Kod));
  const BelgeCiktisi& cikti = is.secenekler.cikti;
  if (cikti.bicim == "json") return Yaz(KayitlarJson(satirlar).dump(2) + "\n", cikti.dosya);
  is.BosSoyle(satirlar.empty());
  DefterSecenek secenek;
  const DefterAyari ayar = DefterAyariOku(is.oturum.FirmaDizini + "bordro.ini");
  secenek.kolonlar = ayar.kolonlar;
  BelgeYaz({.tablo = DefterRaporu(satirlar, is.Baslik(is.Yasal()), secenek),
            .duzen = secenek.duzen,
            .grafik = {.yon = {},
                       .punto = double(ayar.punto),
                       .aile = AileBul(ayar.yaziTipi),
                       .satirArasi = secenek.duzen.satirArasi,
                       .kolonArasi = secenek.duzen.kolonArasi}},
           cikti);
}

void Pusula(const Is& is) {
  const auto satirlar = DefterSatirlariOku(is.Store(), is.Secim(DefterSirasi::Kisi));
  is.BosSoyle(satirlar.empty());
  const PusulaBaslik baslik{.defter = is.Baslik(is.Yasal()), .yardimAdlari = YardimAdlariOku(is.Store())};
  BelgeYaz({.tablo = PusulaRaporu(satirlar, baslik), .yapraklar = PusulaBelgesi(satirlar, baslik)},
           is.secenekler.cikti);
}

void Ozet(const Is& is) {
  const auto yasal = is.Yasal();
  const auto girdiler = IcmalGirdileriOku(is.Store(), is.Yil(), is.Ay());
  is.BosSoyle(girdiler.empty());
  const Icmal icmal = IcmalHesapla(girdiler, yasal.oranlar.AsgariUcret, Yuvarlayici(is.oturum.paraonda));
  BelgeYaz({.tablo = IcmalRaporu(icmal, is.Baslik(yasal))}, is.secenekler.cikti);
}

void OzelBordro(const Is& is) {
  const auto satirlar = DefterSatirlariOku(is.Store(), is.Secim(DefterSirasi::SskNo));
  is.BosSoyle(satirlar.empty());
  BelgeYaz({.tablo = OzelBordroRaporu(satirlar, is.Baslik(is.Yasal()))}, is.secenekler.cikti);
}

void Izin(const Is& is) {
  const std::string& tip = is.secenekler.izinTipi;
  const IzinRaporu rapor = tip == "personel" ? IzinRaporu::Personel
                           : tip == "donem"  ? IzinRaporu::Donemsel
                                             : IzinRaporu::Icmal;
  BelgeYaz({.tablo = IzinListesi(IzinleriOku(is.Store(), is.Yil(), {}), is.Yil(), rapor)}, is.secenekler.cikti);
}

void Agi(const Is& is) {
  const auto yasal = is.Yasal();
  const auto kisiler = AgiKisileriOku(is.Store(), is.Secim(DefterSirasi::Kisi));
  is.BosSoyle(kisiler.empty());
  const AgiBaslik baslik{.unvan = is.FirmaKaydi().unvan,
                         .yil = is.Yil(),
                         .agiTaban = AgiTabaniIle(yasal.agi, yasal.oranlar.AsgariUcret).AgiTaban,
                         .paraonda = is.oturum.paraonda};
  BelgeYaz({.tablo = AgiListesi(kisiler, baslik)}, is.secenekler.cikti);
}

enum class Sorulan { YilVeAy, Yil };

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
    } else {
      YilSecenegi(*komut, s->donem.yil, "bu yılın sonuna kadar")->required();
      komut->add_option("--tip", s->izinTipi, "icmal, personel (kişilerin ayları) veya donem (yılın ayları)")
          ->check(CLI::IsMember({"icmal", "personel", "donem"}));
    }
    CiktiSecenekleri(*komut, s->cikti);
    komut->callback([&genel, s, yap = belge.yap] {
      const auto o = genel.SirketAc(s->kod);
      yap({genel, *o, *s});
    });
  }
}

}  // namespace belvani::cli
