#include "core/store/depoaktarimi.h"

#include <algorithm>

#include "core/store/donusum.h"
#include "core/store/indeksler.h"
#include "core/store/islem.h"
#include "core/store/kayitozeti.h"
#include "core/store/yantablolar.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

constexpr std::size_t AdimSatiri = 256;
constexpr const char* OzetTablosu = "brdozet";

struct AktarilanKolon {
  std::string ad;
  AlanTipi tip;
};

struct AktarilanTablo {
  std::string ad;
  std::vector<AktarilanKolon> kolonlar;
};

AlanTipi KolonTipi(std::string_view tablo, const MotorKolonu& kolon) {
  if (const TabloTanimi* tanim = TabloBul(tablo))
    if (const AlanTanimi* alan = tanim->AlanBul(kolon.ad)) return alan->tip;
  // What lies beside the schema has the columns of pay records.
  if (const AlanTanimi* alan = TabloBul("brd")->AlanBul(kolon.ad)) return alan->tip;
  return BildirilenTip(kolon.tip);
}

std::optional<AktarilanTablo> TabloOku(Motor& motor, std::string_view ad) {
  AktarilanTablo tablo{std::string(ad), {}};
  for (const MotorKolonu& kolon : motor.Kolonlar(ad)) tablo.kolonlar.push_back({kolon.ad, KolonTipi(ad, kolon)});
  return tablo.kolonlar.empty() ? std::nullopt : std::optional(std::move(tablo));
}

std::vector<AktarilanTablo> Tablolari(Motor& motor) {
  std::vector<AktarilanTablo> tablolar;
  for (const TabloTanimi& tanim : Tablolar())
    if (auto tablo = TabloOku(motor, tanim.ad)) tablolar.push_back(std::move(*tablo));
  for (const char* ad : {OzetTablosu, "brdonceki", "brdayrilan"})
    if (auto tablo = TabloOku(motor, ad)) tablolar.push_back(std::move(*tablo));
  return tablolar;
}

// The column that numbers the rows, as the engine's own or the table's.
std::string Kimlik(Motor& motor, const std::string& tablo) {
  if (tablo == OzetTablosu) return "oto";
  if (const TabloTanimi* tanim = TabloBul(tablo))
    for (const AlanTanimi& alan : tanim->alanlar)
      if (alan.nitelik == AlanNiteligi::Otomatik) return std::string(alan.ad);
  return motor.KimlikKolonu(tablo);
}

bool BosuVar(Motor& motor, const AktarilanTablo& tablo, const std::string& kolon) {
  return motor.Hazirla("select 1 from " + tablo.ad + " where " + kolon + " is null limit 1")->Adim();
}

// The row's number, then the columns, in the order of the numbers.
std::unique_ptr<Komut> Satirlari(Motor& motor, const AktarilanTablo& tablo) {
  const std::string kimlik = Kimlik(motor, tablo.ad);
  std::string sql = "select " + kimlik;
  for (const AktarilanKolon& kolon : tablo.kolonlar) sql += ", " + kolon.ad;
  return motor.Hazirla(sql + " from " + tablo.ad + " order by " + kimlik);
}

std::size_t SatirSayisi(Motor& motor, const std::vector<AktarilanTablo>& tablolar) {
  std::size_t sayi = 0;
  for (const AktarilanTablo& tablo : tablolar) {
    const auto komut = motor.Hazirla("select count(*) from " + tablo.ad);
    if (komut->Adim()) sayi += std::size_t(komut->Tam(0));
  }
  return sayi;
}

bool Sayilir(AlanTipi tip) {
  return tip != AlanTipi::Metin && tip != AlanTipi::Tarih && tip != AlanTipi::Ikili;
}

// A value of another kind than its column's would be another value over there.
bool Uyar(Komut::Tur tur, AlanTipi tip) {
  switch (tur) {
    case Komut::Tur::Null:
      return true;
    case Komut::Tur::Tam:
      return Sayilir(tip);
    case Komut::Tur::Sayi:
      return tip == AlanTipi::Tek;
    case Komut::Tur::Metin:
      return tip == AlanTipi::Metin || tip == AlanTipi::Tarih;
    case Komut::Tur::Bayt:
      return tip == AlanTipi::Ikili;
  }
  return false;
}

template <class Hedef>
void DegeriBagla(Hedef& hedef, int no, const Komut& komut, int i, AlanTipi tip) {
  switch (komut.Turu(i)) {
    case Komut::Tur::Null:
      return hedef.NullBagla(no);
    case Komut::Tur::Tam:
    case Komut::Tur::Sayi:
      return tip == AlanTipi::Tek ? hedef.SayiBagla(no, komut.Sayi(i)) : hedef.TamBagla(no, komut.Tam(i));
    case Komut::Tur::Metin:
      return hedef.MetinBagla(no, komut.Metin(i));
    case Komut::Tur::Bayt:
      return hedef.BaytBagla(no, komut.Bayt(i));
  }
}

class Aktarim {
 public:
  Aktarim(Motor& kaynak, Motor& hedef, const Motor::KopyaAdimi& adim) : kaynak_(kaynak), hedef_(hedef), adim_(adim) {}

  void Yap() {
    const auto tablolar = Tablolari(kaynak_);
    toplam_ = SatirSayisi(kaynak_, tablolar);
    for (const AktarilanTablo& tablo : tablolar) {
      Kur(tablo);
      Satirlar(tablo);
    }
    adim_(toplam_, toplam_);
  }

 private:
  // With the columns that the source has: those of an older version, and those that are nobody's.
  void Kur(const AktarilanTablo& tablo) {
    if (tablo.ad == OzetTablosu) return hedef_.OzetleriKur();
    const TabloTanimi* tanim = TabloBul(tablo.ad);
    std::string kolonlar;
    for (const AktarilanKolon& kolon : tablo.kolonlar) {
      const AlanTanimi* alan = tanim == nullptr ? nullptr : tanim->AlanBul(kolon.ad);
      AlanTanimi yeni = alan == nullptr ? AlanTanimi{kolon.ad, kolon.tip, 255, AlanNiteligi::Serbest} : *alan;
      bool bosOlmaz = alan != nullptr && BirincilMi(*tanim, alan->ad);
      // What an older version has left empty stays so.
      if (yeni.nitelik != AlanNiteligi::Otomatik && BosuVar(kaynak_, tablo, kolon.ad)) {
        yeni.nitelik = AlanNiteligi::Serbest;
        bosOlmaz = false;
      }
      kolonlar += (kolonlar.empty() ? "" : ", ") + hedef_.KolonTanimi(yeni, bosOlmaz);
    }
    hedef_.Calistir(hedef_.TabloMetni(tablo.ad, kolonlar));
  }

  void Satirlar(const AktarilanTablo& tablo) {
    YazilanKolonlar kolonlar{.tablo = tablo.ad, .adlar = {}, .tetiksiz = true};
    const std::string kimlik = Kimlik(hedef_, tablo.ad);
    kolonlar.adlar.push_back(kimlik);
    for (const AktarilanKolon& kolon : tablo.kolonlar)
      if (kolon.ad != kimlik) kolonlar.adlar.push_back(kolon.ad);
    const auto yazici = hedef_.SatirYaziciAc(kolonlar, YazmaTuru::Koy);
    const auto komut = Satirlari(kaynak_, tablo);
    while (komut->Adim()) {
      if (biten_ % AdimSatiri == 0) adim_(biten_, toplam_);
      ++biten_;
      int no = 1;
      for (std::size_t i = 0; i < tablo.kolonlar.size(); ++i) {
        const AktarilanKolon& kolon = tablo.kolonlar[i];
        if (kolon.ad == kimlik) continue;
        if (!Uyar(komut->Turu(int(i) + 1), kolon.tip))
          throw MotorHatasi(MotorKusuru::Kisit, tablo.ad + "." + kolon.ad +
                                                    ": alanın türünden olmayan bir değer var, şirketi denetleyiniz");
        DegeriBagla(*yazici, ++no, *komut, int(i) + 1, kolon.tip);
      }
      yazici->Yaz(komut->Tam(0));
    }
    if (tablo.ad != OzetTablosu) hedef_.SonNumarayiKoy(tablo.ad, kaynak_.SonNumara(tablo.ad));
  }

  Motor& kaynak_;
  Motor& hedef_;
  const Motor::KopyaAdimi& adim_;
  std::size_t biten_ = 0, toplam_ = 0;
};

std::int64_t SatirOzeti(const Komut& komut, const AktarilanTablo& tablo) {
  KayitOzeti ozet;
  for (std::size_t i = 0; i < tablo.kolonlar.size(); ++i)
    DegeriBagla(ozet, 0, komut, int(i) + 1, tablo.kolonlar[i].tip);
  return ozet.Deger();
}

std::string TabloFarki(Motor& bir, Motor& iki, const AktarilanTablo& tablo) {
  const auto a = Satirlari(bir, tablo), b = Satirlari(iki, tablo);
  while (true) {
    const bool var = a->Adim();
    if (b->Adim() != var) return tablo.ad + ": kayıt sayıları başka";
    if (!var) return {};
    if (a->Tam(0) != b->Tam(0) || SatirOzeti(*a, tablo) != SatirOzeti(*b, tablo))
      return tablo.ad + ": " + std::to_string(a->Tam(0)) + " numaralı kayıt başka";
  }
}

}  // namespace

void DepoyuAktar(Motor& kaynak, Motor& hedef, const Motor::KopyaAdimi& adim) {
  Islem islem(hedef);
  Aktarim(kaynak, hedef, adim).Yap();
  // In the target's own words, whatever the source has.
  IndeksleriTamamla(hedef);
  if (!hedef.Kolonlar("brd").empty()) {
    hedef.OzetleriKur();
    OncekileriHazirla(hedef);
    AyrilanlariHazirla(hedef);
  }
  islem.Onayla();
}

void DepoyuDosyayaAl(Motor& kaynak, const std::string& yol, const Motor::KopyaAdimi& adim) {
  const auto hedef = MotorYarat(yol);
  DepoyuAktar(kaynak, *hedef, adim);
  hedef->YerKoy(DepoYeri::Paylasilan);  // all into the one file
}

std::string DepoFarki(Motor& bir, Motor& iki) {
  const auto tablolar = Tablolari(bir);
  for (const AktarilanTablo& tablo : tablolar) {
    const auto oteki = TabloOku(iki, tablo.ad);
    if (!oteki) return tablo.ad + ": tablo yok";
    for (const AktarilanKolon& kolon : tablo.kolonlar)
      if (std::ranges::find(oteki->kolonlar, kolon.ad, &AktarilanKolon::ad) == oteki->kolonlar.end())
        return tablo.ad + "." + kolon.ad + ": alan yok";
    if (std::string fark = TabloFarki(bir, iki, tablo); !fark.empty()) return fark;
  }
  return {};
}

}  // namespace belvani
