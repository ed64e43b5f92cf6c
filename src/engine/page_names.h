// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

class PageChoices;
struct GatewaySettings;
struct Plan;
struct Project;

/// Names of the random pages, from pairs of terms, "_js" behind every (S + 1)th; then the reordering that
/// takes every second name from the far end. Faults: 11 (a share that gives less than one page), 1001 (no
/// terms).
void build_page_names(Plan& plan, const Project& project, const PageChoices& choices);

/// Spreads the names over the destinations; a name that stands before gets a number.
void distribute_pages(Plan& plan, const PageChoices& choices);

/// Step 6: shows the names and takes them back. False when the user cancelled.
bool offer_page_names(Plan& plan, const PageChoices& choices);

} // namespace twk
