// Codes of leaving, in the words of the social-security institution. `sicil.cikiskodu` keeps the position in the list,
// which is also the number before the dash.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

namespace belvani {

inline constexpr std::string_view CikisKodlari[] = {
    "00-Çalışıyor",
    "01-Deneme Süreli Sözleşme İşverence Feshi",
    "02-Deneme Süreli Sözleşme İşçi Tarafından Feshi",
    "03-Belirsiz Süreli Sözleşme İşçi Tarafından Feshi",
    "04-Belirsiz Süreli Sözleşme İşveren Tarafından Feshi",
    "05-Belirli Süreli Sözleşme Sona Ermesi",
    "06-Sözleşmenin Haklı Nedenlerle İşçi Tarafından Feshi",
    "07-Sözleşmenin Haklı Nedenlerle İşveren Tarafından Feshi",
    "08-Emeklilik(yaşlılık) veya Toptan Ödeme Nedeniyle",
    "09-Malulen Emeklilik",
    "10-Ölüm",
    "11-İş Kazası Sonucu Ölüm",
    "12-Askerlik",
    "13-Kadın İşçi Evliliği",
    "14-Emekliliğin Yaş Dışı Tamamlanması",
    "15-Toplu İşçi Çıkarma",
    "16-Nakil",
    "17-İşyerinin Kapanması",
    "18-İşin Sona Ermesi",
    "19-Mevsim Bitimi",
    "20-Kampanya Bitimi",
    "21-Statü Değişimi",
    "22-Diğer Nedenler",
    "23-İşçi Tarafından Sorunlu Nedenle Fesih",
    "24-İşçi Tarafından Sağlık Nedeniyle Fesih",
    "25-İşçi Tarafından İşverenin Ahl. ve İ.N.K.A.D.N.İ. Fesih",
    "26- Disiplin kurulu kararı ile fesih",
    "27- İşveren tarafından zorunlu nedenlerle ve tutukluluk nedeniyle fesih",
    "28- İşveren tarafından sağlık nedeni ile fesih",
    "29- İşveren tarafından işçinin ahlak ve iyiniyet kurallarına aykırı davranışı nedeni ile fesih",
    ("30- Vize süresinin bitimi ( İş akdinin askıya alınması halinde kullan Tekrar başlatılmayacaksa '4' nolu kod "
     "kullanılır)"),
    "31- Borçlar Kanunu, Sendikalar Kanunu, Grev ve Lokavt Kanunu kapsamında kendi istek ve kusuru dışında fesih",
    "32- 4046 sayılı Kanunun 21. maddesine göre özelleştirme nedeni ile feshi",
    "33- Gazeteci tarafından sözleşmenin feshi",
    "34- İşyerinin devri, işin veya işyerinin niteliğinin değişmesi nedeniyle fesih",
};

// "" for a number that the list does not know.
constexpr std::string_view CikisKoduMetni(std::uint8_t kod) {
  return kod < std::size(CikisKodlari) ? CikisKodlari[kod] : std::string_view();
}

}  // namespace belvani
