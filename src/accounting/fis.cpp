#include "accounting/fis.h"

#include <algorithm>

#include "core/tarih.h"

namespace belvani {
namespace {

std::string SatirAdi(const Entpar& satir) {
  return satir.grup + " grubu, " + std::to_string(satir.no) + " nolu satır";
}

}  // namespace

std::string FisAciklamasi(int yil, int ay) {
  return std::string(AyAdi(ay)) + " " + std::to_string(yil) + " Ücret Tahakkuku";
}

std::string_view TarafHarfi(std::uint8_t ba) {
  return ba == BorcTarafi ? "B" : "A";
}

FisKurucu::FisKurucu(const std::vector<Entpar>& satirlar) {
  for (const Entpar& satir : satirlar) satirlar_[satir.grup].push_back(satir);
  for (auto& [grup, grubunSatirlari] : satirlar_) std::ranges::stable_sort(grubunSatirlari, {}, &Entpar::no);
}

void FisKurucu::Ekle(std::string_view ozel, const Brd& brd) {
  if (!ozel_ || !TurkceEsit(*ozel_, ozel)) {
    GrubuDagit();
    ozel_ = std::string(ozel);
  }
  toplamlar_.Ekle(brd);
}

// A group that pays nothing out posts nothing, and its sums do not leak into the next one.
void FisKurucu::GrubuDagit() {
  if (!ozel_) return;
  const auto grup = satirlar_.find(*ozel_);
  const std::string ad = ozel_->empty() ? "Özel kodu olmayan personel" : *ozel_ + " grubu";
  if (toplamlar_[YerNetOdenen] <= Tutar())
    uyarilar_.push_back({.metin = ad + " fişe girmedi: net ödenen sıfırın üstünde değil", .derece = Derece::Uyari});
  else if (grup == satirlar_.end())
    uyarilar_.push_back({.metin = ad + " fişe girmedi: entegrasyon parametresi yok", .derece = Derece::Uyari});
  else
    for (const Entpar& satir : grup->second) SatiriDagit(satir);
  toplamlar_ = {};
}

void FisKurucu::SatiriDagit(const Entpar& satir) {
  if (satir.yer == YerYok) return;
  const auto uyar = [&](const char* neden) {
    uyarilar_.push_back({.metin = SatirAdi(satir) + " fişe girmedi: " + neden, .derece = Derece::Uyari});
  };
  if (satir.yer >= YerSayisi) return uyar("entegre olacak yer listede yok");
  if (satir.hesap.empty()) return uyar("muhasebe kodu yok");
  HesapTutari* hesap = HesapBul(satir.hesap);
  if (hesap == nullptr) {
    dusenler_.push_back(
        {.metin = "Fazla Grup Yaratılmış...\n" + SatirAdi(satir) + ": " + satir.hesap, .derece = Derece::Uyari});
    return;
  }
  const Tutar tutar = toplamlar_[satir.yer];
  satir.ba == BorcTarafi ? hesap->tutar += tutar : hesap->tutar -= tutar;
}

// The account's row, a new one where there is room; null when all are taken.
FisKurucu::HesapTutari* FisKurucu::HesapBul(const std::string& hesap) {
  const auto ayni = [&](const HesapTutari& h) { return TurkceEsit(h.hesap, hesap); };
  if (const auto yer = std::ranges::find_if(hesaplar_, ayni); yer != hesaplar_.end()) return &*yer;
  return hesaplar_.size() == EnCokHesap ? nullptr : &hesaplar_.emplace_back(HesapTutari{hesap, {}});
}

Fis FisKurucu::Bitir(const FisDonemi& donem) {
  GrubuDagit();
  ozel_.reset();
  Fis fis{.donem = donem,
          .ack = FisAciklamasi(donem.yil, donem.ay),
          .satirlar = {},
          .borc = {},
          .alacak = {},
          .dusenler = std::move(dusenler_),
          .uyarilar = std::move(uyarilar_)};
  for (const HesapTutari& h : hesaplar_) {
    if (h.tutar == Tutar()) continue;
    const bool borc = h.tutar > Tutar();
    const Tutar tutar = borc ? h.tutar : Tutar() - h.tutar;
    fis.satirlar.push_back({h.hesap, fis.ack, borc ? BorcTarafi : AlacakTarafi, tutar});
    (borc ? fis.borc : fis.alacak) += tutar;
  }
  return fis;
}

}  // namespace belvani
