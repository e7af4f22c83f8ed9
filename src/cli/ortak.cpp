#include "cli/ortak.h"

#include <iostream>
#include <new>
#include <unistd.h>

#include "core/adlar.h"
#include "core/ayarlar.h"
#include "core/kaynak.h"
#include "core/sayi.h"
#include "core/session/datayolu.h"
#include "core/session/yukseltme.h"
#include "documents/secimalanlari.h"

namespace belvani::cli {
void StandartHata::Bilgi(std::string_view metin) {
  std::cerr << TerminalMetni(metin) << '\n';
}
void StandartHata::Uyari(std::string_view metin) {
  std::cerr << TerminalMetni(metin) << '\n';
}
bool StandartHata::Soru(std::string_view metin) {
  std::cerr << TerminalMetni(metin) << " (hayır)\n";
  return false;
}

std::string Genel::DataPathMetni() const {
  std::string yol = veri.empty() ? MakineAyari("DataPath") : veri;
  if (yol.empty()) throw KomutHatasi{"Data Dizini belli değil: --veri DIZIN veriniz"};
  return yol;
}

std::string Genel::DataPath() {
  auto dataPath = DataYolu(DataPathMetni());
  const VeriYolu yer = Degeri(dataPath);
  if (adlarTam) return *dataPath;
  Basarmali(yer.Erisim());
  yer.Toparla();
  return *dataPath;
}

std::unique_ptr<Oturum> Genel::SirketAc(const std::string& kod, SirketErisimi erisim) {
  auto o = std::make_unique<Oturum>();
  o->DataPath = DataPath();
  Basarmali((adlarTam ? AdiylaSirketAc : belvani::SirketAc)(*o, kod, erisim));
  if (o->SaltOkunur && erisim == SirketErisimi::Yazilir) bildirim.Uyari(std::string("Uyarı: ") + SaltOkunurUyarisi);
  if (!FirmaYukle(*o)) throw KomutHatasi{"İşyeri Tanımlamaları Yapılmamış"};
  if (const Durum ayni = VersiyonKontrol(*o); !ayni)
    throw KomutHatasi{ayni.KusurMetni() + "\nŞirket bu programla açılamadı"};
  if (const Durum yapi = YapiKontrol(*o); !yapi) bildirim.Uyari("Uyarı: " + yapi.KusurMetni());
  return o;
}

TerminalIlerlemesi::TerminalIlerlemesi() : terminal_(::isatty(STDERR_FILENO) == 1) {}

bool TerminalIlerlemesi::Adim(std::size_t biten, std::size_t toplam) {
  constexpr std::size_t EnAzKisi = 1000, Aralik = 32;
  const bool gosterilir = biten % Aralik == 0 || biten == toplam;
  if (terminal_ && toplam >= EnAzKisi && gosterilir)
    std::cerr << "\r" << biten << " / " << toplam << (biten == toplam ? "\n" : "") << std::flush;
  return true;
}

std::unique_ptr<Oturum> Genel::YazmayaAc(const std::string& kod) {
  auto o = SirketAc(kod);
  IcerdeYaz(*o, "belvani-cli");
  return o;
}

Donem DonemOku(const std::string& metin) {
  const Tarih gun = Tarih::IsoOku(metin + "-01");
  if (metin.size() != 7 || gun.Bos()) throw KomutHatasi{"Dönem YYYY-AA biçiminde olmalı: " + metin};
  return {gun.Yil(), gun.Ay()};
}

std::string GunSecenegi(const std::string& metin) {
  const Tarih iso = Tarih::IsoOku(metin);
  return iso.Bos() ? metin : iso.Metin();
}

CLI::Option* TarihSecenegi(CLI::App& komut, const char* ad, const char* aciklama, Tarih& tarih) {
  const auto oku = [&tarih, ad](const std::string& metin) {
    tarih = Tarih::MetinOku(GunSecenegi(metin));
    if (tarih.Bos()) throw CLI::ValidationError(ad, "gg.aa.yyyy biçiminde bir tarih olmalı: " + metin);
  };
  return komut.add_option_function<std::string>(ad, oku, aciklama)->type_name("TARİH");
}

int SayiOku(const char* secenek, const std::string& metin, int enAz, int enCok) {
  const auto sayi = TamSayiOku(metin);
  if (!sayi || *sayi < enAz || *sayi > enCok)
    throw CLI::ValidationError(
        secenek, std::to_string(enAz) + " ile " + std::to_string(enCok) + " arasında bir sayı olmalı: " + metin);
  return int(*sayi);
}

CLI::Option* SayiSecenegi(CLI::App& komut, const char* ad, const char* aciklama, int& deger, int enAz, int enCok) {
  const auto oku = [&deger, ad, enAz, enCok](const std::string& metin) { deger = SayiOku(ad, metin, enAz, enCok); };
  return komut.add_option_function<std::string>(ad, oku, aciklama)->type_name("SAYI");
}

CLI::Option* YilSecenegi(CLI::App& komut, int& yil, const char* aciklama) {
  return SayiSecenegi(komut, "--yil", aciklama, yil, IlkBelgeYili, SonBelgeYili);
}

CLI::Option* AySecenegi(CLI::App& komut, int& ay, const char* aciklama) {
  return SayiSecenegi(komut, "--ay", aciklama, ay, 1, 12);
}

void DonemSecenekleri(CLI::App& komut, Donem& donem) {
  YilSecenegi(komut, donem.yil, "bordro yılı")->required();
  AySecenegi(komut, donem.ay, "bordro ayı, 1-12")->required();
}

void MevzuatUyarisi(Genel& genel, const KuruluMevzuat& mevzuat, const Donem& donem) {
  const MevzuatGorusu gorus = MevzuataBak(mevzuat, {donem.yil, donem.ay});
  if (gorus.hal != MevzuatHali::Uygun) genel.bildirim.Uyari("Uyarı: " + gorus.Metin());
}

bool HatayiSoyleyerek(const std::function<void()>& is) try {
  is();
  return true;
} catch (const KomutHatasi& h) {
  std::cerr << TerminalMetni(h.metin) << '\n';
  return false;
} catch (const std::bad_alloc&) {
  std::cerr << "Bellek yetmedi\n";
  return false;
} catch (const std::exception& h) {
  std::cerr << TerminalMetni(std::string("Beklenmeyen hata: ") + h.what()) << '\n';
  return false;
}

void Basarmali(const Durum& durum) {
  if (!durum) throw KomutHatasi{durum.KusurMetni()};
}

void OndalikSecenegi(CLI::App& komut, OndalikImi& im) {
  const auto oku = [&im](const std::string& ad) { im = ad == "nokta" ? OndalikImi::Nokta : OndalikImi::Virgul; };
  komut
      .add_option_function<std::string>("--ondalik", oku,
                                        "sayıların ondalık işareti: nokta veya virgul (1.250 gibi iki türlü okunan "
                                        "sayılar için)")
      ->check(CLI::IsMember({"nokta", "virgul"}))
      ->type_name("METİN");
}

std::string DosyayiOku(const std::string& yol) {
  auto icerik = KaynakOku(yol);
  return std::move(Degeri(icerik));
}

std::string GirdiyiOku() {
  auto icerik = StandartGirdiOku();
  return std::move(Degeri(icerik));
}

HedefDosya HedefAc(const std::string& dosya) {
  if (dosya.empty() || dosya == "-") return HedefDosya::StandartCikti();
  auto hedef = HedefDosya::Ac(dosya);
  return std::move(Degeri(hedef));
}

void MetinCikisi::Yaz(std::string_view metin) {
  constexpr std::size_t enCokBekleyen = 1u << 18;
  terminal_ ? bekleyen_ += TerminalMetni(metin) : bekleyen_ += metin;
  if (bekleyen_.size() > enCokBekleyen) Bosalt();
}

void MetinCikisi::Bosalt() {
  Basarmali(hedef_.Ekle(bekleyen_));
  bekleyen_.clear();
}

void MetinCikisi::Bitir() {
  Bosalt();
  Basarmali(hedef_.Bitir());
}

void Yaz(const std::string& metin, const std::string& dosya) {
  MetinCikisi cikis(dosya);
  cikis.Yaz(metin);
  cikis.Bitir();
}

void BaytlariYaz(const std::string& baytlar, const std::string& dosya) {
  HedefDosya hedef = HedefAc(dosya);
  if (hedef.Terminal()) throw KomutHatasi{"Bu biçim terminale yazılmaz, bir dosya veriniz: -o DOSYA"};
  Basarmali(hedef.Ekle(baytlar));
  Basarmali(hedef.Bitir());
}

}  // namespace belvani::cli
