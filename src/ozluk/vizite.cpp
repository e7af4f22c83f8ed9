#include "ozluk/vizite.h"

#include <algorithm>

#include "core/saat.h"
#include "core/store/satirlar.h"
#include "core/turkce.h"
#include "core/yuvarlama.h"
#include "payroll/hesap/kayittoplami.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"

namespace belvani {
namespace {

constexpr std::string_view BuyukAyAdlari[] = {"OCAK",   "ŞUBAT",   "MART",  "NİSAN", "MAYIS", "HAZİRAN",
                                              "TEMMUZ", "AĞUSTOS", "EYLÜL", "EKİM",  "KASIM", "ARALIK"};
constexpr int SonAy = 12;
// Of a month: twelve of them, and what is typed beside, stay far inside of what an amount can be.
constexpr double EnCokUcret = 9'999'999'999'999;
constexpr int BelgeAyi = 6;  // months for which the certificate is good

std::string IkiHaneli(int sayi) {
  return (sayi < 10 ? "0" : "") + std::to_string(sayi);
}

std::string GunMetni(int yil, int ay, int gun) {
  return IkiHaneli(gun) + "." + IkiHaneli(ay) + "." + std::to_string(yil);
}

std::string AdSoyad(const std::string& adi, const std::string& soyadi) {
  return std::string(Kirp(adi + " " + soyadi));
}

struct YilAy {
  int yil = 0;
  int ay = 0;
};

YilAy BelgeninSonAyi(Tarih vizite) {
  const int ay = vizite.Ay() + BelgeAyi;
  return ay > SonAy ? YilAy{vizite.Yil() + 1, ay - SonAy} : YilAy{vizite.Yil(), ay};
}

// One number for each month, counting on.
constexpr int AySirasi(int yil, int ay) {
  return yil * SonAy + ay;
}

void KayitlariTopla(Oturum& o, const std::string& kod, ViziteAylari& aylar) {
  const ViziteAyi& ilk = aylar.front();
  const ViziteAyi& son = aylar.back();
  const auto komut =
      o.depo.db.IcMotor().Hazirla("select yil, ay, sum(" + SskGunuSql("") +
                                  "), sum(sskmatrahisveren), sum(ui) from brd "
                                  "where kod = ? and yil in (?, ?) and yil * 12 + ay between ? and ? group by yil, ay");
  komut->MetinBagla(1, kod);
  komut->TamBagla(2, ilk.yil);
  komut->TamBagla(3, son.yil);
  komut->TamBagla(4, AySirasi(ilk.yil, ilk.ay));
  komut->TamBagla(5, AySirasi(son.yil, son.ay));
  const Yuvarlayici yuvarla(o.firma.paraonda);
  while (komut->Adim()) {
    const auto sira = std::size_t(AySirasi(int(komut->Tam(0)), int(komut->Tam(1))) - AySirasi(ilk.yil, ilk.ay));
    if (sira >= aylar.size()) continue;
    ViziteAyi& ay = aylar[sira];
    ay.kayitli = true;
    ay.gun = komut->TamSigan<int>(2);
    ay.ucret = TutarCevir(Tutar::Hamdan(komut->Tam(3)), o.firma.firmayil, yuvarla);
    ay.izin = komut->TamSigan<int>(4);
  }
}

}  // namespace

std::string SimdikiSaat() {
  const std::string an = AnMetni(SimdikiAn());
  return an.substr(an.size() - ViziteFormu::SaatHarfi);
}

std::optional<ViziteKisisi> KisiDoldur(Oturum& o, std::string_view kod, Tarih bugun) {
  const auto kart = KartBul(o, kod);
  if (!kart) return std::nullopt;
  ViziteKisisi kisi{.form = {.kod = kart->kod,
                             .bugun = bugun,
                             .sskno = kart->sskno,
                             .adSoyad = AdSoyad(kart->adi, kart->soyadi),
                             .girtar = kart->girtar,
                             .ciktar = kart->ciktar,
                             .vizite = bugun,
                             .saat = SimdikiSaat()},
                    .kimlik = KimlikBul(o, kod)};
  if (kisi.kimlik) {
    kisi.form.dogtar = kisi.kimlik->dogtar;
    kisi.form.tcno = kisi.kimlik->tcno;
  }
  return kisi;
}

ViziteYakini YakinBul(Oturum& o, std::string_view kod, std::uint8_t yakinlik) {
  ViziteYakini yakin{.yakinlik = yakinlik};
  if (yakinlik == 0) return yakin;
  const auto bulunan = o.depo.db.Koru(std::vector<Esco>(), [&] {
    return KayitlariOku<Esco>(o.depo.db.IcMotor(), "where kod = ? and yakinlik = ? order by oto limit 1",
                              {TemizKod(kod), std::int64_t(yakinlik)});
  });
  if (bulunan.empty()) return yakin;
  const Esco& e = bulunan.front();
  yakin.adi = e.adi;
  yakin.soyadi = e.soyadi;
  yakin.adSoyad = AdSoyad(e.adi, e.soyadi);
  yakin.cins = e.cins + 1u < std::size(YakinCinsiyetleri) ? std::uint8_t(e.cins + 1) : std::uint8_t(0);
  yakin.dogyer = e.dogyer;
  yakin.dogtar = e.dogtar;
  yakin.tcno = e.tcno;
  yakin.adr = e.adr;
  return yakin;
}

std::string ViziteAyi::Adi() const {
  if (ay < 1 || ay > SonAy) return {};
  return std::to_string(yil) + "/" + std::string(BuyukAyAdlari[ay - 1]);
}

ViziteAylari OnIkiAy(Tarih vizite) {
  int ay = vizite.Ay();
  int yil = vizite.Yil();
  ay == SonAy ? ay = 1 : --yil;
  ViziteAylari aylar;
  for (ViziteAyi& a : aylar) {
    a.yil = yil;
    a.ay = ay;
    if (++ay <= SonAy) continue;
    ay = 1;
    ++yil;
  }
  return aylar;
}

Sonuc<ViziteAylari> GunTablosuYap(Oturum& o, const ViziteFormu& form) {
  if (form.vizite.Bos()) return KuralKusuru("Vizite  Tarihi Hatalı", viziteformu::vizite);
  if (form.girtar.Bos()) return KuralKusuru("İşe Giriş  Tarihi Hatalı", viziteformu::girtar);
  return o.depo.db.Koru(Sonuc<ViziteAylari>(Kusur{"Bordro Kayıtları Okunamadı"}), [&]() -> Sonuc<ViziteAylari> {
    ViziteAylari aylar = OnIkiAy(form.vizite);
    KayitlariTopla(o, TemizKod(form.kod), aylar);
    const auto tasan = std::ranges::find_if(aylar, [](const ViziteAyi& ay) { return ay.ucret.Sayi() > EnCokUcret; });
    if (tasan != aylar.end()) return Kusur{tasan->Adi() + " kaydının matrahı kağıda sığmayacak kadar büyük"};
    return aylar;
  });
}

void YazilaniTasi(const ViziteAylari& eski, ViziteAylari& yeni) {
  for (ViziteAyi& ay : yeni) {
    const auto onceki =
        std::ranges::find_if(eski, [&](const ViziteAyi& e) { return e.yil == ay.yil && e.ay == ay.ay; });
    if (onceki == eski.end()) continue;
    ay.ekodeme = onceki->ekodeme;
    ay.prim = onceki->prim;
  }
}

ViziteToplami Topla(const ViziteAylari& aylar) {
  ViziteToplami t;
  for (const ViziteAyi& ay : aylar) {
    t.gun += ay.gun;
    t.ucret += ay.ucret;
    t.ekodeme += ay.ekodeme;
    t.prim += ay.prim;
    t.izin += ay.izin;
  }
  return t;
}

std::string PrimDurumu(ViziteTuru tur, Tarih girtar, Tarih ciktar) {
  const std::string cikis = ciktar.Metin();
  const bool basilir = tur == ViziteTuru::AltiAylik ? cikis > girtar.Metin() : !cikis.empty();
  return basilir ? cikis : PrimDevamEdiyor;
}

std::string MetindeSonGecerlilik(Tarih vizite) {
  if (vizite.Bos()) return {};
  const auto [yil, ay] = BelgeninSonAyi(vizite);
  return GunMetni(yil, ay, std::min(vizite.Gun(), AyinGunSayisi(yil, ay)));
}

Sonuc<std::string> CizimdeSonGecerlilik(Tarih vizite) {
  if (vizite.Bos()) return Kusur{"Hatalı Tarih Hesaplama", viziteformu::vizite};
  constexpr int subat = 2;
  const auto [yil, ay] = BelgeninSonAyi(vizite);
  const int sonGun = ay == subat ? (yil % 4 == 0 ? 29 : 28) : AyinGunSayisi(yil, ay);
  return GunMetni(yil, ay, std::min(vizite.Gun(), sonGun));
}

}  // namespace belvani
