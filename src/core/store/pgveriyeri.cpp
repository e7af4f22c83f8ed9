#include "core/store/pgveriyeri.h"

#include <algorithm>
#include <thread>

#include "core/ayarlar.h"
#include "core/dizinmakinesi.h"
#include "core/dosya.h"
#include "core/store/koru.h"
#include "core/store/pgdeger.h"
#include "core/store/pghata.h"
#include "core/store/pgmotor.h"
#include "core/store/pgortak.h"
#include "core/store/pgsunucu.h"
#include "core/store/pgyarimyer.h"
#include "core/sunucuadresi.h"

namespace belvani {
namespace {

using Saat = std::chrono::steady_clock;

constexpr std::string_view Depo = "tolu.dat";  // the tables of a company, as a file among its others

std::int64_t Tam(const PgSonuc& s, int satir, int kolon) {
  return PgTam(s.Tip(kolon), s.Ham(satir, kolon));
}

// Held by the connection, and refused to the same program a second time as to any other.
class PgYerKilidi final : public YolKilidi {
 public:
  PgYerKilidi(std::shared_ptr<PgOrtak> ortak, std::pair<std::int32_t, std::int64_t> ad)
      : ortak_(std::move(ortak)), ad_(ad) {
    ortak_->kilitler.insert(ad_);
  }
  ~PgYerKilidi() override {
    ortak_->kilitler.erase(ad_);
    try {
      ortak_->b.Yurut("select pg_advisory_unlock($1::int, $2::int)",
                      {PgParametre::Tam(ad_.first), PgParametre::Tam(ad_.second)});
    } catch (const MotorHatasi&) {  // gone with the connection
    }
  }

 private:
  std::shared_ptr<PgOrtak> ortak_;
  std::pair<std::int32_t, std::int64_t> ad_;
};

class PgYer final : public VeriMakinesi {
 public:
  explicit PgYer(SunucuAdresi adres) : adres_(std::move(adres)) {}

  Durum Erisim() const override {
    return Yap([&](PgOrtak& o) { (void)Sema(o); });
  }

  DosyaHali Bak(std::string_view ad, std::size_t enCok) const override { return BakHepsi({ad}, enCok).front(); }

  // One look at all of them. Small files of the data path are remembered until the server tells of a change.
  std::vector<DosyaHali> BakHepsi(const std::vector<std::string_view>& adlar, std::size_t enCok) const override {
    std::vector<DosyaHali> haller(adlar.size());
    const Durum okundu = Yap([&](PgOrtak& o) {
      if (Bilinenler(o, adlar, enCok, haller)) return;
      haller.assign(adlar.size(), {});
      DosyalariOku(o, adlar, enCok, haller);
      if (adres_.yol.empty())
        for (std::size_t i = 0; i < adlar.size(); ++i)
          if (haller[i].boy == haller[i].baytlar.size() && haller[i].boy <= EnCokBilinen)
            o.Bilindi(std::string(adlar[i]), haller[i]);
    });
    if (!okundu)
      for (DosyaHali& hal : haller) hal = {.okunamadi = true};
    return haller;
  }

  std::optional<DosyaIzi> Iz(std::string_view ad) const override {
    std::optional<DosyaIzi> iz;
    (void)Yap([&](PgOrtak& o) {
      const std::string an = "(extract(epoch from degisti) * 1000000)::bigint", sema = Sema(o);
      const bool depo = ad == Depo && !adres_.yol.empty();
      const PgSonuc s =
          depo ? o.b.Yurut("select (select count(*) from pg_class where relnamespace = '" + sema +
                           "'::regnamespace and relname = 'firma'), " + an + " from " + sema + ".durum")
               : o.b.Yurut("select octet_length(baytlar), " + an + " from " + sema + ".dosya where ad = $1",
                           {PgParametre::Metin(PgMetni(ad))});
      if (s.Satir() > 0 && (!depo || Tam(s, 0, 0) != 0))
        iz = DosyaIzi{std::uintmax_t(Tam(s, 0, 0)), Tam(s, 0, 1) * 1000};
    });
    return iz;
  }

  Durum Yaz(std::string_view ad, std::string_view baytlar) const override {
    return Yap([&](PgOrtak& o) {
      YazimiSirala(o, Sema(o), ad, baytlar);
      o.b.Bitir();
    });
  }

  Durum YazHepsi(const std::vector<AdliDosya>& dosyalar) const override {
    return Yap([&](PgOrtak& o) {
      const std::string sema = Sema(o);
      o.b.Sirala("begin");
      for (const AdliDosya& d : dosyalar) YazimiSirala(o, sema, d.ad, d.baytlar);
      o.b.Sirala("commit");
      o.b.Bitir();
    });
  }

  Durum Sil(std::string_view ad) const override {
    return Yap([&](PgOrtak& o) {
      o.DosyalariUnut();
      o.b.Yurut("delete from " + Sema(o) + ".dosya where ad = $1", {PgParametre::Metin(PgMetni(ad))});
    });
  }

  std::vector<std::string> Dosyalar() const override {
    return Metinler([&](PgOrtak& o) { return "select ad from " + Sema(o) + ".dosya where ad not like '.%'"; });
  }

  Durum IsaretKoy(std::string_view ad, std::string_view baytlar) const override {
    return Yap([&](PgOrtak& o) {
      o.b.Yurut(
          "insert into belvani.isaret (sirket, ad, baytlar) values ($1::bigint, $2, $3) "
          "on conflict (sirket, ad) do update set baytlar = excluded.baytlar",
          {No(o), PgParametre::Metin(PgMetni(ad)), PgParametre::Bayt(baytlar)});
    });
  }

  Durum IsaretKaldir(std::string_view ad) const override {
    return Yap([&](PgOrtak& o) {
      o.b.Yurut("delete from belvani.isaret where sirket = $1::bigint and ad = $2",
                {No(o), PgParametre::Metin(PgMetni(ad))});
    });
  }

  std::vector<AdliDosya> Isaretler() const override {
    std::vector<AdliDosya> isaretler;
    (void)Yap([&](PgOrtak& o) {
      const PgSonuc s = o.b.Yurut("select ad, baytlar from belvani.isaret where sirket = $1::bigint", {No(o)});
      for (int i = 0; i < s.Satir(); ++i) isaretler.push_back({std::string(s.Ham(i, 0)), std::string(s.Ham(i, 1))});
    });
    return isaretler;
  }

  std::vector<AltIsareti> AltIsaretleri() const override {
    std::vector<AltIsareti> isaretler;
    (void)Yap([&](PgOrtak& o) {
      const PgSonuc s = o.b.Yurut(
          "select s.kod, i.ad, i.baytlar from belvani.isaret i join belvani.sirket s on s.no = i.sirket "
          "where s.kod is not null");
      for (int i = 0; i < s.Satir(); ++i)
        isaretler.push_back({std::string(s.Ham(i, 0)), {std::string(s.Ham(i, 1)), std::string(s.Ham(i, 2))}});
    });
    return isaretler;
  }

  Sonuc<std::unique_ptr<YolKilidi>> Kilitle(std::chrono::milliseconds enCok) const override {
    std::unique_ptr<YolKilidi> kilit;
    const Durum alindi = Yap([&](PgOrtak& o) {
      const std::pair ad{std::int32_t(PgKilit::Yer), adres_.yol.empty() ? 0 : SirketNo(o)};
      const auto son = Saat::now() + enCok;
      while (o.kilitler.contains(ad) || !Kilitlendi(o, ad)) {
        if (Saat::now() >= son) throw MotorHatasi(MotorKusuru::Kilitli, "başka bir program yazıyor");
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
      }
      kilit = std::make_unique<PgYerKilidi>(PgOrtakAl(adres_.baglanti), ad);
    });
    if (!alindi) return alindi.Kusuru();
    return kilit;
  }

  std::string Adres(std::string_view ad) const override { return adres_.Yer() + std::string(ad); }
  std::shared_ptr<const VeriMakinesi> Alt(std::string_view ad) const override {
    return std::make_shared<PgYer>(
        SunucuAdresi{adres_.baglanti, (adres_.yol.empty() ? "" : adres_.yol + "/") + std::string(ad)});
  }
  std::vector<std::string> Altlar() const override {
    if (!adres_.yol.empty()) return {};
    return Metinler([](PgOrtak&) { return std::string("select kod from belvani.sirket where kod is not null"); });
  }
  bool AltVar(std::string_view ad) const override {
    if (!adres_.yol.empty()) return false;
    bool var = false;
    (void)Yap([&](PgOrtak& o) { var = PgSirketNo(o.b, ad).has_value(); });
    return var;
  }
  // A place on a server is made by its administrator, a company by YarimAlt.
  Durum Yarat() const override { return Erisim(); }

  std::string Kimlik() const override {
    std::string kimlik;
    (void)Yap([&](PgOrtak& o) {
      const PgSonuc s = o.b.Yurut("select kimlik::text from belvani.kurulum");
      kimlik = std::string(s.Ham(0, 0)) + (adres_.yol.empty() ? "" : ":" + std::to_string(SirketNo(o)));
    });
    return kimlik;
  }
  bool BagMi() const override { return false; }

  Sonuc<std::unique_ptr<YarimYer>> YarimAlt(std::string_view ad, YarimTuru tur) const override {
    std::unique_ptr<YarimYer> yarim;
    const Durum acildi = Yap([&](PgOrtak&) { yarim = PgYarimYerAc(adres_, ad, tur); });
    if (!acildi) return acildi.Kusuru();
    return yarim;
  }
  std::vector<std::string> YarimAltlar() const override {
    std::vector<std::string> adlar;
    (void)Yap([&](PgOrtak& o) { adlar = PgYarimYerler(o.b, {}); });
    return adlar;
  }
  Sonuc<std::string> YarimaCevir(std::string_view ad) const override {
    std::string yarim;
    const Durum cevrildi = Yap([&](PgOrtak& o) {
      yarim = PgYarimaCevir(o.b, ad);
      o.sirketler.clear();
    });
    if (!cevrildi) return cevrildi.Kusuru();
    return yarim;
  }
  Durum YarimSil(std::string_view ad) const override {
    return Yap([&](PgOrtak& o) { PgYarimiSil(o.b, ad); });
  }
  // What programs that were killed have left for the next start, as far as this role may.
  void Toparla() const override {
    if (!adres_.yol.empty()) return;
    (void)Yap([&](PgOrtak& o) {
      for (const std::string& ad : PgYarimYerler(o.b, YarimTuru::Donen)) PgYarimiSil(o.b, ad);
    });
  }

  Durum DosyayaAl(std::string_view ad, const std::string& yol) const override {
    const DosyaHali hal = Bak(ad, EnCokDosya);
    if (!hal.var) return hal.okunamadi ? Durum(Kusur{Adres(ad) + ": dosya okunamadı"}) : Tamam();
    return DosyaYaz(yol, hal.baytlar);
  }
  Durum DosyadanKoy(std::string_view ad, const std::string& yol) const override {
    const auto baytlar = DosyaOku(yol, EnCokDosya);
    return baytlar ? Yaz(ad, *baytlar) : Durum(Kusur{yol + ": dosya okunamadı"});
  }

  std::string YerelDizin() const override {
    const std::string dizin = SunucuDizini() + (adres_.yol.empty() ? "" : adres_.yol + "/");
    (void)DizinYarat(dizin);
    return dizin;
  }
  std::shared_ptr<const VeriMakinesi> Yedekler() const override { return DizinYeri(SunucuDizini() + ".yedek/"); }
  bool Sunucuda() const override { return true; }

 private:
  static constexpr std::size_t EnCokBilinen = 1u << 20;  // bytes of a file that is remembered
  static constexpr std::size_t EnCokDosya = 1u << 30;    // what the server takes in one piece

  // A connection that broke while nobody used it is made anew once.
  template <class Is>
  Durum Yap(Is&& is) const {
    const auto bir = [&] {
      const auto ortak = PgOrtakAl(adres_.baglanti);
      try {
        is(*ortak);
      } catch (const MotorHatasi&) {
        ortak->b.SirayiBirak();
        ortak->sirketler.clear();
        if (!ortak->b.KoptuMu()) ortak->b.Yurut("rollback");
        throw;
      }
    };
    return Koru(
        [&] {
          try {
            bir();
          } catch (const MotorHatasi& h) {
            if (h.tur != MotorKusuru::Koptu) throw;
            bir();
          }
        },
        adres_.Ad() + ": ");
  }

  template <class Sql>
  std::vector<std::string> Metinler(Sql&& sql) const {
    std::vector<std::string> metinler;
    (void)Yap([&](PgOrtak& o) {
      const PgSonuc s = o.b.Yurut(sql(o));
      for (int i = 0; i < s.Satir(); ++i) metinler.emplace_back(s.Ham(i, 0));
    });
    return metinler;
  }

  std::int64_t SirketNo(PgOrtak& o) const {
    if (const auto bilinen = o.sirketler.find(adres_.yol); bilinen != o.sirketler.end()) return bilinen->second;
    const auto no = PgSirketNo(o.b, adres_.yol);
    if (!no) throw MotorHatasi(MotorKusuru::Acilamadi, "Şirket Bulunamadı: " + adres_.yol);
    return o.sirketler[adres_.yol] = *no;
  }
  PgParametre No(PgOrtak& o) const { return PgParametre::Tam(SirketNo(o)); }
  std::string Sema(PgOrtak& o) const { return adres_.yol.empty() ? std::string(PgOrtakSema) : PgSema(SirketNo(o)); }

  bool Bilinenler(PgOrtak& o, const std::vector<std::string_view>& adlar, std::size_t enCok,
                  std::vector<DosyaHali>& haller) const {
    if (!adres_.yol.empty()) return false;
    for (std::size_t i = 0; i < adlar.size(); ++i) {
      const DosyaHali* bilinen = o.Bilinen(std::string(adlar[i]));
      if (bilinen == nullptr) return false;
      haller[i] = *bilinen;
      if (haller[i].boy > enCok) haller[i].baytlar.clear();
    }
    return true;
  }

  void DosyalariOku(PgOrtak& o, const std::vector<std::string_view>& adlar, std::size_t enCok,
                    std::vector<DosyaHali>& haller) const {
    std::string dizi = "{";
    for (const std::string_view ad : adlar) dizi += (dizi.size() == 1 ? "" : ",") + DiziOgesi(ad);
    const PgSonuc s = o.b.Yurut(
        "select ad, octet_length(baytlar), case when octet_length(baytlar) <= $2::bigint then baytlar end from " +
            Sema(o) + ".dosya where ad = any($1::text[])",
        {PgParametre::Metin(dizi + "}"), PgParametre::Tam(std::int64_t(enCok))});
    for (int i = 0; i < s.Satir(); ++i)
      for (std::size_t k = 0; k < adlar.size(); ++k)
        if (adlar[k] == s.Ham(i, 0))
          haller[k] = {s.NullMu(i, 2) ? std::string() : std::string(s.Ham(i, 2)), std::uintmax_t(Tam(s, i, 1)), true,
                       false};
  }

  static bool Kilitlendi(PgOrtak& o, const std::pair<std::int32_t, std::int64_t>& ad) {
    const PgSonuc s = o.b.Yurut("select pg_try_advisory_lock($1::int, $2::int)",
                                {PgParametre::Tam(ad.first), PgParametre::Tam(ad.second)});
    return Tam(s, 0, 0) != 0;
  }

  static void YazimiSirala(PgOrtak& o, const std::string& sema, std::string_view ad, std::string_view baytlar) {
    o.DosyalariUnut();
    o.b.Sirala("insert into " + sema +
                   ".dosya (ad, baytlar) values ($1, $2) on conflict (ad) do update set "
                   "baytlar = excluded.baytlar, degisti = clock_timestamp()",
               {PgParametre::Metin(PgMetni(ad)), PgParametre::Bayt(baytlar)});
  }

  static std::string DiziOgesi(std::string_view ad) {
    std::string oge = "\"";
    for (const char c : PgMetni(ad)) oge += (c == '"' || c == '\\' ? std::string("\\") : std::string()) + c;
    return oge + "\"";
  }

  std::string SunucuDizini() const {
    std::string ad = adres_.Ad();
    std::ranges::replace_if(
        ad, [](char c) { return c == '/' || c == ':' || c == '%'; }, '-');
    return KullaniciVeriDizini() + "sunucu/" + ad + "/";
  }

  SunucuAdresi adres_;
};

}  // namespace

std::shared_ptr<const VeriMakinesi> PgVeriYeri(const SunucuAdresi& adres) {
  return std::make_shared<PgYer>(adres);
}

}  // namespace belvani
