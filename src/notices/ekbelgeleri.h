// "İşçi Giriş Bildirim Listesi (Ek-1)" and "İşçi Çıkış Bildirim Listesi (Ek-2)" from the store: on their forms, as
// text, as a table.
#pragma once

#include <memory>
#include <string>

#include "documents/tariharaligi.h"

namespace belvani {

// "İş Yerinde Yapılan Esas İş"; what the company's card says, until its user types something else.
struct EsasIs {
  static constexpr int Harf = 40;

  std::string isi;

  void FirmaKoy(const Firma& firma) { isi = firma.isi; }
};

// Throw MotorHatasi.
std::unique_ptr<Belge> GirisListesiBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik, const EsasIs& is);
std::unique_ptr<Belge> CikisListesiBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik, const EsasIs& is);

}  // namespace belvani
