#include "core/store/depoonarimi.h"

#include <algorithm>

#include "core/store/indeksler.h"
#include "core/store/islem.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/store/yantablolar.h"
#include "core/tables/bordronosu.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool AyniAnahtar(const Brd& a, const Brd& b) {
  const auto no = [](const Brd& x) { return std::max<int>(x.no, 1); };
  return a.yil == b.yil && a.ay == b.ay && no(a) == no(b) && TurkceEsit(a.kod, b.kod);
}

void Ayir(Motor& motor, std::int64_t oto) {
  AyrilanlariHazirla(motor);
  std::string kolonlar;
  for (const MotorKolonu& kolon : motor.Kolonlar("brd")) kolonlar += kolon.ad + ", ";
  const auto tasi =
      motor.Hazirla("insert into brdayrilan (" + kolonlar + "ayrildi) select " + kolonlar + "? from brd where oto = ?");
  tasi->Bagla(1, Tarih::Bugun());
  tasi->TamBagla(2, oto);
  tasi->Calistir();
  const auto sil = motor.Hazirla("delete from brd where oto = ?");
  sil->TamBagla(1, oto);
  sil->Calistir();
}

class DepoOnarimi {
 public:
  DepoOnarimi(Motor& motor, const std::vector<std::int64_t>& kalan) : motor_(motor), kalan_(kalan), ozetler_(motor) {}

  Sonuc<Onarim> Onar() {
    for (AyniBordrolar& grup : CiftBordrolar(motor_))
      if (auto kusur = GrubuAyir(std::move(grup))) return *std::move(kusur);
    for (const std::int64_t oto : kalan_) {
      if (!ozetler_.Tutuyor(oto)) {
        ozetler_.Yenile(oto);
        onarim_.kabulEdilen.push_back(oto);
      } else if (std::ranges::find(secilen_, oto) == secilen_.end()) {
        return Kusur{"Bu numaranın seçilecek bir kaydı yok: " + std::to_string(oto)};
      }
    }
    onarim_.ozetlenen = ozetler_.EksikleriYaz();
    IndeksleriTamamla(motor_);
    return std::move(onarim_);
  }

 private:
  std::optional<Kusur> GrubuAyir(AyniBordrolar grup) {
    const auto kalir = [&](const Brd& b) { return std::ranges::find(kalan_, b.oto) != kalan_.end(); };
    const auto secilen = std::ranges::count_if(grup, kalir);
    if (secilen > 1) return Kusur{"Aynı kaydın yalnız biri kalabilir: " + grup.front().kod};
    if (secilen == 0) {
      onarim_.secilmeyen.push_back(std::move(grup));
      return std::nullopt;
    }
    for (Brd& b : grup) {
      if (kalir(b)) {
        secilen_.push_back(b.oto);
        continue;
      }
      Ayir(motor_, b.oto);
      onarim_.ayrilan.push_back(std::move(b));
    }
    return std::nullopt;
  }

  Motor& motor_;
  const std::vector<std::int64_t>& kalan_;
  BrdOzetleri ozetler_;
  std::vector<std::int64_t> secilen_;
  Onarim onarim_;
};

}  // namespace

std::vector<AyniBordrolar> CiftBordrolar(Motor& motor) {
  const std::string anahtar = "yil, ay, kod, " + std::string(BordroNosu);
  std::vector<AyniBordrolar> gruplar;
  const auto kayitlar =
      KayitlariOku<Brd>(motor, "where (" + anahtar + ") in (select " + anahtar + " from brd group by " + anahtar +
                                   " having count(*) > 1) order by " + anahtar + ", oto");
  for (const Brd& b : kayitlar) {
    if (gruplar.empty() || !AyniAnahtar(gruplar.back().front(), b)) gruplar.emplace_back();
    gruplar.back().push_back(b);
  }
  return gruplar;
}

Sonuc<Onarim> DepoyuOnar(Motor& motor, const std::vector<std::int64_t>& kalan) {
  const auto onar = [&]() -> Sonuc<Onarim> {
    if (const std::string kusur = motor.ButunlukKusuru(); !kusur.empty())
      return Kusur{"Veritabanı bozuk, önce yedeğinden getirilmeli: " + kusur};
    Islem islem(motor);
    auto onarim = DepoOnarimi(motor, kalan).Onar();
    if (onarim) islem.Onayla();
    return onarim;
  };
  return Koru(onar, "Onarılamadı: ");
}

}  // namespace belvani
