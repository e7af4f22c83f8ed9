// The engine of a store on a PostgreSQL server: a schema there holds the tables of one company.
//
// One writer at a time works in a company, as in the other engine: each transaction that writes waits for a lock of the
// server that goes with its connection. Writes that nobody asks about are put in a row and sent with the next read or
// the end of the transaction, whole records by the thousand as one copy.
#pragma once

#include <deque>
#include <functional>
#include <map>

#include "core/store/pgkatalog.h"
#include "core/sunucuadresi.h"

namespace belvani {

class PgTampon;

class PgMotor final : public Motor {
 public:
  // The address is that of a store, "…#ORNEK/tolu.dat".
  PgMotor(const SunucuAdresi& adres, AcilisKipi kip);
  ~PgMotor() override;
  PgMotor(const PgMotor&) = delete;
  PgMotor& operator=(const PgMotor&) = delete;

  std::unique_ptr<Komut> Hazirla(std::string_view sql) override;
  std::unique_ptr<Komut> TetiksizHazirla(std::string_view sql) override;
  void Calistir(std::string_view sql) override;
  std::unique_ptr<SatirYazici> SatirYaziciAc(const YazilanKolonlar& kolonlar, YazmaTuru tur) override;

  void IslemBaslat(std::chrono::milliseconds enCok) override;
  void IslemOnayla() override;
  void IslemGeriAl() noexcept override;
  bool IslemdeMi() const override { return islemde_; }
  void AraNoktaKoy() override;
  void AraNoktaBirak() override;
  void AraNoktayaDon() noexcept override;

  std::vector<MotorKolonu> Kolonlar(std::string_view tablo) override;
  std::string KolonTanimi(const AlanTanimi& alan, bool birincil) const override;
  Indeksler TabloIndeksleri(std::string_view tablo) override;
  std::string TabloMetni(std::string_view tablo, const std::string& kolonlar) const override;
  void OzetleriKur() override;
  std::string UymayanKosulu(std::string_view ad, AlanTipi tip) const override;
  std::string KimlikKolonu(std::string_view tablo) override;
  std::int64_t SonKimlik() override;
  std::int64_t DegisenSatir() override;
  std::uint64_t YazmaSayaci() const override { return yazma_; }
  std::int64_t SonNumara(std::string_view tablo) override;
  void SonNumarayiKoy(std::string_view tablo, std::int64_t numara) override;

  DepoYeri Yeri() override { return DepoYeri::Paylasilan; }
  void YerKoy(DepoYeri) override {}
  bool Yazilabilir() override;
  void SaltOkunurYap() override;
  std::string ButunlukKusuru(const AradaSoran&) override;
  std::string SayfaKusuru(const AradaSoran&) override { return {}; }
  void Kopyala(const std::string& yol, const KopyaAdimi& adim) override;

  // For its statements and writers.
  PgBaglanti& Baglanti() { return *b_; }
  const PgKatalog& Katalog();
  // Puts a request in the row, behind what the writers have gathered.
  std::shared_ptr<PgYanit> Sirala(const std::string& sql, std::vector<PgParametre> parametreler);
  // The answer of what reads; outside a transaction a connection that is gone is made anew once.
  PgSonuc Oku(const std::string& sql, const std::vector<PgParametre>& parametreler);
  // The answer of what was sent before.
  PgSonuc Bekle(const std::shared_ptr<PgYanit>& giden, const std::string& sql, const std::vector<PgParametre>& p);
  // A write: in the row of the open transaction, else in one of its own.
  std::shared_ptr<PgYanit> Yaz(const std::string& sql, std::vector<PgParametre> parametreler, bool tetiksiz);
  void Bitir();
  // The next number of a table; whole blocks of them are fetched.
  std::int64_t Numara(const std::string& tablo);
  void Degisti() {
    ++yazma_;
    degisti_ = true;
  }

 private:
  struct Numaralar {
    std::deque<std::int64_t> hazir;
    std::shared_ptr<PgYanit> istenen;  // on their way
    std::int64_t sonraki = 1;          // how many are fetched next
  };

  void Baglan();
  void KapiyiTut();
  void BaglantiyiSagla();
  void Bosalt();
  void TamponlariBirak();
  void Kur(const std::vector<std::string>& komutlar);
  std::vector<std::string> OzetKomutlari() const;
  void NumaraIste(const std::string& tablo, Numaralar& n);
  void NumaralariAl(Numaralar& n);
  void NumaralariBirak();
  template <class Is>
  void KendiIsleminde(Is&& is);

  SunucuAdresi adres_;
  AcilisKipi kip_;
  std::unique_ptr<PgBaglanti> b_;
  std::int64_t sirketNo_ = 0;
  std::unique_ptr<PgKatalog> katalog_;
  std::vector<std::shared_ptr<PgTampon>> tamponlar_;
  std::map<std::string, Numaralar> numaralar_;
  std::shared_ptr<PgYanit> sonYazma_;   // of the last write
  std::shared_ptr<PgYanit> sonEkleme_;  // of the last insert, with the number in its row
  bool islemde_ = false;
  bool saltOkunur_ = false;
  bool degisti_ = false;  // something was written in the open transaction
  std::uint64_t yazma_ = 0;
};

// A new schema for a company that is not there yet, or the tables' empty one of a half company.
std::unique_ptr<Motor> PgMotorYarat(const SunucuAdresi& adres);
std::unique_ptr<Motor> PgMotorAc(const SunucuAdresi& adres, AcilisKipi kip);
void PgMotorSil(const SunucuAdresi& adres);
bool PgYazilir(const SunucuAdresi& adres);

}  // namespace belvani
