#include "screens/reports/rap2.h"

#include "documents/secimalanlari.h"
#include "printing/kolonlar.h"
#include "screens/reports/alansecimi.h"

namespace belvani {
namespace {

constexpr int EnGenisKolon = 60;

AlanGrubu DonemGrubu() {
  const AlanEki yil{.enAz = IlkBelgeYili, .enCok = SonBelgeYili, .harf = 6, .kayitDisi = true};
  const AlanEki ay{.enAz = 1, .enCok = 12, .harf = 4, .kayitDisi = true};
  return {"Dönem",
          {{Uye("ilkYil", &BordroRaporuSecimi::ilkYil), "Bordro Yıl Başlangıç", yil},
           {Uye("sonYil", &BordroRaporuSecimi::sonYil), "Bordro Yıl Bitiş", yil},
           {Uye("ilkAy", &BordroRaporuSecimi::ilkAy), "Bordro Ay Başlangıç", ay},
           {Uye("sonAy", &BordroRaporuSecimi::sonAy), "Bordro Ay Bitiş", ay},
           {Uye("kisiBasina", &BordroRaporuSecimi::kisiBasina), "Her kişiye bir satır", {.kayitDisi = true}}},
          2};
}

// People, as papers choose them.
AlanGrubu KisiGrubu() {
  AlanGrubu grup = AralikAlanlari(false, "Personel Kodu");
  for (Alan& alan : grup.alanlar) alan.ek.kayitDisi = true;
  return grup;
}

AlanSutunlari BordroRaporuAlanlari() {
  static const auto adlar = SunulanAdlar(BordroAlanlari());
  return {
      {{"Rapor",
        {{Uye("ad", &RaporAdi::ad, 60), "Rapor Adı", {.anahtar = true, .harf = 30, .rehber = true, .kayitDisi = true}},
         {Uye("baslik", &RaporAdi::baslik, 60), "Başlık", {.harf = 30, .kayitDisi = true}}}},
       {"Kolon",
        {AlanSecimi<BordroKolonu>(BordroAlanlari(), adlar),
         {Uye("baslik", &BordroKolonu::baslik, RaporMetniHarfi), "Kolon Başlığı"},
         {Uye("en", &BordroKolonu::en), "En", {.enCok = EnGenisKolon}},
         {Uye("ondalik", &BordroKolonu::ondalik), "Onda", {.enCok = EnCokRaporOndaligi}},
         {Uye("toplanir", &BordroKolonu::toplanir), "Toplam alınsın"}}}},
      {DonemGrubu(), KisiGrubu()}};
}

}  // namespace

rap2::rap2(EkranBaglami& baglam)
    : RaporEkrani(baglam, "rap2", QStringLiteral("Bordro Raporlama"),
                  {{"dbase", "Dbase", 140, 'm', [](const BordroKolonu& k) { return k.alan; }},
                   {"baslik", "Başlık", 160, 'a', [](const BordroKolonu& k) { return k.baslik; }},
                   {"en", "En", 50, 'b', [](const BordroKolonu& k) { return std::to_string(k.en); }},
                   {"onda", "O.", 40, 'b', [](const BordroKolonu& k) { return std::to_string(k.ondalik); }},
                   {"topal", "T.", 40, 'm', [](const BordroKolonu& k) { return k.toplanir ? "E" : ""; }}}) {
  Ac(BordroRaporuAlanlari());
  const int yil = Oturumu().firma.firmayil;
  Yukle(BordroRaporuSecimi{.ilkYil = yil, .sonYil = yil});
  Yukle(DefterSecim{});
}

Durum rap2::Yaz(const std::string& ad, const BordroKolonlari& kolonlar) const {
  return BordroRaporuKaydet(Oturumu().DataPath, ad, kolonlar);
}

BordroKolonu rap2::Baslayan(const BordroKolonu& secilen) const {
  const RaporAlani* alan = RaporAlaniBul(BordroAlanlari(), secilen.alan);
  if (alan == nullptr) return secilen;
  const bool tutar = alan->Tutardir();
  return {.alan = secilen.alan,
          .baslik = std::string(alan->baslik),
          .en = std::uint8_t(alan->TercihEni(EnGenisKolon)),
          .ondalik = std::uint8_t(tutar ? std::clamp(int(Oturumu().firma.paraonda), 0, EnCokRaporOndaligi)
                                  : alan->Turu() == KolonTuru::Tutar ? OranOndaligi
                                                                     : 0),
          .toplanir = tutar};
}

std::optional<Rapor> rap2::RaporYap(const RaporBicimi& bicim, bool onizleme, Ilerleme* ilerleme) {
  BordroRaporuSecimi secim;
  DefterSecim kisiler;
  if (onizleme) {
    const auto okunur = [](const auto& d) { return d->Satir().kayitTuru == typeid(BordroKolonu) || !d->Kusuru(); };
    if (!std::ranges::all_of(Denetimler(), okunur)) return std::nullopt;
  }
  if (!Oku(secim) || !Oku(kisiler)) return std::nullopt;
  secim.kisiler = {.kod = kisiler.kod, .grup = kisiler.grup, .tip = kisiler.tip, .ozel = kisiler.ozel};
  Motor& motor = Oturumu().depo.db.IcMotor();
  return BordroRaporu(motor, Tasarim(), onizleme ? SonAyi(motor, secim) : secim, bicim, ilerleme);
}

}  // namespace belvani
