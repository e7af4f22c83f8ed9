#include "payroll/hazirlik/aysaklama.h"

#include <algorithm>

#include "core/saat.h"
#include "core/store/bordrokodu.h"
#include "core/store/islem.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/store/yantablolar.h"
#include "core/tables/brd.h"

namespace belvani {
namespace {

constexpr std::string_view GeriAlmadanOnce = "geri almadan önce";
constexpr std::chrono::seconds KilitBekleme{60};  // a mass run is waited for

// A state that takes the place of the kept one waits beside it until that one is back.
enum class Nesil { Saklanan = 0, Bekleyen = 1 };

bool TabloVar(Motor& motor, std::string_view tablo) {
  return !motor.Kolonlar(tablo).empty();
}

// "b.yil, b.ay, …" of the pay records.
std::string BordroKolonlari(Motor& motor, const std::string& onEk = {}) {
  std::string liste;
  for (const MotorKolonu& kolon : motor.Kolonlar("brd")) liste += (liste.empty() ? "" : ", ") + onEk + kolon.ad;
  return liste;
}

// Values are bound in order.
std::int64_t Yurut(Motor& motor, const std::string& sql, const std::vector<Deger>& degerler) {
  const auto komut = motor.Hazirla(sql);
  int no = 0;
  for (const Deger& d : degerler) komut->Bagla(++no, d);
  komut->Calistir();
  return motor.DegisenSatir();
}

std::vector<SaklananAy> Oku(Motor& motor) {
  std::vector<SaklananAy> aylar;
  if (!TabloVar(motor, "brdonceki")) return aylar;
  const auto komut = motor.Hazirla(
      "select yil, ay, max(onc_an), max(onc_neden), count(*) from brdonceki group by yil, ay order by yil desc, ay "
      "desc");
  while (komut->Adim())
    aylar.push_back({komut->TamSigan<int>(0), komut->TamSigan<int>(1), komut->Tam(2), std::string(komut->Metin(3)),
                     komut->TamSigan<int>(4)});
  return aylar;
}

std::int64_t KayitSayisi(Motor& motor, int yil, int ay) {
  const auto komut = motor.Hazirla("select count(*) from brd where yil = ? and ay = ?");
  komut->TamBagla(1, yil);
  komut->TamBagla(2, ay);
  const std::int64_t sayi = komut->Adim() ? komut->Tam(0) : 0;
  komut->Birak();
  return sayi;
}

void Sakla(Motor& motor, int yil, int ay, std::string_view neden, Nesil nesil) {
  const bool ozetli = TabloVar(motor, "brdozet");
  Yurut(motor,
        "insert into brdonceki (onc_an, onc_neden, onc_nesil, onc_ozetoto, onc_ozet, " + BordroKolonlari(motor) +
            ") select ?, ?, ?, " + (ozetli ? "o.oto, o.ozet, " : "null, null, ") + BordroKolonlari(motor, "b.") +
            " from brd b" + (ozetli ? " left join brdozet o on o.oto = b.oto" : "") + " where b.yil = ? and b.ay = ?",
        {SimdikiAn(), std::string(neden), std::int64_t(nesil), std::int64_t(yil), std::int64_t(ay)});
}

void Birak(Motor& motor, int yil, int ay) {
  Yurut(motor, "delete from brdonceki where yil = ? and ay = ? and onc_nesil = 0",
        {std::int64_t(yil), std::int64_t(ay)});
}

int YerineKoy(Motor& motor, int yil, int ay) {
  const std::vector<Deger> ayi{std::int64_t(yil), std::int64_t(ay)};
  const std::string saklanan = " from brdonceki where yil = ? and ay = ? and onc_nesil = 0",
                    kolonlar = BordroKolonlari(motor);
  Sakla(motor, yil, ay, GeriAlmadanOnce, Nesil::Bekleyen);
  const bool ozetli = TabloVar(motor, "brdozet");
  if (ozetli) Yurut(motor, "delete from brdozet where oto in (select oto from brd where yil = ? and ay = ?)", ayi);
  Yurut(motor, "delete from brd where yil = ? and ay = ?", ayi);
  const auto gelen = Yurut(motor, "insert into brd (" + kolonlar + ") select " + kolonlar + saklanan, ayi);
  if (ozetli)
    Yurut(motor,
          "insert into brdozet (oto, ozet) select onc_ozetoto, onc_ozet" + saklanan + " and onc_ozetoto is not null",
          ayi);
  Birak(motor, yil, ay);
  Yurut(motor, "update brdonceki set onc_nesil = 0 where yil = ? and ay = ?", ayi);
  return int(gelen);
}

// `al` is given each kept row of the person, with these columns.
template <class Al>
void HerSaklanan(Motor& motor, const std::string& kolonlar, std::string_view kod, Al&& al) {
  if (!TabloVar(motor, "brdonceki")) return;
  const auto sonraki = motor.Hazirla("select yil, ay from brdonceki where (yil, ay) > (?, ?) order by yil, ay limit 1");
  const auto kisi =
      motor.Hazirla("select " + kolonlar + " from brdonceki where yil = ? and ay = ? and kod = ? collate turkce");
  std::int64_t yil = -1, ay = -1;
  const auto ilerle = [&] {
    sonraki->TamBagla(1, yil);
    sonraki->TamBagla(2, ay);
    const bool var = sonraki->Adim();
    if (var) yil = sonraki->Tam(0), ay = sonraki->Tam(1);
    sonraki->Birak();
    return var;
  };
  while (ilerle()) {
    kisi->TamBagla(1, yil);
    kisi->TamBagla(2, ay);
    kisi->MetinBagla(3, kod);
    while (kisi->Adim()) al(*kisi);
  }
}

std::string DonemMetni(int yil, int ay) {
  return std::string(AyAdi(ay)) + " " + std::to_string(yil);
}

std::string Soru(const SaklananAy& saklanan) {
  return DonemMetni(saklanan.yil, saklanan.ay) + " bordrosunun " + AnMetni(saklanan.an) + " tarihinde (" +
         saklanan.neden + ") saklanan " + std::to_string(saklanan.kayit) + " kaydı geri gelecek.\nEminmisiniz ?";
}

}  // namespace

void AyiSakla(Motor& motor, int yil, int ay, std::string_view neden) {
  if (KayitSayisi(motor, yil, ay) == 0) return;
  Birak(motor, yil, ay);
  Sakla(motor, yil, ay, neden, Nesil::Saklanan);
}

std::vector<std::int64_t> SaklananlarinNumaralari(Motor& motor, std::string_view kod) {
  std::vector<std::int64_t> numaralar;
  HerSaklanan(motor, motor.KimlikKolonu("brdonceki"), kod,
              [&](const Komut& satir) { numaralar.push_back(satir.Tam(0)); });
  return numaralar;
}

void SaklananlardaKodDegistir(Motor& motor, std::string_view eski, std::string_view yeni) {
  if (!TabloVar(motor, "brdonceki")) return;
  OncekileriHazirla(motor);
  std::vector<std::pair<std::int64_t, Deger>> satirlar;  // number and new checksum, read to the end before any change
  HerSaklanan(motor, motor.KimlikKolonu("brdonceki") + ", onc_ozet, " + SecimListesi<Brd>(motor), eski,
              [&](const Komut& satir) {
                const auto ozet = YeniKodunOzeti(satir, 1, 2, yeni);
                satirlar.emplace_back(satir.Tam(0), ozet ? Deger(*ozet) : Deger(Null{}));
              });
  const auto yaz =
      motor.Hazirla("update brdonceki set kod = ?, onc_ozet = ? where " + motor.KimlikKolonu("brdonceki") + " = ?");
  for (const auto& [numara, ozet] : satirlar) {
    yaz->MetinBagla(1, yeni);
    yaz->Bagla(2, ozet);
    yaz->TamBagla(3, numara);
    yaz->Calistir();
  }
}

Sonuc<std::vector<SaklananAy>> SaklananAylar(Oturum& o) {
  return Koru([&] { return Oku(o.depo.db.IcMotor()); });
}

Sonuc<std::optional<int>> AyiGeriAl(Oturum& o, int yil, int ay, Bildirim& bildirim, const Yurutucu& yurut) {
  Motor& motor = o.depo.db.IcMotor();
  const auto simdiki = Koru([&] { return KayitSayisi(motor, yil, ay); });
  const auto aylar = SaklananAylar(o);
  if (!simdiki) return simdiki.Kusuru();
  if (!aylar) return aylar.Kusuru();
  const auto ayi = [&](const SaklananAy& s) { return s.yil == yil && s.ay == ay; };
  const auto saklanan = std::ranges::find_if(*aylar, ayi);
  if (saklanan == aylar->end()) return Kusur{"Saklanan bordro yok: " + DonemMetni(yil, ay)};
  const std::string giden = "Giden: ayın şimdiki " + std::to_string(*simdiki) + " kaydı; o da saklanır";
  if (!bildirim.SilinsinMi(Soru(*saklanan), giden)) return std::optional<int>();
  const auto geriAl = [&](Ilerleme* ilerleme) -> Sonuc<std::optional<int>> {
    Islem islem(motor, KilitBekleme);
    const auto simdi = Oku(motor);
    const auto yeni = std::ranges::find_if(simdi, ayi);
    if (yeni == simdi.end() || yeni->an != saklanan->an || yeni->kayit != saklanan->kayit)
      return Kusur{"Saklanan bordro bu arada değişti, hiçbir kayıt geri gelmedi"};
    OncekileriHazirla(motor);
    const int gelen = YerineKoy(motor, yil, ay);
    if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
    islem.Onayla();
    return std::optional(gelen);
  };
  Sonuc<std::optional<int>> gelen = std::optional<int>();
  yurut([&](Ilerleme* ilerleme) { gelen = Koru([&] { return geriAl(ilerleme); }, "Bordro geri alınamadı: "); });
  return gelen;
}

}  // namespace belvani
