#include "core/store/tablogezgini.h"

#include <algorithm>

#include "core/store/donusum.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int OnOkumaBoyu = 128;
constexpr int ArdisikEsigi = 2;  // moves one way before it pays to read ahead

}  // namespace

TabloGezgini::TabloGezgini(Motor& motor, const TabloTanimi& tanim) : motor_(motor), tanim_(tanim) {
  const auto kolonlar = motor.Kolonlar(tanim.ad);
  if (kolonlar.empty()) throw MotorHatasi(MotorKusuru::Diger, "Tablo yok: " + std::string(tanim.ad));
  for (const auto& kolon : kolonlar) {
    const AlanTanimi* alan = tanim.AlanBul(kolon.ad);
    const AlanTipi tip = alan != nullptr ? alan->tip : BildirilenTip(kolon.tip);
    alanlar_.push_back({kolon.ad, tip, alan != nullptr ? *alan : AlanTanimi{"", tip, 255, AlanNiteligi::Serbest}});
  }
  UcaGit(Yon::Ilk);
}

int TabloGezgini::KayitSayisi() {
  const auto komut = motor_.Hazirla("select count(*) from " + std::string(tanim_.ad));
  return komut->Adim() ? int(komut->Tam(0)) : 0;
}

std::string TabloGezgini::SecimMetni() const {
  std::string sql = "select " + motor_.KimlikKolonu(tanim_.ad);
  for (const auto& alan : alanlar_) sql += ", " + alan.ad;
  return sql + " from " + std::string(tanim_.ad);
}

std::string TabloGezgini::SiraMetni(Yon yon) const {
  const std::string yonu = GeriyeMi(yon) ? " desc" : "";
  const std::string kimlik = motor_.KimlikKolonu(tanim_.ad) + yonu;
  if (indeks_ == nullptr) return " order by " + kimlik;
  const std::string anahtar = std::string(indeks_->alanlar.front()) + yonu;
  return " order by " + anahtar + (indeks_->tekil ? "" : ", " + kimlik);
}

void TabloGezgini::SatirAl(const Komut& komut, Satir& satir) const {
  satir.kimlik = komut.Tam(0);
  satir.alanlar.resize(alanlar_.size());
  for (std::size_t i = 0; i < alanlar_.size(); ++i)
    satir.alanlar[i] = KolondanDeger(komut, int(i) + 1, alanlar_[i].tip);
}

void TabloGezgini::OnOkumayiBirak() {
  okunanBoy_ = 0;
  ardisik_ = 0;
}

void TabloGezgini::SiraDegisti() {
  bul_.reset();
  yuru_[0].reset();
  yuru_[1].reset();
  OnOkumayiBirak();
  indeksAlani_ = indeks_ == nullptr ? -1 : AlanSirasi(indeks_->alanlar.front());
}

bool TabloGezgini::SiraSec(const IndeksTanimi& indeks) {
  if (indeks_ == &indeks) return false;
  indeks_ = &indeks;
  SiraDegisti();
  return true;
}

bool TabloGezgini::UcaGit(Yon uc) {
  OnOkumayiBirak();
  konum_ = Konum::Belirsiz;
  const auto komut = motor_.Hazirla(SecimMetni() + SiraMetni(uc) + " limit 1");
  if (!komut->Adim()) {
    konum_ = Konum::Bos;
    return false;
  }
  SatirAl(*komut, satir_);
  konum_ = Konum::Kayitta;
  return true;
}

bool TabloGezgini::Konuma(int sira) {
  const auto komut = motor_.Hazirla(SecimMetni() + SiraMetni(Yon::Ilk) + " limit 1 offset ?");
  komut->TamBagla(1, sira);
  if (!komut->Adim()) return false;
  OnOkumayiBirak();
  SatirAl(*komut, satir_);
  konum_ = Konum::Kayitta;
  return true;
}

bool TabloGezgini::Bul(const Deger& anahtar) {
  OnOkumayiBirak();
  konum_ = Konum::Belirsiz;
  if (bul_ == nullptr)
    bul_ = motor_.Hazirla(SecimMetni() + " where " + std::string(indeks_->alanlar.front()) + " = ?" +
                          SiraMetni(Yon::Ilk) + " limit 1");
  bul_->Bagla(1, anahtar);
  const bool bulundu = bul_->Adim();
  if (bulundu) {
    SatirAl(*bul_, satir_);
    konum_ = Konum::Kayitta;
  }
  bul_->Birak();
  return bulundu;
}

bool TabloGezgini::OnOkumadanAl(Yon yon) {
  if (okunanSira_ >= okunanBoy_ || okunanYon_ != yon || okunanSurum_ != motor_.YazmaSayaci()) return false;
  std::swap(satir_, okunan_[okunanSira_++]);
  return true;
}

// The values in order: the key of the record it stands on, its row number, each where the order asks for it, and how
// many records to read. Not every engine takes a value that stands nowhere in the statement.
Komut& TabloGezgini::YuruKomutu(Yon yon) {
  auto& komut = yuru_[GeriyeMi(yon) ? 1 : 0];
  if (komut != nullptr) return *komut;
  const std::string sonra = GeriyeMi(yon) ? " < " : " > ";
  const std::string kimlik = motor_.KimlikKolonu(tanim_.ad);
  std::string kosul = " where " + kimlik + sonra + "?1", boy = "?2";
  if (indeks_ != nullptr) {
    const std::string anahtar(indeks_->alanlar.front());
    kosul = " where " + anahtar + sonra + "?1";
    if (!indeks_->tekil) {
      kosul = " where " + anahtar + (GeriyeMi(yon) ? " <= ?1" : " >= ?1") + " and (" + anahtar + sonra + "?1 or " +
              kimlik + sonra + "?2)";
      boy = "?3";
    }
  }
  komut = motor_.Hazirla(SecimMetni() + kosul + SiraMetni(yon) + " limit " + boy);
  return *komut;
}

// One record, and whole blocks once a sequential run is under way.
void TabloGezgini::OnOku(Yon yon) {
  ardisik_ = okunanYon_ == yon ? ardisik_ + 1 : 0;
  const int boy = ardisik_ > ArdisikEsigi ? OnOkumaBoyu : 1;
  Komut& komut = YuruKomutu(yon);
  int no = 0;
  if (indeksAlani_ >= 0) komut.Bagla(++no, satir_.alanlar[std::size_t(indeksAlani_)]);
  if (indeks_ == nullptr || !indeks_->tekil) komut.TamBagla(++no, satir_.kimlik);
  komut.TamBagla(++no, boy);
  okunan_.resize(std::max(okunan_.size(), std::size_t(boy)));
  okunanBoy_ = okunanSira_ = 0;
  okunanYon_ = yon;
  okunanSurum_ = motor_.YazmaSayaci();
  while (komut.Adim()) {
    SatirAl(komut, okunan_[okunanBoy_]);
    SonrakiDenetle(okunanBoy_ == 0 ? satir_ : okunan_[okunanBoy_ - 1], okunan_[okunanBoy_], yon);
    ++okunanBoy_;
  }
}

bool TabloGezgini::Yuru(Yon yon) {
  if (!OnOkumadanAl(yon)) {
    konum_ = Konum::Belirsiz;
    OnOku(yon);
    if (!OnOkumadanAl(yon)) {
      konum_ = GeriyeMi(yon) ? Konum::Basta : Konum::Sonda;
      return false;
    }
  }
  konum_ = Konum::Kayitta;
  return true;
}

// In a broken store an index may lead back to records that were passed already, and a run would never end.
void TabloGezgini::SonrakiDenetle(const Satir& once, const Satir& sonra, Yon yon) const {
  auto sira = sonra.kimlik <=> once.kimlik;
  if (indeksAlani_ >= 0) {
    const Deger& a = once.alanlar[std::size_t(indeksAlani_)];
    const Deger& b = sonra.alanlar[std::size_t(indeksAlani_)];
    const auto* aMetin = std::get_if<std::string>(&a);
    const auto* bMetin = std::get_if<std::string>(&b);
    const auto anahtar = aMetin != nullptr && bMetin != nullptr ? TurkceKarsilastir(*bMetin, *aMetin) <=> 0
                                                                : TamDegeri(b) <=> TamDegeri(a);
    if (anahtar != 0 || indeks_->tekil) sira = anahtar;
  }
  if (GeriyeMi(yon) ? sira >= 0 : sira <= 0)
    throw MotorHatasi(MotorKusuru::Bozuk, "Veritabanının indeksi bozuk: " + std::string(tanim_.ad));
}

void TabloGezgini::YenidenOku() {
  okunanBoy_ = 0;
  const auto komut = motor_.Hazirla(SecimMetni() + " where " + motor_.KimlikKolonu(tanim_.ad) + " = ?");
  komut->TamBagla(1, satir_.kimlik);
  if (komut->Adim()) SatirAl(*komut, satir_);
}

}  // namespace belvani
