#include "core/store/pgyazici.h"

#include <algorithm>

#include "core/store/islem.h"
#include "core/store/pgdeger.h"

namespace belvani {
namespace {

constexpr std::size_t AzSatir = 8;
constexpr std::size_t EnCokSatir = 20'000;      // gathered, then they go
constexpr std::size_t KopyaParcasi = 1u << 18;  // bytes

constexpr const char* TetikleriKapat = "select set_config('belvani.tetiksiz', 'on', true)";
constexpr const char* TetikleriAc = "select set_config('belvani.tetiksiz', '', true)";

PgParametre Parametre(const Deger& deger) {
  struct {
    PgParametre operator()(Null) const { return {}; }
    PgParametre operator()(const std::string& d) const { return PgParametre::Metin(d); }
    PgParametre operator()(std::int64_t d) const { return PgParametre::Tam(d); }
    PgParametre operator()(double d) const { return PgParametre::Metin(PgSayiMetni(d)); }
    PgParametre operator()(Tutar d) const { return PgParametre::Tam(d.Ham()); }
    PgParametre operator()(Tarih d) const { return PgParametre::Metin(d.Iso()); }
    PgParametre operator()(bool d) const { return PgParametre::Tam(d ? 1 : 0); }
    PgParametre operator()(const Baytlar& d) const {
      return PgParametre::Bayt({reinterpret_cast<const char*>(d.data()), d.size()});
    }
  } const al;
  return std::visit(al, deger);
}

void Alan(PgKopyaSatiri& satir, unsigned tip, const Deger& deger) {
  if (const auto* tam = std::get_if<std::int64_t>(&deger)) return satir.Tam(tip, *tam);
  if (const auto* sayi = std::get_if<double>(&deger)) return satir.Sayi(tip, *sayi);
  if (const auto* metin = std::get_if<std::string>(&deger)) return satir.Metin(*metin);
  if (const auto* bayt = std::get_if<Baytlar>(&deger))
    return satir.Metin({reinterpret_cast<const char*>(bayt->data()), bayt->size()});
  satir.Null();
}

std::string Virgullu(const std::vector<std::string>& adlar) {
  std::string liste;
  for (const std::string& ad : adlar) liste += (liste.empty() ? "" : ", ") + ad;
  return liste;
}

}  // namespace

PgTampon::PgTampon(PgMotor& motor, const YazilanKolonlar& kolonlar, YazmaTuru tur)
    : motor_(motor), tablo_(kolonlar.tablo), duran_(kolonlar.duran), tur_(tur), tetiksiz_(kolonlar.tetiksiz) {
  const PgTablosu* tablo = motor.Katalog().Bul(tablo_);
  if (tablo == nullptr) throw MotorHatasi(MotorKusuru::Diger, "Tablo yok: " + tablo_);
  kimlik_ = tur == YazmaTuru::Koy ? kolonlar.adlar.front() : tablo->kimlik;
  const auto tip = [&](const std::string& ad) {
    const PgKolonu* kolon = tablo->Bul(ad);
    if (kolon == nullptr) throw MotorHatasi(MotorKusuru::Diger, "Alan yok: " + tablo_ + "." + ad);
    return kolon->tip;
  };
  kimlikTipi_ = tip(kimlik_);
  for (const std::string& ad : kolonlar.adlar) {
    adlar_.push_back(ad);
    tipler_.push_back(tip(ad));
  }
  butun_ = std::ranges::all_of(tablo->kolonlar, [&](const PgKolonu& k) {
    return k.ad == kimlik_ || std::ranges::find(adlar_, k.ad) != adlar_.end();
  });
  degerler_.resize(adlar_.size());
}

void PgTampon::MetinKoy(int no, std::string_view d) {
  Deger& yer = Yer(no);
  const std::string_view metin = PgMetni(d);
  if (auto* eski = std::get_if<std::string>(&yer))
    eski->assign(metin);
  else
    yer = std::string(metin);
}

std::int64_t PgTampon::Yaz(std::int64_t kimlik) {
  if (!motor_.IslemdeMi()) {
    Islem islem(motor_);
    const std::int64_t yazilan = Yaz(kimlik);
    islem.Onayla();
    return yazilan;
  }
  motor_.Degisti();
  Satir satir{tur_ == YazmaTuru::Ekle ? motor_.Numara(tablo_) : kimlik, {}};
  if (tur_ == YazmaTuru::Koy) degerler_.front() = satir.kimlik;
  if (kimlikler_.contains(satir.kimlik) || kimlikler_.size() >= EnCokSatir) Bosalt();
  kimlikler_.insert(satir.kimlik);
  const std::int64_t no = satir.kimlik;
  const bool toplu = tur_ != YazmaTuru::Degistir || butun_;
  if (kopya_.empty() && (azlar_.size() < AzSatir || !toplu)) {
    satir.degerler = degerler_;
    azlar_.push_back(std::move(satir));
    return no;
  }
  if (kopya_.empty()) {
    kopya_.push_back(PgKopyaSatiri::Bas());
    for (const Satir& az : azlar_) KopyayaEkle(az);
    azlar_.clear();
  }
  satir.degerler.swap(degerler_);
  KopyayaEkle(satir);
  satir.degerler.swap(degerler_);
  return no;
}

void PgTampon::KopyayaEkle(const Satir& satir) {
  if (kopya_.back().size() > KopyaParcasi) kopya_.emplace_back();
  PgKopyaSatiri yazan(kopya_.back());
  const bool numarali = tur_ != YazmaTuru::Koy;
  yazan.Basla(int(adlar_.size()) + (numarali ? 1 : 0));
  if (numarali) yazan.Tam(kimlikTipi_, satir.kimlik);
  for (std::size_t i = 0; i < adlar_.size(); ++i) Alan(yazan, tipler_[i], satir.degerler[i]);
}

void PgTampon::Birak() {
  azlar_.clear();
  kopya_.clear();
  kimlikler_.clear();
}

void PgTampon::Bosalt() {
  if (kimlikler_.empty()) return;
  PgBaglanti& b = motor_.Baglanti();
  if (tetiksiz_) b.Sirala(TetikleriKapat);
  kopya_.empty() ? TekTekGonder() : TopluGonder();
  if (tetiksiz_) b.Sirala(TetikleriAc);
  Birak();
}

// $1 is the row's number, or the first column that is it; the others follow in their order.
std::string PgTampon::TekMetni() const {
  std::string sorular, atamalar;
  const bool numarali = tur_ != YazmaTuru::Koy;
  if (numarali) sorular = "$1";
  for (std::size_t i = 0; i < adlar_.size(); ++i) {
    const std::string no = "$" + std::to_string(i + (numarali ? 2 : 1));
    sorular += (sorular.empty() ? "" : ", ") + no;
    if (adlar_[i] != kimlik_) atamalar += (atamalar.empty() ? "" : ", ") + adlar_[i] + " = " + no;
  }
  const std::string ekle = "insert into " + tablo_ + " (" + (numarali ? kimlik_ + ", " : "") + Virgullu(adlar_) +
                           ") values (" + sorular + ")";
  switch (tur_) {
    case YazmaTuru::Ekle:
      return ekle;
    case YazmaTuru::Degistir:
      return "update " + tablo_ + " set " + atamalar + " where " + kimlik_ + " = $1";
    case YazmaTuru::Koy:
      return ekle + " on conflict (" + kimlik_ + ") do update set " + atamalar;
  }
  return {};
}

std::vector<PgParametre> PgTampon::Parametreler(const Satir& satir) const {
  std::vector<PgParametre> parametreler;
  if (tur_ != YazmaTuru::Koy) parametreler.push_back(PgParametre::Tam(satir.kimlik));
  for (const Deger& d : satir.degerler) parametreler.push_back(Parametre(d));
  return parametreler;
}

void PgTampon::TekTekGonder() {
  const std::string sql = TekMetni();
  for (const Satir& satir : azlar_) motor_.Baglanti().Sirala(sql, Parametreler(satir));
}

// A row that is changed goes and comes anew with its number, all of it: that is many times faster than changing it.
void PgTampon::TopluGonder() {
  PgBaglanti& b = motor_.Baglanti();
  if (tur_ != YazmaTuru::Ekle) {
    std::string liste;
    for (const std::int64_t no : kimlikler_) liste += (liste.empty() ? "{" : ",") + std::to_string(no);
    const auto silinen = b.Sirala("delete from " + tablo_ + " where " + kimlik_ + " = any($1::bigint[])",
                                  {PgParametre::Metin(liste + "}")});
    b.Bitir();
    if (tur_ == YazmaTuru::Degistir && silinen->sonuc.Degisen() != std::int64_t(kimlikler_.size()))
      throw MotorHatasi(MotorKusuru::Diger, "Kayıt bu arada başka bir kullanıcı tarafından silinmiş");
  }
  kopya_.back() += PgKopyaSatiri::Son();
  const std::string numara = tur_ == YazmaTuru::Koy ? "" : kimlik_ + ", ";
  b.Kopyala("copy " + tablo_ + " (" + numara + Virgullu(adlar_) + ") from stdin (format binary)", kopya_);
}

}  // namespace belvani
