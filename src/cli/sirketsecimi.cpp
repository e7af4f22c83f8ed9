#include "cli/sirketsecimi.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <map>
#include <unistd.h>

#include "cli/toplurapor.h"
#include "core/dosya.h"
#include "core/session/sirket.h"

namespace belvani::cli {
namespace {

constexpr int EnCokSurec = 64;

// While one waits for its disk or its server, another one calculates.
long OnerilenSurec() {
  return std::clamp(2 * ::sysconf(_SC_NPROCESSORS_ONLN), 1L, long(EnCokSurec));
}

// Ends one company's part of many.
struct Atlandi {
  std::string neden;
};

Bitis Yap(const std::function<void()>& is) {
  Bitis bitis = Bitis::Yapildi;
  const auto atlanabilen = [&] {
    try {
      is();
    } catch (const Atlandi& a) {
      std::cerr << a.neden << '\n';
      bitis = Bitis::Atlandi;
    }
  };
  return HatayiSoyleyerek(atlanabilen) ? bitis : Bitis::Yapilamadi;
}

// Two texts for each company that is meant: its name as its place is spelled, and the fault of a code that means none.
// Listed in a process of its own, so that this one holds no connection when it makes others.
void BulunanlariYaz(const VeriYolu& veri, const std::vector<std::string>& kodlar) {
  std::string metin;
  const auto ekle = [&](const std::string& ad, const std::string& kusur) {
    metin.append(ad).append(1, '\0').append(kusur).append(1, '\0');
  };
  for (const std::string& kod : kodlar) {
    const auto ad = SirketBul(veri, kod);
    ad ? ekle(*ad, "") : ekle(kod, ad.KusurMetni());
  }
  if (kodlar.empty())
    for (const std::string& ad : Sirketler(veri)) ekle(ad, "");
  Yaz(metin);
}

// Each once, however often it was named.
std::vector<TopluSatir> SatirlariCoz(const std::string& metin) {
  std::vector<TopluSatir> satirlar;
  std::size_t yer = 0;
  const auto oku = [&] {
    const std::size_t bas = yer, son = metin.find('\0', bas);
    yer = son + 1;
    return metin.substr(bas, son - bas);
  };
  while (yer < metin.size()) {
    TopluSatir sirket{.kod = oku(), .hal = TopluSatir::Hal::Baslanmadi, .kusur = oku(), .cikti = {}, .mesaj = {}};
    if (!sirket.kusur.empty()) sirket.hal = TopluSatir::Hal::Yapilamadi;
    if (std::ranges::find(satirlar, sirket.kod, &TopluSatir::kod) == satirlar.end())
      satirlar.push_back(std::move(sirket));
  }
  return satirlar;
}

// Of a server: asked while the companies are listed, then known to the processes that work on them.
class SifreBellegi {
 public:
  SifreSorucu Soran() {
    return [this](const std::string& sunucu, const std::string& kullanici) {
      auto sifre = SifreSor(sunucu, kullanici);
      if (sifre) bilinen_[{sunucu, kullanici}] = *sifre;
      return sifre;
    };
  }
  SifreSorucu Bilen() const {
    return [this](const std::string& sunucu, const std::string& kullanici) {
      const auto yer = bilinen_.find({sunucu, kullanici});
      return yer == bilinen_.end() ? std::nullopt : std::optional(yer->second);
    };
  }

 private:
  std::map<std::pair<std::string, std::string>, std::string> bilinen_;
};

std::vector<TopluSatir> Secilenler(Genel& genel, const std::vector<std::string>& kodlar, const SifreSorucu& sifre) {
  Isci isci([&](std::size_t) { return Yap([&] { BulunanlariYaz(genel.DataPath(), kodlar); }); }, sifre);
  isci.Ver(0);
  std::optional<Isci::Sonuc> olan;
  while (!olan) olan = isci.SonucuAl();
  const Isci::Sonuc& sonuc = *olan;
  if (sonuc.bitis != Bitis::Yapildi) {
    std::string neden = sonuc.mesaj.Metin() + sonuc.olum;
    neden.erase(neden.find_last_not_of('\n') + 1);
    throw KomutHatasi{neden};
  }
  std::cerr << sonuc.mesaj.Metin();
  std::vector<TopluSatir> satirlar = SatirlariCoz(sonuc.cikti.Metin());
  if (satirlar.empty()) throw KomutHatasi{"Data dizininde şirket yok"};
  return satirlar;
}

}  // namespace

void SirketIsi::Atla(const std::string& neden) const {
  if (toplu) throw Atlandi{neden};
}

std::string SirketIsi::Dosya(const std::string& secenek, const std::string& ad) const {
  if (!toplu || secenek.empty()) return secenek;
  const std::string dizin = DizinSonu(DizinSonu(secenek) + kod);
  Basarmali(DizinYarat(dizin));
  return dizin + ad;
}

void SirketSecimi::SecenekEkle(CLI::App& komut) {
  auto* kod = komut.add_option("KOD", kodlar_, "şirket, ya da birden çok şirket")->required()->type_name("METİN");
  komut
      .add_flag_function(
          "--hepsi",
          [this, kod](std::int64_t) {
            hepsi_ = true;
            kod->required(false);
          },
          "data dizinindeki bütün şirketler; -o DİZİN verilirse her birinin dosyası DİZİN/KOD içine")
      ->trigger_on_parse()
      ->excludes(kod);
  SayiSecenegi(komut, "-j", "birden çok şirkette: aynı anda çalışan süreç (verilmezse işlemci sayısının iki katı)",
               surec_, 1, EnCokSurec);
}

void SirketSecimi::CiktiyiDenetle(const std::string& bicim, const std::string& dosya) {
  if (!Toplu()) return;
  TekSirketlikleriDenetle();
  if (dosya == "-") throw CLI::ValidationError("-o", "birden çok şirketin dosyaları için bir dizin olmalı");
  if (!dosya.empty()) return DizinHazirla(dosya);
  json_ = bicim == "json";
  if (bicim != "json" && bicim != "metin")
    throw CLI::ValidationError("--bicim", bicim + " birden çok şirkette ekrana yazılmaz, dizinini veriniz: -o DİZİN");
}

void SirketSecimi::DizinHazirla(const std::string& dizin) {
  if (!Toplu() || dizin.empty()) return;
  TekSirketlikleriDenetle();
  Basarmali(DizinYarat(dizin));
  dizin_ = dizin;
}

void SirketSecimi::Calistir(Genel& genel, const std::function<void(const SirketIsi&)>& is) const {
  if (!Toplu()) return is({.kod = kodlar_.front()});
  TekSirketlikleriDenetle();
  TopluCalistir(genel, is);
}

void SirketSecimi::TekSirketlikleriDenetle() const {
  for (const CLI::Option* secenek : tekSirketlikler_)
    if (secenek->count() > 0)
      throw CLI::ValidationError(secenek->get_name(), "tek şirketle verilir, birden çok şirketle değil");
}

void SirketSecimi::TopluCalistir(Genel& genel, const std::function<void(const SirketIsi&)>& is) const {
  SifreBellegi sifreler;
  auto satirlar = Secilenler(genel, kodlar_, sifreler.Soran());
  genel.adlarTam = true;
  const auto sirketinki = [&](std::size_t sira) {
    return Yap([&] { is({.kod = satirlar[sira].kod, .toplu = true}); });
  };
  TopluIs(satirlar, {.is = sirketinki,
                     .sifre = sifreler.Bilen(),
                     .surec = std::size_t(surec_ != 0 ? surec_ : OnerilenSurec()),
                     .duzen = json_ ? TopluDuzen::Nesne : TopluDuzen::Metin,
                     .dizin = dizin_})
      .Yurut();
  const std::string ozet = RaporuYaz(satirlar);
  if (KesmeNobeti::Sayi() > 0) {  // whoever has started this sees that it did not end by itself
    std::cerr << ozet << '\n';
    std::signal(KesmeNobeti::Sinyal(), SIG_DFL);
    std::raise(KesmeNobeti::Sinyal());
  }
  const auto eksik = [](const TopluSatir& s) {
    return s.hal == TopluSatir::Hal::Yapilamadi || s.hal == TopluSatir::Hal::Baslanmadi;
  };
  if (std::ranges::any_of(satirlar, eksik)) throw KomutHatasi{ozet};
  std::cerr << ozet << '\n';
}

}  // namespace belvani::cli
