#include "sunucu/aktarici.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <fcntl.h>
#include <list>
#include <poll.h>
#include <stdexcept>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

#include "sunucu/turlar.h"

namespace belvani::test {
namespace {

using Saat = std::chrono::steady_clock;

constexpr const char* SoketAdi = ".s.PGSQL.5432";
constexpr std::size_t EnCokBekleyen = 1u << 20;  // bytes of one direction; the sender waits beyond them

sockaddr_un Soket(const std::string& dizin) {
  sockaddr_un adres{};
  adres.sun_family = AF_UNIX;
  const std::string yol = dizin + (dizin.ends_with('/') ? "" : "/") + SoketAdi;
  if (yol.size() >= sizeof adres.sun_path) throw std::runtime_error("a socket's path is too long: " + yol);
  std::ranges::copy(yol, adres.sun_path);
  return adres;
}

// One direction of a connection: what was read waits until its time has come.
struct Yon {
  struct Parca {
    Saat::time_point vakti;
    std::string baytlar;
  };
  int okunan, yazilan;
  std::deque<Parca> bekleyen = {};
  std::size_t boy = 0;
  bool bitti = false;  // the sender says no more
  bool dolu = false;   // the receiver takes nothing just now

  bool Okuyabilir() const { return !bitti && boy < EnCokBekleyen; }

  // False when the connection has broken.
  bool Oku(Saat::duration sure, std::string_view& parca) {
    char tampon[65536];
    const ssize_t n = ::read(okunan, tampon, sizeof tampon);
    if (n < 0) return errno == EAGAIN || errno == EINTR;
    if (n == 0) {
      bitti = true;
      return true;
    }
    bekleyen.push_back({Saat::now() + sure, std::string(tampon, std::size_t(n))});
    boy += std::size_t(n);
    parca = bekleyen.back().baytlar;
    return true;
  }
  bool Yaz(Saat::time_point simdi) {
    dolu = false;
    while (!bekleyen.empty() && bekleyen.front().vakti <= simdi) {
      std::string& baytlar = bekleyen.front().baytlar;
      const ssize_t n = ::send(yazilan, baytlar.data(), baytlar.size(), MSG_NOSIGNAL);
      if (n < 0) return (dolu = errno == EAGAIN) || errno == EINTR;
      boy -= std::size_t(n);
      baytlar.erase(0, std::size_t(n));
      if (baytlar.empty()) bekleyen.pop_front();
    }
    if (bitti && bekleyen.empty()) ::shutdown(yazilan, SHUT_WR);
    return true;
  }
};

struct Baglanti {
  DosyaTutamagi istemci, sunucu;
  Yon gidis{istemci.No(), sunucu.No()}, donus{sunucu.No(), istemci.No()};
  TurSayaci sayac = {};

  Baglanti(DosyaTutamagi i, DosyaTutamagi s) : istemci(std::move(i)), sunucu(std::move(s)) {}
  // What has come goes on its way; `turlar` counts what the client asks for. False: the connection is over.
  bool Aktar(Saat::duration sure, std::atomic<int>& turlar) {
    std::string_view gelen;
    if (gidis.Okuyabilir()) {
      if (!gidis.Oku(sure, gelen)) return false;
      turlar += sayac.Say(gelen);
    }
    if (donus.Okuyabilir() && !donus.Oku(sure, gelen)) return false;
    const auto simdi = Saat::now();
    if (!gidis.Yaz(simdi) || !donus.Yaz(simdi)) return false;
    return !gidis.bitti || !donus.bitti || !gidis.bekleyen.empty() || !donus.bekleyen.empty();
  }
};

}  // namespace

struct Aktarici::Ic {
  sockaddr_un hedef;
  DosyaTutamagi dinleyen;
  std::list<Baglanti> baglantilar = {};

  Ic(const std::string& dizin, const std::string& sunucuDizini)
      : hedef(Soket(sunucuDizini)), dinleyen(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
    const sockaddr_un adres = Soket(dizin);
    if (::bind(dinleyen.No(), reinterpret_cast<const sockaddr*>(&adres), sizeof adres) != 0 ||
        ::listen(dinleyen.No(), 128) != 0)
      throw std::runtime_error("the relay cannot listen in " + dizin);
  }

  // A server that is not there refuses; so does the relay, by closing.
  void Kabul() {
    DosyaTutamagi istemci(::accept4(dinleyen.No(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    DosyaTutamagi sunucu(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!istemci.Acik() || ::connect(sunucu.No(), reinterpret_cast<const sockaddr*>(&hedef), sizeof hedef) != 0) return;
    ::fcntl(sunucu.No(), F_SETFL, O_NONBLOCK);
    baglantilar.emplace_back(std::move(istemci), std::move(sunucu));
  }

  // Sleeps until something comes, can go, or its time has come.
  std::vector<pollfd> Bekle(int uyandiran, bool sus) {
    std::vector<pollfd> olaylar{{uyandiran, POLLIN, 0}};
    auto vakit = Saat::now() + std::chrono::seconds(1);
    if (!sus) {
      olaylar.push_back({dinleyen.No(), POLLIN, 0});
      for (Baglanti& b : baglantilar)
        for (Yon* y : {&b.gidis, &b.donus}) {
          olaylar.push_back({y->Okuyabilir() ? y->okunan : -1, POLLIN, 0});
          olaylar.push_back({y->dolu ? y->yazilan : -1, POLLOUT, 0});
          if (!y->dolu && !y->bekleyen.empty()) vakit = std::min(vakit, y->bekleyen.front().vakti);
        }
    }
    const auto sure = std::max(Saat::duration::zero(), vakit - Saat::now());
    const auto nano = std::chrono::duration_cast<std::chrono::nanoseconds>(sure).count();
    const timespec ts{nano / 1'000'000'000, nano % 1'000'000'000};
    ::ppoll(olaylar.data(), olaylar.size(), &ts, nullptr);
    return olaylar;
  }
};

Aktarici::Aktarici(const std::string& sunucuDizini, Sure tekYon)
    : tekYon_(tekYon.count()),
      uyandiran_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      ic_(std::make_unique<Ic>(dizin_.Yol(), sunucuDizini)),
      is_([this] { Isle(); }) {}

Aktarici::~Aktarici() {
  bitti_ = true;
  Uyandir();
  is_.join();
}

std::string Aktarici::Adres(const std::string& veritabani) const {
  const std::string dizin = dizin_.Yol();
  return "postgresql:///" + veritabani + "?host=" + dizin.substr(0, dizin.size() - 1);
}

void Aktarici::Uyandir() {
  const std::uint64_t bir = 1;
  if (::write(uyandiran_.No(), &bir, sizeof bir) < 0) return;  // it is awake
}

void Aktarici::Kes() {
  kes_ = true;
  Uyandir();
  kes_.wait(true);
}

void Aktarici::Sustur(bool sus) {
  sus_ = sus;
  Uyandir();
}

void Aktarici::Isle() {
  while (!bitti_) {
    const auto olaylar = ic_->Bekle(uyandiran_.No(), sus_);
    std::uint64_t n = 0;
    if (::read(uyandiran_.No(), &n, sizeof n) < 0 && errno != EAGAIN) return;
    if (kes_) {
      ic_->baglantilar.clear();
      kes_ = false;
      kes_.notify_all();
      continue;
    }
    if (sus_) continue;
    const Sure sure(tekYon_);
    std::erase_if(ic_->baglantilar, [&](Baglanti& b) { return !b.Aktar(sure, turlar_); });
    if (olaylar.size() > 1 && olaylar[1].revents != 0) ic_->Kabul();
  }
}

}  // namespace belvani::test
