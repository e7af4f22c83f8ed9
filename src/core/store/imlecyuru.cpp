// How a cursor moves: one record at a time by its key, in blocks once a sequential run is under way.

#include <algorithm>

#include "core/store/donusum.h"
#include "core/store/imlec.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int OnOkumaBoyu = 128;
constexpr int ArdisikEsigi = 2;  // moves one way before it pays to read ahead

}  // namespace

std::string Imlec::SecimMetni() const {
  std::string sql = "select " + db_->IcMotor().KimlikKolonu();
  for (const auto& alan : alanlar_) sql += ", " + alan.ad;
  return sql + " from " + std::string(tanim_->ad);
}

std::string Imlec::SiraMetni(Yon yon) const {
  const std::string yonu = yon == Yon::Ileri ? "" : " desc";
  const std::string kimlik = db_->IcMotor().KimlikKolonu() + yonu;
  if (indeks_ == nullptr) return " order by " + kimlik;
  const std::string anahtar = std::string(indeks_->alanlar.front()) + yonu;
  return " order by " + anahtar + (indeks_->tekil ? "" : ", " + kimlik);
}

void Imlec::SatirAl(const Komut& komut, Satir& satir) const {
  satir.kimlik = komut.Tam(0);
  satir.alanlar.resize(alanlar_.size());
  for (std::size_t i = 0; i < alanlar_.size(); ++i)
    satir.alanlar[i] = KolondanDeger(komut, int(i) + 1, alanlar_[i].tip);
}

void Imlec::SiraDegisti() {
  yuru_[0].reset();
  yuru_[1].reset();
  okunanBoy_ = 0;
  ardisik_ = 0;
  indeksAlani_ = indeks_ == nullptr ? -1 : AlanSirasi(indeks_->alanlar.front());
}

bool Imlec::UcaGit(Yon yon) {
  bekleyen_ = Bekleyen::Yok;
  if (tanim_ == nullptr) {
    if (okunan_.empty()) return false;
    okunanSira_ = yon == Yon::Ileri ? 0 : okunan_.size() - 1;
    konum_ = Konum::Kayitta;
    return true;
  }
  okunanBoy_ = 0;
  ardisik_ = 0;
  konum_ = Konum::Belirsiz;
  const auto komut = db_->IcMotor().Hazirla(SecimMetni() + SiraMetni(yon) + " limit 1");
  if (!komut->Adim()) {
    konum_ = Konum::Bos;
    return false;
  }
  SatirAl(*komut, satir_);
  konum_ = Konum::Kayitta;
  return true;
}

bool Imlec::SorgudaYuru(Yon yon) {
  if (yon == Yon::Ileri ? okunanSira_ + 1 >= okunan_.size() : okunanSira_ == 0) {
    konum_ = yon == Yon::Ileri ? Konum::Sonda : Konum::Basta;
    return false;
  }
  yon == Yon::Ileri ? ++okunanSira_ : --okunanSira_;
  return true;
}

bool Imlec::OnOkumadanAl(Yon yon) {
  if (okunanSira_ >= okunanBoy_ || okunanYon_ != yon || okunanSurum_ != db_->IcMotor().YazmaSayaci()) return false;
  std::swap(satir_, okunan_[okunanSira_++]);
  return true;
}

// ?1 the key of the record the cursor stands on, ?2 its row number, ?3 how many records to read.
Komut& Imlec::YuruKomutu(Yon yon) {
  auto& komut = yuru_[yon == Yon::Ileri ? 0 : 1];
  if (komut != nullptr) return *komut;
  const std::string buyuk = yon == Yon::Ileri ? " > " : " < ";
  const std::string kimlik = db_->IcMotor().KimlikKolonu();
  std::string kosul = " where " + kimlik + buyuk + "?2";
  if (indeks_ != nullptr) {
    const std::string anahtar(indeks_->alanlar.front());
    kosul = " where " + anahtar + buyuk + "?1";
    if (!indeks_->tekil)
      kosul = " where " + anahtar + (yon == Yon::Ileri ? " >= ?1" : " <= ?1") + " and (" + anahtar + buyuk + "?1 or " +
              kimlik + buyuk + "?2)";
  }
  komut = db_->IcMotor().Hazirla(SecimMetni() + kosul + SiraMetni(yon) + " limit ?3");
  return *komut;
}

bool Imlec::Yuru(Yon yon) {
  bekleyen_ = Bekleyen::Yok;
  if (tanim_ == nullptr) return SorgudaYuru(yon);
  if (OnOkumadanAl(yon)) {
    konum_ = Konum::Kayitta;
    return true;
  }
  konum_ = Konum::Belirsiz;
  ardisik_ = okunanYon_ == yon ? ardisik_ + 1 : 0;
  const int boy = ardisik_ > ArdisikEsigi ? OnOkumaBoyu : 1;
  Komut& komut = YuruKomutu(yon);
  if (indeksAlani_ >= 0) komut.Bagla(1, satir_.alanlar[std::size_t(indeksAlani_)]);
  komut.TamBagla(2, satir_.kimlik);
  komut.TamBagla(3, boy);
  okunan_.resize(std::max(okunan_.size(), std::size_t(boy)));
  okunanBoy_ = okunanSira_ = 0;
  okunanYon_ = yon;
  okunanSurum_ = db_->IcMotor().YazmaSayaci();
  while (komut.Adim()) {
    SatirAl(komut, okunan_[okunanBoy_]);
    SonrakiDenetle(okunanBoy_ == 0 ? satir_ : okunan_[okunanBoy_ - 1], okunan_[okunanBoy_], yon);
    ++okunanBoy_;
  }
  if (OnOkumadanAl(yon)) {
    konum_ = Konum::Kayitta;
    return true;
  }
  konum_ = yon == Yon::Ileri ? Konum::Sonda : Konum::Basta;
  return false;
}

// In a broken store an index may lead back to records that were passed already, and a run would never end.
void Imlec::SonrakiDenetle(const Satir& once, const Satir& sonra, Yon yon) const {
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
  if (yon == Yon::Ileri ? sira <= 0 : sira >= 0)
    throw MotorHatasi(MotorKusuru::Bozuk, "Veritabanının indeksi bozuk: " + std::string(tanim_->ad));
}

void Imlec::YenidenOku() {
  okunanBoy_ = 0;
  const auto komut = db_->IcMotor().Hazirla(SecimMetni() + " where " + db_->IcMotor().KimlikKolonu() + " = ?");
  komut->TamBagla(1, satir_.kimlik);
  if (komut->Adim()) SatirAl(*komut, satir_);
}

}  // namespace belvani
