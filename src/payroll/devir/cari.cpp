#include "payroll/devir/cari.h"

#include "core/sayi.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "payroll/devir/satirlar.h"
#include "personnel/kimlik.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

constexpr SilmeSozleri CariSozleri{"Bu Satırdaki Cari Kaydını Silecekmisiniz ?", "Cari Kaydı Silinemedi",
                                   "Cari Kaydı Bulunamadı"};

struct CariSatiri {
  const Cari& hareket;
  std::optional<Tutar> bakiye;
};

// Other programs know the columns by their names.
const Kolonlar<CariSatiri>& CariKolonlari() {
  static const Kolonlar<CariSatiri> kolonlar{
      {"tarih", "Tarih", 10, [](auto& s) { return s.hareket.tarih; }},
      {"islem", "İş.", 3, [](auto& s) { return CariIslemMetni(s.hareket.islem); }},
      {"ack", "Açıklama", 20, [](auto& s) { return s.hareket.ack; }},
      {"tutar", "Tutar", 14, [](auto& s) { return s.hareket.tutar; }},
      {"bak", "Bakiye", 14, [](auto& s) { return s.bakiye; }},
  };
  return kolonlar;
}

}  // namespace

std::optional<CariIslem> CariIslemBul(std::uint8_t islem) {
  const char harf[] = {char(islem & ~0x20), '\0'};
  if (harf[0] == char(CariIslem::Borc)) return CariIslem::Borc;
  if (harf[0] == char(CariIslem::Alacak)) return CariIslem::Alacak;
  return std::nullopt;
}

std::optional<CariIslem> CariIslemOku(std::string_view metin) {
  const std::string_view harf = Kirp(metin);
  return harf.size() == 1 ? CariIslemBul(std::uint8_t(harf.front())) : std::nullopt;
}

std::string CariIslemMetni(std::uint8_t islem) {
  const auto bulunan = CariIslemBul(islem);
  return bulunan ? std::string(1, char(*bulunan)) : std::string();
}

std::vector<Cari> CariOku(Oturum& o, std::string_view kod) {
  return o.depo.db.Koru(std::vector<Cari>(), [&] {
    return KayitlariOku<Cari>(o.depo.db.IcMotor(), "where kod = ? order by tarih, islem, ack, oto", {TemizKod(kod)});
  });
}

std::vector<std::optional<Tutar>> Bakiyeler(const std::vector<Cari>& hareketler) {
  std::vector<std::optional<Tutar>> bakiyeler(hareketler.size());
  Tutar bakiye;
  for (std::size_t i = 0; i < hareketler.size(); ++i) {
    const auto islem = CariIslemBul(hareketler[i].islem);
    const Durum eklendi = Koru([&] {
      if (islem == CariIslem::Borc) bakiye += hareketler[i].tutar;
      if (islem == CariIslem::Alacak) bakiye -= hareketler[i].tutar;
    });
    if (!eklendi) break;
    bakiyeler[i] = bakiye;
  }
  return bakiyeler;
}

Yazim<Cari> CariKaydet(Oturum& o, const Okunan<Cari>& hareket) {
  Okunan<Cari> kayit = hareket;
  const auto kart = KoduBul<Sicil>(o, kayit.simdi.kod);
  if (!kart) return {KuralKusuru("Bu Kodda Personel Yok: " + kayit.simdi.kod, cari::kod)};
  if (kayit.simdi.tarih.Bos()) return {KuralKusuru("Tarih boş bırakılamaz", cari::tarih)};
  if (!CariIslemBul(kayit.simdi.islem)) return {KuralKusuru(CariIslemSozu, cari::islem)};
  kayit.simdi.kod = kayit.ilk ? kayit.ilk->kod : kart->kod;
  return KayitYaz(o, kayit, "Cari Bilgileri Güncellenemedi");
}

Sonuc<Silme> CariSil(Oturum& o, const Cari& hareket, Bildirim& bildirim) {
  const std::string giden = hareket.tarih.Metin() + " " + CariIslemMetni(hareket.islem) + " " +
                            TutarMetni(hareket.tutar, 2) + " " + hareket.ack;
  return SatirSil<Cari>(o, std::int64_t(hareket.oto), giden, CariSozleri, bildirim);
}

Sonuc<std::unique_ptr<Belge>> CariBelgesi(Oturum& o, std::string_view kod) {
  const auto kart = KoduBul<Sicil>(o, kod);
  if (!kart) return KuralKusuru("Bu Kodda Personel Yok: " + std::string(kod), cari::kod);
  const auto hareketler = CariOku(o, kart->kod);
  const auto bakiyeler = Bakiyeler(hareketler);
  std::vector<CariSatiri> satirlar;
  for (std::size_t i = 0; i < hareketler.size(); ++i) satirlar.push_back({hareketler[i], bakiyeler[i]});
  const std::string kisi(Kirp(KodVeAd(o, kart->kod)));
  Rapor rapor = RaporYap(CariKolonlari(), satirlar, o.firma.paraonda);
  rapor.baslik = "PERSONEL CARİ";
  rapor.ekranBasligi = "Personel Cari - " + kisi;
  rapor.ustSatirlar = {{.sol = o.firma.unvan, .sag = "Shf : ", .sayfaNo = true, .sirket = true}, {.sol = kisi}};
  YzcAyarlari ayar;
  ayar.YzcBaslik = rapor.baslik;
  return std::unique_ptr<Belge>(std::make_unique<RaporBelgesi>(std::move(rapor), ayar));
}

}  // namespace belvani
