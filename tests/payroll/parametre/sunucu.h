// A web server for one test: plain sockets on 127.0.0.1, answers by path, one connection at a time.
#pragma once

#include <cstdlib>
#include <map>
#include <netinet/in.h>
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
    adres_.sin_family = AF_INET;
    adres_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t boy = sizeof adres_;
    auto* ham = reinterpret_cast<sockaddr*>(&adres_);
    if (::bind(dinleyen_, ham, boy) != 0 || ::listen(dinleyen_, 8) != 0 || ::getsockname(dinleyen_, ham, &boy) != 0)
      std::abort();
    is_ = std::thread([this] { Calis(); });
  }
  ~Sunucu() {
    ::shutdown(dinleyen_, SHUT_RDWR);  // ends the wait for a caller
    is_.join();
    ::close(dinleyen_);
  }
  Sunucu(const Sunucu&) = delete;
  Sunucu& operator=(const Sunucu&) = delete;

  std::string Kok() const { return "http://127.0.0.1:" + std::to_string(ntohs(adres_.sin_port)); }

 private:
  void Calis() {
    for (int no = 0; (no = ::accept4(dinleyen_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0; ::close(no)) Cevapla(no);
  }

  void Cevapla(int no) const {
    char istek[4096] = {};  // a caller's few lines come in one piece
    if (::recv(no, istek, sizeof istek - 1, 0) <= 0) return;
    const std::string yol = std::string(istek).substr(4);  // behind "GET "
    const auto yanit = yanitlar_.find(yol.substr(0, yol.find(' ')));
    const std::string metin = yanit == yanitlar_.end() ? Yanit("yok", "404 Not Found") : yanit->second;
    if (metin.empty())
      ::recv(no, istek, 1, 0);  // until the caller gives up
    else
      ::send(no, metin.data(), metin.size(), MSG_NOSIGNAL);
  }

  std::map<std::string, std::string> yanitlar_;
  int dinleyen_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in adres_{};
  std::thread is_;
};

}  // namespace belvani::test
