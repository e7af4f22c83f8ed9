#include "cli/sifresor.h"

#include <iostream>
#include <termios.h>
#include <unistd.h>

#include "core/adlar.h"

namespace belvani::cli {
namespace {

// Without echo, and with Ctrl+C as an ordinary letter: a program that ends here would leave a terminal that shows
// nothing.
class SessizTerminal {
 public:
  SessizTerminal() {
    acik_ = ::tcgetattr(STDIN_FILENO, &eski_) == 0;
    termios sessiz = eski_;
    sessiz.c_lflag &= ~tcflag_t(ECHO | ISIG | ICANON);
    sessiz.c_cc[VMIN] = 1;
    sessiz.c_cc[VTIME] = 0;
    if (acik_) ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &sessiz);
  }
  ~SessizTerminal() {
    if (acik_) ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &eski_);
  }
  SessizTerminal(const SessizTerminal&) = delete;
  SessizTerminal& operator=(const SessizTerminal&) = delete;

  cc_t Tus(int hangi) const { return eski_.c_cc[hangi]; }

 private:
  termios eski_{};
  bool acik_ = false;
};

// The last letter, with all bytes of it.
void SonHarfiSil(std::string& metin) {
  constexpr unsigned char devam = 0x80, ustBitler = 0xC0;
  while (!metin.empty() && (static_cast<unsigned char>(metin.back()) & ustBitler) == devam) metin.pop_back();
  if (!metin.empty()) metin.pop_back();
}

std::optional<std::string> SatirOku() {
  const SessizTerminal terminal;
  std::string satir;
  char c = 0;
  while (::read(STDIN_FILENO, &c, 1) == 1) {
    const auto tus = static_cast<cc_t>(c);
    if (c == '\n' || c == '\r') return satir;
    if (tus == terminal.Tus(VINTR) || (tus == terminal.Tus(VEOF) && satir.empty())) return std::nullopt;
    if (tus == terminal.Tus(VERASE) || c == '\b')
      SonHarfiSil(satir);
    else if (tus == terminal.Tus(VKILL))
      satir.clear();
    else
      satir += c;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> TerminaldeSifreSor(const std::string& sunucu, const std::string& kullanici) {
  if (::isatty(STDIN_FILENO) != 1) return std::nullopt;
  std::cerr << "Sunucu şifresi (" << TerminalMetni(kullanici + "@" + sunucu) << "): " << std::flush;
  auto sifre = SatirOku();
  std::cerr << '\n';
  return sifre;
}

}  // namespace belvani::cli
