#include "screens/personnel/escofrm.h"

#include "core/tckimlik.h"
#include "personnel/aile.h"
#include "personnel/kart.h"

namespace belvani {
namespace {

std::string AileDili(std::string_view alan, const Deger& deger) {
  for (const auto& [kolon, liste] :
       {std::pair(&esco::yakinlik, Liste(Yakinliklar)), std::pair(&esco::cins, Liste(KodluCinsiyetler)),
        std::pair(&esco::agiok, Liste(AgiDurumlari))})
    if (kolon->ad == alan) return std::string(KodluMetin(liste, std::uint8_t(TamDegeri(deger))));
  return MetinDegeri(deger);
}

// A cell shows the choice with its number and stores the number. One that was never opened is empty and stores 0:
// nobody becomes the spouse by his name alone.
SatirKolonu<Esco> KodluKolon(const Kolon<Esco, std::uint8_t>& kolon, int genislik, Liste secenekler) {
  const auto metin = [=](const Esco& esco, std::size_t) {
    const std::uint8_t kod = esco.*kolon.uye;
    const bool secilmemis = kod == 0 && KodSayisi(secenekler.front()) != 0;
    return secilmemis ? std::string() : std::string(KodluMetin(secenekler, kod));
  };
  const auto al = [=](Esco& esco, const std::string& hucre) { esco.*kolon.uye = KodSayisi(hucre); };
  const char* etiket = AlanEtiketi(Esco::TabloAdi, kolon.ad).data();
  return {'s', kolon.ad.data(), etiket, genislik, metin, al, 0, 0, secenekler};
}

std::vector<SatirKolonu<Esco>> EscoKolonlari() {
  std::vector<SatirKolonu<Esco>> kolonlar{EtiketliKolon(esco::tcno, 110),
                                          EtiketliKolon(esco::adi, 120),
                                          EtiketliKolon(esco::soyadi, 120),
                                          KodluKolon(esco::yakinlik, 100, Yakinliklar),
                                          KodluKolon(esco::cins, 90, KodluCinsiyetler),
                                          EtiketliKolon(esco::dogtar, 100),
                                          EtiketliKolon(esco::dogyer, 120),
                                          EtiketliKolon(esco::adr, 230),
                                          KodluKolon(esco::agiok, 90, AgiDurumlari)};
  kolonlar.front().ad = "tckimlik";
  kolonlar.back().ad = "agi";
  return kolonlar;
}

}  // namespace

escofrm::escofrm(EkranBaglami& baglam)
    : KisiSatirlari(baglam, "escofrm", QStringLiteral("Eş ve Çocuk Bilgileri"), EscoKolonlari()) {
  AlanlariDiz({{{"Personel", {EtiketliAlan(esco::kod, {.anahtar = true}), AdSoyAlani()}, 2}}});
  Liste().GenisKolon("adr");
  Liste().TercihBoyu(1080, 300);
  ListeyiAc(esco::kod);
}

std::vector<Esco> escofrm::SatirlariOku(const std::string& kod) {
  return AileOku(Oturumu(), kod);
}

Yazim<Esco> escofrm::Yaz(const Okunan<Esco>& satir) {
  if (!KartBul(Oturumu(), Kisi())) return {KuralKusuru("Bu Kodda Personel Yok: " + Kisi(), esco::kod)};
  return AileKaydet(Oturumu(), satir);
}

Sonuc<Silme> escofrm::Sil(const Esco& satir) {
  return AileSil(Oturumu(), satir.oto, Bildirimi());
}

Esco escofrm::YeniKayit() const {
  Esco yeni;
  yeni.kod = Kisi();
  return yeni;
}

void escofrm::Yazildi(const Okunan<Esco>&, const Esco& yazilan) {
  if (const std::string uyari = TcUyarisi(yazilan.tcno); !uyari.empty()) Bildirimi().Uyari(uyari);
}

DegerDili escofrm::Dil() const {
  return AileDili;
}

}  // namespace belvani
