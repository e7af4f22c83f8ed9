#include "declarations/bildirgexml.h"

#include <algorithm>

#include "core/asama.h"
#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::size_t IsimHarfi = 18;
constexpr std::string_view RaporIsareti = "2";
constexpr std::string_view BozanIsaretler = "\"&<";

std::string_view MahiyetHarfi(BelgeMahiyeti mahiyet) {
  switch (mahiyet) {
    case BelgeMahiyeti::Iptal:
      return "I";
    case BelgeMahiyeti::Ek:
      return "E";
    case BelgeMahiyeti::Asil:
      return "A";
  }
  return {};
}

// Day and month: 1 February is "0102".
std::string GunAy(Tarih gun) {
  return IkiHane(gun.Gun()) + IkiHane(gun.Ay());
}

std::string Isim(std::string_view hucre) {
  return std::string(Kirp(IlkHarfler(hucre, IsimHarfi)));
}

// The second block of control characters, which ISO-8859-9 has behind the letters of ASCII.
bool UstDenetim(char c) {
  const auto bayt = static_cast<unsigned char>(c);
  return bayt >= 0x80 && bayt < 0xA0;
}

bool Yazilabilir(std::string_view metin) {
  const bool yalin = std::ranges::all_of(metin, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return yalin || KodSayfasinaSigar(metin, KodSayfasi::Iso8859_9);
}

class Yazan {
 public:
  Yazan(Yuvarlayici yuvarla, Ilerleme* ilerleme) : yuvarla_(yuvarla), ilerleme_(ilerleme) {}

  BildirgeDosyasi Yaz(const Bildirge& bildirge, const IsyeriBilgileri& isyeri) {
    Satir(R"(<?xml version="1.0" encoding="iSO-8859-9" ?>)");
    Satir("<AYLIKBILDIRGELER>");
    IsyeriYaz(isyeri);
    BordroYaz(bildirge.secim);
    GruplariYaz(bildirge.satirlar, isyeri.FirmaKanun);
    Satir("</AYLIKBILDIRGELER>");
    BildirgeDosyasi dosya{KodSayfasina(metin_, KodSayfasi::Iso8859_9), std::move(sorunlar_)};
    std::erase_if(dosya.icerik, UstDenetim);
    return dosya;
  }

 private:
  void Satir(std::string_view satir) { metin_.append(satir).append("\r\n"); }

  // ` AD="deger"`
  void Ozellik(std::string_view ad, std::string_view deger) {
    const std::string temiz = DenetimsizMetin(deger);
    if (temiz.find_first_of(BozanIsaretler) != std::string::npos)
      Sorun(ad, "\" & < işaretlerinden biri var, dosya okunamaz");
    if (!Yazilabilir(temiz)) Sorun(ad, "dosyaya yazılamayan harf var, yerine ? konur");
    metin_.append(" ").append(ad).append("=\"").append(temiz).append("\"");
  }
  void Sorun(std::string_view ad, std::string_view ne) {
    Kusur& sorun = sorunlar_.emplace_back(sahip_);
    sorun.metin.append(": ").append(ad).append(" bilgisinde ").append(ne);
  }

  void DoluysaOzellik(std::string_view ad, std::string_view deger) {
    if (!deger.empty()) Ozellik(ad, deger);
  }
  void PozitifseOzellik(std::string_view ad, std::optional<int> sayi) {
    if (sayi > 0) Ozellik(ad, std::to_string(*sayi));
  }
  void PozitifseOzellik(std::string_view ad, std::optional<Tutar> tutar) {
    if (tutar > Tutar()) Ozellik(ad, YalinMetin(*tutar));
  }
  void TarihOzelligi(std::string_view ad, Tarih gun) {
    if (!gun.Bos()) Ozellik(ad, GunAy(gun));
  }

  void IsyeriYaz(const IsyeriBilgileri& isyeri) {
    metin_ += "\t<ISYERI";
    Ozellik("ISYERISICIL", isyeri.IsyeriSicil);
    Ozellik("KONTROLNO", isyeri.KontrolNo);
    Ozellik("ISYERIARACINO", isyeri.AraciNo);
    Ozellik("ISYERIUNVAN", isyeri.IsyeriUnvan);
    Ozellik("ISYERIADRES", isyeri.IsyeriAdres);
    DoluysaOzellik("ISYERIVERGINO", isyeri.IsyeriVergiNo);
    Satir(" />");
  }

  void BordroYaz(const BildirgeSecimi& secim) {
    metin_ += "\t<BORDRO";
    Ozellik("DONEMAY", IkiHane(secim.ay));
    Ozellik("DONEMYIL", std::to_string(secim.yil));
    Ozellik("BELGEMAHIYET", MahiyetHarfi(secim.mahiyet));
    Satir(" />");
  }

  void GruplariYaz(const std::vector<BildirgeSatiri>& satirlar, const std::string& FirmaKanun) {
    std::optional<int> belgeTuru;
    std::string kanun;
    int sira = 0;
    Asama asama(ilerleme_, satirlar.size());
    for (const auto& satir : satirlar) {
      asama.Adim();
      const std::string satirKanunu(BastakiSayi(satir.kanun) == 0 ? FirmaKanun : Kirp(satir.kanun));
      SahibiKoy(satir);
      if (sira == 0 || satir.sigkol != belgeTuru || satirKanunu != kanun) {
        if (sira > 0) GrupKapat();
        belgeTuru = satir.sigkol;
        kanun = satirKanunu;
        sira = 0;
        GrupAc(IkiHane(belgeTuru.value_or(0)), kanun);
      }
      SigortaliYaz(satir, ++sira);
    }
    if (sira > 0) GrupKapat();
  }

  void SahibiKoy(const BildirgeSatiri& satir) {
    sahip_.metin = SatirSahibi(satir);
    sahip_.kod = satir.kod;
    ++sahip_.satir;
  }

  void GrupAc(std::string_view belgeTuru, std::string_view kanun) {
    metin_ += "\t<BILDIRGELER";
    Ozellik("BELGETURU", belgeTuru);
    Ozellik("KANUN", kanun);
    Satir(">");
    Satir("\t\t<SIGORTALILAR>");
  }
  void GrupKapat() {
    Satir("\t\t</SIGORTALILAR>");
    Satir("\t</BILDIRGELER>");
  }

  void SigortaliYaz(const BildirgeSatiri& satir, int sira) {
    metin_ += "\t\t\t<SIGORTALI";
    Ozellik("SIRA", std::to_string(sira));
    Ozellik("SIGORTALISICIL", satir.sskno);
    DoluysaOzellik("TCKNO", satir.tcno);
    Ozellik("AD", Isim(satir.adi));
    Ozellik("SOYAD", Isim(satir.soyadi));
    DoluysaOzellik("ILKSOYAD", Isim(satir.ilksoyadi));
    Ozellik("PEK", YalinMetin(yuvarla_(satir.primkazanc.value_or(Tutar()))));
    Ozellik("PRIM_IKRAMIYE", YalinMetin(yuvarla_(satir.ikramiye.value_or(Tutar()))));
    Ozellik("GUN", std::to_string(satir.gun.value_or(0)));
    TarihOzelligi("GIRISGUN", satir.girtar);
    TarihOzelligi("CIKISGUN", satir.ciktar);
    PozitifseOzellik("UCRETLIIZINGUN", satir.ui);
    PozitifseOzellik("UIPEK", satir.uiucret);
    PozitifseOzellik("EKSIKGUNSAYISI", satir.eksikgunsayisi);
    PozitifseOzellik("EKSIKGUNNEDENI", satir.eksik);
    PozitifseOzellik("ISTENCIKISNEDENI", satir.ciksebeb);
    DoluysaOzellik("MESLEKKOD", Kirp(satir.meslekkod));
    if (satir.rapcalismadi > 0) Ozellik("RAPCALISTI", RaporIsareti);
    Satir(" />");
  }

  Yuvarlayici yuvarla_;
  Ilerleme* ilerleme_;
  std::string metin_;
  Kusur sahip_{.metin = "İşyeri", .derece = Derece::Uyari};  // whose values are being written
  Kusurlar sorunlar_;
};

}  // namespace

BildirgeDosyasi BildirgeXml(const Bildirge& bildirge, const IsyeriBilgileri& isyeri, Yuvarlayici yuvarla,
                            Ilerleme* ilerleme) {
  return Yazan(yuvarla, ilerleme).Yaz(bildirge, isyeri);
}

std::string XmlDosyaAdi(const BildirgeSecimi& secim) {
  return "Bordro" + std::to_string(secim.kanun) + IkiHane(secim.ay) + std::to_string(secim.yil) + ".xml";
}

}  // namespace belvani
