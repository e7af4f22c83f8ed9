#include "core/store/pgyarimyer.h"

#include "core/store/koru.h"
#include "core/store/pgdeger.h"
#include "core/store/pgortak.h"
#include "core/store/pgsunucu.h"

namespace belvani {
namespace {

std::int64_t Tam(const PgSonuc& s, int satir, int kolon) {
  return PgTam(s.Tip(kolon), s.Ham(satir, kolon));
}

// As half directories are called, so that who lists them tells both alike.
std::string YarimAdi(std::int64_t no, std::string_view ad, bool donen) {
  std::string rakamlar = std::to_string(no);
  rakamlar.insert(0, rakamlar.size() < 6 ? 6 - rakamlar.size() : 0, '0');
  return (donen ? ".donen-" : ".kurulan-") + std::string(ad) + "-" + rakamlar;
}

std::vector<PgParametre> KilitAdi(std::int64_t no) {
  return {PgParametre::Tam(std::int32_t(PgKilit::Yarim)), PgParametre::Tam(no)};
}

// The server would give this program twice what it holds already.
bool Tut(PgBaglanti& b, std::int64_t no) {
  return Tam(b.Yurut("select case when exists (select 1 from pg_locks where locktype = 'advisory' and "
                     "pid = pg_backend_pid() and classid = $1::int::oid and objid = $2::int::oid) then false "
                     "else pg_try_advisory_lock($1::int, $2::int) end",
                     KilitAdi(no)),
             0, 0) != 0;
}

void Birak(PgBaglanti& b, std::int64_t no) {
  b.Yurut("select pg_advisory_unlock($1::int, $2::int)", KilitAdi(no));
}

void SemayiSil(PgBaglanti& b, std::int64_t no) {
  PgSahipOlarak(b, [&] {
    b.Sirala("drop schema if exists " + PgSema(no) + " cascade");
    b.Sirala("delete from belvani.sirket where no = $1::bigint and kod is null", {PgParametre::Tam(no)});
  });
}

// Who may do what in one company may do it in the other.
constexpr const char* YetkileriAktar =
    "do $$ declare y record; k record; begin "
    "for y in select distinct a.grantee::regrole::text as rol, exists (select 1 from pg_class c, aclexplode(c.relacl) "
    "t "
    "where c.relnamespace = n.oid and c.relname = 'brd' and t.grantee = a.grantee and t.privilege_type = 'INSERT') as "
    "yazar "
    "from pg_namespace n, aclexplode(n.nspacl) a where n.nspname = '{eski}' and a.grantee <> n.nspowner and a.grantee "
    "<> 0 "
    "loop "
    "execute format('grant usage on schema {yeni} to %s', y.rol); "
    "execute format('grant %s on all tables in schema {yeni} to %s', "
    "case when y.yazar then 'select, insert, update, delete' else 'select' end, y.rol); "
    "execute format('alter default privileges for role belvani_sahip in schema {yeni} grant %s on tables to %s', "
    "case when y.yazar then 'select, insert, update, delete' else 'select' end, y.rol); "
    "execute format('grant %s on all sequences in schema {yeni} to %s', "
    "case when y.yazar then 'usage, select' else 'select' end, y.rol); "
    "execute format('alter default privileges for role belvani_sahip in schema {yeni} grant %s on sequences to %s', "
    "case when y.yazar then 'usage, select' else 'select' end, y.rol); "
    "end loop; end $$";

std::string Yerine(std::string metin, std::string_view yer, std::string_view ad) {
  for (std::size_t i = 0; (i = metin.find(yer, i)) != std::string::npos; i += ad.size())
    metin.replace(i, yer.size(), ad);
  return metin;
}

class PgYarimYer final : public YarimYer {
 public:
  PgYarimYer(const SunucuAdresi& veri, std::string_view ad, YarimTuru tur)
      : veri_(veri), ad_(ad), donen_(tur == YarimTuru::Donen), ortak_(PgOrtakAl(veri.baglanti)) {
    no_ = PgSirketAyir(ortak_->b, std::nullopt, ad_, donen_);
    Tut(ortak_->b, no_);
  }
  ~PgYarimYer() override {
    (void)Koru([&] {
      if (!adli_) SemayiSil(ortak_->b, no_);
      Birak(ortak_->b, tutulan_ == 0 ? no_ : tutulan_);
    });
  }
  PgYarimYer(const PgYarimYer&) = delete;
  PgYarimYer& operator=(const PgYarimYer&) = delete;

  std::string Adres() const override { return SunucuAdresi{veri_.baglanti, YarimAdi(no_, ad_, donen_)}.Yer(); }

  Durum Adlandir() override {
    Durum verildi = Koru([&] {
      try {
        PgSahipOlarak(ortak_->b, [&] { AdVer(); });
      } catch (const MotorHatasi& h) {
        if (h.tur == MotorKusuru::Kisit) throw MotorHatasi(h.tur, "Bu adda bir şirket var: " + ad_);
        throw;
      }
    });
    if (verildi) adli_ = true;
    return verildi;
  }

  Durum YerineGec() override {
    return Koru([&] {
      PgBaglanti& b = ortak_->b;
      const auto eski = PgSirketNo(b, ad_);
      if (!eski) throw MotorHatasi(MotorKusuru::Acilamadi, "Şirket Bulunamadı: " + ad_);
      PgSahipOlarak(b, [&] {
        b.Sirala("update belvani.sirket set kod = null, yarimad = kod, donen = true where no = $1::bigint",
                 {PgParametre::Tam(*eski)});
        AdVer();
        b.Sirala(Yerine(Yerine(YetkileriAktar, "{eski}", PgSema(*eski)), "{yeni}", PgSema(no_)));
      });
      ortak_->sirketler.clear();
      tutulan_ = no_;
      no_ = *eski;  // it is the half one now
    });
  }

 private:
  void AdVer() {
    ortak_->b.Sirala("update belvani.sirket set kod = $2, yarimad = null, donen = false where no = $1::bigint",
                     {PgParametre::Tam(no_), PgParametre::Metin(ad_)});
  }

  SunucuAdresi veri_;
  std::string ad_;
  bool donen_;
  std::shared_ptr<PgOrtak> ortak_;
  std::int64_t no_ = 0, tutulan_ = 0;
  bool adli_ = false;
};

}  // namespace

std::int64_t PgSirketAyir(PgBaglanti& b, const std::optional<std::string>& kod, std::string_view yarimAd, bool donen) {
  std::int64_t no = 0;
  PgSahipOlarak(b, [&] {
    const auto yanit =
        b.Sirala("insert into belvani.sirket (kod, yarimad, donen) values ($1, $2, $3::boolean) returning no",
                 {kod ? PgParametre::Metin(PgMetni(*kod)) : PgParametre(), PgParametre::Metin(PgMetni(yarimAd)),
                  PgParametre::Metin(donen ? "true" : "false")});
    b.Bitir();
    no = Tam(yanit->sonuc, 0, 0);
    const std::string sema = PgSema(no);
    b.Sirala("create schema " + sema);
    b.Sirala("create table " + sema +
             ".dosya (ad text collate \"C\" primary key, baytlar bytea not null, "
             "degisti timestamptz not null default clock_timestamp())");
    b.Sirala("create table " + sema + ".durum (degisti timestamptz not null)");
    b.Sirala("insert into " + sema + ".durum values (clock_timestamp())");
  });
  return no;
}

std::unique_ptr<YarimYer> PgYarimYerAc(const SunucuAdresi& veri, std::string_view ad, YarimTuru tur) {
  return std::make_unique<PgYarimYer>(veri, ad, tur);
}

std::vector<std::string> PgYarimYerler(PgBaglanti& b, std::optional<YarimTuru> tur) {
  const PgSonuc s = b.Yurut("select no, yarimad, donen from belvani.sirket where kod is null order by no");
  std::vector<std::string> adlar;
  for (int i = 0; i < s.Satir(); ++i) {
    const std::int64_t no = Tam(s, i, 0);
    const bool donen = Tam(s, i, 2) != 0;
    if ((tur && (*tur == YarimTuru::Donen) != donen) || !Tut(b, no)) continue;
    Birak(b, no);
    adlar.push_back(YarimAdi(no, s.Ham(i, 1), donen));
  }
  return adlar;
}

std::string PgYarimaCevir(PgBaglanti& b, std::string_view kod) {
  const auto no = PgSirketNo(b, kod);
  if (!no) throw MotorHatasi(MotorKusuru::Acilamadi, "Şirket Bulunamadı: " + std::string(kod));
  PgSahipOlarak(b, [&] {
    b.Sirala("update belvani.sirket set kod = null, yarimad = kod where no = $1::bigint", {PgParametre::Tam(*no)});
  });
  return YarimAdi(*no, kod, false);
}

void PgYarimiSil(PgBaglanti& b, std::string_view ad) {
  const auto no = PgYarimNo(ad);
  if (!no) throw MotorHatasi(MotorKusuru::Diger, "Böyle bir yarım şirket yok: " + std::string(ad));
  if (!Tut(b, *no)) throw MotorHatasi(MotorKusuru::Kilitli, "Bu şirket şu anda kuruluyor: " + std::string(ad));
  SemayiSil(b, *no);
  Birak(b, *no);
}

}  // namespace belvani
