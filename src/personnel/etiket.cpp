#include "personnel/etiket.h"

namespace belvani {
namespace {

struct Etiket {
  std::string_view tablo;
  std::string_view alan;
  std::string_view metin;
};

constexpr Etiket Etiketler[] = {
    {"sicil", "kod", "Sicil No"},
    {"sicil", "adi", "Adı"},
    {"sicil", "soyadi", "Soyadı"},
    {"sicil", "ilksoyadi", "İlk Soyadı"},
    {"sicil", "sskno", "SSK No"},
    {"sicil", "sskdurum", "SSK Durum"},
    {"sicil", "ucrettipi", "Ücret Tipi"},
    {"sicil", "ucret", "Ücreti"},
    {"sicil", "girtar", "Giriş Tarihi"},
    {"sicil", "ciktar", "Çıkış Tarihi"},
    {"sicil", "grup", "Grup"},
    {"sicil", "tip", "Tip"},
    {"sicil", "ozel", "Özel"},
    {"sicil", "hesap", "Hesap Kodu"},
    {"sicil", "tasno", "Sendika No"},
    {"sicil", "verda", "Vergi Dairesi"},
    {"sicil", "verno", "Hesap No"},
    {"sicil", "iskolu", "Meslek Kolu"},
    {"sicil", "meslekkod", "Meslek Kodu"},
    {"sicil", "kanun", "Kanun No"},
    {"sicil", "tahsisno", "Tahsis No"},
    {"sicil", "sakatdrc", "Sakatlık Drc."},
    {"sicil", "agi", "Asgari Geçim İndirimi"},
    {"sicil", "tur", "Huzur Hakkı Bordrosuna Aitlik"},

    {"kimlik", "kod", "Sicil No"},
    {"kimlik", "serino", "Seri No"},
    {"kimlik", "tcno", "TC Kimlik"},
    {"kimlik", "cins", "Cinsiyet"},
    {"kimlik", "medeni", "Medeni Hal"},
    {"kimlik", "baba", "Baba Adı"},
    {"kimlik", "ana", "Ana Adı"},
    {"kimlik", "uyruk", "Uyruk"},
    {"kimlik", "dogyer", "Doğum Yeri"},
    {"kimlik", "dogtar", "D. Tarihi"},
    {"kimlik", "dini", "Dini"},
    {"kimlik", "kan", "Kan Grubu"},
    {"kimlik", "il", "İl"},
    {"kimlik", "ilce", "İlçe"},
    {"kimlik", "mahkoy", "Mahalle/Köy"},
    {"kimlik", "cilt", "Cilt No"},
    {"kimlik", "sayfa", "Sıra(Sayfa) No"},
    {"kimlik", "kutuk", "Kütük(Aile) No"},
    {"kimlik", "nufusd", "Verildiği Yer"},
    {"kimlik", "versebeb", "Veriliş Nedeni"},
    {"kimlik", "kayitno", "Kayıt No"},
    {"kimlik", "vertar", "Veriliş Tarihi"},
    {"kimlik", "tahsil", "Tahsil"},
    {"kimlik", "adr1", "Adresi"},
    {"kimlik", "adr2", "Adresi"},
    {"kimlik", "tel", "Telefonu"},

    {"esco", "kod", "Personel Kodu"},
    {"esco", "tcno", "TC Kimlik"},
    {"esco", "adi", "Adı"},
    {"esco", "soyadi", "Soyadı"},
    {"esco", "yakinlik", "Yakınlık"},
    {"esco", "cins", "Cinsiyet"},
    {"esco", "dogtar", "Doğum Tarihi"},
    {"esco", "dogyer", "Doğum Yeri"},
    {"esco", "adr", "Adres"},
    {"esco", "agiok", "A.G.İ."},

    {"brd", "ay", "Ay"},
    {"brd", "ng", "N.G."},
    {"brd", "ht", "H.T."},
    {"brd", "ui", "U.İ."},
    {"brd", "rt", "R.T."},
    {"brd", "eksiksebebi", "E.G."},
    {"brd", "sskmatrah", "SSK Matrah"},
    {"brd", "sskkesinti", "SSK Kesintisi"},
    {"brd", "sskmatrahisveren", "SSK.İşvr.Matrah"},
    {"brd", "sskkesintiisveren", "SSK.İşvr.Kesinti"},
    {"brd", "gvmatrah", "G.V.Matrah"},
    {"brd", "gvtutar", "G.V.Tutar"},
    {"brd", "dvmatrah", "D.V.Matrah"},
    {"brd", "dvtutar", "D.V.Tutar"},
    {"brd", "ogv", "A.G.İ./Ö.G.İ."},

    {"dvr", "kod", "Personel Sicil No"},
    {"dvr", "yil", "Yılı"},
    {"dvr", "gvmatrah", "G.V. Matrah"},
    {"dvr", "gvtutar", "G.V. Tutar"},
    {"dvr", "issizlik", "İşsizlik Primi"},
    {"dvr", "ogimatrah", "Ö.G.İ. Matrah"},
    {"dvr", "ogitutar", "Ö.G.İ. Tutar"},
    {"dvr", "ogiodenen", "Ö.G.İ. Ödenen"},

    {"cari", "kod", "Personel Kodu"},
    {"cari", "tarih", "Tarih"},
    {"cari", "islem", "İş."},
    {"cari", "ack", "Açıklama"},
    {"cari", "tutar", "Tutar"},
};

}  // namespace

std::string_view AlanEtiketi(std::string_view tablo, std::string_view alan) {
  for (const Etiket& e : Etiketler)
    if (e.tablo == tablo && e.alan == alan) return e.metin;
  return alan;
}

}  // namespace belvani
