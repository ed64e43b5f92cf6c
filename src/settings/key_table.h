// SPDX-License-Identifier: MIT
#pragma once

#include "settings/form6.h"

#include <span>
#include <variant>

/// The keys of a settings file as data: where each value lives, how its line is read and how it is written.
namespace twk {

/// How a line of a key is read.
enum class Load {
    number,       ///< 16-bit
    check,        ///< on at 1
    list,         ///< entries of a combo
    address,      ///< text of a box, quotes dropped
    record,       ///< `cargar_valor`
    phrase,       ///< `cargar_frase`
    fixed_column, ///< what stands behind column 6, "=" and blanks included
    last_unit,    ///< an option, by the line's last character
};

/// What is written for it.
enum class Save {
    number,
    flag,           ///< 1 or 0
    flag_of_number, ///< 1 for the value 1, else 0
    always_on,      ///< 1, whatever the box shows
    list,
    list_trimmed, ///< the chosen entry loses its outer blanks
    quoted_list,
    separator_list,
    quoted,
    quoted_trimmed,
    escaped, ///< quoted, quotes inside stored as such; other texts lose theirs on the way back
    words,   ///< entries 0 to 9, blank ones left out
    bare,
    no_value, ///< the key alone
    never,
};

using Target = std::variant<int, std::int16_t GatewaySettings::*, Named<CheckBox> Form6::*,
                            Named<ComboBox> Form6::*, Named<TextBox> Form6::*>;

struct Key {
    TextView key;
    Load load;
    Save save;
    Target target; ///< a number: the index of `cargar_valor` or `cargar_frase`, of an option 0
    bool empty_line_behind = false;
};

/// All keys in the order of the file.
std::span<const Key> key_table();

} // namespace twk
