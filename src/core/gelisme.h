// Gelisme: a step of a conversation as a value: what it came to, and what its user is to be told of it, in this order,
// by whoever took the step (Form::Soyle on the desktop). For steps that end in more ways than done and failed; those
// two are a Sonuc.
//
//   return {KodSonucu::Bilinmiyor, KuralKusuru("Bu kodla personel yok: " + kod)};
#pragma once

#include <iterator>
#include <utility>

#include "core/kusur.h"

namespace belvani {

template <class Hal>
struct Gelisme {
  Gelisme(Hal hal_) : hal(std::move(hal_)) {}  // NOLINT: an outcome without words is one
  Gelisme(Hal hal_, Kusur soz) : hal(std::move(hal_)) { sozler.push_back(std::move(soz)); }
  Gelisme(Hal hal_, Kusurlar sozler_) : hal(std::move(hal_)), sozler(std::move(sozler_)) {}

  // What an earlier step has to say comes first.
  Gelisme Sonra(Kusurlar onceki) && {
    onceki.insert(onceki.end(), std::make_move_iterator(sozler.begin()), std::make_move_iterator(sozler.end()));
    return {std::move(hal), std::move(onceki)};
  }

  Hal hal;
  Kusurlar sozler;
};

}  // namespace belvani
