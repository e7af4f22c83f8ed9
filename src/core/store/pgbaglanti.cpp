#include "core/store/pgbaglanti.h"

#include <array>
#include <cstdlib>
#include <libpq-fe.h>
#include <locale.h>
#include <map>
#include <poll.h>

#include "core/store/pghata.h"
#include "core/sunucuadresi.h"

namespace belvani {
namespace {

constexpr int EnEskiSunucu = 150000;
constexpr std::size_t EnCokHazir = 400;  // statements that the server keeps for this connection

// Passwords that users have typed, by connection; never written anywhere.
std::map<std::string, std::string>& Sifreler() {
  static std::map<std::string, std::string> sifreler;
  return sifreler;
}

// The library's words are all that tells why there is no connection (pghata.cpp): they are English while one is made,
// whatever the desktop speaks. Of this thread alone.
class IngilizceSozler {
 public:
  IngilizceSozler() {
    const locale_t simdiki = ::duplocale(::uselocale(locale_t(0)));
    if (simdiki == locale_t(0)) return;
    yerel_ = ::newlocale(LC_MESSAGES_MASK, "C", simdiki);
    if (yerel_ == locale_t(0))
      ::freelocale(simdiki);
    else
      onceki_ = ::uselocale(yerel_);
  }
  ~IngilizceSozler() {
    if (yerel_ == locale_t(0)) return;
    ::uselocale(onceki_);
    ::freelocale(yerel_);
  }
  IngilizceSozler(const IngilizceSozler&) = delete;
  IngilizceSozler& operator=(const IngilizceSozler&) = delete;

 private:
  locale_t yerel_{}, onceki_{};
};

// What stands before the address is overruled by it, what stands behind it is not. A network that is gone is noticed
// in half a minute, not in the hours that the system would wait.
PGconn* Ac(const std::string& baglanti, const std::string& sifre) {
  const std::array adlar{"connect_timeout",
                         "keepalives_idle",
                         "keepalives_interval",
                         "keepalives_count",
                         "tcp_user_timeout",
                         "application_name",
                         "dbname",
                         "client_encoding",
                         sifre.empty() ? nullptr : "password",
                         static_cast<const char*>(nullptr)};
  const std::array degerler{"10",
                            "15",
                            "5",
                            "3",
                            "30000",
                            "belvani",
                            baglanti.c_str(),
                            "UTF8",
                            sifre.c_str(),
                            static_cast<const char*>(nullptr)};
  const IngilizceSozler ingilizce;
  PGconn* b = PQconnectdbParams(adlar.data(), degerler.data(), 1);
  // "It is there already, skipping" is for no user's eyes; what went wrong comes back with its request.
  PQsetNoticeProcessor(
      b, [](void*, const char*) {}, nullptr);
  return b;
}

// Every answer reads alike whatever the server, the role or the environment say.
constexpr const char* OturumAyarlari =
    "select set_config('datestyle', 'ISO, YMD', false), set_config('timezone', 'UTC', false), "
    "set_config('intervalstyle', 'postgres', false), set_config('bytea_output', 'hex', false), "
    "set_config('extra_float_digits', '1', false), set_config('standard_conforming_strings', 'on', false), "
    "set_config('xmlbinary', 'base64', false), set_config('statement_timeout', '0', false), "
    "set_config('idle_in_transaction_session_timeout', '0', false), set_config('lock_timeout', '5s', false), "
    "set_config('synchronous_commit', case when current_setting('synchronous_commit') = 'off' and "
    "current_setting('fsync') = 'on' then 'on' else current_setting('synchronous_commit') end, false), "
    "set_config('jit', 'off', false)";

}  // namespace

std::string PgKitapligiSurumu() {
  const int surum = PQlibVersion();
  return std::to_string(surum / 10000) + "." + std::to_string(surum % 10000);
}

PgSonuc::PgSonuc(PGresult* sonuc) : sonuc_(sonuc, &PQclear) {}

int PgSonuc::Satir() const {
  return PQntuples(sonuc_.get());
}
int PgSonuc::Kolon() const {
  return PQnfields(sonuc_.get());
}
bool PgSonuc::NullMu(int satir, int kolon) const {
  return PQgetisnull(sonuc_.get(), satir, kolon) != 0;
}
std::string_view PgSonuc::Ham(int satir, int kolon) const {
  return {PQgetvalue(sonuc_.get(), satir, kolon), std::size_t(PQgetlength(sonuc_.get(), satir, kolon))};
}
unsigned PgSonuc::Tip(int kolon) const {
  return PQftype(sonuc_.get(), kolon);
}
std::string_view PgSonuc::KolonAdi(int kolon) const {
  const char* ad = PQfname(sonuc_.get(), kolon);
  return ad == nullptr ? std::string_view() : ad;
}
unsigned PgSonuc::KaynakTablo(int kolon) const {
  return PQftable(sonuc_.get(), kolon);
}
int PgSonuc::KaynakKolon(int kolon) const {
  return PQftablecol(sonuc_.get(), kolon);
}
std::int64_t PgSonuc::Degisen() const {
  return std::strtoll(PQcmdTuples(sonuc_.get()), nullptr, 10);
}
std::string PgSonuc::Komut() const {
  return PQcmdStatus(sonuc_.get());
}

PgBaglanti::PgBaglanti(const std::string& baglanti) {
  Baglan(baglanti);
  try {
    OturumuKur();
  } catch (...) {
    PQfinish(b_);
    throw;
  }
}

PgBaglanti::~PgBaglanti() {
  PQfinish(b_);
}

void PgBaglanti::Baglan(const std::string& baglanti) {
  constexpr int enCokSoru = 3;
  std::string sifre = Sifreler()[baglanti];
  for (int soru = 0;; ++soru) {
    b_ = Ac(baglanti, sifre);
    if (PQstatus(b_) == CONNECTION_OK) {
      PQsetNoticeProcessor(
          b_, [](void*, const char*) {}, nullptr);  // its remarks are no user's
      break;
    }
    const bool sifreIster = PgSifreReddi(b_);
    const MotorHatasi hata = PgBaglantiHatasi(b_);
    const char* kullanici = PQuser(b_);
    std::optional<std::string> yeni;
    if (sifreIster && soru < enCokSoru) {
      const auto adres = SunucuAdresiCoz(baglanti);
      yeni = SifreSor(adres ? adres->Ad() : baglanti, kullanici == nullptr ? "" : kullanici);
    }
    PQfinish(b_);
    b_ = nullptr;
    if (!yeni || yeni->empty()) {
      Sifreler().erase(baglanti);
      throw hata;
    }
    sifre = std::move(*yeni);
  }
  if (sifre.empty())
    Sifreler().erase(baglanti);
  else
    Sifreler()[baglanti] = sifre;
}

void PgBaglanti::OturumuKur() {
  if (PQserverVersion(b_) < EnEskiSunucu)
    throw MotorHatasi(MotorKusuru::Acilamadi, "Sunucu eski (" + std::string(PQparameterStatus(b_, "server_version")) +
                                                  "), PostgreSQL 15 ya da sonrası gerekir");
  if (const std::string kod = PQparameterStatus(b_, "server_encoding"); kod != "UTF8")
    throw MotorHatasi(MotorKusuru::Acilamadi,
                      "Veritabanının harf kodu " + kod + ", UTF8 olmalı; veritabanı yeniden yaratılmalıdır");
  Yurut(OturumAyarlari);
}

std::shared_ptr<PgYanit> PgBaglanti::Sirala(std::string sql, std::vector<PgParametre> parametreler) {
  auto yanit = std::make_shared<PgYanit>();
  sira_.push_back({std::move(sql), std::move(parametreler), yanit, false});
  return yanit;
}

std::shared_ptr<PgYanit> PgBaglanti::BirKezSirala(std::string sql) {
  auto yanit = Sirala(std::move(sql));
  sira_.back().birKez = true;
  return yanit;
}

PgSonuc PgBaglanti::Yurut(std::string sql, std::vector<PgParametre> parametreler) {
  const auto yanit = Sirala(std::move(sql), std::move(parametreler));
  Bitir();
  return yanit->sonuc;
}

void PgBaglanti::KopusFirlat() {
  koptu_ = true;
  throw PgKopusHatasi();
}

bool PgBaglanti::Acik() {
  if (koptu_ || PQstatus(b_) != CONNECTION_OK) return false;
  pollfd p{PQsocket(b_), POLLIN | POLLRDHUP, 0};
  if (::poll(&p, 1, 0) <= 0) return true;
  if (PQconsumeInput(b_) == 0 || PQstatus(b_) != CONNECTION_OK) koptu_ = true;
  // A server that ends says so before it closes.
  if ((p.revents & (POLLHUP | POLLRDHUP | POLLERR)) != 0) koptu_ = true;
  return !koptu_;
}

bool PgBaglanti::DuyuruGeldi() {
  if (!Acik()) return true;
  bool geldi = false;
  while (PGnotify* duyuru = PQnotifies(b_)) {
    geldi = true;
    PQfreemem(duyuru);
  }
  return geldi;
}

void PgBaglanti::HazirlariBirak() {
  if (hazirlar_.empty()) return;
  hazirlar_.clear();
  BirKezSirala("deallocate all");
}

void PgBaglanti::Gonder(const Istek& istek, std::vector<Beklenen>& beklenenler) {
  if (istek.birKez) {
    if (PQsendQueryParams(b_, istek.sql.c_str(), 0, nullptr, nullptr, nullptr, nullptr, 1) == 0) KopusFirlat();
    beklenenler.push_back({istek.yanit.get(), {}});
    return;
  }
  std::string ad;
  if (const auto hazir = hazirlar_.find(istek.sql); hazir != hazirlar_.end()) {
    ad = hazir->second;
  } else {
    ad = "b" + std::to_string(++hazirNo_);
    if (PQsendPrepare(b_, ad.c_str(), istek.sql.c_str(), 0, nullptr) == 0) KopusFirlat();
    hazirlar_.emplace(istek.sql, ad);
    beklenenler.push_back({nullptr, istek.sql});
  }
  const std::size_t n = istek.parametreler.size();
  std::vector<const char*> degerler(n);
  std::vector<int> boylar(n), bicimler(n);
  for (std::size_t i = 0; i < n; ++i) {
    const PgParametre& p = istek.parametreler[i];
    degerler[i] = p.null ? nullptr : p.deger.c_str();
    boylar[i] = int(p.deger.size());
    bicimler[i] = p.ikili ? 1 : 0;
  }
  if (PQsendQueryPrepared(b_, ad.c_str(), int(n), degerler.data(), boylar.data(), bicimler.data(), 1) == 0)
    KopusFirlat();
  beklenenler.push_back({istek.yanit.get(), {}});
}

void PgBaglanti::YanitlariAl(const std::vector<Beklenen>& beklenenler) {
  std::optional<MotorHatasi> ilk;
  for (const Beklenen& beklenen : beklenenler) {
    PGresult* ham = PQgetResult(b_);
    if (ham == nullptr) KopusFirlat();
    PgSonuc sonuc(ham);
    const ExecStatusType durum = PQresultStatus(ham);
    const bool tamam = durum == PGRES_TUPLES_OK || durum == PGRES_COMMAND_OK || durum == PGRES_EMPTY_QUERY;
    if (!tamam && !beklenen.hazir.empty()) hazirlar_.erase(beklenen.hazir);
    if (durum == PGRES_FATAL_ERROR && !ilk) ilk = PgIstekHatasi(ham);
    if (tamam && beklenen.yanit != nullptr) {
      beklenen.yanit->sonuc = std::move(sonuc);
      beklenen.yanit->geldi = true;
    }
    if (PQstatus(b_) == CONNECTION_BAD) {
      koptu_ = true;
      throw ilk && ilk->tur == MotorKusuru::Koptu ? *ilk : PgKopusHatasi();
    }
    while (PGresult* artan = PQgetResult(b_)) PQclear(artan);  // the end of this request's answers
  }
  PGresult* son = PQgetResult(b_);
  const bool esit = PQresultStatus(son) == PGRES_PIPELINE_SYNC;
  PQclear(son);
  if (!esit || PQexitPipelineMode(b_) == 0) KopusFirlat();
  if (ilk) throw *ilk;
}

void PgBaglanti::Bitir() {
  if (koptu_) {
    sira_.clear();
    throw PgKopusHatasi();
  }
  if (sira_.empty()) return;
  if (hazirlar_.size() > EnCokHazir) {
    hazirlar_.clear();
    sira_.insert(sira_.begin(), {"deallocate all", {}, std::make_shared<PgYanit>(), true});
  }
  const std::vector<Istek> sira = std::move(sira_);
  sira_.clear();
  if (PQenterPipelineMode(b_) == 0) KopusFirlat();
  std::vector<Beklenen> beklenenler;
  beklenenler.reserve(sira.size() * 2);
  for (const Istek& istek : sira) Gonder(istek, beklenenler);
  if (PQpipelineSync(b_) == 0) KopusFirlat();
  YanitlariAl(beklenenler);
}

void PgBaglanti::Kopyala(const std::string& sql, const std::vector<std::string>& parcalar) {
  Bitir();
  if (koptu_) throw PgKopusHatasi();
  std::optional<MotorHatasi> hata;
  const auto al = [&](PGresult* ham, ExecStatusType beklenen) {
    const PgSonuc sonuc(ham);
    if (PQresultStatus(ham) == beklenen || hata) return;
    koptu_ = PQstatus(b_) == CONNECTION_BAD;
    hata = koptu_ ? PgKopusHatasi() : PgIstekHatasi(ham);
  };
  al(PQexec(b_, sql.c_str()), PGRES_COPY_IN);
  if (hata) throw *hata;
  for (const std::string& parca : parcalar)
    if (PQputCopyData(b_, parca.data(), int(parca.size())) != 1) KopusFirlat();
  if (PQputCopyEnd(b_, nullptr) != 1) KopusFirlat();
  while (PGresult* ham = PQgetResult(b_)) al(ham, PGRES_COMMAND_OK);
  if (hata) throw *hata;
}

}  // namespace belvani
