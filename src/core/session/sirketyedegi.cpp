#include "core/session/sirketyedegi.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unistd.h>

#include "core/asama.h"
#include "core/dosya.h"
#include "core/saat.h"
#include "core/session/oturum.h"
#include "core/session/sirket.h"
#include "core/store/depokopyasi.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/yarimdizin.h"
#include "core/yedek/arsiv.h"
#include "core/yedek/ozet.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

const std::string IsAdi = "yedek";  // of directories in which a backup is being made
const std::string ArsivAdi = "yedek.zip";

// What the engine lays beside the store; the copy of the store needs none of it.
bool DepoYani(std::string_view ad) {
  const auto ek = ad.starts_with(DepoDosyasi) ? ad.substr(DepoDosyasi.size()) : std::string_view();
  return ek == "-wal" || ek == "-shm" || ek == "-journal";
}

// Readers touch the engine's shared memory, and opening makes an empty log: neither is a change.
template <class Islev>
void HerIz(const VeriYolu& sirket, Islev islev) {
  std::vector<std::string> adlar = sirket.Dosyalar();
  if (sirket.Sunucuda()) adlar.push_back(DepoDosyasi);  // there it is no file
  std::ranges::sort(adlar);
  for (const std::string& ad : adlar) {
    const auto iz = sirket.Iz(ad);
    if (!iz || (DepoYani(ad) && (iz->boy == 0 || ad.ends_with("-shm")))) continue;
    islev(ad, *iz);
  }
}

std::string SirketIzi(const VeriYolu& sirket) {
  Ozetci ozet;
  HerIz(sirket, [&](const std::string& ad, const DosyaIzi& iz) {
    ozet.Ekle(ad + "/" + std::to_string(iz.boy) + "/" + std::to_string(iz.zaman) + "\n");
  });
  return ozet.Metin();
}

// Those of programs that were killed; nobody else makes one here at this time.
void YarimlariSupur(const std::string& dizin) {
  for (const std::string& ad : YarimDizinler(dizin))
    if (YarimDizinAdi(ad, IsAdi)) (void)YarimDiziniSil(dizin, ad);
}

void KunyeyeYaz(Motor& motor, YedekKunyesi& kunye) {
  const auto okundu = Koru([&] {
    if (const auto kart = Tablo<Firma>(motor).Bul()) {
      kunye.unvan = kart->unvan;
      kunye.versiyon = VersiyonMetni(kart->versiyon);
    }
  });
  (void)okundu;  // they are told for the user's eyes alone
}

// One backup while it is being made.
class Yedekleme {
 public:
  Yedekleme(const VeriYolu& veri, const std::string& kod, const YedekIstegi& istek, Ilerleme* ilerleme)
      : sirket_(veri.Alt(kod)),
        yer_(veri.Yedekler().Alt(kod)),
        istek_(istek),
        ilerleme_(ilerleme),
        ad_(SimdikiYedekAdi(istek.tur)) {
    kunye_.sirket = kod;
    kunye_.zaman = KunyeZamani(ad_);
    kunye_.tur = TurSozu(istek.tur);
  }

  Sonuc<AlinanYedek> Yap() {
    const auto hedef = HedefBul();
    if (!hedef) return hedef.Kusuru();
    const std::string hedefDizin = DizinSonu(fs::path(*hedef).parent_path());
    YarimlariSupur(hedefDizin);
    auto is = YarimDizin::Ac(yer_.Adres(), IsAdi);
    auto arsivYeri = YarimDizin::Ac(hedefDizin, IsAdi);
    if (!is) return is.Kusuru();
    if (!arsivYeri) return arsivYeri.Kusuru();
    if (Durum toplandi = Topla(is->Yol()); !toplandi) return toplandi.Kusuru();
    const std::string arsiv = arsivYeri->Yol() + ArsivAdi;
    if (Durum yazildi = ArsivYaz(arsiv, is->Yol(), kunye_, ilerleme_); !yazildi) return yazildi.Kusuru();
    if (Durum okundu = GeriOku(arsiv); !okundu) return okundu.Kusuru();
    if (Durum kondu = YerineKoy(arsiv, *hedef); !kondu) return kondu.Kusuru();
    return AlinanYedek{*hedef, fs::file_size(*hedef), std::move(uyarilar_)};
  }

 private:
  // Where nobody has chosen, a name that is free; its caller holds the place's lock.
  Sonuc<std::string> HedefBul() {
    if (istek_.hedef.empty()) {
      for (const std::string& dosya : yer_.Dosyalar())
        if (const auto olan = YedekAdi::Oku(dosya); olan && olan->gun == ad_.gun && olan->saat == ad_.saat)
          ad_.sira = std::max(ad_.sira, olan->sira + 1);
      return yer_.Adres(ad_.Metin());
    }
    if (DizinVar(istek_.hedef)) return DizinSonu(istek_.hedef) + kunye_.sirket + "-" + ad_.Metin();
    std::error_code hata;
    const fs::file_type tur = fs::symlink_status(istek_.hedef, hata).type();  // a link may be somebody else's
    if (tur != fs::file_type::regular && tur != fs::file_type::not_found)
      return Kusur{"Yedek yalnızca bir dosyaya yazılır: " + istek_.hedef};
    if (!DizinVar(DizinSonu(fs::path(istek_.hedef).parent_path())))
      return Kusur{"Yedeğin yazılacağı dizin bulunamadı: " + istek_.hedef};
    return istek_.hedef;
  }

  Durum Topla(const std::string& dizin) {
    kunye_.iz = SirketIzi(sirket_);  // before the first look: what changes meanwhile is a change
    for (const std::string& ad : sirket_.Altlar()) Uyar("Alt dizin yedekte yok: " + ad);
    for (const std::string& ad : sirket_.Dosyalar()) {
      if (ad == DepoDosyasi || DepoYani(ad)) continue;
      if (!YedeklenirAd(ad))
        Uyar("Adı yazılamayan dosya yedekte yok: " + DenetimsizMetin(ad));
      else if (Durum alindi = Kopyala(ad, dizin); !alindi)
        return alindi;
    }
    return DepoyuTopla(dizin);
  }

  Durum Kopyala(const std::string& ad, const std::string& dizin) {
    const Durum alindi = sirket_.DosyayaAl(ad, dizin + ad);
    // Gone since it was listed: a file that is replaced has a second name for a moment.
    if (alindi || (sirket_.Erisim() && !sirket_.Iz(ad))) return Tamam();
    return Kusur{"Yedeğe alınamadı: " + alindi.KusurMetni()};
  }

  Durum DepoyuTopla(const std::string& dizin) {
    if (!DepoVar(sirket_)) return Uyar("Şirketin veritabanı yok, yalnızca öteki dosyaları yedeklendi"), Tamam();
    try {
      std::unique_ptr<Motor> kendi;
      if (istek_.depo == nullptr) kendi = MotorBak(DepoAdresi(sirket_));
      Motor& motor = kendi ? *kendi : *istek_.depo;
      KunyeyeYaz(motor, kunye_);
      if (const std::string kusur = motor.SayfaKusuru([this] { Asama(ilerleme_).Sor(); }); !kusur.empty())
        Uyar("Veritabanı bozuk, yedekteki de öyle (denetleyiniz): " + kusur);
      if (ilerleme_ != nullptr) ilerleme_->Asama("Veritabanı kopyalanıyor…");
      motor.Kopyala(dizin + DepoDosyasi, [&](std::size_t biten, std::size_t toplam) {
        if (ilerleme_ != nullptr && !ilerleme_->Adim(biten, toplam)) throw Vazgecilmis{};
      });
      return Tamam();
    } catch (const MotorHatasi& h) {
      if (h.tur != MotorKusuru::Bozuk || sirket_.Sunucuda())
        return Kusur{std::string("Veritabanı yedeklenemedi: ") + h.what()};
      return DosyaOlarakTopla(dizin);
    }
  }

  // No store to the engine any more: what lies there is all that there is, with its journals.
  Durum DosyaOlarakTopla(const std::string& dizin) {
    Uyar("Veritabanı bozuk ya da bir veritabanı değil; dosyası olduğu gibi yedeklendi");
    std::error_code hata;
    fs::remove(dizin + DepoDosyasi, hata);
    for (const char* ek : {"", "-wal", "-journal"})
      if (Durum alindi = Kopyala(DepoDosyasi + ek, dizin); !alindi) return alindi;
    return Tamam();
  }

  Durum GeriOku(const std::string& arsiv) const {
    const auto yazilan = YedekArsivi::Ac(arsiv);
    if (!yazilan) return yazilan.Kusuru();
    return yazilan->Dogrula(ilerleme_);
  }

  static Durum YerineKoy(const std::string& arsiv, const std::string& hedef) {
    std::error_code hata;
    fs::rename(arsiv, hedef, hata);
    if (hata) return Kusur{hedef + ": yedek yazılamadı"};
    DiziniDiskeIndir(fs::path(hedef).parent_path());
    return Tamam();
  }

  void Uyar(std::string metin) { uyarilar_.push_back({.metin = std::move(metin), .derece = Derece::Uyari}); }

  VeriYolu sirket_, yer_;
  const YedekIstegi& istek_;
  Ilerleme* ilerleme_;
  YedekAdi ad_;
  YedekKunyesi kunye_;
  Kusurlar uyarilar_;
};

// One backup of a company at a time.
Sonuc<std::unique_ptr<YolKilidi>> YeriKilitle(const VeriYolu& veri, const std::string& ad) {
  const VeriYolu yer = veri.Yedekler().Alt(ad);
  if (Durum var = yer.Yarat(); !var) return var.Kusuru();
  auto kilit = yer.Kilitle();
  if (!kilit) return Kusur{"Bu şirketin yedeği şu anda başka bir programda alınıyor"};
  YarimlariSupur(yer.Adres());
  return kilit;
}

bool SonYedekGibi(const VeriYolu& veri, const std::string& ad) {
  const auto yedekler = SirketYedekleri(veri, ad);
  if (yedekler.empty()) return false;
  const auto son = YedekArsivi::Ac(yedekler.front().yol);
  return son && son->Kunye().iz == SirketIzi(veri.Alt(ad));
}

}  // namespace

Sonuc<AlinanYedek> YedekAl(const VeriYolu& veri, const std::string& ad, const YedekIstegi& istek, Ilerleme* ilerleme) {
  if (!veri.AltVar(ad)) return Kusur{"Şirket Bulunamadı: " + ad};
  const auto kilit = YeriKilitle(veri, ad);
  if (!kilit) return kilit.Kusuru();
  return Yedekleme(veri, ad, istek, ilerleme).Yap();
}

Sonuc<std::optional<AlinanYedek>> GunlukYedekAl(const VeriYolu& veri, const std::string& ad, Ilerleme* ilerleme) {
  if (veri.Sunucuda()) return std::optional<AlinanYedek>();
  if (SonYedekGibi(veri, ad)) return std::optional<AlinanYedek>();
  auto alinan = YedekAl(veri, ad, {.tur = YedekTuru::Gunluk}, ilerleme);
  if (!alinan) return alinan.Kusuru();
  // Copies of damage push out nothing that was sound.
  if (!alinan->uyarilar.empty()) return std::optional(std::move(*alinan));
  std::vector<YedekAdi> adlar;
  for (const YedekSatiri& y : SirketYedekleri(veri, ad)) adlar.push_back(y.ad);
  for (const YedekAdi& eski : SuresiDolanlar(std::move(adlar), Tarih::Bugun()))
    (void)veri.Yedekler().Alt(ad).Sil(eski.Metin());  // what cannot go today goes another day
  return std::optional(std::move(*alinan));
}

std::vector<YedekSatiri> SirketYedekleri(const VeriYolu& veri, const std::string& ad) {
  const VeriYolu yer = veri.Yedekler().Alt(ad);
  std::vector<YedekSatiri> satirlar;
  for (const std::string& dosya : yer.Dosyalar()) {
    const auto yedek = YedekAdi::Oku(dosya);
    const auto iz = yer.Iz(dosya);
    if (yedek && iz) satirlar.push_back({*yedek, yer.Adres(dosya), iz->boy});
  }
  std::ranges::sort(satirlar, [](const YedekSatiri& a, const YedekSatiri& b) { return DahaEski(b.ad, a.ad); });
  return satirlar;
}

Sonuc<std::string> YedekliSirketBul(const VeriYolu& veri, std::string_view metin) {
  auto sirket = SirketBul(veri, metin);
  if (sirket || !UyanSirketler(veri, metin).empty()) return sirket;
  auto silinmis = SirketBul(veri.Yedekler(), metin);
  return silinmis ? silinmis : sirket;
}

std::string SonDegisim(const VeriYolu& sirket) {
  std::int64_t son = 0;
  HerIz(sirket, [&](const std::string&, const DosyaIzi& iz) { son = std::max(son, iz.zaman); });
  constexpr std::int64_t nano = 1'000'000'000;
  return son == 0 ? std::string() : AnMetni(son / nano);
}

}  // namespace belvani
