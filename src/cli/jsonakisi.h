// JSON that does not stand in memory as a whole: a list that is given is parsed person by person, one that is written
// goes out row by row. Two hundred thousand people take what one takes, and their texts.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "cli/jsonkayit.h"
#include "cli/ortak.h"

namespace belvani::cli {

// A text as JSON, whole: no list and no object that nests deeper than any of ours.
class JsonGirdisi {
 public:
  // KomutHatasi when any of it is no JSON, also far behind what is read first.
  explicit JsonGirdisi(std::string metin);

  bool Liste() const { return liste_; }
  // The next element of the list, or the one value; nothing at the end.
  std::optional<Json> Sonraki();

 private:
  std::string_view SonrakiOge();

  std::string metin_;
  bool liste_ = false;
  std::size_t yer_ = 0;
};

// Indented by two blanks a level; a list without elements is "[]".
std::string JsonMetni(const Json& json, int girinti = 0);

class JsonDizisi {
 public:
  explicit JsonDizisi(MetinCikisi& cikis, int girinti = 0) : cikis_(cikis), girinti_(girinti) {}

  void Ekle(const Json& json);
  void Bitir();

 private:
  MetinCikisi& cikis_;
  int girinti_;
  bool bos_ = true;
};

}  // namespace belvani::cli
