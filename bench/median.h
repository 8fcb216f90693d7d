#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace bench {

/// The upper one of two; of at least one value.
template <class Number>
[[nodiscard]] Number median(std::vector<Number> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace bench
