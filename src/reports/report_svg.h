// SPDX-License-Identifier: MIT
#pragma once

#include "reports/charts.h"

#include <string>

namespace twk {

/// A text in UTF-8 as HTML and XML have it in elements and in quoted attributes. What may not stand there at
/// all becomes U+FFFD.
std::string escaped(TextView text);

/// Charts as elements of a page; colours are those of its style sheet, by the classes k0 to k3.
std::string as_svg(const Histogram& chart);
std::string as_svg(const LinkMatrix& chart);

/// A number with at most two decimals.
std::string short_number(double value);

} // namespace twk
