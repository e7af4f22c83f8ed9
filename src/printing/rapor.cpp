#include "printing/rapor.h"

#include <algorithm>
#include <cassert>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// Whole numbers and amounts as the integer that they are added by.
std::int64_t Ham(const Hucre& hucre) {
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) return tutar->Ham();
  if (const auto* tam = std::get_if<std::int64_t>(&hucre)) return *tam;
  return 0;
}

Hucre Hamdan(std::int64_t ham, KolonTuru tur) {
  if (tur == KolonTuru::Tutar) return Tutar::Hamdan(ham);
  return ham;
}

std::int64_t Topla(std::int64_t a, std::int64_t b) {
  std::int64_t sonuc = 0;
  if (__builtin_add_overflow(a, b, &sonuc)) throw TutarTasmasi();
  return sonuc;
}

}  // namespace

std::string DuzMetin(const Hucre& hucre) {
  return std::visit([](const auto& deger) { return MetinDegeri(deger); }, hucre);
}

std::string TarihMetni(Tarih tarih, KolonTuru tur) {
  if (tarih.Bos()) return {};
  const std::string tam = tarih.Metin();
  switch (tur) {
    case KolonTuru::KisaTarih:
      return tarih.KisaMetin();
    case KolonTuru::UzunTarih:
      return tam.substr(0, 2) + " " + std::string(AyAdi(tarih.Ay())) + " " + tam.substr(6);
    case KolonTuru::GunAy:
      return tam.substr(0, 5);
    case KolonTuru::Gun:
      return tam.substr(0, 2);
    case KolonTuru::Ay:
      return tam.substr(3, 2);
    case KolonTuru::Tarih:
    case KolonTuru::Metin:
    case KolonTuru::Tam:
    case KolonTuru::Tutar:
    case KolonTuru::Bos:
      break;
  }
  return tam;
}

int TarihHarfi(KolonTuru tur) {
  const Tarih enUzun(2000, 8, 30);  // no month has more letters than Ağustos
  return TarihMi(tur) ? int(HarfSayisi(TarihMetni(enUzun, tur))) : 0;
}

std::string UstSagMetni(const UstSatir& satir, int sayfaNo, std::size_t sayfaSayisi) {
  std::string metin = satir.sag;
  if (satir.sayfaNo) metin += std::to_string(sayfaNo);
  if (satir.sayfaSayisi) metin += "/" + std::to_string(sayfaSayisi);
  return metin;
}

std::string UstEkranMetni(const UstSatir& satir) {
  std::string metin;
  for (const auto& parca : {satir.sol, satir.orta, satir.sayfaNo ? std::string() : satir.sag}) {
    if (Kirp(parca).empty()) continue;
    metin += (metin.empty() ? "" : "   ") + std::string(Kirp(parca));
  }
  return metin;
}

Rapor::Rapor(std::vector<RaporKolonu> kolonlar)
    : kolonlar_(std::move(kolonlar)),
      satirlar_(std::make_shared<RaporSatirlari>(kolonlar_.size())),
      toplam_(kolonlar_.size()),
      sinirlar_(kolonlar_.size()) {}

void Rapor::Ekle(RaporSatiri satir) {
  assert(satir.hucreler.size() == kolonlar_.size());
  if (satirlar_.use_count() > 1) satirlar_ = std::make_shared<RaporSatirlari>(*satirlar_);
  if (satirlar_->size() % RaporSatirlari::BlokBoyu == 0)
    birikim_.insert(birikim_.end(), toplam_.begin(), toplam_.end());
  for (std::size_t k = 0; k < kolonlar_.size(); ++k) {
    Hucre& hucre = satir.hucreler[k];
    Sinir& sinir = sinirlar_[k];
    if (auto* metin = std::get_if<std::string>(&hucre)) {
      *metin = DenetimsizMetin(*metin);
      sinir.harf = std::max(sinir.harf, HarfSayisi(*metin));
    }
    const std::int64_t deger = Ham(hucre);
    if (kolonlar_[k].toplanir) toplam_[k] = Topla(toplam_[k], deger);
    sinir.enKucuk = std::min({sinir.enKucuk, deger, toplam_[k]});
    sinir.enBuyuk = std::max({sinir.enBuyuk, deger, toplam_[k]});
  }
  satirlar_->Ekle(satir);
}

// Sums of the first rows.
std::vector<std::int64_t> Rapor::Birikim(std::size_t satirSayisi) const {
  assert(satirSayisi <= satirlar_->size());
  if (satirSayisi == satirlar_->size()) return toplam_;
  const std::size_t blok = satirSayisi / RaporSatirlari::BlokBoyu;
  const auto bas = birikim_.begin() + std::ptrdiff_t(blok * kolonlar_.size());
  std::vector<std::int64_t> toplamlar(bas, bas + std::ptrdiff_t(kolonlar_.size()));
  for (std::size_t sira = blok * RaporSatirlari::BlokBoyu; sira < satirSayisi; ++sira)
    for (std::size_t k = 0; k < kolonlar_.size(); ++k)
      if (kolonlar_[k].toplanir) toplamlar[k] += Ham(satirlar_->Hucresi(sira, k));
  return toplamlar;
}

std::vector<Hucre> Rapor::Toplamlar(std::size_t ilk, std::size_t son, const std::string& etiket) const {
  assert(ilk <= son);
  const auto once = Birikim(ilk);
  const auto hepsi = Birikim(son);
  std::vector<Hucre> toplamlar(kolonlar_.size());
  for (std::size_t k = 0; k < kolonlar_.size(); ++k)
    if (kolonlar_[k].toplanir) toplamlar[k] = Hamdan(hepsi[k] - once[k], kolonlar_[k].tur);
  if (const auto kolon = EtiketKolonu(); kolon && !etiket.empty()) toplamlar[*kolon] = etiket;
  return toplamlar;
}

std::vector<Hucre> Rapor::AraToplam(std::size_t satirSayisi) const {
  return Toplamlar(0, satirSayisi, toplamEtiketi);
}

std::vector<Hucre> Rapor::SayfaToplami(std::size_t ilk, std::size_t son) const {
  return Toplamlar(ilk, son, sayfaToplamEtiketi);
}

std::optional<std::size_t> Rapor::EtiketKolonu() const {
  const int harf = EtiketHarfi();
  const auto metinli = [](const RaporKolonu& k) { return k.tur == KolonTuru::Metin; };
  auto yer = std::ranges::find_if(kolonlar_, [&](const RaporKolonu& k) { return metinli(k) && k.en >= harf; });
  if (yer == kolonlar_.end()) yer = std::ranges::find_if(kolonlar_, metinli);
  return yer == kolonlar_.end() ? std::nullopt : std::optional(std::size_t(yer - kolonlar_.begin()));
}

int Rapor::EtiketHarfi() const {
  return int(std::max(HarfSayisi(toplamEtiketi), HarfSayisi(sayfaToplamEtiketi)));
}

Rapor Rapor::Sirali(std::span<const int> sira) const {
  assert(sira.size() == satirlar_->size());
  Rapor sirali = *this;
  sirali.satirlar_ = std::make_shared<RaporSatirlari>(kolonlar_.size());
  sirali.toplam_.assign(kolonlar_.size(), 0);
  sirali.birikim_.clear();
  sirali.sinirlar_.assign(kolonlar_.size(), {});
  for (std::size_t i = 0; i < sira.size(); ++i)
    sirali.Ekle({(*satirlar_)[std::size_t(sira[i])].hucreler, satirlar_->YeniSayfalar()[i]});
  return sirali;
}

bool Rapor::ToplamVar() const {
  return std::any_of(kolonlar_.begin(), kolonlar_.end(), [](const auto& k) { return k.toplanir; });
}

int Rapor::GerekliEn(std::size_t kolon, int gruplama) const {
  const RaporKolonu& k = kolonlar_[kolon];
  const Sinir& sinir = sinirlar_[kolon];
  const bool etiketli = !satirlar_->empty() && EtiketKolonu() == kolon;
  if (!k.Sayisal()) return std::max({int(sinir.harf), TarihHarfi(k.tur), etiketli ? EtiketHarfi() : 0});
  const auto en = [&](std::int64_t ham) { return HarfSayisi(HucreMetni(Hamdan(ham, k.tur), k, gruplama)); };
  return int(std::max(en(sinir.enKucuk), en(sinir.enBuyuk)));
}

std::string HucreMetni(const Hucre& hucre, const RaporKolonu& kolon, int gruplama) {
  if (const auto* metin = std::get_if<std::string>(&hucre)) return *metin;
  if (const auto* tam = std::get_if<std::int64_t>(&hucre)) return SayiFormat(std::to_string(*tam), 0, gruplama);
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) return SayiFormat(OndalikMetin(*tutar), kolon.ondalik, gruplama);
  if (const auto* tarih = std::get_if<Tarih>(&hucre)) return TarihMetni(*tarih, kolon.tur);
  return {};
}

std::string BlokMetni(const BlokSatiri& satir, const Rapor& rapor) {
  RaporKolonu kolon;
  kolon.ondalik = rapor.paraOndaligi;
  return HucreMetni(satir.deger, kolon);
}

}  // namespace belvani
