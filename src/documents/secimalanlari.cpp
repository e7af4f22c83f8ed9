#include "documents/secimalanlari.h"

#include "core/tables/sicil.h"

namespace belvani {
namespace {

constexpr const char* BaslangicBitis = "Başlangıç ve Bitiş";
constexpr int SayiHarfi = 6;

struct AralikTanimi {
  std::string_view ilk, son;  // names of the two fields
  MetinAraligi DefterSecim::*aralik;
  int harf;
  const char* etiket;  // "" where the paper has a word of its own
  const char* komut;
  const char* komutYardimi;
};

const AralikTanimi kodlar{
    "kodBas", "kodBit", &DefterSecim::kod, sicil::kod.boyut, "", "--kod", "personel kodları, ilk ve son"};
const AralikTanimi digerleri[] = {
    {"grupBas", "grupBit", &DefterSecim::grup, sicil::grup.boyut, "Grup", "--grup", "gruplar, ilk ve son"},
    {"tipBas", "tipBit", &DefterSecim::tip, sicil::tip.boyut, "Tip", "--tip", "tipler, ilk ve son"},
    {"ozelBas", "ozelBit", &DefterSecim::ozel, sicil::ozel.boyut, "Özel", "--ozel", "özel kodlar, ilk ve son"},
};

void AralikEkle(AlanGrubu& grup, const AralikTanimi& tanim, const char* etiket, bool rehber) {
  const AlanEki ek{.rehber = rehber, .komut = tanim.komut, .komutYardimi = tanim.komutYardimi};
  const auto bas = [aralik = tanim.aralik](auto& secim) -> auto& {
    return (secim.*aralik).bas;
  };
  const auto bit = [aralik = tanim.aralik](auto& secim) -> auto& {
    return (secim.*aralik).bit;
  };
  const std::string bitis = std::string(etiket) + " Bitiş";
  grup.alanlar.push_back(YolAlani<DefterSecim>(tanim.ilk, bas, etiket, ek, tanim.harf));
  grup.alanlar.push_back(YolAlani<DefterSecim>(tanim.son, bit, bitis.c_str(), ek, tanim.harf));
}

}  // namespace

AlanEki YilEki(const char* komutYardimi) {
  return {
      .enAz = IlkBelgeYili, .enCok = SonBelgeYili, .harf = SayiHarfi, .komut = "--yil", .komutYardimi = komutYardimi};
}

Alan YilAlani(const char* etiket, const char* komutYardimi) {
  return {SecimYili, etiket, YilEki(komutYardimi)};
}

AlanGrubu DonemAlanlari(const char* yilEtiketi, const char* ayEtiketi) {
  return {"Dönem",
          {YilAlani(yilEtiketi),
           {SecimAyi,
            ayEtiketi,
            {.liste = AyAdlari, .listeTabani = 1, .komut = "--ay", .komutYardimi = "bordro ayı, 1-12"}}},
          2};
}

Alan SskSirasiAlani() {
  return Alan(
      AlanTanimi{"sskSirasi", AlanTipi::Mantik, 0, AlanNiteligi::Serbest}, typeid(DefterSecim),
      [](const void* secim) { return Deger(static_cast<const DefterSecim*>(secim)->sira == DefterSirasi::SskNo); },
      [](void* secim, const Deger& d) {
        static_cast<DefterSecim*>(secim)->sira = MantikDegeri(d) ? DefterSirasi::SskNo : DefterSirasi::Kod;
      },
      "SSK No Sırasına Göre");
}

AlanGrubu KodAraligi(const char* kodEtiketi) {
  AlanGrubu grup{BaslangicBitis, {}, 2};
  AralikEkle(grup, kodlar, kodEtiketi, true);
  return grup;
}

AlanGrubu AralikAlanlari(bool numarali, const char* kodEtiketi) {
  AlanGrubu grup{BaslangicBitis, {}, 2};
  const AlanEki numara{.enCok = 99, .harf = SayiHarfi};
  if (numarali)
    grup.alanlar = {{Uye("noBas", &DefterSecim::noBas), "Bordro no", numara},
                    {Uye("noBit", &DefterSecim::noBit), "Bordro no Bitiş", numara}};
  AralikEkle(grup, kodlar, kodEtiketi, true);
  for (const AralikTanimi& tanim : digerleri) AralikEkle(grup, tanim, tanim.etiket, false);
  return grup;
}

}  // namespace belvani
