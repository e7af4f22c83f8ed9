#include "core/store/koru.h"
#include "core/store/pgdeger.h"
#include "core/store/pgortak.h"
#include "core/store/pgsunucu.h"
#include "core/store/sunucukurulumu.h"
#include "core/sunucuadresi.h"

namespace belvani {
namespace {

// By the one who may create roles.
constexpr const char* Roller[] = {
    "do $$ begin if not exists (select 1 from pg_roles where rolname = 'belvani_sahip') then "
    "create role belvani_sahip nologin; end if; end $$",
    "do $$ begin if not exists (select 1 from pg_roles where rolname = 'belvani_kullanici') then "
    "create role belvani_kullanici nologin; end if; end $$",
    "grant belvani_kullanici to belvani_sahip with admin option",
    // Whoever lays the server out is its first administrator.
    "do $$ begin if not pg_has_role(current_user, 'belvani_sahip', 'usage') then "
    "execute format('grant belvani_sahip to %I', current_user); end if; end $$",
    "do $$ begin execute format('grant create, connect on database %I to belvani_sahip', current_database()); "
    "execute format('grant connect on database %I to belvani_kullanici', current_database()); end $$",
    "create schema if not exists belvani authorization belvani_sahip",
};

// By the owner. A company is seen by those who may use its schema; a half one by the owner's members alone, who may use
// every schema. Marks belong to all who are in; the files of the data path, by which all companies are calculated, are
// read by all and written by who may write a company. What the functions call is fixed here, whatever the search path
// of who asks.
constexpr const char* OrtakTablolar[] = {
    "create collation belvani.turkce (provider = icu, locale = 'tr-u-ks-level2', deterministic = false)",
    "create domain belvani.tinyint as smallint",
    "create domain belvani.mantik as smallint",
    "create domain belvani.tarih as text collate \"C\"",
    "create table belvani.kurulum (surum integer not null, kimlik uuid not null default gen_random_uuid())",
    "insert into belvani.kurulum (surum) values (1)",
    "create table belvani.sirket (no bigint generated always as identity primary key, "
    "kod text collate belvani.turkce unique, yarimad text, donen boolean not null default false, "
    "kuran text not null default session_user, an timestamptz not null default clock_timestamp())",
    "create table belvani.dosya (ad text collate \"C\" primary key, baytlar bytea not null, "
    "degisti timestamptz not null default clock_timestamp())",
    "create function belvani.duyur() returns trigger language plpgsql as "
    "$$ begin notify belvani_dosya; return null; end $$",
    "create trigger degisti after insert or update or delete on belvani.dosya "
    "for each statement execute function belvani.duyur()",
    "create table belvani.isaret (sirket bigint not null references belvani.sirket on delete cascade, "
    "ad text collate \"C\" not null, baytlar bytea not null, primary key (sirket, ad))",
    "create function belvani.gorulur(sirketno bigint) returns boolean language sql stable "
    "return coalesce(has_schema_privilege(to_regnamespace('s' || sirketno)::oid, 'usage'), false)",
    "create function belvani.yazar() returns boolean language sql stable return exists (select from belvani.sirket "
    "where has_table_privilege(to_regclass('s' || no || '.brd')::oid, 'insert'))",
    "alter table belvani.sirket enable row level security",
    "create policy gorulen on belvani.sirket for select using (belvani.gorulur(no))",
    "alter table belvani.isaret enable row level security",
    "create policy gorulen on belvani.isaret using (belvani.gorulur(sirket)) with check (belvani.gorulur(sirket))",
    "alter table belvani.dosya enable row level security",
    "create policy okunan on belvani.dosya for select using (true)",
    "create policy yazilan on belvani.dosya using (belvani.yazar()) with check (belvani.yazar())",
    "grant usage on schema belvani to belvani_kullanici",
    "grant select on belvani.kurulum, belvani.sirket to belvani_kullanici",
    "grant select, insert, update, delete on belvani.dosya, belvani.isaret to belvani_kullanici",
};

bool Dogru(const PgSonuc& s) {
  return s.Satir() > 0 && !s.NullMu(0, 0) && PgTam(s.Tip(0), s.Ham(0, 0)) != 0;
}

void Kur(PgBaglanti& b) {
  for (const char* sql : Roller) b.Sirala(sql);
  b.Bitir();
  if (!Dogru(b.Yurut("select to_regclass('belvani.kurulum') is not null")))
    PgSahipOlarak(b, [&] {
      for (const char* sql : OrtakTablolar) b.Sirala(sql);
    });
}

// An identifier as SQL takes it.
std::string Adli(std::string_view ad) {
  std::string sonuc = "\"";
  for (const char c : PgMetni(ad)) sonuc += c == '"' ? std::string("\"\"") : std::string(1, c);
  return sonuc + "\"";
}

struct Sirket {
  PgBaglanti b;
  std::string sema;

  Sirket(const SunucuAdresi& adres, std::string_view kod) : b(adres.baglanti) {
    PgSunucuyuDenetle(b);
    const auto no = PgSirketNo(b, kod);
    if (!no) throw MotorHatasi(MotorKusuru::Acilamadi, "Şirket Bulunamadı: " + std::string(kod));
    sema = PgSema(*no);
  }
};

void YetkileriKoy(PgBaglanti& b, const std::string& sema, const std::string& rol, SirketYetkisi yetki) {
  const std::string sonrakiler = std::string("alter default privileges for role ") + PgSahip + " in schema " + sema;
  const auto kaldir = [&](const std::string& ne) {
    b.Sirala("revoke all on all " + ne + " in schema " + sema + " from " + rol);
    b.Sirala(sonrakiler + " revoke all on " + ne + " from " + rol);
  };
  b.Sirala("revoke all on schema " + sema + " from " + rol);
  kaldir("tables");
  kaldir("sequences");
  if (yetki == SirketYetkisi::Yok) return;
  const bool yazar = yetki == SirketYetkisi::Yazar;
  const std::string tablolar = yazar ? "select, insert, update, delete" : "select";
  b.Sirala("grant usage on schema " + sema + " to " + rol);
  b.Sirala("grant " + tablolar + " on all tables in schema " + sema + " to " + rol);
  b.Sirala(sonrakiler + " grant " + tablolar + " on tables to " + rol);
  const std::string numaralar = yazar ? "usage, select" : "select";  // a backup has the last number given
  b.Sirala("grant " + numaralar + " on all sequences in schema " + sema + " to " + rol);
  b.Sirala(sonrakiler + " grant " + numaralar + " on sequences to " + rol);
}

}  // namespace

Durum SunucuyuKur(const std::string& adres) {
  const auto cozulen = SunucuAdresiCoz(adres);
  if (!cozulen) return cozulen.Kusuru();
  return Koru(
      [&] {
        PgBaglanti b(cozulen->baglanti);
        Kur(b);
        const PgSonuc eski = b.Yurut(
            "select coalesce(collversion, '') <> coalesce(pg_collation_actual_version(oid), '') from pg_collation "
            "where collnamespace = 'belvani'::regnamespace and collname = 'turkce'");
        if (Dogru(eski)) {
          // No transaction may be open around it.
          const PgSonuc ad = b.Yurut("select current_database()::text");
          b.Yurut("reindex database " + Adli(ad.Ham(0, 0)));
          PgSahipOlarak(b, [&] { b.Sirala("alter collation belvani.turkce refresh version"); });
        }
        PgSunucuyuDenetle(b);
      },
      "Sunucu hazırlanamadı: ");
}

Durum SirketYetkisiVer(const std::string& adres, std::string_view kod, std::string_view kullanici,
                       SirketYetkisi yetki) {
  const auto cozulen = SunucuAdresiCoz(adres);
  if (!cozulen) return cozulen.Kusuru();
  return Koru(
      [&] {
        Sirket s(*cozulen, kod);
        if (!Dogru(s.b.Yurut("select exists (select 1 from pg_roles where rolname = $1)",
                             {PgParametre::Metin(PgMetni(kullanici))})))
          throw MotorHatasi(MotorKusuru::Acilamadi, "Sunucuda böyle bir kullanıcı yok: " + std::string(kullanici));
        PgSahipOlarak(s.b, [&] {
          if (yetki != SirketYetkisi::Yok) s.b.Sirala(std::string("grant ") + PgKullanici + " to " + Adli(kullanici));
          YetkileriKoy(s.b, s.sema, Adli(kullanici), yetki);
        });
      },
      "Yetki verilemedi: ");
}

Sonuc<std::vector<YetkiSatiri>> SirketYetkileri(const std::string& adres, std::string_view kod) {
  const auto cozulen = SunucuAdresiCoz(adres);
  if (!cozulen) return cozulen.Kusuru();
  return Koru([&] {
    Sirket s(*cozulen, kod);
    const PgSonuc sonuc = s.b.Yurut(
        "select a.grantee::regrole::text, exists (select 1 from pg_class c, aclexplode(c.relacl) y "
        "where c.relnamespace = n.oid and c.relname = 'brd' and y.grantee = a.grantee and y.privilege_type = 'INSERT') "
        "from pg_namespace n, aclexplode(n.nspacl) a where n.nspname = $1 and a.privilege_type = 'USAGE' "
        "and a.grantee <> n.nspowner and a.grantee <> 0 order by 1",
        {PgParametre::Metin(s.sema)});
    std::vector<YetkiSatiri> satirlar;
    for (int i = 0; i < sonuc.Satir(); ++i)
      satirlar.push_back({std::string(sonuc.Ham(i, 0)),
                          PgTam(sonuc.Tip(1), sonuc.Ham(i, 1)) != 0 ? SirketYetkisi::Yazar : SirketYetkisi::Okur});
    return satirlar;
  });
}

}  // namespace belvani
