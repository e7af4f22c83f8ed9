// The real program under a real X server: login, a person typed into a card, exit, all by keys; then the store is read.
#include <poll.h>
#include <sstream>
#include <sys/prctl.h>
#include <thread>

#include "app/ekranlar.h"
#include "app/menuharfi.h"
#include "core/dosya.h"
#include "core/session/sirketyedegi.h"
#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "surec.h"

namespace belvani::test {
namespace {

using namespace std::chrono_literals;

int Calistir(std::vector<const char*> degerler) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // nothing outlives the test
  degerler.push_back(nullptr);
  ::execvp(degerler[0], const_cast<char* const*>(degerler.data()));
  return 127;
}

// A display of its own, with the Turkish keyboard.
class XSunucusu {
 public:
  XSunucusu() {
    int uc[2];
    if (::pipe(uc) != 0 || (surec_ = ::fork()) < 0) std::abort();
    if (surec_ == 0) {
      const std::string yaz = std::to_string(uc[1]);
      // Without -noreset it would start anew, deaf for a moment, whenever the last program has gone.
      ::_exit(
          Calistir({"Xvfb", "-displayfd", yaz.c_str(), "-noreset", "-screen", "0", "1366x768x24", "-nolisten", "tcp"}));
    }
    ::close(uc[1]);
    pollfd hazir{uc[0], POLLIN, 0};
    for (char harf; ::poll(&hazir, 1, 10'000) == 1 && ::read(uc[0], &harf, 1) == 1 && harf != '\n';) no_ += harf;
    ::close(uc[0]);
    if (no_.empty()) throw std::runtime_error("Xvfb does not start");
    Komut("setxkbmap tr");
  }
  ~XSunucusu() {
    ::kill(surec_, SIGTERM);  // it takes its socket away
    ::waitpid(surec_, nullptr, 0);
  }

  std::string Ad() const { return ":" + no_; }
  // What the command prints; none takes longer than ten seconds.
  std::string Komut(const std::string& komut) const {
    FILE* boru = ::popen(("DISPLAY=" + Ad() + " LC_ALL=C.UTF-8 timeout 10 " + komut + " 2>/dev/null").c_str(), "r");
    std::string cikti;
    for (int harf; (harf = std::fgetc(boru)) != EOF;) cikti += char(harf);
    ::pclose(boru);
    return cikti;
  }
  // Each of the texts and Enter after it.
  void Yaz(const std::vector<std::string>& metinler) const {
    std::string komut = "xdotool";
    for (const std::string& metin : metinler)
      komut += (metin.empty() ? "" : " type --delay 15 --args 1 '" + metin + "'") + " key --delay 15 Return";
    Komut(komut);
  }
  void Bas(const std::string& tuslar) const { Komut("xdotool key --delay 40 " + tuslar); }
  // Windows whose title matches; all that are seen for "".
  std::vector<std::string> Pencereler(const std::string& baslik) const {
    std::istringstream nolar(Komut("xdotool search --onlyvisible --name '" + baslik + "'"));
    return {std::istream_iterator<std::string>(nolar), {}};
  }

 private:
  pid_t surec_ = 0;
  std::string no_;
};

bool Olana(const std::function<bool()>& oldu, std::chrono::milliseconds sure = 10s) {
  for (const auto son = std::chrono::steady_clock::now() + sure; std::chrono::steady_clock::now() < son;) {
    if (oldu()) return true;
    std::this_thread::sleep_for(50ms);
  }
  return false;
}

// The letter of a caption in its menu, as a key of xdotool.
std::string MenuTusu(const QStringList& basliklar, std::string_view baslik) {
  for (const QString& harfli : HarfliBasliklar(basliklar))
    if (QString(harfli).remove('&') == Yazi(baslik))
      return "U" + QString::number(harfli[harfli.indexOf('&') + 1].toLower().unicode(), 16)
                       .rightJustified(4, '0')
                       .toStdString();
  return "";
}

void MenudenSec(const XSunucusu& x, std::string_view menu, std::string_view giris) {
  QStringList menuler, girisler;
  for (const EkranKaydi& e : Ekranlar()) {
    const QString ust = Yazi(e.menu).section('/', 0, 0);
    if (!menuler.contains(ust)) menuler += ust;
    if (e.menu == menu) girisler += Yazi(e.baslik);
  }
  const std::size_t acik = x.Pencereler("").size();
  // Right after the window has come the program may not hear yet.
  ASSERT_TRUE(Olana([&] {
    x.Bas("alt+" + MenuTusu(menuler, menu));
    return Olana([&] { return x.Pencereler("").size() > acik; }, 1s);
  })) << menu;
  x.Bas(MenuTusu(girisler, giris));
  ASSERT_TRUE(Olana([&] { return x.Pencereler("").size() <= acik; })) << giris;
  std::this_thread::sleep_for(300ms);
}

// The window with this title comes up and gets the keyboard; there is no window manager that would give it.
void PencereyiBekle(const XSunucusu& x, const std::string& baslik) {
  ASSERT_TRUE(Olana([&] { return !x.Pencereler(baslik).empty(); })) << baslik << " does not come up";
  x.Komut("xdotool windowfocus --sync " + x.Pencereler(baslik).front());
}

std::optional<Sicil> DepodakiKart(const std::string& dataPath) {
  Oturum o;
  o.DataPath = dataPath;
  if (!SirketAc(o, "ORNEK")) return std::nullopt;
  return KartBul(o, "901");
}

TEST(Duman, TheProgramTakesAPersonAndLeaves) {
  if (std::system("command -v Xvfb >/dev/null") != 0) GTEST_SKIP() << "Xvfb is not installed (tools/deps.sh)";
  ASSERT_EQ(std::system("command -v xdotool setxkbmap >/dev/null"), 0);
  const GeciciDizin dizin;
  const std::string veri = dizin.Yol() + "veri/", ayar = dizin.Yol() + "makine.ini";
  ASSERT_EQ(
      std::system(("sh '" + KaynakYolu("tools/ornek.sh") + "' '" BELVANI_CLI "' '" + veri + "' >/dev/null").c_str()),
      0);
  ASSERT_TRUE(DosyaYaz(ayar, "[personel]\nPrgPath=" + dizin.Yol() + "\nDataPath=" + veri + "\n"));
  const XSunucusu x;
  Surec program([&] {
    for (const auto& [ad, deger] : {std::pair<const char*, std::string>{"DISPLAY", x.Ad()},
                                    {"QT_QPA_PLATFORM", "xcb"},
                                    {"LC_ALL", "C.UTF-8"},
                                    {"BELVANI_MAKINE_AYAR", ayar},
                                    {"BELVANI_KULLANICI_DIZIN", dizin.Yol() + "kullanici"}})
      ::setenv(ad, deger.c_str(), 1);
    return Calistir({"timeout", "25", BELVANI_PROGRAM});
  });

  ASSERT_NO_FATAL_FAILURE(PencereyiBekle(x, "^Belvani$"));
  x.Yaz({"ornek", "ornek", "ornek"});
  ASSERT_NO_FATAL_FAILURE(PencereyiBekle(x, "Aralık"));
  ASSERT_NO_FATAL_FAILURE(MenudenSec(x, "Özlük", "Personel Kartları"));
  x.Yaz({"901", "Işıl", "Özgür", "", "1234", "02", "Net", "2500.5", "", " ", "", "05032005"});
  x.Bas("F5");
  std::optional<Sicil> kart;
  EXPECT_TRUE(Olana([&] { return (kart = DepodakiKart(veri)).has_value(); }, 5s));
  x.Bas("Escape");
  ASSERT_NO_FATAL_FAILURE(MenudenSec(x, "Firma", "Çıkış"));
  EXPECT_EQ(program.Bekle(), 0);
  const auto yedekler = SirketYedekleri(veri, "ORNEK");
  ASSERT_EQ(yedekler.size(), 1u) << "made at leaving";
  EXPECT_EQ(yedekler.front().ad.tur, YedekTuru::Gunluk);

  kart = DepodakiKart(veri);
  ASSERT_TRUE(kart.has_value());
  EXPECT_EQ(kart->adi + " " + kart->soyadi, "Işıl Özgür");
  EXPECT_EQ(kart->ucret, Tutar(2500.5));
  EXPECT_EQ(kart->girtar, Tarih(2005, 3, 5));
}

}  // namespace
}  // namespace belvani::test
