// A company's store with everybody else kept out, for what must not happen under anybody's hands: deletion, the return
// of a backup.
#pragma once

#include <memory>
#include <string_view>

#include "core/store/motor.h"
#include "core/veriyolu.h"

namespace belvani {

// Nobody else reads or writes it as long as the result lives; null when the file is no store, which nobody can have
// open. `yapilmayan` ends the fault, "hiçbir dosya silinmedi", and those who are in follow it.
Sonuc<std::unique_ptr<Motor>> TekBasinaAc(const VeriYolu& sirket, std::string_view yapilmayan);

}  // namespace belvani
