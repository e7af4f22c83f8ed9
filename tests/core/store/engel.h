// Rules of a store that a test lays down or takes away past the house's own SQL. What they look like is the engine's.
#pragma once

#include <string>

#include "core/store/motor.h"
#include "veriyeri.h"

namespace belvani::test {

// From now on the store refuses such a write: Engelle(motor, "update of versiyon", "firma").
inline void Engelle(Motor& motor, const std::string& olay, const std::string& tablo) {
  const std::string tetik = "create trigger engel before " + olay + " on " + tablo;
  if (SunucudaMi())
    motor.Calistir("create function engel() returns trigger language plpgsql as 'begin raise exception ''x''; end';" +
                   tetik + " for each row execute function engel()");
  else
    motor.Calistir(tetik + " begin select raise(abort, 'x'); end");
}

inline void TetigiKaldir(Motor& motor, const std::string& tetik, const std::string& tablo) {
  motor.Calistir("drop trigger " + tetik + (SunucudaMi() ? " on " + tablo : ""));
}

inline void EngeliKaldir(Motor& motor, const std::string& tablo) {
  TetigiKaldir(motor, "engel", tablo);
  if (SunucudaMi()) motor.Calistir("drop function engel()");
}

}  // namespace belvani::test
