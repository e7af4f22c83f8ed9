#include "core/store/pgmotor.h"

#include <algorithm>
#include <thread>

#include "core/store/depoaktarimi.h"
#include "core/store/islem.h"
#include "core/store/pgdeger.h"
#include "core/store/pghata.h"
#include "core/store/pgkomut.h"
#include "core/store/pgortak.h"
#include "core/store/pgsorgu.h"
#include "core/store/pgsunucu.h"
#include "core/store/pgyazici.h"

namespace belvani {
namespace {

using Milisaniye = std::chrono::milliseconds;

constexpr Milisaniye KilitBekleme{5000};
constexpr Milisaniye KapiBekleme{1000};  // for those who are about to go
constexpr std::int64_t NumaraArtisi = 64, EnCokNumara = 4096;

std::vector<PgParametre> KilitAdi(PgKilit kilit, std::int64_t sirketNo) {
  return {PgParametre::Tam(std::int32_t(kilit)), PgParametre::Tam(sirketNo)};
}

// "ORNEK/tolu.dat" -> "ORNEK".
std::string SirketAdi(const SunucuAdresi& adres) {
  return adres.yol.substr(0, adres.yol.rfind('/'));
}

bool Dogru(const PgSonuc& sonuc) {
  return sonuc.Satir() > 0 && !sonuc.NullMu(0, 0) && PgTam(sonuc.Tip(0), sonuc.Ham(0, 0)) != 0;
}

}  // namespace

PgMotor::PgMotor(const SunucuAdresi& adres, AcilisKipi kip) : adres_(adres), kip_(kip) {
  Baglan();
}

PgMotor::~PgMotor() = default;

void PgMotor::Baglan() {
  katalog_.reset();
  (void)PgOrtakAl(adres_.baglanti);  // the server has been looked at then
  b_ = std::make_unique<PgBaglanti>(adres_.baglanti);
  const std::string ad = SirketAdi(adres_);
  const auto no = PgSirketNo(*b_, ad);
  if (!no) throw MotorHatasi(MotorKusuru::Acilamadi, "Sunucuda böyle bir şirket yok ya da yetkiniz yok: " + ad);
  if (sirketNo_ != 0 && sirketNo_ != *no)
    throw MotorHatasi(MotorKusuru::Acilamadi, "Şirketin yerine bu arada başkası konmuş, şirketi yeniden açınız: " + ad);
  sirketNo_ = *no;
  b_->Yurut("select set_config('search_path', $1, false)",
            {PgParametre::Metin(PgSema(sirketNo_) + ", " + std::string(PgOrtakSema))});
  KapiyiTut();
  if (saltOkunur_) b_->Yurut("set default_transaction_read_only = on");
  NumaralariBirak();
}

// Everybody who has the store open holds it, so that one who wants it alone meets all of them.
void PgMotor::KapiyiTut() {
  const char* const sql = kip_ == AcilisKipi::Tek ? "select pg_try_advisory_lock($1::int, $2::int)"
                                                  : "select pg_try_advisory_lock_shared($1::int, $2::int)";
  const auto son = std::chrono::steady_clock::now() + KapiBekleme;
  while (!Dogru(b_->Yurut(sql, KilitAdi(PgKilit::Iceride, sirketNo_)))) {
    if (std::chrono::steady_clock::now() >= son)
      throw MotorHatasi(MotorKusuru::Kilitli,
                        "Veritabanı başka bir kullanıcı tarafından kilitli, biraz sonra yeniden deneyiniz");
    std::this_thread::sleep_for(Milisaniye(20));
  }
}

void PgMotor::BaglantiyiSagla() {
  if (islemde_ || b_->SiradaVar() || b_->Acik()) return;
  if (kip_ == AcilisKipi::Tek) throw PgKopusHatasi();  // others may have been in since
  Baglan();
}

const PgKatalog& PgMotor::Katalog() {
  if (katalog_ == nullptr) {
    BaglantiyiSagla();
    katalog_ = std::make_unique<PgKatalog>(*b_, PgSema(sirketNo_));
  }
  return *katalog_;
}

std::unique_ptr<Komut> PgMotor::Hazirla(std::string_view sql) {
  return std::make_unique<PgKomut>(*this, sql, false);
}

std::unique_ptr<Komut> PgMotor::TetiksizHazirla(std::string_view sql) {
  return std::make_unique<PgKomut>(*this, sql, true);
}

std::unique_ptr<SatirYazici> PgMotor::SatirYaziciAc(const YazilanKolonlar& kolonlar, YazmaTuru tur) {
  tamponlar_.push_back(std::make_shared<PgTampon>(*this, kolonlar, tur));
  return std::make_unique<PgYazici>(tamponlar_.back());
}

void PgMotor::Bosalt() {
  for (const auto& tampon : tamponlar_) tampon->Bosalt();
  std::erase_if(tamponlar_, [](const auto& tampon) { return tampon.use_count() == 1; });
}

void PgMotor::TamponlariBirak() {
  for (const auto& tampon : tamponlar_) tampon->Birak();
  std::erase_if(tamponlar_, [](const auto& tampon) { return tampon.use_count() == 1; });
}

void PgMotor::Bitir() {
  Bosalt();
  b_->Bitir();
}

std::shared_ptr<PgYanit> PgMotor::Sirala(const std::string& sql, std::vector<PgParametre> parametreler) {
  BaglantiyiSagla();
  Bosalt();
  return b_->Sirala(sql, std::move(parametreler));
}

PgSonuc PgMotor::Oku(const std::string& sql, const std::vector<PgParametre>& parametreler) {
  for (bool yeniden = !islemde_;; yeniden = false) {
    try {
      const auto yanit = Sirala(sql, parametreler);
      Bitir();
      return yanit->sonuc;
    } catch (const MotorHatasi& h) {
      if (!yeniden || h.tur != MotorKusuru::Koptu) throw;
    }
  }
}

PgSonuc PgMotor::Bekle(const std::shared_ptr<PgYanit>& giden, const std::string& sql,
                       const std::vector<PgParametre>& p) {
  const bool islemde = islemde_;
  try {
    if (!giden->geldi) Bitir();
  } catch (const MotorHatasi& h) {
    if (islemde || h.tur != MotorKusuru::Koptu) throw;
  }
  return giden->geldi ? giden->sonuc : Oku(sql, p);
}

template <class Is>
void PgMotor::KendiIsleminde(Is&& is) {
  if (islemde_) return is();
  Islem islem(*this);
  is();
  islem.Onayla();
}

std::shared_ptr<PgYanit> PgMotor::Yaz(const std::string& sql, std::vector<PgParametre> parametreler, bool tetiksiz) {
  Degisti();
  std::string metin = sql;
  const bool ekler = SqlTuruBul(sql) == SqlTuru::Ekler && sql.find(" returning ") == sql.npos &&
                     (sql.find(" values ") != sql.npos || sql.ends_with(" default values")) &&
                     sql.find(" on conflict ") == sql.npos;
  if (const PgTablosu* tablo = ekler ? Katalog().Bul(YazilanTablo(sql)) : nullptr;
      tablo != nullptr && !tablo->kimlik.empty())
    metin += " returning " + tablo->kimlik;
  if (SqlTuruBul(sql) == SqlTuru::Ekler)
    if (const auto n = numaralar_.find(std::string(YazilanTablo(sql))); n != numaralar_.end()) n->second = {};
  std::shared_ptr<PgYanit> yanit;
  KendiIsleminde([&] {
    if (tetiksiz) Sirala("select set_config('belvani.tetiksiz', 'on', true)", {});
    yanit = Sirala(metin, std::move(parametreler));
    if (tetiksiz) Sirala("select set_config('belvani.tetiksiz', '', true)", {});
  });
  sonYazma_ = yanit;
  if (ekler) sonEkleme_ = yanit;
  return yanit;
}

void PgMotor::Kur(const std::vector<std::string>& komutlar) {
  Degisti();
  KendiIsleminde([&] {
    Sirala(std::string("set local role ") + PgSahip, {});
    for (const std::string& komut : komutlar) b_->Sirala(komut);
    b_->Sirala("set local role none");
    b_->Bitir();
    b_->HazirlariBirak();
  });
  katalog_.reset();
}

void PgMotor::Calistir(std::string_view sql) {
  BilinenleriUnut();
  KendiIsleminde([&] {
    for (const std::string& komut : PgKomutlari(sql)) {
      if (SqlTuruBul(komut) == SqlTuru::Kurar)
        Kur({komut.find(" index ") == komut.npos || komut.starts_with("drop") ? komut : PgIndeksi(komut)});
      else
        Yaz(PgSorgusu(komut), {}, false);
    }
  });
}

// The lock is asked for on the way: whether it was given shows at the first answer that is waited for. The server would
// refuse the first change of a looker, and let him say that all is saved where nothing was to be changed.
void PgMotor::IslemBaslat(Milisaniye enCok) {
  if (saltOkunur_) throw PgSaltOkunurHatasi();
  if (islemde_) throw MotorHatasi(MotorKusuru::Diger, "Veritabanı işlemi yapılamadı [25001]");
  BaglantiyiSagla();
  b_->Sirala("begin");
  islemde_ = true;
  const auto sure = [&](Milisaniye ms) {
    b_->Sirala("select set_config('lock_timeout', $1, true)",
               {PgParametre::Metin(std::to_string(std::max<std::int64_t>(ms.count(), 1)) + "ms")});
  };
  sure(enCok);
  b_->Sirala("select pg_advisory_xact_lock($1::int, $2::int)", KilitAdi(PgKilit::Yazan, sirketNo_));
  sure(KilitBekleme);
  for (auto& [tablo, n] : numaralar_) NumaraIste(tablo, n);  // where one was needed before
}

void PgMotor::IslemOnayla() {
  Bosalt();
  if (std::exchange(degisti_, false) && Katalog().Bul("durum") != nullptr)
    b_->Sirala("update durum set degisti = clock_timestamp()");
  const auto onay = b_->Sirala("commit");
  try {
    b_->Bitir();
  } catch (const MotorHatasi& h) {
    if (h.tur != MotorKusuru::Koptu) throw;
    throw MotorHatasi(MotorKusuru::Koptu,
                      "Sunucu bağlantısı kayıt onaylanırken koptu; kaydın yapılıp yapılmadığına bakınız");
  }
  islemde_ = false;
  NumaralariBirak();
  if (onay->sonuc.Komut() != "COMMIT") throw MotorHatasi(MotorKusuru::Diger, "Veritabanı işlemi yapılamadı [25P02]");
}

void PgMotor::IslemGeriAl() noexcept {
  TamponlariBirak();
  b_->SirayiBirak();
  NumaralariBirak();
  if (islemde_ && !b_->KoptuMu()) {
    try {
      b_->Yurut("rollback");
    } catch (const MotorHatasi&) {  // the connection is gone, and the transaction with it
    }
  }
  islemde_ = false;
  katalog_.reset();
  ++yazma_;
}

void PgMotor::AraNoktaKoy() {
  Sirala("savepoint a", {});
}

void PgMotor::AraNoktaBirak() {
  Sirala("release savepoint a", {});
  Bitir();
}

// What stood in the row before the place has to happen all the same.
void PgMotor::AraNoktayaDon() noexcept {
  TamponlariBirak();
  try {
    b_->Bitir();
  } catch (const MotorHatasi&) {
  }
  try {
    b_->Sirala("rollback to savepoint a");
    b_->Sirala("release savepoint a");
    b_->Bitir();
  } catch (const MotorHatasi&) {  // the transaction is lost, and its next request says so
  }
  katalog_.reset();
  ++yazma_;
}

std::vector<MotorKolonu> PgMotor::Kolonlar(std::string_view tablo) {
  std::vector<MotorKolonu> kolonlar;
  if (const PgTablosu* t = Katalog().Bul(tablo))
    for (const PgKolonu& k : t->kolonlar)
      if (k.ad != PgSatirNo) kolonlar.push_back({k.ad, k.bildirilen});
  return kolonlar;
}

Indeksler PgMotor::TabloIndeksleri(std::string_view tablo) {
  const PgTablosu* t = Katalog().Bul(tablo);
  return t == nullptr ? Indeksler() : t->indeksler;
}

std::string PgMotor::KimlikKolonu(std::string_view tablo) {
  const PgTablosu* t = Katalog().Bul(tablo);
  return t == nullptr || t->kimlik.empty() ? std::string(PgSatirNo) : t->kimlik;
}

void PgMotor::NumaraIste(const std::string& tablo, Numaralar& n) {
  const PgTablosu* t = Katalog().Bul(tablo);
  if (t == nullptr) throw MotorHatasi(MotorKusuru::Diger, "Tablo yok: " + tablo);
  n.istenen = b_->Sirala("select nextval(pg_get_serial_sequence($1, $2)) from generate_series(1, $3::int)",
                         {PgParametre::Metin(tablo), PgParametre::Metin(t->kimlik), PgParametre::Tam(n.sonraki)});
  n.sonraki = std::min(n.sonraki * NumaraArtisi, EnCokNumara);
}

void PgMotor::NumaralariAl(Numaralar& n) {
  if (!n.istenen->geldi) b_->Bitir();
  const PgSonuc& sonuc = n.istenen->sonuc;
  for (int i = 0; i < sonuc.Satir(); ++i) n.hazir.push_back(PgTam(sonuc.Tip(0), sonuc.Ham(i, 0)));
  n.istenen.reset();
}

// Numbers are given in the order in which records come, whoever writes them: what one turn has left over is lost.
void PgMotor::NumaralariBirak() {
  for (auto& [tablo, n] : numaralar_) n = {};
}

std::int64_t PgMotor::Numara(const std::string& tablo) {
  Numaralar& n = numaralar_[tablo];
  if (n.hazir.empty()) {
    if (n.istenen == nullptr) NumaraIste(tablo, n);
    NumaralariAl(n);
  }
  const std::int64_t no = n.hazir.front();
  n.hazir.pop_front();
  return no;
}

std::int64_t PgMotor::SonKimlik() {
  if (sonEkleme_ == nullptr) return 0;
  if (!sonEkleme_->geldi) Bitir();
  const PgSonuc& sonuc = sonEkleme_->sonuc;
  return sonuc.Var() && sonuc.Satir() > 0 ? PgTam(sonuc.Tip(0), sonuc.Ham(0, 0)) : 0;
}

std::int64_t PgMotor::DegisenSatir() {
  if (sonYazma_ == nullptr) return 0;
  if (!sonYazma_->geldi && islemde_) Bitir();
  return sonYazma_->geldi ? sonYazma_->sonuc.Degisen() : 0;
}

std::int64_t PgMotor::SonNumara(std::string_view tablo) {
  const std::string kimlik = KimlikKolonu(tablo), ad(tablo);
  const PgSonuc son = Oku("select greatest(coalesce((select max(" + kimlik + ") from " + ad +
                              "), 0), coalesce(pg_sequence_last_value(pg_get_serial_sequence($1, $2)), 0))",
                          {PgParametre::Metin(ad), PgParametre::Metin(kimlik)});
  return PgTam(son.Tip(0), son.Ham(0, 0));
}

void PgMotor::SonNumarayiKoy(std::string_view tablo, std::int64_t numara) {
  if (numara > 0)
    Oku("select setval(pg_get_serial_sequence($1, $2), $3::bigint)",
        {PgParametre::Metin(tablo), PgParametre::Metin(KimlikKolonu(tablo)), PgParametre::Tam(numara)});
}

void PgMotor::SaltOkunurYap() {
  saltOkunur_ = true;
  b_->Yurut("set default_transaction_read_only = on");
}

bool PgMotor::Yazilabilir() {
  return Dogru(Oku("select has_table_privilege($1, 'insert') and not pg_is_in_recovery()",
                   {PgParametre::Metin(PgSema(sirketNo_) + ".brd")}));
}

std::string PgMotor::ButunlukKusuru(const AradaSoran&) {
  const PgSonuc bozuk =
      Oku("select c.relname::text from pg_index i join pg_class c on c.oid = i.indexrelid "
          "where c.relnamespace = $1::text::regnamespace and not i.indisvalid limit 1",
          {PgParametre::Metin(PgSema(sirketNo_))});
  return bozuk.Satir() == 0 ? std::string() : "indeks geçersiz: " + std::string(bozuk.Ham(0, 0));
}

void PgMotor::Kopyala(const std::string& yol, const KopyaAdimi& adim) {
  Bitir();
  const bool kendi = !islemde_;
  if (kendi) {
    BaglantiyiSagla();
    b_->Yurut("begin isolation level repeatable read read only");
    islemde_ = true;
  }
  try {
    DepoyuDosyayaAl(*this, yol, adim);
  } catch (...) {
    if (kendi) IslemGeriAl();
    throw;
  }
  if (kendi) IslemOnayla();
}

}  // namespace belvani
