// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

/// Addresses that the deployment sets.
namespace twk::addresses {

inline constexpr TextView google_search = u"http://www.google.com";
inline constexpr TextView flash_download = u"http://download.macromedia.com";
inline constexpr TextView flash_plugin = u"http://www.macromedia.com";
inline constexpr TextView maker_site = u"http://www.tarnwick.example";
inline constexpr TextView suggestion_service = u"http://suggest.tarnwick.example";
inline constexpr TextView spider_start = u"http://www.google.com";

} // namespace twk::addresses
