// SPDX-License-Identifier: MIT
#pragma once

namespace twk::test {

/// Fails for every link or picture of a page of the open project's site that leads to no file of it. Links to
/// other sites and the user's own page of local paths are left alone.
void expect_links_lead_somewhere();

} // namespace twk::test
