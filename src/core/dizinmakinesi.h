// The maker of places that are directories of a disk that this computer sees.
#pragma once

#include <memory>
#include <string>

#include "core/veriyolu.h"

namespace belvani {

std::shared_ptr<const VeriMakinesi> DizinYeri(const std::string& dizin);

}  // namespace belvani
