#include "accounting/fisisle.h"

#include <algorithm>
#include <limits>
#include <random>

#include "accounting/kardesdepo.h"
#include "core/saat.h"
#include "core/store/islem.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"

namespace belvani {
namespace {

constexpr std::uint8_t MahsupFisi = 3;
constexpr std::uint8_t OtomatikSatir = 255;
constexpr const char* BosAciklama = "Ücret Tahakkuku";

constexpr const char* BaslikYazilamadi = "Fis Başlık Bilgileri Kaydedilemiyor.";
constexpr const char* HareketYazilamadi = "Hareket Güncellenemiyor..";
constexpr const char* FisKullanilmis = "Bu Fiş Kullanılmış Yeni Bir Fiş No Seçiniz";
constexpr const char* NumaraKalmadi = "Muhasebede kullanılabilecek fiş numarası kalmamış";

using AyKolonlari = std::array<Kolon<Hestoplam, Tutar>, 12>;
constexpr AyKolonlari BorcAylari{hestoplam::boca, hestoplam::bsub, hestoplam::bmar, hestoplam::bnis,
                                 hestoplam::bmay, hestoplam::bhaz, hestoplam::btem, hestoplam::bagu,
                                 hestoplam::beyl, hestoplam::beki, hestoplam::bkas, hestoplam::bara};
constexpr AyKolonlari AlacakAylari{hestoplam::aoca, hestoplam::asub, hestoplam::amar, hestoplam::anis,
                                   hestoplam::amay, hestoplam::ahaz, hestoplam::atem, hestoplam::aagu,
                                   hestoplam::aeyl, hestoplam::aeki, hestoplam::akas, hestoplam::aara};

// Throws MotorHatasi with the told message before the engine's reason.
template <class Is>
void Soyleyerek(const char* mesaj, Is&& is) {
  try {
    is();
  } catch (const MotorHatasi& hata) {
    throw MotorHatasi(hata.tur, std::string(mesaj) + "\n" + hata.what());
  }
}

bool FisVar(Motor& muhasebe, std::int32_t fisno) {
  const auto komut = muhasebe.Hazirla("select 1 from fisgen where fisno = ?");
  komut->TamBagla(1, fisno);
  const bool var = komut->Adim();
  komut->Birak();
  return var;
}

// One voucher on its way into the books, inside of a transaction.
class Isleyen {
 public:
  Isleyen(Motor& muhasebe, const Fis& fis, std::int32_t fisno, Tarih tarih)
      : muhasebe_(muhasebe),
        fis_(fis),
        fisno_(fisno),
        tarih_(tarih),
        satirlar_(muhasebe),
        toplamlar_(muhasebe),
        referBul_(muhasebe.Hazirla("select 1 from fistra where refer = ?")),
        rastgele_(std::random_device{}()) {}

  void BaslikYaz() {
    KayitYazici<Fisgen>(muhasebe_).Ekle({.fisno = fisno_,
                                         .fistip = MahsupFisi,
                                         .tarih = tarih_,
                                         .yevno = 0,
                                         .ack = fis_.ack,
                                         .psw = {},
                                         .lastuser = {},
                                         .borc = fis_.borc,
                                         .alacak = fis_.alacak});
  }

  void SatirYaz(const FisSatiri& satir) {
    satirlar_.Ekle({.kod = satir.kod,
                    .fisno = fisno_,
                    .ba = satir.ba,
                    .tutar = satir.tutar,
                    .oto = OtomatikSatir,
                    .mik = {},
                    .sira = ++sira_,
                    .yenino = fisno_,
                    .aciklama = satir.ack.empty() ? BosAciklama : satir.ack,
                    .refer = YeniReferans()});
    ToplamaEkle(satir);
  }

 private:
  Baytlar YeniReferans() {
    while (true) {
      const Baytlar refer =
          ReferansYap(SimdikiAn(), [&](int n) { return std::uniform_int_distribution(0, n - 1)(rastgele_); });
      referBul_->BaytBagla(1, refer);
      const bool var = referBul_->Adim();
      referBul_->Birak();
      if (!var) return refer;
    }
  }

  void ToplamaEkle(const FisSatiri& satir) {
    const auto& kolon = (satir.ba == BorcTarafi ? BorcAylari : AlacakAylari)[std::size_t(tarih_.Ay() - 1)];
    const std::string ad(kolon.ad);
    const std::string kimlik = muhasebe_.KimlikKolonu("hestoplam");
    const auto bul = muhasebe_.Hazirla("select " + kimlik + ", " + ad + " from hestoplam where kod = ?");
    bul->MetinBagla(1, satir.kod);
    if (!bul->Adim()) {
      Hestoplam yeni;
      yeni.kod = satir.kod;
      yeni.*kolon.uye = satir.tutar;
      toplamlar_.Ekle(yeni);
      return;
    }
    const auto yaz = muhasebe_.Hazirla("update hestoplam set " + ad + " = ? where " + kimlik + " = ?");
    yaz->TamBagla(1, (Tutar::Hamdan(bul->Tam(1)) + satir.tutar).Ham());
    yaz->TamBagla(2, bul->Tam(0));
    bul->Birak();
    yaz->Calistir();
  }

  Motor& muhasebe_;
  const Fis& fis_;
  std::int32_t fisno_;
  Tarih tarih_;
  KayitYazici<Fistra> satirlar_;
  KayitYazici<Hestoplam> toplamlar_;
  std::unique_ptr<Komut> referBul_;
  std::mt19937 rastgele_;
  std::int32_t sira_ = 0;
};

// The number to post under, by what the books hold in this very transaction.
Sonuc<std::int32_t> FisNoSec(Motor& muhasebe, const Fis& fis, const FisIstegi& istek) {
  if (istek.bilinenler && AyniFisler(muhasebe, fis.ack) != *istek.bilinenler)
    return Kusur{"Bu ayın fişini bu arada başka bir kullanıcı işlemiş, fiş işlenmedi: " + fis.ack};
  if (!istek.fisno) return SiradakiFisNo(muhasebe);
  if (FisVar(muhasebe, *istek.fisno)) return KuralKusuru(FisKullanilmis, fisgen::fisno);
  return *istek.fisno;
}

Sonuc<std::int32_t> IslemdeIsle(Motor& muhasebe, const Fis& fis, const FisIstegi& istek) {
  std::optional<Islem> islem;
  Sonuc<std::int32_t> fisno(0);
  Soyleyerek(BaslikYazilamadi, [&] {
    islem.emplace(muhasebe);
    fisno = FisNoSec(muhasebe, fis, istek);
  });
  if (!fisno) return fisno;
  Isleyen isleyen(muhasebe, fis, *fisno, istek.tarih);
  Soyleyerek(BaslikYazilamadi, [&] { isleyen.BaslikYaz(); });
  Soyleyerek(HareketYazilamadi, [&] {
    for (const FisSatiri& satir : fis.satirlar) isleyen.SatirYaz(satir);
    islem->Onayla();
  });
  return fisno;
}

}  // namespace

Sonuc<std::shared_ptr<Motor>> MuhasebeyiAc(const std::string& dizin) {
  const auto motor = KardesAc(KardesTuru::Muhasebe, dizin);
  if (motor || motor.KusurMetni().starts_with(MuhasebeAcilamadi)) return motor;
  return Kusur{std::string(MuhasebeAcilamadi) + "\n" + motor.KusurMetni()};
}

Tarih FisTarihi(int yil, int ay) {
  return Tarih(yil, ay, AyinGunSayisi(yil, ay));
}

Sonuc<std::int32_t> SiradakiFisNo(Motor& muhasebe) {
  const auto komut = muhasebe.Hazirla("select coalesce(max(fisno), 0) from fisgen");
  const std::int64_t son = komut->Adim() ? komut->Tam(0) : 0;
  komut->Birak();
  if (son >= std::numeric_limits<std::int32_t>::max()) return Kusur{NumaraKalmadi};
  return std::int32_t(std::max<std::int64_t>(son, 0) + 1);
}

std::vector<std::int32_t> AyniFisler(Motor& muhasebe, const std::string& ack) {
  const auto komut = muhasebe.Hazirla("select fisno from fisgen where ack = ? order by fisno");
  komut->MetinBagla(1, ack);
  std::vector<std::int32_t> fisler;
  while (komut->Adim()) fisler.push_back(komut->TamSigan<std::int32_t>(0));
  return fisler;
}

std::string AyniFisSorusu(const std::vector<std::int32_t>& fisler, const std::string& ack) {
  if (fisler.empty()) return {};
  std::string numaralar;
  for (const std::int32_t no : fisler) numaralar += (numaralar.empty() ? "" : ", ") + std::to_string(no);
  return "Muhasebede bu ayın fişi var: " + ack + ", fiş no " + numaralar + "\nYine de işlensin mi?";
}

Durum FisDenetle(const Fis& fis, Tarih tarih) {
  if (fis.Bos()) return KuralKusuru(IslenecekHesapYok);
  if (tarih.Bos()) return KuralKusuru(HataliTarih, fisgen::tarih);
  return Tamam();
}

Sonuc<std::int32_t> FisIsle(Motor& muhasebe, const Fis& fis, const FisIstegi& istek) {
  if (const Durum olur = FisDenetle(fis, istek.tarih); !olur) return olur.Kusuru();
  return Koru([&] { return IslemdeIsle(muhasebe, fis, istek); });
}

Baytlar ReferansYap(std::int64_t an, const std::function<int(int)>& rastgele) {
  constexpr int rastgeleSayisi = 3;
  constexpr int enBuyuk = 254;
  const std::tm gun = YerelZaman(an);
  Baytlar refer;
  for (const int sayi : {gun.tm_mday, gun.tm_mon + 1, gun.tm_hour, gun.tm_min, gun.tm_sec})
    refer.push_back(std::uint8_t(sayi + 1));
  for (int i = 0; i < rastgeleSayisi; ++i) refer.push_back(std::uint8_t(1 + rastgele(enBuyuk)));
  return refer;
}

}  // namespace belvani
