#include "payroll/parametre/parametreler.h"

#include <algorithm>

namespace belvani {
namespace {

struct HazirTur {
  const char* ack;
  std::uint8_t isKazasi;
};

// Branch n stands in row n - 1.
constexpr HazirTur hazirTurler[] = {
    {"Tüm Sigorta Kolları", 1},
    {"S.G.D.P. Tabi Çalışanlar", 1},
    {"Boş", 0},
    {"Yeraltı Sürekli Çalışanlar", 1},
    {"Yeraltı Gruplu Çalıışanlar", 1},
    {"Yerüstü Gruplu Çalışanlar", 1},
    {"Çırak/Stajyer/Öğrenci", 0},
    {"Halıcılık İşyerinde", 0},
    {"Topluluk Sigortasına Tabi", 0},
    {"İkili Sosyal Güvenlik Sözleşmesi Olmayan Ülke Vatandaşları", 1},
    {"Y.Ö.Kurumlarında Kısmi İstihdam", 0},
    {"Geçici 20.Madde Sandıklarında Çalışanlar", 0},
    {"Tümüne Dahil Olup İşsizlik Sigortası Haricindekiler", 1},
    {"Libyada Çalışanlar", 1},
    {"Boş", 1},
    {"Boş", 0},
    {"Boş", 0},
    {"Görev Malululluğu Alıp 2098 'tabiler", 0},
    {"İş Kazası, Meslek Hastalığı, Hastalık ve Analık Sigortasına Tabi", 1},
    {"Almanya Federal Cumhuriyetinde Çalıştırılanlar", 1},
    {"M.L. veya Y.okul Zorunlu Staj", 1},
    {"Harp malül, vazife aylığı alanlar", 1},
    {"Harp malül vazife aylıklı,uzun sigorta kolu", 1},
    {"4447 işsizlik almayıp,iş kurumu kursiyeri", 1},
    {"4447 işsizlik alıp, iş kurumu kursiyeri", 1},
    {"447 işsizlik alıp, kursiyer olmayanlar", 1},
    {"4446/21 işkaybı tazminatı alanlar", 1},
    {"Tüm Sigorta kolları olup 60 gün fiili hizmet", 1},
    {"İşsizlik sigortası hariç 60 gün fiili hizmet", 1},
    {"Tüm sigorta kolları 90 gün fiili  hizmet", 1},
    {"İşsizlik sigortası hariç 90 gün fiil hizmet", 1},
    {"Tüm sigorta kolları 180 gün fiili hizmet", 1},
    {"İşsizlik hariç 180 gün fiili hizmet", 1},
};

}  // namespace

HesapTurleri VarsayilanHesapTurleri() {
  HesapTurleri turler;
  for (std::size_t i = 0; i < std::size(hazirTurler); ++i)
    turler[i] = {std::uint8_t(i + 1), hazirTurler[i].ack, hazirTurler[i].isKazasi};
  return turler;
}

Kanunlar VarsayilanKanunlar() {
  return {{Tarih(2004, 1, 1), Tarih(2004, 6, 30), 1},
          {Tarih(2004, 7, 1), Tarih(2007, 12, 31), 2},
          {Tarih(2008, 1, 1), Tarih(2008, 9, 30), 3},
          {Tarih(2008, 10, 1), Tarih(3000, 12, 31), 4}};
}

FazlaMesailer VarsayilanFazlaMesailer() {
  return {{{Tek(1.5), Tek(40)}, {Tek(2), Tek(40)}, {Tek(2.5), Tek(40)}}};
}

KazancBayraklari VarsayilanKazancBayraklari() {
  constexpr std::uint8_t matrahlar = bayrak::Ssk | bayrak::Gv | bayrak::Dv;
  KazancBayraklari bayraklar;
  bayraklar.k.fill(matrahlar);
  bayraklar.k[0] |= bayrak::Acik;
  bayraklar.k[1] |= bayrak::Acik;
  return bayraklar;
}

Sablon VarsayilanSablon() {
  Sablon sablon;
  sablon.SablonGun[0] = Tek(26);
  sablon.SablonGun[1] = Tek(4);
  return sablon;
}

AgiTablosu AgiTabaniIle(AgiTablosu agi, Tutar asgariUcret) {
  constexpr Tutar EnAzTaban = Tutar::Hamdan(100 * Tutar::Olcek);
  if (agi.AgiTaban < EnAzTaban) agi.AgiTaban = asgariUcret;
  return agi;
}

int UygulamaBul(const Kanunlar& kanunlar, int ay, int yil) {
  const Tarih ilkGun(yil, ay, 1);
  if (ilkGun.Bos()) return 0;
  // A row without a first day (it was no day in the file) holds for no month, though Null sorts before every day.
  const auto satir = std::ranges::find_if(
      kanunlar, [&](const KanunSatiri& k) { return !k.bastar.Bos() && k.bastar <= ilkGun && k.bittar > ilkGun; });
  return satir == kanunlar.end() ? 0 : satir->uygulama;
}

Tek TehlikeOrani(int tehlike, double sinif) {
  constexpr double enAz = 1;
  constexpr double enCok = 6.5;
  constexpr double dereceFarki = 0.2;
  double oran = (sinif + 1) / 2 + 0.5;
  if (tehlike == 1)
    oran -= dereceFarki;
  else if (tehlike == 2)
    oran += dereceFarki;
  else if (tehlike != 0)
    oran = 0;
  if (!(oran > enAz)) return Tek(enAz);
  return Tek(std::min(oran, enCok));
}

}  // namespace belvani
