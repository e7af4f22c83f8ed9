#include "core/session/icerde.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <signal.h>
#include <unistd.h>

#include "core/saat.h"

namespace belvani {
namespace {

constexpr std::int64_t GecerlikSaniyesi = 300;

// A mark as it lies there, a line each in this order.
struct Isaret {
  Icerdeki kim;
  std::string makine;  // whose processes are seen there: this start of the computer, and the space of its processes
  std::int64_t surec = 0;
  std::string surecBasi;  // tells a process from a later one of the same number
  std::int64_t yenilendi = 0;
};

std::string DosyaSatiri(const char* yol) {
  std::ifstream dosya(yol);
  std::string satir;
  std::getline(dosya, satir);
  return satir;
}

std::string BuMakine() {
  char alan[64] = {};
  const ssize_t n = ::readlink("/proc/self/ns/pid", alan, sizeof alan - 1);
  return DosyaSatiri("/proc/sys/kernel/random/boot_id") + " " + std::string(alan, std::size_t(std::max<ssize_t>(n, 0)));
}

// When the process began, in ticks since the start of the computer; empty: there is none of this number. The name,
// second of the values, may hold blanks and brackets.
std::string SurecBasi(std::int64_t surec) {
  constexpr int baslangicYeri = 19;  // behind the name
  const std::string satir = DosyaSatiri(("/proc/" + std::to_string(surec) + "/stat").c_str());
  std::size_t i = satir.rfind(')');
  for (int yer = 0; yer <= baslangicYeri && i != std::string::npos; ++yer) i = satir.find(' ', i + 1);
  if (i == std::string::npos) return {};
  return satir.substr(i + 1, satir.find(' ', i + 1) - i - 1);
}

std::string YeniAd() {
  std::random_device rastgele;
  std::string ad;
  for (int i = 0; i < 16; ++i) ad += "0123456789abcdef"[rastgele() % 16];
  return ad;
}

// Names are typed by people: a line end in one would break the others.
std::string TekSatir(std::string metin) {
  std::ranges::replace_if(
      metin, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return metin;
}

std::string Yaz(const Isaret& i) {
  std::string metin;
  for (const std::string& satir : {TekSatir(i.kim.kullanici), TekSatir(i.kim.bilgisayar), std::to_string(i.kim.giris),
                                   i.makine, std::to_string(i.surec), i.surecBasi, std::to_string(i.yenilendi)})
    metin += satir + "\n";
  return metin;
}

std::optional<Isaret> Coz(std::string_view metin) {
  std::vector<std::string> satirlar;
  for (std::size_t i = 0; i < metin.size();) {
    const std::size_t son = std::min(metin.find('\n', i), metin.size());
    satirlar.emplace_back(metin.substr(i, son - i));
    i = son + 1;
  }
  constexpr std::size_t satirSayisi = 7;
  if (satirlar.size() != satirSayisi) return std::nullopt;
  bool sayi = true;
  const auto oku = [&](const std::string& s) {
    std::int64_t n = 0;
    const auto [son, hata] = std::from_chars(s.data(), s.data() + s.size(), n);
    sayi = sayi && hata == std::errc() && son == s.data() + s.size();
    return n;
  };
  Isaret i{{satirlar[0], satirlar[1], oku(satirlar[2])}, satirlar[3], oku(satirlar[4]), satirlar[5], oku(satirlar[6])};
  return sayi ? std::optional(std::move(i)) : std::nullopt;
}

bool Gecersiz(const Isaret& i) {
  if (SimdikiAn() - i.yenilendi > GecerlikSaniyesi) return true;
  return i.makine == BuMakine() && SurecBasi(i.surec) != i.surecBasi;
}

// What is no mark of ours is passed over, and a void one swept.
void Al(const AdliDosya& dosya, const VeriYolu& sirket, std::vector<Icerdeki>& icerdekiler) {
  const auto isaret = Coz(dosya.baytlar);
  if (!isaret) return;
  if (Gecersiz(*isaret))
    (void)sirket.IsaretKaldir(dosya.ad);
  else
    icerdekiler.push_back(isaret->kim);
}

std::string Kim(const Icerdeki& i) {
  return i.kullanici + " (" + i.bilgisayar + ", " + AnMetni(i.giris) + ")";
}

}  // namespace

IcerdeIsareti::IcerdeIsareti(VeriYolu sirket, Icerdeki kim, std::string ad)
    : sirket_(std::move(sirket)), kim_(std::move(kim)), ad_(std::move(ad)) {}

std::unique_ptr<IcerdeIsareti> IcerdeIsareti::Koy(const VeriYolu& sirket, Icerdeki kim) {
  kim.giris = SimdikiAn();
  std::unique_ptr<IcerdeIsareti> isaret(new IcerdeIsareti(sirket, std::move(kim), YeniAd()));
  return isaret->Yenile() ? std::move(isaret) : nullptr;
}

IcerdeIsareti::~IcerdeIsareti() {
  (void)sirket_.IsaretKaldir(ad_);  // what cannot be taken away is void in five minutes
}

Durum IcerdeIsareti::Yenile() const {
  const std::int64_t surec = ::getpid();
  return sirket_.IsaretKoy(ad_, Yaz({kim_, BuMakine(), surec, SurecBasi(surec), SimdikiAn()}));
}

std::vector<Icerdeki> Icerdekiler(const VeriYolu& sirket, const IcerdeIsareti* kendim) {
  std::vector<Icerdeki> icerdekiler;
  for (const AdliDosya& isaret : sirket.Isaretler())
    if (kendim == nullptr || isaret.ad != kendim->Ad()) Al(isaret, sirket, icerdekiler);
  std::ranges::sort(icerdekiler, {}, &Icerdeki::giris);
  return icerdekiler;
}

std::map<std::string, std::vector<Icerdeki>> AltIcerdekiler(const VeriYolu& veri) {
  std::map<std::string, std::vector<Icerdeki>> yerler;
  for (const AltIsareti& alt : veri.AltIsaretleri()) Al(alt.isaret, veri.Alt(alt.alt), yerler[alt.alt]);
  std::erase_if(yerler, [](const auto& yer) { return yer.second.empty(); });
  for (auto& [ad, icerdekiler] : yerler) std::ranges::sort(icerdekiler, {}, &Icerdeki::giris);
  return yerler;
}

std::string IcerdekiMetni(const std::vector<Icerdeki>& icerdekiler) {
  std::string metin;
  for (const Icerdeki& i : icerdekiler) metin += (metin.empty() ? "" : "; ") + Kim(i);
  return metin;
}

std::string IcerdekiSatirlari(const std::vector<Icerdeki>& icerdekiler) {
  std::string metin;
  for (const Icerdeki& i : icerdekiler) metin += "\n" + Kim(i);
  return metin;
}

}  // namespace belvani
