// belvani-cli: the program without its windows. Exit status 0; 1 when a command fails, with the reason on standard
// error; 2 when it was called wrongly.
#include <csignal>
#include <iostream>
#include <sstream>

#include "cli/ortak.h"
#include "cli/sifresor.h"
#include "core/adlar.h"
#include "core/sayi.h"
#include "core/session/oturum.h"
#include "core/sunucuadresi.h"

namespace belvani::cli {
namespace {

constexpr int Basarisiz = 1;
constexpr int YanlisKullanim = 2;

std::string Degistir(std::string metin, std::string_view eski, std::string_view yeni) {
  if (const auto i = metin.find(eski); i != std::string::npos) metin.replace(i, eski.size(), yeni);
  return metin;
}

// Words of the library that have no label: the type before a list of choices, and how many values an option takes,
// which the names of the values say.
class TurkceBicim final : public CLI::Formatter {
 public:
  std::string make_option_opts(const CLI::Option* secenek) const override {
    return Degistir(Degistir(CLI::Formatter::make_option_opts(secenek), "TEXT:", "METİN:"), " x 2", "");
  }
};

void TurkceYap(CLI::App& app) {
  auto bicim = std::make_shared<TurkceBicim>();
  const std::pair<const char*, const char*> sozcukler[] = {{"Usage", "Kullanım"},
                                                           {"OPTIONS", "SEÇENEKLER"},
                                                           {"SUBCOMMAND", "KOMUT"},
                                                           {"SUBCOMMANDS", "KOMUTLAR"},
                                                           {"REQUIRED", "(gerekli)"},
                                                           {"TEXT", "METİN"},
                                                           {"INT", "SAYI"},
                                                           {"Positionals", "Değerler"},
                                                           {"Excludes", "birlikte verilmez"},
                                                           {"Needs", "gerektirir"},
                                                           {"UINT", "SAYI"},
                                                           {"FLOAT", "SAYI"},
                                                           {"Env", "ortam"}};
  for (const auto& [ingilizce, turkce] : sozcukler) bicim->label(ingilizce, turkce);
  bicim->column_width(28);
  app.formatter(bicim);
  app.option_defaults()->group("Seçenekler");
}

template <class Tur>
bool TuruMu(const CLI::ParseError& h) {
  return dynamic_cast<const Tur*>(&h) != nullptr;
}

int SayiArdindan(const std::string& metin, const std::string& sozcuk) {
  const auto yer = metin.find(sozcuk);
  return yer == std::string::npos ? 0 : BastakiSayi(std::string_view(metin).substr(yer + sozcuk.size()));
}

// Of the library's texts that tell how many values an option wants and how many it got.
std::string DegerSayisiKusuru(const std::string& ayrinti) {
  const auto bas = ayrinti.starts_with('-') ? 0 : std::min(ayrinti.find(" -") + 1, ayrinti.size());
  const std::string secenek = ayrinti.substr(bas, ayrinti.find_first_of(" :,", bas) - bas);
  const auto gecer = [&](const char* soz) { return ayrinti.find(soz) != std::string::npos; };
  if (gecer("flag override")) return secenek + " seçeneği değer almaz";
  const bool cok = gecer("At Most") || SayiArdindan(ayrinti, ", got ") > SayiArdindan(ayrinti, "exactly ");
  return secenek + (cok ? " seçeneği birden çok verilmiş" : " seçeneğinin değeri verilmemiş");
}

// The library's fault in Turkish: what was wrong, with the word that was.
std::string KullanimKusuru(const CLI::ParseError& h) {
  const std::string ayrinti = h.what();
  if (TuruMu<CLI::RequiredError>(h)) return Degistir(ayrinti, " is required", " verilmemiş");
  if (TuruMu<CLI::ExtrasError>(h))
    return "tanınmayan değer:" + ayrinti.substr(std::min(ayrinti.size(), ayrinti.find(':') + 1));
  if (TuruMu<CLI::ExcludesError>(h)) return Degistir(ayrinti, " excludes ", " ile birlikte verilemez: ");
  if (TuruMu<CLI::RequiresError>(h)) return Degistir(ayrinti, " requires ", " için bu da verilmeli: ");
  if (TuruMu<CLI::ArgumentMismatch>(h)) return DegerSayisiKusuru(ayrinti);
  if (TuruMu<CLI::ValidationError>(h)) return Degistir(ayrinti, " not in ", " olamaz, şunlardan biri olmalı: ");
  if (TuruMu<CLI::ConversionError>(h))
    return "okunamayan değer: " + ayrinti.substr(std::min(ayrinti.size(), ayrinti.find(':') + 2));
  return "okunamayan komut satırı";
}

int YanlisKullanimiBildir(const std::string& kusur) {
  std::cerr << "Yanlış kullanım: " << TerminalMetni(kusur)
            << "\nYardım için: belvani-cli --help, belvani-cli KOMUT --help\n";
  return YanlisKullanim;
}

int Yurut(CLI::App& app, int argc, char** argv) try {
  app.parse(argc, argv);
  return app.get_subcommands().empty() ? YanlisKullanimiBildir("komut verilmemiş") : 0;
} catch (const CLI::ParseError& h) {
  if (h.get_exit_code() != 0) return YanlisKullanimiBildir(KullanimKusuru(h));
  std::ostringstream yardim;  // or the version
  app.exit(h, yardim, yardim);
  Yaz(yardim.str());
  return 0;
}

// In the order of the help.
constexpr KomutEkle Komutlar[] = {
    SirketKomutlari,     // companies
    YedekKomutlari,      // backups, the earlier state of a month
    DenetleKomutu,       // what a store holds, mended
    PaylasKomutu,        // for whom a store is laid out
    SunucuKomutlari,     // data on a server: lay out, grant, move
    ParametreKomutlari,  // the law's figures
    AktarimKomutlari,    // cards and lists out of files
    KisiKomutlari,       // people in bulk, and into other companies
    HazirlaKomutlari,    // the month's payroll
    DevirKomutlari,      // to the next month and year, past months, accounts
    HesaplaKomutu,       // one person out of JSON
    BelgeKomutlari,      // papers of the registry
    KidemKomutu,         // severance and notice of one person
    BildirgeKomutu,      // the monthly declaration
    BildirimKomutlari,   // notices of a person to the authorities
    ViziteKomutu,        // medical papers of a person
    MuhasebeKomutlari,   // the books: voucher, posting, stores to start with
    RaporKomutu,         // designed reports
};

int Calistir(int argc, char** argv) {
  Genel genel;
  SifreSorucuKoy(TerminaldeSifreSor);
  CLI::App app("Belvani: personel ve bordro programı, toplu işler için komutlar", "belvani-cli");
  TurkceYap(app);
  app.set_help_flag("-h,--help", "bu yardımı gösterir");
  app.add_option("--veri", genel.veri,
                 "data dizini ya da sunucu adresi: postgresql://sunucu/belvani (verilmezse kurulumunki)");
  app.require_subcommand(0, 1);
  app.set_version_flag("--version", "Belvani " + VersiyonMetni(ProgramVersiyonu()), "programın sürümünü gösterir");
  for (const KomutEkle ekle : Komutlar) ekle(app, genel);
  for (CLI::App* komut : app.get_subcommands({})) {
    komut->group("Komutlar");
    komut->get_help_ptr()->group("Seçenekler");
  }
  int durum = 0;
  if (!HatayiSoyleyerek([&] { durum = Yurut(app, argc, argv); })) return Basarisiz;
  return durum;
}

}  // namespace
}  // namespace belvani::cli

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is told, not died of
  return belvani::cli::Calistir(argc, argv);
}
