// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <array>
#include <cstdint>

/// State that all screens share, for the life of the process.
namespace twk {

struct Module1 {
    std::int16_t pid_actual = 0; ///< key of the open project; 0 for none or a new one under way
    Text proyecto_actual;        ///< name of the project as it was opened; keeps the old name after a rename
    Text url_sitio;              ///< Target Site URL as of the last Next of Step 1
    Text url_webmaster;          ///< Webmaster URL, likewise
    std::array<std::int16_t, 21> formas_abiertas{}; ///< -1 while the screen of that number is loaded, else 0
    Text url_principal;   ///< the project's main target URL: links of the pages lead there
    Text nombre_fnm;      ///< name given to the last save of a list of random names
    Text paso6_cancelado; ///< "1" when Step 6 ended by Cancel
    bool run_under_way = false;
};

Module1& module1();

/// Marks a numbered screen as loaded or gone.
void marcar_forma(int number, bool loaded);

} // namespace twk
