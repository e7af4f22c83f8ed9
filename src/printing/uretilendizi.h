// UretilenDizi: values of a paper, each made when it is asked for: kept together, those of a large company would take a
// hundred times the memory of the paper.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "core/siraimleci.h"

namespace belvani {

template <class T>
class UretilenDizi {
 public:
  UretilenDizi(std::vector<T> degerler = {})  // NOLINT: values that are made already
      : UretilenDizi(degerler.size(), [degerler](std::size_t sira) { return degerler[sira]; }) {}
  // `yap` gives the same value every time, and does not fail.
  UretilenDizi(std::size_t adet, std::function<T(std::size_t sira)> yap) : adet_(adet), yap_(std::move(yap)) {}

  std::size_t size() const { return adet_; }
  bool empty() const { return adet_ == 0; }
  T operator[](std::size_t sira) const { return yap_(sira); }

  SiraImleci<UretilenDizi> begin() const { return {this, 0}; }
  SiraImleci<UretilenDizi> end() const { return {this, adet_}; }

 private:
  std::size_t adet_;
  std::function<T(std::size_t)> yap_;
};

}  // namespace belvani
