#include "ozluk/girisbildirgesi.h"

#include <algorithm>

#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/form/formparcalari.h"

namespace belvani {
namespace {

// Millimetres of the page. Blocks stand below each other; each function draws one and gives the y below it.
constexpr double Ust = 10;
constexpr double Sol = 10;
constexpr double En = 190;
constexpr double SatirYuksekligi = 10;
constexpr double BolumYuksekligi = 5;
constexpr double EtiketYuksekligi = 3.6;
constexpr double IsaretBoyu = 4;
constexpr double Pay = 1.5;  // between a frame and what stands in it
constexpr double KalinCizgi = 0.4;

// A box to tick, with its words on the right; `en` is the room of both.
struct Secenek {
  double en = 0;
  std::string_view etiket;
  std::string ad;
  bool secili = false;
};

// Captioned boxes of a whole line.
double Satir(FormKurucu& f, double y, const std::vector<EtiketliKutu>& kutular) {
  return f.EtiketliKutular({Sol, y}, SatirYuksekligi, kutular);
}

double BolumBasligi(FormKurucu& f, double y, std::string_view metin) {
  f.Bolum({Sol, y, En, BolumYuksekligi}, metin, f.etiketYazisi.punto, MetinHizasi::Sol);
  return y + BolumYuksekligi;
}

void Secenekler(FormKurucu& f, Nokta yer, const std::vector<Secenek>& secenekler) {
  double x = yer.x;
  for (const auto& s : secenekler) {
    f.Isaret(s.ad, {x, yer.y, IsaretBoyu, IsaretBoyu}, s.secili);
    f.Etiket({x + IsaretBoyu + 1, yer.y, s.en - IsaretBoyu - 2, IsaretBoyu}, s.etiket);
    x += s.en;
  }
}

double BaslikBlogu(FormKurucu& f, double y, const GirisBildirgesi& b) {
  constexpr double boy = 24;
  constexpr double turEni = 46;
  const Dikdortgen amblem{Sol + 2, y + 2, boy - 4, boy - 4};
  const GirisEki& ek = b.form.ek;
  f.Kutu({Sol, y, En, boy});
  f.Kutu(amblem);
  if (!b.amblemPng.empty()) f.Resim(amblem, b.amblemPng);
  const double ortaX = amblem.x + amblem.en;
  const double turX = Sol + En - turEni;
  f.Baslik({ortaX, y + 3, turX - ortaX, 5}, "T.C. SOSYAL SİGORTALAR KURUMU", 9);
  f.Baslik({ortaX, y + 10, turX - ortaX, 9}, "SİGORTALI İŞE GİRİŞ BİLDİRGESİ", 14);
  f.Cizgi({turX, y}, {turX, y + boy});
  for (std::size_t i = 0; i < std::size(GirisTurleri); ++i)
    Secenekler(f, {turX + 4, y + 3 + double(i) * 6},
               {{turEni - 6, GirisTurleri[i], "giristuru" + std::to_string(i), ek.tur == i}});
  f.Etiket({turX + 4, y + 16, 18, 5}, "İşlem Tarihi");
  f.Alan("islemtarihi", {turX + 22, y + 16, turEni - 24, 5}, ek.islemTarihi.Metin());
  return y + boy;
}

double NumaraBlogu(FormKurucu& f, double y, const GirisFormu& form) {
  constexpr double boy = 9;
  f.EtiketliKutular({Sol, y}, boy, {{80, "Sicil no", 25, "kod", form.sicil.kod}});
  BasamakliHucre(f, {Sol + 80, y, En - 80, boy}, "SSK No", "sskno", 13, form.sicil.sskno);
  y += boy;
  f.EtiketliKutular({Sol, y}, boy, {{80, "1-Nüfus Seri No", 25, "serino", form.kimlik.serino}});
  BasamakliHucre(f, {Sol + 80, y, En - 80, boy}, "2-TC Kimlik No", "tcno", 11, form.kimlik.tcno);
  return y + boy;
}

double DogumCinsiyetUyruk(FormKurucu& f, double y, const Kimlik& kimlik) {
  constexpr double en = En / 3;
  const double ust = y;
  const double isaretY = ust + EtiketYuksekligi + 0.9;
  y = Satir(f, y, {{en, "9-Doğum Tarihi", EtiketUstte, "dogtar", kimlik.dogtar.Metin()}});
  f.EtiketliCerceve({Sol + en, ust, en, SatirYuksekligi}, "10-Cinsiyeti");
  std::vector<Secenek> cinsiyetler;
  for (std::size_t i = 0; i < std::size(Cinsiyetler); ++i)
    cinsiyetler.push_back({25, Cinsiyetler[i], "cins" + std::to_string(i), kimlik.cins == i});
  Secenekler(f, {Sol + en + Pay, isaretY}, cinsiyetler);
  f.EtiketliCerceve({Sol + 2 * en, ust, en, SatirYuksekligi}, "11-Uyruk");
  const bool turk = UyrukTurkMu(kimlik.uyruk);
  Secenekler(f, {Sol + 2 * en + Pay, isaretY}, {{16, "T.C.", "uyruk.tc", turk}});
  f.Etiket({Sol + 2 * en + 18, isaretY, 13, IsaretBoyu}, "Yabancı");
  const Dikdortgen yabanci{Sol + 2 * en + 31, isaretY - 0.4, en - 31 - Pay, 5};
  f.Kutu(yabanci);
  f.Alan("uyruk", {yabanci.x + 1, yabanci.y, yabanci.en - 2, yabanci.boy}, turk ? "" : kimlik.uyruk);
  return y;
}

double KimlikBlogu(FormKurucu& f, double y, const GirisFormu& form) {
  constexpr double en = En / 3;
  const Sicil& sicil = form.sicil;
  const Kimlik& kimlik = form.kimlik;
  y = NumaraBlogu(f, y, form);
  y = Satir(f, y,
            {{en, "3- Soyadı", EtiketUstte, "soyadi", sicil.soyadi},
             {en, "4-İlk Soyadı", EtiketUstte, "ilksoyadi", sicil.ilksoyadi},
             {en, "5-Adı", EtiketUstte, "adi", sicil.adi}});
  y = Satir(f, y,
            {{en, "6-Baba Adı", EtiketUstte, "baba", kimlik.baba},
             {en, "7-Ana Adı", EtiketUstte, "ana", kimlik.ana},
             {en, "8-Doğum Yeri", EtiketUstte, "dogyer", kimlik.dogyer}});
  y = DogumCinsiyetUyruk(f, y, kimlik);
  y = Satir(f, y,
            {{en, "İl", EtiketUstte, "il", kimlik.il},
             {en, "İlçe", EtiketUstte, "ilce", kimlik.ilce},
             {en, "Mahalle/Köy", EtiketUstte, "mahkoy", kimlik.mahkoy}});
  y = Satir(f, y,
            {{en, "Cilt No", EtiketUstte, "cilt", kimlik.cilt},
             {en, "Sıra(Sayfa) No", EtiketUstte, "sayfa", kimlik.sayfa},
             {en, "Hane (Kütük)", EtiketUstte, "kutuk", kimlik.kutuk}});
  y = Satir(f, y,
            {{En / 2, "Adresi", EtiketUstte, "adr1", kimlik.adr1}, {En / 2, "", EtiketUstte, "adr2", kimlik.adr2}});
  constexpr double boy = 8;
  f.Kutu({Sol, y, En, boy});
  f.Etiket({Sol + Pay, y, 25, boy}, "12-Öğrenimi");
  std::vector<Secenek> tahsiller;
  for (std::size_t i = 0; i < std::size(Tahsiller); ++i)
    tahsiller.push_back({26, Tahsiller[i], "tahsil" + std::to_string(i), kimlik.tahsil == i});
  Secenekler(f, {Sol + 30, y + 2}, tahsiller);
  return y + boy;
}

double SandikBlogu(FormKurucu& f, double y, const GirisFormu& form) {
  const std::vector<double> kolonlar{50, 50, En - 100};
  constexpr double boy = 7;
  const GirisEki& ek = form.ek;
  y = BolumBasligi(f, y, "13-Diğer Sosyal Güvenlik Bilgileri");
  f.Tablo({Sol, y}, kolonlar, BolumYuksekligi, 1);
  f.Etiket({Sol + kolonlar[0] + Pay, y, kolonlar[1], BolumYuksekligi}, "Sicil/Sandık No");
  y += BolumYuksekligi;
  f.Tablo({Sol, y}, kolonlar, boy, int(SandikSayisi));
  for (std::size_t i = 0; i < SandikSayisi; ++i) {
    const std::string no = std::to_string(i);
    Secenekler(f, {Sol + Pay, y + Pay}, {{kolonlar[0] - 2 * Pay, Sandiklar[i], "sandik" + no, ek.sandik[i]}});
    f.Alan("sandikno" + no, {Sol + kolonlar[0] + Pay, y, kolonlar[1] - 2 * Pay, boy}, ek.sandikNo[i]);
    Secenekler(f, {Sol + kolonlar[0] + kolonlar[1] + Pay, y + Pay},
               {{kolonlar[2] - 2 * Pay, Kirp(SandikAyligi[i]), "sandikayligi" + no, ek.sandikAyligi[i]}});
    y += boy;
  }
  f.Kutu({Sol, y, En, boy});
  f.Etiket({Sol + Pay, y, 54, boy}, "SSK'dan Yaşlılık Aylığı Alıyorsa Tercihi");
  std::vector<Secenek> tercihler;
  for (std::size_t i = SgdpSirasi; i < std::size(EmekliTercihleri); ++i)
    tercihler.push_back({i == SgdpSirasi ? 20.0 : 36.0, EmekliTercihleri[i], "emeklitercihi" + std::to_string(i),
                         ek.emekliTercihi == i});
  Secenekler(f, {Sol + 60, y + Pay}, tercihler);
  f.Etiket({Sol + 120, y, 16, boy}, "Tahsis No");
  f.Alan("tahsisno", {Sol + 137, y, En - 137 - Pay, boy}, form.sicil.tahsisno);
  return y + boy;
}

double EskiIsyeriBlogu(FormKurucu& f, double y, const GirisEki& ek) {
  y = BolumBasligi(f, y, "14-Eski İşyeri Bilgileri");
  y = Satir(f, y,
            {{En / 2, "Ünvanı", EtiketUstte, "eskiunvan", ek.eskiUnvan},
             {En / 4, "İli", EtiketUstte, "eskiil", ek.eskiIl},
             {En / 4, "İlçe", EtiketUstte, "eskiilce", ek.eskiIlce}});
  return Satir(f, y, {{En, "Adresi", EtiketUstte, "eskiadres", ek.eskiAdres}});
}

double VergiBlogu(FormKurucu& f, double y, const GirisBildirgesi& b) {
  constexpr double boy = 9;
  constexpr double vergiEni = 100;
  BasamakliHucre(f, {Sol, y, vergiEni, boy}, "15-Vergi No", "vergino", 11, b.form.ek.vergiNo);
  f.EtiketliKutular({Sol + vergiEni, y}, boy,
                    {{En - vergiEni, "İşe Giriş Tarihi", 29, "girtar", b.form.sicil.girtar.Metin()}});
  return Satir(f, y + boy, {{En, "SSK Durumu", EtiketUstte, "sskdurum", b.sskDurumu}});
}

// The groups of the employer's register number, a cell for each digit that they have by the law.
double IsyeriSicili(FormKurucu& f, double y, const Firma& firma) {
  struct Kutular {
    std::string_view etiket;
    int basamak;
  };
  constexpr Kutular kutular[] = {{"Sektör", 1}, {"Meslek", 4}, {"Şube", 4}, {"Dosya", 7},
                                 {"İl", 3},     {"İlçe", 2},   {"Kont.", 2}};
  constexpr double boy = 12;
  f.Kutu({Sol, y, En, boy});
  f.Etiket({Sol + Pay, y, 34, boy}, "SSK İşyeri Sicil No");
  const auto gruplar = NumaraGruplari(firma);
  double x = Sol + 38;
  for (std::size_t i = 0; i < gruplar.size(); ++i) {
    const double en = kutular[i].basamak * HucreEni;
    const double etiketEni = std::max(en, 9.0);
    f.Etiket({x - (etiketEni - en) / 2, y + 0.8, etiketEni, EtiketYuksekligi}, kutular[i].etiket, MetinHizasi::Orta);
    f.Basamaklar(gruplar[i].ad, {.x = x, .y = y + 4.8, .sayi = kutular[i].basamak, .en = HucreEni, .boy = HucreBoyu},
                 gruplar[i].deger);
    x += en + 4;
  }
  return y + boy;
}

double IsverenBlogu(FormKurucu& f, double y, const Firma& firma) {
  const auto adres = FirmaAdresi(firma);
  y = BolumBasligi(f, y, "İŞVERENİN");
  y = Satir(f, y, {{En, "Ünvanı", EtiketUstte, "firma.unvan", firma.unvan}});
  y = IsyeriSicili(f, y, firma);
  constexpr double boy = 15;
  constexpr double satirBoyu = (boy - EtiketYuksekligi - 0.8) / 2;
  f.EtiketliCerceve({Sol, y, En, boy}, "Adresi");
  for (std::size_t i = 0; i < adres.size(); ++i)
    f.Alan("firma.adr" + std::to_string(i + 1),
           {Sol + Pay, y + EtiketYuksekligi + 0.4 + double(i) * satirBoyu, En - 2 * Pay, satirBoyu}, adres[i]);
  return y + boy;
}

double ImzaBlogu(FormKurucu& f, double y, const GirisFormu& form) {
  constexpr double boy = 32;
  const std::string gun = form.sicil.girtar.Metin();
  f.Kutu({Sol, y, En, boy});
  f.Etiket({Sol + Pay, y + 1, En - 2 * Pay, 6},
           "Yukarıda kimliği yazılı sigortalı " + gun + " tarihinde işe alınmıştır.");
  for (const auto& [x, metin] : {std::pair{Sol + 10, "Sigortalının İmzası"},
                                 std::pair{Sol + En - 80, "İşveren veya Vekilinin Kaşesi ve İmzası"}}) {
    f.Etiket({x, y + 9, 70, 5}, metin, MetinHizasi::Orta);
    f.Cizgi({x + 5, y + boy - 4}, {x + 65, y + boy - 4});
  }
  return y + boy;
}

}  // namespace

std::vector<FormSayfasi> GirisBildirgesiSayfalari(const GirisBildirgesi& bildirge) {
  FormKurucu f(A4(KagitYonu::Dikey));
  double y = BaslikBlogu(f, Ust, bildirge);
  y = KimlikBlogu(f, y, bildirge.form);
  y = SandikBlogu(f, y, bildirge.form);
  y = EskiIsyeriBlogu(f, y, bildirge.form.ek);
  y = VergiBlogu(f, y, bildirge);
  y = IsverenBlogu(f, y, bildirge.firma);
  y = ImzaBlogu(f, y, bildirge.form);
  f.Kutu({Sol, Ust, En, y - Ust}, KalinCizgi);
  return {f.Sayfa()};
}

std::unique_ptr<Belge> GirisBildirgesiBelgesi(const GirisBildirgesi& bildirge) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = "Sigortalı İşe Giriş Bildirgesi";
  ayar.YzcKopya = 2;
  return std::make_unique<FormBelgesi>(ayar, GirisBildirgesiSayfalari(bildirge), GirisBildirgesiMetni(bildirge));
}

}  // namespace belvani
