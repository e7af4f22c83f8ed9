// The version of this program. The build says it once (project(belvani VERSION …)); store, start and about window,
// command line and packages follow.
#pragma once

#include "core/tek.h"

namespace belvani {

// As the `firma` record keeps it: a store of another version is to be upgraded.
Tek ProgramVersiyonu();

}  // namespace belvani
