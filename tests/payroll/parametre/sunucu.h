// A web server for one test: plain sockets on 127.0.0.1, answers by path, one connection at a time.
#pragma once

#include <atomic>
#include <cstdlib>
#include <map>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace belvani::test {

// An answer of "HTTP/1.1 200 OK" with its length.
inline std::string Yanit(const std::string& govde, const std::string& durum = "200 OK", const std::string& ek = "") {
  return "HTTP/1.1 " + durum + "\r\nContent-Length: " + std::to_string(govde.size()) + "\r\n" + ek +
         "Connection: close\r\n\r\n" + govde;
}

class Sunucu {
 public:
  // The whole answers by path; an empty answer never comes, an unknown path gives 404.
  explicit Sunucu(std::map<std::string, std::string> yanitlar) : yanitlar_(std::move(yanitlar)) {
    setenv("no_proxy", "127.0.0.1", 1);
    dinleyen_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in adres{};
    adres.sin_family = AF_INET;
    adres.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t boy = sizeof adres;
    auto* ham = reinterpret_cast<sockaddr*>(&adres);
    if (::bind(dinleyen_, ham, boy) != 0 || ::listen(dinleyen_, 8) != 0 || ::getsockname(dinleyen_, ham, &boy) != 0)
      std::abort();
    kapi_ = ntohs(adres.sin_port);
    is_ = std::thread([this] { Calis(); });
  }
  ~Sunucu() {
    bitti_ = true;
    is_.join();
    ::close(dinleyen_);
  }
  Sunucu(const Sunucu&) = delete;
  Sunucu& operator=(const Sunucu&) = delete;

  std::string Kok() const { return "http://127.0.0.1:" + std::to_string(kapi_); }

 private:
  // False when the test ends before there is anything to read.
  bool Bekle(int no) const {
    pollfd p{no, POLLIN, 0};
    while (!bitti_)
      if (::poll(&p, 1, 10) > 0) return true;
    return false;
  }

  void Calis() {
    while (Bekle(dinleyen_)) {
      const int no = ::accept4(dinleyen_, nullptr, nullptr, SOCK_CLOEXEC);
      if (no < 0) continue;
      Cevapla(no);
      ::close(no);
    }
  }

  void Cevapla(int no) const {
    std::string istek;
    char blok[4096];
    while (istek.find("\r\n\r\n") == std::string::npos) {
      if (!Bekle(no)) return;
      const ssize_t n = ::recv(no, blok, sizeof blok, 0);
      if (n <= 0) return;
      istek.append(blok, std::size_t(n));
    }
    const auto bas = istek.find(' ') + 1;
    const auto yanit = yanitlar_.find(istek.substr(bas, istek.find(' ', bas) - bas));
    std::string metin = yanit == yanitlar_.end() ? Yanit("yok", "404 Not Found") : yanit->second;
    if (metin.empty()) {
      Bekle(no);  // until the caller gives up
      return;
    }
    for (std::size_t giden = 0; giden < metin.size() && !bitti_;) {
      const ssize_t n = ::send(no, metin.data() + giden, metin.size() - giden, MSG_NOSIGNAL);
      if (n <= 0) return;
      giden += std::size_t(n);
    }
  }

  std::map<std::string, std::string> yanitlar_;
  int dinleyen_ = -1;
  int kapi_ = 0;
  std::atomic<bool> bitti_ = false;
  std::thread is_;
};

}  // namespace belvani::test
