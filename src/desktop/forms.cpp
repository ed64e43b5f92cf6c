// SPDX-License-Identifier: MIT
#include "desktop/forms.h"

#include "desktop/looks.h"
#include "ui_disclaimer.h"
#include "ui_form1.h"
#include "ui_form10.h"
#include "ui_form11.h"
#include "ui_form12.h"
#include "ui_form16.h"
#include "ui_form17.h"
#include "ui_form19.h"
#include "ui_form2.h"
#include "ui_form20.h"
#include "ui_form21.h"
#include "ui_form23.h"
#include "ui_form3.h"
#include "ui_form4.h"
#include "ui_form5.h"
#include "ui_form6.h"
#include "ui_form7.h"
#include "ui_form8.h"
#include "ui_form9.h"
#include "ui_frmtip.h"
#include "ui_frmversion.h"

#include <map>

namespace twk {

namespace {

template <class Form> QWidget* built() {
    auto* const widget = new QWidget;
    Form form;
    form.setupUi(widget);
    dress(*widget);
    return widget;
}

} // namespace

QWidget* make_form(const std::string& screen) {
    static const std::map<std::string, QWidget* (*)()> forms = {
        {"Form1", built<Ui::Form1>},           {"Form2", built<Ui::Form2>},
        {"Form3", built<Ui::Form3>},           {"Form4", built<Ui::Form4>},
        {"Form5", built<Ui::Form5>},           {"Form6", built<Ui::Form6>},
        {"Form7", built<Ui::Form7>},           {"Form8", built<Ui::Form8>},
        {"Form9", built<Ui::Form9>},           {"Form10", built<Ui::Form10>},
        {"Form11", built<Ui::Form11>},         {"Form12", built<Ui::Form12>},
        {"Form16", built<Ui::Form16>},         {"Form17", built<Ui::Form17>},
        {"Form19", built<Ui::Form19>},         {"Form20", built<Ui::Form20>},
        {"Form21", built<Ui::Form21>},         {"Form23", built<Ui::Form23>},
        {"frmTip", built<Ui::frmTip>},         {"frmVersion", built<Ui::frmVersion>},
        {"disclaimer", built<Ui::disclaimer>},
    };
    const auto at = forms.find(screen);
    return at == forms.end() ? nullptr : at->second();
}

} // namespace twk
