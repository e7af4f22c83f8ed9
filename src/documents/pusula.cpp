#include "documents/pusula.h"

#include <memory>

#include "core/store/satirlar.h"
#include "core/tables/indir.h"
#include "documents/deftersorgu.h"
#include "documents/listebelgesi.h"
#include "documents/sikisatirlar.h"
#include "documents/turetilensatir.h"
#include "isyeri/isyerinumarasi.h"
#include "payroll/hesap/kayittoplami.h"
#include "payroll/hesap/muafiyet.h"
#include "payroll/hesap/satirlar.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

// A field of the slip; as a head of the table its label loses what only fills it up: "Ücreti             :" ->
// "Ücreti".
template <class Okur>
Kolonlar<TuretilmisSatir>::Tanim Alan(const char* etiket, Okur okur, KolonNiteligi nitelik = Yok) {
  std::string baslik = etiket;
  baslik.erase(baslik.find_last_not_of(" *:") + 1);
  return {KolonBasligi(etiket, baslik.c_str()), 24, okur, nitelik};
}

std::string CikisMetni(const Sicil& sicil) {
  return sicil.ciktar.Bos() ? "Çalışıyor" : sicil.ciktar.Metin();
}

const Kolonlar<TuretilmisSatir> kimlik{
    Alan("Personel Kodu :", [](auto& s) { return s.brd.kod; }),
    Alan("Adı Soyadı    :", [](auto& s) { return AdSoyad(s.sicil); }),
    Alan("SSK No        :", [](auto& s) { return s.sicil.sskno; }),
    Alan("T.C.Kimlik No :", [](auto& s) { return s.tcno; }),
};

const Kolonlar<TuretilmisSatir> kazanclar{
    Alan("İşe Giriş Tarihi   :", [](auto& s) { return s.sicil.girtar; }),
    Alan("İşten Çıkış Tarihi :", [](auto& s) { return CikisMetni(s.sicil); }),
    Alan(
        "Ücreti             :", [](auto& s) { return s.brd.ucret; }, Toplanir),
    Alan(
        "Fazla Mesai        :", [](auto& s) { return Degeri(toplam::fazlaMesai, s.brd); }, Toplanir),
    Alan(
        "Yardımlar          :", [](auto& s) { return s.brd.topyardim; }, Toplanir),
    Alan(
        "Toplam Kazanç  *** :", [](auto& s) { return s.brd.brutkaz; }, Toplanir),
    Alan(
        "Normal Gün         :", [](auto& s) { return s.brd.ng; }, Toplanir),
    Alan(
        "Hafta Sonu         :", [](auto& s) { return s.brd.ht; }, Toplanir),
    Alan(
        "Resmi Tatil        :", [](auto& s) { return s.brd.rt; }, Toplanir),
    Alan(
        "Ücretli İzin       :", [](auto& s) { return s.brd.ui; }, Toplanir),
    Alan(
        "Hasta  Gün         :", [](auto& s) { return s.brd.ha; }, Toplanir),
    Alan(
        "Mazeret İzni       :", [](auto& s) { return s.brd.mi; }, Toplanir),
    Alan(
        "Eksik Gün          :", [](auto& s) { return s.brd.ucretsizizin; }, Toplanir),
};

const Kolonlar<TuretilmisSatir> kesilenler{
    Alan(
        "Ssk Matrahı        :", [](auto& s) { return s.brd.sskmatrah; }, Toplanir),
    Alan(
        "Ssk Kesintisi      :", [](auto& s) { return s.brd.sskkesinti; }, Toplanir),
    Alan(
        "İşsizlik Kesintisi :", [](auto& s) { return s.brd.issizisci; }, Toplanir),
    Alan(
        "Dev.G.V. Matrahı   :", [](auto& s) { return s.brd.devgvmatrah; }, Toplanir),
    Alan(
        "G.V. Matrahı       :", [](auto& s) { return s.brd.gvmatrah; }, Toplanir),
    Alan(
        "G.V. Tutarı        :", [](auto& s) { return s.brd.gvtutar; }, Toplanir),
    Alan(
        "D.V. Matrahı       :", [](auto& s) { return s.brd.dvmatrah; }, Toplanir),
    Alan(
        "D.V. Tutarı        :", [](auto& s) { return s.damga; }, Toplanir),
    Alan(
        "Toplam Kesinti     :", [](auto& s) { return s.kesintiler; }, Toplanir),
    Alan(
        "Ö.G.İ. Ödemesi     :", [](auto& s) { return s.brd.ogv; }, Toplanir),
    Alan(
        "Net Ödenen    ***  :", [](auto& s) { return s.net; }, Toplanir),
};

// What only the graphic and the spreadsheet form have room for.
Kolonlar<TuretilmisSatir> EkAlanlar(const PusulaBaslik& baslik) {
  Kolonlar<TuretilmisSatir> alanlar{
      Alan(
          "SSK İşveren Matrahı", [](auto& s) { return s.brd.sskmatrahisveren; }, Toplanir),
      Alan(
          "SSK İşveren Kesintisi", [](auto& s) { return s.brd.sskkesintiisveren; }, Toplanir),
      Alan(
          "SSK İşveren İşsizlik", [](auto& s) { return s.brd.issizisveren; }, Toplanir),
      Alan(
          "SSK Muafiyet", [](auto& s) { return s.brd.muaftutar; }, Toplanir),
      Alan(
          "Kümüle G.V.Matrahı", [](auto& s) { return s.brd.devgvmatrah + s.brd.gvmatrah; }, Toplanir),
  };
  for (std::size_t i = 0; i < YardimKolonlari.size(); ++i)
    alanlar.Ekle(Alan(
        baslik.yardimAdlari[i].c_str(), [i](auto& s) { return s.brd.*YardimKolonlari[i].uye; }, Toplanir));
  return alanlar + Kolonlar<TuretilmisSatir>{
                       Alan(
                           "Sendika", [](auto& s) { return s.brd.sendika; }, Toplanir),
                       Alan(
                           "Borç Kes.", [](auto& s) { return s.brd.borckes; }, Toplanir),
                       Alan(
                           "İşveren Devlet Katkısı", [](auto& s) { return s.brd.katki; }, Toplanir),
                       Alan(
                           "Sakatlık İndirimi", [](auto& s) { return s.brd.sakindir; }, Toplanir),
                       Alan(
                           baslik.indirimAdlari[0].c_str(), [](auto& s) { return s.brd.indirim1; }, Toplanir),
                       Alan(
                           baslik.indirimAdlari[1].c_str(), [](auto& s) { return s.brd.indirim2; }, Toplanir),
                       Alan(
                           baslik.indirimAdlari[2].c_str(), [](auto& s) { return s.brd.indirim3; }, Toplanir),
                   };
}

// As DonemMetni, in the letters of a slip.
std::string PusulaDonemi(const BordroDonemi& donem) {
  switch (donem.tur) {
    case DonemTuru::Takvim:
      return std::string(AyAdi(donem.ay)) + " " + std::to_string(donem.yil) + " Dönemi";
    case DonemTuru::Ters:
      return donem.Bas().Metin() + " ile " + donem.Son().Metin() + " Dönemi";
  }
  return {};
}

constexpr std::size_t ParcaBoyu = 1'000;  // people whose rows stand in memory together

constexpr const char* pusulaBasligi = "ÜCRET PUSULASI";

constexpr std::array<const char*, 4> cumleler{
    "Ücret hesap pusulasını, ücretimi nakten aldım. Bu bordro bilgilerine istinaden müesseseniz",
    "ile ücret yönünden bir ilişiğim kalmamıştır.", "", "   İ M Z A"};

// The records of a paper, kept once for all of its forms.
using Kayitlar = std::shared_ptr<const SikiSatirlar>;

Kayitlar Sikistir(const std::vector<BordroSatiri>& satirlar) {
  auto siki = std::make_shared<SikiSatirlar>();
  for (const BordroSatiri& satir : satirlar) siki->Ekle(satir);
  return siki;
}

// Makes any of the slips from the records.
class PusulaYapan {
 public:
  PusulaYapan(Kayitlar satirlar, const PusulaBaslik& baslik)
      : satirlar_(std::move(satirlar)),
        damgaOran_(baslik.defter.damgaOran),
        yuvarla_(baslik.defter.paraonda),
        ekAlanlar_(EkAlanlar(baslik)),
        donem_(PusulaDonemi(BelgeDonemi(baslik.defter))),
        isveren_{{"Firma İsmi    :", baslik.defter.firma.unvan},
                 {"İşyeri Sicil  :", IsyeriSicilNo(baslik.defter.firma)}} {
    for (std::size_t i = 0; i < satirlar_->size(); ++i) Denetle((*satirlar_)[i]);
  }
  PusulaYapan(const PusulaYapan&) = delete;
  PusulaYapan& operator=(const PusulaYapan&) = delete;

  // An amount out of range is told now, not while a page is drawn.
  void Denetle(const BordroSatiri& satir) const {
    TuretilmisSatir(satir, damgaOran_, yuvarla_, 0);
    Degeri(toplam::fazlaMesai, satir.brd);
  }

  Yaprak Yap(std::size_t sira) const {
    const BordroSatiri kayit = (*satirlar_)[sira];
    const TuretilmisSatir satir(kayit, damgaOran_, yuvarla_, int(sira) + 1);
    Yaprak yaprak{.altBaslik = donem_,
                  .bas = isveren_,
                  .sol = kazanclar.Blok(satir),
                  .sag = kesilenler.Blok(satir),
                  .ek = ekAlanlar_.Blok(satir),
                  .cumleler = {cumleler.begin(), cumleler.end()}};
    for (auto& alan : kimlik.Blok(satir)) yaprak.bas.push_back(std::move(alan));
    return yaprak;
  }

 private:
  Kayitlar satirlar_;
  Tek damgaOran_;
  Yuvarlayici yuvarla_;
  Kolonlar<TuretilmisSatir> ekAlanlar_;
  std::string donem_;
  std::vector<BlokSatiri> isveren_;
};

YaprakBelgesi Pusulalar(Kayitlar satirlar, const PusulaBaslik& baslik) {
  const std::size_t adet = satirlar->size();
  const auto yapan = std::make_shared<const PusulaYapan>(std::move(satirlar), baslik);
  return {.baslik = pusulaBasligi,
          .paraOndaligi = baslik.defter.paraonda,
          .yapraklar = {adet, [yapan](std::size_t sira) { return yapan->Yap(sira); }}};
}

}  // namespace

std::array<std::string, YardimSayisi> YardimAdlariOku(Motor& motor) {
  std::array<std::string, YardimSayisi> adlar;
  const auto varsayilan = VarsayilanYardimlar();
  for (std::size_t i = 0; i < adlar.size(); ++i) adlar[i] = varsayilan[i].adi;
  for (const auto& satir : KayitlariOku<Muaf>(motor))
    if (satir.no >= 1 && satir.no <= YardimSayisi && !satir.adi.empty()) adlar[satir.no - 1u] = satir.adi;
  return adlar;
}

void IndirimAdlariniOku(Motor& motor, PusulaBaslik& baslik) {
  for (const auto& satir : KayitlariOku<Indir>(motor))
    if (satir.no >= 1 && satir.no <= baslik.indirimAdlari.size() && !satir.adi.empty())
      baslik.indirimAdlari[satir.no - 1u] = satir.adi;
}

YaprakBelgesi PusulaBelgesi(const std::vector<BordroSatiri>& satirlar, const PusulaBaslik& baslik) {
  return Pusulalar(Sikistir(satirlar), baslik);
}

Rapor PusulaRaporu(const std::vector<BordroSatiri>& satirlar, const PusulaBaslik& baslik) {
  TuretilmisListe liste(kimlik + kazanclar + kesilenler + EkAlanlar(baslik), baslik.defter);
  for (const BordroSatiri& satir : satirlar) liste.Ekle(satir);
  Rapor rapor = std::move(liste.rapor);
  rapor.baslik = pusulaBasligi;
  rapor.ekranBasligi = "Ücret Pusulası";
  rapor.ustSatirlar = {{.orta = PusulaDonemi(BelgeDonemi(baslik.defter))}, UnvanSatiri(baslik.defter.firma)};
  return rapor;
}

std::unique_ptr<Belge> UcretPusulalari(const BelgeKaynagi& kaynak, const DefterSecim& secim,
                                       const PusulaSecenegi& secenek) {
  PusulaBaslik baslik{.defter = BaslikYap(kaynak, secim), .yardimAdlari = YardimAdlariOku(kaynak.motor)};
  IndirimAdlariniOku(kaynak.motor, baslik);
  const auto satirlar = std::make_shared<SikiSatirlar>();
  DefterSatirlariniGez(
      kaynak.motor, Sirali(secim, DefterSirasi::Kisi), [&](const BordroSatiri& satir) { satirlar->Ekle(satir); },
      kaynak.ilerleme);
  YaprakBelgesi belge = Pusulalar(satirlar, baslik);
  const YzcAyarlari ayar = BaskiAyari(belge.baslik, KagitYonu::Dikey);
  auto veri = [satirlar, baslik = std::move(baslik)](const RaporAlici& al) {
    std::vector<BordroSatiri> parca;
    for (std::size_t i = 0; i < satirlar->size(); ++i) {
      parca.push_back((*satirlar)[i]);
      if (parca.size() < ParcaBoyu) continue;
      al(PusulaRaporu(parca, baslik));
      parca.clear();
    }
    if (!parca.empty() || satirlar->size() == 0) al(PusulaRaporu(parca, baslik));
  };
  return std::make_unique<YaprakliBelge>(std::move(belge), secenek.sayfada, ayar, std::move(veri));
}

}  // namespace belvani
