#include "cli/isci.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "cli/ortak.h"

namespace belvani::cli {
namespace {

constexpr std::array KesenSinyaller{SIGINT, SIGTERM, SIGHUP};

std::vector<int> sahipUclari;  // of all processes that live; a new one must not hold those of the others open

volatile std::sig_atomic_t kesmeSayisi = 0, sonKesme = 0;

void KesmeGeldi(int sinyal) {
  sonKesme = sinyal;
  kesmeSayisi = kesmeSayisi + 1;
}

sigset_t KesenKume() {
  sigset_t kume;
  sigemptyset(&kume);
  for (const int sinyal : KesenSinyaller) sigaddset(&kume, sinyal);
  return kume;
}

std::array<struct sigaction, KesenSinyaller.size()> eskiDavranis;
sigset_t eskiMaske;

bool SokettenOku(int soket, void* yer, std::size_t boy) {
  ssize_t n = 0;
  do n = ::recv(soket, yer, boy, MSG_WAITALL);
  while (n < 0 && errno == EINTR);
  return n == ssize_t(boy);
}

// Nobody there is no reason to die of.
void SoketeYaz(int soket, const void* yer, std::size_t boy) {
  while (::send(soket, yer, boy, MSG_NOSIGNAL) < 0 && errno == EINTR) {
  }
}

// In the place of a result: what follows is a question for a password.
constexpr char SifreSorusu = 'S';

void MetinGonder(int soket, const std::string& metin) {
  const auto boy = std::uint32_t(metin.size());
  SoketeYaz(soket, &boy, sizeof boy);
  SoketeYaz(soket, metin.data(), metin.size());
}

std::optional<std::string> MetinOku(int soket) {
  std::uint32_t boy = 0;
  if (!SokettenOku(soket, &boy, sizeof boy)) return std::nullopt;
  std::string metin(boy, '\0');
  if (boy != 0 && !SokettenOku(soket, metin.data(), boy)) return std::nullopt;
  return metin;
}

// From inside the process. An empty answer is none.
std::optional<std::string> SahibeSor(int soket, const std::string& sunucu, const std::string& kullanici) {
  SoketeYaz(soket, &SifreSorusu, 1);
  MetinGonder(soket, sunucu);
  MetinGonder(soket, kullanici);
  auto cevap = MetinOku(soket);
  return cevap && !cevap->empty() ? cevap : std::nullopt;
}

}  // namespace

Isci::Isci(const std::function<Bitis(std::size_t)>& is, SifreSorucu sifre) : sifre_(std::move(sifre)) {
  int uclar[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, uclar) != 0)
    throw KomutHatasi{"Süreç başlatılamadı: " + SistemHatasi(errno)};
  soket_ = DosyaTutamagi(uclar[0]);
  DosyaTutamagi iscininki(uclar[1]);
  std::cout.flush();
  no_ = ::fork();
  if (no_ < 0) throw KomutHatasi{"Süreç başlatılamadı: " + SistemHatasi(errno)};
  if (no_ == 0) Calis(iscininki.No(), is);
  sahipUclari.push_back(soket_.No());
}

Isci::~Isci() {
  std::erase(sahipUclari, soket_.No());
  soket_.Kapat();
  if (no_ > 0) OlumSozu();
}

void Isci::Calis(int soket, const std::function<Bitis(std::size_t)>& is) const {
  for (const int sinyal : KesenSinyaller) std::signal(sinyal, SIG_IGN);
  ::close(soket_.No());
  for (const int uc : sahipUclari) ::close(uc);
  if (::dup2(cikti_->No(), STDOUT_FILENO) < 0 || ::dup2(mesaj_->No(), STDERR_FILENO) < 0) ::_exit(1);
  SifreSorucuKoy(
      [soket](const std::string& sunucu, const std::string& kullanici) { return SahibeSor(soket, sunucu, kullanici); });
  for (std::uint32_t sira = 0; SokettenOku(soket, &sira, sizeof sira);) {
    const Bitis bitis = is(sira);
    std::cout.flush();
    SoketeYaz(soket, &bitis, 1);
  }
  ::_exit(0);
}

void Isci::Ver(std::size_t sira) {
  if (cikti_.use_count() == 1) cikti_->Bosalt();
  if (mesaj_.use_count() == 1) mesaj_->Bosalt();
  ciktiBasi_ = cikti_->Boy();
  mesajBasi_ = mesaj_->Boy();
  isi_ = sira;
  const auto no = std::uint32_t(sira);
  SoketeYaz(soket_.No(), &no, sizeof no);
}

void Isci::SifreyiSoyle() const {
  const auto sunucu = MetinOku(soket_.No());
  const auto kullanici = MetinOku(soket_.No());
  if (sunucu && kullanici) MetinGonder(soket_.No(), sifre_(*sunucu, *kullanici).value_or(""));
}

std::optional<Isci::Sonuc> Isci::SonucuAl() {
  Sonuc sonuc;
  char soz = 0;
  if (!SokettenOku(soket_.No(), &soz, 1)) {
    sonuc.olum = OlumSozu();
  } else if (soz == SifreSorusu) {
    SifreyiSoyle();
    return std::nullopt;
  } else {
    sonuc.bitis = Bitis(soz);
  }
  isi_.reset();
  const auto parca = [](const std::shared_ptr<Tampon>& tampon, std::size_t bas) {
    const std::size_t son = tampon->Boy();
    return son > bas ? TamponParcasi{tampon, bas, son} : TamponParcasi();
  };
  sonuc.cikti = parca(cikti_, ciktiBasi_);
  sonuc.mesaj = parca(mesaj_, mesajBasi_);
  return sonuc;
}

void Isci::Oldur() const {
  if (no_ > 0) ::kill(no_, SIGKILL);
}

std::string Isci::OlumSozu() {
  int durum = 0;
  while (::waitpid(no_, &durum, 0) < 0 && errno == EINTR) {
  }
  no_ = -1;
  if (WIFSIGNALED(durum)) return "Bu şirkette çalışan süreç sonlandı (sinyal " + std::to_string(WTERMSIG(durum)) + ")";
  return "Bu şirkette çalışan süreç sonlandı (durum " + std::to_string(WEXITSTATUS(durum)) + ")";
}

KesmeNobeti::KesmeNobeti() {
  kesmeSayisi = 0;
  const sigset_t kume = KesenKume();
  ::sigprocmask(SIG_BLOCK, &kume, &eskiMaske);
  struct sigaction davranis {};
  davranis.sa_handler = KesmeGeldi;
  for (std::size_t i = 0; i < KesenSinyaller.size(); ++i) {
    ::sigaction(KesenSinyaller[i], nullptr, &eskiDavranis[i]);
    if (eskiDavranis[i].sa_handler != SIG_IGN) ::sigaction(KesenSinyaller[i], &davranis, nullptr);
  }
}

KesmeNobeti::~KesmeNobeti() {
  for (std::size_t i = 0; i < KesenSinyaller.size(); ++i) ::sigaction(KesenSinyaller[i], &eskiDavranis[i], nullptr);
  ::sigprocmask(SIG_SETMASK, &eskiMaske, nullptr);
}

int KesmeNobeti::Sayi() {
  return kesmeSayisi;
}
int KesmeNobeti::Sinyal() {
  return sonKesme;
}

void IscileriBekle(const std::vector<std::unique_ptr<Isci>>& isciler) {
  std::vector<pollfd> beklenen;
  for (const auto& isci : isciler) beklenen.push_back({.fd = isci->Soket(), .events = POLLIN, .revents = 0});
  ::ppoll(beklenen.data(), beklenen.size(), nullptr, &eskiMaske);
}

}  // namespace belvani::cli
