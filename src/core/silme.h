// What became of a wish to delete, which the logic lets its user confirm.
#pragma once

namespace belvani {

enum class Silme {
  Silindi,
  Silinmedi,  // the user said no, or had nothing to delete
};

}  // namespace belvani
