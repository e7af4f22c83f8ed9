// The parallel port of a dot-matrix printer, byte by byte, with the printer's status lines.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace belvani {

namespace port {
constexpr std::uint8_t Alindi = 16;    // selected; after a byte: it was taken
constexpr std::uint8_t KagitYok = 32;  // out of paper
constexpr std::uint8_t Hata = 8 | 1;   // any of these: error
}  // namespace port

constexpr int EnCokPort = 4;

// The number of a port by its name, "LPT1:" -> 0; -1 for anything else. And back.
int PortNo(std::string_view ad);
std::string PortAdi(int no);

class ParalelPort {
 public:
  virtual ~ParalelPort() = default;
  virtual bool Var(int no) = 0;                                  // whether the computer has this port
  virtual std::uint8_t DosPrint(int no, std::uint8_t bayt) = 0;  // sends a byte; the status after it
  virtual std::uint8_t GetStatus(int no) = 0;
};

// The ports of this computer: /dev/lp0 to /dev/lp4. One that is not there has the status of an error.
class LpPortu final : public ParalelPort {
 public:
  explicit LpPortu(std::string onek = "/dev/lp");  // the number follows
  ~LpPortu() override;
  LpPortu(const LpPortu&) = delete;
  LpPortu& operator=(const LpPortu&) = delete;

  bool Var(int no) override;
  std::uint8_t DosPrint(int no, std::uint8_t bayt) override;
  std::uint8_t GetStatus(int no) override;

 private:
  int Ac(int no);

  std::string onek_;
  std::array<int, EnCokPort + 1> acik_;
};

}  // namespace belvani
