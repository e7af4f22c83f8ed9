// A store as the oldest version left it: without the columns that the upgrade brings.
#pragma once

#include <sstream>

#include "core/session/oturum.h"

namespace belvani::test {

// The columns that the steps bring, by table, in a store that has been open before.
inline constexpr std::pair<const char*, const char*> YeniKolonlar[] = {
    {"firma", "tckimlik epos kanun versiyon semt adrilce adril pk tersfirma"},
    {"brd",
     "ucretsizizin ogv ucrizmatrah katki indirim1 indirim2 indirim3 sakindir gocindir sendika borckes muaftutar "
     "agioran agimatrah brdkanun"},
    {"sicil", "tahsisno indirim1 indirim2 indirim3 indtut1 indtut2 indtut3 kanun tur agi"},
    {"esco", "agiok"}};

// The session's open store; it must be opened anew afterwards.
inline void DepoyuYaslandir(Oturum& o) {
  Motor& motor = o.depo.db.IcMotor();
  motor.Calistir("drop index brd_yil; drop index esco_kod");
  for (const auto& [tablo, adlar] : YeniKolonlar) {
    std::istringstream kelimeler(adlar);
    for (std::string ad; kelimeler >> ad;) motor.Calistir(std::string("alter table ") + tablo + " drop column " + ad);
  }
}

}  // namespace belvani::test
