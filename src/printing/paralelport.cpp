#include "printing/paralelport.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/lp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace belvani {
namespace {

constexpr int BeklemeMs = 100;  // for a printer whose buffer is full

}  // namespace

int PortNo(std::string_view ad) {
  const bool port = ad.size() == 5 && ad.starts_with("LPT") && ad.ends_with(":");
  const int no = port ? ad[3] - '1' : -1;
  return no >= 0 && no <= EnCokPort ? no : -1;
}

std::string PortAdi(int no) {
  return "LPT" + std::to_string(no + 1) + ":";
}

LpPortu::LpPortu(std::string onek) : onek_(std::move(onek)) {
  acik_.fill(-1);
}

LpPortu::~LpPortu() {
  for (const int no : acik_)
    if (no >= 0) ::close(no);
}

bool LpPortu::Var(int no) {
  return no >= 0 && no <= EnCokPort && ::access((onek_ + std::to_string(no)).c_str(), F_OK) == 0;
}

int LpPortu::Ac(int no) {
  if (no < 0 || no > EnCokPort) return -1;
  int& acik = acik_[std::size_t(no)];
  if (acik < 0) acik = ::open((onek_ + std::to_string(no)).c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
  return acik;
}

std::uint8_t LpPortu::DosPrint(int no, std::uint8_t bayt) {
  const int acik = Ac(no);
  if (acik < 0) return 8;
  if (::write(acik, &bayt, 1) == 1) return port::Alindi;
  if (errno == EAGAIN || errno == EINTR) {
    pollfd bekle{acik, POLLOUT, 0};
    ::poll(&bekle, 1, BeklemeMs);
    return GetStatus(no) & ~port::Alindi;
  }
  const std::uint8_t durum = GetStatus(no) & ~port::Alindi;
  return durum != 0 ? durum : 8;
}

// The line of an error is inverted: it rests high.
std::uint8_t LpPortu::GetStatus(int no) {
  const int acik = Ac(no);
  if (acik < 0) return 8;
  int hat = 0;
  if (::ioctl(acik, LPGETSTATUS, &hat) != 0) return port::Alindi;
  std::uint8_t durum = 0;
  if (hat & LP_PSELECD) durum |= port::Alindi;
  if (hat & LP_POUTPA) durum |= port::KagitYok;
  if (!(hat & LP_PERRORP)) durum |= 8;
  return durum;
}

}  // namespace belvani
