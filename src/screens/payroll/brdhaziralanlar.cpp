#include "screens/payroll/brdhaziralanlar.h"

#include "payroll/hesap/kayittoplami.h"
#include "payroll/hesap/satirlar.h"

namespace belvani {
namespace {

constexpr int TutarHarfi = 11, SonucHarfi = 10;

// An amount of the calculated record: shown, not typed.
template <class U>
Alan Sonucta(Kolon<Brd, U> kolon, const char* etiket, AlanEki ek = {}) {
  ek.kapali = true;
  if (ek.harf == 0) ek.harf = SonucHarfi;
  return Alan(
      kolon, typeid(BordroSonucu),
      [uye = kolon.uye](const void* s) { return UyeDegeri(static_cast<const BordroSonucu*>(s)->brd.*uye); },
      [](void*, const Deger&) {}, etiket, ek);
}

// A rate: among the results, and typed over where the user knows better.
Alan Oranda(std::size_t sira) {
  return {OranKolonlari[sira].kolon, OranKolonlari[sira].ad.data(), {.harf = 7, .no = int(OranAlani(sira))}};
}

Alan Toplamda(Kolon<EkranToplamlari, Tutar> kolon, const char* etiket) {
  return {kolon, etiket, {.harf = SonucHarfi, .kapali = true}};
}
Alan Toplamda(const KayitToplami& toplam, Tutar EkranToplamlari::*uye) {
  return Toplamda(Uye(toplam.ad, uye), toplam.etiket);
}

}  // namespace

Alan KodAlani() {
  return {bordroalani::kod, "Sicil No", {.anahtar = true, .no = int(BordroAlani::Kod)}};
}

AlanGrubu GunGrubu() {
  AlanGrubu grup{"Günler ve Mesai", {}};
  for (std::size_t i = 0; i < GunKolonlari.size(); ++i)
    grup.alanlar.emplace_back(GunKolonlari[i], KazancAdlari[i].data(), AlanEki{.no = int(KazancAlani(i))});
  for (std::size_t i = 0; i < MesaiKolonlari.size(); ++i)
    grup.alanlar.emplace_back(MesaiKolonlari[i], KazancAdlari[GunSatiriSayisi + i].data(),
                              AlanEki{.harf = 6, .no = int(KazancAlani(GunSatiriSayisi + i))});
  return grup;
}

AlanGrubu YardimGrubu(const YardimTanimlari& yardimlar) {
  AlanGrubu grup{"Yardımlar", {}};
  for (std::size_t i = 0; i < YardimKolonlari.size(); ++i)
    grup.alanlar.emplace_back(YardimKolonlari[i], yardimlar[i].adi.c_str(),
                              AlanEki{.harf = TutarHarfi, .no = int(YardimAlani(i))});
  return grup;
}

std::vector<AlanGrubu> OzetGruplari() {
  return {
      {"Bordro Özeti",
       {Toplamda(toplam::kazanclar, &EkranToplamlari::kazanclar),
        Toplamda(Uye("yardimlar", &EkranToplamlari::yardimlar), "Yardımlar"), Toplamda(bordroalani::brut, "TOPLAM"),
        Toplamda(Uye("ssk", &EkranToplamlari::ssk), "S.S.K."), Toplamda(toplam::vergiler, &EkranToplamlari::vergiler),
        Toplamda(toplam::yasalKesinti, &EkranToplamlari::yasalKesinti),
        Toplamda(toplam::ozelKesinti, &EkranToplamlari::ozelKesinti),
        Toplamda(Uye("agi", &EkranToplamlari::agi), "A.G.İ."), Toplamda(bordroalani::net, "NET"),
        Alan(Uye("SskGun", &EkranToplamlari::SskGun), "Toplam Gün", {.kapali = true}),
        Sonucta(brd::brutkaz, "Brüt Gelir"), Oranda(4)}}};
}

std::vector<AlanGrubu> AyrintiGruplari() {
  return {{"Matrahlar",
           {Sonucta(brd::sskmatrah, "SSK Matrahı"), Sonucta(brd::gvmatrah, "GV Matrahı"),
            Sonucta(brd::devgvmatrah, "Dev. GV Matrahı"), Sonucta(brd::devgvtutar, "Dev. GV Tutarı"),
            Toplamda(toplam::kumuleMatrah, &EkranToplamlari::kumuleMatrah),
            Toplamda(toplam::kumuleVergi, &EkranToplamlari::kumuleVergi)},
           2},
          {"İşçi ve İşveren Payları",
           {Oranda(0), Sonucta(brd::sskkesinti, "SSK İşçi"), Oranda(2), Sonucta(brd::issizisci, "İşsizlik İşçi"),
            Oranda(1), Sonucta(brd::gvtutar, "Gelir Vergisi"), Oranda(3), Sonucta(brd::dvtutar, "Damga Vergisi"),
            Sonucta(brd::sskkesintiisveren, "SSK İşveren"), Toplamda(toplam::isciToplam, &EkranToplamlari::isciToplam),
            Sonucta(brd::issizisveren, "İşsizlik İşveren"),
            Toplamda(toplam::isverenToplam, &EkranToplamlari::isverenToplam)},
           2}};
}

AlanGrubu EksikGunGrubu() {
  return {
      "Eksik Gün",
      {{bordroalani::sebep, "Eksik Gün S.", {.liste = EksikSebepleri, .harf = 16, .no = int(BordroAlani::EksikSebep)}},
       {brd::ucretsizizin, "Ücretsiz İzin", {.harf = 3, .no = int(BordroAlani::UcretsizIzin)}},
       {brd::rapcalismadi, "Raporda Çalışmadı", {.kutu = true, .no = int(BordroAlani::RaporCalismadi)}}},
      2};
}

}  // namespace belvani
