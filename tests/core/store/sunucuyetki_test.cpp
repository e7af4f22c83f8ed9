// What the server itself lets a role see and do: nothing is granted by a program that could be left out.
#include <gmock/gmock.h>
#include <libpq-fe.h>
#include <unistd.h>

#include "core/store/depokopyasi.h"
#include "core/store/sunucukurulumu.h"
#include "core/veriyolu.h"
#include "ornekdepo.h"
#include "sunucu/sablon.h"

namespace belvani {
namespace {

using test::OrnekDepo;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* Gizli = "GİZLİ";

// Gone after the database in which it was granted anything.
struct Rol {
  explicit Rol(const std::string& kok) : ad(kok + "_" + std::to_string(::getpid())) {}
  ~Rol() {
    if (!dizin.empty()) test::YoneticiSql(dizin, "postgres", "drop role " + ad);
  }
  void Yarat(const std::string& sunucuDizini) {
    test::YoneticiSql(sunucuDizini, "postgres", "create role " + ad + " login");
    dizin = sunucuDizini;
  }
  std::string ad, dizin;
};

// A role's own words to the server, past the program.
struct Disardan {
  explicit Disardan(const std::string& adres) : bag(PQconnectdb(adres.c_str())) {}
  ~Disardan() { PQfinish(bag); }
  // The first column of all rows, in one text; nothing: refused.
  std::optional<std::string> Sor(const std::string& sql) const {
    const std::unique_ptr<PGresult, decltype(&PQclear)> sonuc(PQexec(bag, sql.c_str()), PQclear);
    const auto durum = PQresultStatus(sonuc.get());
    if (durum != PGRES_TUPLES_OK && durum != PGRES_COMMAND_OK) return std::nullopt;
    std::string metin;
    for (int i = 0; i < PQntuples(sonuc.get()); ++i) metin += std::string(PQgetvalue(sonuc.get(), i, 0)) + "\n";
    return metin;
  }
  PGconn* bag;
};

// Two companies with a person each.
class SunucuYetkisi : public testing::Test {
 protected:
  void SetUp() override {
    if (!test::SunucudaMi()) GTEST_SKIP() << "of servers alone";
    depo_ = std::make_unique<OrnekDepo>();
    const std::string& adres = depo_->veriYeri.Adres();
    rol_.Yarat(adres.substr(adres.find("host=") + 5));
    rolAdresi_ = adres;
    rolAdresi_.insert(rolAdresi_.find("//") + 2, rol_.ad + "@");
    KisiEkle(depo_->db, "Gizem");
    Veritabani gizli;
    ASSERT_TRUE(gizli.DbYarat(test::BosSirket(depo_->veriYeri.Yer(), Gizli) + "tolu.dat")) << gizli.SonHata();
    ASSERT_TRUE(gizli.TabloEkle(*TabloBul("sicil")) && gizli.TabloEkle(*TabloBul("firma"))) << gizli.SonHata();
    KisiEkle(gizli, "Saklı");
    ASSERT_TRUE(VeriYolu(adres).Alt(Gizli).IsaretKoy("masa", "Can"));
    test::YoneticiSql(rol_.dizin, Veritabanim(), "analyze");
    disardan_ = std::make_unique<Disardan>(rolAdresi_);
  }

  static void KisiEkle(Veritabani& db, const std::string& adi) {
    test::TabloImleci sicil(db, "sicil");
    ASSERT_TRUE(test::Ekle(sicil, {{"kod", std::string("001")}, {"adi", adi}})) << db.SonHata();
  }

  std::string Veritabanim() const {
    const std::string& adres = depo_->veriYeri.Adres();
    const auto bas = adres.find(":///") + 4;
    return adres.substr(bas, adres.find('?') - bas);
  }
  std::string SemaNo(const std::string& kod) const {
    const Disardan yonetici("postgresql://" + std::string(test::SunucuYoneticisi) + "@/" + Veritabanim() +
                            "?host=" + rol_.dizin);
    std::string no = yonetici.Sor("select no from belvani.sirket where kod = '" + kod + "'").value_or("");
    no.resize(no.find_last_not_of('\n') + 1);
    return "s" + no;
  }
  void Ver(SirketYetkisi yetki) {
    const Durum verildi = SirketYetkisiVer(depo_->veriYeri.Adres(), "DENEME", rol_.ad, yetki);
    ASSERT_TRUE(verildi) << verildi.KusurMetni();
  }
  bool KisiOkunur(Veritabani& db) {
    Imlec rs;
    return db.SqlAc(rs, "select adi from sicil") && rs.MetinOku("adi") == "Gizem";
  }
  std::string Deposu(const char* kod) const { return rolAdresi_ + "#" + kod + "/tolu.dat"; }

  Rol rol_{"yetki"};
  std::string rolAdresi_;
  std::unique_ptr<OrnekDepo> depo_;
  std::unique_ptr<Disardan> disardan_;
};

TEST_F(SunucuYetkisi, WithoutAGrantNoCompanyNoNameAndNoDataIsSeen) {
  const Durum erisim = VeriYolu(rolAdresi_).Erisim();
  ASSERT_FALSE(erisim);
  EXPECT_THAT(erisim.KusurMetni(), HasSubstr("henüz yetki verilmemiş"));
  const std::string sema = SemaNo(Gizli);
  for (const std::string& sql :
       {std::string("select kod from belvani.sirket"), std::string("select ad from belvani.isaret"),
        std::string("select ad from belvani.dosya"), "select kod from " + sema + ".sicil",
        "select ad from " + sema + ".dosya", "delete from " + sema + ".sicil", "create table " + sema + ".t (a int)",
        std::string("set role belvani_sahip"), std::string("grant belvani_kullanici to current_user"),
        std::string("create schema t"), std::string("select kod from belvani.sirket where belvani.gorulur(no)")})
    EXPECT_FALSE(disardan_->Sor(sql)) << sql;
}

// Names of companies and of people stand in no catalogue either, whatever it tells of tables and their statistics.
TEST_F(SunucuYetkisi, CataloguesTellNumbersAlone) {
  Ver(SirketYetkisi::Yazar);
  const auto adlar = disardan_->Sor(
      "select c.oid::regclass from pg_class c where relnamespace in ('pg_catalog'::regnamespace, "
      "'information_schema'::regnamespace) and relkind in ('r', 'v') and has_table_privilege(oid, 'select')");
  ASSERT_TRUE(adlar);
  int bakilan = 0;
  for (std::size_t bas = 0, son; (son = adlar->find('\n', bas)) != adlar->npos; bas = son + 1) {
    const std::string katalog = adlar->substr(bas, son - bas);
    const auto hepsi = disardan_->Sor("select t::text from " + katalog + " t");
    bakilan += hepsi ? 1 : 0;
    for (const char* ad : {Gizli, "Saklı"}) EXPECT_EQ(hepsi.value_or("").find(ad), std::string::npos) << katalog;
  }
  EXPECT_GT(bakilan, 100);
}

TEST_F(SunucuYetkisi, AWriterHasItsOwnCompanyAndNoOther) {
  Ver(SirketYetkisi::Yazar);
  const VeriYolu veri(rolAdresi_);
  EXPECT_TRUE(veri.Erisim());
  EXPECT_THAT(veri.Altlar(), ElementsAre("DENEME"));
  EXPECT_FALSE(veri.AltVar(Gizli));
  EXPECT_THAT(veri.AltIsaretleri(), IsEmpty());
  EXPECT_FALSE(disardan_->Sor("select kod from " + SemaNo(Gizli) + ".sicil"));
  EXPECT_FALSE(disardan_->Sor("insert into belvani.isaret values (" + SemaNo(Gizli).substr(1) + ", 'ben', '')"));
  EXPECT_EQ(disardan_->Sor("select no from belvani.sirket where kod is distinct from 'DENEME'"), "");

  Veritabani db;
  ASSERT_TRUE(db.DbAc(Deposu("DENEME"))) << db.SonHata();
  EXPECT_TRUE(DepoYazilir(Deposu("DENEME")));
  test::TabloImleci sicil(db, "sicil");
  EXPECT_TRUE(test::Ekle(sicil, {{"kod", std::string("002")}})) << db.SonHata();
  Veritabani oteki;
  EXPECT_FALSE(oteki.DbAc(Deposu(Gizli)));
  EXPECT_THAT(oteki.SonHata(), HasSubstr("yok ya da yetkiniz yok"));

  // Companies are made, laid out and granted by the owner's members.
  EXPECT_FALSE(db.AlanEkle("sicil", {"yenialan", AlanTipi::Metin, 10, AlanNiteligi::Sonradan}));
  EXPECT_THAT(db.SonHata(), HasSubstr("yetkiniz yok"));
  EXPECT_FALSE(SirketYetkisiVer(rolAdresi_, "DENEME", rol_.ad, SirketYetkisi::Yazar));
  EXPECT_FALSE(SirketYetkisiVer(rolAdresi_, Gizli, rol_.ad, SirketYetkisi::Okur));
  EXPECT_FALSE(veri.YarimaCevir("DENEME"));
  EXPECT_TRUE(veri.AltVar("DENEME"));
}

TEST_F(SunucuYetkisi, AReaderSeesAllAndWritesNothing) {
  Ver(SirketYetkisi::Okur);
  // What is laid out later belongs to the grant too.
  ASSERT_TRUE(depo_->db.IcMotor().Kolonlar("sonradan").empty());
  depo_->db.IcMotor().Calistir("create table sonradan (a integer)");
  EXPECT_TRUE(disardan_->Sor("select a from " + SemaNo("DENEME") + ".sonradan"));
  EXPECT_FALSE(disardan_->Sor("insert into " + SemaNo("DENEME") + ".sonradan values (1)"));

  Veritabani db;
  ASSERT_TRUE(db.DbAc(Deposu("DENEME"))) << db.SonHata();
  EXPECT_TRUE(KisiOkunur(db)) << db.SonHata();
  EXPECT_FALSE(DepoYazilir(Deposu("DENEME")));
  test::TabloImleci sicil(db, "sicil");
  EXPECT_FALSE(test::Ekle(sicil, {{"kod", std::string("002")}}));
  EXPECT_THAT(db.SonHata(), HasSubstr("yetkiniz yok"));

  EXPECT_EQ(db.IcMotor().SonNumara("sicil"), depo_->db.IcMotor().SonNumara("sicil")) << "as a backup asks for it";

  const VeriYolu sirket = VeriYolu(rolAdresi_).Alt("DENEME");
  EXPECT_FALSE(sirket.Yaz("sablon.dat", "x"));
  EXPECT_TRUE(sirket.IsaretKoy("masa", "Denetçi")) << "who only looks is seen too";
  EXPECT_EQ(VeriYolu(depo_->veriYeri.Adres()).AltIsaretleri().size(), 2u);
}

// Law files and the like are by which all companies are calculated: who may write none may not change them.
TEST_F(SunucuYetkisi, FilesOfTheDataPathAreWrittenByWritersAlone) {
  const VeriYolu veri(rolAdresi_);
  ASSERT_TRUE(VeriYolu(depo_->veriYeri.Adres()).Yaz("gvtbl.dat", "eski"));
  Ver(SirketYetkisi::Okur);
  EXPECT_EQ(veri.Bak("gvtbl.dat").baytlar, "eski");
  const Durum yazim = veri.Yaz("gvtbl.dat", "yeni");
  ASSERT_FALSE(yazim);
  EXPECT_THAT(yazim.KusurMetni(), HasSubstr("yetkiniz yok"));
  EXPECT_FALSE(veri.Yaz("baska.dat", "yeni"));
  (void)veri.Sil("gvtbl.dat");
  EXPECT_EQ(veri.Bak("gvtbl.dat").baytlar, "eski");
  Ver(SirketYetkisi::Yazar);
  EXPECT_TRUE(veri.Yaz("gvtbl.dat", "yeni") && veri.Yaz("baska.dat", "yeni"));
  EXPECT_EQ(veri.Bak("gvtbl.dat").baytlar, "yeni");
}

TEST_F(SunucuYetkisi, ARefusedConnectionTellsWhy) {
  const auto neden = [](const std::string& adres) {
    const Durum erisim = VeriYolu(adres).Erisim();
    return erisim ? std::string() : erisim.KusurMetni();
  };
  const auto yerine = [&](const std::string& eski, const std::string& yeni) {
    std::string adres = rolAdresi_;
    return adres.replace(adres.find(eski), eski.size(), yeni);
  };
  EXPECT_THAT(neden(yerine(Veritabanim(), "yokboyle")), HasSubstr("bu adda bir veritabanı yok"));
  EXPECT_THAT(neden(yerine(rol_.ad, "yokboyle")), HasSubstr("böyle bir kullanıcı yok"));
  EXPECT_THAT(neden(rolAdresi_ + "&service=yokboyle"), HasSubstr("tanımlı değil"));
  EXPECT_THAT(neden("postgresql://127.0.0.1:1/belvani"), HasSubstr("çalışmıyor olabilir"));
  test::YoneticiSql(rol_.dizin, Veritabanim(), "revoke connect on database " + Veritabanim() + " from public");
  EXPECT_THAT(neden(rolAdresi_), HasSubstr("henüz yetki verilmemiş"));
  test::YoneticiSql(rol_.dizin, Veritabanim(), "alter role " + rol_.ad + " connection limit 0");
  EXPECT_THAT(neden(rolAdresi_), HasSubstr("yeni bağlantı kabul etmiyor"));
  test::YoneticiSql(rol_.dizin, Veritabanim(), "alter role " + rol_.ad + " nologin");
  EXPECT_THAT(neden(rolAdresi_), HasSubstr("girişi kapatılmış"));
}

TEST_F(SunucuYetkisi, AGrantTakenAwayHoldsForOpenConnections) {
  Ver(SirketYetkisi::Yazar);
  Veritabani db;
  ASSERT_TRUE(db.DbAc(Deposu("DENEME"))) << db.SonHata();
  ASSERT_TRUE(KisiOkunur(db));
  const auto yetkililer = [&] {
    const auto satirlar = SirketYetkileri(depo_->veriYeri.Adres(), "DENEME");
    return satirlar ? satirlar->size() : 99;
  };
  EXPECT_EQ(yetkililer(), 1u);

  Ver(SirketYetkisi::Okur);
  test::TabloImleci sicil(db, "sicil");
  EXPECT_FALSE(test::Ekle(sicil, {{"kod", std::string("002")}}));
  EXPECT_THAT(db.SonHata(), HasSubstr("yetkiniz yok"));
  EXPECT_TRUE(KisiOkunur(db)) << "the refused write has left nothing behind: " << db.SonHata();

  Ver(SirketYetkisi::Yok);
  EXPECT_FALSE(KisiOkunur(db));
  EXPECT_THAT(db.SonHata(), HasSubstr("yetkiniz kaldırılmış olabilir"));
  EXPECT_EQ(yetkililer(), 0u);
  EXPECT_THAT(VeriYolu(rolAdresi_).Altlar(), IsEmpty());
  EXPECT_FALSE(disardan_->Sor("select kod from " + SemaNo("DENEME") + ".sicil"));
}

}  // namespace
}  // namespace belvani
