#include "core/store/pghata.h"

#include <libpq-fe.h>

namespace belvani {
namespace {

struct KodKusuru {
  std::string_view kod;  // the letters, or what they begin with
  MotorKusuru tur;
  const char* metin;
};

constexpr const char* Dolu = "Sunucu şu anda yeni bağlantı kabul etmiyor, biraz sonra yeniden deneyiniz";

constexpr KodKusuru KodKusurlari[] = {
    {"55P03", MotorKusuru::Kilitli, "Veritabanı başka bir kullanıcı tarafından kilitli, biraz sonra yeniden deneyiniz"},
    {"40", MotorKusuru::Kilitli, "Başka bir kullanıcı aynı anda yazdı, yeniden deneyiniz"},
    {"53100", MotorKusuru::DiskDolu, "Sunucunun diski dolu, kayıt yazılamadı"},
    {"53200", MotorKusuru::Diger, "Sunucunun belleği yetmedi"},
    {"53", MotorKusuru::Acilamadi, Dolu},
    {"25006", MotorKusuru::SaltOkunur, "Şirket salt okunur açıldı, değişiklikler kaydedilemez"},
    {"42501", MotorKusuru::SaltOkunur, "Bu işlem için sunucuda yetkiniz yok"},
    {"42P01", MotorKusuru::Diger, "Şirketin tabloları sunucuda bulunamadı; şirketteki yetkiniz kaldırılmış olabilir"},
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

// The library tells why there is no connection only in its text; the text comes along in any case.
struct NedenKusuru {
  std::string_view iz;
  MotorKusuru tur;
  const char* metin;
};

constexpr NedenKusuru NedenKusurlari[] = {
    {"certificate verify failed", MotorKusuru::Acilamadi,
     "Sunucunun sertifikası tanınmadı, bağlanılmadı: sunucu ofisin sunucusu olmayabilir ya da sertifika makamının "
     "dosyası (sslrootcert) onun değil"},
    {"does not match host name", MotorKusuru::Acilamadi,
     "Sunucunun sertifikası bu ada verilmemiş, bağlanılmadı: adrese sertifikadaki ad yazılmalı"},
    {"root certificate file", MotorKusuru::Acilamadi, "Sertifika makamının dosyası (sslrootcert) bu bilgisayarda yok"},
    {"certificate", MotorKusuru::Acilamadi, "Sertifikayla bağlanılamadı"},
    {"does not support SSL", MotorKusuru::Acilamadi, "Sunucu şifreli (TLS) bağlantı vermiyor"},
    {"pg_hba.conf", MotorKusuru::Acilamadi,
     "Sunucu bu kullanıcıyı bu bilgisayardan ya da bu bağlantı türüyle (TLS) içeri almıyor"},
    {"permission denied for database", MotorKusuru::Acilamadi,
     "Bu kullanıcıya sunucuda henüz yetki verilmemiş: belvani-cli yetki KOD KULLANICI"},
    {"is not permitted to log in", MotorKusuru::Acilamadi, "Bu kullanıcının sunucuya girişi kapatılmış"},
    {"too many connections", MotorKusuru::Acilamadi, Dolu},
    {"too many clients", MotorKusuru::Acilamadi, Dolu},
    {"connection slots", MotorKusuru::Acilamadi, Dolu},
    {"not currently accepting", MotorKusuru::Acilamadi, "Sunucunun yöneticisi bu veritabanını girişe kapatmış"},
    {"role \"", MotorKusuru::Acilamadi, "Sunucuda böyle bir kullanıcı yok"},
    {"database \"", MotorKusuru::Acilamadi, "Sunucuda bu adda bir veritabanı yok"},
    {"definition of service", MotorKusuru::Acilamadi,
     "Adresteki servis bu bilgisayarda tanımlı değil (pg_service.conf)"},
    {"could not translate host name", MotorKusuru::Koptu, "Sunucuya bağlanılamadı, adı ağda bulunamadı"},
    {"Connection refused", MotorKusuru::Koptu, "Sunucuya bağlanılamadı, çalışmıyor olabilir"},
    {"timeout expired", MotorKusuru::Koptu, "Sunucuya bağlanılamadı, yanıt vermiyor"},
    {"the database system is", MotorKusuru::Koptu, "Sunucuya bağlanılamadı, kapanıyor ya da yeniden başlıyor"},
};

const NedenKusuru* NedenBul(std::string_view metin) {
  for (const NedenKusuru& n : NedenKusurlari)
    if (metin.find(n.iz) != metin.npos) return &n;
  return nullptr;
}

}  // namespace

MotorHatasi PgKopusHatasi() {
  return KodHatasi("08006");
}

MotorHatasi PgSaltOkunurHatasi() {
  return KodHatasi("25006");
}

MotorHatasi PgIstekHatasi(const PGresult* sonuc) {
  const char* kod = PQresultErrorField(sonuc, PG_DIAG_SQLSTATE);
  if (kod == nullptr || *kod == '\0') return PgKopusHatasi();
  return KodHatasi(kod);
}

bool PgSifreReddi(PGconn* baglanti) {
  if (PQconnectionNeedsPassword(baglanti) != 0) return true;
  return PQconnectionUsedPassword(baglanti) != 0 && NedenBul(PQerrorMessage(baglanti)) == nullptr;
}

MotorHatasi PgBaglantiHatasi(PGconn* baglanti) {
  const std::string metin = baglanti == nullptr ? std::string() : TekSatir(PQerrorMessage(baglanti));
  const std::string neden = metin.empty() ? std::string() : "\n" + metin;
  if (const NedenKusuru* n = NedenBul(metin)) return {n->tur, n->metin + neden};
  if (baglanti != nullptr && PgSifreReddi(baglanti))
    return {MotorKusuru::Acilamadi, "Sunucu bu kullanıcıyı ya da şifresini kabul etmedi" + neden};
  return {MotorKusuru::Koptu, "Sunucuya bağlanılamadı" + neden};
}

}  // namespace belvani
