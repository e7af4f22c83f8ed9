// A cursor against a plain vector: whatever is done in whatever order, both show the same record.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/store/ornekdepo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

enum class Sira { Gelis, Kod, Oto };
enum class Yer { Bas, Son, Ikisi, Kayitta, Silinmis };

// All rows lie in a vector, which each question sorts anew.
struct Model {
  std::vector<Cari> kayitlar;
  int sonOto = 0;
  Sira sira = Sira::Gelis;
  Yer yer = Yer::Ikisi;
  Cari su;  // the record as it was read

  int Fark(const Cari& a, const Cari& b) const {
    const int fark = sira == Sira::Kod ? TurkceKarsilastir(a.kod, b.kod) : 0;
    return fark != 0 ? fark : a.oto - b.oto;
  }
  std::vector<Cari> Sirali(int yon) const {
    auto s = kayitlar;
    std::sort(s.begin(), s.end(), [&](const auto& a, const auto& b) { return yon * Fark(a, b) < 0; });
    return s;
  }
  auto Bul(int oto) {
    return std::find_if(kayitlar.begin(), kayitlar.end(), [&](const Cari& k) { return k.oto == oto; });
  }
  const Cari& Degistir(int oto, const std::string& kod, int islem) {
    Cari& k = *Bul(oto);
    k.kod = kod;
    k.islem = std::uint8_t(islem);
    return k;
  }

  bool SonMu() const { return yer == Yer::Son || yer == Yer::Ikisi; }
  bool BasMi() const { return yer == Yer::Bas || yer == Yer::Ikisi; }
  bool Git(const Cari& k) {
    su = k;
    yer = Yer::Kayitta;
    return true;
  }
  bool Uca(int yon) {
    const auto s = Sirali(yon);
    yer = Yer::Ikisi;
    return !s.empty() && Git(s.front());
  }
  bool Yuru(int yon) {
    if (yon > 0 ? SonMu() : BasMi()) return false;
    if (yer == (yon > 0 ? Yer::Bas : Yer::Son)) return Uca(yon);
    for (const Cari& k : Sirali(yon))
      if (yon * Fark(su, k) < 0) return Git(k);
    yer = yon > 0 ? Yer::Son : Yer::Bas;
    return false;
  }
  bool KayitBul(const std::string& kod) {
    sira = Sira::Kod;
    for (const Cari& k : Sirali(1))
      if (TurkceEsit(k.kod, kod)) return Git(k);
    yer = Yer::Ikisi;
    return false;
  }
  void IndeksSec(Sira yeni) {
    if (std::exchange(sira, yeni) != yeni) Uca(1);
  }
};

enum class Is { Ileri, Geri, Ilk, Son, Konuma, Bul, Kod, Oto, Ekle, Duzelt, Sil, BaskaEkle, BaskaDuzelt, BaskaSil };

struct Deney {
  Imlec& rs;
  Imlec& baska;  // a second cursor on the same store
  Model& m;

  // True when cursor and model did the same. `n` chooses a key, a row, a position.
  bool Yap(Is is, int n) {
    static const std::vector<std::string> kodlar{"ç", "C", "ı", "I", "i", "İ", "Ç", "z", ""};
    const std::string& kod = kodlar[std::size_t(n) % kodlar.size()];
    const int kurban = m.kayitlar.empty() ? 0 : m.kayitlar[std::size_t(n) % m.kayitlar.size()].oto;
    const auto sirali = m.Sirali(1);
    switch (is) {
      case Is::Ileri:
        for (int i = n % 7; i > 0; --i)  // far enough to read ahead
          if (rs.SonrakiKayit() != m.Yuru(1)) return false;
        return true;
      case Is::Geri:
        for (int i = n % 7; i > 0; --i)
          if (rs.OncekiKayit() != m.Yuru(-1)) return false;
        return true;
      case Is::Ilk:
        return rs.IlkKayit() == m.Uca(1);
      case Is::Son:
        return rs.SonKayit() == m.Uca(-1);
      case Is::Konuma:
        return rs.Konuma(n) == (std::size_t(n) < sirali.size() && m.Git(sirali[std::size_t(n)]));
      case Is::Bul:
        return rs.KayitBul("kod", kod) == m.KayitBul(kod);
      case Is::Kod:
        m.IndeksSec(Sira::Kod);
        return rs.IndeksSec("kod");
      case Is::Oto:
        m.IndeksSec(Sira::Oto);
        return rs.IndeksSec("oto");
      case Is::Ekle:
      case Is::BaskaEkle:
        m.kayitlar.push_back({kod, {}, {}, std::uint8_t(n), {}, ++m.sonOto});
        return test::Ekle(is == Is::Ekle ? rs : baska, {{"kod", kod}, {"islem", std::int64_t(n)}});
      case Is::Duzelt: {
        const bool olur = m.yer == Yer::Kayitta && m.Bul(m.su.oto) != m.kayitlar.end();
        if (Duzelt(rs, kod, n) != olur) return false;
        return olur ? m.Git(m.Degistir(m.su.oto, kod, n)) : rs.IlkKayit() == m.Uca(1);  // which drops the edit
      }
      case Is::BaskaDuzelt:
        if (kurban == 0) return true;
        m.Degistir(kurban, kod, n);
        return baska.KayitBul("oto", std::int64_t(kurban)) && Duzelt(baska, kod, n);
      case Is::Sil:
        rs.KayitSil();
        if (m.yer != Yer::Kayitta) return true;
        m.yer = Yer::Silinmis;
        std::erase_if(m.kayitlar, [&](const Cari& k) { return k.oto == m.su.oto; });
        return true;
      case Is::BaskaSil:
        if (baska.KayitBul("oto", std::int64_t(kurban))) baska.KayitSil();
        std::erase_if(m.kayitlar, [&](const Cari& k) { return k.oto == kurban; });
        return true;
    }
    return false;
  }

  static bool Duzelt(Imlec& x, const std::string& kod, int n) {
    x.KayitDuzelt();
    x.AlanYaz("kod", kod);
    x.AlanYaz("islem", std::int64_t(n));
    return x.KayitYaz();
  }

  bool Ayni() {
    if (rs.SonMu() != m.SonMu() || rs.BasMi() != m.BasMi() || rs.KayitSayisi() != int(m.kayitlar.size())) return false;
    if (m.yer != Yer::Kayitta) return rs.AlanOku("kod") == Deger(std::int64_t(1));
    return rs.TamOku("oto") == m.su.oto && rs.MetinOku("kod") == m.su.kod && rs.TamOku("islem") == m.su.islem;
  }
};

RC_GTEST_PROP(ImlecModel, BehavesLikeAVector, ()) {
  static test::OrnekDepo d;
  Islem islem(d.db.IcMotor());  // never approved: each case begins with an empty table
  Imlec rs, baska;
  Model m;
  Deney deney{rs, baska, m};
  RC_ASSERT(d.db.TabloAc(baska, "cari"));
  RC_ASSERT(test::Ekle(baska, {{"kod", std::string("sayaç")}}) && baska.SonKayit());
  m.sonOto = int(baska.TamOku("oto"));  // a number given is never given again, be the row taken back
  baska.KayitSil();
  for (int n = *rc::gen::inRange(0, 25); n > 0; --n) deney.Yap(Is::BaskaEkle, n * 5);
  RC_ASSERT(d.db.TabloAc(rs, "cari"));
  m.Uca(1);
  // clang-format off
  const auto is = rc::gen::weightedElement<Is>(
      {{12, Is::Ileri}, {8, Is::Geri}, {1, Is::Ilk}, {1, Is::Son}, {1, Is::Konuma}, {2, Is::Bul}, {1, Is::Kod}, {1, Is::Oto},
       {2, Is::Ekle}, {1, Is::Duzelt}, {2, Is::Sil}, {1, Is::BaskaEkle}, {1, Is::BaskaDuzelt}, {1, Is::BaskaSil}});
  // clang-format on
  for (const auto& [ne, n] :
       *rc::gen::container<std::vector<std::pair<Is, int>>>(rc::gen::pair(is, rc::gen::inRange(0, 20)))) {
    RC_LOG() << int(ne) << "/" << n << " ";
    RC_ASSERT(deney.Yap(ne, n));
    RC_ASSERT(deney.Ayni());
  }
}

}  // namespace
}  // namespace belvani
