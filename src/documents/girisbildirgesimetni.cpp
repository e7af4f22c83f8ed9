#include "documents/firmaadresi.h"
#include "documents/girisbildirgesi.h"
#include "printing/metinformu.h"

namespace belvani {
namespace {

// clang-format off
constexpr std::string_view sablon =
    "┌──────────────────────────────────────────────┬────────────┬───┬───────────────────────────────┐\n"
    "│        T.C. SOSYAL SİGORTALAR KURUMU         │ İ L K      │   │ İşlem Tarihi :                │\n"
    "│                                              ├────────────┼───┤                               │\n"
    "│        SİGORTALI İŞE GİRİŞ BİLDİRGESİ        │ T E K R A R│   │                               │\n"
    "├──────────────────────────────────────────────┼────────────┴───┴─────┬─┬─┬─┬─┬─┬─┬─┬─┬─┬─┬─┬─┬─┤\n"
    "│ Sicil no :                                   │ SSK No               │ │ │ │ │ │ │ │ │ │ │ │ │ │\n"
    "├──────────────────────────────────────────────┼──────────────────────┴─┴─┼─┼─┼─┼─┼─┼─┼─┼─┼─┼─┼─┤\n"
    "│ 1-Nüfus Seri No :                            │ 2-TC Kimlik No           │ │ │ │ │ │ │ │ │ │ │ │\n"
    "├──────────────────────────────┬───────────────┴───────────────┬──────────┴─┴─┴─┴─┴─┴─┴─┴─┴─┴─┴─┤\n"
    "│ 3- Soyadı                    │ 4-İlk Soyadı                  │ 5-Adı                          │\n"
    "│                              │                               │                                │\n"
    "├──────────────────────────────┼───────────────────────────────┼────────────────────────────────┤\n"
    "│ 6-Baba Adı                   │ 7-Ana Adı                     │ 8-Doğum Yeri                   │\n"
    "│                              │                               │                                │\n"
    "├──────────────────────────────┼───────────────────────────────┼────────────────────────────────┤\n"
    "│ 9-Doğum Tarihi               │ 10-Cinsiyeti                  │ 11-Uyruk                       │\n"
    "│                              │ [ ] Erkek      [ ] Kadın      │ [ ] T.C. Yabancı :             │\n"
    "├──────────────────────────────┼───────────────────────────────┼────────────────────────────────┤\n"
    "│ İl                           │ İlçe                          │ Mahalle/Köy                    │\n"
    "│                              │                               │                                │\n"
    "├──────────────────────────────┼───────────────────────────────┼────────────────────────────────┤\n"
    "│ Cilt No                      │ Sıra(Sayfa) No                │ Hane (Kütük)                   │\n"
    "│                              │                               │                                │\n"
    "├──────────────────────────────┴───────────────────────────────┴────────────────────────────────┤\n"
    "│ Adresi :                                                                                      │\n"
    "│                                                                                               │\n"
    "├───────────────────────────────────────────────────────────────────────────────────────────────┤\n"
    "│ 12-Öğrenimi    [ ] Yok      [ ] İlk      [ ] Orta     [ ] Lise     [ ] Yüksek   [ ] OkurYazar │\n"
    "├───────────────────────────────────────────────────────────────────────────────────────────────┤\n"
    "│ 13-Diğer Sosyal Güvenlik Bilgileri                                                            │\n"
    "├────────────────────┬────────────────────┬─────────────────────────────────────────────────────┤\n"
    "│                    │ Sicil/Sandık No    │                                                     │\n"
    "│ [ ] Emekli Sandığı │                    │ [ ] Emekli Sandığından Aylık Alıyorsa İşaretleyiniz │\n"
    "│ [ ] Bağ-Kur        │                    │ [ ] Bağkur'dan aylık alıyorsa işaretleyiniz         │\n"
    "│ [ ] Diğer          │                    │ [ ] Aylık                                           │\n"
    "├────────────────────┴────────────────────┴─────────────────────────────────────────────────────┤\n"
    "│ SSK'dan Yaşlılık Aylığı Alıyorsa Tercihi :  [ ] S.G.D.P.   [ ] Tüm Sigorta Kolları            │\n"
    "│ Tahsis No :                                                                                   │\n"
    "├───────────────────────────────────────────────────────────────────────────────────────────────┤\n"
    "│ 14-Eski İşyeri Bilgileri                                                                      │\n"
    "│ Ünvanı :                                                                                      │\n"
    "│ Adresi :                                                                                      │\n"
    "│ İli    :                   İlçe :                                                             │\n"
    "├─────────────┬─┬─┬─┬─┬─┬─┬─┬─┬─┬─┬─┬───────────────────────────────────────────────────────────┤\n"
    "│ 15-Vergi No │ │ │ │ │ │ │ │ │ │ │ │   İşe Giriş Tarihi :                                      │\n"
    "├─────────────┴─┴─┴─┴─┴─┴─┴─┴─┴─┴─┴─┴───────────────────────────────────────────────────────────┤\n"
    "│SSK Durumu :                                                                                   │\n"
    "├───────────────────────────────────────────────────────────────────────────────────────────────┤\n"
    "│ İŞVERENİN                                                                                     │\n"
    "│ Ünvanı :                                                                                      │\n"
    "├─────────────────────┬────────┬────────┬────┬───────────────┬────┬────┬───────┬────────────────┤\n"
    "│ SSK İşyeri Sicil No │Sektör  │Meslek  │Şube│Dosya          │İl  │İlçe│Kontrol│                │\n"
    "│                     │        │        │    │               │    │    │       │                │\n"
    "├─────────────────────┴────────┴────────┴────┴───────────────┴────┴────┴───────┴────────────────┤\n"
    "│ Adresi :                                                                                      │\n"
    "│                                                                                               │\n"
    "├───────────────────────────────────────────────────────────────────────────────────────────────┤\n"
    "│ Yukarıda kimliği yazılı sigortalı            tarihinde işe alınmıştır.                        │\n"
    "│                                                                                               │\n"
    "│              Sigortalının İmzası                   İşveren veya Vekilinin Kaşesi ve İmzası    │\n"
    "│                                                                                               │\n"
    "│                                                                                               │\n"
    "│        ..............................                   ..............................        │\n"
    "│                                                                                               │\n"
    "└───────────────────────────────────────────────────────────────────────────────────────────────┘";
// clang-format on

// Places are in lines and columns of the template.
constexpr int Adim = 2;                  // from cell to cell
constexpr int SonHucre = 96;             // where digits at the right end
constexpr int Kolonlar[] = {3, 34, 66};  // of the rows of three
constexpr int KolonEni = 29;

struct Satir {
  MetinYeri yer;
  std::string deger;
};

void Yaz(MetinFormu& form, const std::vector<Satir>& satirlar) {
  for (const auto& s : satirlar) form.Koy(s.yer, s.deger);
}

void Ucu(MetinFormu& form, int satir, const std::string& a, const std::string& b, const std::string& c) {
  int kolon = 0;
  for (const auto* deger : {&a, &b, &c}) form.Koy({satir, Kolonlar[kolon++], KolonEni}, *deger);
}

void Isaretle(MetinFormu& form, int satir, int kolon, bool isaretli) {
  if (isaretli) form.Koy({satir, kolon, 1}, "X");
}

void SagBasamaklar(MetinFormu& form, int satir, int basamak, const std::string& deger) {
  form.Basamaklar(satir, SonHucre - Adim * (basamak - 1), Adim, basamak, deger);
}

void KimlikYaz(MetinFormu& form, const Sicil& sicil, const Kimlik& kimlik) {
  Yaz(form, {{{6, 14, 33}, sicil.kod}, {{8, 21, 26}, kimlik.serino}});
  SagBasamaklar(form, 6, 13, sicil.sskno);
  SagBasamaklar(form, 8, 11, kimlik.tcno);
  Ucu(form, 11, sicil.soyadi, sicil.ilksoyadi, sicil.adi);
  Ucu(form, 14, kimlik.baba, kimlik.ana, kimlik.dogyer);
  form.Koy({17, 3, KolonEni}, kimlik.dogtar.Metin());
  Isaretle(form, 17, kimlik.cins == 0 ? 35 : 50, kimlik.cins < std::size(Cinsiyetler));
  const bool turk = UyrukTurkMu(kimlik.uyruk);
  Isaretle(form, 17, 67, turk);
  if (!turk) form.Koy({17, 85, 12}, kimlik.uyruk);
  Ucu(form, 20, kimlik.il, kimlik.ilce, kimlik.mahkoy);
  Ucu(form, 23, kimlik.cilt, kimlik.sayfa, kimlik.kutuk);
  Yaz(form, {{{25, 12, 85}, kimlik.adr1}, {{26, 12, 85}, kimlik.adr2}});
  Isaretle(form, 28, 19 + 13 * kimlik.tahsil, kimlik.tahsil < std::size(Tahsiller));
}

void EkYaz(MetinFormu& form, const GirisEki& ek) {
  form.Koy({2, 82, 10}, ek.islemTarihi.Metin());
  Isaretle(form, ek.tur == 0 ? 2 : 4, 63, ek.tur < std::size(GirisTurleri));
  for (int i = 0; i < int(SandikSayisi); ++i) {
    const auto sira = std::size_t(i);
    Isaretle(form, 33 + i, 4, ek.sandik[sira]);
    form.Koy({33 + i, 23, 20}, ek.sandikNo[sira]);
    Isaretle(form, 33 + i, 46, ek.sandikAyligi[sira]);
  }
  Isaretle(form, 37, 48, ek.emekliTercihi == SgdpSirasi);
  Isaretle(form, 37, 63, ek.emekliTercihi > SgdpSirasi);
  Yaz(form, {{{41, 12, 85}, ek.eskiUnvan},
             {{42, 12, 85}, ek.eskiAdres},
             {{43, 12, 17}, ek.eskiIl},
             {{43, 37, 60}, ek.eskiIlce}});
  form.Basamaklar(45, 16, Adim, 11, ek.vergiNo);
}

void IsverenYaz(MetinFormu& form, const Firma& firma) {
  const auto adres = FirmaAdresi(firma);
  Yaz(form, {{{50, 12, 85}, firma.unvan},
             {{53, 24, 8}, firma.sektor},
             {{53, 33, 8}, firma.meslek},
             {{53, 42, 4}, firma.sube},
             {{53, 47, 15}, firma.dosya},
             {{53, 63, 4}, firma.il},
             {{53, 68, 4}, firma.ilce},
             {{53, 73, 7}, firma.kontrol},
             {{55, 12, 85}, adres[0]},
             {{56, 12, 85}, adres[1]}});
}

}  // namespace

std::string GirisBildirgesiMetni(const GirisBildirgesi& bildirge) {
  MetinFormu form(sablon);
  const Sicil& sicil = bildirge.form.sicil;
  KimlikYaz(form, sicil, bildirge.form.kimlik);
  EkYaz(form, bildirge.form.ek);
  const std::string girtar = sicil.girtar.Metin();
  Yaz(form, {{{38, 15, 82}, sicil.tahsisno},
             {{45, 60, 37}, girtar},
             {{47, 15, 82}, bildirge.sskDurumu},
             {{58, 37, 10}, girtar}});
  IsverenYaz(form, bildirge.firma);
  return form.Metin();
}

}  // namespace belvani
