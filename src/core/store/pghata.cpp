#include "core/store/pghata.h"

#include <libpq-fe.h>

namespace belvani {
namespace {

struct KodKusuru {
  std::string_view kod;  // the letters, or what they begin with
  MotorKusuru tur;
  const char* metin;
};

constexpr KodKusuru KodKusurlari[] = {
    {"55P03", MotorKusuru::Kilitli, "Veritabanı başka bir kullanıcı tarafından kilitli, biraz sonra yeniden deneyiniz"},
    {"40", MotorKusuru::Kilitli, "Başka bir kullanıcı aynı anda yazdı, yeniden deneyiniz"},
    {"53100", MotorKusuru::DiskDolu, "Sunucunun diski dolu, kayıt yazılamadı"},
    {"53200", MotorKusuru::Diger, "Sunucunun belleği yetmedi"},
    {"53", MotorKusuru::Acilamadi, "Sunucu şu anda yeni bağlantı kabul etmiyor, biraz sonra yeniden deneyiniz"},
    {"25006", MotorKusuru::SaltOkunur, "Şirket salt okunur açıldı, değişiklikler kaydedilemez"},
    {"42501", MotorKusuru::SaltOkunur, "Bu işlem için sunucuda yetkiniz yok"},
    {"57P", MotorKusuru::Koptu, "Sunucu kapandı ya da yeniden başlıyor; yazdıklarınız duruyor, yeniden deneyiniz"},
    {"08", MotorKusuru::Koptu, "Sunucu bağlantısı koptu; yazdıklarınız duruyor, yeniden deneyiniz"},
    {"XX001", MotorKusuru::Bozuk, "Sunucudaki veriler bozuk, sunucunun yöneticisine haber veriniz"},
    {"XX002", MotorKusuru::Bozuk, "Sunucudaki veriler bozuk, sunucunun yöneticisine haber veriniz"},
    {"28", MotorKusuru::Acilamadi, "Sunucu bu kullanıcıyı ya da şifresini kabul etmedi"},
    {"3D000", MotorKusuru::Acilamadi, "Sunucuda bu adda bir veritabanı yok"},
    {"22", MotorKusuru::Kisit, "Kayıt veritabanının kurallarına uymuyor"},
    {"23", MotorKusuru::Kisit, "Kayıt veritabanının kurallarına uymuyor"},
};

MotorHatasi KodHatasi(std::string_view kod) {
  for (const KodKusuru& k : KodKusurlari)
    if (kod.starts_with(k.kod)) return {k.tur, std::string(k.metin) + " [" + std::string(kod) + "]"};
  return {MotorKusuru::Diger, "Veritabanı işlemi yapılamadı [" + std::string(kod) + "]"};
}

std::string TekSatir(std::string metin) {
  while (metin.ends_with('\n')) metin.pop_back();
  return metin;
}

}  // namespace

MotorHatasi PgKopusHatasi() {
  return KodHatasi("08006");
}

MotorHatasi PgIstekHatasi(const PGresult* sonuc) {
  const char* kod = PQresultErrorField(sonuc, PG_DIAG_SQLSTATE);
  if (kod == nullptr || *kod == '\0') return PgKopusHatasi();
  return KodHatasi(kod);
}

// The library tells the server's letters of a refused connection only in its text.
MotorHatasi PgBaglantiHatasi(PGconn* baglanti) {
  const std::string metin = baglanti == nullptr ? std::string() : TekSatir(PQerrorMessage(baglanti));
  const std::string neden = metin.empty() ? std::string() : "\n" + metin;
  if (baglanti != nullptr && (PQconnectionNeedsPassword(baglanti) != 0 || PQconnectionUsedPassword(baglanti) != 0))
    return {MotorKusuru::Acilamadi, "Sunucu bu kullanıcıyı ya da şifresini kabul etmedi" + neden};
  return {MotorKusuru::Koptu, "Sunucuya bağlanılamadı" + neden};
}

}  // namespace belvani
