// Compiled once for all screens.
#pragma once

#include <QtWidgets/QtWidgets>

#include "core/pch.h"
