#include "printing/belprnislem.h"

#include <sys/wait.h>
#include <unistd.h>

#include "core/dosya.h"
#include "printing/dosprint.h"

namespace belvani {
namespace {

constexpr const char* Kullanim = "Kullanım: belprn DOSYA [--yazici AD] [--ad AD] [--sil]";

// Through a child that ends at once, so that nobody has to wait for the program itself.
bool AyriCalistir(std::vector<std::string> komut) {
  std::vector<char*> arguman;
  arguman.reserve(komut.size() + 1);
  for (auto& parca : komut) arguman.push_back(parca.data());
  arguman.push_back(nullptr);
  const pid_t cocuk = ::fork();
  if (cocuk == 0) {
    ::setsid();
    if (::fork() == 0) {
      ::execv(arguman[0], arguman.data());
      ::_exit(127);
    }
    ::_exit(0);
  }
  return cocuk > 0 && ::waitpid(cocuk, nullptr, 0) == cocuk;
}

}  // namespace

Durum Belprn(const std::vector<std::string>& argumanlar, Kuyruk& kuyruk) {
  std::string dosya, yazici, ad;
  bool sil = false;
  for (std::size_t i = 0; i < argumanlar.size(); ++i) {
    if (argumanlar[i] == "--sil")
      sil = true;
    else if (argumanlar[i] == "--yazici" && i + 1 < argumanlar.size())
      yazici = argumanlar[++i];
    else if (argumanlar[i] == "--ad" && i + 1 < argumanlar.size())
      ad = argumanlar[++i];
    else if (dosya.empty() && !argumanlar[i].starts_with("--"))
      dosya = argumanlar[i];
    else
      return Kusur{Kullanim};
  }
  if (dosya.empty()) return Kusur{Kullanim};
  const auto icerik = DosyaOku(dosya);
  if (!icerik) return Kusur{dosya + ": dosya okunamadı"};
  if (icerik->empty()) return Kusur{dosya + ": dosya boş"};
  dosprint ham(kuyruk);
  if (ad.empty()) ad = dosya.substr(dosya.rfind('/') + 1);
  if (const Durum acildi = ham.Ac(yazici, ad); !acildi) return acildi;
  ham.Yaz(*icerik);
  if (const Durum gitti = ham.Kapat(); !gitti) return gitti;
  if (sil) ::unlink(dosya.c_str());
  return Tamam();
}

Durum BelprnBaslat(const std::string& programDizini, const BelprnIsi& is, Kuyruk& kuyruk) {
  const std::string program = DizinSonu(programDizini) + "belprn";
  if (::access(program.c_str(), X_OK) != 0) return Kusur{program + ": program bulunamadı"};
  const auto secilen = YaziciSec(kuyruk, is.yazici);
  if (!secilen) return secilen.Kusuru();
  std::vector<std::string> komut{program, is.dosya, "--yazici", secilen->ad};
  if (!is.ad.empty()) komut.insert(komut.end(), {"--ad", is.ad});
  komut.push_back("--sil");
  if (!AyriCalistir(std::move(komut))) return Kusur{program + ": başlatılamadı"};
  return Tamam();
}

}  // namespace belvani
