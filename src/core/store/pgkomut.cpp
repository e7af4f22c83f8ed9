#include "core/store/pgkomut.h"

#include "core/store/pgdeger.h"

namespace belvani {

PgKomut::PgKomut(PgMotor& motor, std::string_view sql, bool tetiksiz)
    : motor_(motor), sql_(PgSorgusu(sql)), tur_(SqlTuruBul(sql)), tetiksiz_(tetiksiz) {
  if (PgBosMu(sql)) throw MotorHatasi(MotorKusuru::Diger, "Veritabanı işlemi yapılamadı [42601]");
  doner_ = tur_ != SqlTuru::Okur && sql_.find(" returning ") != sql_.npos;
}

PgParametre& PgKomut::Yer(int no) {
  if (parametreler_.size() < std::size_t(no)) parametreler_.resize(std::size_t(no));
  return parametreler_[std::size_t(no) - 1];
}

void PgKomut::SayiBagla(int no, double d) {
  Yer(no) = PgParametre::Metin(PgSayiMetni(d));
}

void PgKomut::MetinBagla(int no, std::string_view d) {
  Yer(no) = PgParametre::Metin(PgMetni(d));
}

void PgKomut::BaytBagla(int no, const Baytlar& d) {
  Yer(no) = PgParametre::Bayt({reinterpret_cast<const char*>(d.data()), d.size()});
}

void PgKomut::Gonder() {
  if (tur_ == SqlTuru::Okur) giden_ = motor_.Sirala(sql_, parametreler_);
}

bool PgKomut::Adim() {
  if (satir_ < 0) {
    if (tur_ != SqlTuru::Okur) {
      const auto yanit = motor_.Yaz(sql_, parametreler_, tetiksiz_);
      if (!doner_) return false;
      motor_.Bitir();
      sonuc_ = yanit->sonuc;
    } else if (giden_ != nullptr) {
      sonuc_ = motor_.Bekle(std::exchange(giden_, nullptr), sql_, parametreler_);
    } else {
      sonuc_ = motor_.Oku(sql_, parametreler_);
    }
  }
  return SonrakiSatir();
}

void PgKomut::Birak() {
  satir_ = -1;
  giden_.reset();
}

std::string_view PgKomut::KaynakTablo(int i) const {
  const PgTablosu* tablo = motor_.Katalog().Bul(sonuc_.KaynakTablo(i));
  return tablo == nullptr ? std::string_view() : tablo->ad;
}

std::string_view PgKomut::KaynakKolon(int i) const {
  const PgKolonu* kolon = motor_.Katalog().Bul(sonuc_.KaynakTablo(i), sonuc_.KaynakKolon(i));
  return kolon == nullptr ? std::string_view() : kolon->ad;
}

bool PgOkuyan::SonrakiSatir() {
  if (++satir_ < sonuc_.Satir()) return true;
  satir_ = -1;
  return false;
}

Komut::Tur PgOkuyan::Turu(int i) const {
  return Null(i) ? Tur::Null : PgTuru(sonuc_.Tip(i), sonuc_.Ham(satir_, i));
}

std::int64_t PgOkuyan::Tam(int i) const {
  return Null(i) ? 0 : PgTam(sonuc_.Tip(i), sonuc_.Ham(satir_, i));
}

double PgOkuyan::Sayi(int i) const {
  return Null(i) ? 0 : PgSayi(sonuc_.Tip(i), sonuc_.Ham(satir_, i));
}

std::string_view PgOkuyan::Metin(int i) const {
  switch (Turu(i)) {
    case Tur::Null:
      return {};
    case Tur::Metin:
    case Tur::Bayt:
      return sonuc_.Ham(satir_, i);
    case Tur::Tam:
      metin_ = std::to_string(Tam(i));
      break;
    case Tur::Sayi:
      metin_ = PgSayiMetni(Sayi(i));
      break;
  }
  return metin_;
}

Baytlar PgOkuyan::Bayt(int i) const {
  if (Null(i)) return {};
  const std::string_view ham = sonuc_.Ham(satir_, i);
  return {ham.begin(), ham.end()};
}

}  // namespace belvani
