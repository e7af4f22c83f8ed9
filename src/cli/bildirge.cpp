// bildirge: the monthly declaration of a company
#include <algorithm>
#include <iostream>

#include "cli/belgecikti.h"
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "cli/sirketsecimi.h"
#include "core/adlar.h"
#include "core/session/firmabilgi.h"
#include "core/turkce.h"
#include "declarations/aylikbildirge.h"
#include "declarations/bildirgeformu.h"
#include "declarations/bildirgetablosu.h"
#include "declarations/bildirgexml.h"
#include "payroll/hazirlik/kosullar.h"

namespace belvani::cli {
namespace {

constexpr std::array<std::string_view, 3> Mahiyetler{"I", "E", "A"};  // in the order of BelgeMahiyeti

struct BildirgeSecenekleri {
  SirketSecimi sirketler;
  Donem donem;
  std::string belge = "00";
  std::optional<std::string> kanun;
  std::string mahiyet = "A";
  std::string bicim = "json";
  std::string dosya;
  std::vector<std::string> haric;
  bool evet = false;
};

// With --evet whatever is asked is answered yes.
class Cevaplayan : public StandartHata {
 public:
  explicit Cevaplayan(bool evet) : evet_(evet) {}
  bool Soru(std::string_view metin) override {
    if (!evet_) return StandartHata::Soru(metin);
    std::cerr << TerminalMetni(metin) << " (evet)\n";
    return true;
  }

 private:
  bool evet_;
};

constexpr const char* Yazilmadi = "Bildirge dosyası yazılmadı";
constexpr const char* Hesaplanamadi = "Bildirge hesaplanamadı";
constexpr const char* Dokulmedi = "Bildirge kağıda dökülmedi";

// The value; a fault ends the command with what is not done because of it.
template <class T>
T Olmali(Sonuc<T> sonuc, const char* yapilmayan) {
  if (!sonuc) throw KomutHatasi{sonuc.KusurMetni() + "\n" + yapilmayan};
  return std::move(*sonuc);
}

// ---- selection

[[noreturn]] void Tanimsiz(const char* ne, const std::string& deger, const std::vector<std::string>& liste) {
  std::string metin = deger + ne;
  for (std::size_t i = 1; i < liste.size(); ++i) metin += "\n  " + (liste[i].empty() ? "(boş)" : liste[i]);
  throw KomutHatasi{metin};
}

int BelgeSirasi(const std::vector<std::string>& turler, const std::string& belge) {
  const std::string kod = belge.size() < 2 ? "0" + belge : belge;
  const auto tur = std::ranges::find_if(turler, [&](const std::string& t) { return t.starts_with(kod + "-"); });
  if (tur == turler.end()) Tanimsiz(" belge türü yok, tanımlı olanlar:", belge, turler);
  return int(tur - turler.begin());
}

// As it is on the cards, or without its zeros: 5510 for "05510".
int KanunSirasi(const std::vector<std::string>& kanunlar, const std::string& kanun) {
  for (const std::string& aranan : {kanun, KanunMetni(kanun)})
    for (std::size_t i = 1; i < kanunlar.size(); ++i)
      if (TurkceEsit(kanunlar[i], aranan)) return int(i);
  Tanimsiz(" kanununa bağlı kişi yok, kişilerin kanunları:", kanun, kanunlar);
}

void SecimiKoy(AylikBildirge& bildirge, const BildirgeSecenekleri& s) {
  BildirgeSecimi& secim = bildirge.Secim();
  secim.yil = s.donem.yil;
  secim.ay = s.donem.ay;
  secim.belgeTuru = BelgeSirasi(bildirge.BelgeTurleri(), s.belge);
  if (s.kanun) secim.kanun = KanunSirasi(bildirge.KanunSecenekleri(), *s.kanun);
  secim.mahiyet = BelgeMahiyeti(std::ranges::find(Mahiyetler, s.mahiyet) - Mahiyetler.begin());
}

// Takes people out of the declaration, as the user of the screen deletes their rows.
void Cikar(AylikBildirge& bildirge, const std::vector<std::string>& sskNolar) {
  for (const std::string& no : sskNolar) {
    bool cikti = false;
    for (const BildirgeSatiri& satir : std::vector(bildirge.Tamami().satirlar)) {
      if (satir.sskno != no) continue;
      cikti = true;
      Olmali(bildirge.SatirSil(satir.no), Hesaplanamadi);
    }
    if (!cikti) throw KomutHatasi{no + ": bildirgede bu SSK sicil numarası yok"};
  }
}

// ---- JSON: rows by the names of the columns, then what stands below the grid

Json SutunJson(const std::string& metin) {
  return metin;
}
Json SutunJson(Tarih gun) {
  return gun.Bos() ? Json() : Json(gun.Metin());
}
Json SutunJson(std::optional<int> sayi) {
  return sayi ? Json(*sayi) : Json();
}
Json SutunJson(std::optional<Tutar> tutar) {
  return tutar ? DegerJson(*tutar) : Json();
}

// Codes keep their zeros.
Json SatirJson(const BildirgeSatiri& satir) {
  Json json = Json::object();
  for (const auto& kolon : BildirgeKolonlari)
    json[std::string(kolon.ad)] = kolon.hane > 0
                                      ? Json(HucreMetni(satir, kolon, 0))
                                      : std::visit([&](auto hucre) { return SutunJson(satir.*hucre); }, kolon.hucre);
  return json;
}

Json ToplamJson(const BildirgeToplamlari& t) {
  return {{"sigortali", t.sigortali},
          {"gun", t.gun},
          {"giren", t.giren},
          {"ayrilan", t.ayrilan},
          {"ucretsizIzinli", t.ucretsizIzinli},
          {"ucretsizGun", t.ucretsizGun},
          {"ucretliIzinli", t.ucretliIzinli},
          {"ucretliGun", t.ucretliGun},
          {"ucretliKazanc", DegerJson(t.ucretliKazanc)}};
}

Json BranslarJson(const Bildirge& b) {
  constexpr std::array<const char*, BransSayisi> adlar{"kisaVade", "analik", "saglik",
                                                       "uzunVade", "destek", "issizlik"};
  Json json = Json::object();
  for (std::size_t i = 0; i < BransSayisi; ++i) {
    Json& brans = json[adlar[i]];
    brans["matrah"] = DegerJson(b.toplamlar.*BransMatrahlari[i]);
    brans["oran"] = b.PrimOran[i].Sayi();
    if (i != AnalikBransi) brans["prim"] = DegerJson(b.prim.primler[i]);
  }
  return json;
}

std::string JsonMetni(AylikBildirge& bildirge) {
  const Bildirge& b = bildirge.Tamami();
  Json satirlar = Json::array();
  for (const auto& satir : b.satirlar) satirlar.push_back(SatirJson(satir));
  const Json json{{"yil", b.secim.yil},
                  {"ay", b.secim.ay},
                  {"mahiyet", Mahiyetler[std::size_t(b.secim.mahiyet)]},
                  {"belgeTuru", bildirge.BelgeTurleri()[std::size_t(b.secim.belgeTuru)]},
                  {"kanun", bildirge.KanunSecenekleri()[std::size_t(b.secim.kanun)]},
                  {"satirlar", std::move(satirlar)},
                  {"toplamlar", ToplamJson(b.toplamlar)},
                  {"branslar", BranslarJson(b)},
                  {"devletKatkisi", DegerJson(b.DevletKatki)},
                  {"genelToplam", DegerJson(b.prim.genelToplam)}};
  return json.dump(2) + "\n";
}

// ---- forms

struct Is {
  AylikBildirge& bildirge;
  Oturum& oturum;
  Bildirim& bildirim;
  const std::string& dosya;

  BildirgeKagidi Kagit() const { return KagitHazirla(bildirge, oturum); }
  void KagitKosullari(AylikBildirge::Cikti cikti) const {
    if (Olmali(bildirge.KagitKosullari(cikti), Dokulmedi) == AylikBildirge::CiktiKarari::Yok)
      throw KomutHatasi{Dokulmedi};
  }
  void Ver(const std::string& icerik, const std::string& uyari) const {
    if (!uyari.empty()) bildirim.Uyari(uyari);
    BaytlariYaz(icerik, dosya);
  }
};

void BildirgeJsonu(const Is& is) {
  Yaz(JsonMetni(is.bildirge), is.dosya);
}

void XmlDosyasi(const Is& is) {
  Olmali(is.bildirge.XmlKosullari(), Yazilmadi);
  if (!is.dosya.empty() && is.dosya != "-") {
    if (Olmali(is.bildirge.XmlYaz(is.dosya), Yazilmadi) == AylikBildirge::Karar::Vazgecildi)
      throw KomutHatasi{Yazilmadi};
    is.bildirim.Bilgi(AylikBildirge::XmlHazirlandi);
    return;
  }
  const auto icerik = Olmali(is.bildirge.XmlHazirla(), Yazilmadi);
  if (!icerik) throw KomutHatasi{Yazilmadi};
  Yaz(*icerik, is.dosya);
}

void PdfDosyasi(const Is& is) {
  is.KagitKosullari(AylikBildirge::Cikti::Kagit);
  auto pdf = BelgePdf(*BildirgeBelgesi(is.Kagit()));
  const auto& belge = Degeri(pdf);  // the fault first: arguments are evaluated in any order
  is.Ver(belge.baytlar, belge.uyari);
}

void MatbuMetni(const Is& is) {
  is.KagitKosullari(AylikBildirge::Cikti::Kagit);
  is.bildirim.Bilgi(MatbuUyarisi);
  Yaz(BildirgeYazdir(is.Kagit()), is.dosya);
}

void ExcelDosyasi(const Is& is) {
  is.KagitKosullari(AylikBildirge::Cikti::Tablo);
  auto sablon = TabloSablonu(is.oturum);
  auto tablo = BildirgeTablosuYap(std::move(Degeri(sablon)), is.Kagit());
  BaytlariYaz(Degeri(tablo), is.dosya);
}

enum class Ekran { Olur, Olmaz };

struct Bicim {
  const char* ad;
  void (*yaz)(const Is& is);
  Ekran ekran = Ekran::Olur;
};

constexpr Bicim bicimler[] = {{"json", BildirgeJsonu},
                              {"xml", XmlDosyasi},
                              {"pdf", PdfDosyasi, Ekran::Olmaz},
                              {"xlsx", ExcelDosyasi, Ekran::Olmaz},
                              {"metin", MatbuMetni}};

// What a terminal cannot show needs a file.
void DosyayiIste(const BildirgeSecenekleri& s) {
  for (const Bicim& bicim : bicimler)
    if (s.bicim == bicim.ad && bicim.ekran == Ekran::Olmaz && s.dosya.empty())
      throw CLI::ValidationError("--bicim", s.bicim + " ekrana yazılmaz, dosyasını veriniz: -o DOSYA");
}

void KimliksizleriSoyle(const Kusurlar& uyarilar, Bildirim& bildirim) {
  if (uyarilar.empty()) return;
  std::string metin = "Kimlik bilgisi olmayanlar bildirgeye alınmadı:";
  for (const Kusur& uyari : uyarilar) metin += " " + uyari.kod;
  bildirim.Uyari(metin);
}

// The electronic file has a name of its own.
std::string BildirgeCiktiAdi(const BildirgeSecenekleri& s, const BildirgeSecimi& secim) {
  if (s.bicim == "xml") return XmlDosyaAdi(secim);
  const std::string ay = std::to_string(s.donem.ay);
  return BelgeDosyaAdi("bildirge-" + std::to_string(s.donem.yil) + (ay.size() < 2 ? "-0" : "-") + ay, s.bicim);
}

void BildirgeYap(Genel& genel, const SirketIsi& isi, const BildirgeSecenekleri& s) {
  const auto o = genel.SirketAc(isi.kod);
  const KuruluMevzuat mevzuat = KuruluMevzuatOku(o->DataPath);
  auto yasal = YasalParametreleriAl(mevzuat);
  MevzuatUyarisi(genel, mevzuat, s.donem);
  Cevaplayan bildirim(s.evet);
  AylikBildirge bildirge(*o, Degeri(yasal), bildirim);
  for (const Kusur& kusur : Olmali(bildirge.Ac(), "Şirketin kayıtları okunamadı")) bildirim.KusuruGoster(kusur);
  SecimiKoy(bildirge, s);
  Olmali(bildirge.Hesapla(), Hesaplanamadi);
  KimliksizleriSoyle(bildirge.Uyarilar(), bildirim);
  Cikar(bildirge, s.haric);
  if (bildirge.Tamami().satirlar.empty()) isi.Atla("Bildirgeye giren kişi yok");
  const std::string dosya = isi.Dosya(s.dosya, BildirgeCiktiAdi(s, bildirge.Tamami().secim));
  for (const Bicim& bicim : bicimler)
    if (s.bicim == bicim.ad) bicim.yaz({bildirge, *o, bildirim, dosya});
}

}  // namespace

void BildirgeKomutu(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<BildirgeSecenekleri>();
  auto* komut = app.add_subcommand("bildirge", "Ayın SGK aylık prim ve hizmet bildirgesini verir");
  s->sirketler.SecenekEkle(*komut);
  DonemSecenekleri(*komut, s->donem);
  komut->add_option("--belge", s->belge, "belge türünün numarası (verilmezse hepsi)")->type_name("NN");
  komut->add_option("--kanun", s->kanun, "yalnız bu kanuna bağlı kişiler");
  komut->add_option("--mahiyet", s->mahiyet, "A asıl, E ek, I iptal")->check(CLI::IsMember({"A", "E", "I"}));
  std::vector<std::string> adlar;
  for (const Bicim& bicim : bicimler) adlar.emplace_back(bicim.ad);
  komut->add_option("--bicim", s->bicim, "json, xml (e-bildirge dosyası), pdf, xlsx veya metin (matbu evrak)")
      ->check(CLI::IsMember(adlar));
  komut->add_option("-o", s->dosya, "yazılacak dosya (pdf ve xlsx dışında verilmezse ekrana; - standart çıktı)");
  auto* haric = komut->add_option("--haric", s->haric, "bu SSK sicil numaralı kişiyi bildirgeden çıkarır");
  haric->type_name("NO");
  s->sirketler.YalnizTekSirkette(haric);
  komut->add_flag("--evet", s->evet, "sorulan sorulara evet der");
  komut->parse_complete_callback([s] { DosyayiIste(*s); });
  komut->callback([&genel, s] {
    s->sirketler.CiktiyiDenetle(s->bicim, s->dosya);
    s->sirketler.Calistir(genel, [&](const SirketIsi& isi) { BildirgeYap(genel, isi, *s); });
  });
}

}  // namespace belvani::cli
