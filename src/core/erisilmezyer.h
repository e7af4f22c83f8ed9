// A place that cannot be reached, for a reason that is known: an address that is broken, a server that this program
// cannot speak to. It is an empty one, and whatever is asked of it fails with the reason.
#pragma once

#include <memory>
#include <string>

#include "core/veriyolu.h"

namespace belvani {

std::shared_ptr<const VeriMakinesi> ErisilmezYer(const std::string& adres, Kusur neden);

}  // namespace belvani
