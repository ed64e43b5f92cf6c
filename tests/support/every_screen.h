// SPDX-License-Identifier: MIT
#pragma once

#include "assist/disclaimer.h"
#include "assist/form4.h"
#include "assist/form9.h"
#include "assist/frm_tip.h"
#include "assist/frm_version.h"
#include "engine/form17.h"
#include "inputs/form10.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "inputs/form8.h"
#include "platform/screens.h"
#include "reports/form12.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/mdi1.h"
#include "tools/form11.h"
#include "tools/form16.h"
#include "tools/form19.h"
#include "tools/form20.h"
#include "tools/form21.h"
#include "tools/form23.h"

namespace twk::test {

template <class... S> struct ScreenList {
    static void show() {
        (screens().dispatch([] { screens().show<S>(); }), ...);
    }
    static void load(const std::string& name) {
        ((name == S::name ? static_cast<void>(screens().record<S>()) : void()), ...);
    }
};
using EveryScreen =
    ScreenList<Form1, Form2, Form3, Form4, Form5, Form6, Form7, Form8, Form9, Form10, Form11, Form12, Form16,
               Form17, Form19, Form20, Form21, Form23, frmTip, frmVersion, disclaimer>;

template <class... S> void show_each() {
    ScreenList<S...>::show();
}

inline void show_every_screen() {
    EveryScreen::show();
}

inline constexpr int screen_count = 21; ///< without the main window

/// The loaded screen of that name, the main window among them; loads it if need be.
inline Screen& screen_by_name(const std::string& name) {
    if (screens().find(name) == nullptr)
        screens().dispatch([&] {
            EveryScreen::load(name);
            ScreenList<mdi1>::load(name);
        });
    if (Screen* const loaded = screens().find(name)) return *loaded;
    throw std::runtime_error("no screen " + name);
}

} // namespace twk::test
