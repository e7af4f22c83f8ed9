// Precompiled for every room: the standard headers that nearly all files use.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <compare>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>
