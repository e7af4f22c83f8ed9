#include "accounting/isletme.h"

#include "accounting/fis.h"
#include "accounting/fisisle.h"
#include "accounting/kardestablolar.h"
#include "core/store/islem.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"

namespace belvani {
namespace {

constexpr std::uint8_t GiderHareketi = 2;
constexpr const char* UcretKaldi = "\nÜcretler deftere yazıldı, yerinde kaldı";

struct IsletmeSatiri {
  const std::string& grup;
  Tutar tutar;
  const char* grupYok;
  const char* yazilamadi;
};

bool GrupVar(Motor& isletme, const std::string& grup) {
  const auto komut = isletme.Hazirla("select 1 from islgrup where kod = ?");
  komut->MetinBagla(1, grup);
  const bool var = komut->Adim();
  komut->Birak();
  return var;
}

Durum SatirYaz(Motor& isletme, const IsletmeKaydi& kayit, const IsletmeSatiri& satir) {
  if (satir.tutar == Tutar()) return Tamam();
  return Koru(
      [&]() -> Durum {
        Islem islem(isletme);
        if (!GrupVar(isletme, satir.grup)) return KuralKusuru(satir.grupYok);
        KayitYazici<Isltra>(isletme).Ekle({.tarih = kayit.tarih,
                                           .hartip = GiderHareketi,
                                           .kdvtip = 0,
                                           .defter = false,
                                           .grup = satir.grup,
                                           .fisno = {},
                                           .ack = kayit.ack,
                                           .hizmet = satir.tutar,
                                           .emtea = {},
                                           .kdv = {},
                                           .miktar = {}});
        islem.Onayla();
        return Tamam();
      },
      std::string(satir.yazilamadi) + "\n");
}

}  // namespace

IsletmeKaydi IsletmeKaydiYap(Motor& motor, int yil, int ay, Tarih bugun) {
  const auto komut = motor.Hazirla("select sum(b.brutkaz), sum(" + Sql(toplam::isverenToplam, "b.") +
                                   ") from brd b join sicil s on s.kod = b.kod where b.yil = ? and b.ay = ?");
  komut->TamBagla(1, yil);
  komut->TamBagla(2, ay);
  const bool var = komut->Adim();
  return {.tarih = bugun,
          .ack = FisAciklamasi(yil, ay),
          .brut = var ? Tutar::Hamdan(komut->Tam(0)) : Tutar(),
          .ucretgrup = {},
          .prim = var ? Tutar::Hamdan(komut->Tam(1)) : Tutar(),
          .sskgrup = {}};
}

int AyniHareketler(Motor& isletme, const std::string& ack) {
  const auto komut = isletme.Hazirla("select count(*) from isltra where ack = ?");
  komut->MetinBagla(1, ack);
  return komut->Adim() ? komut->TamSigan<int>(0) : 0;
}

std::string AyniHareketSorusu(int hareket, const std::string& ack) {
  if (hareket == 0) return {};
  return "İşletme defterinde bu açıklamayla " + std::to_string(hareket) + " hareket var: " + ack +
         "\nYine de işlensin mi?";
}

Durum IsletmeDenetle(const IsletmeKaydi& kayit) {
  if (kayit.tarih.Bos()) return KuralKusuru(HataliTarih, isltra::tarih);
  if (kayit.brut == Tutar() && kayit.prim == Tutar()) return KuralKusuru("Entegre Edilecek Tutar Yok");
  return Tamam();
}

Durum IsletmeyeIsle(Motor& isletme, IsletmeKaydi& kayit) {
  if (const Durum olur = IsletmeDenetle(kayit); !olur) return olur;
  const bool ucretVar = kayit.brut != Tutar();
  if (const Durum ucret = SatirYaz(isletme, kayit,
                                   {.grup = kayit.ucretgrup,
                                    .tutar = kayit.brut,
                                    .grupYok = "Ücretler Grubu Bulunamadı..",
                                    .yazilamadi = "Ücretler Kaydedilemedi.."});
      !ucret)
    return ucret;
  kayit.brut = Tutar();
  const Durum prim = SatirYaz(isletme, kayit,
                              {.grup = kayit.sskgrup,
                               .tutar = kayit.prim,
                               .grupYok = "SSK Grubu Bulunamadı..",
                               .yazilamadi = "SSK Tutarı İşletme Defterine Yazılamadı.."});
  if (prim) kayit.prim = Tutar();
  if (prim || !ucretVar) return prim;
  Kusur kusur = prim.Kusuru();
  kusur.metin += UcretKaldi;
  return kusur;
}

}  // namespace belvani
