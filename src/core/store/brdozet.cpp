#include "core/store/brdozet.h"

#include "core/store/bordrokodu.h"
#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "core/tables/brd.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool TabloVar(Motor& motor) {
  return !motor.Kolonlar("brdozet").empty();
}

void DegeriBagla(KayitOzeti& ozet, const Komut& komut, int i, AlanTipi tip) {
  switch (komut.Turu(i)) {
    case Komut::Tur::Null:
      return ozet.NullBagla(i);
    case Komut::Tur::Tam:
      // A real that is whole may be kept as a whole number.
      return tip == AlanTipi::Tek ? ozet.SayiBagla(i, komut.Sayi(i)) : ozet.TamBagla(i, komut.Tam(i));
    case Komut::Tur::Sayi:
      return ozet.SayiBagla(i, komut.Sayi(i));
    case Komut::Tur::Metin:
      return ozet.MetinBagla(i, komut.Metin(i));
    case Komut::Tur::Bayt:
      return ozet.BaytBagla(i, komut.Bayt(i));
  }
}

// Number, columns, checksum and its number of the records that meet `kosul`.
std::unique_ptr<Komut> KayitKomutu(Motor& motor, const std::string& kosul = {}) {
  const std::string kimlik = "b." + motor.KimlikKolonu(Brd::TabloAdi);
  return motor.Hazirla("select " + kimlik + ", o.ozet, o.oto, " + SecimListesi<Brd>(motor, "b") +
                       " from brd b left join brdozet o on o.oto = " + kimlik + kosul);
}
constexpr int KimlikYeri = 0, OzetYeri = 1, OzetKimligiYeri = 2, IlkKolonYeri = 3;

// A record without a checksum agrees with everything.
bool OzetTutuyor(const Komut& komut) {
  return komut.Turu(OzetYeri) == Komut::Tur::Null || komut.Tam(OzetYeri) == BrdSatirOzeti(komut, IlkKolonYeri);
}

// What a damaged record says of itself, as far as it can be printed.
struct KayitAdi {
  std::string kod, ay;
};

KayitAdi Adi(const Komut& komut) {
  Brd b;
  KayitAl(komut, IlkKolonYeri, b);
  return {GecerliUtf8(b.kod) ? b.kod : std::string(), std::to_string(b.yil) + "/" + std::to_string(b.ay)};
}

// Records of one kind of remark: how many, and the first one's person.
struct Sayim {
  std::size_t sayi = 0;
  std::string kod;

  void Ekle(const Komut& komut) {
    if (sayi++ == 0) kod = Adi(komut).kod;
  }
  void Yaz(const char* ne, Kusurlar& kusurlar) const {
    if (sayi != 0)
      kusurlar.push_back(
          {.metin = "brd: " + std::to_string(sayi) + " kayıt " + ne, .kod = kod, .derece = Derece::Uyari});
  }
};

void KayiplariYaz(Motor& motor, Kusurlar& kusurlar) {
  const auto komut = motor.Hazirla("select o.oto from brdozet o where not exists (select 1 from brd b where b." +
                                   motor.KimlikKolonu(Brd::TabloAdi) + " = o.oto)");
  while (komut->Adim())
    kusurlar.push_back({.metin = "brd: " + std::to_string(komut->Tam(0)) + " numaralı kayıt kaybolmuş"});
}

}  // namespace

std::int64_t BrdSatirOzeti(const Komut& komut, int ilk, std::optional<std::string_view> kod) {
  KayitOzeti ozet;
  Brd::HerKolon([&](const AlanTanimi& kolon) {
    if (kod && kolon.ad == brd::kod.ad)
      ozet.MetinBagla(ilk, *kod);
    else if (kolon.nitelik != AlanNiteligi::Otomatik)
      DegeriBagla(ozet, komut, ilk, kolon.tip);
    ++ilk;
  });
  return ozet.Deger();
}

std::optional<std::int64_t> YeniKodunOzeti(const Komut& komut, int ozetYeri, int ilk, std::string_view kod) {
  if (komut.Turu(ozetYeri) == Komut::Tur::Null) return std::nullopt;
  const std::int64_t yazili = komut.Tam(ozetYeri);
  return yazili == BrdSatirOzeti(komut, ilk) ? BrdSatirOzeti(komut, ilk, kod) : yazili;
}

BordroKoduYazici::BordroKoduYazici(Motor& motor)
    : ozetler_(motor),
      oku_(KayitKomutu(motor, " where b." + motor.KimlikKolonu(Brd::TabloAdi) + " = ?")),
      yaz_(motor.TetiksizHazirla("update brd set kod = ? where " + motor.KimlikKolonu(Brd::TabloAdi) + " = ?")) {}

void BordroKoduYazici::Yaz(std::int64_t oto, std::string_view kod) {
  oku_->TamBagla(1, oto);
  if (!oku_->Adim()) return;
  const auto ozet = YeniKodunOzeti(*oku_, OzetYeri, IlkKolonYeri, kod);
  oku_->Birak();
  yaz_->MetinBagla(1, kod);
  yaz_->TamBagla(2, oto);
  yaz_->Calistir();
  if (ozet) ozetler_.Yaz(oto, *ozet);
}

BrdOzetleri::BrdOzetleri(Motor& motor) : motor_(motor) {
  motor.OzetleriKur();
}

void BrdOzetleri::Yaz(std::int64_t oto, std::int64_t ozet) {
  if (yazici_ == nullptr) yazici_ = motor_.SatirYaziciAc({"brdozet", {"oto", "ozet"}}, YazmaTuru::Koy);
  yazici_->TamBagla(2, ozet);
  yazici_->Yaz(oto);
}

void BrdOzetleri::Yenile(std::int64_t oto) {
  const auto kayit = KayitKomutu(motor_, " where b." + motor_.KimlikKolonu(Brd::TabloAdi) + " = ?");
  kayit->TamBagla(1, oto);
  if (!kayit->Adim()) return;
  const std::int64_t ozet = BrdSatirOzeti(*kayit, IlkKolonYeri);
  kayit->Birak();
  Yaz(oto, ozet);
}

bool BrdOzetleri::Tutuyor(std::int64_t oto) {
  const auto kayit = KayitKomutu(motor_, " where b." + motor_.KimlikKolonu(Brd::TabloAdi) + " = ?");
  kayit->TamBagla(1, oto);
  const bool tutuyor = !kayit->Adim() || OzetTutuyor(*kayit);
  kayit->Birak();
  return tutuyor;
}

std::size_t BrdOzetleri::EksikleriYaz() {
  std::vector<std::pair<std::int64_t, std::int64_t>> eksik;  // read to the end before anything is written
  const auto kayitlar = KayitKomutu(motor_, " where o.ozet is null");
  while (kayitlar->Adim()) eksik.emplace_back(kayitlar->Tam(KimlikYeri), BrdSatirOzeti(*kayitlar, IlkKolonYeri));
  for (const auto& [oto, ozet] : eksik) Yaz(oto, ozet);
  return eksik.size();
}

Kusurlar BrdOzetKusurlari(Motor& motor, Ilerleme* ilerleme) {
  Kusurlar kusurlar;
  Sayim ozetsiz, disaridan;
  if (!TabloVar(motor)) {
    const auto komut = motor.Hazirla("select count(*) from brd");
    if (komut->Adim()) ozetsiz.sayi = std::size_t(komut->Tam(0));
  } else {
    const auto komut = KayitKomutu(motor);
    for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
      if (komut->Turu(OzetKimligiYeri) == Komut::Tur::Null)
        ozetsiz.Ekle(*komut);
      else if (komut->Turu(OzetYeri) == Komut::Tur::Null)
        disaridan.Ekle(*komut);
      else if (!OzetTutuyor(*komut)) {
        auto [kod, ay] = Adi(*komut);
        kusurlar.push_back({.metin = "brd: " + ay + " kaydı (" + std::to_string(komut->Tam(KimlikYeri)) +
                                     ") bozulmuş, değerleri özetini tutmuyor",
                            .kod = std::move(kod)});
      }
    }
    KayiplariYaz(motor, kusurlar);
  }
  ozetsiz.Yaz("özetsiz (önceki sürümden), bozulsa anlaşılmaz", kusurlar);
  disaridan.Yaz("son özetinden sonra önceki bir sürümle veya program dışında değiştirilmiş", kusurlar);
  return kusurlar;
}

}  // namespace belvani
